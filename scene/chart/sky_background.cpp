// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/sky_background.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "astro/sky_colour.h"
#include "scene/display/falling_gradient.h"
#include "scene/display/palette.h"

namespace scene {
namespace {

// Red, green and blue of sRGB before its curve is applied: amounts of light, 1 the brightest of the screen.
struct Light {
  double red, green, blue;
};

double FromCurve(double value) {
  return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}
double ToCurve(double light) {
  return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055;
}

Light FromPalette(const Colour& colour) {
  return {FromCurve(colour.red), FromCurve(colour.green), FromCurve(colour.blue)};
}

// The curve at even steps of the square root of the light, between which it is nearly straight: 0.02 of 255
// off at most.
class CurveTable {
 public:
  CurveTable() {
    for (int i = 0; i <= kSteps; ++i) {
      const double root = static_cast<double>(i) / kSteps;
      m_Values[static_cast<std::size_t>(i)] = ToCurve(root * root);
    }
  }
  double At(double light) const {
    const double place = std::sqrt(std::clamp(light, 0.0, 1.0)) * kSteps;
    const auto step = static_cast<std::size_t>(std::min(static_cast<int>(place), kSteps - 1));
    return m_Values[step] + (m_Values[step + 1] - m_Values[step]) * (place - static_cast<double>(step));
  }

 private:
  static constexpr int kSteps = 512;
  std::array<double, kSteps + 1> m_Values;
};

Rgba ToScreen(const Light& light) {
  static const CurveTable curve;
  return ToRgba({curve.At(light.red), curve.At(light.green), curve.At(light.blue), 1.0});
}

// CIE 1931 to the primaries of sRGB (IEC 61966-2-1), of brightness 1. White is sunlight, of 5500 K and a
// little less green, as for a camera that is set to it, and colours are a little more vivid than life; what
// the screen cannot show becomes paler.
Light OfColour(const astro::Chromaticity& colour) {
  constexpr double kVivid = 1.2;
  constexpr Light kSunlight = {1.119, 0.925, 0.809};
  const double x = colour.x / colour.y, z = (1.0 - colour.x - colour.y) / colour.y;
  const auto vivid = [](double light, double white) { return 1.0 + kVivid * (light / white - 1.0); };
  const Light light = {vivid(3.2406 * x - 1.5372 - 0.4986 * z, kSunlight.red),
                       vivid(-0.9689 * x + 1.8758 + 0.0415 * z, kSunlight.green),
                       vivid(0.0557 * x - 0.2040 + 1.0570 * z, kSunlight.blue)};
  const double least = std::min({light.red, light.green, light.blue, 0.0});
  const double pale = -least / (1.0 - least);
  return {light.red + (1.0 - light.red) * pale, light.green + (1.0 - light.green) * pale,
          light.blue + (1.0 - light.blue) * pale};
}

// How bright the zenith is painted by its luminance: its third root in twilight, as the eye feels brightness,
// and towards full day in proportion.
double Expose(double luminance) {
  return 0.20 * std::cbrt(luminance / (luminance + 60.0)) + 0.05 * luminance / (luminance + 300.0);
}

// What is brighter than the screen can show becomes paler, as on a photograph, and keeps its hue: channel by
// channel a blue sky would turn lavender and cyan on its way to white.
Light Soften(const Light& light) {
  constexpr double kKnee = 0.45;
  const double most = std::max({light.red, light.green, light.blue});
  if (most <= kKnee) return light;
  const double shown = 1.0 - (1.0 - kKnee) * std::exp(-(most - kKnee) / (1.0 - kKnee)), scale = shown / most;
  const double pale = std::pow(1.0 - scale, 1.5);
  const auto mix = [&](double channel) { return channel * scale + (shown - channel * scale) * pale; };
  return {mix(light.red), mix(light.green), mix(light.blue)};
}

Light MixLight(const Light& a, const Light& b, double part) {
  return {a.red + (b.red - a.red) * part, a.green + (b.green - a.green) * part,
          a.blue + (b.blue - a.blue) * part};
}

// Paints the nodes of a sky.
class SkyPaint {
 public:
  explicit SkyPaint(const SkyLight& light)
      : m_Colour(std::asin(std::clamp(light.GetSources().sun.v[2], -1.0, 1.0)), light.GetSources().sunlight),
        m_Exposure(Expose(light.GetZenith())),
        m_Adaptation(std::max({light.GetZenith(), 0.7 * light.GetLeast(), 1e-12})),
        m_Top(FromPalette(palette::kSkyTop)),
        m_Foot(FromPalette(palette::kSkyFoot)) {}

  Rgba At(const SkyLight::Node& node) const {
    constexpr double kContrast = 0.6;  // a decade of luminance is painted as a little more than half of one
    const astro::SkyTint tint = m_Colour.Get(node.altitude, node.fromSun);
    constexpr Light kLamps = {1.30, 0.97, 0.66};
    const double natural = node.scattered * tint.shade, all = std::max(natural + node.lamps, 1e-12);
    const double bright = m_Exposure * std::pow(all / m_Adaptation, kContrast);
    const Light sky = MixLight(OfColour(tint.colour), kLamps, node.lamps / all);
    const Light night = MixLight(m_Foot, m_Top, std::sin(node.altitude));
    return ToScreen(Soften(
        {night.red + bright * sky.red, night.green + bright * sky.green, night.blue + bright * sky.blue}));
  }

 private:
  astro::SkyColour m_Colour;
  double m_Exposure;
  double m_Adaptation;  // the luminance that is exposed: a picture of the Sun's neighbourhood follows that

  Light m_Top, m_Foot;
};

}  // namespace

void DrawNaturalSky(const SkyLight& light, DisplayList& list) {
  const SkyPaint paint(light);
  for (const auto& node : light.GetNodes()) list.AddColour(paint.At(node));
  MeshRecord mesh = {};
  mesh.right = static_cast<float>(list.GetWidth());
  mesh.bottom = static_cast<float>(list.GetHeight());
  mesh.columns = SkyLight::kColumns;
  list.AddMesh(Layer::kBackground, mesh);
}

Rgba FindGroundColour(const SkyLight& light) {
  constexpr Light kEarth = {0.32, 0.33, 0.20};  // of the light that falls on it
  if (!light.IsNatural()) return ToRgba(palette::kGround);
  const Light night = FromPalette(palette::kGround);
  const double bright = Expose(light.GetZenith());
  return ToScreen({night.red + bright * kEarth.red, night.green + bright * kEarth.green,
                   night.blue + bright * kEarth.blue});
}

Rgba FindLandColour(const SkyLight& light, const Colour& day, double far) {
  constexpr double kDay = 3.4, kNear = 0.38, kFar = 0.70;  // against the light of the exposure and of the sky
  const Light own = FromPalette(day), sky = FromPalette(palette::kSkyFoot);
  const double bright = light.IsNatural() ? kDay * Expose(light.GetZenith()) : 0.0;
  const double night = kNear + (kFar - kNear) * far;
  return ToScreen({night * sky.red + bright * own.red, night * sky.green + bright * own.green,
                   night * sky.blue + bright * own.blue});
}

void DrawPlainSky(DisplayList& list) {
  const Rgba foot = ToRgba(palette::kSkyFoot);
  AddFallingGradient(Layer::kBackground, 0.0f, 1.0f, ToRgba(palette::kSkyTop), foot, foot, list);
}

}  // namespace scene
