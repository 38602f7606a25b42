// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_horizon.h"

#include <cmath>
#include <span>

#include "scene/display/palette.h"
#include "scene/display/region_drawing.h"
#include "scene/view/horizon.h"

namespace scene {
namespace {

constexpr int kCompassMarks = 16;

// Below the horizon, on the ground; above it where the picture ends there.
void PlaceLetter(const CompassMark& mark, const char* letter, double unit, LabelPlacer& labels) {
  const double size = (mark.main ? 24.0 : 13.0) * unit;
  const LabelKind kind = mark.main ? LabelKind::kCompass : LabelKind::kCompassBetween;
  for (const double away : {(mark.main ? 26.0 : 20.0) * unit, (mark.main ? -20.0 : -14.0) * unit}) {
    const tPoint<double> place = {mark.place.x + mark.down.x * away, mark.place.y + mark.down.y * away};
    if (labels.PlaceCentred(letter, place, size, kind) >= 0) return;
  }
}

}  // namespace

SkyHorizon::SkyHorizon() : m_Haze(kHazeAltitudes.size()), m_Letters(FetchCompassLetters()) {
  AppendAltitudeCircle(0.0, m_AltitudeCircles);
  for (double altitude : kHazeAltitudes) AppendAltitudeCircle(altitude, m_AltitudeCircles);
  m_Compass.reserve(kCompassMarks);
  m_Ground.Reserve(1, kAltitudeCirclePoints);
  for (auto& band : m_Haze) band.Reserve(1, kAltitudeCirclePoints);
}

void SkyHorizon::Compute(const ViewGeometry& geometry, const HorizonParts& wanted, LabelPlacer& labels) {
  m_Ground.Clear();
  for (auto& band : m_Haze) band.Clear();
  m_Compass.clear();
  m_WithLine = wanted.line;
  if (wanted.ground) AddGround(geometry);
  if (wanted.compass) AddCompass(geometry, labels);
}

void SkyHorizon::AddGround(const ViewGeometry& geometry) {
  const Direction zenith = {{0.0, 0.0, 1.0}};
  const auto circle = [this](std::size_t index) {
    return std::span<const Direction>(m_AltitudeCircles.data() + index * kAltitudeCirclePoints,
                                      kAltitudeCirclePoints);
  };
  RegionProjector(geometry, SkyFrameOf::kHorizon, zenith, m_Ground).AddRing(circle(0));
  for (std::size_t band = 0; band < m_Haze.size(); ++band) {
    RegionProjector(geometry, SkyFrameOf::kHorizon, zenith, m_Haze[band]).AddRing(circle(band + 1));
  }
}

void SkyHorizon::AddCompass(const ViewGeometry& geometry, LabelPlacer& labels) {
  for (int i = 0; i < kCompassMarks; ++i) {
    const double azimuth = i * 2.0 * kPi / kCompassMarks;
    const auto p = geometry.Project(MakeDirection(-azimuth, 0.0), SkyFrameOf::kHorizon);
    if (!geometry.IsInside(p, 0.0)) continue;
    const auto below = geometry.Project(MakeDirection(-azimuth, -kRadiansPerDegree), SkyFrameOf::kHorizon);
    const double length = std::hypot(below.x - p.x, below.y - p.y);
    const CompassMark mark = {p, {(below.x - p.x) / length, (below.y - p.y) / length}, i % 4 == 0};
    m_Compass.push_back(mark);
    if (i % 2 == 0) PlaceLetter(mark, m_Letters.text[i / 2], geometry.unit, labels);
  }
}

void SkyHorizon::DrawHaze(double strength, DisplayList& list) const {
  constexpr double kLeastStep = 0.5;  // pixels
  if (!(strength > 0.0)) return;
  Colour haze = palette::kHaze;
  haze.opacity *= strength;
  for (const auto& band : m_Haze) {
    if (band.ringEnds.empty()) continue;
    AddRegion(band, kLeastStep, list);
    PolygonRecord area = {};
    area.colour = ToFaintRgba(haze);
    list.AddArea(Layer::kHaze, area);
  }
}

void SkyHorizon::DrawGround(const Rgba& colour, double strength, DisplayList& list) const {
  constexpr double kLeastStep = 0.5;  // pixels
  if (m_Ground.ringEnds.empty()) return;
  AddRegion(m_Ground, kLeastStep, list);
  PolygonRecord area = {};
  area.colour = colour;
  list.AddArea(Layer::kGround, area);
  if (!m_WithLine) return;
  PolylineRecord edge = {};
  edge.width = 1.3f * list.GetUnit();
  edge.colour = ToRgba(palette::kGroundEdge, 0.3 + 0.7 * strength);
  AddOutlines(m_Ground, kLeastStep, Layer::kGround, edge, list);
}

void SkyHorizon::DrawCompass(DisplayList& list) const {
  PolylineRecord line = {};
  line.width = 1.4f * list.GetUnit();
  line.colour = ToRgba(palette::kAccent);
  for (const auto& mark : m_Compass) {
    const double length = (mark.main ? 10.0 : 6.0) * static_cast<double>(list.GetUnit());
    const double y = list.GetHeight() - mark.place.y;
    list.AddVertex(mark.place.x, y);
    list.AddVertex(mark.place.x + length * mark.down.x, y - length * mark.down.y);
    list.AddLine(Layer::kCompass, line);
  }
}

}  // namespace scene
