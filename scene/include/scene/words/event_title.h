// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Events of the sky in words.
#pragma once

#include <string>
#include <vector>

#include "astro/sky_events.h"
#include "scene/api.h"
#include "scene/catalogs/showers.h"
#include "scene/catalogs/sky_catalogs.h"

namespace scene {

// "Venus at greatest elongation west, 46.8°", in the current language, UTF-8.
SCENE_API std::string GetEventTitle(const astro::SkyEvent& event, const SkyCatalogs& catalogs,
                                    const std::vector<Shower>& showers);

// The name of a body of an event, UTF-8: of a planet, a moon, a satellite, of a star that the Moon or a
// planet passes, of a shower. "" for none.
SCENE_API std::string GetEventBody(const SSO_ID& id, const SkyCatalogs& catalogs,
                                   const std::vector<Shower>& showers);

// The name of a shower of astro::GetVisualShowers, UTF-8: that of the list of showers, else its code.
SCENE_API std::string GetShowerName(int number, const std::vector<Shower>& showers);

}  // namespace scene
