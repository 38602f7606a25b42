// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

#include "support/debug_capture.h"
#include "utils/one_thread.h"

namespace test_support {

// Collects diagnostic lines and counts breaches of "one thread at a time", which abort nothing while it
// lives.
class BreachCapture : public DebugCapture {
 public:
  BreachCapture() {
    s_Breaches = 0;
    SetBreachHook([] { ++s_Breaches; });
  }
  ~BreachCapture() { SetBreachHook(nullptr); }

  static int GetCount() { return s_Breaches; }

 private:
  inline static std::atomic<int> s_Breaches = 0;
};

}  // namespace test_support
