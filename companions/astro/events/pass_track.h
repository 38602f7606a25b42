// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <limits>

#include "astro/horizon_frame.h"
#include "astro/object_records.h"
#include "astro/satellite.h"
#include "astro/satellite_passes.h"
#include "astro/solar_system.h"

namespace astro_internal {

// A satellite over a place. Days are those of Universal Time from the epoch of its elements; where the model
// cannot tell numbers are not a number. Not for several threads at once.
class PassTrack {
 public:
  PassTrack(const OrbitalElements& elements, const astro::EarthPlace& place,
            const astro::EventSearch& search);

  SatelliteFault GetFault() const { return m_Satellite.GetFault(); }
  double DayOf(const astro::SkyMoment& moment) const;
  // Within the span of the search.
  bool IsWithin(const astro::SkyMoment& moment) const;

  double Altitude(double day);
  // Positive in sunlight: astro::SunlightMargin.
  double LightMargin(double day);
  astro::PassPoint Look(double day, double standardMagnitude);

 private:
  astro::SkyMoment MomentOf(double day) const;
  bool GetPosition(const astro::SkyMoment& moment, double position[3]) const;
  double SiderealTime(const astro::SkyMoment& moment);
  void FindSun(double day);

  SatelliteModel m_Satellite;
  double m_Epoch;
  astro::EarthPlace m_Place;
  double m_From, m_To;     // Julian dates (TT)
  int m_SiderealDay = -1;  // none
  double m_Sidereal = 0.0;
  CQXSolSys m_Model;
  double m_SunLook = std::numeric_limits<double>::quiet_NaN();
  double m_Sun[3] = {};  // from the Earth's centre, unit vector, ICRS axes
};

}  // namespace astro_internal
