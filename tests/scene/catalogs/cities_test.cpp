// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/cities.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"
#include "scene/names_files.h"

using namespace scene;

namespace {

class CitiesTest : public testing::Test {
 protected:
  CitiesTest() {
    host_test::WriteNames(f.sky.dir);
    cities = LoadCities();
  }
  std::string CountriesOf(const std::string& text) {
    std::string countries;
    for (const FoundCity& found : FindCities(cities, text)) countries += found.city->country + " ";
    return countries;
  }

  host_test::FrameFixture f;
  std::vector<City> cities;
};

}  // namespace

TEST_F(CitiesTest, TheOneWithTheMostInhabitantsComesFirst) { EXPECT_EQ(CountriesOf("sydney"), "AU CA "); }

TEST_F(CitiesTest, ACountryByCodeOrNameChooses) {
  EXPECT_EQ(CountriesOf("Sydney,CA"), "CA ");
  EXPECT_EQ(CountriesOf("sydney, australia"), "AU ");
  EXPECT_EQ(CountriesOf("Sydney,US"), "");
}

TEST_F(CitiesTest, NamesOfEveryLanguageAreFoundAndHandedBackAsTheyAreWritten) {
  for (const char* name : {"Munich", "MÜNCHEN", "munchen", "мюнхен"})
    EXPECT_EQ(CountriesOf(name), "DE ") << name;
  EXPECT_EQ(FindCities(cities, "munchen").at(0).name, "München");
  EXPECT_EQ(FindCities(cities, "сидней").at(0).name, "Сидней");
}

TEST_F(CitiesTest, AWholeNameMayHaveAComma) {
  EXPECT_EQ(CountriesOf("Washington, D.C."), "US ");
  EXPECT_EQ(CountriesOf("Washington, US"), "US ");
}

TEST_F(CitiesTest, BeginningOfANameSuggestsTheLargestFirst) {
  const auto found = SuggestCities(cities, "sYd", 10);
  ASSERT_EQ(found.size(), 2u);
  EXPECT_EQ(found[0].city->country, "AU");
  EXPECT_EQ(SuggestCities(cities, "syd", 1).size(), 1u);
  EXPECT_EQ(SuggestCities(cities, "мюн", 5).at(0).name, "Мюнхен");
  EXPECT_EQ(SuggestCities(cities, "syd, canada", 5).at(0).city->country, "CA");
  EXPECT_EQ(SuggestCities(cities, "", 1000).size(), cities.size());
  EXPECT_TRUE(SuggestCities(cities, "xyzzy", 5).empty());
}

TEST_F(CitiesTest, NearestOfAPlaceComesFirst) {
  const auto near = FindCitiesAround(cities, 48.0 * kRadiansPerDegree, 11.0 * kRadiansPerDegree, 2);
  ASSERT_EQ(near.size(), 2u);
  EXPECT_EQ(near[0].city->name, "Munich");
  EXPECT_EQ(near[0].name, "Munich");
  // Across the date line: from the west of it Sydney in Australia is nearest.
  EXPECT_EQ(
      FindCitiesAround(cities, -30.0 * kRadiansPerDegree, -179.0 * kRadiansPerDegree, 1).at(0).city->country,
      "AU");
}

TEST_F(CitiesTest, HeightAndZoneComeAlong) {
  const City& munich = *FindCities(cities, "Munich").at(0).city;
  EXPECT_EQ(munich.zone, "Europe/Berlin");
  EXPECT_DOUBLE_EQ(munich.height, 524.0);
  EXPECT_NEAR(munich.latitude / kRadiansPerDegree, 48.133, 0.001);
  EXPECT_DOUBLE_EQ(FindCities(cities, "Sydney,CA").at(0).city->height, 0.0) << "unknown";
}

TEST_F(CitiesTest, NothingIsNoCityAndMistypedOnesHaveLikeOnes) {
  EXPECT_EQ(CountriesOf(""), "");
  EXPECT_EQ(CountriesOf(","), "");
  EXPECT_EQ(FindNearCities(cities, "Sidney"), std::vector<std::string>{"Sydney"});
  EXPECT_EQ(FindNearCities(cities, "Sidney,AU"), std::vector<std::string>{"Sydney"});
}

TEST_F(CitiesTest, WithoutTheTableThereAreNoneAndNobodyComplains) {
  f.diagnostics.lines.clear();
  std::filesystem::remove(f.sky.dir.Path("data/catalogs/cities.txt"));
  EXPECT_TRUE(LoadCities().empty());
  EXPECT_TRUE(f.diagnostics.lines.empty());
  f.sky.dir.Write("data/catalogs/cities.txt", "no table");
  EXPECT_TRUE(LoadCities().empty());
  EXPECT_EQ(f.diagnostics.lines.size(), 1u);
}
