// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/refraction.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "text/refraction_table.h"

const double g_cosOfLowerAngleForRefraction = -0.024;

namespace CommonInterfaces {
namespace {

constexpr double kLowestSine = -0.024;  // of entry 0
constexpr double kEntriesPerSine = 1000.0;
constexpr int kLastEntry = static_cast<int>(std::size(kRefractionShifts)) - 2;  // of sine 1
static_assert(kLastEntry == 1024);

}  // namespace

double InterpoleEarthRefractionShift(double sinAltitude) {
  if (std::isnan(sinAltitude)) return 0.0;
  const double sine = std::clamp(sinAltitude, kLowestSine, 1.0);
  const double x = (sine - kLowestSine) * kEntriesPerSine;
  const int entry = std::min(static_cast<int>(x), kLastEntry);
  const double shift = kRefractionShifts[entry];
  return shift + (kRefractionShifts[entry + 1] - shift) * (x - entry);
}

void ShiftAltOnEarthRefraction(double* altitude) {
  if (altitude == nullptr || !std::isfinite(*altitude)) return;
  const double sine = std::sin(*altitude);
  if (sine < g_cosOfLowerAngleForRefraction) return;
  *altitude = std::atan2(sine + InterpoleEarthRefractionShift(sine), std::cos(*altitude));
}

}  // namespace CommonInterfaces
