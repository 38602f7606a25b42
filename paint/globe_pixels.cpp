// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/globe_pixels.h"

#include <algorithm>
#include <cmath>

namespace paint {
namespace {

constexpr double kShadowed = 0.06;   // light of what stands in a shadow
constexpr double kUnlitRing = 0.25;  // what the ring lets through, seen from its dark side
constexpr double kResponse = 0.6;    // how light becomes the value of a pixel

float Clamped(double v) { return static_cast<float>(std::clamp(v, 0.0, 1.0)); }

GlobePixel Multiplied(const MapColour& colour, double light, double opacity) {
  const double factor = light * opacity / 255.0;
  return {Clamped(colour.red * factor), Clamped(colour.green * factor), Clamped(colour.blue * factor),
          Clamped(opacity)};
}

// `upper` over `lower`.
GlobePixel Over(const GlobePixel& upper, const GlobePixel& lower) {
  const float rest = 1.0f - upper.opacity;
  return {upper.red + rest * lower.red, upper.green + rest * lower.green, upper.blue + rest * lower.blue,
          upper.opacity + rest * lower.opacity};
}

MapColour ToMapColour(const scene::Rgba& c) {
  return {static_cast<float>(c.red), static_cast<float>(c.green), static_cast<float>(c.blue)};
}

}  // namespace

GlobeShader::GlobeShader(const scene::GlobeRecord& globe, std::span<const scene::Rgba> ring,
                         const SurfaceMap* map)
    : m_Globe(globe), m_Map(map), m_Stretch(1.0 / (1.0 - static_cast<double>(globe.flattening))) {
  const double cosine = std::clamp(static_cast<double>(globe.disc.cosPhase), -1.0, 1.0);
  const double sine = std::sqrt(1.0 - cosine * cosine);
  m_Viewer = ToBody(0.0, 0.0, 1.0);
  // Where air squeezes the picture, what points sideways in it is longer on the body.
  const Vector sideways = ToBody(globe.disc.sunX, globe.disc.sunY, 0.0);
  const double length =
      std::sqrt(sideways.x * sideways.x + sideways.y * sideways.y + sideways.z * sideways.z);
  const double aside = length > 0.0 ? sine / length : 0.0;
  m_Sun = {aside * sideways.x + cosine * m_Viewer.x, aside * sideways.y + cosine * m_Viewer.y,
           aside * sideways.z + cosine * m_Viewer.z};
  if (ring.empty()) return;
  m_RingSums.push_back({});
  for (const scene::Rgba& entry : ring) {
    const GlobePixel own = Multiplied(ToMapColour(entry), 1.0, entry.alpha / 255.0), &sum = m_RingSums.back();
    m_RingSums.push_back(
        {sum.red + own.red, sum.green + own.green, sum.blue + own.blue, sum.opacity + own.opacity});
  }
}

double GlobeShader::GetReach() const { return m_RingSums.empty() ? 1.0 : std::max(1.0f, m_Globe.ringOuter); }

GlobeShader::Vector GlobeShader::ToBody(double x, double y, double z) const {
  const float* m = m_Globe.toBody;
  return {m[0] * x + m[1] * y + m[2] * z, m[3] * x + m[4] * y + m[5] * z, m[6] * x + m[7] * y + m[8] * z};
}

GlobePixel GlobeShader::Shade(double x, double y, double pixel) const {
  double z = -1e9;
  const GlobePixel ball = ShadeBall(x, y, pixel, z);
  RingLight ring = {};
  if (m_RingSums.empty() || !ShadeRing(x, y, pixel, ring)) return ball;
  return ring.z > z ? Over(ring.pixel, ball) : Over(ball, ring.pixel);
}

// The line of sight meets the spheroid, stretched to a ball, where |p + t v| = 1.
GlobePixel GlobeShader::ShadeBall(double x, double y, double pixel, double& z) const {
  Vector p = ToBody(x, y, 0.0), v = m_Viewer;
  p.z *= m_Stretch;
  v.z *= m_Stretch;
  const double a = v.x * v.x + v.y * v.y + v.z * v.z, b = p.x * v.x + p.y * v.y + p.z * v.z;
  const double nearest = p.x * p.x + p.y * p.y + p.z * p.z - b * b / a;  // squared distance of the line
  const double cover = std::clamp((1.0 - std::sqrt(std::max(nearest, 0.0))) / pixel + 0.5, 0.0, 1.0);
  if (cover <= 0.0) return {};
  const double steepness = std::sqrt(a * std::max(1.0 - nearest, 0.0));
  z = (steepness - b) / a;
  const Vector unit = {p.x + z * v.x, p.y + z * v.y, p.z + z * v.z};
  const Vector surface = {unit.x, unit.y, unit.z / m_Stretch};
  const Vector steep = {unit.x, unit.y, unit.z * m_Stretch};
  const double length = std::sqrt(steep.x * steep.x + steep.y * steep.y + steep.z * steep.z);
  const auto along = [&](const Vector& d) {
    return (steep.x * d.x + steep.y * d.y + steep.z * d.z) / length;
  };
  const double toSun = along(m_Sun), toViewer = steepness / length, limb = m_Globe.limbDarkening;
  double light = 0.0;
  if (toSun > 0.0) {
    light = (1.0 - limb) * std::min(1.0, 2.0 * toSun / (toSun + toViewer)) + limb * toSun;
    light = std::pow(light, kResponse) * RingShadow(surface, pixel);
  }
  const auto& lit = m_Globe.disc.lit;
  MapColour colour = ToMapColour(lit);
  if (m_Map) {
    const double longitude = std::atan2(unit.y, unit.x), latitude = std::asin(std::clamp(unit.z, -1.0, 1.0));
    colour = m_Map->GetColour(longitude, latitude, toViewer / pixel);
  }
  const MapColour dark = ToMapColour(m_Globe.disc.dark);
  const double bright = std::max({lit.red, lit.green, lit.blue, static_cast<unsigned char>(1)});
  const MapColour air = ToMapColour(m_Globe.air);
  // The light of the sky comes to that of the surface, and both together are white at most.
  const auto mix = [&](float sunny, float night, float sky) {
    const double lightened = sky + sunny * light * (1.0 - sky / 255.0);
    return std::max(static_cast<float>(lightened), static_cast<float>(night * sunny / bright));
  };
  return Multiplied({mix(colour.red, dark.red, air.red), mix(colour.green, dark.green, air.green),
                     mix(colour.blue, dark.blue, air.blue)},
                    1.0, cover * lit.alpha / 255.0);
}

GlobePixel GlobeShader::GetRing(double radius, double width) const {
  const double inner = m_Globe.ringInner, outer = m_Globe.ringOuter;
  const double perEntry = (outer - inner) / static_cast<double>(m_RingSums.size() - 1);
  const double half = 0.5 * std::max(width, perEntry), last = static_cast<double>(m_RingSums.size() - 1);
  const auto sum = [&](double at) {
    const double entry = std::clamp((at - inner) / perEntry, 0.0, last),
                 whole = std::min(std::floor(entry), last - 1.0);
    const GlobePixel &a = m_RingSums[static_cast<std::size_t>(whole)],
                     &b = m_RingSums[static_cast<std::size_t>(whole) + 1];
    const auto part = static_cast<float>(entry - whole);
    return GlobePixel{a.red + part * (b.red - a.red), a.green + part * (b.green - a.green),
                      a.blue + part * (b.blue - a.blue), a.opacity + part * (b.opacity - a.opacity)};
  };
  const GlobePixel from = sum(radius - half), to = sum(radius + half);
  const auto scale = static_cast<float>(perEntry / (2.0 * half));
  return {scale * (to.red - from.red), scale * (to.green - from.green), scale * (to.blue - from.blue),
          scale * (to.opacity - from.opacity)};
}

GlobeShader::Vector GlobeShader::FindRingPlane(double x, double y, double& towards) const {
  const Vector p = ToBody(x, y, 0.0);
  towards = -p.z / m_Viewer.z;
  return {p.x + towards * m_Viewer.x, p.y + towards * m_Viewer.y, 0.0};
}

bool GlobeShader::ShadeRing(double x, double y, double pixel, RingLight& light) const {
  constexpr double kEdgeOn = 1e-4;
  if (std::fabs(m_Viewer.z) < kEdgeOn) return false;
  double aside = 0.0;
  const Vector there = FindRingPlane(x, y, light.z);
  const Vector right = FindRingPlane(x + pixel, y, aside), below = FindRingPlane(x, y + pixel, aside);
  const double radius = std::hypot(there.x, there.y);
  const double width =
      std::hypot(std::hypot(right.x, right.y) - radius, std::hypot(below.x, below.y) - radius);
  const GlobePixel ring = GetRing(radius, width);
  const bool seesLitSide = m_Viewer.z * m_Sun.z > 0.0;
  const double sunlight = (seesLitSide ? 1.0 : kUnlitRing) * (IsInShadowOfBall(there) ? kShadowed : 1.0);
  const float opacity = m_Globe.disc.lit.alpha / 255.0f, bright = static_cast<float>(sunlight) * opacity;
  const float covered = opacity * ring.opacity;
  const auto withAir = [&](float own, unsigned char air) {
    const float sky = static_cast<float>(air) / 255.0f;
    return sky * covered + bright * own * (1.0f - sky);
  };
  light.pixel = {withAir(ring.red, m_Globe.air.red), withAir(ring.green, m_Globe.air.green),
                 withAir(ring.blue, m_Globe.air.blue), covered};
  return true;
}

// Whether the way to the Sun meets the ball.
bool GlobeShader::IsInShadowOfBall(const Vector& body) const {
  Vector s = m_Sun, p = body;
  s.z *= m_Stretch;
  p.z *= m_Stretch;
  const double a = s.x * s.x + s.y * s.y + s.z * s.z, b = p.x * s.x + p.y * s.y + p.z * s.z;
  return b < 0.0 && p.x * p.x + p.y * p.y + p.z * p.z - b * b / a < 1.0;
}

// The part of the sunlight that the ring lets through to a place on the ball.
double GlobeShader::RingShadow(const Vector& surface, double pixel) const {
  if (m_RingSums.empty() || surface.z * m_Sun.z >= 0.0) return 1.0;
  const double t = -surface.z / m_Sun.z;
  const double radius = std::hypot(surface.x + t * m_Sun.x, surface.y + t * m_Sun.y);
  return 1.0 -
         (1.0 - kShadowed) * static_cast<double>(GetRing(radius, 2.0 * pixel / std::fabs(m_Sun.z)).opacity);
}

}  // namespace paint
