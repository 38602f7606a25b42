// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "astro/julian_date.h"
#include "common_interfaces/dates.h"
#include "scene/almanac/moon_chart.h"
#include "scene/catalogs/bodies.h"
#include "skyview/almanac/local_clock.h"
#include "skyview/commands/chart_files.h"
#include "skyview/commands/command.h"
#include "skyview/commands/prepared_view.h"
#include "skyview/commands/start.h"
#include "skyview/options/almanac_group.h"
#include "skyview/options/day_span.h"
#include "skyview/options/picture_group.h"
#include "skyview/options/stop.h"
#include "skyview/reports/host_texts.h"
#include "utils/messages.h"

namespace skyview {
namespace {

struct MoonsOptions {
  RootOptions root;
  ViewOptions view;
  PictureOptions pictures;
  std::string month;
};

MoonsOptions Parse(const Call& call) {
  MoonsOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.TakeName("YYYY-MM", "a month, for example 2027-03", options.month);
  line.Take(kRootGroup, options.root);
  line.Take(kViewGroup, options.view);
  line.Take(kPictureGroup, options.pictures);
  line.Parse(call.arguments);
  if (!ParseMonth(options.month))
    throw Stop{kBadOption,
               call.command.name + (" '" + options.month) + "': wants YYYY-MM, for example 2027-03"};
  RequirePicture(call.command.name, options.pictures);
  return options;
}

scene::MoonChartTexts MakeTexts(const DaySpan& month, const LocalClock& clock,
                                const std::vector<scene::MoonPath>& paths) {
  scene::MoonChartTexts texts;
  CalendarDate date;
  JD(month.first, 0.0, date);
  const std::string name = CommonInterfaces::GetMonth(date.month) + " " + std::to_string(date.year);
  texts.title = scene::ToUtf8(Localize(HostText::kMoonChartTitle, {name.c_str()}));
  texts.east = scene::ToUtf8(Localize(HostText::kEast, {}));
  texts.west = scene::ToUtf8(Localize(HostText::kWest, {}));
  texts.note = scene::ToUtf8(Localize(HostText::kMoonChartNote, {clock.GetZone().c_str()}));
  const scene::BodyList bodies = scene::LoadBodies();
  for (const auto& path : paths) {
    const int body = scene::FindBody(bodies, path.moon);
    texts.moons.push_back(body < 0 ? "" : scene::GetBodyLabel(bodies[static_cast<std::size_t>(body)]));
  }
  for (int day = 1; day <= month.GetCount(); ++day) texts.days.push_back(std::to_string(day));
  return texts;
}

// How far from the planet each moon comes, in the planet's radii.
std::string Describe(const scene::MoonChartTexts& texts, const std::vector<scene::MoonPath>& paths) {
  std::string text = texts.title + "\n";
  for (std::size_t i = 0; i < paths.size(); ++i) {
    float east = 0.0f, west = 0.0f;
    for (const auto& point : paths[i].points) {
      east = std::min(east, point.offset);
      west = std::max(west, point.offset);
    }
    text += FormatText("%s: %s %.1f, %s %.1f\n", texts.moons[i].c_str(), texts.east.c_str(),
                       static_cast<double>(-east), texts.west.c_str(), static_cast<double>(west));
  }
  return text;
}

}  // namespace

std::string RunMoons(const Call& call) {
  constexpr double kStep = 1.0 / 48.0;  // days
  MoonsOptions options = Parse(call);
  const auto session = Start(call, options.root, options.view);
  const PreparedView view(options.view, {}, session, call.clock, call.diagnostics);
  const LocalClock clock(view.camera);
  const DaySpan month = *ParseMonth(options.month);
  const auto first = clock.FindMidnight(month.first), last = clock.FindMidnight(month.last + 1);
  const double days = last.day - first.day + (last.fraction - first.fraction);
  const auto paths = scene::MakeJupiterMoonPaths(first, days, kStep);
  Require(!paths.empty(),
          call.command.name + (" '" + options.month) + "': nobody can tell where they are then");
  const auto texts = MakeTexts(month, clock, paths);
  const PictureSize size = options.view.size.value_or(kPageSize);
  scene::DisplayList chart;
  scene::DrawMoonChart(paths, days, texts, size.width, size.height, chart);
  WriteChart(options.pictures, chart);
  return Describe(texts, paths);
}

}  // namespace skyview
