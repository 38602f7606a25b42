// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdio>
#include <random>
#include <string>

#include "support/temp_dir.h"

namespace host_test {

// Stars and deep-sky objects all over the sphere, some of them bright, some fainter than any limit.
inline void WriteCrowdedSky(const test_support::TempDir& dir) {
  std::mt19937 random(7);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  std::string stars =
      "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tColorIndexBV:f32\tPropMotionRA:f32\tBayer:text\n";
  std::string deepsky =
      "Type:text\tNumber:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tLargestDimension:f32\tMessierNumber:i32\n";
  char line[160];
  for (int i = 1; i <= 1500; ++i) {
    const double ra = unit(random) * 2.0 * 3.141592653589793, dec = std::asin(2.0 * unit(random) - 1.0);
    std::snprintf(line, sizeof line, "%d\t%.9f\t%.9f\t%.2f\t%.2f\t%.1f\t%s\n", i, ra, dec,
                  16.0 * unit(random) - 1.5, 2.0 * unit(random), 1000.0 * unit(random),
                  i % 3 == 0 ? "α Ori" : "");
    stars += line;
  }
  const char* kinds[] = {"clst", "gala", "nebu", "dsnv", "????"};
  for (int i = 1; i <= 400; ++i) {
    const double ra = unit(random) * 2.0 * 3.141592653589793, dec = std::asin(2.0 * unit(random) - 1.0);
    std::snprintf(line, sizeof line, "%s\t%d\t%.9f\t%.9f\t%.2f\t%.5f\t%s\n", kinds[i % 5], i, ra, dec,
                  20.0 * unit(random), 0.01 * unit(random), i % 2 ? std::to_string(i).c_str() : "");
    deepsky += line;
  }
  dir.Write("data/catalogs/stars.txt", stars);
  dir.Write("data/catalogs/deepsky.txt", deepsky);
}

}  // namespace host_test
