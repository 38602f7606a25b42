// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Maps of the surfaces of bodies: pictures of any bytes, looked at everywhere and from near and far.
#include <cmath>
#include <string>

#include "fuzz/scratch.h"
#include "paint/surface_map.h"

namespace {

bool IsColour(float value) { return value >= 0.0f && value <= 255.01f; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  paint::SurfaceMap map;
  if (!map.Load(fuzz::Scratch::Get().Write("data/map.jpg", data, size))) return 0;
  constexpr int kPlaces = 200;
  for (int i = 0; i < kPlaces; ++i) {
    const double latitude = std::asin(1.0 - 2.0 * i / (kPlaces - 1.0)),
                 perRadian = std::ldexp(1.0, i % 14 - 2);
    const paint::MapColour colour = map.GetColour(2.4 * i - 200.0, latitude, perRadian);
    fuzz::Require(IsColour(colour.red) && IsColour(colour.green) && IsColour(colour.blue), "a mean of bytes");
  }
  return 0;
}
