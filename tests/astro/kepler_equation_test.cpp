// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/orbits/kepler_equation.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "astro/two_body.h"
#include "helpers/measure.h"
#include "helpers/tsv.h"

using astro_test::kDegree;
using astro_test::Largest;

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

// M from E with the difference E - e sin E formed in a way that keeps all digits: by (1 - e) E + e (E - sin
// E), whose second part is summed term by term.
double MeanFromEccentric(double e, double angle) {
  long double rest = 0.0L;
  long double term = static_cast<long double>(angle);
  for (int k = 1; k < 40; ++k) {
    term *= -static_cast<long double>(angle) * angle / ((2.0L * k) * (2.0L * k + 1.0L));
    rest -= term;
  }
  return static_cast<double>((1.0L - e) * angle + e * rest);
}

}  // namespace

TEST(KeplerEquation, EllipsesOfTheReferenceTable) {
  Largest difference("eccentric anomaly", "rad");
  for (const auto& row : astro_test::ReadCells(ASTRO_TEST_DATA "kepler_equation.tsv")) {
    if (row[0] != "ell") continue;
    const double e = std::stod(row[1]);
    const double mean = std::stod(row[2]) * kDegree;
    const double expected = std::stod(row[3]) * kDegree;
    // Angles and eccentricity are rounded to doubles before they are used (half a unit of the last place
    // each, with the conversion from degrees): near the pericentre of a long ellipse the anomaly follows 1 /
    // (1 - e cos E) times. The table's own zeros are 1e-36.
    const double rounding =
        (4e-16 * mean + 6e-17 * std::sin(expected)) / (1.0 - e * std::cos(expected)) + 1e-35;
    const double found = SolveKeplerEllipse(e, mean);
    EXPECT_NEAR(found, expected, 1e-15 * expected + rounding) << e << " " << row[2];
    difference.Note(found - expected, e);
  }
  difference.Expect(1e-12);
}

TEST(KeplerEquation, HyperbolasOfTheReferenceTable) {
  Largest difference("hyperbolic anomaly, relative", "");
  for (const auto& row : astro_test::ReadCells(ASTRO_TEST_DATA "kepler_equation.tsv")) {
    if (row[0] != "hyp") continue;
    const double e = std::stod(row[1]);
    const double mean = std::stod(row[2]) * kDegree;
    const double expected = std::stod(row[3]);
    // Rounded before use, as above; an eccentricity above 1 is rounded twice as coarsely.
    const double rounding =
        (4e-16 * mean + 1.2e-16 * e * std::sinh(expected)) / (e * std::cosh(expected) - 1.0);
    const double found = SolveKeplerHyperbola(e, mean);
    EXPECT_NEAR(found, expected, 1e-15 * expected + rounding) << e << " " << row[2];
    difference.Note(found / expected - 1.0, e);
  }
  difference.Expect(1e-12);
}

TEST(KeplerEquation, ParabolasOfTheReferenceTable) {
  Largest difference("true anomaly on a parabola", "rad");
  for (const auto& row : astro_test::ReadTable(ASTRO_TEST_DATA "parabolic.tsv")) {
    const double motion = kGaussianConstant / std::sqrt(2.0 * row[0] * row[0] * row[0]);
    difference.Note(SolveBarker(motion * row[1]) - row[2] * kDegree, row[0]);
  }
  difference.Expect(1e-14);
}

TEST(KeplerEquation, SmallAnomaliesKeepTheirRelativePrecision) {
  Largest difference("eccentric anomaly, relative", "");
  for (double excess = 1e-3; excess > 2e-16; excess /= 10.0) {
    const double e = 1.0 - excess;
    for (double angle = 3.0; angle > 1e-12; angle /= 1.7)
      difference.Note(SolveKeplerEllipse(e, MeanFromEccentric(e, angle)) / angle - 1.0, excess);
  }
  difference.Expect(4e-15);
}

TEST(KeplerEquation, CircleGivesTheMeanAnomaly) {
  for (double mean : {-3.0, -1e-300, 0.0, 0.5, 3.1})
    EXPECT_NEAR(SolveKeplerEllipse(0.0, mean), mean, 4e-16 * std::fabs(mean));
}

TEST(KeplerEquation, SignTurnsWithTheSignOfTheMeanAnomaly) {
  for (double mean : {1e-9, 0.7, 2.9}) {
    EXPECT_EQ(SolveKeplerEllipse(0.7, -mean), -SolveKeplerEllipse(0.7, mean));
    EXPECT_EQ(SolveKeplerHyperbola(1.3, -mean), -SolveKeplerHyperbola(1.3, mean));
    EXPECT_EQ(SolveBarker(-mean), -SolveBarker(mean));
  }
}

TEST(KeplerEquation, ResultStaysInTheTurnOfTheMeanAnomaly) {
  const double turn = astro_test::kTurn;
  for (int turns : {-1000, -3, 1, 2, 500}) {
    const double expected = SolveKeplerEllipse(0.6, 1.25) + turns * turn;
    EXPECT_NEAR(SolveKeplerEllipse(0.6, 1.25 + turns * turn), expected, 3e-12) << turns;
  }
}

// M = tan + tan^3 / 3 at the quarter turn, where the tangent of the half angle is 1.
TEST(KeplerEquation, BarkerAtTheQuarterTurn) {
  EXPECT_NEAR(SolveBarker(4.0 / 3.0), std::acos(0.0), 3e-16);
  EXPECT_NEAR(SolveBarker(1e-200), 2e-200, 1e-215);
  EXPECT_NEAR(SolveBarker(1e300), std::acos(-1.0), 1e-15);
  EXPECT_NEAR(SolveBarker(kInfinity), std::acos(-1.0), 1e-15);
}

TEST(KeplerEquation, NumbersThatAreNoneComeBackAsSuch) {
  EXPECT_TRUE(std::isnan(SolveKeplerEllipse(0.5, kNotANumber)));
  EXPECT_TRUE(std::isnan(SolveKeplerEllipse(0.5, kInfinity)));
  EXPECT_TRUE(std::isnan(SolveKeplerEllipse(kNotANumber, 1.0)));
  EXPECT_TRUE(std::isnan(SolveKeplerEllipse(1.0, 1.0)));
  EXPECT_TRUE(std::isnan(SolveKeplerEllipse(-0.1, 1.0)));
  EXPECT_TRUE(std::isnan(SolveKeplerHyperbola(1.0, 1.0)));
  EXPECT_TRUE(std::isnan(SolveKeplerHyperbola(kInfinity, 1.0)));
  EXPECT_TRUE(std::isnan(SolveKeplerHyperbola(2.0, kNotANumber)));
  EXPECT_TRUE(std::isnan(SolveBarker(kNotANumber)));
}

TEST(KeplerEquation, EnormousMeanAnomaliesEnd) {
  EXPECT_TRUE(std::isfinite(SolveKeplerEllipse(0.9, 1e300)));
  EXPECT_TRUE(std::isfinite(SolveKeplerEllipse(0.0, -std::numeric_limits<double>::max())));
  // Where sinh H is all there is: H = ln(2 M / e).
  EXPECT_NEAR(SolveKeplerHyperbola(2.0, 1e300), std::log(1e300), 1e-12);
  EXPECT_NEAR(SolveKeplerHyperbola(2.0, std::numeric_limits<double>::max()),
              std::log(std::numeric_limits<double>::max()), 1e-12);
  EXPECT_NEAR(SolveKeplerHyperbola(1e300, 1.0) / 1e-300, 1.0, 1e-12);
}
