// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The almanac of a year in words.
#pragma once

#include <string>
#include <vector>

#include "skyview/almanac/event_formats.h"

namespace skyview {

// What an almanac of a year tells: seasons, phases, eclipses, what the planets do, showers.
std::vector<astro::SkyEvent> FindYearEvents(const astro::EventSearch& search);

// Lines of at most 100 characters in the current language, UTF-8; a section for each of them that has
// events.
std::string FormatYear(int year, const std::vector<astro::SkyEvent>& events, const EventWriting& writing);

// Whether the event stands beside the chart of the year.
bool IsOfChart(const astro::SkyEvent& event);

}  // namespace skyview
