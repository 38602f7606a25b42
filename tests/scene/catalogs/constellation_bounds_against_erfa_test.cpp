// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The constellations of published positions of B1950, brought to J2000 by erfa, and its precession to B1875.
#include <erfa.h>
#include <gtest/gtest.h>

#include <random>

#include "scene/catalogs/data_root.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/constellation_tables.h"
#include "scene/small_root.h"
#include "scene/view/b1875.h"

using namespace scene;

// N. G. Roman 1987, "Identification of a constellation from a position" (CDS VI/42): the positions of the
// worked example, hours and degrees, B1950.
TEST(ConstellationBoundsAgainstErfa, PublishedPositionsLieInTheirConstellations) {
  struct Known {
    double hours, degrees;
    const char* abbreviation;
  };
  constexpr Known kKnown[] = {{9.0, 65.0, "UMa"},     {23.5, -20.0, "Aqr"},     {5.12, 9.12, "Ori"},
                              {9.4555, -19.9, "Hya"}, {12.8888, 22.0, "Com"},   {15.6687, -12.1234, "Lib"},
                              {19.0, -40.0, "CrA"},   {6.2222, -81.1234, "Men"}};
  host_test::SmallRoot sky;
  host_test::WriteConstellations(sky.dir);
  SkyCatalogs catalogs;
  std::string error;
  ASSERT_TRUE(SetSkyRoots(sky.dir.Path("data"), "", error) && LoadSkyCatalogs(catalogs, error)) << error;
  for (const Known& known : kKnown) {
    double ra = 0.0, dec = 0.0;
    eraFk45z(known.hours * 15.0 * kRadiansPerDegree, known.degrees * kRadiansPerDegree, 1950.0, &ra, &dec);
    const int found = catalogs.bounds.Find(MakeDirection(ra, dec));
    ASSERT_GE(found, 0);
    EXPECT_EQ(catalogs.constellations[static_cast<std::size_t>(found)].abbreviation, known.abbreviation);
  }
}

TEST(ConstellationBoundsAgainstErfa, PrecessionToB1875IsThatOfIau1976) {
  double matrix[3][3], day1 = 0.0, day2 = 0.0;
  eraEpb2jd(1875.0, &day1, &day2);
  eraPmat76(day1, day2, matrix);
  std::mt19937 random(3);
  std::uniform_real_distribution<double> angle(-1.5, 1.5);
  for (int i = 0; i < 1000; ++i) {
    Direction direction = MakeDirection(2.0 * angle(random), angle(random));
    double expected[3];
    eraRxp(matrix, direction.v, expected);
    const Direction turned = ToB1875(direction), back = FromB1875(turned);
    for (int k = 0; k < 3; ++k) {
      EXPECT_NEAR(turned.v[k], expected[k], 1e-12);
      EXPECT_NEAR(back.v[k], direction.v[k], 1e-15);
    }
  }
}
