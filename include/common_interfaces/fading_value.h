// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace CommonInterfaces {

// A value that fades from one level to another. Times are those of the animation clock, seconds
// (AnimationInterval::m_CurrentTime of utils/clock.h). A plain record, copied as a whole.
template <class T>
struct FadingValue {
  double m_StartTime = 0.0;
  double m_EndTime = 0.0;
  T m_StartValue = T(0);
  T m_EndValue = T(0);

  // The value at that time: the end value from the end time on, and always where the fade has no length or no
  // height; else along the straight line through both ends. Deliberately not clamped before the start: a fade
  // that starts in the future gives values beyond its start value until then.
  T GetCurrent(double time) const {
    const bool moving = time < m_EndTime && m_StartValue != m_EndValue && m_EndTime != m_StartTime;
    if (!moving) return m_EndValue;
    return static_cast<T>(m_StartValue +
                          (m_EndValue - m_StartValue) * (time - m_StartTime) / (m_EndTime - m_StartTime));
  }

  // Starts a fade from where the value stands at that time, over `duration` seconds; 0 is at once.
  void FadeTo(T value, double time, double duration) {
    m_StartValue = GetCurrent(time);
    m_StartTime = time;
    m_EndValue = value;
    m_EndTime = time + duration;
  }
};

// The opacity with which an orbit is drawn, 0 to 1.
using OrbitFade = FadingValue<float>;

}  // namespace CommonInterfaces
