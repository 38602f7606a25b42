// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Solar eclipses: for the whole Earth, along the path of the shadow, and at a place. By Bessel's elements,
// taken from the model at each moment, with the radii of the Sun and the Moon that the canon of eclipses has
// (Espenak & Meeus 2006, NASA/TP-2006-214141): 0.2725076 equatorial radii of the Earth for the penumbra,
// 0.272281 for the umbra. The valleys of the Moon's edge move inner contacts by a second or two. Longitudes
// of places rest on delta T (ET_UT): 1 second of it moves them by 15 seconds of arc. Nothing here keeps
// state; every thread may call. docs/events.md has the accuracy.
#pragma once

#include <optional>
#include <vector>

#include "astro/api.h"
#include "astro/eclipse.h"
#include "astro/sky_events.h"

namespace astro {

// What the eclipse is where most of the Sun is covered.
enum class SolarEclipseType {
  kPartial,
  kAnnular,
  kTotal,
  kHybrid  // total in the middle of the path, annular at an end of it at least
};

// A solar eclipse as the whole Earth has it.
struct GlobalSolarEclipse {
  SkyMoment greatest;  // the axis of the shadow comes closest to the Earth's centre
  SolarEclipseType type = SolarEclipseType::kPartial;
  // Equatorial radii of the Earth that the axis passes from its centre then; negative: south of it.
  double gamma = 0.0;
  // At the place where the most is covered then: the part of the Sun's diameter; on the axis the ratio of the
  // diameters.
  double magnitude = 0.0;
  EarthPlace place;          // that place; on the axis, or where the Sun stands in the horizon
  double sunAltitude = 0.0;  // there, radians
  SkyMoment begin, end;      // of the penumbra's touch with the Earth
  // Of the axis'. Without them no central line, though a total or annular eclipse may graze the Earth.
  std::optional<SkyMoment> centralBegin, centralEnd;
};

// kSolarEclipse and, when the search has a place, kSolarEclipseHere.
ASTRO_API bool FindSolarEclipses(const EventSearch& search, const EventSink& sink);

// The eclipse at the new moon that is within 10 days of a moment; nothing when there is none, and outside the
// range of the theories.
ASTRO_API std::optional<GlobalSolarEclipse> ComputeSolarEclipse(const SkyMoment& about);

// A point of the central line.
struct EclipsePathPoint {
  SkyMoment moment;
  EarthPlace centre;
  // The limits of the umbra's path, seen from the place of the centre to the left and to the right of the
  // way of the shadow; nothing where the edge of the shadow misses the Earth.
  std::optional<EarthPlace> northernLimit, southernLimit;
  double sunAltitude = 0.0;  // radians, at the centre
  double width = 0.0;        // km, across the path
  double duration = 0.0;     // seconds, of totality or of the ring
  bool isTotal = false;      // else annular
};

// The whole central line: from its first point to its last one, every `step` seconds (at least 1) of
// Universal Time between, counted from the greatest eclipse. Empty without a central line.
ASTRO_API std::vector<EclipsePathPoint> ComputeEclipsePath(const GlobalSolarEclipse& eclipse, double step);

// A moment of an eclipse at a place. Position angles of the point of the Sun's edge that the Moon touches; at
// the maximum of the Moon's centre. Counted from north over east, and from the point nearest the zenith the
// same way round; [0, 2 pi).
struct EclipseContact {
  SkyMoment moment;
  double sunAltitude = 0.0;  // radians, without refraction
  double sunAzimuth = 0.0;   // radians from north over east
  double positionAngle = 0.0, zenithAngle = 0.0;
  bool isVisible = false;  // the Sun's upper limb is above the horizon, with refraction
};

// A solar eclipse at a place, from its first contact to its last.
struct LocalSolarEclipse {
  SolarEclipse kind = SolarEclipse::kPartial;   // of all of it, seen or not: partial, annular or total
  double magnitude = 0.0, obscuration = 0.0;    // at the maximum, as in eclipse.h
  EclipseContact first, maximum, last;          // C1, least distance of the centres, C4
  std::optional<EclipseContact> second, third;  // C2, C3: of totality or of the ring
  // What is seen of it: the maximum, or rise or set of the Sun when they cut it off; nothing when the Sun is
  // down all the time.
  std::optional<SkyMoment> bestSeen;
  double magnitudeSeen = 0.0, obscurationSeen = 0.0;
};

// Nothing where the penumbra does not pass the place, be the Sun up or down.
ASTRO_API std::optional<LocalSolarEclipse> ComputeLocalSolarEclipse(const GlobalSolarEclipse& eclipse,
                                                                    const EarthPlace& place);

}  // namespace astro
