// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "utils/debug.h"

namespace test_support {

// Collects what goes through PrintDebugString while it lives.
class DebugCapture {
 public:
  DebugCapture() {
    SetDebugSink(
        [](const char* text, void* self) { static_cast<DebugCapture*>(self)->lines.emplace_back(text); },
        this);
  }
  ~DebugCapture() { SetDebugSink(nullptr, nullptr); }
  DebugCapture(const DebugCapture&) = delete;
  DebugCapture& operator=(const DebugCapture&) = delete;

  std::vector<std::string> lines;
};

}  // namespace test_support
