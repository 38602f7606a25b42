// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pictures of landscapes.
#include <cmath>
#include <string>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "scene/catalogs/landscape.h"

namespace {

using fuzz::Require;

void Look(const scene::Landscape& landscape) {
  for (const scene::LandscapeLayer& layer : landscape.layers) {
    Require(!layer.skyline.empty() && layer.skyline.size() == layer.altitudes.size(), "a skyline");
    for (const double altitude : layer.altitudes)
      Require(std::abs(altitude) <= 0.5 * scene::kPi, "an altitude");
    for (std::size_t i = 0; i < layer.skyline.size(); ++i) {
      const auto& next = layer.skyline[(i + 1) % layer.skyline.size()];
      Require(scene::Dot(layer.skyline[i], layer.skyline[i]) > 0.999999, "a direction");
      // Neighbours differ in altitude as they like, in azimuth by less than a degree.
      const double turn = std::atan2(layer.skyline[i].v[0] * next.v[1] - layer.skyline[i].v[1] * next.v[0],
                                     layer.skyline[i].v[0] * next.v[0] + layer.skyline[i].v[1] * next.v[1]);
      Require(std::abs(turn) < scene::kRadiansPerDegree, "neighbours are less than a degree apart");
    }
  }
  for (int azimuth = 0; azimuth < 360; azimuth += 7) {
    const auto direction = scene::MakeDirection(azimuth * scene::kRadiansPerDegree, 0.1);
    const double skyline = landscape.GetSkyline(direction);
    Require(!std::isnan(skyline), "a skyline has an altitude everywhere");
    if (skyline < 0.09) Require(!landscape.Hides(direction), "what stands above the skyline is not hidden");
    if (skyline > 0.11) Require(landscape.Hides(direction), "what stands below it is");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view svg(reinterpret_cast<const char*>(data), size);
  scene::Landscape landscape;
  landscape.layers.resize(1);
  std::string error;
  if (!scene::ParseLandscape(svg, 90.0, landscape, error)) {
    Require(landscape.layers.size() == 1 && landscape.layers[0].skyline.empty(),
            "a picture that is refused leaves the landscape");
    Require(fuzz::IsOneLine(error), "and one line says why");
    return 0;
  }
  Look(landscape);
  return 0;
}
