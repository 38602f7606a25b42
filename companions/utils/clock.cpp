// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/clock.h"

#include <chrono>

double AnimationInterval::m_CurrentTime = 0.0;

double getPreciseTime() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}
