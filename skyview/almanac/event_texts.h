// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Events of the sky in words, and their kinds by name.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "astro/sky_events.h"
#include "scene/showers.h"
#include "scene/sky_catalogs.h"

namespace skyview {

// The name of a kind in options and files: "full-moon". They stay what they are.
const char* GetKindName(astro::EventKind kind);

// The kinds of that name; of a group of kinds all of them. None for a name that nothing has.
std::set<astro::EventKind> FindKinds(const std::string& name);
// All names of kinds and of groups, for messages.
std::vector<std::string> ListKindNames();
// A line for each group with its kinds: what --kind help prints.
std::string DescribeKinds();

// "Venus at greatest elongation west, 46.8°", in the current language, UTF-8.
std::string GetEventTitle(const astro::SkyEvent& event, const scene::SkyCatalogs& catalogs,
                          const std::vector<scene::Shower>& showers);

// The name of a body of an event, UTF-8: of a planet, a moon, a satellite, of a star that the Moon or a planet
// passes, of a shower, whose number is its place in the list.
std::string GetEventBody(const SSO_ID& id, const scene::SkyCatalogs& catalogs,
                         const std::vector<scene::Shower>& showers);

}  // namespace skyview
