// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Lists of events for people and for other programs, UTF-8. Titles are in the current language, names of
// kinds and of columns are not.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "astro/sky_events.h"
#include "scene/catalogs/showers.h"
#include "scene/catalogs/sky_catalogs.h"
#include "skyview/almanac/local_clock.h"

namespace skyview {

// What titles and times are made with. Kept by reference.
struct EventWriting {
  const scene::SkyCatalogs& catalogs;
  const std::vector<scene::Shower>& showers;
  const LocalClock& clock;
  std::optional<scene::EarthPlace> place;
};

// "2027-03-20T21:24:41+01:00"
std::string FormatStamp(const scene::SkyMoment& moment, const LocalClock& clock);

// "20270320T202441Z"
std::string FormatUniversalStamp(const scene::SkyMoment& moment);

// A line for each: local day, time and offset, title.
std::string FormatEventTable(const std::vector<astro::SkyEvent>& events, const EventWriting& writing);

// RFC 4180: a head and a record for each, every field quoted, CR LF.
std::string FormatEventCsv(const std::vector<astro::SkyEvent>& events, const EventWriting& writing);

// One event as a JSON object on one line; all as an array.
std::string FormatEventAsJson(const astro::SkyEvent& event, const scene::SkyCatalogs& catalogs,
                              const std::vector<scene::Shower>& showers, const LocalClock& clock);
std::string FormatEventJson(const std::vector<astro::SkyEvent>& events, const EventWriting& writing);

// RFC 5545: a calendar with a component for each, in Universal Time. The same event has the same identifier
// and the same bytes in every run: nothing of it depends on the clock or the span that was asked for. What
// has no length lasts no time.
std::string FormatEventCalendar(const std::vector<astro::SkyEvent>& events, const EventWriting& writing);

// A line of a calendar, folded behind 75 bytes at most and never within a character, with its CR LF.
std::string FoldCalendarLine(std::string_view utf8);
// A text as the value of a property.
std::string EscapeCalendarText(std::string_view utf8);

// Help: a line for each group of kinds with its kinds.
std::string DescribeKinds();

}  // namespace skyview
