// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/sky_light.h"

#include <algorithm>
#include <cmath>

#include "common_interfaces/zoom_dependence.h"
#include "scene/view/pixel_directions.h"
#include "utils/text.h"

namespace scene {
namespace {

// A sky of this brightness or a darker one hides nothing: magnitudes per square arcsecond.
constexpr double kDark = 21.5;

float MakeCode(double magnitude) {
  return static_cast<float>((magnitude + CommonInterfaces::kMagCodeOffset) *
                            CommonInterfaces::kMagCodesPerMag);
}

// The naked eye's limit in a dark sky, magnitude code.
float GetDarkLimit() {
  static const float code = MakeCode(astro::GetNakedEyeLimit(astro::GetLuminance(kDark)));
  return code;
}

double GetAltitude(const Direction& direction) { return std::asin(std::clamp(direction.v[2], -1.0, 1.0)); }

double GetAngle(const Direction& a, const Direction& b) {
  return std::acos(std::clamp(Dot(a, b), -1.0, 1.0));
}

astro::SkyLights MakeLights(const SkySources& sources) {
  astro::SkyLights lights;
  lights.sunAltitude = GetAltitude(sources.sun);
  lights.sunlight = sources.sunlight;
  lights.moonAltitude = GetAltitude(sources.moon);
  lights.moonPhaseAngle = sources.moonPhaseAngle;
  lights.moonlight = sources.moonlight;
  lights.darkness = sources.darkness;
  return lights;
}

// From 0 at `from` to 1 at `to`, magnitude codes, without corners.
double Rise(float code, float from, float to) {
  const double t = std::clamp((static_cast<double>(code) - from) / (to - from), 0.0, 1.0);
  return t * t * (3.0 - 2.0 * t);
}

// The light of lamps against that at the zenith: their dome grows brighter towards the horizon, as
// photographs of towns show it.
double FindDome(double altitude) { return 1.0 + 1.6 * std::exp(-altitude / (14.0 * kRadiansPerDegree)); }

double RiseOfGlow(float limit) { return Rise(limit, MakeCode(4.4), MakeCode(6.2)); }

// The part of the light that a loss of so many codes leaves.
double LeftOf(float codes) {
  return std::pow(10.0, -0.4 * static_cast<double>(codes) / CommonInterfaces::kMagCodesPerMag);
}

}  // namespace

// The limits of a zoom are those of objects in the upper half of the sky.
SkyLight::SkyLight() : m_Nodes(kColumns * kRows) {
  constexpr double kUsual = 30.0 * kRadiansPerDegree;
  for (int i = 0; i <= kExtinctionSteps; ++i) {
    const double root = static_cast<double>(i) / kExtinctionSteps, altitude = std::asin(root * root);
    const double more = astro::GetAirMass(altitude) - astro::GetAirMass(kUsual);
    m_Extinction[static_cast<std::size_t>(i)] =
        static_cast<float>(astro::kClearExtinction * std::max(0.0, more) * CommonInterfaces::kMagCodesPerMag);
  }
}

void SkyLight::Compute(const ViewGeometry& geometry, const SkySources& sources, bool extinction) {
  m_Natural = true;
  m_WithExtinction = extinction;
  m_Sources = sources;
  m_PerWidth = 1.0 / geometry.width;
  m_PerHeight = 1.0 / geometry.height;
  m_StarGain = std::max(0.0f, ClassLimits(geometry.camera, FourCC("star")).draw - GetDarkLimit());
  const astro::SkyBrightness brightness(MakeLights(sources));
  // The part of the night's own light that comes from lamps, and what they give the zenith.
  const double lamps = std::max(
                   0.0, 1.0 - astro::GetLuminance(astro::kDarkSky) / astro::GetLuminance(sources.darkness)),
               ownZenith = brightness.GetParts(0.5 * kPi, kPi, kPi).own;
  const PixelDirections directions(geometry);
  const Direction sun = geometry.Seen(sources.sun), moon = geometry.Seen(sources.moon);
  m_FaintestLimit = MakeCode(-10.0);
  m_LeastLuminance = 1e12;
  for (int i = 0; i < kColumns * kRows; ++i) {
    Node& node = m_Nodes[static_cast<std::size_t>(i)];
    const Direction direction =
        directions.Find({static_cast<double>(geometry.width) * (i % kColumns) / (kColumns - 1),
                         static_cast<double>(geometry.height) * (kRows - 1 - i / kColumns) / (kRows - 1)});
    node.altitude = std::fabs(GetAltitude(direction));
    node.fromSun = GetAngle(direction, sun);
    const auto parts = brightness.GetParts(node.altitude, node.fromSun, GetAngle(direction, moon));
    node.scattered = parts.scattered;
    node.lamps = lamps * ownZenith * FindDome(node.altitude);
    node.limit = MakeCode(astro::GetNakedEyeLimit((1.0 - lamps) * parts.own + node.lamps + parts.scattered));
    node.glow = static_cast<float>(RiseOfGlow(node.limit) *
                                   LeftOf(extinction ? FindExtinction(direction.v[2]) : 0.0f));
    m_FaintestLimit = std::max(m_FaintestLimit, node.limit);
    m_LeastLuminance = std::min(m_LeastLuminance, node.scattered + node.lamps);
  }
  const Direction zenith = {{0.0, 0.0, 1.0}};
  const auto above =
      brightness.GetParts(0.5 * kPi, GetAngle(zenith, sources.sun), GetAngle(zenith, sources.moon));
  m_ZenithLuminance = above.scattered + lamps * ownZenith;
  m_LineStrength = Rise(m_FaintestLimit, MakeCode(1.0), MakeCode(5.0));
  m_GlowStrength = RiseOfGlow(m_FaintestLimit);
}

float SkyLight::Find(float Node::*value, const tPoint<double>& pixel) const {
  const auto at = [](double part, int nodes) {
    const double place = std::clamp(part, 0.0, 1.0) * (nodes - 1);
    const int node = std::min(static_cast<int>(place), nodes - 2);
    return std::pair<int, float>(node, static_cast<float>(place - node));
  };
  const auto [column, right] = at(pixel.x * m_PerWidth, kColumns);
  const auto [row, down] = at(1.0 - pixel.y * m_PerHeight, kRows);
  const Node* const node = m_Nodes.data() + row * kColumns + column;
  const float above = node[0].*value + (node[1].*value - node[0].*value) * right;
  const float below = node[kColumns].*value + (node[kColumns + 1].*value - node[kColumns].*value) * right;
  return above + (below - above) * down;
}

// What the eye loses everything loses. Classes that reach beyond the stars of the zoom lose that lead too as
// the sky brightens: nine parts in ten when the eye has lost two magnitudes.
float SkyLight::DimBySky(const ClassLimits& limits, float limit) const {
  const float dark = GetDarkLimit(), loss = std::max(0.0f, dark - limit);
  const float own = std::min(limits.draw, dark) - limit;
  const float lead = (limits.draw - limit - m_StarGain) * (1.0f - std::exp(-0.12f * loss));
  return std::max({0.0f, own, lead});
}

float SkyLight::FindExtinction(double sineOfAltitude) const {
  const double place = std::sqrt(std::min(std::fabs(sineOfAltitude), 1.0)) * kExtinctionSteps;
  const int step = std::min(static_cast<int>(place), kExtinctionSteps - 1);
  const float* const from = m_Extinction.data() + step;
  return from[0] + (from[1] - from[0]) * static_cast<float>(place - step);
}

float SkyLight::FindDim(const ClassLimits& limits, const tPoint<double>& pixel, double sineOfAltitude) const {
  if (!m_Natural) return 0.0f;
  return DimBySky(limits, Find(&Node::limit, pixel)) +
         (m_WithExtinction ? FindExtinction(sineOfAltitude) : 0.0f);
}

float SkyLight::FindDimOfExtended(const ClassLimits& limits, const tPoint<double>& pixel,
                                  double sineOfAltitude) const {
  if (!m_Natural) return 0.0f;
  constexpr float kMore = 0.5f;
  const float loss = std::max(0.0f, GetDarkLimit() - Find(&Node::limit, pixel));
  return FindDim(limits, pixel, sineOfAltitude) + kMore * loss;
}

float SkyLight::FindGlow(const tPoint<double>& pixel) const {
  return m_Natural ? Find(&Node::glow, pixel) : 1.0f;
}

float SkyLight::FindLeastDim(const ClassLimits& limits) const {
  return m_Natural ? DimBySky(limits, m_FaintestLimit) : 0.0f;
}

}  // namespace scene
