// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How bright the sky of one frame is, and what it hides. A frame under a natural sky asks it of every object
// that it draws; under a plain sky it hides nothing.
#pragma once

#include <array>
#include <vector>

#include "astro/sky_brightness.h"
#include "scene/view/view_geometry.h"
#include "scene/visibility/class_limits.h"

namespace scene {

// What lights the sky, for an observer on the Earth.
struct SkySources {
  // In a total eclipse of the Sun a ten-thousandth of the daylight comes from beyond the shadow and the
  // corona (Sharp, Silverman & Lloyd 1971, Applied Optics 10, 1207); the Moon in the umbra keeps as little.
  static constexpr double kLeft = 1.5e-4;

  Direction sun, moon;                     // in the horizon frame
  double sunlight = 1.0, moonlight = 1.0;  // the parts that eclipses leave
  double moonPhaseAngle = 0.0;
  double darkness = astro::kDarkSky;  // of the site's night (astro::SkyLights)
};

// Allocates at its construction only.
class SkyLight {
 public:
  // Nodes evenly spread over the window, the outermost on its edges; row by row from the upper left one on.
  static constexpr int kColumns = 35, kRows = 23;
  struct Node {
    double altitude,
        fromSun;       // radians; below the horizon the altitude is that of the point as high above it
    double scattered;  // luminance that Sun and Moon give the sky, cd/m2
    double lamps;      // that the lamps on the ground give it: what the night has above that of the country
    float limit;       // of the naked eye, magnitude code
    float glow;        // what is seen of the Milky Way, 0 to 1
  };

  SkyLight();

  void SetPlain() {
    m_Natural = false;
    m_LineStrength = m_GlowStrength = 1.0;
  }
  // `extinction`: whether low air takes light from what is seen through it.
  void Compute(const ViewGeometry& geometry, const SkySources& sources, bool extinction = true);

  bool IsNatural() const { return m_Natural; }
  const std::vector<Node>& GetNodes() const { return m_Nodes; }
  const SkySources& GetSources() const { return m_Sources; }
  // Luminances that Sun, Moon and lamps give, cd/m2: of the zenith, and the least in the window.
  double GetZenith() const { return m_ZenithLuminance; }
  double GetLeast() const { return m_LeastLuminance; }

  // By how many codes an object of a class looks fainter than high in a dark sky, at a pixel (y up)
  // in a direction with that sine of its altitude: it is drawn, faded and labelled as one so much fainter.
  float FindDim(const ClassLimits& limits, const tPoint<double>& pixel, double sineOfAltitude) const;
  // The same for what is no point, whose light the sky drowns sooner: half as much again of what the eye
  // loses.
  float FindDimOfExtended(const ClassLimits& limits, const tPoint<double>& pixel,
                          double sineOfAltitude) const;
  // Whether that keeps an object from being drawn that is bright enough for the zoom.
  static bool Hides(const ClassLimits& limits, float code, float dim) {
    return code <= limits.draw && code + dim > limits.draw;
  }
  // The least that an object of the class loses to the brightness of the sky in the window, low air aside.
  float FindLeastDim(const ClassLimits& limits) const;

  // What the brightness of the sky and low air leave of the Milky Way at a pixel (y up), 0 to 1.
  float FindGlow(const tPoint<double>& pixel) const;

  // How much is seen of lines, names and symbols, and of the haze of a dark horizon: 0 to 1.
  double GetLineStrength() const { return m_LineStrength; }
  double GetGlowStrength() const { return m_GlowStrength; }

 private:
  static constexpr int kExtinctionSteps = 128;

  float Find(float Node::*value, const tPoint<double>& pixel) const;
  float DimBySky(const ClassLimits& limits, float limit) const;
  float FindExtinction(double sineOfAltitude) const;

  bool m_WithExtinction = true;
  bool m_Natural = false;
  SkySources m_Sources{};
  std::vector<Node> m_Nodes;
  std::array<float, kExtinctionSteps + 1>
      m_Extinction;                            // codes, by the square root of the sine of the altitude
  double m_PerWidth = 1.0, m_PerHeight = 1.0;  // parts of the window a pixel
  float m_StarGain = 0.0f;  // codes by which the stars of this zoom reach beyond the naked eye
  float m_FaintestLimit = 0.0f;
  double m_ZenithLuminance = 0.0, m_LeastLuminance = 0.0, m_LineStrength = 1.0, m_GlowStrength = 1.0;
};

}  // namespace scene
