// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/labels.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <iterator>
#include <tuple>
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

// The others stand on the ground or on that of the caption.
bool IsOnSky(LabelKind kind) {
  return kind != LabelKind::kCompass && kind != LabelKind::kCompassBetween && kind != LabelKind::kCaption;
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
  m_Kept.reserve(kMaxBoxes);
  m_Before.reserve(kMaxBoxes);
}

bool LabelPlacer::Precedes(const Kept& a, const Kept& b) {
  return std::tie(a.object.kind, a.object.number, a.kind) < std::tie(b.object.kind, b.object.number, b.kind);
}

void LabelPlacer::Begin(int width, int height, const Direction& centre, double scale) {
  constexpr double kFar = 0.2, kZoomed = 1.2;  // of the width; from frame to frame
  const double moved =
      0.5 * scale * std::sqrt(2.0 * std::max(0.0, Dot(centre, centre) - Dot(centre, m_Centre)));
  const bool same = m_Width == width && m_Height == height && moved < kFar * width &&
                    scale <= kZoomed * m_Scale && m_Scale <= kZoomed * scale;
  m_Width = width;
  m_Height = height;
  m_Centre = centre;
  m_Scale = scale;
  m_Labels.clear();
  m_Boxes.clear();
  m_Before.clear();
  if (same) std::swap(m_Kept, m_Before);
  std::sort(m_Before.begin(), m_Before.end(), Precedes);
  m_Kept.clear();
}

LabelPlacer::Box LabelPlacer::BoxAt(double left, double baseline, double width, double size) {
  return {left, baseline - kDescent * size, left + width, baseline + kAscent * size};
}

bool LabelPlacer::IsInWindow(const Box& box) const {
  return box.left >= 0.0 && box.bottom >= 0.0 && box.right <= m_Width && box.top <= m_Height;
}

bool LabelPlacer::IsFree(const Box& box) const {
  for (const Box& other : m_Boxes) {
    if (box.left < other.right && other.left < box.right && box.bottom < other.top &&
        other.bottom < box.top) {
      return false;
    }
  }
  return true;
}

// Only of an object that is still near where it was.
const LabelPlacer::Kept* LabelPlacer::FindKept(const Wanted& label) const {
  constexpr double kNear = 0.1;  // of the width
  if (label.object.kind == 0) return nullptr;
  const Kept key = {label.object, label.kind, 0, {}};
  const auto found = std::lower_bound(m_Before.begin(), m_Before.end(), key, Precedes);
  if (found == m_Before.end() || Precedes(key, *found)) return nullptr;
  const double moved = std::hypot(label.point.x - found->point.x, label.point.y - found->point.y);
  return moved < kNear * m_Width ? &*found : nullptr;
}

int LabelPlacer::PlaceInFirst(const Wanted& label, std::span<const Slot> slots, std::size_t count) {
  constexpr double kMore = 3.0;  // pixels all around, of a newcomer
  const auto place = [&](std::size_t slot) {
    if (label.object.kind != 0 && m_Kept.size() < kMaxBoxes)
      m_Kept.push_back({label.object, label.kind, static_cast<int>(slot), label.point});
    return Add(label, slots[slot]);
  };
  const auto box = [&](const Slot& slot) { return BoxAt(slot.left, slot.baseline, label.width, label.size); };
  const Kept* const kept = FindKept(label);
  const auto lose = [&](const tPoint<double>& point) {
    if (m_Kept.size() < kMaxBoxes) m_Kept.push_back({label.object, label.kind, kLost, point});
    return -1;
  };
  if (kept && kept->slot == kLost) return lose(kept->point);
  if (kept && static_cast<std::size_t>(kept->slot) < slots.size()) {
    const auto slot = static_cast<std::size_t>(kept->slot);
    if (IsFree(box(slots[slot]))) return place(slot);
  }
  const double more = !kept && !m_Before.empty() && label.object.kind != 0 ? kMore : 0.0;
  for (std::size_t slot = 0; slot < count; ++slot) {
    const Box own = box(slots[slot]);
    if (!IsInWindow(own)) continue;
    if (IsFree({own.left - more, own.bottom - more, own.right + more, own.top + more})) return place(slot);
  }
  return kept ? lose(label.point) : -1;
}

int LabelPlacer::Add(const Wanted& label, const Slot& slot) {
  if (m_Boxes.size() < kMaxBoxes) m_Boxes.push_back(BoxAt(slot.left, slot.baseline, label.width, label.size));
  m_Labels.push_back({label.text,
                      {slot.left + slot.anchor * label.width, slot.baseline},
                      slot.anchor,
                      label.size,
                      label.kind,
                      label.object});
  return static_cast<int>(m_Labels.size()) - 1;
}

void LabelPlacer::Reserve(const tPoint<double>& centre, double halfWidth, double halfHeight) {
  if (m_Boxes.size() >= kMaxBoxes) return;
  m_Boxes.push_back(
      {centre.x - halfWidth, centre.y - halfHeight, centre.x + halfWidth, centre.y + halfHeight});
}

int LabelPlacer::PlaceBeside(const char* text, const tPoint<double>& p, double radius, double size,
                             LabelKind kind, ObjectRef object) {
  if (!CanPlace(text)) return -1;
  const double width = m_Extents->GetWidth(text, size, GetStyle(kind));
  const double away = radius + kGap;
  const double middle = (kAscent - kDescent) * 0.5 * size;  // from the baseline to the middle of the text
  const Slot slots[] = {{p.x + away, p.y - middle, 0.0},
                        {p.x - away - width, p.y - middle, 1.0},
                        {p.x - width * 0.5, p.y + away + kDescent * size, 0.5},
                        {p.x - width * 0.5, p.y - away - kAscent * size, 0.5}};
  return PlaceInFirst({text, p, size, kind, object, width}, slots, std::size(slots));
}

int LabelPlacer::PlaceCentred(const char* text, const tPoint<double>& p, double size, LabelKind kind,
                              ObjectRef object) {
  return PlaceNear(text, p, size, kind, object, 0);
}

int LabelPlacer::PlaceAtEdge(const char* text, const tPoint<double>& p, double size, LabelKind kind) {
  constexpr double kNear = 1.5, kAway = 4.0;  // pixels
  const bool left = p.x<kNear, right = p.x> m_Width - kNear, low = p.y<kNear, high = p.y> m_Height - kNear;
  if (!left && !right && !low && !high) return PlaceCentred(text, p, size, kind);
  if (!CanPlace(text)) return -1;
  const double width = m_Extents->GetWidth(text, size, GetStyle(kind));
  const double x = right ? m_Width - kAway - width : p.x + kAway;
  const double lowest = kAway + kDescent * size, highest = m_Height - kAway - kAscent * size;
  const double y = left || right ? p.y + kAway : low ? lowest : highest;
  const Slot slots[] = {{x, std::clamp(y, lowest, std::max(lowest, highest)), 0.0}};
  return PlaceInFirst({text, p, size, kind, {}, width}, slots, 1);
}

int LabelPlacer::PlaceNear(const char* text, const tPoint<double>& p, double size, LabelKind kind,
                           ObjectRef object, int rings) {
  constexpr double kAside = 1.6, kAbove = 1.1;  // font sizes from ring to ring
  constexpr struct {
    double x, y;
  } kWays[] = {{0, -1}, {0, 1}, {-1, 0}, {1, 0}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
  constexpr int kMostRings = 8;
  if (!CanPlace(text)) return -1;
  const double width = m_Extents->GetWidth(text, size, GetStyle(kind));
  const double left = p.x - width * 0.5, baseline = p.y - (kAscent - kDescent) * 0.5 * size;
  std::array<Slot, 1 + kMostRings * std::size(kWays)> slots;
  slots[0] = {left, baseline, 0.5};
  for (std::size_t i = 1; i < slots.size(); ++i) {
    const auto& way = kWays[(i - 1) % std::size(kWays)];
    const double ring = static_cast<double>((i - 1) / std::size(kWays) + 1);
    slots[i] = {left + way.x * ring * kAside * size, baseline + way.y * ring * kAbove * size, 0.5};
  }
  const auto count = 1 + static_cast<std::size_t>(std::min(rings, kMostRings)) * std::size(kWays);
  return PlaceInFirst({text, p, size, kind, object, width}, slots, count);
}

void LabelPlacer::Draw(double strength, const SkyColours& sky, DisplayList& list) const {
  for (const Label& label : m_Labels) {
    if (!*label.text) continue;
    TextRecord text = {};
    text.x = static_cast<float>(label.place.x);
    text.y = static_cast<float>(list.GetHeight() - label.place.y);
    text.anchor = static_cast<float>(label.anchor);
    text.size = static_cast<float>(label.size);
    text.style = GetStyle(label.kind);
    text.colour = ToRgba(GetColour(label.kind), FadesWithLines(label.kind) ? strength : 1.0);
    if (IsOnSky(label.kind)) text.colour = sky.Readable(text.colour, text.x, text.y);
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
  const double width = m_Extents->GetWidth(text, size, GetStyle(kind));
  Add({text, p, size, kind, {}, width}, {p.x, p.y, 0.0});
}

}  // namespace scene
