// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/catalog_text.h"

#include <gtest/gtest.h>

namespace skydata {
namespace {

std::string Body(const CatalogText& catalog) {
  return catalog.GetBytes().substr(catalog.GetBytes().find('\n') + 1);
}

TEST(CatalogText, BeginsWithItsOriginAndTheColumns) {
  EXPECT_EQ(
      CatalogText("stars/stars.tsv", {"A:i32", "B:text"}).GetBytes(),
      "# Made by skydata from stars/stars.tsv; origin and licence stand in the .source.md beside this file.\n"
      "A:i32\tB:text\n");
}
TEST(CatalogText, CellsStandInARowAndNumbersAreAsShortAsTheyCanBe) {
  CatalogText catalog("x", {"A:f64"});
  catalog.AddInteger(-7);
  catalog.AddDouble(0.1);
  catalog.AddFloat(0.1);
  catalog.AddText("α Ori");
  catalog.EndRecord();
  EXPECT_EQ(Body(catalog), "A:f64\n-7\t0.1\t0.1\tα Ori\n");
}
TEST(CatalogText, AMissingNumberIsAnEmptyCell) {
  CatalogText catalog("x", {"A:f32"});
  catalog.AddFloat(std::nullopt);
  catalog.AddSmallAngle(std::nullopt);
  catalog.AddInteger(1);
  catalog.EndRecord();
  EXPECT_EQ(Body(catalog), "A:f32\n\t\t1\n");
}
TEST(CatalogText, AnglesAreRadians) {
  CatalogText catalog("x", {"A:f64"});
  catalog.AddAngle(180.0);
  catalog.AddSmallAngle(60.0);
  catalog.EndRecord();
  EXPECT_EQ(Body(catalog), "A:f64\n3.141592653589793\t0.017453292\n");  // pi, and a degree as a float
}

}  // namespace
}  // namespace skydata
