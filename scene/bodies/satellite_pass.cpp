// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/satellite_pass.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "astro/julian_date.h"
#include "common_interfaces/clipping.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr double kMinutesPerDay = 1440.0;
constexpr double kMinute = 1.0 / kMinutesPerDay;
constexpr int kAllUpTo = 3;         // satellites that all have their paths
constexpr int kSamplesPerMark = 6;  // stretches between two marks
constexpr int kMarksEachWay = 10;
constexpr double kLongPeriod = 225.0 * kMinute;  // above, a step of six minutes from mark to mark
constexpr double kLongStep = 6.0 * kMinute;

// "22:03"
void FormatClock(const SkyMoment& moment, double localOffset, char (&text)[8]) {
  CalendarDate date;
  constexpr double kHalfMinute = 0.5 * kMinute;
  JD(moment.day, moment.fraction + localOffset + kHalfMinute, date);
  std::snprintf(text, sizeof text, "%02d:%02d", date.hour % 24, date.minute % 60);
}

}  // namespace

SatellitePasses::SatellitePasses(const BodyModel& model) : m_Model(model) {
  const BodyList& bodies = model.GetBodies();
  for (std::size_t i = 0; i < bodies.size(); ++i) {
    const auto& body = bodies[i];
    if (body.id.kind != FourCC("scft") || !body.hasElements) continue;
    m_Satellites.push_back({static_cast<int>(i),
                            {body.id.kind, body.id.number},
                            body.elements.epoch,
                            2.0 * kPi / body.elements.n * kMinute,
                            SatelliteModel(body.elements)});
  }
  const int paths = std::min<int>(kAllUpTo, static_cast<int>(m_Satellites.size()));
  m_Lines.reserve(static_cast<std::size_t>(paths * 2 * kMarksEachWay * kSamplesPerMark));
  m_Marks.reserve(static_cast<std::size_t>(paths * (2 * kMarksEachWay + 1)));
}

void SatellitePasses::Clear() {
  m_Lines.clear();
  m_Marks.clear();
}

void SatellitePasses::Compute(const ViewGeometry& geometry, const EarthPlace& place, double localOffset,
                              LabelPlacer& labels) {
  Clear();
  if (static_cast<int>(m_Satellites.size()) <= kAllUpTo) {
    for (const auto& satellite : m_Satellites) AddPath(geometry, place, localOffset, satellite);
  } else if (const Satellite* nearest = FindNearest(geometry)) {
    AddPath(geometry, place, localOffset, *nearest);
  }
  for (const auto& mark : m_Marks) {
    labels.PlaceBeside(mark.text, mark.place, 2.0 * geometry.unit, 9.0 * geometry.unit, LabelKind::kPassTime,
                       mark.satellite);
  }
}

void SatellitePasses::AddPath(const ViewGeometry& geometry, const EarthPlace& place, double localOffset,
                              const Satellite& satellite) {
  const double markStep = satellite.period > kLongPeriod ? kLongStep : kMinute;
  const double step = markStep / kSamplesPerMark;
  const tRect<int> window = {0, 0, geometry.width + 1, geometry.height + 1};
  // Marks stand at full minutes.
  const SkyMoment& now = m_Model.GetMoment();
  const double toMark = std::floor((now.fraction + 0.5) / markStep + 0.5) * markStep - 0.5 - now.fraction;
  tPoint<double> last{};
  bool lastUsable = false;
  for (int i = -kMarksEachWay * kSamplesPerMark; i <= kMarksEachWay * kSamplesPerMark; ++i) {
    const SkyMoment moment = Later(now, toMark + i * step);
    const astro::SatellitePlace sample = astro::FindSatellitePlace(satellite.model, satellite.epoch, moment,
                                                                   place, m_Model.GetSunFromCentre());
    const Direction direction = geometry.Seen(MakeDirection(sample.direction));
    const auto p = geometry.Project(direction, SkyFrameOf::kHorizon);
    const bool usable =
        sample.known && direction.v[2] >= 0.0 &&
        (Dot(direction, geometry.centreHorizon) > 0.0 || geometry.IsInside(p, geometry.halfDiagonal));
    if (usable && lastUsable) {
      tPoint<double> from = last, to = p;
      if (CommonInterfaces::line_in_rectD(&from, &to, window)) {
        m_Lines.push_back({from, to, sample.sunlit, satellite.object});
      }
    }
    if (usable && i % kSamplesPerMark == 0 && geometry.IsInside(p, 0.0)) {
      DrawnPassMark mark = {p, "", satellite.object};
      FormatClock(moment, localOffset, mark.text);
      m_Marks.push_back(mark);
    }
    last = p;
    lastUsable = usable;
  }
}

const SatellitePasses::Satellite* SatellitePasses::FindNearest(const ViewGeometry& geometry) const {
  const Satellite* nearest = nullptr;
  double best = -2.0;
  for (const auto& satellite : m_Satellites) {
    const BodyState& state = m_Model.GetStates()[static_cast<std::size_t>(satellite.body)];
    if (!state.known) continue;
    const double cosine = Dot(MakeDirection(state.seen.apparent), geometry.centreJ2000);
    if (cosine <= best) continue;
    best = cosine;
    nearest = &satellite;
  }
  return nearest;
}

bool SatellitePasses::IsSunlitNow(int body) const {
  const SkyMoment& now = m_Model.GetMoment();
  for (const auto& satellite : m_Satellites) {
    if (satellite.body != body) continue;
    double position[3];
    return astro::GetSatellitePosition(satellite.model, satellite.epoch, now, position) &&
           astro::IsSunlit(position, m_Model.GetSunFromCentre());
  }
  return true;
}

}  // namespace scene
