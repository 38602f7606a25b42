// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// ThreadSanitizer of GCC 12 does not know pthread_mutex_clocklock and takes what it locked for unlocked. Here
// it is made of what it knows.
#include <pthread.h>
#include <sched.h>

#include <cerrno>
#include <ctime>
#include <tuple>

extern "C" int pthread_mutex_clocklock(pthread_mutex_t* mutex, clockid_t clock,
                                       const timespec* deadline) noexcept {
  for (;;) {
    const int result = pthread_mutex_trylock(mutex);
    if (result != EBUSY) return result;
    timespec now{};
    clock_gettime(clock, &now);
    if (std::tie(now.tv_sec, now.tv_nsec) >= std::tie(deadline->tv_sec, deadline->tv_nsec)) return ETIMEDOUT;
    sched_yield();
  }
}
