// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_asterisms.h"

#include "scene/display/palette.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr int kLeastKnown = 5;  // the last priority

ObjectRef FindObject(const Asterism& asterism) { return {FourCC("astm"), asterism.GetNumber()}; }

}  // namespace

void SkyAsterisms::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                           const ObjectTests& tests, bool shown) {
  m_Lines.clear();
  m_Shown = shown && tests.GetLight().GetLineStrength() > 0.0;
  if (!m_Shown) return;
  if (m_Lines.capacity() == 0) {
    std::size_t points = 0;
    for (const Asterism& asterism : m_Catalogs.asterisms.Get()) points += asterism.points.size();
    m_Lines.reserve(points);
  }
  for (const Asterism& asterism : m_Catalogs.asterisms.Get()) {
    for (const auto& stroke : asterism.strokes) {
      AddFigureStroke(geometry, observer, tests,
                      {asterism.points.data() + stroke.first, static_cast<std::size_t>(stroke.count)},
                      FindObject(asterism), m_Lines);
    }
  }
}

void SkyAsterisms::PlaceNames(const ViewGeometry& geometry, const ObserverFrame& observer,
                              const ObjectTests& tests, LabelPlacer& labels) const {
  constexpr int kRings = 4;
  constexpr double kSize = 13.0;  // pixels
  if (!m_Shown) return;
  for (int priority = 1; priority <= kLeastKnown; ++priority) {
    for (const Asterism& asterism : m_Catalogs.asterisms.Get()) {
      if (asterism.priority != priority) continue;
      const Direction apparent = ApparentDirection(asterism.direction, observer);
      const auto pixel = geometry.Project(apparent, SkyFrameOf::kJ2000);
      if (!tests.IsAboveHorizon(apparent) || !geometry.IsInside(pixel, 0.0)) continue;
      labels.PlaceNear(asterism.shown.c_str(), pixel, kSize * geometry.unit, LabelKind::kAsterism,
                       FindObject(asterism), kRings);
    }
  }
}

void SkyAsterisms::Draw(double strength, DisplayList& list) const {
  constexpr double kDash = 6.0;  // pixels
  DrawFigureLines(m_Lines, ToRgba(palette::kAsterism, strength), kDash, list);
}

}  // namespace scene
