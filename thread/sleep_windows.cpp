// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "common_interfaces/thread.h"

namespace thread {

bool sleep(unsigned long milliseconds) {
  Sleep(milliseconds);
  return true;
}

void yield() { Sleep(0); }

}  // namespace thread
