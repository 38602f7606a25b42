// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/view/grid_steps.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "scene/view/directions.h"

namespace scene {
namespace {

constexpr double kSecondsPerUnit = 3600.0;
constexpr double kRadiansPerHour = 15.0 * kRadiansPerDegree;

// In seconds of the unit. Finer ones than the last are never asked for: the camera's zoom ends before.
constexpr double kDegreeSteps[] = {
    0.01,  0.02,  0.05,  0.1,    0.2,    0.5,    1.0,    2.0,     5.0,     10.0,    20.0,     30.0,    60.0,
    120.0, 300.0, 600.0, 1200.0, 1800.0, 3600.0, 7200.0, 18000.0, 36000.0, 54000.0, 108000.0, 162000.0};
constexpr double kHourSteps[] = {0.001, 0.002, 0.005, 0.01,   0.02,   0.05,   0.1,    0.2,
                                 0.5,   1.0,   2.0,   5.0,    10.0,   20.0,   30.0,   60.0,
                                 120.0, 300.0, 600.0, 1200.0, 1800.0, 3600.0, 7200.0, 10800.0};

template <std::size_t kCount>
double ChooseStep(const double (&steps)[kCount], double least) {
  const double* const step = std::lower_bound(std::begin(steps), std::end(steps), least);
  return step == std::end(steps) ? steps[kCount - 1] : *step;
}

// The decimals of a second that tell multiples of the step apart.
int CountDecimals(double stepSeconds) {
  int decimals = 0;
  for (double one = 1.0; stepSeconds < 0.999 * one; one *= 0.1) ++decimals;
  return decimals;
}

GridText Format(const char* sign, double seconds, double stepSeconds, const char* const marks[3]) {
  const int decimals = CountDecimals(stepSeconds);
  long long perSecond = 1;
  for (int i = 0; i < decimals; ++i) perSecond *= 10;
  const long long parts = std::llround(seconds * static_cast<double>(perSecond));
  const int whole = static_cast<int>(parts / (3600 * perSecond));
  const int minutes = static_cast<int>(parts / (60 * perSecond) % 60);
  const int fraction = static_cast<int>(parts % perSecond), last = static_cast<int>(parts / perSecond % 60);
  GridText text{};
  if (stepSeconds >= 3599.9) {
    std::snprintf(text.data(), text.size(), "%s%d%s", sign, whole, marks[0]);
  } else if (stepSeconds >= 59.9) {
    std::snprintf(text.data(), text.size(), "%s%d%s%02d%s", sign, whole, marks[0], minutes, marks[1]);
  } else if (decimals == 0) {
    std::snprintf(text.data(), text.size(), "%s%d%s%02d%s%02d%s", sign, whole, marks[0], minutes, marks[1],
                  last, marks[2]);
  } else {
    std::snprintf(text.data(), text.size(), "%s%d%s%02d%s%02d.%0*d%s", sign, whole, marks[0], minutes,
                  marks[1], last, decimals, fraction, marks[2]);
  }
  return text;
}

constexpr const char* kHourMarks[3] = {"h", "m", "s"};
constexpr const char* kDegreeMarks[3] = {"\u00B0", "\u2032", "\u2033"};

}  // namespace

GridSteps ChooseGridSteps(double least, double middleLatitude, LongitudeUnit unit) {
  constexpr double kLeastCosine = 1e-6;
  const double toSeconds = kSecondsPerUnit / kRadiansPerDegree;
  const double along = least / std::max(std::cos(middleLatitude), kLeastCosine);
  const double latitude = ChooseStep(kDegreeSteps, least * toSeconds) / toSeconds;
  const double hourSeconds = kSecondsPerUnit / kRadiansPerHour;
  return {unit == LongitudeUnit::kHours ? ChooseStep(kHourSteps, along * hourSeconds) / hourSeconds
                                        : ChooseStep(kDegreeSteps, along * toSeconds) / toSeconds,
          latitude};
}

GridText FormatGridLongitude(double longitude, double step, LongitudeUnit unit) {
  const bool hours = unit == LongitudeUnit::kHours;
  const double toSeconds = kSecondsPerUnit / (hours ? kRadiansPerHour : kRadiansPerDegree);
  const double turn = (hours ? 24.0 : 360.0) * kSecondsPerUnit;
  double seconds = std::fmod(longitude * toSeconds, turn);
  if (seconds < 0.0) seconds += turn;
  // A line within half a step below a whole turn is the line of 0.
  if (seconds > turn - 0.25 * step * toSeconds) seconds = 0.0;
  return Format("", seconds, step * toSeconds, hours ? kHourMarks : kDegreeMarks);
}

GridText FormatGridLatitude(double latitude, double step) {
  constexpr double kToSeconds = kSecondsPerUnit / kRadiansPerDegree;
  const double seconds = latitude * kToSeconds;
  const bool zero = std::fabs(seconds) < 0.25 * step * kToSeconds;
  const char* const sign = zero ? "" : seconds < 0.0 ? "\u2212" : "+";
  return Format(sign, std::fabs(seconds), step * kToSeconds, kDegreeMarks);
}

}  // namespace scene
