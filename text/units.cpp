// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/units.h"

#include "astro/constants.h"

namespace CommonInterfaces {
namespace {

using astro::kAuPerParsec;
using astro::kKilometresPerAu;
using astro::kMetresPerAu;

// One light year in kilometres, written in two ways, one for each direction. They round to one double,
// though the figures as written are a metre apart.
constexpr double kKilometresPerLightYear = 9460730472580.799;
constexpr double kLightYearFromDays = astro::kDaysPerJulianYear * astro::kSecondsPerDay * astro::kLightSpeed;

}  // namespace

double ConvertUnitFromAU(double distance, char unit) {
  switch (unit) {
    case kMetre:
      return distance * kMetresPerAu;
    case kKilometre:
      return distance * kKilometresPerAu;
    case kThousandKilometres:
      return distance * 149597.8707;
    case kMillionKilometres:
      return distance * 149.5978707;
    case kAstronomicalUnit:
      return distance;
    case kLightYear:
      return distance * (kKilometresPerAu / kKilometresPerLightYear);
    case kParsec:
      return distance * (1 / kAuPerParsec);
    case kKiloparsec:
      return distance * (1 / (kAuPerParsec * 1000));
    default:
      return 0.0;
  }
}

double ConvertUnitToAU(double distance, char unit) {
  switch (unit) {
    case kMetre:
      return distance / kMetresPerAu;
    case kKilometre:
      return distance / kKilometresPerAu;
    case kThousandKilometres:
      return distance / 149597.8707;
    case kMillionKilometres:
      return distance / 149.5978707;
    case kAstronomicalUnit:
      return distance;
    case kLightYear:
      return distance * (kLightYearFromDays / kKilometresPerAu);
    case kParsec:
      return distance * kAuPerParsec;
    case kKiloparsec:
      return distance * (kAuPerParsec * 1000);
    default:
      return 0.0;
  }
}

}  // namespace CommonInterfaces
