// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/diagnostics.h"

#include "utils/debug.h"

namespace skyview {

Diagnostics::Diagnostics() {
  SetDebugSink(
      [](const char* text, void* self) { static_cast<Diagnostics*>(self)->lines.emplace_back(text); }, this);
}

Diagnostics::~Diagnostics() { SetDebugSink(nullptr, nullptr); }

}  // namespace skyview
