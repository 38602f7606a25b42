// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "utils/clock.h"

namespace test_support {

// The animation clock, set by the test and put back behind it.
class AnimationClock {
 public:
  explicit AnimationClock(double time) { Set(time); }
  ~AnimationClock() { Set(m_Earlier); }
  AnimationClock(const AnimationClock&) = delete;
  AnimationClock& operator=(const AnimationClock&) = delete;

  void Set(double time) { AnimationInterval::m_CurrentTime = time; }

 private:
  double m_Earlier = AnimationInterval::m_CurrentTime;
};

}  // namespace test_support
