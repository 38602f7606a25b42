// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Failures of the system, one at a time or as many as are wanted. A test program that has
// fault_injection_linux.cpp among its sources counts the calls of the program and its libraries that open,
// read, write, ask for or rename files, through the C library: fopen, fread, fwrite, fflush, fclose, fseek,
// fdopen, open, close, stat, fstat, fsync, fchmod, fchown, access, readlink, mkdir, rename, unlink, flock,
// getcwd and mmap; nanosleep too. One thread only.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace test_support {

// While it lives, the call number `index` from 0 (of all counted ones, or of those named `only`) fails with
// EIO: nothing is done, but what is to be closed is closed, and a reading gives half of what it read and
// loses the rest. One at a time.
class FaultInjection {
 public:
  explicit FaultInjection(int index, const char* only = nullptr);

  // Does not fail but runs `between` before the call, uncounted. Not while the program holds a file lock:
  // that is where others wait.
  FaultInjection(int index, std::function<void()> between);

  // Each call is asked for by its name, and fails with the error that `error` answers; with 0 it does not.
  // What `error` calls itself is not asked for.
  explicit FaultInjection(std::function<int(std::string_view call)> error);

  ~FaultInjection();
  FaultInjection(const FaultInjection&) = delete;
  FaultInjection& operator=(const FaultInjection&) = delete;

  // Ends it before the end of its life.
  void Stop();

  // The call that failed; "" when there were fewer.
  const std::string& GetCall() const { return m_Call; }

  // For fault_injection_linux.cpp: the error that the call which is being made fails with; 0: it does not.
  int ErrorOf(const char* call);

 private:
  int m_Left = 0;
  const char* m_Only = nullptr;
  std::function<void()> m_Between;
  std::function<int(std::string_view)> m_Error;
  std::string m_Call;
};

// The steady clock shows so much more than the system's from now on.
void AdvanceSteadyClock(int seconds);

}  // namespace test_support
