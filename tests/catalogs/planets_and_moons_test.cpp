// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/planets_and_moons.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <limits>

#include "support/debug_capture.h"
#include "support/string_table_file.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::PlanetMoonDescription;
using Lines = std::vector<std::string>;

constexpr int kPlanet = FourCC("plnt"), kMoon = FourCC("moon");
constexpr char kFile[] = "data/catalogs/planets&moons/planets&moons.txt";

class PlanetsAndMoons : public testing::Test {
 protected:
  PlanetMoonDescription Load(const std::string& content) {
    roots.dir.Write(kFile, content);
    return PlanetMoonDescription();
  }
  std::string Path() const { return roots.dir.Path("data") + "/catalogs/planets&moons/planets&moons.txt"; }
  // The line that a bad line prints.
  std::string Bad(const std::string& what, const std::string& line) const {
    return "Bad " + what + " (" + line + ") in file " + Path() + "\n";
  }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

std::string NameOf(const PlanetMoonDescription& bodies, int kind, int number) {
  const char* const name = bodies.GetObjectName({kind, number});
  return name ? name : "(null)";
}

// The numbers that an enumeration yields.
std::vector<int> Planets(PlanetMoonDescription& bodies) {
  std::vector<int> numbers;
  SSO_ID body;
  for (bool more = bodies.GetFirstPlanet(body); more; more = bodies.GetNextPlanet(body)) {
    EXPECT_EQ(body.kind, kPlanet);
    numbers.push_back(body.number);
  }
  return numbers;
}
std::vector<int> Moons(PlanetMoonDescription& bodies, int planet) {
  std::vector<int> numbers;
  SSO_ID body;
  for (bool more = bodies.GetFirstMoon(body, {kPlanet, planet}); more; more = bodies.GetNextMoon(body)) {
    EXPECT_EQ(body.kind, kMoon);
    numbers.push_back(body.number);
  }
  return numbers;
}

TEST_F(PlanetsAndMoons, NamesAreFoundByKindAndNumber) {
  const auto bodies = Load("plnt\t3\tEarth\nmoon\t301\tMoon\n");
  EXPECT_EQ(NameOf(bodies, kPlanet, 3), "Earth");
  EXPECT_EQ(NameOf(bodies, kMoon, 301), "Moon");
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(PlanetsAndMoons, AnUnknownBodyHasNoName) {
  const auto bodies = Load("plnt\t3\tEarth\n");
  EXPECT_EQ(bodies.GetObjectName({kMoon, 3}), nullptr);
  EXPECT_EQ(debug.lines, Lines{"Name for object (1836019566, 3) not found\n"});
}

TEST_F(PlanetsAndMoons, ParentsFollowFromTheNumbersAlone) {
  const PlanetMoonDescription bodies = Load("");
  EXPECT_EQ(bodies.GetParentObject({kMoon, 301}), SSO_ID(kPlanet, 3));
  EXPECT_EQ(bodies.GetParentObject({kPlanet, 3}), SSO_ID(kPlanet, 10));
  EXPECT_EQ(bodies.GetParentObject({kMoon, 599}), SSO_ID(kPlanet, 5));
  EXPECT_EQ(bodies.GetParentObject({kMoon, 99}), SSO_ID(kPlanet, 0));
  EXPECT_EQ(bodies.GetParentObject({kMoon, -301}), SSO_ID(kPlanet, -3));
  EXPECT_EQ(bodies.GetParentObject({kPlanet, 77}), SSO_ID(kPlanet, 10));
}

TEST_F(PlanetsAndMoons, TheSunAndOtherKindsHaveNoParent) {
  const PlanetMoonDescription bodies = Load("");
  for (const SSO_ID& id : {SSO_ID(kPlanet, 10), SSO_ID(FourCC("astr"), 1), SSO_ID()}) {
    const SSO_ID parent = bodies.GetParentObject(id);
    EXPECT_EQ(parent.kind, -1);
    EXPECT_EQ(parent.number, -1);
    EXPECT_EQ(parent.third, 0);
    EXPECT_STREQ(parent.name, "");
    EXPECT_EQ(parent.fourth, 0);
  }
}

TEST_F(PlanetsAndMoons, PlanetsBehindAGapAreNeverReached) {
  auto bodies = Load("plnt\t1\tMercury\nplnt\t2\tVenus\nplnt\t4\tMars\n");
  EXPECT_EQ(Planets(bodies), (std::vector<int>{1, 2}));
}

TEST_F(PlanetsAndMoons, TheSunIsReachedWhereNoNumberIsMissing) {
  std::string content;
  for (int i = 10; i >= 1; --i) content += "plnt\t" + std::to_string(i) + "\tx\n";
  auto bodies = Load(content);
  EXPECT_EQ(Planets(bodies), (std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
}

TEST_F(PlanetsAndMoons, WithoutThePlanet1ThereIsNoEnumeration) {
  auto bodies = Load("plnt\t2\tVenus\n");
  SSO_ID body(7, 8);
  EXPECT_FALSE(bodies.GetFirstPlanet(body));
  EXPECT_FALSE(bodies.GetNextPlanet(body));
  EXPECT_EQ(body, SSO_ID(7, 8)) << "what fails leaves the caller's identifier";
}

TEST_F(PlanetsAndMoons, AnEnumerationThatHasEndedStaysEnded) {
  auto bodies = Load("plnt\t1\ta\nplnt\t3\tb\nmoon\t101\tc\nmoon\t103\td\n");
  SSO_ID body;
  EXPECT_FALSE(bodies.GetNextPlanet(body)) << "not begun";
  EXPECT_FALSE(bodies.GetNextMoon(body)) << "not begun";
  ASSERT_TRUE(bodies.GetFirstPlanet(body));
  ASSERT_TRUE(bodies.GetFirstMoon(body, body));
  for (int i = 0; i < 3; ++i) {
    EXPECT_FALSE(bodies.GetNextPlanet(body));
    EXPECT_FALSE(bodies.GetNextMoon(body));
  }
  EXPECT_TRUE(bodies.GetFirstPlanet(body)) << "begun again";
}

TEST_F(PlanetsAndMoons, AnEnumerationThatFindsNothingEndsTheOneBefore) {
  auto bodies = Load("moon\t101\ta\nmoon\t102\tb\n");
  SSO_ID moon;
  ASSERT_TRUE(bodies.GetFirstMoon(moon, {kPlanet, 1}));
  EXPECT_FALSE(bodies.GetFirstMoon(moon, {kPlanet, 2}));
  EXPECT_FALSE(bodies.GetNextMoon(moon)) << "moon 102 belongs to the one before";
  EXPECT_EQ(moon.number, 101);
}

TEST_F(PlanetsAndMoons, PlanetsAndMoonsAreEnumeratedSideBySide) {
  auto bodies = Load("plnt\t1\ta\nplnt\t2\tb\nmoon\t101\tc\nmoon\t102\td\nmoon\t201\te\n");
  SSO_ID planet, moon;
  ASSERT_TRUE(bodies.GetFirstPlanet(planet));
  ASSERT_TRUE(bodies.GetFirstMoon(moon, planet));
  ASSERT_TRUE(bodies.GetNextPlanet(planet));
  ASSERT_TRUE(bodies.GetNextMoon(moon));
  EXPECT_EQ(planet.number, 2);
  EXPECT_EQ(moon.number, 102);
}

TEST_F(PlanetsAndMoons, MoonsBehindAGapDoNotCount) {
  auto bodies = Load("moon\t501\tIo\nmoon\t502\tEuropa\nmoon\t504\tCallisto\n");
  EXPECT_EQ(bodies.GetNumberOfMoons({kPlanet, 5}), 2);
  EXPECT_EQ(Moons(bodies, 5), (std::vector<int>{501, 502}));
  EXPECT_TRUE(bodies.HasMoons({kPlanet, 5}));
}

TEST_F(PlanetsAndMoons, APlanetWhoseFirstMoonIsMissingHasNone) {
  auto bodies = Load("moon\t402\tDeimos\n");
  EXPECT_EQ(bodies.GetNumberOfMoons({kPlanet, 4}), 0);
  EXPECT_FALSE(bodies.HasMoons({kPlanet, 4}));
  SSO_ID body(7, 8);
  EXPECT_FALSE(bodies.GetFirstMoon(body, {kPlanet, 4}));
  EXPECT_EQ(body, SSO_ID(7, 8));
}

TEST_F(PlanetsAndMoons, AHundredMoonsRunIntoTheNextPlanet) {
  std::string content;
  for (int i = 501; i <= 602; ++i) content += "moon\t" + std::to_string(i) + "\tx\n";
  EXPECT_EQ(Load(content).GetNumberOfMoons({kPlanet, 5}), 102);
}

TEST_F(PlanetsAndMoons, PlanetNumbersThatNoMoonCanHave) {
  auto bodies = Load("moon\t2147483647\tlast\nmoon\t1\tof nothing\n");
  const int kLargest = std::numeric_limits<int>::max();
  for (const int planet : {kLargest, -kLargest - 1, kLargest / 100 + 1}) {
    SSO_ID body;
    EXPECT_FALSE(bodies.HasMoons({kPlanet, planet}));
    EXPECT_EQ(bodies.GetNumberOfMoons({kPlanet, planet}), 0);
    EXPECT_FALSE(bodies.GetFirstMoon(body, {kPlanet, planet}));
  }
  EXPECT_TRUE(bodies.HasMoons({kPlanet, 0}));
}

TEST_F(PlanetsAndMoons, TheEnumerationEndsAtTheLargestNumber) {
  // Planet 21474836 would have the moons 2147483601 to 2147483647, the largest number there is.
  std::string content;
  for (unsigned i = 2147483601u; i <= 2147483647u; ++i) content += "moon\t" + std::to_string(i) + "\tx\n";
  auto bodies = Load(content);
  EXPECT_EQ(bodies.GetNumberOfMoons({kPlanet, 21474836}), 47);
  EXPECT_EQ(Moons(bodies, 21474836).size(), 47u);
}

TEST_F(PlanetsAndMoons, TheFlagIsThatOfTheKindUnlessGiven) {
  auto bodies =
      Load("plnt\t1\ta\nplnt\t2\tb\t0\nplnt\t3\tc\t-7\nmoon\t101\td\nmoon\t102\te\t1\nplan\t1\tf\n");
  std::vector<int> flags;
  SSO_ID body;
  for (bool more = bodies.GetFirstPlanet(body); more; more = bodies.GetNextPlanet(body))
    flags.push_back(body.fourth);
  for (bool more = bodies.GetFirstMoon(body, {kPlanet, 1}); more; more = bodies.GetNextMoon(body)) {
    flags.push_back(body.fourth);
  }
  EXPECT_EQ(flags, (std::vector<int>{1, 0, 1, 0, 1}));
}

TEST_F(PlanetsAndMoons, StoredIdentifiersCarryTheName) {
  auto bodies = Load("plnt\t1\t  Mercury \t1\n");
  SSO_ID body;
  body.third = 9;
  ASSERT_TRUE(bodies.GetFirstPlanet(body));
  EXPECT_STREQ(body.name, "Mercury");
  EXPECT_EQ(body.third, 0);
  EXPECT_EQ(NameOf(bodies, kPlanet, 1), "Mercury");
}

TEST_F(PlanetsAndMoons, LongNamesAreWholeAsTextsAndCutInIdentifiers) {
  auto bodies = Load("plnt\t1\t" + std::string(200, 'n') + "\n");
  SSO_ID body;
  ASSERT_TRUE(bodies.GetFirstPlanet(body));
  EXPECT_EQ(std::string(body.name), std::string(79, 'n'));
  EXPECT_EQ(NameOf(bodies, kPlanet, 1), std::string(200, 'n'));
}

TEST_F(PlanetsAndMoons, AnUnknownKindOfFourCharactersIsStored) {
  const auto bodies = Load("plan\t1\tX\n\xFF\xFF\xFF\xFF\t-1\tY\n");
  EXPECT_EQ(NameOf(bodies, FourCC("plan"), 1), "X");
  EXPECT_EQ(NameOf(bodies, -1, -1), "Y") << "four bytes are a code, whatever they are";
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(PlanetsAndMoons, AKindOfAnotherLengthIsRejected) {
  const auto bodies = Load("planet\t1\tX\nplt\t2\tY\n\t3\tZ\nplnt\t4\tMars\n");
  EXPECT_EQ(debug.lines,
            (Lines{Bad("object type in string", "planet\t1\tX"), Bad("object type in string", "plt\t2\tY"),
                   Bad("object type in string", "\t3\tZ")}));
  EXPECT_EQ(NameOf(bodies, kPlanet, 4), "Mars");
}

TEST_F(PlanetsAndMoons, FewerThanThreeFieldsAreABadString) {
  const auto bodies = Load("plnt\t1\n\nplnt 2 Venus\nplnt\t3\tEarth\n");
  EXPECT_EQ(debug.lines, (Lines{Bad("string", "plnt\t1"), Bad("string", ""), Bad("string", "plnt 2 Venus")}));
  EXPECT_EQ(NameOf(bodies, kPlanet, 3), "Earth");
}

TEST_F(PlanetsAndMoons, ABadNumberAndABadFlagHaveTheSameMessage) {
  const auto bodies = Load("plnt\tone\tX\nplnt\t2\tY\tyes\nplnt\t3\tZ\t\nplnt\t4294967296\tW\n");
  EXPECT_EQ(
      debug.lines,
      (Lines{Bad("object Id in string", "plnt\tone\tX"), Bad("object Id in string", "plnt\t2\tY\tyes"),
             Bad("object Id in string", "plnt\t3\tZ\t"), Bad("object Id in string", "plnt\t4294967296\tW")}));
  EXPECT_EQ(bodies.GetObjectName({kPlanet, 2}), nullptr);
}

TEST_F(PlanetsAndMoons, OfTwoLinesForABodyTheLastCounts) {
  auto bodies = Load("plnt\t1\tfirst\t1\nplnt\t1\tsecond\t0\n");
  EXPECT_EQ(NameOf(bodies, kPlanet, 1), "second");
  SSO_ID body;
  ASSERT_TRUE(bodies.GetFirstPlanet(body));
  EXPECT_EQ(body.fourth, 0);
  EXPECT_EQ(Planets(bodies), std::vector<int>{1});
}

TEST_F(PlanetsAndMoons, MarkAndLineEnds) {
  const auto bodies = Load("\xEF\xBB\xBFplnt\t1\tMercury\r\nplnt\t2\tV\xE9nus\t1\r\nplnt\t3\tEarth");
  EXPECT_EQ(NameOf(bodies, kPlanet, 1), "Mercury");
  EXPECT_EQ(NameOf(bodies, kPlanet, 2), "V\xE9nus");
  EXPECT_EQ(NameOf(bodies, kPlanet, 3), "Earth");
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(PlanetsAndMoons, AMarkInsideTheFileIsNoMark) {
  Load("plnt\t1\ta\n\xEF\xBB\xBFplnt\t2\tb\n");
  EXPECT_EQ(debug.lines, Lines{Bad("object type in string", "\xEF\xBB\xBFplnt\t2\tb")});
}

TEST_F(PlanetsAndMoons, LongLinesAreCut) {
  const auto bodies = Load("plnt\t1\t" + std::string(300, 'n') + "\t0\nplnt\t2\tVenus\n");
  EXPECT_EQ(NameOf(bodies, kPlanet, 1), std::string(255 - 7, 'n'));
  EXPECT_EQ(NameOf(bodies, kPlanet, 2), "Venus");
}

TEST_F(PlanetsAndMoons, AnEmptyNameIsAName) { EXPECT_EQ(NameOf(Load("plnt\t1\t \n"), kPlanet, 1), ""); }

TEST_F(PlanetsAndMoons, AnEmptyFileIsAnEmptyDescription) {
  auto bodies = Load("");
  EXPECT_EQ(Planets(bodies), std::vector<int>{});
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(PlanetsAndMoons, AMissingFilePrintsText3007WithTheLogicalPath) {
  LoadStrings(roots, "3007\tPlanets and moons: %s cannot be read\\n\n");
  const PlanetMoonDescription bodies;
  EXPECT_EQ(debug.lines,
            Lines{"Planets and moons: catalogs\\planets&moons\\planets&moons.txt cannot be read\n"});
  EXPECT_FALSE(bodies.HasMoons({kPlanet, 3}));
}

TEST_F(PlanetsAndMoons, AFileThatCannotBeOpenedPrintsText3007WithItsPath) {
  LoadStrings(roots, "3007\tno %s\n");
  std::filesystem::create_directories(roots.dir.Path(kFile));
  const PlanetMoonDescription bodies;
  EXPECT_EQ(debug.lines, Lines{"no " + Path() + "\n"}) << "with the line end that the text lacks";
}

TEST_F(PlanetsAndMoons, AText3007ThatDoesNotFitIsNotUsedAsAFormat) {
  LoadStrings(roots, "3007\t%d %n\n");
  const PlanetMoonDescription bodies;
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0].find("String with ID = 3007 does not fit its use: "), 0u);
}

}  // namespace
