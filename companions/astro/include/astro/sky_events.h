// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What happens in the sky, in one form for all finders. Angles are in radians, distances in au where nothing
// else is said; directions and their angles are of the true equator or ecliptic of date, apparent, from the
// Earth's centre unless the kind is about a place.
//
// All finders are called alike,
//
//   bool FindSomething(const EventSearch& search, [what it is about,] const EventSink& sink);
//
// and hold to this. Each event whose moment lies in [search.from, search.to) is handed to the sink once. A
// finder looks on a grid that is fixed in time and does not begin with the span, so that spans that adjoin
// give together what the whole gives: nothing twice, nothing lost between. The order is the finder's own. The
// sink is called on the caller's thread and may be left by an exception. The result is false when nobody
// could tell for a part of the span, that is outside the range of the theories (planets.h) or without the
// place that the kind needs, and true when all of it was searched; a span that is empty or not finite has no
// events. Finders keep no state, allocate, and may be called on every thread.
#pragma once

#include <functional>
#include <optional>

#include "astro/api.h"
#include "astro/horizon_frame.h"
#include "astro/object_id.h"

namespace astro {

// Files and programs know kinds by other names; the numbers may change.
//
//   P: needs a place. `body` is the Sun, the Moon or the Earth where nothing else is said.
enum class EventKind {
  // Whatever has a place over the horizon. P; value: azimuth of rise and set, altitude of the transit.
  kRise,
  kTransit,  // the upper one
  kSet,
  // The Sun's centre passes an altitude (sun_events.h). P; value: its azimuth.
  kAstronomicalDawn,
  kNauticalDawn,
  kCivilDawn,
  kCivilDusk,
  kNauticalDusk,
  kAstronomicalDusk,
  kGoldenHourBegins,  // in the morning and in the evening
  kGoldenHourEnds,
  // The Sun's longitude is a multiple of 90 degrees; value: its longitude.
  kMarchEquinox,
  kJuneSolstice,
  kSeptemberEquinox,
  kDecemberSolstice,
  // The Moon's longitude less the Sun's is a multiple of 90 degrees; value: the Moon's latitude.
  kNewMoon,
  kFirstQuarter,
  kFullMoon,
  kLastQuarter,
  kPerigee,  // of the Moon; value: its distance, km, centre to centre
  kApogee,
  kAscendingNode,  // the Moon crosses the ecliptic of date northwards; value: its longitude
  kDescendingNode,
  // The moment of the greatest eclipse. Solar: value is the magnitude, more is gamma, detail a
  // SolarEclipseType. Lunar: value is the umbral magnitude (negative when penumbral), more the penumbral one,
  // detail a LunarEclipse. Begins and ends with the penumbra.
  kSolarEclipse,
  kLunarEclipse,
  // P. The Sun most covered at the place, above the horizon for some of the time; value is the magnitude,
  // more the obscuration, detail a SolarEclipse. Begins and ends with the outer contacts.
  kSolarEclipseHere,
  // P. The Moon covers (uncovers) `other`, a star or a planet; value: the position angle on the Moon's limb
  // from north over east; more: the altitude; detail: an OccultationLimb.
  kOccultationBegins,
  kOccultationEnds,
  // `body` and `other` have the same right ascension; value: how far `body` is north of `other`.
  kConjunction,
  kAppulse,                 // they come closest; value: how far apart
  kInferiorConjunction,     // `body` and the Sun have the same longitude; value: the body's latitude
  kSuperiorConjunction,     // the same, behind the Sun; outer planets too
  kOpposition,              // value: distance; more: magnitude
  kGreatestElongationEast,  // value: elongation; more: magnitude
  kGreatestElongationWest,
  kStationRetrograde,  // `body` turns, to the west from now on; value: the coordinate in which it stands
  kStationDirect,
  kPerihelion,  // value: distance from the Sun
  kAphelion,
  kGreatestBrilliancy,  // value: magnitude
  // Mercury or Venus before the Sun; value: least separation of the centres. Begins and ends with the outer
  // contacts.
  kPlanetTransit,
  // P. `body` culminates; value: altitude; more: magnitude. Begins and ends at the horizon asked for.
  kSatellitePass,
  // value: meteors an hour when the radiant stands highest at night at the place, else at the zenith; more:
  // that height.
  kShowerMaximum,
  // Phenomena of a moon `body` of the planet `other` (moon_phenomena.h): the middle; begin and end.
  kMoonTransit,
  kMoonShadowTransit,
  kMoonOccultation,
  kMoonEclipse
};
inline constexpr int kEventKinds = static_cast<int>(EventKind::kMoonEclipse) + 1;

// One event, of whatever kind.
struct SkyEvent {
  EventKind kind = EventKind::kRise;
  SkyMoment moment;
  // What lasts begins and ends so many days from the moment, each 0 or more.
  double sinceBegin = 0.0, untilEnd = 0.0;
  SSO_ID body, other;              // empty where there is none
  double value = 0.0, more = 0.0;  // as the kind says
  int detail = 0;
};

// The span that is searched, from its first moment up to its last, and the place.
struct EventSearch {
  SkyMoment from, to;
  std::optional<EarthPlace> place;
};

// Receives the events, one a call.
using EventSink = std::function<void(const SkyEvent&)>;

}  // namespace astro
