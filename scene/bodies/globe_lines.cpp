// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/globe_lines.h"

#include <cmath>

#include "astro/vectors.h"
#include "scene/display/palette.h"
#include "scene/view/directions.h"

namespace scene {
namespace {

constexpr Colour kGrid = {0.75, 0.85, 1.00, 0.40}, kGuide = {1.00, 0.85, 0.45, 0.85};
constexpr double kStep = 30.0 * kRadiansPerDegree, kPiece = 3.0 * kRadiansPerDegree;

class GlobePen {
 public:
  GlobePen(const GlobeRecord& globe, DisplayList& list) : m_Globe(globe), m_List(list) {
    const float* const m = globe.toBody;
    m_Viewer = {{m[2], m[5], m[8]}};
    // The inverse of the matrix, whose third column is at right angles to the other two.
    const Direction right = {{m[0], m[3], m[6]}}, down = {{m[1], m[4], m[7]}};
    const double xx = Dot(right, right), xy = Dot(right, down), yy = Dot(down, down);
    const double area = xx * yy - xy * xy;
    for (int i = 0; i < 3; ++i) {
      m_Right.v[i] = (yy * right.v[i] - xy * down.v[i]) / area;
      m_Down.v[i] = (xx * down.v[i] - xy * right.v[i]) / area;
    }
  }

  void Parallel(double latitude, const Colour& colour) {
    Begin(colour);
    for (double longitude = 0.0; longitude < 2.0 * kPi + 0.5 * kPiece; longitude += kPiece)
      GoTo(longitude, latitude);
    End();
  }
  void Meridian(double longitude, const Colour& colour) {
    constexpr double kLast = 0.5 * kPi - kStep;
    Begin(colour);
    for (double latitude = -kLast; latitude < kLast + 0.5 * kPiece; latitude += kPiece)
      GoTo(longitude, latitude);
    End();
  }
  // From the pole a third of the radius outwards; that of the far side begins at the limb.
  void Axis(double side) {
    constexpr double kOut = 1.35;
    const double pole = side * (1.0 - static_cast<double>(m_Globe.flattening));
    double from = 1.0;
    if (side * m_Viewer.v[2] < 0.0) {
      const double towards = m_Viewer.v[2] * m_Viewer.v[2], along = pole * pole * (1.0 - towards);
      from = std::sqrt((along + towards) / std::max(along, 1e-12));
      if (from >= kOut) return;
    }
    Begin(kGuide);
    AddVertex({{0.0, 0.0, from * pole}});
    AddVertex({{0.0, 0.0, kOut * pole}});
    End();
  }

 private:
  void Begin(const Colour& colour) {
    m_Colour = ToRgba(colour);
    m_Count = 0;
  }
  void GoTo(double longitude, double latitude) {
    const double c = std::cos(latitude), round = 1.0 - static_cast<double>(m_Globe.flattening);
    const Direction unit = {{c * std::cos(longitude), c * std::sin(longitude), std::sin(latitude)}};
    const Direction steep = {{unit.v[0], unit.v[1], unit.v[2] / round}};
    if (Dot(steep, m_Viewer) < 0.0) return End();
    AddVertex({{unit.v[0], unit.v[1], unit.v[2] * round}});
  }
  void AddVertex(const Direction& place) {
    const DiscRecord& disc = m_Globe.disc;
    m_List.AddVertex(disc.x + disc.radius * Dot(m_Right, place), disc.y + disc.radius * Dot(m_Down, place));
    ++m_Count;
  }
  // A vertex alone draws nothing.
  void End() {
    if (m_Count == 0) return;
    PolylineRecord line = {};
    line.width = 0.9f * m_List.GetUnit();
    line.colour = m_Colour;
    line.flags = kRoundJoins;
    line.object = m_Globe.disc.object;
    m_List.AddLine(Layer::kBodies, line);
    m_Count = 0;
  }

  const GlobeRecord& m_Globe;
  DisplayList& m_List;
  Direction m_Viewer, m_Right, m_Down;
  Rgba m_Colour{};
  int m_Count = 0;
};

}  // namespace

void DrawGlobeLines(const GlobeRecord& globe, const GlobeLines& wanted, DisplayList& list) {
  constexpr float kLeast = 10.0f;  // pixels of a picture of 1600 x 1000
  if (globe.disc.radius < kLeast * list.GetUnit()) return;
  GlobePen pen(globe, list);
  if (wanted.grid) {
    for (int i = -2; i <= 2; ++i) pen.Parallel(i * kStep, kGrid);
    for (int i = 0; i < 12; ++i) pen.Meridian(i * kStep, kGrid);
  }
  if (!wanted.guides) return;
  pen.Parallel(0.0, kGuide);
  pen.Axis(1.0);
  pen.Axis(-1.0);
}

}  // namespace scene
