// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "scene/display/deepsky_symbols.h"
#include "scene/display/dot.h"
#include "scene/display/palette.h"
#include "scene/display/star_signs.h"
#include "scene/display/style_rules.h"
#include "scene/display/symbol_colour.h"
#include "scene/frame/sky_objects.h"
#include "utils/text.h"

namespace scene {
namespace {

// Light around a bright star; of solid ones a rim that keeps it apart from what lies below.
Glow MakeStarGlow(const Colour& colour, double opacity, float radius, const StyleRules& rules, float unit) {
  if (rules.solidStars) {
    const float rim = radius + std::max(0.8f * unit, 0.6f);
    return radius < 1.1f * unit ? Glow{} : Glow{radius, rim, 0.6f, ToRgba(colour), ToRgba(colour)};
  }
  if (!(radius > rules.glareFrom * unit)) return {};
  return {0.0f, rules.glareReach * radius, 0.35f, ToRgba(colour, rules.glareStrength * opacity),
          ToRgba(colour, rules.glareMiddle * opacity)};
}

void DrawStar(const DrawnStar& drawn, const StyleRules& rules, DisplayList& list) {
  const auto& place = drawn.output->m_Place;
  const Colour& colour = palette::kStars[std::min<unsigned>(drawn.spectrum, palette::kSpectralClasses)];
  const double opacity = rules.solidStars ? 1.0 : drawn.opacity;
  const float radius = rules.GetStarRadius(place.radius, list.GetUnit());
  PointRecord point = {};
  point.x = place.x;
  point.y = static_cast<float>(list.GetHeight()) - place.y;
  const PaintedDot dot = PaintedDot::Fit(radius);
  point.radius = dot.radius;
  point.colour = ToRgba(colour, opacity * dot.opacity);
  point.glow = MakeStarGlow(colour, opacity, radius, rules, list.GetUnit());
  point.object = {FourCC("star"), drawn.number};
  list.Add(Layer::kStars, point);
}

// Boxes of objects whose position angle is unknown stand upright.
float GetAngle(DeepskySign sign, const DrawnDeepsky& drawn, const DeepskyObject& object) {
  return sign != DeepskySign::kGalaxy && std::isnan(object.positionAngle) ? 0.0f : drawn.angle;
}

DeepskySymbol MakeSymbol(const DrawnDeepsky& drawn, const DeepskyObject& object, double strength,
                         const DisplayList& list) {
  const auto& output = *drawn.output;
  const DeepskySign sign = FindDeepskySign(object.kind, object.number);
  const Colour& colour = GetSymbolColour(LabelKindOfDeepsky(object.kind));
  return {sign,
          output.m_Place.x,
          static_cast<float>(list.GetHeight()) - output.m_Place.y,
          0.5f * output.m_MajorSize,
          0.5f * output.m_MinorSize,
          GetAngle(sign, drawn, object),
          1.1f * list.GetUnit(),
          ToRgba(colour, strength * static_cast<double>(drawn.opacity)),
          {object.kind, object.number}};
}

}  // namespace

void SkyObjects::DrawDeepsky(const NebulaClouds& clouds, double strength, DisplayList& list) const {
  for (const auto add : {AddSymbolRings, AddSymbolLines}) {
    for (const auto& drawn : m_Deepsky) {
      const DeepskyObject& object = m_Catalogs.deepsky[static_cast<std::size_t>(drawn.object)];
      const bool isNebula = LabelKindOfDeepsky(object.kind) == LabelKind::kNebula;
      if (!isNebula || !clouds.IsFormed(drawn.object)) add(MakeSymbol(drawn, object, strength, list), list);
    }
  }
}

void SkyObjects::DrawSample(int object, double x, double y, double radius, DisplayList& list) const {
  constexpr float kSlope = static_cast<float>(-25.0 * kRadiansPerDegree);
  CommonInterfaces::DeepskyOutput output;
  output.m_Place = {static_cast<float>(x), static_cast<float>(list.GetHeight() - y),
                    static_cast<float>(radius), 0.0f};
  const DeepskyObject& sample = m_Catalogs.deepsky[static_cast<std::size_t>(object)];
  const bool isGalaxy = FindDeepskySign(sample.kind, sample.number) == DeepskySign::kGalaxy;
  output.m_MajorSize = static_cast<float>(2.0 * radius);
  output.m_MinorSize = isGalaxy ? 0.5f * output.m_MajorSize : output.m_MajorSize;
  for (const auto add : {AddSymbolRings, AddSymbolLines})
    add(MakeSymbol({&output, object, 1.0f, kSlope}, sample, 1.0, list), list);
}

void SkyObjects::DrawSignSample(unsigned mark, double x, double y, double radius, DisplayList& list) {
  const Rgba colour = ToRgba(palette::kLegendText);
  const float r = static_cast<float>(radius);
  AddStarSign({static_cast<float>(x), static_cast<float>(y), r, mark, 0.0f, colour, {}}, list);
  PointRecord dot = {};
  dot.x = static_cast<float>(x);
  dot.y = static_cast<float>(y);
  dot.radius = r;
  dot.colour = colour;
  list.Add(Layer::kStars, dot);
}

void SkyObjects::DrawSigns(DisplayList& list) const {
  const StyleRules& rules = GetStyleRules(list.GetStyle());
  for (const SignedStar& sign : m_Signed) {
    const DrawnStar& star = m_Stars[sign.drawn];
    const auto& place = star.output->m_Place;
    AddStarSign({place.x,
                 static_cast<float>(list.GetHeight()) - place.y,
                 rules.GetStarRadius(place.radius, list.GetUnit()),
                 sign.marks,
                 sign.angle,
                 ToRgba(palette::kStarSign, static_cast<double>(star.opacity)),
                 {FourCC("star"), star.number}},
                list);
  }
}

void SkyObjects::DrawStars(DisplayList& list) const {
  DrawSigns(list);
  const StyleRules& rules = GetStyleRules(list.GetStyle());
  if (rules.solidStars) {
    for (const auto& drawn : m_Stars) DrawStar(drawn, rules, list);
  } else {
    for (auto drawn = m_Stars.rbegin(); drawn != m_Stars.rend(); ++drawn) DrawStar(*drawn, rules, list);
  }
}

}  // namespace scene
