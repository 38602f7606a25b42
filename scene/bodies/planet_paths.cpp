// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/planet_paths.h"

#include <cmath>

#include "astro/vectors.h"
#include "scene/display/palette.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr double kCelestialStep = 3.0, kLocalStep = 0.3 / 24.0;  // days

bool IsSamePlace(const EarthPlace& a, const EarthPlace& b) {
  return a.lon == b.lon && a.lat == b.lat && a.height == b.height;
}

}  // namespace

bool PlanetPaths::IsWanted(Kind kind, std::size_t body) const {
  const SSO_ID& id = m_Model.GetBodies()[body].id;
  return id.kind == FourCC("plnt") && (kind == kLocal || id.number != kSunNumber);
}

void PlanetPaths::Find(Kind kind, const EarthPlace& place, Track& track) {
  const SkyMoment& now = m_Model.GetMoment();
  const double step = kind == kCelestial ? kCelestialStep : kLocalStep;
  const auto nearest = std::llround((now.day + now.fraction) / step);
  if (track.step == step && track.first == nearest - kEachWay && IsSamePlace(track.place, place)) return;
  const BodyList& bodies = m_Model.GetBodies();
  track.step = step;
  track.first = nearest - kEachWay;
  track.place = place;
  track.points.assign(bodies.size() * kPoints, {});
  track.known.assign(bodies.size(), 1);
  for (std::size_t i = 0; i < kPoints; ++i) {
    const double date = static_cast<double>(track.first + static_cast<long long>(i)) * step;
    const SkyMoment moment = Later(now, date - (now.day + now.fraction));
    SetUpModel(moment, place, m_Moments);
    double axes[9];
    HorizonAxes(moment, place, axes);
    for (std::size_t body = 0; body < bodies.size(); ++body) {
      ObservedBody seen;
      if (!IsWanted(kind, body)) continue;
      if (!m_Moments.Observe(bodies[body].id, nullptr, seen)) track.known[body] = 0;
      Direction& point = track.points[body * kPoints + i];
      point = MakeDirection(seen.apparent);
      if (kind == kLocal) MV3prod(axes, seen.apparent, point.v);
    }
  }
}

void PlanetPaths::Add(Kind kind, const Track& track, const ViewGeometry& geometry,
                      const ObserverFrame& observer, bool hideBelowHorizon) {
  const BodyList& bodies = m_Model.GetBodies();
  for (std::size_t body = 0; body < bodies.size(); ++body) {
    if (!IsWanted(kind, body) || !track.known[body]) continue;
    SkyPath path(geometry);
    for (std::size_t i = 0; i < kPoints; ++i) {
      Direction point = track.points[body * kPoints + i];
      if (kind == kLocal) {
        const Direction there = point;
        V3Mprod(there.v, observer.reduction, point.v);
      }
      Line line = {{}, {bodies[body].id.kind, bodies[body].id.number}, kind == kLocal};
      if (!path.GoTo(point, line.stretch) || !path.Clip(line.stretch)) continue;
      if (!hideBelowHorizon || SeenSine(point, observer) >= 0.0) m_Lines.push_back(line);
    }
  }
}

void PlanetPaths::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                          const EarthPlace& place, const WantedPaths& wanted) {
  Clear();
  if (!wanted.celestial && !wanted.local) return;
  m_Lines.reserve(m_Model.GetBodies().size() * 2 * kPoints);
  if (wanted.celestial) {
    Find(kCelestial, place, m_Celestial);
    Add(kCelestial, m_Celestial, geometry, observer, wanted.hideBelowHorizon);
  }
  if (!wanted.local || !observer.horizon) return;
  Find(kLocal, place, m_Local);
  Add(kLocal, m_Local, geometry, observer, wanted.hideBelowHorizon);
}

void PlanetPaths::Draw(const SkyColours& sky, DisplayList& list) const {
  constexpr double kCelestialStrength = 0.8, kLocalStrength = 0.5;
  PolylineRecord record = {};
  record.width = 1.2f * list.GetUnit();
  for (const Line& line : m_Lines) {
    const double strength = line.local ? kLocalStrength : kCelestialStrength;
    record.colour = sky.ReadableLine(ToRgba(palette::kPlanetOrbit, strength));
    record.dash = line.local ? 4.0f * list.GetUnit() : 0.0f;
    record.object = line.body;
    list.AddVertex(line.stretch.from.x, list.GetHeight() - line.stretch.from.y);
    list.AddVertex(line.stretch.to.x, list.GetHeight() - line.stretch.to.y);
    list.AddLine(Layer::kOrbits, record);
  }
}

}  // namespace scene
