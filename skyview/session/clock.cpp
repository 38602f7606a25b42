// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/clock.h"

#include <chrono>

#include "astro/julian_date.h"

namespace skyview {

UniversalMoment ReadSystemClock() {
  using std::chrono::days;
  constexpr int kEpoch = 2440588;  // Julian day number of 1970-01-01, whose midnight is its fraction -0.5
  const auto since = std::chrono::system_clock::now().time_since_epoch();
  const auto whole = std::chrono::floor<days>(since);
  const double rest = std::chrono::duration<double, days::period>(since - whole).count();
  UniversalMoment now = {kEpoch + static_cast<int>(whole.count()), rest - 0.5};
  Adjust_JD(now.day, now.fraction);
  return now;
}

}  // namespace skyview
