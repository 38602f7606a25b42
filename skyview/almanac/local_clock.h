// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "common_interfaces/camera.h"
#include "scene/view/earth_observer.h"

namespace skyview {

// What the clocks of a zone show. One thread, as the zones themselves.
class LocalClock {
 public:
  // That of the camera; none is Universal Time.
  explicit LocalClock(const CommonInterfaces::Camera& camera) : m_Zone(camera.GetDisplayTimeZoneName(true)) {}

  double GetOffset(const scene::SkyMoment& moment) const;           // days, east positive
  std::string FormatTime(const scene::SkyMoment& moment) const;     // "22:00"
  std::string FormatDay(const scene::SkyMoment& moment) const;      // "2026-01-15"
  std::string FormatMoment(const scene::SkyMoment& moment) const;   // "2026-01-15 22:00"
  std::string FormatOffset(const scene::SkyMoment& moment) const;   // "+01:00"
  std::string FormatLongDay(const scene::SkyMoment& moment) const;  // "15 January 2026", UTF-8
  // "Europe/Berlin"; without a zone "UTC".
  std::string GetZone() const { return m_Zone.empty() ? "UTC" : m_Zone; }

  // The moment at which a day (Julian day number) begins by the clocks; where they skip its midnight, that
  // of the change.
  scene::SkyMoment FindMidnight(int day) const;

 private:
  std::string m_Zone;
};

// "+05:30" of days.
std::string FormatOffset(double days);

}  // namespace skyview
