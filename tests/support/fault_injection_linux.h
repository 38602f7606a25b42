// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Failures of the system, one at a time. A test program that has fault_injection_linux.cpp among its sources
// counts the calls of the program and its libraries that open, read, write, ask for or rename files, through
// the C library: fopen, fread, fwrite, fflush, fclose, fseek, fdopen, open, close, stat, fstat, fsync,
// fchmod, fchown, access, readlink, mkdir, rename, unlink and flock. One thread only.
#pragma once

#include <functional>
#include <string>

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

  ~FaultInjection();
  FaultInjection(const FaultInjection&) = delete;
  FaultInjection& operator=(const FaultInjection&) = delete;

  // Ends it before the end of its life.
  void Stop();

  // The call that failed; "" when there were fewer.
  const std::string& GetCall() const { return m_Call; }

  // For fault_injection_linux.cpp: whether the call that is being made is to fail.
  bool Takes(const char* call);

 private:
  int m_Left;
  const char* m_Only;
  std::function<void()> m_Between;
  std::string m_Call;
};

}  // namespace test_support
