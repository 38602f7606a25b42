// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/api.h"

// Delta T: dynamical time (TT) minus Universal Time (UT1), in seconds.
//
// The moment is a Julian date in Universal Time (day number and fraction; a fraction that is not finite
// counts as 0). Never fails; any thread may call. Where each value comes from, years of 365.25 days from
// 2000.0 = JD 2451545:
//
//   before -720      parabola -320 + 32.5 ((year - 1825) / 100)^2 of Stephenson, Morrison & Hohenkerk 2016
//   (Proc. R.
//                    Soc. A 472, 20160404); what it differs by at -720 fades out towards -1720
//   -720 to 1657     their cubic spline, edition 2020 (Morrison, Stephenson, Hohenkerk & Zawilski 2021); from
//   1557 on,
//                    what it differs by from the first observed value (6.5 s) fades in
//   1657 to 1973     US Naval Observatory, half-yearly (McCarthy & Babcock 1986)
//   1973 to 2023.7   IERS, every 30 days
//   after that       no observation: the difference from the parabola (261 s) fades out over 300 years,
//   beginning with
//                    the mean slope of the last ten observed years
//
// Rows of the tables are met exactly; a cubic through neighbouring rows runs between them. Value and slope
// are continuous, except that at 1657, where rows are whole seconds, the slope is that of ten years. Standard
// error: 180 s at -720, some 20 s at 1500, 12 s at 1657, 2 s at 1800, 0.1 s at 1900, below 0.01 s from 1973;
// what is not observed is an extrapolation that nobody can vouch for: some 10 s in 2100. Between 1720 and
// 1860 the spline, which is not used there, lies up to 6 s from the observatory's table: they rest on
// different theories of the Moon.
struct ASTRO_API ET_UT {
  static double Get(int julianDay, double fraction);
};
