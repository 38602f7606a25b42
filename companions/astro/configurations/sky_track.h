// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "astro/solar_system.h"
#include "companions/astro/events/state_track.h"
#include "companions/astro/model/model_object.h"
#include "companions/astro/model/moment.h"

namespace astro_internal {

// What CQXSolSys sees from the Earth's centre, for whoever asks thousands of times: the ways of the planets
// come from StateTrack, which costs a tenth when the dates lie near one another. Within 0.04 arc second of
// the model (Mercury at its perihelion). Dates are Julian dates (TT). Not for several threads at once.
class SkyTrack {
 public:
  SkyTrack();

  // The Sun, a planet but the Earth, the Moon, or a star that MakeModelObject made ready. False, and the
  // result untouched, outside the ranges of planets.h.
  bool Observe(const ModelObject& object, double date, ObservedBody& seen);

  // From ICRS axes to the true equator and to the true ecliptic of date.
  const double* EquatorAxes(double date);
  const double* EclipticAxes(double date);

 private:
  struct Axes {
    double date = -1.0;  // none
    double matrix[9] = {};
  };

  bool SetDate(double date);
  bool FillPlanet(int planet);
  bool ObserveMoon(ObservedBody& seen);

  std::unique_ptr<StateTrack> m_Tracks[9];  // of planets 1 to 9, from when they were first asked for
  Moment m_Moment;
  bool m_IsSet = false;
  Axes m_Equator, m_Ecliptic;
};

}  // namespace astro_internal
