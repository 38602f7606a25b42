// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/star_tile_record.h"

#include <cmath>

#include "astro/constants.h"

namespace scene {
namespace {

constexpr double kRadiansPerUnit = astro::kTurn / StarTileRecord::kTurnUnits;
constexpr double kRadiansPerMotion = StarTileRecord::kMotionUnit * astro::kRadiansPerArcsecond / 1000.0;

struct SineCosine {
  double sine, cosine;
};

// Sines and cosines of the middles of equal parts of a turn. From there the next terms of the series reach
// every angle of a part: a fifth of the time of the functions of the library, and a frame decodes thousands.
constexpr int kPartBits = 10;

struct Parts {
  Parts() {
    for (int i = 0; i < 1 << kPartBits; ++i) {
      const double angle = astro::kTurn * (i + 0.5) / (1 << kPartBits);
      parts[i] = {std::sin(angle), std::cos(angle)};
    }
  }
  SineCosine parts[1 << kPartBits];
};

const Parts kParts;

inline SineCosine GetSineCosine(std::uint32_t units) {
  constexpr int kRestBits = 32 - kPartBits;
  constexpr std::uint32_t kRest = (1u << kRestBits) - 1u, kHalf = 1u << (kRestBits - 1);
  const SineCosine& part = kParts.parts[units >> kRestBits];
  const double x = (static_cast<double>(units & kRest) - kHalf) * kRadiansPerUnit, xx = x * x;
  const double sine = x * (1.0 - xx * (1.0 / 6.0 - xx / 120.0));  // |x| < 0.0031: exact to the last digit
  const double cosine = 1.0 - xx * (0.5 - xx / 24.0);
  return {part.sine * cosine + part.cosine * sine, part.cosine * cosine - part.sine * sine};
}

}  // namespace

Direction StarTileRecord::GetDirection() const {
  const SineCosine ra = GetSineCosine(GetRAUnits()), dec = GetSineCosine(LoadLE32(m_Bytes + 4));
  return {{dec.cosine * ra.cosine, dec.cosine * ra.sine, dec.sine}};
}

Direction StarTileRecord::GetMotion() const {
  if (!HasMotion()) return {};
  const SineCosine ra = GetSineCosine(GetRAUnits()), dec = GetSineCosine(LoadLE32(m_Bytes + 4));
  const double east = GetMotionEast() * kRadiansPerMotion, north = GetMotionNorth() * kRadiansPerMotion;
  return {{-ra.sine * east - ra.cosine * dec.sine * north, ra.cosine * east - ra.sine * dec.sine * north,
           dec.cosine * north}};
}

}  // namespace scene
