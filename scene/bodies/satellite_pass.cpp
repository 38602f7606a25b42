// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/satellite_pass.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "astro/julian_date.h"
#include "astro/vectors.h"
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

bool IsSunlit(const double satellite[3], const double sun[3]) {
  constexpr double kEarthRadius = 6371.0;  // km, mean (IUGG)
  const double distance = Vmod(satellite, 3);
  if (distance <= kEarthRadius) return true;  // below the surface, which only a decayed one is
  // As the satellite sees them: how far the Sun's centre is from the Earth's. The Earth hides it when that is less than
  // the Earth's radius; the Sun is so far that its direction is the same from the satellite.
  const double towardsEarth[3] = {-satellite[0], -satellite[1], -satellite[2]};
  const double apart = VectorsAngle(towardsEarth, sun);
  return apart >= std::asin(kEarthRadius / distance);
}

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

SatellitePasses::Sample SatellitePasses::FindSample(const Satellite& satellite, const SkyMoment& moment,
                                                    const EarthPlace& place) const {
  Sample sample = {{{0.0, 0.0, 0.0}}, false, false};
  double teme[3], velocity[3], position[3], from[3], axes[9];
  const double minutes = (moment.day - satellite.epoch + moment.fraction) * kMinutesPerDay;
  if (satellite.model.GetState(minutes, teme, velocity) != SatelliteFault::kNone) return sample;
  TemeToJ2000(moment.julianDateTT, teme, position);
  sample.sunlit = IsSunlit(position, m_Model.GetSunFromCentre());
  GetPlaceVector(moment, place, from);
  for (int i = 0; i < 3; ++i) position[i] -= from[i];
  HorizonAxes(moment, place, axes);
  MV3prod(axes, position, sample.direction.v);
  sample.direction = Normalised(sample.direction);
  sample.known = true;
  return sample;
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
  Sample lastSample = {{{0.0, 0.0, 0.0}}, false, false};
  for (int i = -kMarksEachWay * kSamplesPerMark; i <= kMarksEachWay * kSamplesPerMark; ++i) {
    const SkyMoment moment = Later(now, toMark + i * step);
    const Sample sample = FindSample(satellite, moment, place);
    const auto p = geometry.Project(sample.direction, SkyFrameOf::kHorizon);
    const bool usable =
        sample.known && sample.direction.v[2] >= 0.0 &&
        (Dot(sample.direction, geometry.centreHorizon) > 0.0 || geometry.IsInside(p, geometry.halfDiagonal));
    if (usable && lastSample.known) {
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
    lastSample = sample;
    lastSample.known = usable;
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
    double teme[3], velocity[3], position[3];
    const double minutes = (now.day - satellite.epoch + now.fraction) * kMinutesPerDay;
    if (satellite.model.GetState(minutes, teme, velocity) != SatelliteFault::kNone) return false;
    TemeToJ2000(now.julianDateTT, teme, position);
    return IsSunlit(position, m_Model.GetSunFromCentre());
  }
  return true;
}

}  // namespace scene
