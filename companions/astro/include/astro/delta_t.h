// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/api.h"

// Delta T: dynamical time (TT) minus Universal Time (UT1), in seconds.
//
// The moment is a Julian date in Universal Time (day number and fraction; a fraction that is
// not finite counts as 0). Never fails; any thread may call. Where the value comes from, in
// years of 365.25 days from 2000.0 = JD 2451545:
//
//   before -720    parabola -320 + 32.5 ((year - 1825) / 100)^2, Stephenson, Morrison & Hohenkerk 2016
//                  (Proc. R. Soc. A 472, 20160404); its difference at -720 (358 s) fades out until -1720
//   -720 to 1657   their cubic spline, edition 2020 (Morrison, Stephenson, Hohenkerk & Zawilski 2021, Proc.
//                  R. Soc. A 477, 20200776); the difference from the first observed value (6.5 s) fades in
//                  from 1557 on
//   1657 to 1973   US Naval Observatory, half-yearly (McCarthy & Babcock 1986)
//   1973 to 2023.7 IERS, every 30 days
//   later          no observations: the difference from the parabola (261 s) fades out over 300 years,
//                  beginning with the mean slope of the last ten observed years
//
// Rows of the tables are met exactly; a cubic through neighbouring rows runs between them. Values are
// continuous everywhere; slopes too, but for small steps at 1657 and at the last observation, where single
// rows are too noisy for a slope and the mean of ten years is taken. Standard error, as the sources state it:
// about 180 s at -720, 20 s in 1500, 12 s in 1657, 2 s in 1800, 0.1 s in 1900, below 0.01 s from 1962. Beyond
// the observations nobody can vouch for more than the trend. Between 1660 and 1900 the spline, which is not
// used there, lies up to 9 s from the observatory's table: they are different reductions of the same
// observations.
struct ASTRO_API ET_UT {
  static double Get(int julianDay, double fraction);
};
