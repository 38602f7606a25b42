// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/shower_radiants.h"

#include <utility>

#include "skyview/reports/host_texts.h"
#include "scene/bodies/shower_activity.h"

namespace skyview {

std::vector<Shower> LoadShowers() {
  std::vector<CommonInterfaces::SHOWER> records;
  CommonInterfaces::ReadMeteorShowers(&records);
  std::vector<Shower> showers;
  for (const auto& record : records) {
    showers.push_back({record, MakeDirection(record.ra, record.dec), ToUtf8(record.name)});
  }
  return showers;
}

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

}  // namespace skyview
