// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What moons do before and behind their planets. Moons and planets are those of moons.h but the Earth and its
// Moon (eclipse.h). The planets are spheroids of rotation.h, their rings do not count; the Sun is the point
// at its centre, so that an eclipse begins and ends when half of the Sun's light is gone. Nothing here keeps
// state; every thread may call.
#pragma once

#include <optional>
#include <vector>

#include "astro/api.h"
#include "astro/object_id.h"
#include "astro/sky_events.h"
#include "astro/solar_system.h"

namespace astro {

// What a moon and its planet do to each other, seen from the Earth.
enum class MoonPhenomenon {
  kTransit,        // the moon before the lit part of the planet's disc
  kShadowTransit,  // its shadow on the side of the planet that the Earth sees
  kOccultation,    // the moon behind the planet
  kEclipse         // the moon in the shadow of the planet
};

// Which part of the moon's disc passes the planet's limb, or the edge of its shadow. The centre is what
// almanacs give.
enum class MoonContact {
  kOuter,   // the disc from its first to its last part
  kCentre,  // the middle
  kInner    // the whole disc
};

// One such phenomenon of one moon.
struct MoonEvent {
  SSO_ID moon;
  MoonPhenomenon kind = MoonPhenomenon::kTransit;
  double begin = 0.0, end = 0.0;  // Julian dates (TT), when it is seen from the Earth's centre
  // What cannot be seen of it: an eclipse that begins or ends behind the planet, an occultation that does so
  // in its shadow.
  bool beginIsHidden = false, endIsHidden = false;
};

// All phenomena of the moons of a planet ("plnt" 4 to 9) that go on at some time from `fromTT` to `toTT`
// (Julian dates, TT), in the order in which they begin. Empty for another planet, for a span that is empty or
// not finite, and for what lies outside the range of the theories.
//
// None is missed: a moon passes before and behind its planet once a revolution, looked for in twelve steps of
// it; the moment at which it stands closest to the middle of the disc tells whether it touches the disc at
// all, and lies between the beginning and the end. Found to 0.1 second; what the theories are worth, and how
// well the planets' limbs are known, makes the times of Io, Europa and Ganymede good to half a minute, those
// of Callisto to one, of Saturn's moons to two or three, and worse where a moon grazes the limb.
ASTRO_API std::vector<MoonEvent> FindMoonEvents(int planet, double fromTT, double toTT,
                                                MoonContact contact = MoonContact::kCentre);

// The same of the centres as kMoonTransit, kMoonShadowTransit, kMoonOccultation and kMoonEclipse: the middle
// between beginning and end counts. Called and answering as sky_events.h says. detail: 1 where the beginning
// cannot be seen, 2 where the end cannot, 3 where neither.
ASTRO_API bool FindMoonPhenomena(const EventSearch& search, const SSO_ID& planet, const EventSink& sink);

// What of that goes on with the centre of a moon.
struct MoonSituation {
  bool isInTransit = false, isOcculted = false, isEclipsed = false, castsShadow = false;
};

// Of a moon and its planet that are seen at the same moment (Julian date, TT) from the same place. All false
// for a planet without rotation or shape. Changes of light and shadow come out within 10 seconds.
ASTRO_API MoonSituation FindMoonSituation(const SSO_ID& planet, const ObservedBody& planetSeen,
                                          const ObservedBody& moonSeen, double julianDateTT);

// Where the shadow of a moon falls on its planet.
struct MoonShadow {
  double place[3] = {};      // the middle of the shadow, from the planet's centre: au, ICRS axes
  double umbraRadius = 0.0;  // across the axis of the shadow, au; negative where the umbra does not reach
  double penumbraRadius = 0.0;
};

// Nothing where the axis of the shadow misses the planet. `moonRadius` in au.
ASTRO_API std::optional<MoonShadow> FindMoonShadow(const SSO_ID& planet, const ObservedBody& planetSeen,
                                                   const ObservedBody& moonSeen, double moonRadius,
                                                   double julianDateTT);

}  // namespace astro
