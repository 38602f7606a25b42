// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/catalog_table.h"

#include <gtest/gtest.h>

#include <climits>

#include "scene/catalogs/cities.h"
#include "support/temp_dir.h"
#include "utils/text.h"

using namespace scene;

// A column that the writer gives as integers may be one of real numbers in a file of somebody else.
TEST(FieldInteger, NumberThatNoIntHoldsIsMissing) {
  const test_support::TempDir dir;
  CatalogTable table;
  ASSERT_TRUE(table.Load(dir.Write("table.txt",
                                   "N:f64\tT:text\n2147483647.9\tx\n2147483648\tx\n-2147483648.9\tx\n"
                                   "-2147483649\tx\n1e300\t7\n-7.9\tx\n\tx\n")
                             .c_str()));
  const int expected[] = {INT_MAX, 42, INT_MIN, 42, 42, -7, 42};
  ASSERT_EQ(table.GetCount(), 7);
  for (int record = 0; record < 7; ++record) {
    table.Select(record);
    EXPECT_EQ(FieldInteger(table, GetUniqueID("N"), 42), expected[record]) << record;
    EXPECT_EQ(FieldInteger(table, GetUniqueID("T"), 42), 42) << "a text";
  }
}

TEST(FieldInteger, CityOfMoreInhabitantsThanAnIntHoldsHasNoneThatAreKnown) {
  const test_support::TempRoots roots;
  roots.dir.Write(
      "data/catalogs/cities.txt",
      "ProperName:text\tLatitude:f64\tLongitude:f64\tPopulation:f64\nA\t0\t0\t1e300\nB\t0\t0\t7\n");
  const auto cities = LoadCities();
  ASSERT_EQ(cities.size(), 2u);
  EXPECT_EQ(cities[0].population, 0);
  EXPECT_EQ(cities[1].population, 7);
}
