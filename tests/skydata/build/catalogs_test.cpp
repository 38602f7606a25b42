// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The catalogs made of the data that ships, against what the sources were published with.
#include "skydata/build/catalogs.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>

#include "tests/skydata/made_table.h"
#include "tests/skydata/source_text.h"

namespace skydata {
namespace {

using Table = skydata_test::MadeTable;

constexpr double kRadiansPerDegree = 3.14159265358979323846 / 180.0;
constexpr double kArcSecond = kRadiansPerDegree / 3600.0;

double Hours(double hours, double minutes, double seconds) {
  return (hours + minutes / 60.0 + seconds / 3600.0) * 15.0 * kRadiansPerDegree;
}
double Degrees(double degrees, double minutes, double seconds) {
  return (degrees + minutes / 60.0 + seconds / 3600.0) * kRadiansPerDegree;
}

const Table& Stars() {
  static const Table table(MakeStarCatalog(CI_DATA_SOURCE));
  return table;
}
const Table& Deepsky() {
  static const Table table(MakeDeepskyCatalog(CI_DATA_SOURCE));
  return table;
}

TEST(StarCatalog, HasTheColumnsThatReadersExpect) {
  const std::string bytes = MakeStarCatalog(CI_DATA_SOURCE);
  EXPECT_NE(
      bytes.find(
          "\nNumber:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tColorIndexBV:f32\tSpectrType:text\tPropMotionRA:"
          "f32\t"
          "PropMotionDec:f32\tParallax:f32\tRadialVelocity:f32\tProperName:text\tBayer:text\tFlamsteed:text\t"
          "HipparcosID:i32\tPairAngle:f32\tVarName:text\tHasPlanets:i32\n"),
      std::string::npos);
}

// The catalogue numbers 9110 objects; 14 of them are no stars and have no data.
TEST(StarCatalog, HoldsTheWholeBrightStarCatalogue) {
  ASSERT_EQ(Stars().GetCount(), 9096u);
  std::set<std::string> numbers;
  for (std::size_t i = 0; i < Stars().GetCount(); ++i) numbers.insert(Stars().GetText(i, "Number:i32"));
  EXPECT_EQ(numbers.size(), 9096u);
  for (const char* missing : {"92", "95", "182", "1057", "1841", "2472", "2496", "3515", "3671", "6309",
                              "6515", "7189", "7539", "8296"}) {
    EXPECT_EQ(numbers.count(missing), 0u) << missing;
  }
}

// Hoffleit & Warren 1991, HR 2061: 05 55 10.3 +07 24 25, V 0.50, B-V 1.85, M1-2Ia-Iab, +0.026"/yr,
// +0.009"/yr, parallax .005", +21 km/s.
TEST(StarCatalog, BetelgeuseIsAsPublished) {
  const std::size_t i = Stars().Find("Number:i32", "2061");
  EXPECT_NEAR(Stars().GetNumber(i, "RA:f64"), Hours(5, 55, 10.3), 0.05 * kArcSecond);
  EXPECT_NEAR(Stars().GetNumber(i, "Dec:f64"), Degrees(7, 24, 25), 0.05 * kArcSecond);
  EXPECT_EQ(Stars().GetText(i, "VisMagnitude:f32"), "0.5");
  EXPECT_EQ(Stars().GetText(i, "ColorIndexBV:f32"), "1.85");
  EXPECT_EQ(Stars().GetText(i, "SpectrType:text"), "M1-2Ia-Iab");
  EXPECT_EQ(Stars().GetText(i, "PropMotionRA:f32"), "26");
  EXPECT_EQ(Stars().GetText(i, "PropMotionDec:f32"), "9");
  EXPECT_EQ(Stars().GetText(i, "Parallax:f32"), "5");
  EXPECT_EQ(Stars().GetText(i, "RadialVelocity:f32"), "21");
  EXPECT_EQ(Stars().GetText(i, "ProperName:text"), "Betelgeuse");
  EXPECT_EQ(Stars().GetText(i, "Bayer:text"), "α Ori");
  EXPECT_EQ(Stars().GetText(i, "Flamsteed:text"), "58 Ori");
  EXPECT_EQ(Stars().GetText(i, "HipparcosID:i32"), "27989");
}

// HR 2491: 06 45 08.9 -16 42 58, V -1.46, B-V 0.00, A1Vm, -0.553"/yr, -1.205"/yr, parallax .375", -8 km/s.
TEST(StarCatalog, SiriusIsAsPublished) {
  const std::size_t i = Stars().Find("ProperName:text", "Sirius");
  EXPECT_EQ(Stars().GetText(i, "Number:i32"), "2491");
  EXPECT_NEAR(Stars().GetNumber(i, "RA:f64"), Hours(6, 45, 8.9), 0.05 * kArcSecond);
  EXPECT_NEAR(Stars().GetNumber(i, "Dec:f64"), -Degrees(16, 42, 58), 0.05 * kArcSecond);
  EXPECT_EQ(Stars().GetText(i, "VisMagnitude:f32"), "-1.46");
  EXPECT_EQ(Stars().GetText(i, "ColorIndexBV:f32"), "0");
  EXPECT_EQ(Stars().GetText(i, "Parallax:f32"), "375");
  EXPECT_EQ(Stars().GetText(i, "RadialVelocity:f32"), "-8");
  EXPECT_EQ(Stars().GetText(i, "Bayer:text"), "α CMa");
}

// Mizar's companion: 14.4" in position angle 152 to 153 degrees (Washington Double Star Catalog, STF 1744),
// which the list of doubles gives in tens of degrees;
// 51 Peg b: Mayor & Queloz 1995; names of variables: General Catalogue of Variable Stars.
TEST(StarCatalog, MarksDoublesVariablesAndStarsWithPlanets) {
  const std::size_t mizar = Stars().Find("Number:i32", "5054"), algol = Stars().Find("Number:i32", "936"),
                    pegasi = Stars().Find("Number:i32", "8729"), cepheid = Stars().Find("Number:i32", "8571"),
                    vega = Stars().Find("Number:i32", "7001");
  EXPECT_NEAR(Stars().GetNumber(mizar, "PairAngle:f32"), 152.5 * kRadiansPerDegree, 5.0 * kRadiansPerDegree);
  EXPECT_EQ(Stars().GetText(algol, "VarName:text"), "β Per");
  EXPECT_EQ(Stars().GetText(cepheid, "VarName:text"), "δ Cep");
  EXPECT_EQ(Stars().GetText(pegasi, "HasPlanets:i32"), "1");
  EXPECT_EQ(Stars().GetText(pegasi, "PairAngle:f32"), "");
  EXPECT_EQ(Stars().GetText(vega, "HasPlanets:i32"), "");
  int planets = 0, variables = 0;
  for (std::size_t i = 0; i < Stars().GetCount(); ++i) {
    planets += !Stars().GetText(i, "HasPlanets:i32").empty();
    variables += !Stars().GetText(i, "VarName:text").empty();
  }
  EXPECT_EQ(planets, 38);
  EXPECT_EQ(variables, 910);
}

TEST(StarCatalog, ProperMotionsAreMilliarcsecondsAYear) {
  const std::size_t i = Stars().Find("ProperName:text", "Sirius");
  EXPECT_EQ(Stars().GetNumber(i, "PropMotionRA:f32"), -553.0);
  EXPECT_EQ(Stars().GetNumber(i, "PropMotionDec:f32"), -1205.0);
}

// 61 Cygni A (HR 8085) moves by 4.168" a year along the great circle (van Leeuwen 2007); the angle between
// hour circles grows by 5.34", since its declination is 38.7 degrees.
TEST(StarCatalog, ProperMotionInRightAscensionIncludesCosDec) {
  EXPECT_NEAR(Stars().GetNumber(Stars().Find("Number:i32", "8085"), "PropMotionRA:f32"), 4168.0, 40.0);
}

TEST(StarCatalog, NumberedBayerLettersKeepTheirNumber) {
  EXPECT_EQ(Stars().GetText(Stars().Find("Number:i32", "1543"), "Bayer:text"), "π3 Ori");
  EXPECT_EQ(Stars().GetText(Stars().Find("Number:i32", "6247"), "Bayer:text"), "μ1 Sco");
}

TEST(StarCatalog, AStarMayHaveAFlamsteedNumberAlone) {
  const std::size_t i = Stars().Find("Number:i32", "3");  // 33 Psc
  EXPECT_EQ(Stars().GetText(i, "Bayer:text"), "");
  EXPECT_EQ(Stars().GetText(i, "Flamsteed:text"), "33 Psc");
}

TEST(StarCatalog, WhatTheCatalogueLacksIsAnEmptyCell) {
  const std::size_t i = Stars().Find("Number:i32", "1");
  EXPECT_EQ(Stars().GetText(i, "Parallax:f32"), "");
  EXPECT_EQ(Stars().GetText(i, "ProperName:text"), "");
}

TEST(StarCatalog, NoTwoStarsShareAProperName) {
  std::set<std::string> names;
  for (std::size_t i = 0; i < Stars().GetCount(); ++i) {
    const std::string& name = Stars().GetText(i, "ProperName:text");
    EXPECT_TRUE(name.empty() || names.insert(name).second) << name;
  }
  EXPECT_GT(names.size(), 400u);
}

TEST(StarCatalog, PositionsAreRadiansInRange) {
  for (std::size_t i = 0; i < Stars().GetCount(); ++i) {
    const double ra = Stars().GetNumber(i, "RA:f64"), dec = Stars().GetNumber(i, "Dec:f64");
    EXPECT_TRUE(ra >= 0.0 && ra < 360.0 * kRadiansPerDegree) << i;
    EXPECT_TRUE(dec >= -90.0 * kRadiansPerDegree && dec <= 90.0 * kRadiansPerDegree) << i;
  }
}

TEST(DeepskyCatalog, HoldsMessiersList) {
  ASSERT_EQ(Deepsky().GetCount(), 110u);
  std::map<std::string, int> kinds;
  for (std::size_t i = 0; i < Deepsky().GetCount(); ++i) {
    ++kinds[Deepsky().GetText(i, "Type:text")];
    EXPECT_EQ(Deepsky().GetText(i, "MessierNumber:i32"), std::to_string(i + 1));
  }
  // 40 galaxies; 29 globular and 26 open clusters, and M24, M40, M73; 7 diffuse and 4 planetary nebulae and
  // M1.
  EXPECT_EQ(kinds, (std::map<std::string, int>{{"gala", 40}, {"clst", 58}, {"nebu", 12}}));
}

TEST(DeepskyCatalog, WellKnownObjectsHaveTheirKind) {
  const std::pair<int, const char*> kinds[] = {{31, "gala"},  {42, "nebu"}, {45, "clst"},
                                               {13, "clst"},  {1, "nebu"},  {57, "nebu"},
                                               {104, "gala"}, {78, "nebu"}, {24, "clst"}};
  for (const auto& [messier, kind] : kinds) {
    EXPECT_EQ(Deepsky().GetText(Deepsky().Find("MessierNumber:i32", std::to_string(messier)), "Type:text"),
              kind)
        << messier;
  }
}

TEST(DeepskyCatalog, TheNumberHoldsSubTypeAndMessierNumber) {
  const std::size_t i = Deepsky().Find("MessierNumber:i32", "13");
  EXPECT_EQ(Deepsky().GetText(i, "Number:i32"), std::to_string(41 * 16777216 + 13));  // a globular cluster
}

// The Andromeda Galaxy: NGC 224, 00 42.7 +41 16 (J2000), V 3.4.
TEST(DeepskyCatalog, TheAndromedaGalaxyIsAsPublished) {
  const std::size_t i = Deepsky().Find("ProperName:text", "Andromeda Galaxy");
  EXPECT_EQ(Deepsky().GetText(i, "NGC_ICnumber:text"), "NGC 224");
  EXPECT_NEAR(Deepsky().GetNumber(i, "RA:f64"), Hours(0, 42.7, 0), 60 * kArcSecond);
  EXPECT_NEAR(Deepsky().GetNumber(i, "Dec:f64"), Degrees(41, 16, 0), 60 * kArcSecond);
  EXPECT_EQ(Deepsky().GetText(i, "VisMagnitude:f32"), "3.4");
}

TEST(DeepskyCatalog, SizesAreRadians) {
  const std::size_t i = Deepsky().Find("MessierNumber:i32", "42");  // 66' x 60'
  EXPECT_NEAR(Deepsky().GetNumber(i, "LargestDimension:f32"), 1.1 * kRadiansPerDegree, 1e-8);
  EXPECT_NEAR(Deepsky().GetNumber(i, "SmallestDimension:f32"), 1.0 * kRadiansPerDegree, 1e-8);
}

TEST(DeepskyCatalog, OneSizeStandsForBoth) {
  const std::size_t i = Deepsky().Find("MessierNumber:i32", "13");
  EXPECT_EQ(Deepsky().GetText(i, "LargestDimension:f32"), Deepsky().GetText(i, "SmallestDimension:f32"));
}

TEST(DeepskyCatalog, AnObjectWithoutSizeHasEmptyCells) {
  EXPECT_EQ(Deepsky().GetText(Deepsky().Find("MessierNumber:i32", "40"), "LargestDimension:f32"), "");
}

TEST(ConstellationCatalog, NamesAllOfThemAndBothHalvesOfSerpens) {
  const Table table(MakeConstellationCatalog(CI_DATA_SOURCE));
  ASSERT_EQ(table.GetCount(), 89u);
  std::set<std::string> labels;
  for (std::size_t i = 0; i < table.GetCount(); ++i) labels.insert(table.GetText(i, "Label:text"));
  EXPECT_EQ(labels.size(), 88u);
  const std::size_t orion = table.Find("Label:text", "Ori");
  EXPECT_EQ(table.GetText(orion, "ProperName:text"), "Orion");
  EXPECT_EQ(table.GetText(table.Find("Label:text", "UMa"), "EnglishName:text"), "Great Bear");
  EXPECT_EQ(table.GetText(table.Find("Label:text", "CrA"), "ProperName:text"), "Corona Australis");
}

TEST(ConstellationLines, RunThroughStars) {
  const Table table(MakeConstellationLines(CI_DATA_SOURCE));
  ASSERT_EQ(table.GetCount(), 893u);
  const std::size_t betelgeuse = Stars().Find("Number:i32", "2061");
  bool found = false;
  for (std::size_t i = 0; i < table.GetCount(); ++i) {
    found = found || (std::abs(table.GetNumber(i, "RA:f64") - Stars().GetNumber(betelgeuse, "RA:f64")) <
                          0.02 * kRadiansPerDegree &&
                      std::abs(table.GetNumber(i, "Dec:f64") - Stars().GetNumber(betelgeuse, "Dec:f64")) <
                          0.02 * kRadiansPerDegree);
  }
  EXPECT_TRUE(found);
}

class DamagedCatalog : public testing::Test {
 protected:
  test_support::TempDir m_Dir;
};

const std::string kStarHeader =
    "HR\tRA_deg\tDec_deg\tV_mag\tB-V_mag\tSpectralType\tpmRAcosDec_mas_yr\tpmDec_mas_yr\tParallax_mas\t"
    "RadialVelocity_km_s\tName\tBayer\tFlamsteed\tHIP\n";

TEST_F(DamagedCatalog, ATwiceNumberedStarIsRefused) {
  m_Dir.Write("stars/stars.tsv", kStarHeader + "1\t10\t20\t5\n1\t10\t20\t5\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeStarCatalog(m_Dir.Path()); }),
            "stars/stars.tsv:3: HR: 1 stands above already");
}
TEST_F(DamagedCatalog, AStarWithoutAMagnitudeIsRefused) {
  m_Dir.Write("stars/stars.tsv", kStarHeader + "1\t10\t20\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeStarCatalog(m_Dir.Path()); }),
            "stars/stars.tsv:2: V_mag: must not be empty");
}
TEST_F(DamagedCatalog, ADeclinationPastThePoleIsRefused) {
  m_Dir.Write("stars/stars.tsv", kStarHeader + "1\t10\t90.5\t5\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeStarCatalog(m_Dir.Path()); }),
            "stars/stars.tsv:2: Dec_deg: 90.5 is out of range");
}
TEST_F(DamagedCatalog, AnUnknownDeepskyTypeIsRefused) {
  m_Dir.Write("deepsky/messier.tsv",
              "Messier\tNGC_IC\tName\tType\tV_mag\tLargest_arcmin\tSmallest_arcmin\tRA_deg\tDec_deg\n"
              "1\t\t\tquasar\t8\t1\t1\t10\t20\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeDeepskyCatalog(m_Dir.Path()); }),
            "deepsky/messier.tsv:2: Type: 'quasar' is no known type");
}
TEST_F(DamagedCatalog, ATwiceNumberedMessierObjectIsRefused) {
  const std::string line = "1\t\t\tasterism\t8\t1\t1\t10\t20\n";
  m_Dir.Write(
      "deepsky/messier.tsv",
      "Messier\tNGC_IC\tName\tType\tV_mag\tLargest_arcmin\tSmallest_arcmin\tRA_deg\tDec_deg\n" + line + line);
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeDeepskyCatalog(m_Dir.Path()); }),
            "deepsky/messier.tsv:3: Messier: 1 stands above already");
}
TEST_F(DamagedCatalog, ANamelessConstellationIsRefused) {
  m_Dir.Write("constellations/constellations.tsv",
              "Abbreviation\tLatin\tEnglish\tRA_deg\tDec_deg\tGenitive\n\tOrion\tOrion\t1\t2\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeConstellationCatalog(m_Dir.Path()); }),
            "constellations/constellations.tsv:2: Abbreviation: must not be empty");
}
TEST_F(DamagedCatalog, ABrokenVertexOfAFigureIsRefused) {
  m_Dir.Write("constellations/lines.tsv", "Abbreviation\tPolyline\tRA_deg\tDec_deg\nOri\t0\t400\t2\n");
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { MakeConstellationLines(m_Dir.Path()); }),
            "constellations/lines.tsv:2: RA_deg: 400 is out of range");
}

}  // namespace
}  // namespace skydata
