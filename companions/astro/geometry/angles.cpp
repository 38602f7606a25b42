// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/constants.h"
#include "astro/coordinates.h"

namespace {

using astro::kTurn;
// Angles are split as whole hundredths of a second, so that rounding happens once, before the split.
constexpr long long kHundredthsPerMinute = 60LL * 100;
constexpr long long kHundredthsPerUnit = 60 * kHundredthsPerMinute;  // unit: a degree or an hour

double UnitsPerTurn(int mode) { return mode == kAngleHours ? 24.0 : 360.0; }

bool IsReducedToOneTurn(int mode) { return mode == kAngleDegrees || mode == kAngleHours; }

long long RoundedHundredths(double angle, int mode) {
  if (!std::isfinite(angle)) return 0;
  const double perTurn = UnitsPerTurn(mode) * static_cast<double>(kHundredthsPerUnit);
  if (IsReducedToOneTurn(mode)) {
    const long long whole = static_cast<long long>(perTurn);
    const long long hundredths = std::llround(std::fmod(angle, kTurn) / kTurn * perTurn);
    return (hundredths % whole + whole) % whole;
  }
  constexpr double kLargest =
      (std::numeric_limits<short>::max() + 1.0) * static_cast<double>(kHundredthsPerUnit) - 1.0;
  return std::llround(std::clamp(angle / kTurn * perTurn, -kLargest, kLargest));
}

// The sign goes to the first field that is not zero: a record has no other place for it.
void GiveSign(M_DMSTag& fields) {
  if (fields.degrees != 0) {
    fields.degrees = static_cast<short>(-fields.degrees);
  } else if (fields.minutes != 0) {
    fields.minutes = static_cast<short>(-fields.minutes);
  } else {
    fields.seconds = -fields.seconds;
  }
}

M_DMSTag SplitMagnitude(long long hundredths) {
  M_DMSTag fields;
  fields.degrees = static_cast<short>(hundredths / kHundredthsPerUnit);
  fields.minutes = static_cast<short>(hundredths % kHundredthsPerUnit / kHundredthsPerMinute);
  fields.seconds = static_cast<float>(static_cast<double>(hundredths % kHundredthsPerMinute) / 100.0);
  return fields;
}

}  // namespace

M_DMSTag Rad2GMS(double angle, int mode) {
  const long long hundredths = RoundedHundredths(angle, mode);
  M_DMSTag fields = SplitMagnitude(hundredths < 0 ? -hundredths : hundredths);
  if (hundredths < 0) GiveSign(fields);
  return fields;
}

double GMS2Rad(const M_DMSTag& angle, int mode) {
  const double seconds = std::isfinite(angle.seconds) ? static_cast<double>(angle.seconds) : 0.0;
  const bool negative = angle.degrees < 0 || angle.minutes < 0 || seconds < 0.0;
  const double units = std::fabs(static_cast<double>(angle.degrees)) +
                       std::fabs(static_cast<double>(angle.minutes)) / 60.0 + std::fabs(seconds) / 3600.0;
  const double magnitude = units / UnitsPerTurn(mode) * kTurn;
  return negative ? -magnitude : magnitude;
}

void LonLatForObjects(double lon, double lat, M_DMSTag& lonOut, char& lonLetter, M_DMSTag& latOut,
                      char& latLetter) {
  // The letters follow the rounded values, so that no "0 W" is shown; both signs of the date line show as 180
  // E.
  const long long halfTurn = 180 * kHundredthsPerUnit;
  const long long east =
      RoundedHundredths(std::isfinite(lon) ? std::remainder(lon, kTurn) : 0.0, kAngleSignedDegrees);
  const long long north = RoundedHundredths(lat, kAngleSignedDegrees);
  lonLetter = east < 0 && east != -halfTurn ? 'W' : 'E';
  latLetter = north < 0 ? 'S' : 'N';
  lonOut = SplitMagnitude(east < 0 ? -east : east);
  latOut = SplitMagnitude(north < 0 ? -north : north);
}
