// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/events/body_track.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/moons.h"
#include "astro/vectors.h"

namespace astro_internal {

namespace {

// Radians that the Earth turns in a day of UT1 (Capitaine, Guinot & McCarthy 2000). What is left of the
// sidereal time is smooth.
constexpr double kEarthRate = astro::kTurn * 1.00273781191135448;
// For what has no distance: far enough for no parallax.
constexpr double kFarAway = 1e9;  // au

constexpr double kLastIndex = 2e9;

// Steps a wave of the body's way lasts: the Moon's shortest ones of account are of a week, Io goes round in
// 1.8 days.
double StepFor(const SSO_ID& body) {
  if (body == astro::kMoon) return 0.5;
  return astro::IsMoonOfPlanet(body) ? 1.0 / 32.0 : 1.0;
}

}  // namespace

template <int N>
const typename GriddedFunctions<N>::Node& GriddedFunctions<N>::GetNode(int index) {
  Node& node = m_Nodes[index % kKept];
  if (node.index == index) return node;
  node.index = index;
  node.isKnown = m_Compute(index * m_Step, node.values);
  return node;
}

// Lagrange's polynomial through the points -3 to 4, t between 0 and 1.
template <int N>
bool GriddedFunctions<N>::Get(double date, double values[N]) {
  static constexpr double kBelow[kPoints] = {-5040.0, 720.0, -240.0, 144.0, -144.0, 240.0, -720.0, 5040.0};
  const double position = date / m_Step, base = std::floor(position), t = position - base;
  if (!(base >= kPoints && base < kLastIndex)) return false;
  double before[kPoints + 1], after[kPoints + 1];
  before[0] = after[kPoints] = 1.0;
  for (int j = 0; j < kPoints; ++j) before[j + 1] = before[j] * (t - (j - 3));
  for (int j = kPoints - 1; j >= 0; --j) after[j] = after[j + 1] * (t - (j - 3));
  std::fill_n(values, N, 0.0);
  for (int j = 0; j < kPoints; ++j) {
    const Node& node = GetNode(static_cast<int>(base) + (j - 3));
    if (!node.isKnown) return false;
    const double weight = before[j] * after[j + 1] / kBelow[j];
    for (int i = 0; i < N; ++i) values[i] += weight * node.values[i];
  }
  return true;
}

template class GriddedFunctions<4>;

BodyTrack::BodyTrack(const SSO_ID& body, const void* data)
    : m_Body(body),
      m_Data(data),
      m_Values(StepFor(body), [this](double date, double values[4]) { return Compute(date, values); }) {
  m_Model.SetObserverAtEarthCentre();
}

bool BodyTrack::Compute(double date, double values[4]) {
  const astro::SkyMoment moment = astro::MakeMomentTT(date);
  m_Model.SetMoment(date, moment.deltaT);
  ObservedBody seen;
  if (!m_Model.Observe(m_Body, m_Data, seen)) return false;
  double toDate[9];
  PrecessionNutationMatrix(date, toDate);
  MV3prod(toDate, seen.apparent, values);
  // To an observer who flies towards the light the source is nearer when the light leaves it.
  double velocity[3];
  EarthVelocity(date, velocity);
  const double distance =
      seen.distance > 0.0 ? seen.distance * (1.0 + astro::Dot(seen.apparent, velocity)) : kFarAway;
  for (int i = 0; i < 3; ++i) values[i] *= distance;
  // Precession in right ascension stays below half a turn.
  const double turned = kEarthRate * (moment.day - astro::kJ2000 + moment.fraction);
  const double sidereal = ApparentSiderealTime(moment.day, moment.fraction, moment.deltaT);
  values[3] =
      std::remainder(sidereal - turned, astro::kTurn) - kEarthRate * moment.deltaT / astro::kSecondsPerDay;
  return true;
}

bool BodyTrack::Get(double date, BodyState& state) {
  double values[4];
  if (!m_Values.Get(date, values)) return false;
  std::copy_n(values, 3, state.apparent);
  state.sidereal = values[3] + kEarthRate * (date - astro::kJ2000);
  return true;
}

PlaceTrack::PlaceTrack(const SSO_ID& body, const void* data, const astro::EarthPlace& place)
    : m_Body(body, data), m_Place(place) {
  Plg2Plc(place.height / 1000.0, 0.0, place.lat, astro::kEarthEquatorialRadius, astro::kEarthFlattening,
          m_Fixed);
  for (double& component : m_Fixed) component /= astro::kKilometresPerAu;
  sfp(1.0, 0.0, place.lat, m_Zenith);
}

// The place and its zenith lie in the plane of the meridian.
bool PlaceTrack::Get(double date, PlaceState& state) {
  BodyState body;
  if (!m_Body.Get(date, body)) return false;
  state.localTime = body.sidereal + m_Place.lon;
  const double c = std::cos(state.localTime), s = std::sin(state.localTime);
  // Parallax, and the aberration by the velocity of the place about the Earth's axis.
  constexpr double kRotation = kEarthRate / astro::kLightAuPerDay;
  const double aberration = kRotation * m_Fixed[0] * std::sqrt(astro::Dot(body.apparent, body.apparent));
  state.fromPlace[0] = body.apparent[0] - c * m_Fixed[0] - s * aberration;
  state.fromPlace[1] = body.apparent[1] - s * m_Fixed[0] + c * aberration;
  state.fromPlace[2] = body.apparent[2] - m_Fixed[2];
  state.distance = std::sqrt(astro::Dot(state.fromPlace, state.fromPlace));
  const double south = c * state.fromPlace[0] + s * state.fromPlace[1];
  const double up = m_Zenith[0] * south + m_Zenith[2] * state.fromPlace[2];
  state.altitude = std::asin(std::clamp(up / state.distance, -1.0, 1.0));
  return true;
}

double HourAngleOf(const PlaceState& state) {
  return std::remainder(state.localTime - std::atan2(state.fromPlace[1], state.fromPlace[0]), astro::kTurn);
}

double AzimuthOf(const PlaceState& state, double latitude) {
  const double across = std::hypot(state.fromPlace[0], state.fromPlace[1]), hourAngle = HourAngleOf(state);
  const double west = across * std::sin(hourAngle);
  const double south =
      across * std::cos(hourAngle) * std::sin(latitude) - state.fromPlace[2] * std::cos(latitude);
  const double azimuth = std::atan2(-west, -south);
  return azimuth < 0.0 ? azimuth + astro::kTurn : azimuth;
}

}  // namespace astro_internal
