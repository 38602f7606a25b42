// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/milky_way_picture.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "scene/display/palette.h"
#include "scene/view/pixel_directions.h"
#include "scene/visibility/class_limits.h"
#include "utils/text.h"

namespace scene {
namespace {

// Nodes lie as near as the cells of the map, but not so near or so far that it costs or shows; pixels of the
// standard picture.
constexpr double kCell = 0.4 * kRadiansPerDegree, kLeastStep = 11.0, kMostStep = 32.0;

double FindStep(const ViewGeometry& geometry) {
  const double cell = kCell * 0.5 * geometry.scale;  // in the middle of the window
  const double step = std::clamp(cell, kLeastStep * geometry.unit, kMostStep * geometry.unit);
  const double least = std::sqrt(2.0 * geometry.width * geometry.height / MilkyWayPicture::kMostNodes);
  return std::max(step, least);
}

// Where stars are drawn that the eye does not see, the light of the Milky Way is resolved into them.
double FindUnresolved(const ViewGeometry& geometry) {
  constexpr double kNone = 8.0, kMost = 15.0, kLeft = 0.4;  // magnitudes; what is left beyond the second
  const double limit =
      MagnitudeOfCode(static_cast<double>(ClassLimits(geometry.camera, FourCC("star")).draw));
  return 1.0 - (1.0 - kLeft) * std::clamp((limit - kNone) / (kMost - kNone), 0.0, 1.0);
}

// The colour of each brightness that the screen tells apart, so that no node has to ask for it.
class Ramp {
 public:
  Ramp() {
    constexpr int kLast = static_cast<int>(std::size(palette::kMilkyWay)) - 1;
    for (int i = 0; i <= kSteps; ++i) {
      const double place = static_cast<double>(i) * kLast / kSteps;
      const int below = std::min(static_cast<int>(place), kLast - 1);
      const Colour &a = palette::kMilkyWay[below], &b = palette::kMilkyWay[below + 1];
      const auto mix = [part = place - below](double from, double to) { return from + (to - from) * part; };
      m_Colours[static_cast<std::size_t>(i)] = ToFaintRgba(
          {mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue), mix(a.opacity, b.opacity)});
    }
  }
  Rgba At(float brightness) const {
    return m_Colours[static_cast<std::size_t>(std::clamp(brightness, 0.0f, 1.0f) * kSteps + 0.5f)];
  }

 private:
  static constexpr int kSteps = 1024;
  std::array<Rgba, kSteps + 1> m_Colours;
};

}  // namespace

MilkyWayPicture::MilkyWayPicture(const SkyMap& map) : m_Map(map) { m_Nodes.reserve(kMostNodes); }

void MilkyWayPicture::Compute(const ViewGeometry& geometry, const SkyLight& light, bool shown) {
  m_Nodes.clear();
  m_Columns = m_Rows = 0;
  if (shown && light.GetGlowStrength() > 0.0) FindNodes(geometry, light);
}

void MilkyWayPicture::FindNodes(const ViewGeometry& geometry, const SkyLight& light) {
  const double step = FindStep(geometry);
  m_Columns = static_cast<int>(geometry.width / step) + 2;
  m_Rows = static_cast<int>(geometry.height / step) + 2;
  const auto factor = static_cast<float>(FindUnresolved(geometry) / 255.0);
  const PixelDirections directions(geometry, SkyFrameOf::kJ2000);
  const double across = static_cast<double>(geometry.width) / (m_Columns - 1),
               down = static_cast<double>(geometry.height) / (m_Rows - 1);
  for (int row = 0; row < m_Rows; ++row) {
    const double y = geometry.height - down * row;
    for (int column = 0; column < m_Columns; ++column) {
      const tPoint<double> pixel = {across * column, y};
      const float found = m_Map.Find(directions.FindOfAnyLength(pixel)) * factor;
      m_Nodes.push_back(found > 0.0f ? found * light.FindGlow(pixel) : 0.0f);
    }
  }
}

void MilkyWayPicture::Draw(DisplayList& list) const {
  static const Ramp ramp;
  // Only the part of the window where something shines, and the dark nodes around it.
  int left = m_Columns, right = -1, top = m_Rows, bottom = -1;
  for (int i = 0; i < static_cast<int>(m_Nodes.size()); ++i) {
    if (ramp.At(m_Nodes[static_cast<std::size_t>(i)]).alpha == 0) continue;
    left = std::min(left, i % m_Columns - 1);
    right = std::max(right, i % m_Columns + 1);
    top = std::min(top, i / m_Columns - 1);
    bottom = std::max(bottom, i / m_Columns + 1);
  }
  if (right < 0) return;
  left = std::max(left, 0);
  right = std::min(right, m_Columns - 1);
  top = std::max(top, 0);
  bottom = std::min(bottom, m_Rows - 1);
  for (int row = top; row <= bottom; ++row) {
    for (int column = left; column <= right; ++column)
      list.AddColour(ramp.At(m_Nodes[static_cast<std::size_t>(row * m_Columns + column)]));
  }
  const auto place = [](int node, int nodes, int pixels) {
    return static_cast<float>(static_cast<double>(pixels) * node / (nodes - 1));
  };
  MeshRecord mesh = {};
  mesh.left = place(left, m_Columns, list.GetWidth());
  mesh.right = place(right, m_Columns, list.GetWidth());
  mesh.top = place(top, m_Rows, list.GetHeight());
  mesh.bottom = place(bottom, m_Rows, list.GetHeight());
  mesh.columns = right - left + 1;
  list.AddMesh(Layer::kMilkyWay, mesh);
}

}  // namespace scene
