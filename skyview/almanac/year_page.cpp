// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/almanac/year_page.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "scene/words/event_kinds.h"
#include "scene/words/event_search.h"
#include "scene/words/event_title.h"
#include "skyview/almanac/night_cells.h"
#include "skyview/almanac/text_table.h"

namespace skyview {
namespace {

using astro::EventKind;

constexpr int kIndent = 2, kPageWidth = 100;
constexpr int kQuarters = 4;
constexpr double kLeastRate = 1.0, kChartRate = 5.0;  // meteors an hour

// The parts of the almanac in the order of HostText::kFirstYearPart.
const std::vector<const char*> kParts[] = {
    {"seasons"}, {"phases"}, {"eclipses"}, {"planets", "conjunctions"}, {"showers"}};
constexpr int kPhasesPart = 1;

scene::EventKinds FindKindsOfPart(int part) {
  scene::EventKinds kinds;
  for (const auto* const group : kParts[part]) kinds |= scene::FindKinds(group);
  return kinds;
}

std::string WithoutYear(const std::string& moment) { return moment.substr(moment.find('-', 1) + 1); }

// A row for each month of the Moon.
std::string FormatPhases(const std::vector<astro::SkyEvent>& events, const EventWriting& writing) {
  constexpr TextColumn kColumn = {Align::kLeft};
  TextTable table(std::vector<TextColumn>(kQuarters, kColumn));
  std::vector<std::string> head, row(kQuarters);
  for (int i = 0; i < kQuarters; ++i) {
    astro::SkyEvent phase;
    phase.kind = static_cast<EventKind>(static_cast<int>(EventKind::kNewMoon) + i);
    head.push_back(scene::GetEventTitle(phase, writing.catalogs, writing.showers));
  }
  table.AddRow(head);
  bool any = false;
  for (const auto& event : events) {
    const int quarter = static_cast<int>(event.kind) - static_cast<int>(EventKind::kNewMoon);
    if (quarter == 0 && any) {
      table.AddRow(row);
      row.assign(kQuarters, "");
    }
    row[static_cast<std::size_t>(quarter)] = WithoutYear(writing.clock.FormatMoment(event.moment));
    any = true;
  }
  if (any) table.AddRow(row);
  return table.Format(kIndent);
}

std::string FormatList(const std::vector<astro::SkyEvent>& events, const EventWriting& writing) {
  std::string text;
  for (const auto& event : events) {
    text += CutTo("  " + WithoutYear(writing.clock.FormatMoment(event.moment)) + "  " +
                      scene::GetEventTitle(event, writing.catalogs, writing.showers),
                  kPageWidth) +
            "\n";
  }
  return text;
}

// The Moon passes everything every month, and nobody sees a shower of less than a meteor an hour.
bool IsOfAlmanac(const astro::SkyEvent& event) {
  if (event.kind == EventKind::kShowerMaximum) return event.value >= kLeastRate;
  return event.kind != EventKind::kConjunction ||
         !(event.body == astro::kMoon || event.other == astro::kMoon);
}

}  // namespace

std::vector<astro::SkyEvent> FindYearEvents(const astro::EventSearch& search) {
  scene::EventKinds kinds;
  for (int part = 0; part < static_cast<int>(std::size(kParts)); ++part) kinds |= FindKindsOfPart(part);
  // Conjunctions have the same nights, and tell less.
  kinds &= ~scene::FindKinds("appulse");
  auto found = scene::FindEvents(kinds, search, {});
  std::erase_if(found.events, [](const auto& event) { return !IsOfAlmanac(event); });
  return std::move(found.events);
}

std::string FormatYear(int year, const std::vector<astro::SkyEvent>& events, const EventWriting& writing) {
  const std::string place =
      (writing.place ? FormatPlace(*writing.place) + ", " : "") + writing.clock.GetZone();
  std::string text =
      scene::ToUtf8(Localize(HostText::kYearTitle, {year, scene::ToCodePage(place).c_str()})) + "\n";
  for (int part = 0; part < static_cast<int>(std::size(kParts)); ++part) {
    const scene::EventKinds kinds = FindKindsOfPart(part);
    std::vector<astro::SkyEvent> own;
    std::copy_if(events.begin(), events.end(), std::back_inserter(own),
                 [&kinds](const auto& event) { return scene::HasKind(kinds, event.kind); });
    if (own.empty()) continue;
    text += "\n" + GetText(HostText::kFirstYearPart, part) + "\n" +
            (part == kPhasesPart ? FormatPhases(own, writing) : FormatList(own, writing));
  }
  return text;
}

bool IsOfChart(const astro::SkyEvent& event) {
  switch (event.kind) {
    case EventKind::kMarchEquinox:
    case EventKind::kJuneSolstice:
    case EventKind::kSeptemberEquinox:
    case EventKind::kDecemberSolstice:
    case EventKind::kSolarEclipse:
    case EventKind::kLunarEclipse:
    case EventKind::kOpposition:
    case EventKind::kGreatestElongationEast:
    case EventKind::kGreatestElongationWest:
    case EventKind::kGreatestBrilliancy:
    case EventKind::kPlanetTransit:
      return true;
    case EventKind::kShowerMaximum:
      return event.value >= kChartRate;
    default:
      return false;
  }
}

}  // namespace skyview
