// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/rise_set.h"

#include <cmath>

#include "astro/solar_system.h"
#include "astro/vectors.h"
#include "companions/astro/events/bracketing.h"

namespace astro {
namespace {

constexpr double kRefractionAtHorizon = 34.0 / 60.0 * kRadiansPerDegree;
constexpr double kPrecision = 1e-6;  // days

double Height(const HorizonPlace& place) { return place.altitude - place.eventAltitude; }

// Above 0 on the western side of the meridian.
double Westward(const HorizonPlace& place) { return -std::sin(place.azimuth); }

// The moment, up to `length` days after `from`, at which a quantity changes its sign.
template <class Quantity>
SkyMoment FindCrossing(const FindHorizonPlace& find, const SkyMoment& from, double length,
                       const HorizonPlace& before, const HorizonPlace& after, Quantity quantity) {
  const double last = quantity(after);
  const auto later = [&](double days) {
    const auto place = find(Later(from, days));
    return place ? quantity(*place) : last;
  };
  return Later(from, astro_internal::FindZero(later, 0.0, quantity(before), length, last, kPrecision));
}

}  // namespace

double GetRiseAltitude(double angularRadius) { return -kRefractionAtHorizon - angularRadius; }

HorizonPlace MakeHorizonPlace(const double axes[9], const double apparent[3], double eventAltitude) {
  double v[3];
  MV3prod(axes, apparent, v);
  const double azimuth = std::atan2(-v[1], v[0]);
  return {azimuth < 0.0 ? azimuth + kTurn : azimuth, std::atan2(v[2], std::hypot(v[0], v[1])), eventAltitude};
}

FindHorizonPlace MakeBodyFinder(CQXSolSys& model, const SSO_ID& id, const void* data, const EarthPlace& place,
                                RisingPart part) {
  return [&model, id, data, place, part](const SkyMoment& moment) -> std::optional<HorizonPlace> {
    ObservedBody seen;
    SetUpModel(moment, place, model);
    if (!model.Observe(id, data, seen)) return std::nullopt;
    double axes[9];
    HorizonAxes(moment, place, axes);
    const double radius = part == RisingPart::kUpperLimb ? seen.angularRadius : 0.0;
    return MakeHorizonPlace(axes, seen.apparent, GetRiseAltitude(radius));
  };
}

RiseTransitSet FindRiseTransitSet(const FindHorizonPlace& find, const SkyMoment& start, double length,
                                  double step) {
  RiseTransitSet result;
  const int steps = static_cast<int>(std::ceil(length / step));
  SkyMoment last = start;
  auto lastPlace = find(last);
  bool up = lastPlace && Height(*lastPlace) >= 0.0, down = lastPlace && !up;
  for (int i = 1; i <= steps; ++i) {
    const double now = i < steps ? i * step : length;
    const SkyMoment moment = Later(start, now);
    const auto place = find(moment);
    if (place && lastPlace) {
      const double span = now - (i - 1) * step;
      const auto cross = [&](auto quantity) {
        return FindCrossing(find, last, span, *lastPlace, *place, quantity);
      };
      const bool wasUp = Height(*lastPlace) >= 0.0, isUp = Height(*place) >= 0.0;
      if (!wasUp && isUp && !result.rise) result.rise = cross(Height);
      if (wasUp && !isUp && !result.set) result.set = cross(Height);
      if (!result.transit && Westward(*lastPlace) < 0.0 && Westward(*place) >= 0.0) {
        result.transit = cross(Westward);
        if (const auto there = find(*result.transit)) result.transitAltitude = there->altitude;
      }
      up = up && isUp;
      down = down && !isUp;
    } else {
      up = down = false;
    }
    last = moment;
    lastPlace = place;
  }
  result.staysUp = up;
  result.staysDown = down;
  return result;
}

}  // namespace astro
