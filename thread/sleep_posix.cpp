// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <sched.h>

#include <cerrno>
#include <ctime>

#include "common_interfaces/thread.h"

namespace thread {

bool sleep(unsigned long milliseconds) {
  timespec rest{static_cast<time_t>(milliseconds / 1000), static_cast<long>(milliseconds % 1000) * 1'000'000};
  while (clock_nanosleep(CLOCK_MONOTONIC, 0, &rest, &rest) == EINTR) {
  }
  return true;
}

void yield() { sched_yield(); }

}  // namespace thread
