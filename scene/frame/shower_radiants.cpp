// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/shower_radiants.h"

#include <cmath>
#include <utility>

#include "scene/bodies/shower_activity.h"
#include "scene/display/palette.h"

namespace scene {

void ShowerRadiants::SetShowers(std::vector<Shower> showers) {
  m_Showers = std::move(showers);
  m_Drawn.clear();
  m_Drawn.reserve(m_Showers.size());
}

void ShowerRadiants::FetchTexts() {
  if (!m_Showers.empty()) SetShowers(LoadShowers());
}

void ShowerRadiants::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                             const ObjectTests& tests, LabelPlacer& labels) {
  m_Drawn.clear();
  if (m_Showers.empty()) return;
  const double radius = kRadius * geometry.unit;
  const int day = GetCivilDay(geometry.camera);
  for (const auto& shower : m_Showers) {
    const auto daysToPeak = FindDaysToPeak(shower.record, day);
    if (!daysToPeak) continue;
    const Direction apparent = ApparentDirection(shower.radiant, observer);
    if (!tests.IsAboveHorizon(apparent)) continue;
    const auto place = geometry.Project(apparent, SkyFrameOf::kJ2000);
    if (!geometry.IsInside(place, 0.0)) continue;
    m_Drawn.push_back({place, *daysToPeak == 0});
    labels.Reserve(place, radius, radius);
    labels.PlaceBeside(shower.name.c_str(), place, radius, 13.0 * geometry.unit, LabelKind::kRadiant);
  }
}

void ShowerRadiants::Draw(DisplayList& list) const {
  constexpr int kRays = 8;
  const double outer = kRadius * static_cast<double>(list.GetUnit());
  PolylineRecord line = {};
  line.width = 1.4f * list.GetUnit();
  line.colour = ToRgba(palette::kRadiant);
  for (const auto& radiant : m_Drawn) {
    const double x = radiant.place.x, y = list.GetHeight() - radiant.place.y;
    for (int i = 0; i < kRays; ++i) {
      const double angle = 2.0 * kPi * i / kRays, from = 0.45 * outer, to = (i % 2 == 0 ? 1.0 : 0.75) * outer;
      list.AddVertex(x + from * std::cos(angle), y + from * std::sin(angle));
      list.AddVertex(x + to * std::cos(angle), y + to * std::sin(angle));
      list.AddLine(Layer::kRadiants, line);
    }
    if (!radiant.peak) continue;
    const auto pixel = [](double v) { return static_cast<float>(v); };
    list.Add(Layer::kRadiants, PointRecord{pixel(x), pixel(y), pixel(0.22 * outer), line.colour, {}, {}});
  }
}

}  // namespace scene
