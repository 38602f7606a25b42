// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/thread.h"

namespace thread {

Runnable::~Runnable() = default;

void Thread::run() {
  if (m_Runnable) m_Runnable->run();
}

}  // namespace thread
