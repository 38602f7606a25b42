// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/night_showers.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>

#include "astro/coordinates.h"
#include "astro/earth_orientation.h"
#include "astro/meteor_showers.h"
#include "scene/almanac/night_samples.h"

namespace scene {
namespace {

// The rate falls to a tenth within 1 / slope degrees of solar longitude.
struct Slope {
  std::string_view code;
  double slope;
};
constexpr Slope kSlopes[] = {{"QUA", 1.8},  {"LYR", 0.22}, {"ETA", 0.08}, {"SDA", 0.09}, {"CAP", 0.04},
                             {"PER", 0.2},  {"AUR", 0.2},  {"DRA", 1.0},  {"ORI", 0.12}, {"STA", 0.03},
                             {"NTA", 0.03}, {"LEO", 0.39}, {"GEM", 0.39}, {"URS", 0.61}};

double GetSlope(std::string_view code) {
  constexpr double kUsual = 0.1;
  const auto* const found = std::find_if(std::begin(kSlopes), std::end(kSlopes),
                                         [code](const Slope& slope) { return slope.code == code; });
  return found == std::end(kSlopes) ? kUsual : found->slope;
}

// Radians, J2000.
std::optional<double> GetSolarLongitude(const SkyMoment& moment) {
  CQXSolSys model;
  model.SetObserverAtEarthCentre();
  model.SetMoment(moment.julianDateTT, moment.deltaT);
  ObservedBody sun;
  if (!model.Observe(astro::kSun, nullptr, sun)) return std::nullopt;
  const double tilt = MeanObliquity(astro::kJ2000), *const v = sun.astrometric;
  return std::atan2(v[1] * std::cos(tilt) + v[2] * std::sin(tilt), v[0]);
}

class ShowerWatch {
 public:
  ShowerWatch(const std::vector<NightSample>& samples, double longitude)
      : m_Samples(samples), m_Longitude(longitude) {}

  NightShower Watch(const astro::MeteorShower& shower, int number) const {
    NightShower seen = {number, {}, 0.0, std::remainder(shower.solarLongitude - m_Longitude, 2.0 * kPi)};
    const double days = std::fabs(seen.toPeak) / kRadiansPerDegree;
    const double zenithalRate = shower.zenithalRate * std::pow(10.0, -GetSlope(shower.code) * days);
    const Direction radiant = scene::MakeDirection(shower.ra, shower.dec);
    for (const auto& sample : m_Samples) {
      const double altitude = sample.GetAltitude(radiant);
      if (!(altitude > 0.0)) continue;
      const double rate = zenithalRate * std::sin(altitude) *
                          std::pow(shower.populationIndex, GetLimit(sample) - kStandardLimit);
      if (rate <= seen.rate) continue;
      const auto stands = astro::MakeHorizonPlace(sample.axes, radiant.v, 0.0);
      seen.radiant = {sample.moment, stands.azimuth, stands.altitude};
      seen.rate = rate;
    }
    return seen;
  }

 private:
  static constexpr double kStandardLimit = 6.5;  // magnitude

  static double GetLimit(const NightSample& sample) {
    const double up[3] = {0.0, 0.0, 1.0};
    double zenith[3];
    V3Mprod(up, sample.axes, zenith);
    return astro::GetNakedEyeLimit(sample.GetLuminance(MakeDirection(zenith), 0.5 * kPi));
  }

  const std::vector<NightSample>& m_Samples;
  double m_Longitude;
};

}  // namespace

std::vector<NightShower> FindNightShowers(const NightPlan& plan, const EarthPlace& place) {
  constexpr double kLeastRate = 0.5;
  const auto longitude = GetSolarLongitude(plan.middle);
  if (!longitude) return {};
  const auto samples = MakeNightSamples(plan, place);
  const ShowerWatch watch(samples, *longitude);
  std::vector<NightShower> seen;
  const auto showers = astro::GetVisualShowers();
  for (std::size_t i = 0; i < showers.size(); ++i) {
    const NightShower shower = watch.Watch(showers[i], static_cast<int>(i));
    if (shower.rate >= kLeastRate) seen.push_back(shower);
  }
  std::stable_sort(seen.begin(), seen.end(),
                   [](const NightShower& a, const NightShower& b) { return a.rate > b.rate; });
  return seen;
}

}  // namespace scene
