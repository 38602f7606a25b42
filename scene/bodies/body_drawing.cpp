// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>

#include "scene/bodies/body_marks.h"
#include "scene/display/dot.h"
#include "scene/display/palette.h"
#include "scene/display/style_rules.h"
#include "utils/text.h"

namespace scene {
namespace {

// Brightness of the part that the Sun does not light. That of the Moon is in the light of the Earth, which is
// full when the Moon is new.
constexpr double kNightSide = 0.03, kEarthShine = 0.10;

float Pixel(double v) { return static_cast<float>(v); }

const Colour& GetColour(const SSO_ID& id) {
  if (id.kind == FourCC("moon")) return palette::kMoon;
  if (id.kind == FourCC("astr")) return palette::kAsteroid;
  if (id.kind == FourCC("comt")) return palette::kComet;
  if (id.kind == FourCC("scft")) return palette::kSatellite;
  const int index = id.number - 1;
  return id.number == kSunNumber || index < 0 || index >= static_cast<int>(std::size(palette::kPlanets))
             ? palette::kSun
             : palette::kPlanets[index];
}

Rgba Lighter(const Rgba& a, const Rgba& b) {
  return {std::max(a.red, b.red), std::max(a.green, b.green), std::max(a.blue, b.blue), a.alpha};
}

// Draws one body.
class BodyPen {
 public:
  BodyPen(const DrawnBody& drawn, const SSO_ID& id, const BodyGlobes& globes, const SkyColours& sky,
          DisplayList& list)
      : m_Drawn(drawn),
        m_Id(id),
        m_Globes(globes),
        m_Object{id.kind, id.number},
        m_X(drawn.place.x),
        m_Y(list.GetHeight() - drawn.place.y),
        m_Sky(sky),
        m_List(list),
        m_Ringed(GetStyleRules(list.GetStyle()).ringedBodies) {}

  void Draw(std::span<const DrawnShadow> shadows) const {
    if (m_Drawn.body == kSunBody) return DrawSun();
    const Colour& colour = GetColour(m_Id);
    if (m_Drawn.asDisc) {
      DrawDisc(colour, MakeMoonlight(colour));
      for (const DrawnShadow& shadow : shadows) {
        if (shadow.body == m_Drawn.body)
          shadow.body == kMoonBody ? DrawShadow(shadow) : DrawSmallShadow(shadow);
      }
    } else if (m_Id.kind == FourCC("comt")) {
      DrawTail(colour);
      DrawDot(colour);
    } else if (m_Id.kind == FourCC("astr")) {
      GetStyleRules(m_List.GetStyle()).symbols ? DrawRinged(colour) : DrawDot(colour);
    } else if (m_Id.kind == FourCC("scft")) {
      DrawDiamond(colour);
    } else {
      DrawDot(colour);
    }
  }

 private:
  Glow MakeGlow(double reach, const Colour& colour, double strength) const {
    if (m_Ringed) return {};
    return {Pixel(0.5 * m_Drawn.radius), Pixel(reach * m_Drawn.radius), 0.4f,
            ToRgba(Scaled(colour, 1.0, strength)), ToRgba(Scaled(colour, 1.0, 0.3 * strength))};
  }
  bool IsLarge() const { return m_Drawn.radius >= 40.0 * static_cast<double>(m_List.GetUnit()); }
  // Of what shines by sunlight; around a large disc it would look like fog.
  Glow MakeMoonlight(const Colour& colour) const {
    if (IsLarge()) return {};
    const double lit = 0.5 * (1.0 + m_Drawn.cosPhase);
    return MakeGlow(2.6, colour, 0.35 * lit * m_Drawn.opacity);
  }
  void DrawPoint(const Colour& colour, double opacity, const Glow& glow) const {
    const PaintedDot dot = PaintedDot::Fit(Pixel(m_Drawn.radius));
    m_List.Add(Layer::kBodies,
               PointRecord{Pixel(m_X), Pixel(m_Y), dot.radius,
                           ToRgba(Scaled(colour, 1.0, opacity * dot.opacity)), glow, m_Object});
  }
  void DrawDot(const Colour& colour) const {
    if (m_Ringed) return DrawRinged(colour);
    const bool shines = PaintedDot::Shines(Pixel(m_Drawn.radius), m_List.GetUnit());
    DrawPoint(colour, m_Drawn.opacity, shines ? MakeGlow(3.4, colour, 0.45 * m_Drawn.opacity) : Glow{});
  }
  double GetNightSide() const {
    return m_Drawn.body == kMoonBody ? kNightSide + kEarthShine * 0.5 * (1.0 - m_Drawn.cosPhase) : kNightSide;
  }
  void DrawSun() const {
    const bool covered = m_Sky.IsSunCovered();
    const Colour colour = covered ? palette::kCorona : m_Sky.GetSun();
    // No darker than the sky that it is painted on.
    const Rgba sky = m_Sky.Find(m_X, m_Y);
    const Colour light = {std::max(colour.red, sky.red / 255.0), std::max(colour.green, sky.green / 255.0),
                          std::max(colour.blue, sky.blue / 255.0), 1.0};
    const Glow glow = MakeGlow(4.0, light, covered ? 0.9 : 0.55);
    if (m_Ringed && !m_Drawn.globe) return DrawRinged(colour);
    m_Drawn.globe && !covered ? DrawDisc(colour, glow) : DrawPoint(colour, covered ? 0.0 : 1.0, glow);
  }
  void DrawDisc(const Colour& colour, const Glow& glow) const;
  void DrawGlobe(const DiscRecord& disc) const;
  ShadowRecord MakeShadow(const DrawnShadow& shadow) const;
  void DrawShadow(const DrawnShadow& shadow) const;
  void DrawSmallShadow(const DrawnShadow& shadow) const;
  void DrawTail(const Colour& colour) const;
  void DrawRinged(const Colour& colour) const;
  void DrawRing(const Colour& colour, double away) const;
  void DrawDiamond(const Colour& colour) const;

  const DrawnBody& m_Drawn;
  const SSO_ID& m_Id;
  const BodyGlobes& m_Globes;
  ObjectRef m_Object;
  double m_X, m_Y;
  const SkyColours& m_Sky;
  DisplayList& m_List;
  bool m_Ringed;  // instead of shining
};

void BodyPen::DrawDisc(const Colour& colour, const Glow& glow) const {
  DiscRecord disc = {};
  disc.x = Pixel(m_X);
  disc.y = Pixel(m_Y);
  disc.radius = Pixel(m_Drawn.radius);
  disc.sunX = Pixel(m_Drawn.toSun.x);
  disc.sunY = Pixel(-m_Drawn.toSun.y);
  disc.cosPhase = Pixel(m_Drawn.cosPhase);
  disc.lit = ToRgba(Scaled(colour, 1.0, m_Drawn.opacity));
  disc.dark = Lighter(ToRgba(Scaled(colour, GetNightSide(), m_Drawn.opacity)), m_Sky.Find(m_X, m_Y));
  disc.glow = glow;
  disc.object = m_Object;
  m_Drawn.globe ? DrawGlobe(disc) : m_List.Add(Layer::kBodies, disc);
  if (m_Ringed) DrawRing(colour, 0.0);
}

void BodyPen::DrawGlobe(const DiscRecord& disc) const {
  GlobeRecord record = {};
  record.disc = disc;
  record.air = m_Sky.Find(m_X, m_Y);
  std::copy(std::begin(m_Drawn.globe->toBody), std::end(m_Drawn.globe->toBody), record.toBody);
  record.flattening = m_Drawn.globe->flattening;
  // A small Sun dazzles and has the colour that the air leaves it, a large one is seen as through a filter.
  const bool dazzles = m_Drawn.body == kSunBody && m_Sky.IsNatural() && !IsLarge();
  record.limbDarkening = dazzles ? 0.0f : m_Drawn.globe->limbDarkening;
  record.map = dazzles ? -1 : m_Drawn.globe->map;
  if (m_Drawn.globe->ringed) {
    record.ringInner = m_Globes.GetRingInner();
    record.ringOuter = m_Globes.GetRingOuter();
    for (const Rgba& colour : m_Globes.GetRing()) m_List.AddColour(colour);
  }
  m_List.Add(Layer::kBodies, record);
  DrawGlobeLines(record, m_Drawn.lines, m_List);
}

ShadowRecord BodyPen::MakeShadow(const DrawnShadow& shadow) const {
  ShadowRecord record = {};
  record.x = Pixel(shadow.centre.x);
  record.y = Pixel(m_List.GetHeight() - shadow.centre.y);
  record.clipX = Pixel(m_X);
  record.clipY = Pixel(m_Y);
  record.clipRadius = Pixel(m_Drawn.radius);
  record.object = m_Object;
  record.innerRadius = Pixel(shadow.umbra);
  record.outerRadius = Pixel(shadow.penumbra);
  return record;
}

// That of a moon on its planet: black where all the sunlight is gone, or most of it where the umbra ends
// above the clouds.
void BodyPen::DrawSmallShadow(const DrawnShadow& shadow) const {
  ShadowRecord record = MakeShadow(shadow);
  const double deep = shadow.umbra > 0.0 ? 0.94 : 0.8;
  record.middle = 0.5f;
  record.inner = ToRgba({0.02, 0.02, 0.02, deep});
  record.middleColour = ToRgba({0.02, 0.02, 0.02, 0.5 * deep});
  record.outer = ToRgba({0.02, 0.02, 0.02, 0.0});
  m_List.Add(Layer::kBodies, record);
}

// The penumbra takes more and more of the sunlight towards the umbra, which is dark and red.
void BodyPen::DrawShadow(const DrawnShadow& shadow) const {
  ShadowRecord record = MakeShadow(shadow);
  record.middle = 0.25f;
  record.inner = ToRgba({0.10, 0.06, 0.05, 0.70});
  record.middleColour = ToRgba({0.08, 0.06, 0.05, 0.48});
  record.outer = ToRgba({0.05, 0.05, 0.05, 0.0});
  m_List.Add(Layer::kBodies, record);
  if (!(shadow.umbra > 0.0)) return;
  const Colour& umbra = palette::kUmbra;
  record.innerRadius = 0.0f;
  record.outerRadius = Pixel(shadow.umbra);
  record.middle = 0.8f;
  record.inner = ToRgba(Scaled(umbra, 0.5, 0.94));
  record.middleColour = ToRgba(Scaled(umbra, 1.0, 0.92));
  record.outer = ToRgba({umbra.red, 1.4 * umbra.green, 1.6 * umbra.blue, 0.88});
  m_List.Add(Layer::kBodies, record);
}

void BodyPen::DrawTail(const Colour& colour) const {
  const double length = 12.0 * m_Drawn.radius + 22.0 * static_cast<double>(m_List.GetUnit());
  const double awayX = -m_Drawn.toSun.x, awayY = m_Drawn.toSun.y;  // y down
  GradientRecord tail = {};
  const auto corner = [&](int i, double along, double aside) {
    tail.cornerX[i] = Pixel(m_X + along * awayX - aside * awayY);
    tail.cornerY[i] = Pixel(m_Y + along * awayY + aside * awayX);
  };
  corner(0, 0.0, -m_Drawn.radius);
  corner(1, length, -0.28 * length);
  corner(2, length, 0.28 * length);
  corner(3, 0.0, m_Drawn.radius);
  tail.x0 = Pixel(m_X);
  tail.y0 = Pixel(m_Y);
  tail.x1 = Pixel(m_X + length * awayX);
  tail.y1 = Pixel(m_Y + length * awayY);
  tail.middle = 1.0f;
  tail.colour = ToRgba(colour, 0.55 * m_Drawn.opacity);
  tail.middleColour = tail.endColour = ToRgba(colour, 0.0);
  tail.object = m_Object;
  m_List.Add(Layer::kBodies, tail);
}

// A ring around the dot tells it from a star.
void BodyPen::DrawRinged(const Colour& colour) const {
  DrawPoint(colour, m_Drawn.opacity, {});
  DrawRing(colour, 2.5);
}

// `away`: from the edge of the body, pixels of the standard picture.
void BodyPen::DrawRing(const Colour& colour, double away) const {
  const float radius = Pixel(m_Drawn.radius + away * static_cast<double>(m_List.GetUnit()));
  m_List.Add(Layer::kBodies,
             EllipseRecord{Pixel(m_X), Pixel(m_Y), radius, radius, 0.0f, 0.9f * m_List.GetUnit(), 0.0f,
                           ToRgba(colour, 0.55 * m_Drawn.opacity), m_Object});
}

void BodyPen::DrawDiamond(const Colour& colour) const {
  const double r = 1.4 * m_Drawn.radius;
  m_List.AddVertex(m_X - r, m_Y);
  m_List.AddVertex(m_X, m_Y - r);
  m_List.AddVertex(m_X + r, m_Y);
  m_List.AddVertex(m_X, m_Y + r);
  PolygonRecord area = {};
  area.colour = ToRgba(colour, m_Drawn.opacity);
  area.object = m_Object;
  m_List.AddArea(Layer::kBodies, area);
}

}  // namespace

void BodyMarks::Draw(const SkyColours& sky, DisplayList& list) const {
  for (const auto& drawn : m_Drawn) {
    const SSO_ID& id = m_Model.GetBodies()[static_cast<std::size_t>(drawn.body)].id;
    BodyPen(drawn, id, m_Globes, sky, list).Draw(m_Shadows);
  }
}

}  // namespace scene
