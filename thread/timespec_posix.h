// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <ctime>

namespace thread {

// As the system takes times, with less than a second of nanoseconds. `time`: a std::chrono::duration of 0 or
// more, of any unit and count.
template <class Duration>
timespec ToTimespec(Duration time) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(time);
  const std::chrono::nanoseconds rest = time - seconds;
  return {static_cast<time_t>(seconds.count()), static_cast<long>(rest.count())};
}

}  // namespace thread
