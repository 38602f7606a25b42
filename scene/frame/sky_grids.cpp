// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_grids.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "common_interfaces/clipping.h"
#include "common_interfaces/string_table.h"
#include "scene/catalogs/texts.h"

namespace scene {
namespace {

constexpr double kLeastDistance = 110.0;  // pixels from line to line
constexpr float kLineWidth = 0.8f, kCircleWidth = 1.3f;
constexpr unsigned kFirstName = 900401;  // of the string table, in the order of the names
constexpr std::size_t kMostTexts = 1000, kVerticesReserved = 60000, kChainsReserved = 1000;

// What stands here where the string table has no text.
constexpr const char* kEnglish[] = {"North celestial pole",
                                    "South celestial pole",
                                    "March equinox",
                                    "June solstice",
                                    "September equinox",
                                    "December solstice",
                                    "North ecliptic pole",
                                    "South ecliptic pole",
                                    "North galactic pole",
                                    "South galactic pole",
                                    "Galactic centre",
                                    "Zenith",
                                    "Nadir",
                                    "Equator",
                                    "Equator J2000",
                                    "Ecliptic",
                                    "Galactic equator",
                                    "Meridian",
                                    "Prime vertical",
                                    "Precession"};

constexpr Direction kX = {{1.0, 0.0, 0.0}}, kY = {{0.0, 1.0, 0.0}}, kZ = {{0.0, 0.0, 1.0}};

Direction Opposite(const Direction& d) { return {{-d.v[0], -d.v[1], -d.v[2]}}; }

Rgba CircleColour(const Colour& grid) {
  return ToRgba({grid.red, grid.green, grid.blue, std::min(1.0, grid.opacity * palette::kCircleStrength)});
}

// The part of the system's sphere that may show in the window.
struct Reach {
  double south, north;       // latitudes
  double middle, halfWidth;  // longitudes
};

Reach FindReach(const GridSystem& system, const ViewGeometry& geometry) {
  constexpr double kMargin = 1.2e-4;  // radians, above the constant of aberration
  double centre[3], longitude = 0.0, latitude = 0.0;
  MV3prod(system.axes, geometry.centreJ2000.v, centre);
  psf(centre, 1.0, longitude, latitude);
  const double radius = std::min(1.01 * geometry.cornerAngle + kMargin, kPi);
  Reach reach = {std::max(latitude - radius, -0.5 * kPi), std::min(latitude + radius, 0.5 * kPi), longitude,
                 kPi};
  if (std::fabs(latitude) + radius < 0.5 * kPi)
    reach.halfWidth = std::asin(std::min(1.0, std::sin(radius) / std::cos(latitude)));
  return reach;
}

}  // namespace

// Draws one line of the sky and labels it: the vertices go to the frame's list, the label where the line
// leaves the window, at most twice.
class SkyGrids::Pen {
 public:
  Pen(const Context& context, const GridSystem& system, const Stroke& stroke, SkyGrids& grids)
      : m_Context(context), m_System(system), m_Stroke(stroke), m_Grids(grids) {}
  ~Pen() {
    if (m_Labels == 0) Label(m_Start, m_Above);
  }

  // A straight stretch, not yet clipped.
  void Draw(const tPoint<double>& from, const tPoint<double>& to, bool above) {
    tPoint<double> start = from, end = to;
    const tRect<int> window = {0, 0, m_Context.geometry.width + 1, m_Context.geometry.height + 1};
    if (!CommonInterfaces::line_in_rectD(&start, &end, window)) return End();
    const bool entered = start.x != from.x || start.y != from.y;
    const bool left = end.x != to.x || end.y != to.y;
    if (!m_Open || entered) Begin(start);
    m_Grids.m_Vertices.push_back(end);
    ++m_Grids.m_Chains.back().count;
    if (above && !m_Above) m_Start = start;
    m_Above = m_Above || above;
    if (entered) Label(start, above);
    if (left) Label(end, above);
    if (left) End();
  }
  void End() { m_Open = false; }

 private:
  void Begin(const tPoint<double>& p) {
    m_Grids.m_Chains.push_back(
        {static_cast<int>(m_Grids.m_Vertices.size()), 1, m_Stroke.colour, m_Stroke.width});
    m_Grids.m_Vertices.push_back(p);
    m_Open = true;
  }
  void Label(const tPoint<double>& p, bool above) {
    constexpr double kSize = 10.5;
    if (!m_Stroke.label || !above || m_Labels == 2) return;
    const double size = kSize * m_Context.geometry.unit;
    if (m_Context.labels.PlaceAtEdge(m_Stroke.label, p, size, m_System.label) >= 0) ++m_Labels;
  }

  const Context& m_Context;
  const GridSystem& m_System;
  const Stroke& m_Stroke;
  SkyGrids& m_Grids;
  bool m_Open = false, m_Above = false;
  tPoint<double> m_Start{};  // the first above the horizon
  int m_Labels = 0;
};

SkyGrids::SkyGrids() {
  m_Texts.reserve(kMostTexts);
  m_Vertices.reserve(kVerticesReserved);
  m_Chains.reserve(kChainsReserved);
  FetchTexts();
}

void SkyGrids::FetchTexts() {
  for (unsigned name = 0; name < kNameCount; ++name) {
    const char* const text = CommonInterfaces::QX4Strings::GetString(kFirstName + name, true);
    m_Names[name] = text && *text ? ToUtf8(text) : kEnglish[name];
  }
}

const char* SkyGrids::Keep(const GridText& text) {
  if (m_Texts.size() == kMostTexts) return nullptr;
  return m_Texts.emplace_back(text).data();
}

void SkyGrids::Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const SkyLines& wanted,
                       const ObjectTests& tests, LabelPlacer& labels) {
  m_Texts.clear();
  m_Vertices.clear();
  m_Chains.clear();
  const Context context = {geometry, observer, tests, labels};
  AddPoints(context, wanted.points);
  const auto add = [&](GridSystemId id, unsigned grid, unsigned equator, Name name) {
    if (grid != 0 || equator != 0)
      AddSystem(context, id, grid != 0, equator != 0 ? m_Names[name].c_str() : nullptr);
  };
  add(GridSystemId::kEquatorOfDate, wanted.equatorialGrid & 1u, wanted.equator & 1u, kEquator);
  add(GridSystemId::kEquatorJ2000, wanted.equatorialGrid & 2u, wanted.equator & 2u, kEquatorJ2000);
  add(GridSystemId::kEcliptic, wanted.eclipticGrid, wanted.ecliptic, kEcliptic);
  add(GridSystemId::kGalactic, wanted.galacticGrid & 1u, wanted.galacticGrid & 2u, kGalacticEquator);
  if (!observer.horizon) return;
  add(GridSystemId::kHorizontal, wanted.horizontalGrid, 0, kMeridian);
  const GridSystem horizontal = MakeGridSystem(GridSystemId::kHorizontal, observer);
  const auto circle = [&](const Direction& start, Name name) {
    AddCircle(context, horizontal, start, kZ,
              {CircleColour(horizontal.colour), kCircleWidth, m_Names[name].c_str()});
  };
  if (wanted.meridian & 1u) circle(kX, kMeridian);
  if (wanted.meridian & 2u) circle(kY, kPrimeVertical);
}

void SkyGrids::AddSystem(const Context& context, GridSystemId id, bool grid, const char* equator) {
  const GridSystem system = MakeGridSystem(id, context.observer);
  if (equator) AddCircle(context, system, kX, kY, {CircleColour(system.colour), kCircleWidth, equator});
  if (grid) AddGrid(context, system, !equator);
}

void SkyGrids::AddGrid(const Context& context, const GridSystem& system, bool withEquator) {
  const Reach reach = FindReach(system, context.geometry);
  const double least = kLeastDistance * context.geometry.unit * 2.0 / context.geometry.scale;
  const GridSteps steps = ChooseGridSteps(least, 0.5 * (reach.south + reach.north), system.unit);
  const auto multiples = [](double from, double to, double step, auto see) {
    for (double i = std::ceil(from / step); i * step <= to; i += 1.0) see(i);
  };
  const Rgba colour = ToRgba(system.colour);
  multiples(reach.south, reach.north, steps.latitude, [&](double i) {
    const double latitude = i * steps.latitude;
    if ((i == 0.0 && !withEquator) || std::fabs(latitude) > 0.5 * kPi - 0.5 * steps.latitude) return;
    const char* const label = Keep(FormatGridLatitude(latitude, steps.latitude));
    AddParallel(context, system, latitude, reach.middle, reach.halfWidth, {colour, kLineWidth, label});
  });
  const double from = reach.middle - reach.halfWidth, whole = 2.0 * kPi - 0.5 * steps.longitude;
  multiples(from, std::min(reach.middle + reach.halfWidth, from + whole), steps.longitude, [&](double i) {
    const double longitude = i * steps.longitude;
    const bool main = std::fabs(std::remainder(longitude, 0.5 * kPi)) < 0.5 * steps.longitude;
    const double limit = 0.5 * kPi - (main ? 0.0 : steps.latitude);
    const double shown = system.westward ? -longitude : longitude;
    const char* const label = Keep(FormatGridLongitude(shown, steps.longitude, system.unit));
    AddMeridian(context, system, longitude, std::max(reach.south, -limit), std::min(reach.north, limit),
                {colour, kLineWidth, label});
  });
}

void SkyGrids::AddParallel(const Context& context, const GridSystem& system, double latitude, double middle,
                           double half, const Stroke& stroke) {
  const double cosine = std::cos(latitude), sine = std::sin(latitude);
  AddArc(context, system,
         {{{0.0, 0.0, sine}}, {{cosine, 0.0, 0.0}}, {{0.0, cosine, 0.0}}, middle - half, middle + half},
         stroke);
}

void SkyGrids::AddMeridian(const Context& context, const GridSystem& system, double longitude, double from,
                           double to, const Stroke& stroke) {
  if (from >= to) return;
  AddArc(context, system, {{}, {{std::cos(longitude), std::sin(longitude), 0.0}}, kZ, from, to}, stroke);
}

// From where the circle is farthest from the middle of the picture all around.
void SkyGrids::AddCircle(const Context& context, const GridSystem& system, const Direction& start,
                         const Direction& quarter, const Stroke& stroke) {
  double centre[3];
  MV3prod(system.axes, context.geometry.centreJ2000.v, centre);
  const double nearest = std::atan2(astro::Dot(centre, quarter.v), astro::Dot(centre, start.v));
  AddArc(context, system, {{}, start, quarter, nearest - kPi, nearest + kPi}, stroke);
}

void SkyGrids::AddArc(const Context& context, const GridSystem& system, const SkyArc& arc,
                      const Stroke& stroke) {
  Pen pen(context, system, stroke, *this);
  const SightOfSystem sight = FindSight(system, context.observer);
  ArcWalk walk(context.geometry, sight, arc);
  for (tPoint<double> last{}; walk.Next(); last = walk.GetPixel()) {
    if (walk.IsJoined()) {
      pen.Draw(last, walk.GetPixel(), context.tests.IsAboveHorizon(walk.GetSine()));
    } else {
      pen.End();
    }
  }
}

// Through a round of precession the poles of the equator keep, but for some two degrees, their distance from
// those of the ecliptic.
void SkyGrids::AddPrecessionCircles(const Context& context) {
  GridSystem system = MakeGridSystem(GridSystemId::kEcliptic, context.observer);
  system.label = LabelKind::kEquatorialGrid;
  const double obliquity = MeanObliquity(astro::kJ2000 + context.observer.years * astro::kDaysPerJulianYear);
  const Stroke stroke = {CircleColour(MakeGridSystem(GridSystemId::kEquatorOfDate, context.observer).colour),
                         kCircleWidth, m_Names[kPrecessionCircle].c_str()};
  for (const double latitude : {0.5 * kPi - obliquity, obliquity - 0.5 * kPi})
    AddParallel(context, system, latitude, 0.5 * kPi, kPi, stroke);
}

void SkyGrids::AddPoints(const Context& context, unsigned choice) {
  if (choice == 0) return;
  const auto pair = [&](GridSystemId id, const Direction& direction, Name first, Name second) {
    const GridSystem system = MakeGridSystem(id, context.observer);
    AddPoint(context, system, direction, first);
    AddPoint(context, system, Opposite(direction), second);
  };
  if (choice & 1u) {
    pair(GridSystemId::kEquatorOfDate, kZ, kNorthCelestialPole, kSouthCelestialPole);
    pair(GridSystemId::kEcliptic, kX, kVernalEquinox, kAutumnalEquinox);
    pair(GridSystemId::kEcliptic, kY, kSummerSolstice, kWinterSolstice);
  }
  if (choice & 2u) pair(GridSystemId::kEcliptic, kZ, kNorthEclipticPole, kSouthEclipticPole);
  if (choice & 4u) {
    pair(GridSystemId::kGalactic, kZ, kNorthGalacticPole, kSouthGalacticPole);
    AddPoint(context, MakeGridSystem(GridSystemId::kGalactic, context.observer), kX, kGalacticCentre);
  }
  if ((choice & 8u) && context.observer.horizon) pair(GridSystemId::kHorizontal, kZ, kZenith, kNadir);
  if (choice & 16u) AddPrecessionCircles(context);
}

// A cross, upright in the picture.
void SkyGrids::AddPoint(const Context& context, const GridSystem& system, const Direction& coordinates,
                        Name name) {
  constexpr double kArm = 6.0, kSize = 11.0;  // pixels
  const ViewGeometry& geometry = context.geometry;
  const Direction direction = ShownDirection(system, coordinates, context.observer);
  const tPoint<double> p = geometry.Project(direction, SkyFrameOf::kJ2000);
  if (!geometry.IsInside(p, 0.0) || !context.tests.IsAboveHorizon(direction)) return;
  const double arm = kArm * geometry.unit;
  for (const auto& [dx, dy] : {tPoint<double>{arm, 0.0}, tPoint<double>{0.0, arm}}) {
    m_Chains.push_back({static_cast<int>(m_Vertices.size()), 2, CircleColour(system.colour), kCircleWidth});
    m_Vertices.push_back({p.x - dx, p.y - dy});
    m_Vertices.push_back({p.x + dx, p.y + dy});
  }
  context.labels.PlaceBeside(m_Names[name].c_str(), p, arm, kSize * geometry.unit, system.label);
}

void SkyGrids::Draw(const SkyColours& sky, DisplayList& list) const {
  for (const Chain& chain : m_Chains) {
    PolylineRecord line = {};
    line.width = chain.width * list.GetUnit();
    line.colour = sky.ReadableLine(chain.colour);
    line.flags = kRoundJoins;
    for (int i = chain.first; i < chain.first + chain.count; ++i) {
      const tPoint<double>& p = m_Vertices[static_cast<std::size_t>(i)];
      list.AddVertex(p.x, list.GetHeight() - p.y);
    }
    list.AddLine(Layer::kSkyLines, line);
  }
}

}  // namespace scene
