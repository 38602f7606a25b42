// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstdio>
#include <string>

namespace host_test {

// A few asteroids and comets with the elements that the Jet Propulsion Laboratory publishes (Small-Body
// Database): degrees, of comets the perihelion distance and the date of the perihelion.
struct OrbitRow {
  int number;
  const char* name;
  double epoch, size, e, i, om, w, phase, magnitude, slope;
};
inline constexpr OrbitRow kAsteroids[] = {
    {1, "Ceres", 2459800.5, 2.766619044655007, 0.07863575691875528, 10.58679512153367, 80.2664361119415,
     73.53162522557164, 334.3271698971151, 3.33, 0.12},
    {4, "Vesta", 2459800.5, 2.361987199696643, 0.08840189374260063, 7.140782834645754, 103.800809741353,
     151.2577798334132, 61.19229900418838, 3.2, 0.32}};
inline constexpr OrbitRow kComets[] = {{1, "1P/Halley", 2449400.5, 0.585978111516909, 0.967142908462304,
                                        162.262690579161, 58.42008097656843, 111.3324851045177,
                                        2446467.395317050925, 5.5, 10.0}};

inline std::string OrbitTable(const OrbitRow* rows, int count, bool comets) {
  constexpr double kDegree = 0.017453292519943295, kGauss = 0.01720209895;
  std::string table =
      "Number:i32\tProperName:text\tJulianDate:f64\ta:f64\te:f64\ti:f64\tom:f64\tw:f64\tM0:f64\t"
      "n:f64\tHy:f32\t";
  table += comets ? "y:f32\n" : "SlopeParam:f32\n";
  char line[512];
  for (int k = 0; k < count; ++k) {
    const OrbitRow& row = rows[k];
    const double a = comets ? row.size / (1.0 - row.e) : row.size, n = kGauss / (a * std::sqrt(a));
    const double anomaly = comets ? n * (row.epoch - row.phase) : row.phase * kDegree;
    std::snprintf(line, sizeof line,
                  "%d\t%s\t%.17g\t%.17g\t%.17g\t%.17g\t%.17g\t%.17g\t%.17g\t%.17g\t%g\t%g\n", row.number,
                  row.name, row.epoch, a, row.e, row.i * kDegree, row.om * kDegree, row.w * kDegree, anomaly,
                  n, row.magnitude, row.slope);
    table += line;
  }
  return table;
}

// The International Space Station, 2014 January 20 (the verification set of Vallado et al. 2006, AIAA
// 2006-6753).
inline constexpr const char* kStationLine1 =
    "1 25544U 98067A   14020.93268519  .00009878  00000-0  18200-3 0  5082";
inline constexpr const char* kStationLine2 =
    "2 25544  51.6498 109.4756 0003572  55.9686 274.8005 15.49815350868473";
inline std::string StationSet() {
  return std::string("ISS (ZARYA)\n") + kStationLine1 + "\n" + kStationLine2 + "\n";
}

}  // namespace host_test
