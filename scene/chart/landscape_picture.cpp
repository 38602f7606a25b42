// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/landscape_picture.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "scene/chart/sky_background.h"
#include "scene/display/region_drawing.h"
#include "scene/view/pixel_directions.h"

namespace scene {
namespace {

// How far below the skyline the shading begins, degrees; the first is the layer itself.
constexpr double kBandDepths[] = {0.0, 0.5, 1.3, 2.6, 4.8, 8.5, 15.0, 26.0};
constexpr std::size_t kBands = std::size(kBandDepths);

Colour GetColour(const LandscapeLayer& layer) {
  return {layer.red / 255.0, layer.green / 255.0, layer.blue / 255.0, 1.0};
}

}  // namespace

void LandscapePicture::SetLandscape(Landscape landscape) {
  m_Landscape = std::move(landscape);
  m_Bands.clear();
  m_Bands.resize(m_Landscape.layers.size() * kBands);
  for (std::size_t i = 0; i < m_Bands.size(); ++i) {
    const LandscapeLayer& layer = m_Landscape.layers[i / kBands];
    Band& band = m_Bands[i];
    for (std::size_t point = 0; point < layer.skyline.size(); ++point) {
      const double azimuth = std::atan2(layer.skyline[point].v[1], layer.skyline[point].v[0]);
      band.ring.push_back(
          MakeDirection(azimuth, layer.altitudes[point] - kBandDepths[i % kBands] * kRadiansPerDegree));
    }
    RegionProjector::AppendCaps(band.ring, band.caps);
    band.picture.Reserve(1, band.ring.size());
  }
}

void LandscapePicture::Compute(const ViewGeometry& geometry, bool wanted) {
  const Direction zenith = {{0.0, 0.0, 1.0}};
  m_Wanted = wanted && !m_Bands.empty();
  for (Band& band : m_Bands) {
    band.picture.Clear();
    if (m_Wanted)
      RegionProjector(geometry, SkyFrameOf::kHorizon, zenith, band.picture).AddRing(band.ring, band.caps);
  }
}

const Landscape& LandscapePicture::GetPainted() const {
  static const Landscape none;
  return m_Wanted ? m_Landscape : none;
}

void LandscapePicture::HideLabels(const ViewGeometry& geometry, LabelPlacer& labels) const {
  if (!m_Wanted) return;
  const PixelDirections directions(geometry);
  labels.Hide([&](const Label& label) {
    const Direction there = directions.Find(label.place);
    return label.object != ObjectRef{} && m_Landscape.Hides(there);
  });
}

void LandscapePicture::Draw(const SkyLight& light, DisplayList& list) const {
  constexpr double kLeastStep = 0.5;  // pixels
  constexpr double kShade = 0.022;    // of a band: its edge is not seen and costs no strokes
  if (!m_Wanted) return;
  const double layers = static_cast<double>(m_Landscape.layers.size());
  for (std::size_t i = 0; i < m_Bands.size(); ++i) {
    const RegionPicture& picture = m_Bands[i].picture;
    if (picture.ringEnds.empty() && !picture.holdsOutside) continue;
    AddRegion(picture, kLeastStep, list);
    PolygonRecord area = {};
    if (i % kBands == 0) {
      const auto layer = i / kBands;
      area.colour = FindLandColour(light, GetColour(m_Landscape.layers[layer]),
                                   1.0 - static_cast<double>(layer + 1) / layers);
    } else {
      area.colour = ToRgba({0.0, 0.0, 0.0, kShade});
    }
    list.AddArea(Layer::kGround, area);
  }
}

}  // namespace scene
