// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

#include "scene/display/display_list.h"
#include "scene/display/palette.h"
#include "scene/visibility/sky_light.h"

namespace scene {

// The sky as bodies are painted on it.
class SkyColours {
 public:
  // Kept by reference.
  SkyColours(const DisplayList& list, const SkyLight& light) : m_List(list), m_Light(light) {
    constexpr int kSteps = 5;
    for (int i = 0; i < kSteps * kSteps; ++i) {
      const double across = (i % kSteps) / (kSteps - 1.0), down = (i / kSteps) / (kSteps - 1.0);
      m_Luma += GetLuma(Find(across * list.GetWidth(), down * list.GetHeight())) / (kSteps * kSteps);
    }
  }

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

  // A colour of what has to be read, over the sky at a pixel (y down): paler than it is in twilight, dark on
  // a bright sky, and less transparent on both. On a dark one as it is.
  Rgba Readable(const Rgba& colour, double x, double y) const { return Against(colour, GetLuma(Find(x, y))); }
  // The same of lines, which all have one look: over what the sky of the picture is like on the whole.
  Rgba ReadableLine(const Rgba& colour) const { return Against(colour, m_Luma); }

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
  // As the eye weighs the channels, 0 to 1.
  static double GetLuma(const Rgba& c) {
    return (0.2126 * c.red + 0.7152 * c.green + 0.0722 * c.blue) / 255.0;
  }
  static Rgba Against(const Rgba& colour, double luma) {
    constexpr double kTwilight = 0.1, kDay = 0.42, kMostPale = 0.6, kMostOpaque = 0.9;
    if (luma < kTwilight) return colour;
    const double part = std::min((luma - kTwilight) / (kDay - kTwilight), 1.0);
    const double grey = 0.6 * std::min({colour.red, colour.green, colour.blue});
    const auto channel = [&](unsigned char value) {
      const double shown = luma < kDay ? value + (255.0 - value) * kMostPale * part : 0.45 * (value - grey);
      return static_cast<unsigned char>(std::lround(shown));
    };
    const double opaque = std::max(colour.alpha / 255.0, kMostOpaque);
    const double alpha = colour.alpha + (255.0 * opaque - colour.alpha) * 0.6 * part;
    return {channel(colour.red), channel(colour.green), channel(colour.blue),
            static_cast<unsigned char>(std::lround(alpha))};
  }
  static int Nearest(double part, int nodes) {
    return static_cast<int>(std::lround(std::clamp(part, 0.0, 1.0) * (nodes - 1)));
  }

  const DisplayList& m_List;
  const SkyLight& m_Light;
  double m_Luma = 0.0;  // of the sky on the whole
};

}  // namespace scene
