// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/orbit_paths.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/moons.h"
#include "astro/vectors.h"
#include "common_interfaces/clipping.h"
#include "common_interfaces/orbit_info.h"
#include "scene/display/palette.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::OrbitInfo;

constexpr int kArcs = 180;                               // of a whole orbit
constexpr int kMaxHalvings = 5;                          // of an arc that comes near
constexpr double kLongestArc = 3.0 * kRadiansPerDegree;  // as it is seen
constexpr double kFarthest = 200.0;  // au: open and long orbits are drawn as far as this from the Sun

using astro::kEarth;
using astro::kSun;

const Colour& GetColour(int kind) {
  if (kind == FourCC("plnt")) return palette::kPlanetOrbit;
  if (kind == FourCC("moon")) return palette::kMoonOrbit;
  if (kind == FourCC("comt")) return palette::kCometOrbit;
  return kind == FourCC("scft") ? palette::kSatelliteOrbit : palette::kAsteroidOrbit;
}

bool IsAboutEarth(const SSO_ID& id) {
  return id.kind == FourCC("scft") || (id.kind == FourCC("moon") && id.number == kMoonNumber);
}

}  // namespace

// A place on an orbit as it is seen.
struct OrbitPaths::Point {
  double turn;  // the true anomaly from that of the body on, radians
  Direction apparent;
  tPoint<double> pixel;
  bool usable;  // above the horizon where that hides, and not so far aside that straight lines mislead
};

struct OrbitPaths::View {
  const ViewGeometry& geometry;
  const ObserverFrame& observer;
  bool hideBelowHorizon;
  double from[3];   // the observer relative to the Sun, au
  Direction turn;   // to what all points are seen beside their places with the aberration of the year
  OrbitInfo orbit;  // the one that is being drawn; its centre relative to the Sun
  double ahead[3];  // in its plane, at a right angle to the radius

  Point FindPoint(double turn) const;
};

namespace {

// Up to this anomaly on both sides the orbit stays within `farthest`.
double FindAnomalyLimit(const OrbitInfo& orbit, double farthest) {
  const double cosine = (orbit.m_SemiLatusRectum / farthest - 1.0) / orbit.m_Eccentricity;
  return orbit.m_Eccentricity > 0.0 && cosine > -1.0 ? std::acos(cosine < 1.0 ? cosine : 1.0) : kPi;
}

bool IsUsable(const OrbitInfo& orbit) {
  return std::isfinite(orbit.m_SemiLatusRectum) && orbit.m_SemiLatusRectum > 0.0 &&
         std::isfinite(orbit.m_Normal[0] + orbit.m_Radius[0] + orbit.m_SinAnomaly);
}

}  // namespace

OrbitPaths::Point OrbitPaths::View::FindPoint(double turnOfPlace) const {
  const double c = std::cos(turnOfPlace), s = std::sin(turnOfPlace);
  const double cosineOfAnomaly = c * orbit.m_CosAnomaly - s * orbit.m_SinAnomaly;
  const double distance = orbit.m_SemiLatusRectum / (1.0 + orbit.m_Eccentricity * cosineOfAnomaly);
  Direction direction;
  for (int i = 0; i < 3; ++i)
    direction.v[i] = orbit.m_Center[i] + distance * (c * orbit.m_Radius[i] + s * ahead[i]) - from[i];
  Direction apparent = ApparentDirection(Normalised(direction), observer);
  for (int i = 0; i < 3; ++i) apparent.v[i] += turn.v[i];
  apparent = Normalised(apparent);
  const SeenPlace seen = geometry.See(apparent, observer);
  const bool hidden = hideBelowHorizon && seen.sine < 0.0;
  const bool near =
      Dot(apparent, geometry.centreJ2000) > 0.0 || geometry.IsInside(seen.pixel, geometry.halfDiagonal);
  return {turnOfPlace, apparent, seen.pixel, near && !hidden};
}

// Whether an orbit that is that large lies within the dot of what it leads around.
bool OrbitPaths::IsTooSmall(const View& view, double radius) {
  constexpr double kLeast = 6.0;  // pixels of a picture of 1600 x 1000
  double away[3];
  for (int i = 0; i < 3; ++i) away[i] = view.orbit.m_Center[i] - view.from[i];
  const ViewGeometry& geometry = view.geometry;
  return radius < Vmod(away, 3) && 0.5 * geometry.scale * radius / Vmod(away, 3) < kLeast * geometry.unit;
}

OrbitPaths::OrbitPaths(const BodyModel& model) : m_Model(model) {}

bool OrbitPaths::Show(int body, double duration) {
  const SkyBody& entry = m_Model.GetBodies()[static_cast<std::size_t>(body)];
  if (entry.id == kSun) return false;
  m_Settings.ShowOrbit(entry.id, true, duration);
  constexpr std::size_t kUsualLines = 2 * kArcs;  // room for them now, so that frames need none
  const std::size_t wanted = m_Settings.GetOrbits().size() * kUsualLines;
  if (wanted > m_Lines.capacity()) m_Lines.reserve(std::max(wanted, 2 * m_Lines.capacity()));
  return true;
}

void OrbitPaths::Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const EarthPlace& place,
                         bool hideBelowHorizon) {
  m_Lines.clear();
  if (m_Settings.GetOrbits().empty()) return;
  View view = {geometry, observer, hideBelowHorizon, {0.0, 0.0, 0.0}, {}, {}, {}};
  double velocity[3], onEarth[3];
  if (!m_Model.GetModel().GetHeliocentricState(kEarth, nullptr, view.from, velocity)) return;
  GetPlaceVector(m_Model.GetMoment(), place, onEarth);
  for (int i = 0; i < 3; ++i) view.from[i] += onEarth[i] / astro::kKilometresPerAu;
  for (const auto& body : m_Model.GetBodies()) {
    if (!m_Settings.isObjectWithOrbit(body.id)) continue;
    AddOrbit(view, body, m_Settings.GetOrbitAlpha(body.id));
  }
}

// What the body moves around, as it is seen: a planet whose moons are looked at stands where its light left
// it, and the daily aberration moves it by several pixels where moons are told apart.
bool OrbitPaths::FindCentre(const View& view, const SkyBody& body, Centre& centre) const {
  const CQXSolSys& model = m_Model.GetModel();
  if (IsAboutEarth(body.id)) {
    centre.body = kEarth;
    if (!model.GetHeliocentricState(kEarth, nullptr, centre.state, centre.velocity)) return false;
    for (int i = 0; i < 3; ++i) centre.shown[i] = centre.state[i];
    return true;
  }
  if (!astro::IsMoonOfPlanet(body.id)) return true;
  centre.body = astro::PlanetOfMoon(body.id);
  const int planet = FindBody(m_Model.GetBodies(), centre.body);
  if (planet < 0 || !m_Model.GetStates()[static_cast<std::size_t>(planet)].known) return false;
  const ObservedBody& seen = m_Model.GetStates()[static_cast<std::size_t>(planet)].seen;
  const Direction moved = ApparentDirection(MakeDirection(seen.astrometric), view.observer);
  for (int i = 0; i < 3; ++i) {
    centre.shown[i] = view.from[i] + seen.astrometric[i] * seen.distance;
    centre.turn.v[i] = seen.apparent[i] - moved.v[i];
  }
  return model.GetHeliocentricState(centre.body, nullptr, centre.state, centre.velocity);
}

void OrbitPaths::AddOrbit(View& view, const SkyBody& body, float opacity) {
  const CQXSolSys& model = m_Model.GetModel();
  double r[3], v[3];
  Centre centre = {kSun, {}, {}, {}, {}};
  // The model has the elements already, and made them ready.
  if (!model.GetHeliocentricState(body.id, nullptr, r, v)) return;
  if (!FindCentre(view, body, centre)) return;
  for (int i = 0; i < 3; ++i) {
    r[i] -= centre.state[i];
    v[i] -= centre.velocity[i];
    view.orbit.m_Center[i] = centre.shown[i];
  }
  view.turn = centre.turn;
  if (IsTooSmall(view, Vmod(r, 3))) return;
  // The Moon pulls at the Earth too.
  const double mu = model.GetGravity(centre.body) + (IsAboutEarth(body.id) ? model.GetGravity(body.id) : 0.0);
  view.orbit.init(1.0 / mu, r, v);
  if (!IsUsable(view.orbit)) return;
  Vprod(view.orbit.m_Normal, view.orbit.m_Radius, view.ahead);
  const double limit = FindAnomalyLimit(view.orbit, kFarthest);
  const double own = std::atan2(view.orbit.m_SinAnomaly, view.orbit.m_CosAnomaly);
  Point last = view.FindPoint(-limit - own);
  for (int i = 1; i <= kArcs; ++i) {
    const Point point = view.FindPoint(limit * (2.0 * i / kArcs - 1.0) - own);
    AddArc(view, last, point, 0, {{}, {}, opacity, {body.id.kind, body.id.number}});
    last = point;
  }
}

// An arc that is seen under a large angle, because it comes near, is halved.
void OrbitPaths::AddArc(const View& view, const Point& a, const Point& b, int depth, DrawnOrbitLine line) {
  static const double kLongest = std::cos(kLongestArc);
  if (depth < kMaxHalvings && Dot(a.apparent, b.apparent) < kLongest) {
    const Point middle = view.FindPoint(0.5 * (a.turn + b.turn));
    AddArc(view, a, middle, depth + 1, line);
    AddArc(view, middle, b, depth + 1, line);
    return;
  }
  if (!a.usable || !b.usable) return;
  line.from = a.pixel;
  line.to = b.pixel;
  const tRect<int> window = {0, 0, view.geometry.width + 1, view.geometry.height + 1};
  if (CommonInterfaces::line_in_rectD(&line.from, &line.to, window)) m_Lines.push_back(line);
}

void OrbitPaths::Draw(const SkyColours& sky, DisplayList& list) const {
  PolylineRecord record = {};
  record.width = 1.2f * list.GetUnit();
  for (const auto& line : m_Lines) {
    record.colour = sky.ReadableLine(ToRgba(GetColour(line.body.kind), static_cast<double>(line.opacity)));
    record.object = line.body;
    list.AddVertex(line.from.x, list.GetHeight() - line.from.y);
    list.AddVertex(line.to.x, list.GetHeight() - line.to.y);
    list.AddLine(Layer::kOrbits, record);
  }
}

}  // namespace scene
