// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <map>
#include <memory>
#include <utility>

#include "astro/rise_set.h"

namespace astro {
namespace {

constexpr int kLooks = 8, kBefore = 3;  // of a polynomial; so many before the stretch of time it serves
constexpr double kLooksPerDay = 24.0;

// Where it stands as a unit vector, which passes the zenith and north as smoothly as anything else.
struct Look {
  double v[3];
  double eventAltitude;
};

Look MakeLook(const HorizonPlace& place) {
  const double flat = std::cos(place.altitude);
  return {{flat * std::cos(place.azimuth), flat * std::sin(place.azimuth), std::sin(place.altitude)},
          place.eventAltitude};
}

HorizonPlace MakePlace(const Look& look) {
  const double azimuth = std::atan2(look.v[1], look.v[0]);
  return {azimuth < 0.0 ? azimuth + kTurn : azimuth, std::atan2(look.v[2], std::hypot(look.v[0], look.v[1])),
          look.eventAltitude};
}

// The looks that were taken, by the hour.
class SmoothPath {
 public:
  SmoothPath(FindHorizonPlace find, const SkyMoment& start) : m_Find(std::move(find)), m_Start(start) {}

  std::optional<HorizonPlace> Find(const SkyMoment& moment) {
    const double hours = ((moment.day - m_Start.day) + (moment.fraction - m_Start.fraction)) * kLooksPerDay;
    if (!(std::fabs(hours) < 1e6)) return m_Find(moment);
    const int first = static_cast<int>(std::floor(hours)) - kBefore;
    Look sum = {};
    double weights = 0.0, binomial = 1.0;  // of the barycentric form: (-1)^i (7 over i) / distance
    for (int i = 0; i < kLooks; ++i) {
      const std::optional<Look>& look = GetLook(first + i);
      if (!look) return m_Find(moment);
      const double distance = hours - (first + i);
      if (distance == 0.0) return MakePlace(*look);
      const double weight = binomial / distance;
      for (int k = 0; k < 3; ++k) sum.v[k] += weight * look->v[k];
      sum.eventAltitude += weight * look->eventAltitude;
      weights += weight;
      binomial *= -static_cast<double>(kLooks - 1 - i) / (i + 1);
    }
    for (double& value : sum.v) value /= weights;
    sum.eventAltitude /= weights;
    return MakePlace(sum);
  }

 private:
  const std::optional<Look>& GetLook(int hour) {
    const auto [place, isNew] = m_Looks.try_emplace(hour);
    if (isNew) {
      const auto found = m_Find(Later(m_Start, hour / kLooksPerDay));
      if (found) place->second = MakeLook(*found);
    }
    return place->second;
  }

  FindHorizonPlace m_Find;
  SkyMoment m_Start;
  std::map<int, std::optional<Look>> m_Looks;
};

}  // namespace

FindHorizonPlace MakeSmoothFinder(FindHorizonPlace find, const SkyMoment& start) {
  return [path = std::make_shared<SmoothPath>(std::move(find), start)](const SkyMoment& moment) {
    return path->Find(moment);
  };
}

}  // namespace astro
