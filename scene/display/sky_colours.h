// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

#include "scene/display/palette.h"
#include "scene/display_list.h"
#include "scene/visibility/sky_light.h"

namespace scene {

// The sky as bodies are painted on it.
class SkyColours {
 public:
  // Kept by reference.
  SkyColours(const DisplayList& list, const SkyLight& light) : m_List(list), m_Light(light) {}

  // At a pixel, y down: that of the nearest node of the mesh that the list begins with. Black where it has
  // none.
  Rgba Find(double x, double y) const {
    const auto& runs = m_List.GetRuns();
    if (runs.empty() || runs[0].type != RecordType::kMesh) return {0, 0, 0, 255};
    const MeshRecord& mesh = m_List.GetMeshes()[static_cast<std::size_t>(runs[0].first)];
    const int column = Nearest(x / m_List.GetWidth(), mesh.columns),
              row = Nearest(y / m_List.GetHeight(), mesh.rows);
    return m_List.GetColours()[static_cast<std::size_t>(mesh.firstColour + row * mesh.columns + column)];
  }

  // The Sun's: white above, redder the more air its light goes through.
  Colour GetSun() const {
    if (!m_Light.IsNatural()) return palette::kSun;
    const double air = astro::GetAirMass(std::asin(std::clamp(m_Light.GetSources().sun.v[2], -1.0, 1.0)));
    return {1.0, std::exp(-0.010 * (air - 1.0)), 0.97 * std::exp(-0.028 * (air - 1.0)), 1.0};
  }

  bool IsNatural() const { return m_Light.IsNatural(); }

  // Whether a total eclipse leaves nothing of the Sun but its corona.
  bool IsSunCovered() const {
    return m_Light.IsNatural() && m_Light.GetSources().sunlight <= SkySources::kLeft;
  }

 private:
  static int Nearest(double part, int nodes) {
    return static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * (nodes - 1)));
  }

  const DisplayList& m_List;
  const SkyLight& m_Light;
};

}  // namespace scene
