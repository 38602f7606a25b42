// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/showers.h"
#include "scene/view/base_plane.h"
#include "scene/words/event_search.h"
#include "skyview/almanac/event_formats.h"
#include "skyview/commands/command.h"
#include "skyview/commands/object_finder.h"
#include "skyview/commands/prepared_view.h"
#include "skyview/commands/start.h"
#include "skyview/options/almanac_group.h"
#include "skyview/options/day_span.h"
#include "skyview/options/stop.h"
#include "utils/messages.h"
#include "utils/near_names.h"
#include "utils/replace_file.h"

namespace skyview {
namespace {

constexpr const char* kSpanForm = "FROM..TO";
constexpr const char* kSpanPurpose =
    "days, both included, for example 2027-03-01..2027-03-31; also 2027-03 or 2027";

struct EventsOptions {
  RootOptions root;
  ViewOptions view;
  SatelliteOptions satellites;
  EventOptions events;
  std::string span;
};

bool AsksForHelp(const EventOptions& options) {
  return options.kinds.size() == 1 && options.kinds[0] == "help";
}

scene::EventKinds ReadKinds(const std::vector<std::string>& names) {
  if (names.empty()) return scene::GetRareKinds();
  scene::EventKinds kinds;
  for (const auto& name : names) {
    const scene::EventKinds more = scene::FindKinds(name);
    const auto near = FindNearNames(name, scene::ListKindNames());
    if (more.none())
      throw Stop{kBadOption, "--kind '" + name + "': no such kind of events" +
                                 (near.empty() ? "" : ", wants for example " + JoinNames(near)) +
                                 " (--kind help lists them)"};
    kinds |= more;
  }
  return kinds;
}

EventsOptions Parse(const Call& call) {
  EventsOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.TakeName(kSpanForm, kSpanPurpose, options.span);
  line.Take(kRootGroup, options.root);
  line.Take(kViewGroup, options.view);
  line.Take(kSatelliteGroup, options.satellites);
  line.Take(kEventGroup, options.events);
  line.Parse(call.arguments);
  if (AsksForHelp(options.events)) throw Stop{kDone, DescribeKinds()};
  ReadKinds(options.events.kinds);
  constexpr int kFirstGregorian = 2299161;  // 15 October 1582
  const auto span = ParseDaySpan(options.span);
  if (!span) ThrowBadValue({"events", kSpanForm, kSpanPurpose}, options.span);
  if (options.events.format == TextFormat::kCalendar && span->first < kFirstGregorian)
    throw Stop{kBadOption, "--format ics: such a calendar begins on 1582-10-15"};
  return options;
}

std::string Format(TextFormat format, const std::vector<astro::SkyEvent>& events,
                   const EventWriting& writing) {
  switch (format) {
    case TextFormat::kCsv:
      return FormatEventCsv(events, writing);
    case TextFormat::kJson:
      return FormatEventJson(events, writing);
    case TextFormat::kCalendar:
      return FormatEventCalendar(events, writing);
    case TextFormat::kText:
      break;
  }
  return FormatEventTable(events, writing);
}

// The line ends of standard output are the system's.
std::string WithoutReturns(std::string text) {
  std::erase(text, '\r');
  return text;
}

void WriteFile(const std::string& name, const std::string& text) {
  FileReplacement file;
  Require(file.Open(name.c_str()) && file.Write(text) && file.Commit(),
          "--out '" + name + "': " + file.GetReason());
}

}  // namespace

std::string RunEvents(const Call& call) {
  EventsOptions options = Parse(call);
  const auto session = Start(call, options.root, options.view, options.satellites);
  const PreparedView view(options.view, {}, session, call.clock, call.diagnostics);
  scene::SkyCatalogs catalogs;
  LoadCatalogs(options.satellites, view.camera, scene::CatalogUse::kQuestions, catalogs);
  const auto showers = scene::LoadShowers();
  const LocalClock clock(view.camera);
  const DaySpan span = *ParseDaySpan(options.span);
  astro::EventSearch search = {clock.FindMidnight(span.first), clock.FindMidnight(span.last + 1), {}};
  if (scene::IsNearSurface(view.camera)) search.place = scene::GetPlace(view.camera);
  const scene::FoundEvents found =
      scene::FindEvents(ReadKinds(options.events.kinds), search, catalogs.bodies);
  if (!found.complete)
    call.diagnostics.lines.push_back("events: for a part of " + options.span + " nobody can tell\n");
  const std::string text = Format(options.events.format.value_or(TextFormat::kText), found.events,
                                  {catalogs, showers, clock, search.place});
  if (!options.events.out) return WithoutReturns(text);
  WriteFile(*options.events.out, text);
  return FormatText("%s: %d\n", options.events.out->c_str(), static_cast<int>(found.events.size()));
}

}  // namespace skyview
