// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <iterator>

#include "scene/display/palette.h"

namespace scene {

// The spectral class (GetSpectrType) of most stars of that colour index B-V, magnitudes;
// palette::kSpectralClasses for not a number. The bounds are where the classes begin on the main sequence:
// B0, A0, F0, G0, K0, M0 (Schmidt-Kaler 1982, Landolt-Boernstein VI/2b).
inline unsigned char GetClassOfColour(float colour) {
  constexpr float kBounds[] = {-0.30f, -0.02f, 0.30f, 0.58f, 0.81f, 1.40f};
  static_assert(std::size(kBounds) + 1 == palette::kSpectralClasses);
  if (!(colour == colour)) return palette::kSpectralClasses;
  unsigned char cls = 0;
  for (const float bound : kBounds) {
    if (colour >= bound) ++cls;
  }
  return cls;
}

}  // namespace scene
