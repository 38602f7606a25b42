// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <sched.h>

#include <cerrno>
#include <ctime>

#include "common_interfaces/thread.h"
#include "thread/timespec_posix.h"

namespace thread {

bool sleep(unsigned long milliseconds) {
  timespec rest = ToTimespec(std::chrono::duration<unsigned long, std::milli>(milliseconds));
  while (clock_nanosleep(CLOCK_MONOTONIC, 0, &rest, &rest) == EINTR) {
  }
  return true;
}

void yield() { sched_yield(); }

}  // namespace thread
