// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <string>

#include <gtest/gtest.h>

#include "common_interfaces/object_kinds.h"
#include "common_interfaces/string_table.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

using namespace CommonInterfaces;

namespace {

// A string table of its own for every test. Its texts say which identifier was asked for.
class ObjectTypeNamesTest : public testing::Test {
 protected:
  ObjectTypeNamesTest() {
    QX4Strings::StartLocaleUpdate();
    roots.dir.Write(
        "data/qxstrings.txt",
        "star\tStar\nplnt\tPlanet\npldw\tDwarf\nmoon\tMoon\nscft\tCraft\ncomt\tComet\nastr\tAsteroid\n"
        "gala\twrong\nuGAL\tUser galaxy\nuNEB\tUser nebula\nuCLS\tUser cluster\nuDSO\tUser object\n0\tSub "
        "0\n40\tSub 40\n255\tSub 255\n"
        "20261\tM4\n20262\tM5\n20263\tM6\n20264\tM7\n20265\tM8\n20266\tM9\n");
    const QX4Strings load;
    QX4Strings::FinishLocaleUpdate();
  }
  ~ObjectTypeNamesTest() override {
    QX4Strings::StartLocaleUpdate();
    QX4Strings::FinishLocaleUpdate();
  }

  static std::string Name(const char (&kind)[5], int number = 0) {
    return Text(GetObjectTypeName(FourCC(kind), number));
  }
  static std::string MoonName(int number) { return Text(GetMoonOfParentTypeName(number)); }
  static std::string Text(const char* text) { return text ? text : "(null)"; }

  test_support::TempRoots roots;
};

TEST_F(ObjectTypeNamesTest, UserAndFavouriteKindsTakeTheNamesOfTheirCatalogueKinds) {
  EXPECT_EQ(Name("uSTR"), "Star");
  EXPECT_EQ(Name("uSCO"), "Craft");
  EXPECT_EQ(Name("fSCO"), "Craft");
  EXPECT_EQ(Name("fCOM"), "Comet");
  EXPECT_EQ(Name("fAST"), "Asteroid");
}

TEST_F(ObjectTypeNamesTest, TheSunIsAStarAndNineAndElevenOnAreDwarfPlanets) {
  EXPECT_EQ(Name("plnt", 3), "Planet");
  EXPECT_EQ(Name("plnt", 8), "Planet");
  EXPECT_EQ(Name("plnt", 9), "Dwarf");
  EXPECT_EQ(Name("plnt", 10), "Star");
  EXPECT_EQ(Name("plnt", 11), "Dwarf");
  EXPECT_EQ(Name("plnt", 99), "Dwarf");
  EXPECT_EQ(Name("plnt", 100), "Planet");
  EXPECT_EQ(Name("plnt", 0), "Planet");
  EXPECT_EQ(Name("plnt", -1), "Planet");
}

TEST_F(ObjectTypeNamesTest, DeepskyKindsAreNamedByTheSubTypeInTheTopByteOfTheNumber) {
  EXPECT_EQ(Name("gala", 40 << 24 | 31), "Sub 40");
  EXPECT_EQ(Name("nebu", 40 << 24), "Sub 40");
  EXPECT_EQ(Name("clst", 40 << 24), "Sub 40");
  EXPECT_EQ(Name("dsnv", 40 << 24), "Sub 40");
  EXPECT_EQ(Name("uDSO", 40 << 24), "Sub 40");
  EXPECT_EQ(Name("gala", -1), "Sub 255") << "a negative number has the sub-type 255, not -1";
}

// The texts 0 and 1 are no types: the first is a message, the second was the program's name.
TEST_F(ObjectTypeNamesTest, DeepskyObjectsWithoutASubTypeAreNamedByTheirKind) {
  EXPECT_EQ(Name("gala", 31), "User galaxy");
  EXPECT_EQ(Name("nebu", 1), "User nebula");
  EXPECT_EQ(Name("clst", 0xFFFFFF), "User cluster");
  EXPECT_EQ(Name("dsnv", 0), "User object");
  EXPECT_EQ(Name("uDSO", 7), "User object");
  EXPECT_EQ(Name("uDSO", 1 << 24), "(null)");
}

TEST_F(ObjectTypeNamesTest, EveryOtherKindIsNamedByItsOwnCode) {
  EXPECT_EQ(Name("star"), "Star");
  EXPECT_EQ(Name("moon", 301), "Moon");
  EXPECT_EQ(Name("comt"), "Comet");
  EXPECT_EQ(Name("uGAL", 40 << 24), "User galaxy");
}

TEST_F(ObjectTypeNamesTest, AKindWithoutATextGivesNullAndOneLine) {
  test_support::DebugCapture capture;
  EXPECT_EQ(GetObjectTypeName(FourCC("none"), 0), nullptr);
  EXPECT_EQ(GetObjectTypeName(FourCC("gala"), 77 << 24), nullptr);
  ASSERT_EQ(capture.lines.size(), 2u);
  EXPECT_EQ(capture.lines[1], "String with ID = 77 not found in file qxstrings.txt\n");
}

TEST_F(ObjectTypeNamesTest, MoonsAreNamedByTheirPlanetFromMarsOn) {
  EXPECT_EQ(MoonName(401), "M4");
  EXPECT_EQ(MoonName(504), "M5");
  EXPECT_EQ(MoonName(606), "M6");
  EXPECT_EQ(MoonName(705), "M7");
  EXPECT_EQ(MoonName(801), "M8");
  EXPECT_EQ(MoonName(999), "M9");
}

TEST_F(ObjectTypeNamesTest, MoonsOfAnyOtherPlanetHaveTheGeneralName) {
  for (int number : {301, 399, 1000, 0, -1, -450}) EXPECT_EQ(MoonName(number), "Moon") << number;
}

}  // namespace
