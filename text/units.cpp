// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/units.h"

namespace CommonInterfaces {
namespace {

constexpr double kKilometresPerAu = 149597870.7;
constexpr double kAuPerParsec = 206264.80624709636;

// One light year in kilometres, written in two ways, one for each direction. They round to one double,
// though the figures as written are a metre apart.
constexpr double kKilometresPerLightYear = 9460730472580.799;
constexpr double kLightYearFromDays = 365.25 * 86400 * 299792.458;

}  // namespace

double ConvertUnitFromAU(double distance, char unit) {
  switch (unit) {
    case kMetre:
      return distance * 149597870700.0;
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
      return distance * (1 / 206264806.24709636);
    default:
      return 0.0;
  }
}

double ConvertUnitToAU(double distance, char unit) {
  switch (unit) {
    case kMetre:
      return distance / 149597870700.0;
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
