// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/chart_legend.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>

#include "common_interfaces/string_table.h"
#include "scene/catalogs/texts.h"
#include "scene/display/palette.h"
#include "scene/display/style_rules.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr unsigned kFirstText = 900520;  // "Magnitude", then the classes
constexpr const char* kEnglish[] = {"Magnitude", "Galaxy",           "Open cluster", "Globular cluster",
                                    "Nebula",    "Planetary nebula", "Other object"};
constexpr unsigned kFirstSignText = 900510;
constexpr const char* kEnglishSigns[] = {"Double star", "Variable star", "Star with planets"};

// Pixels of the standard picture.
constexpr double kWidth = 330.0, kPadding = 14.0, kAway = 14.0, kMagnitudes = 58.0, kRow = 19.0,
                 kScaleRow = 34.0, kLeastRows = 4.0 * kRow, kFont = 11.0, kArrow = 26.0;

float Pixel(double v) { return static_cast<float>(v); }

std::string Fetch(unsigned id, const char* english) {
  const char* const text = CommonInterfaces::QX4Strings::GetString(id, true);
  return text && *text ? ToUtf8(text) : english;
}

}  // namespace

ScaleBar FindScaleBar(double scale, double most) {
  struct Unit {
    double radians;
    const char* sign;
  };
  constexpr Unit kUnits[] = {{kRadiansPerDegree, "\u00b0"},
                             {kRadiansPerDegree / 60.0, "\u2032"},
                             {kRadiansPerDegree / 3600.0, "\u2033"}};
  constexpr int kCounts[] = {30, 20, 10, 5, 2, 1};
  ScaleBar bar = {};
  for (const Unit& unit : kUnits) {
    for (const int count : kCounts) {
      bar = {2.0 * scale * std::tan(0.25 * count * unit.radians), count, unit.sign};
      if (bar.length <= most) return bar;
    }
  }
  return bar;
}

// The sub-types are those that the catalogs' numbers carry.
int ChartLegend::FindClass(const DeepskyObject& object) {
  constexpr unsigned char kGlobular = 41, kPlanetary = 32;
  const auto type = GetTraits(object).cls;
  switch (LabelKindOfDeepsky(object.kind)) {
    case LabelKind::kGalaxy:
      return 0;
    case LabelKind::kCluster:
      return type == kGlobular ? 2 : 1;
    case LabelKind::kNebula:
      return type == kPlanetary ? 4 : 3;
    default:
      return 5;
  }
}

void ChartLegend::FetchTexts() {
  static_assert(std::size(kEnglish) == kClasses + 1);
  static_assert(std::size(kEnglishSigns) == kSigns);
  m_Magnitude = Fetch(kFirstText, kEnglish[0]);
  for (unsigned i = 0; i < kClasses; ++i) m_Names[i] = Fetch(kFirstText + i + 1, kEnglish[i + 1]);
  for (unsigned i = 0; i < kSigns; ++i) m_SignNames[i] = Fetch(kFirstSignText + i, kEnglishSigns[i]);
  m_Letters = FetchCompassLetters();
}

// Room for all classes, whichever occur.
void ChartLegend::Place(const ViewGeometry& geometry, double foot, LabelPlacer& labels) {
  constexpr double kMost = kMagnitudes + (kClasses + kSigns) * kRow + kScaleRow + 2.0 * kPadding;
  m_Unit = geometry.unit;
  m_Scale = geometry.scale;
  m_Axes = FindPictureAxes(geometry);
  m_Left = geometry.width - (kWidth + kAway) * m_Unit;
  m_Bottom = geometry.height - foot - kAway * m_Unit;
  labels.Reserve({m_Left + 0.5 * kWidth * m_Unit, geometry.height - m_Bottom + 0.5 * kMost * m_Unit},
                 0.5 * kWidth * m_Unit, 0.5 * kMost * m_Unit);
}

void ChartLegend::Draw(const SkyObjects& objects, const SkyCatalogs& catalogs, const ClassLimits& stars,
                       DisplayList& list) const {
  std::array<int, kClasses> samples;
  samples.fill(-1);
  int count = 0;
  for (const auto& drawn : objects.GetDeepsky()) {
    int& sample = samples[static_cast<std::size_t>(
        FindClass(catalogs.deepsky[static_cast<std::size_t>(drawn.object)]))];
    if (sample < 0) ++count;
    if (sample < 0) sample = drawn.object;
  }
  for (unsigned i = 0; i < kSigns; ++i) count += (objects.GetSigns() >> i & 1u) != 0;
  const double rows = std::max(count * kRow, kLeastRows);
  const double top = m_Bottom - (kMagnitudes + rows + kScaleRow + 2.0 * kPadding) * m_Unit;
  DrawGround(top, list);
  const double y = top + kPadding * m_Unit;
  DrawMagnitudes(y, stars, list);
  DrawSigns(DrawSymbols(y + kMagnitudes * m_Unit, samples, objects, list), objects.GetSigns(), list);
  DrawArrows(y + (kMagnitudes + 0.5 * rows) * m_Unit, list);
  DrawScale(m_Bottom - kPadding * m_Unit, list);
}

void ChartLegend::DrawGround(double top, DisplayList& list) const {
  const double right = m_Left + kWidth * m_Unit;
  const auto addCorners = [&] {
    list.AddVertex(m_Left, top);
    list.AddVertex(right, top);
    list.AddVertex(right, m_Bottom);
    list.AddVertex(m_Left, m_Bottom);
  };
  addCorners();
  PolygonRecord area = {};
  area.colour = ToRgba(palette::kLegendGround);
  list.AddArea(Layer::kChart, area);
  addCorners();
  PolylineRecord edge = {};
  edge.width = Pixel(0.8 * m_Unit);
  edge.colour = ToRgba(palette::kLegendEdge);
  edge.flags = kClosedLine;
  list.AddLine(Layer::kChart, edge);
}

// From the faintest whole magnitude that is drawn upwards, as many as there is room for.
void ChartLegend::DrawMagnitudes(double y, const ClassLimits& stars, DisplayList& list) const {
  constexpr int kMost = 8;
  const StyleRules& rules = GetStyleRules(list.GetStyle());
  const int faintest = static_cast<int>(std::floor(MagnitudeOfCode(static_cast<double>(stars.draw)) + 1e-6));
  const int brightest = std::max(-1, faintest - kMost + 1);
  const double step = (kWidth - 2.0 * kPadding) / kMost * m_Unit;
  DrawText(m_Magnitude, m_Left + kPadding * m_Unit, y + 9.0 * m_Unit, 0.0, kFont, list);
  for (int i = 0; brightest + i <= faintest; ++i) {
    const float code = 10.0f * static_cast<float>(brightest + i + 2);
    const double x = m_Left + kPadding * m_Unit + (i + 0.5) * step;
    PointRecord dot = {};
    dot.x = Pixel(x);
    dot.y = Pixel(y + 26.0 * m_Unit);
    dot.radius = rules.GetStarRadius(Pixel(GetDotRadius(stars, code) * m_Unit), Pixel(m_Unit));
    dot.colour =
        ToRgba(palette::kLegendText, rules.solidStars ? 1.0 : static_cast<double>(stars.Opacity(code)));
    list.Add(Layer::kChart, dot);
    const int magnitude = brightest + i;
    DrawText((magnitude < 0 ? "\u2212" : "") + std::to_string(std::abs(magnitude)), x, y + 46.0 * m_Unit, 0.5,
             kFont, list);
  }
}

// A symbol a row, as the objects of the class are drawn.
double ChartLegend::DrawSymbols(double y, const std::array<int, kClasses>& samples, const SkyObjects& objects,
                                DisplayList& list) const {
  constexpr double kSymbol = 5.5;  // radius
  for (int i = 0; i < kClasses; ++i) {
    const int sample = samples[static_cast<std::size_t>(i)];
    if (sample < 0) continue;
    const double middle = y + 0.5 * kRow * m_Unit;
    list.BeginSample(Layer::kChart);
    objects.DrawSample(sample, m_Left + (kPadding + 8.0) * m_Unit, middle, kSymbol * m_Unit, list);
    list.EndSample();
    DrawText(m_Names[i], m_Left + (kPadding + 24.0) * m_Unit, middle + 0.36 * kFont * m_Unit, 0.0, kFont,
             list);
    y += kRow * m_Unit;
  }
  return y;
}

void ChartLegend::DrawSigns(double y, unsigned signs, DisplayList& list) const {
  constexpr double kDot = 2.2;  // radius
  for (unsigned i = 0; i < kSigns; ++i) {
    if ((signs >> i & 1u) == 0) continue;
    const double middle = y + 0.5 * kRow * m_Unit;
    list.BeginSample(Layer::kChart);
    SkyObjects::DrawSignSample(1u << i, m_Left + (kPadding + 8.0) * m_Unit, middle, kDot * m_Unit, list);
    list.EndSample();
    DrawText(m_SignNames[i], m_Left + (kPadding + 24.0) * m_Unit, middle + 0.36 * kFont * m_Unit, 0.0, kFont,
             list);
    y += kRow * m_Unit;
  }
}

void ChartLegend::DrawScale(double y, DisplayList& list) const {
  constexpr double kMost = 190.0, kTick = 4.0;
  const ScaleBar bar = FindScaleBar(m_Scale, kMost * m_Unit);
  const double left = m_Left + kPadding * m_Unit, right = left + bar.length, tick = kTick * m_Unit,
               middle = y - 8.0 * m_Unit;
  list.AddVertex(left, middle - tick);
  list.AddVertex(left, middle + tick);
  list.AddVertex(left, middle);
  list.AddVertex(right, middle);
  list.AddVertex(right, middle - tick);
  list.AddVertex(right, middle + tick);
  PolylineRecord line = {};
  line.width = Pixel(1.2 * m_Unit);
  line.colour = ToRgba(palette::kLegendText);
  list.AddLine(Layer::kChart, line);
  DrawText(std::to_string(bar.count) + bar.sign, right + 8.0 * m_Unit, middle + 0.36 * kFont * m_Unit, 0.0,
           kFont, list);
}

// From one point, the letters behind the tips.
void ChartLegend::DrawArrows(double y, DisplayList& list) const {
  constexpr double kBarb = 6.0, kLetter = 9.0;
  const double size = kArrow * m_Unit;
  const tPoint<double> middle = {m_Left + (kWidth - kPadding - 48.0) * m_Unit, y};
  const tPoint<double> foot = {middle.x - 0.4 * size * (m_Axes.north.x + m_Axes.east.x),
                               middle.y - 0.4 * size * (m_Axes.north.y + m_Axes.east.y)};
  constexpr int kNorth = 0, kEast = 2;  // of the letters
  PolylineRecord line = {};
  line.width = Pixel(1.2 * m_Unit);
  line.colour = ToRgba(palette::kLegendText);
  line.flags = kRoundJoins;
  for (const int letter : {kNorth, kEast}) {
    const tPoint<double>& along = letter == kNorth ? m_Axes.north : m_Axes.east;
    const double tipX = foot.x + size * along.x, tipY = foot.y + size * along.y, barb = kBarb * m_Unit;
    list.AddVertex(foot.x, foot.y);
    list.AddVertex(tipX, tipY);
    list.AddLine(Layer::kChart, line);
    list.AddVertex(tipX - barb * (along.x + 0.4 * along.y), tipY - barb * (along.y - 0.4 * along.x));
    list.AddVertex(tipX, tipY);
    list.AddVertex(tipX - barb * (along.x - 0.4 * along.y), tipY - barb * (along.y + 0.4 * along.x));
    list.AddLine(Layer::kChart, line);
    DrawText(m_Letters.text[letter], tipX + kLetter * m_Unit * along.x,
             tipY + kLetter * m_Unit * along.y + 0.36 * kFont * m_Unit, 0.5, kFont, list);
  }
}

void ChartLegend::DrawText(const std::string& text, double x, double y, double anchor, double size,
                           DisplayList& list) const {
  TextRecord record = {};
  record.x = Pixel(x);
  record.y = Pixel(y);
  record.anchor = Pixel(anchor);
  record.size = Pixel(size * m_Unit);
  record.colour = ToRgba(palette::kLegendText);
  list.AddText(Layer::kChart, record, text);
}

}  // namespace scene
