// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "common_interfaces/thread.h"

namespace thread {

// A name as the system takes it: it allows neither a backslash nor more than 259 characters. Two names never
// become one. Names without a backslash, '%' and great length stay as they are, so that other modules find
// the object too.
std::string SystemName(const char* name);

enum class WaitEnd { kAcquired, kTimedOut, kFailed };

// Waits for a kernel object; an abandoned wait counts as acquired.
WaitEnd WaitForObject(void* handle, unsigned long milliseconds);

}  // namespace thread
