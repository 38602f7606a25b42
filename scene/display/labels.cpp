// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/labels.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "scene/display/palette.h"
#include "scene/display/symbol_colour.h"
#include "utils/text.h"

namespace scene {
namespace {

// Of common sans-serif fonts, in units of the font size.
constexpr double kAscent = 0.76;
constexpr double kDescent = 0.22;
constexpr double kGap = 3.0;  // pixels between an object and its label

Colour GridLabel(const Colour& lines) { return {lines.red, lines.green, lines.blue, 0.9}; }

Colour GetColour(LabelKind kind) {
  switch (kind) {
    case LabelKind::kStarName:
      return {0.86, 0.89, 0.96, 0.92};
    case LabelKind::kStarLetter:
      return {0.66, 0.72, 0.84, 0.80};
    case LabelKind::kConstellation:
      return {0.50, 0.60, 0.80, 0.72};
    case LabelKind::kAsterism:
      return Scaled(palette::kAsterism, 1.0, 0.9);
    case LabelKind::kCompass:
      return palette::kAccent;
    case LabelKind::kCompassBetween:
      return Scaled(palette::kAccent, 1.0, 0.75);
    case LabelKind::kMarker:
      return palette::kMark;
    case LabelKind::kImageFrame:
      return {0.70, 0.80, 0.90, 0.90};
    case LabelKind::kRadiant:
      return palette::kRadiant;
    case LabelKind::kPlanet:
      return {1.00, 0.90, 0.68, 0.98};
    case LabelKind::kSmallBody:
      return {0.80, 0.84, 0.72, 0.92};
    case LabelKind::kSatellite:
      return {0.62, 0.90, 0.96, 0.95};
    case LabelKind::kCrater:
      return palette::kCraterName;
    case LabelKind::kRegion:
      return palette::kRegionName;
    case LabelKind::kPassTime:
      return {0.62, 0.90, 0.96, 0.75};
    case LabelKind::kEquatorialGrid:
      return GridLabel(palette::kEquatorialGrid);
    case LabelKind::kJ2000Grid:
      return GridLabel(palette::kJ2000Grid);
    case LabelKind::kEclipticGrid:
      return GridLabel(palette::kEclipticGrid);
    case LabelKind::kGalacticGrid:
      return GridLabel(palette::kGalacticGrid);
    case LabelKind::kHorizontalGrid:
      return GridLabel(palette::kHorizontalGrid);
    case LabelKind::kCaption:
      return {0.72, 0.77, 0.84, 0.95};
    default: {
      const Colour symbol = GetSymbolColour(kind);
      return Scaled(symbol, 1.0, 0.95 * symbol.opacity);
    }
  }
}

bool FadesWithLines(LabelKind kind) {
  return kind == LabelKind::kConstellation || kind == LabelKind::kAsterism;
}

unsigned GetStyle(LabelKind kind) {
  if (FadesWithLines(kind) || kind == LabelKind::kStarLetter) return kItalicText;
  return kind == LabelKind::kCompass ? unsigned{kBoldText} : 0u;
}

bool IsOnDisc(LabelKind kind) { return kind == LabelKind::kCrater || kind == LabelKind::kRegion; }

// Keeps a bright text readable on what is as bright.
void AddShadow(TextRecord text, const char* written, DisplayList& list) {
  constexpr float kAway = 0.8f;  // pixels of the standard picture
  const float x = text.x, y = text.y;
  constexpr std::pair<float, float> kSides[] = {{1.0f, 1.0f}, {-1.0f, -1.0f}, {1.0f, -1.0f}, {-1.0f, 1.0f}};
  text.colour = {0, 0, 0, 140};
  for (const auto& [right, down] : kSides) {
    text.x = x + right * kAway * list.GetUnit();
    text.y = y + down * kAway * list.GetUnit();
    list.AddText(Layer::kLabels, text, written);
  }
}

}  // namespace

LabelKind LabelKindOfDeepsky(int kind) {
  if (kind == FourCC("gala")) return LabelKind::kGalaxy;
  if (kind == FourCC("clst")) return LabelKind::kCluster;
  return kind == FourCC("nebu") ? LabelKind::kNebula : LabelKind::kOtherDeepsky;
}

LabelPlacer::LabelPlacer() {
  m_Labels.reserve(kMaxLabels);
  m_Boxes.reserve(kMaxBoxes);
}

void LabelPlacer::Begin(int width, int height) {
  m_Width = width;
  m_Height = height;
  m_Labels.clear();
  m_Boxes.clear();
}

LabelPlacer::Box LabelPlacer::BoxAt(double left, double baseline, double width, double size) {
  return {left, baseline - kDescent * size, left + width, baseline + kAscent * size};
}

bool LabelPlacer::IsFree(const Box& box) const {
  if (box.left < 0.0 || box.bottom < 0.0 || box.right > m_Width || box.top > m_Height) return false;
  for (const Box& other : m_Boxes) {
    if (box.left < other.right && other.left < box.right && box.bottom < other.top &&
        other.bottom < box.top) {
      return false;
    }
  }
  return true;
}

int LabelPlacer::Add(const char* text, const Box& box, double anchor, double baseline, double size,
                     LabelKind kind, ObjectRef object) {
  if (m_Boxes.size() < kMaxBoxes) m_Boxes.push_back(box);
  m_Labels.push_back(
      {text, {box.left + anchor * (box.right - box.left), baseline}, anchor, size, kind, object});
  return static_cast<int>(m_Labels.size()) - 1;
}

void LabelPlacer::Reserve(const tPoint<double>& centre, double halfWidth, double halfHeight) {
  if (m_Boxes.size() >= kMaxBoxes) return;
  m_Boxes.push_back(
      {centre.x - halfWidth, centre.y - halfHeight, centre.x + halfWidth, centre.y + halfHeight});
}

int LabelPlacer::PlaceBeside(const char* text, const tPoint<double>& p, double radius, double size,
                             LabelKind kind, ObjectRef object) {
  if (!*text || static_cast<int>(m_Labels.size()) >= kMaxLabels) return -1;
  const double width = m_Extents->GetWidth(text, size, GetStyle(kind));
  const double away = radius + kGap;
  const double middle = (kAscent - kDescent) * 0.5 * size;  // from the baseline to the middle of the text
  const struct {
    double left, baseline, anchor;
  } places[] = {{p.x + away, p.y - middle, 0.0},
                {p.x - away - width, p.y - middle, 1.0},
                {p.x - width * 0.5, p.y + away + kDescent * size, 0.5},
                {p.x - width * 0.5, p.y - away - kAscent * size, 0.5}};
  for (const auto& place : places) {
    const Box box = BoxAt(place.left, place.baseline, width, size);
    if (IsFree(box)) return Add(text, box, place.anchor, place.baseline, size, kind, object);
  }
  return -1;
}

int LabelPlacer::PlaceCentred(const char* text, const tPoint<double>& p, double size, LabelKind kind,
                              ObjectRef object) {
  if (!*text || static_cast<int>(m_Labels.size()) >= kMaxLabels) return -1;
  const double width = m_Extents->GetWidth(text, size, GetStyle(kind));
  const double baseline = p.y - (kAscent - kDescent) * 0.5 * size;
  const Box box = BoxAt(p.x - width * 0.5, baseline, width, size);
  return IsFree(box) ? Add(text, box, 0.5, baseline, size, kind, object) : -1;
}

int LabelPlacer::PlaceAtEdge(const char* text, const tPoint<double>& p, double size, LabelKind kind) {
  constexpr double kNear = 1.5, kAway = 4.0;  // pixels
  const bool left = p.x<kNear, right = p.x> m_Width - kNear, low = p.y<kNear, high = p.y> m_Height - kNear;
  if (!left && !right && !low && !high) return PlaceCentred(text, p, size, kind);
  if (!*text || static_cast<int>(m_Labels.size()) >= kMaxLabels) return -1;
  const double width = m_Extents->GetWidth(text, size, GetStyle(kind));
  const double x = right ? m_Width - kAway - width : p.x + kAway;
  const double lowest = kAway + kDescent * size, highest = m_Height - kAway - kAscent * size;
  const double y = left || right ? p.y + kAway : low ? lowest : highest;
  const double baseline = std::clamp(y, lowest, std::max(lowest, highest));
  const Box box = BoxAt(x, baseline, width, size);
  return IsFree(box) ? Add(text, box, 0.0, baseline, size, kind, {}) : -1;
}

int LabelPlacer::PlaceNear(const char* text, const tPoint<double>& p, double size, LabelKind kind,
                           ObjectRef object, int rings) {
  constexpr double kAside = 1.6, kAbove = 1.1;  // font sizes from ring to ring
  constexpr struct {
    double x, y;
  } kWays[] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
  int index = PlaceCentred(text, p, size, kind, object);
  for (int ring = 1; ring <= rings && index < 0; ++ring) {
    for (const auto& way : kWays) {
      const tPoint<double> near = {p.x + way.x * ring * kAside * size, p.y + way.y * ring * kAbove * size};
      index = PlaceCentred(text, near, size, kind, object);
      if (index >= 0) break;
    }
  }
  return index;
}

void LabelPlacer::Draw(double strength, DisplayList& list) const {
  for (const Label& label : m_Labels) {
    TextRecord text = {};
    text.x = static_cast<float>(label.place.x);
    text.y = static_cast<float>(list.GetHeight() - label.place.y);
    text.anchor = static_cast<float>(label.anchor);
    text.size = static_cast<float>(label.size);
    text.style = GetStyle(label.kind);
    text.colour = ToRgba(GetColour(label.kind), FadesWithLines(label.kind) ? strength : 1.0);
    text.object = label.object;
    if (IsOnDisc(label.kind)) AddShadow(text, label.text, list);
    list.AddText(Layer::kLabels, text, label.text);
  }
}

int LabelPlacer::Find(const char* text, LabelKind kind) const {
  for (std::size_t i = 0; i < m_Labels.size(); ++i) {
    if (m_Labels[i].kind == kind && std::strcmp(m_Labels[i].text, text) == 0) return static_cast<int>(i);
  }
  return -1;
}

void LabelPlacer::PlaceAt(const char* text, const tPoint<double>& p, double size, LabelKind kind) {
  Add(text, BoxAt(p.x, p.y, m_Extents->GetWidth(text, size, GetStyle(kind)), size), 0.0, p.y, size, kind, {});
}

}  // namespace scene
