// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/year_chart.h"

#include <algorithm>
#include <cmath>

#include "scene/almanac/chart_labels.h"
#include "scene/almanac/night_bands.h"
#include "scene/chart/chart_frame.h"
#include "utils/messages.h"

namespace scene {
namespace {

constexpr double kHours = 24.0, kMargin = 0.6;
constexpr Colour kDay = {0.27, 0.42, 0.62, 1.0};
constexpr Colour kBands[kTwilightBands] = {
    {0.155, 0.25, 0.42, 1.0}, {0.09, 0.155, 0.29, 1.0}, {0.05, 0.09, 0.185, 1.0}, {0.018, 0.03, 0.075, 1.0}};
constexpr Colour kHourLine = {0.60, 0.70, 0.90, 0.13}, kMidnight = {0.70, 0.80, 1.00, 0.34};
constexpr Colour kMoonLine = {0.86, 0.86, 0.82, 0.42};
// Mercury to Neptune: colours that tell lines apart, near to those of the planets.
constexpr Colour kPlanetLines[] = {{0.80, 0.66, 0.95, 1.0}, {1.00, 0.97, 0.86, 1.0}, {0.60, 0.75, 1.00, 1.0},
                                   {1.00, 0.48, 0.36, 1.0}, {1.00, 0.76, 0.36, 1.0}, {0.72, 0.93, 0.48, 1.0},
                                   {0.46, 0.90, 0.90, 0.8}, {0.48, 0.66, 1.00, 0.8}};

Colour GetLineColour(const SSO_ID& body) {
  return body == astro::kMoon ? kMoonLine : kPlanetLines[body.number - 1];
}

// The hours around the longest night; all where the Sun does not set or not rise.
NightHours FindHours(const YearGraph& graph) {
  double first = kHours, last = 0.0;
  for (const auto& night : graph.bands[0]) {
    for (const auto& hours : night) {
      first = std::min(first, static_cast<double>(hours.begin));
      last = std::max(last, static_cast<double>(hours.end));
    }
  }
  if (!(last > first)) return {0.0f, static_cast<float>(kHours)};
  return {static_cast<float>(std::max(first - kMargin, 0.0)),
          static_cast<float>(std::min(last + kMargin, kHours))};
}

constexpr double kEventsOut = 70.0, kEventSize = 13.0;  // units

// Right of the chart, in units: as much as its longest text takes, within bounds.
double FindRoom(const YearChartTexts& texts, const TextExtents& extents) {
  constexpr double kLeast = 80.0, kMost = 540.0, kEdge = 15.0;
  double widest = 0.0;
  for (const auto& event : texts.events)
    widest = std::max(widest, extents.GetWidth(event.text.c_str(), kEventSize, 0));
  return widest > 0.0 ? std::min(kEventsOut + widest + kEdge, kMost) : kLeast;
}

class YearPen {
 public:
  YearPen(const YearGraph& graph, const YearChartTexts& texts, const TextExtents& extents, int width,
          int height, DisplayList& list)
      : m_Graph(graph),
        m_Texts(texts),
        m_Hours(FindHours(graph)),
        m_Chart({110.0, 120.0, FindRoom(texts, extents), 90.0},
                {m_Hours.begin, m_Hours.end, 0.0, static_cast<double>(graph.nights)}, width, height, list),
        m_Labels(m_Chart, extents) {}

  void Draw() {
    m_Chart.DrawGround();
    DrawBands();
    DrawHours();
    DrawMonths();
    for (std::size_t i = 0; i < m_Graph.lines.size(); ++i) DrawRisings(m_Graph.lines[i]);
    for (std::size_t i = 0; i < m_Graph.lines.size(); ++i) NameRisings(m_Graph.lines[i], m_Texts.lines[i]);
    DrawPhases();
    DrawEvents();
    const double unit = m_Chart.GetUnit();
    m_Chart.DrawText(m_Texts.title, m_Chart.GetLeft(), 52.0 * unit, 0.0, 26.0);
    m_Chart.DrawText(m_Texts.note, m_Chart.GetLeft(), m_Chart.GetBottom() + 66.0 * unit, 0.0, 14.0);
  }

 private:
  void DrawBands();
  void DrawHours();
  void DrawMonths();
  void DrawRisings(const RisingLine& line);
  void NameRisings(const RisingLine& line, const std::string& name);
  void DrawPhases();
  void DrawEvents();

  bool IsSeen(const NightPoint& point) const;
  // Whether a line goes on from one event to the next.
  static bool GoesOn(const NightPoint& a, const NightPoint& b) {
    constexpr int kMostNights = 2;
    constexpr float kMostHours = 2.0f;
    return b.night - a.night <= kMostNights && std::fabs(b.hour - a.hour) < kMostHours;
  }
  double X(const NightPoint& point) const { return m_Chart.X(point.hour); }
  double Y(const NightPoint& point) const { return m_Chart.Y(point.night + 0.5); }

  const YearGraph& m_Graph;
  const YearChartTexts& m_Texts;
  NightHours m_Hours;
  ChartFrame m_Chart;
  ChartLabels m_Labels;
};

void YearPen::DrawBands() {
  DisplayList& list = m_Chart.GetList();
  AddNightQuad(m_Chart, m_Hours, {m_Hours.begin, m_Hours.end}, {m_Hours.begin, m_Hours.end}, 0.0,
               m_Graph.nights);
  PolygonRecord area = {};
  area.colour = ToRgba(kDay);
  list.AddArea(Layer::kMilkyWay, area);
  for (int band = 0; band < kTwilightBands; ++band) {
    if (!AddNightBand(m_Chart, m_Hours, m_Graph.bands[band])) continue;
    area.colour = ToRgba(kBands[band]);
    list.AddArea(Layer::kMilkyWay, area);
  }
}

void YearPen::DrawHours() {
  constexpr float kManyHours = 17.0f;
  const double unit = m_Chart.GetUnit();
  const int step = m_Hours.end - m_Hours.begin > kManyHours ? 2 : 1;
  for (int hour = static_cast<int>(std::ceil(m_Hours.begin)); hour <= static_cast<int>(m_Hours.end); ++hour) {
    const double x = m_Chart.X(hour);
    const int clock = (hour + 12) % 24;
    m_Chart.DrawGridLine(x, m_Chart.GetTop(), x, m_Chart.GetBottom(), clock == 0 ? kMidnight : kHourLine);
    if (clock % step != 0) continue;
    const std::string text = FormatText("%d", clock);
    m_Chart.DrawText(text, x, m_Chart.GetTop() - 12.0 * unit, 0.5, 15.0);
    m_Chart.DrawText(text, x, m_Chart.GetBottom() + 26.0 * unit, 0.5, 15.0);
  }
}

void YearPen::DrawMonths() {
  const double unit = m_Chart.GetUnit();
  for (const auto& month : m_Texts.months) {
    const double y = m_Chart.Y(month.night);
    m_Chart.DrawGridLine(m_Chart.GetLeft(), y, m_Chart.GetRight(), y, kHourLine);
    m_Chart.DrawText(month.text, m_Chart.GetLeft() - 10.0 * unit, y + 18.0 * unit, 1.0, 15.0);
  }
}

bool YearPen::IsSeen(const NightPoint& point) const {
  if (point.night < 0 || point.night >= m_Graph.nights) return false;
  const auto& dark = m_Graph.bands[0][static_cast<std::size_t>(point.night)];
  return std::any_of(dark.begin(), dark.end(), [&point](const NightHours& hours) {
    return point.hour >= hours.begin && point.hour <= hours.end;
  });
}

void YearPen::DrawRisings(const RisingLine& line) {
  constexpr double kDash = 7.0;
  const bool moon = line.body == astro::kMoon;
  const double width = moon ? 1.0 : 2.0, dash = line.rises ? 0.0 : moon ? 0.5 * kDash : kDash;
  int open = 0;
  const NightPoint* before = nullptr;
  const auto end = [&] {
    if (open > 1) m_Chart.DrawCurve(GetLineColour(line.body), width, dash);
    open = 0;
  };
  for (const auto& point : line.points) {
    const bool seen = IsSeen(point);
    if (!seen || (open > 0 && !GoesOn(*before, point))) end();
    before = &point;
    if (!seen) continue;
    // A line of one vertex is none: whether the next point goes on is looked at first.
    const NightPoint* const next =
        &point + 1 < line.points.data() + line.points.size() ? &point + 1 : nullptr;
    if (open == 0 && !(next && IsSeen(*next) && GoesOn(point, *next))) continue;
    m_Chart.GetList().AddVertex(X(point), Y(point));
    if (!moon) m_Labels.AddObstacle({X(point), Y(point)});
    ++open;
  }
  end();
}

// The Moon's lines, two a month, have no names: its phases stand beside.
void YearPen::NameRisings(const RisingLine& line, const std::string& name) {
  constexpr std::size_t kShortest = 12;  // nights
  if (name.empty()) return;
  std::vector<ChartPoint> stretch;
  const NightPoint* before = nullptr;
  const auto end = [&] {
    if (stretch.size() >= kShortest) m_Labels.Place(name, stretch, GetLineColour(line.body));
    stretch.clear();
  };
  for (const auto& point : line.points) {
    if (!IsSeen(point) || (before && !GoesOn(*before, point))) end();
    before = &point;
    if (IsSeen(point)) stretch.push_back({X(point), Y(point)});
  }
  end();
}

// The lit side is the right one for who sees the Moon in the south.
void YearPen::DrawPhases() {
  constexpr double kRadius = 7.0, kOut = 24.0;
  const double unit = m_Chart.GetUnit();
  for (const auto& mark : m_Graph.phases) {
    const bool quarter =
        mark.phase == astro::EventKind::kFirstQuarter || mark.phase == astro::EventKind::kLastQuarter;
    const bool right = (mark.phase == astro::EventKind::kFirstQuarter) == (m_Graph.latitude >= 0.0);
    DiscRecord disc = {};
    disc.x = static_cast<float>(m_Chart.GetRight() + kOut * unit);
    disc.y = static_cast<float>(Y(mark.point));
    disc.radius = static_cast<float>(kRadius * unit);
    disc.sunX = right ? 1.0f : -1.0f;
    disc.cosPhase = quarter ? 0.0f : mark.phase == astro::EventKind::kFullMoon ? 1.0f : -1.0f;
    disc.lit = ToRgba(palette::kMoon);
    disc.dark = ToRgba({0.16, 0.19, 0.26, 1.0});
    m_Chart.GetList().Add(Layer::kBodies, disc);
  }
}

// Each at its night, or as far below it as those before need.
void YearPen::DrawEvents() {
  constexpr double kLine = 17.0;
  const double unit = m_Chart.GetUnit(), x = m_Chart.GetRight() + kEventsOut * unit;
  double free = m_Chart.GetTop();
  for (const auto& event : m_Texts.events) {
    const double there = m_Chart.Y(event.night + 0.5), y = std::max(there, free + 0.5 * kLine * unit);
    m_Chart.DrawGridLine(m_Chart.GetRight() + 36.0 * unit, there, x - 5.0 * unit, y);
    m_Chart.DrawText(event.text, x, y + 0.35 * kEventSize * unit, 0.0, kEventSize);
    free = y + 0.5 * kLine * unit;
  }
}

}  // namespace

void DrawYearChart(const YearGraph& graph, const YearChartTexts& texts, const TextExtents& extents, int width,
                   int height, DisplayList& list) {
  YearPen(graph, texts, extents, width, height, list).Draw();
}

}  // namespace scene
