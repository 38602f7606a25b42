// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/shower_rates.h"

#include <algorithm>
#include <cmath>

#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "scene/almanac/night_samples.h"

namespace scene {
namespace {

struct Row {
  std::string_view code;
  ShowerStrength strength;
};

// Maxima, rates and population indices of the working list of visual showers of the International Meteor
// Organization, in rounded numbers; slopes after Jenniskens 1994 (A&A 287, 990), in rounded numbers, 0.1 and
// for the shortest showers 1 where he has none. The rates of some, such as the Draconids, are those of quiet
// years.
constexpr Row kRows[] = {
    {"QUA", {283.15, 80.0, 2.1, 1.8}}, {"LYR", {32.32, 18.0, 2.1, 0.22}},  {"ETA", {45.5, 50.0, 2.4, 0.08}},
    {"SDA", {127.6, 25.0, 2.5, 0.09}}, {"CAP", {127.0, 5.0, 2.5, 0.04}},   {"PER", {140.0, 100.0, 2.2, 0.2}},
    {"KCG", {144.0, 3.0, 3.0, 0.07}},  {"AUR", {158.6, 6.0, 2.5, 0.2}},    {"SPE", {166.7, 5.0, 3.0, 0.2}},
    {"OCT", {192.58, 5.0, 2.5, 1.0}},  {"DRA", {195.4, 5.0, 2.6, 1.0}},    {"EGE", {205.0, 3.0, 3.0, 0.08}},
    {"ORI", {208.0, 20.0, 2.5, 0.12}}, {"LMI", {211.0, 2.0, 3.0, 0.14}},   {"STA", {223.0, 7.0, 2.3, 0.03}},
    {"NTA", {230.0, 5.0, 2.3, 0.03}},  {"LEO", {235.27, 10.0, 2.5, 0.39}}, {"NOO", {246.0, 3.0, 3.0, 0.1}},
    {"MON", {257.0, 3.0, 3.0, 0.25}},  {"HYD", {257.0, 7.0, 3.0, 0.1}},    {"GEM", {262.2, 150.0, 2.6, 0.39}},
    {"COM", {264.0, 3.0, 3.0, 0.1}},   {"URS", {270.7, 10.0, 2.8, 0.61}}};

// Degrees, J2000.
std::optional<double> GetSolarLongitude(const SkyMoment& moment) {
  CQXSolSys model;
  model.SetObserverAtEarthCentre();
  model.SetMoment(moment.julianDateTT, moment.deltaT);
  ObservedBody sun;
  if (!model.Observe(astro::kSun, nullptr, sun)) return std::nullopt;
  const double tilt = MeanObliquity(astro::kJ2000), *const v = sun.astrometric;
  return std::atan2(v[1] * std::cos(tilt) + v[2] * std::sin(tilt), v[0]) / kRadiansPerDegree;
}

class ShowerWatch {
 public:
  ShowerWatch(const std::vector<NightSample>& samples, double longitude)
      : m_Samples(samples), m_Longitude(longitude) {}

  NightShower Watch(const Shower& shower, const ShowerStrength& strength) const {
    NightShower seen = {};
    seen.toPeak = std::remainder(strength.solarLongitude - m_Longitude, 360.0);
    const double zenithRate = strength.zenithRate * std::pow(10.0, -strength.slope * std::fabs(seen.toPeak));
    for (const auto& sample : m_Samples) {
      const double altitude = sample.GetAltitude(shower.radiant);
      const double rate = altitude > 0.0
                              ? zenithRate * std::sin(altitude) *
                                    std::pow(strength.populationIndex, GetLimit(sample) - kStandardLimit)
                              : 0.0;
      if (rate <= seen.rate) continue;
      const auto stands = astro::MakeHorizonPlace(sample.axes, shower.radiant.v, 0.0);
      seen.radiant = {sample.moment, stands.azimuth, stands.altitude};
      seen.rate = rate;
    }
    return seen;
  }

 private:
  static constexpr double kStandardLimit = 6.5;  // magnitude

  static double GetLimit(const NightSample& sample) {
    double zenith[3];
    const double up[3] = {0.0, 0.0, 1.0};
    V3Mprod(up, sample.axes, zenith);
    return std::min(astro::GetNakedEyeLimit(sample.GetLuminance(MakeDirection(zenith), 0.5 * kPi)),
                    kStandardLimit);
  }

  const std::vector<NightSample>& m_Samples;
  double m_Longitude;
};

}  // namespace

std::optional<ShowerStrength> FindShowerStrength(std::string_view code) {
  const auto* const found =
      std::find_if(std::begin(kRows), std::end(kRows), [code](const Row& row) { return row.code == code; });
  return found == std::end(kRows) ? std::nullopt : std::optional(found->strength);
}

std::vector<NightShower> FindNightShowers(const NightPlan& plan, const EarthPlace& place,
                                          const std::vector<Shower>& showers) {
  constexpr double kLeastRate = 0.5;
  const auto longitude = GetSolarLongitude(plan.middle);
  if (!longitude) return {};
  const auto samples = MakeNightSamples(plan, place);
  const ShowerWatch watch(samples, *longitude);
  std::vector<NightShower> seen;
  for (std::size_t i = 0; i < showers.size(); ++i) {
    const auto strength = FindShowerStrength(showers[i].record.code);
    if (!strength) continue;
    NightShower shower = watch.Watch(showers[i], *strength);
    shower.shower = static_cast<int>(i);
    if (shower.rate >= kLeastRate) seen.push_back(shower);
  }
  std::stable_sort(seen.begin(), seen.end(),
                   [](const NightShower& a, const NightShower& b) { return a.rate > b.rate; });
  return seen;
}

}  // namespace scene
