// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What stands in the tables of an almanac, UTF-8.
#pragma once

#include <optional>
#include <string>

#include "scene/almanac/night_plan.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/search/object_search.h"
#include "skyview/almanac/local_clock.h"
#include "skyview/reports/host_texts.h"

namespace skyview {

// A text of the string table without arguments.
std::string GetText(HostText text, int further = 0);

// "52.50° N, 13.40° E"
std::string FormatPlace(const scene::EarthPlace& place);
// "45.5\"", "12'", "3.0°" of radians; "" of 0
std::string FormatShortSize(double angle);
std::string FormatMagnitude(double magnitude);  // "-2.7"; "" of one that is not known
std::string FormatDegrees(double radians);      // "53°"
std::string FormatTowards(double azimuth);      // "SW"

// When a body rises, culminates or sets, or that it stays up or down.
std::string FormatRising(const std::optional<scene::SkyMoment>& moment, const astro::RiseTransitSet& events,
                         const LocalClock& clock);

// Of a direction (J2000): its constellation, Latin, "" where nobody can tell.
std::string GetConstellationName(const double astrometric[3], const scene::SkyCatalogs& catalogs);
std::string GetConstellationLetters(const double astrometric[3], const scene::SkyCatalogs& catalogs);

// The label of a body of the model, by its identifier.
std::string GetBodyName(const SSO_ID& id, const scene::SkyCatalogs& catalogs);

// "M42 Great Orion Nebula", "1P/Halley": of a deep-sky object or a body.
std::string GetNightObjectName(const scene::FoundObject& object, const scene::SkyCatalogs& catalogs);

}  // namespace skyview
