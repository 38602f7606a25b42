// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Calls of threads and named objects to the system that fail, one at a time. A test program that has
// failing_calls_linux.cpp among its sources counts them: pthread_mutexattr_*, pthread_mutex_init, _trylock,
// _clocklock and _consistent, pthread_create and _join, setpriority, socket, bind, opendir, open, fstat,
// memfd_create, ftruncate, mmap, futex, nanosleep.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace thread_tests {

// While it lives, the call number `index` from 0 of the thread that made it (of all counted ones, or of those
// named `only`), and all further ones when it lasts, fails with that error and does nothing. One at a time
// for each thread.
class FailingCall {
 public:
  // An error for futex alone: a wait returns at once like one that was woken.
  static constexpr int kWoken = -1;

  FailingCall(int index, int error, std::string_view only = "", bool lasts = false);
  // That call fails in nothing; `action` is called right before it.
  FailingCall(int index, std::function<void()> action, std::string_view only);
  ~FailingCall();
  FailingCall(const FailingCall&) = delete;
  FailingCall& operator=(const FailingCall&) = delete;

  // Ends it before the end of its life.
  void Stop();

  // The call that failed last; "" when there were fewer.
  const std::string& GetCall() const { return m_Call; }
  int GetFailureCount() const { return m_Failures; }

  // For failing_calls_linux.cpp: the error that the call which is being made fails with; 0: it does not.
  static int ErrorOf(const char* call);

 private:
  int m_Left, m_Error, m_Failures = 0;
  std::string m_Only, m_Call;
  bool m_Lasts = false;
  std::function<void()> m_Action;
};

}  // namespace thread_tests
