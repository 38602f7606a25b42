// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Rising, transit and setting of whatever has a place over the horizon.
#pragma once

#include <functional>
#include <optional>

#include "astro/api.h"
#include "astro/horizon_frame.h"
#include "astro/object_id.h"

class CQXSolSys;

namespace astro {

// Where an object stands over the horizon of a place. Refraction is not part of the direction but of
// `eventAltitude`.
struct HorizonPlace {
  double azimuth = 0.0;        // radians from north over east, [0, 2 pi)
  double altitude = 0.0;       // radians, of the object's centre
  double eventAltitude = 0.0;  // radians: it rises and sets when its centre passes this altitude
};

// Where the object stands at a moment; nothing when nobody can tell.
using FindHorizonPlace = std::function<std::optional<HorizonPlace>(const SkyMoment&)>;

// The altitude at which the centre of a disc rises and sets: refraction lifts the horizon by 34 minutes of
// arc (Meeus 1998, Astronomical Algorithms, chapter 15), and the upper limb comes first. With the usual
// radius of the Sun, 16 minutes, this is -50 minutes. Places must be as seen from the Earth's surface, so
// that the Moon's parallax is in them.
ASTRO_API double GetRiseAltitude(double angularRadius);

// From the matrix of HorizonAxes and an apparent direction on J2000 axes (any length).
ASTRO_API HorizonPlace MakeHorizonPlace(const double axes[9], const double apparent[3], double eventAltitude);

// What of a body the event is about.
enum class RisingPart {
  kUpperLimb,  // with refraction: Sun and Moon
  kCentre      // with refraction: stars, and planets in the tables of almanacs
};

// A body of the model (`data` as CQXSolSys::Observe takes it) over the horizon of a place. `model` and `data`
// are kept by reference; each call sets the model's moment and observer, so one thread at a time.
ASTRO_API FindHorizonPlace MakeBodyFinder(CQXSolSys& model, const SSO_ID& id, const void* data,
                                          const EarthPlace& place, RisingPart part);

// Asks `find` at every full hour from `start` on only, and only where it must, and answers between by the
// polynomial through the eight looks around: for stars, Sun, Moon and planets, to 0.01 second of arc (the
// remainder is (2 pi / 24)^8 / 940 radians for what turns once a day). Not for satellites. A moment of which
// `find` knows nothing within four hours is left to `find`. Copies share what was looked at: one thread.
ASTRO_API FindHorizonPlace MakeSmoothFinder(FindHorizonPlace find, const SkyMoment& start);

// What happens to an object within a stretch of time. When nothing is set and no flag is true nobody could
// tell where the object was.
struct RiseTransitSet {
  std::optional<SkyMoment> rise, transit, set;  // the first of each
  double transitAltitude = 0.0;                 // radians, at the transit
  bool staysUp = false, staysDown = false;      // all the time: neither rises nor sets
};

// Looks at the object every `step` days (above 0) over `length` days from `start`, and from there by halving
// to a tenth of a second. What rises and sets again between two looks is not noticed. The transit is the
// upper one: from the east to the west side of the meridian. For Sun and Moon the times agree with other
// almanacs within 20 seconds where the path is not nearly level; real refraction moves them by minutes.
ASTRO_API RiseTransitSet FindRiseTransitSet(const FindHorizonPlace& find, const SkyMoment& start,
                                            double length, double step);

}  // namespace astro
