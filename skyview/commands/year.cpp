// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cmath>

#include "astro/julian_date.h"
#include "common_interfaces/dates.h"
#include "scene/almanac/year_chart.h"
#include "scene/catalogs/showers.h"
#include "scene/view/base_plane.h"
#include "scene/words/event_title.h"
#include "skyview/almanac/night_cells.h"
#include "skyview/almanac/year_page.h"
#include "skyview/commands/chart_files.h"
#include "skyview/commands/command.h"
#include "skyview/commands/object_finder.h"
#include "skyview/commands/prepared_view.h"
#include "skyview/commands/start.h"
#include "skyview/options/almanac_group.h"
#include "skyview/options/day_span.h"
#include "skyview/options/stop.h"

namespace skyview {
namespace {

constexpr const char* kYearForm = "YYYY";
constexpr const char* kYearPurpose = "a year, for example 2027";

struct YearOptions {
  RootOptions root;
  ViewOptions view;
  PictureOptions pictures;
  std::string year;
};

YearOptions Parse(const Call& call) {
  YearOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.TakeName(kYearForm, kYearPurpose, options.year);
  line.Take(kRootGroup, options.root);
  line.Take(kViewGroup, options.view);
  line.Take(kPictureGroup, options.pictures);
  line.Parse(call.arguments);
  if (!ParseYear(options.year)) ThrowBadValue({call.command.name, kYearForm, kYearPurpose}, options.year);
  return options;
}

CalendarDate GetDate(int day) {
  CalendarDate date;
  JD(day, 0.0, date);
  return date;
}

// Clocks that do not change, so that no line has a step: those of the shorter of the year's offsets.
double FindStandardOffset(const DaySpan& year, const LocalClock& clock) {
  double offset = 1.0;
  for (int day = year.first; day <= year.last; day += 7)
    offset = std::min(offset, clock.GetOffset(scene::MakeMoment(day, 0.0)));
  return offset;
}

std::vector<scene::NightName> NameMonths(const DaySpan& year) {
  std::vector<scene::NightName> months;
  for (int day = year.first; day <= year.last; ++day) {
    const CalendarDate date = GetDate(day);
    if (date.day == 1)
      months.push_back({day - year.first, scene::ToUtf8(CommonInterfaces::GetMonth(date.month))});
  }
  return months;
}

class YearChart {
 public:
  YearChart(const DaySpan& year, const EventWriting& writing)
      : m_Year(year), m_Writing(writing), m_Offset(FindStandardOffset(year, writing.clock)) {}

  scene::YearGraph MakeGraph() const {
    return scene::MakeYearGraph(m_Year.first, m_Year.GetCount(), m_Offset, *m_Writing.place);
  }

  scene::YearChartTexts MakeTexts(const scene::YearGraph& graph,
                                  const std::vector<astro::SkyEvent>& events) const {
    scene::YearChartTexts texts;
    const std::string place = scene::ToCodePage(FormatPlace(*m_Writing.place));
    texts.title =
        scene::ToUtf8(Localize(HostText::kYearChartTitle, {GetDate(m_Year.first).year, place.c_str()}));
    texts.note = scene::ToUtf8(Localize(HostText::kYearChartNote, {FormatOffset(m_Offset).c_str()}));
    texts.months = NameMonths(m_Year);
    for (const auto& line : graph.lines) texts.lines.push_back(NameLine(line));
    for (const auto& event : events) {
      if (IsOfChart(event)) texts.events.push_back(NameEvent(event));
    }
    return texts;
  }

 private:
  std::string NameLine(const scene::RisingLine& line) const {
    if (line.body == astro::kMoon) return "";
    const std::string name = scene::ToCodePage(GetBodyName(line.body, m_Writing.catalogs));
    return scene::ToUtf8(Localize(line.rises ? HostText::kBodyRises : HostText::kBodySets, {name.c_str()}));
  }
  scene::NightName NameEvent(const astro::SkyEvent& event) const {
    const double local = event.moment.fraction + m_Offset + (event.moment.day - m_Year.first);
    return {static_cast<int>(std::floor(local)),
            scene::GetEventTitle(event, m_Writing.catalogs, m_Writing.showers)};
  }

  const DaySpan& m_Year;
  const EventWriting& m_Writing;
  double m_Offset;  // days
};

}  // namespace

std::string RunYear(const Call& call) {
  YearOptions options = Parse(call);
  const auto session = Start(call, options.root, options.view);
  const PreparedView view(options.view, {}, session, call.clock, call.diagnostics);
  const std::string name = call.command.name;
  Require(scene::IsNearSurface(view.camera),
          name + ": wants an observer near the Earth's surface (moving type 0 or 1)");
  scene::SkyCatalogs catalogs;
  LoadCatalogs({}, view.camera, scene::CatalogUse::kQuestions, catalogs);
  const auto showers = scene::LoadShowers();
  const LocalClock clock(view.camera);
  const EventWriting writing = {catalogs, showers, clock, scene::GetPlace(view.camera)};
  const DaySpan year = *ParseYear(options.year);
  const auto events =
      FindYearEvents({clock.FindMidnight(year.first), clock.FindMidnight(year.last + 1), writing.place});
  if (!options.pictures.out.empty()) {
    const YearChart chart(year, writing);
    const scene::YearGraph graph = chart.MakeGraph();
    Require(graph.nights > 0, name + " '" + options.year + "': nobody can tell where the Sun is then");
    const PictureSize size = options.view.size.value_or(kPageSize);
    scene::DisplayList list;
    scene::DrawYearChart(graph, chart.MakeTexts(graph, events), scene::TextExtents(), size.width, size.height,
                         list);
    WriteChart(options.pictures, list);
  }
  return FormatYear(GetDate(year.first).year, events, writing);
}

}  // namespace skyview
