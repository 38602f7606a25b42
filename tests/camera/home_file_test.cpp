// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <limits>
#include <string>

#include "camera/home_fixture.h"

namespace {

using namespace test_support;
using namespace CommonInterfaces;

// "plnt" and "moon" as the decimal numbers of the file.
constexpr char kEarthInFile[] = "1886154356 3";
constexpr char kMarsInFile[] = "1886154356 4";

std::string LocationLine(const char* observer, const char* distance = "0", const char* rest = "") {
  return std::string("0 2 ") + distance + " 0.15 0.87 1 2 " + observer + rest + "\n";
}

class HomeFileTest : public HomeTest {};

TEST_F(HomeFileTest, WithoutAFileThereAreNoHomesAndNoMessage) {
  const Camera camera(1);
  EXPECT_EQ(camera.FindHome(kEarthId), nullptr);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(HomeFileTest, EveryPartOfARecordIsRead) {
  WriteHomes(
      "7\n1 2 149597870.7 0.15 -0.87 4 3 1886154356 4 1\nOlympus Mons\n"
      "    0.50000000    -0.25000000     0.12500000 2\n3.5\n1 1836019566 401\n"
      "2460000         0.25000000 1\nEurope/Berlin\n");
  const Camera camera(1);
  const HomeParameters* const home = camera.FindHome(kMarsId);
  ASSERT_NE(home, nullptr);
  EXPECT_EQ(home->flags, 7);
  EXPECT_EQ(home->movingType, 1);
  EXPECT_EQ(home->locationType, 2);
  EXPECT_EQ(home->location.dist, 1.0);
  EXPECT_EQ(home->location.lon, 0.15);
  EXPECT_EQ(home->location.lat, -0.87);
  EXPECT_EQ(home->location.distUnits, 4);
  EXPECT_EQ(home->location.coorSys, 3);
  EXPECT_STREQ(home->locationName, "Olympus Mons");
  EXPECT_EQ(home->alp, 0.5);
  EXPECT_EQ(home->bet, -0.25);
  EXPECT_EQ(home->slp, 0.125);
  EXPECT_EQ(home->aimingDispType, 2);
  EXPECT_EQ(home->zoom, 3.5);
  EXPECT_TRUE(home->directionLocked);
  EXPECT_EQ(home->centerObject, SSO_ID(FourCC("moon"), 401));
  EXPECT_EQ(home->day, 2460000);
  EXPECT_EQ(home->fraction, 0.25);
  EXPECT_EQ(home->timeType, 1);
  EXPECT_STREQ(home->timeZoneName, "Europe/Berlin");
}

TEST_F(HomeFileTest, TheDataRootAndItsMediaFolderStandInForTheWorkArea) {
  roots.dir.Write("data/media/home_params.ini", "1\n" + LocationLine(kMarsInFile));
  EXPECT_NE(Camera(1).FindHome(kMarsId), nullptr);
  roots.dir.Write("data/home_params.ini", "1\n" + LocationLine(kEarthInFile));
  const Camera camera(1);
  EXPECT_EQ(camera.FindHome(kMarsId), nullptr);
  EXPECT_NE(camera.FindHome(kEarthId), nullptr);
}

TEST_F(HomeFileTest, AnEarthRecordAlwaysHasZoom065) {
  WriteHomes("3\n" + LocationLine(kEarthInFile) + "0 0 0 -1\n12.5\n0 -1 -1\n3\n" + LocationLine(kMarsInFile) +
             "0 0 0 -1\n12.5\n0 -1 -1\n");
  const Camera camera(1);
  EXPECT_EQ(camera.FindHome(kEarthId)->zoom, 0.65);
  EXPECT_EQ(camera.FindHome(kMarsId)->zoom, 12.5);
  WriteHomes("1\n" + LocationLine(kEarthInFile));  // one without a view, too
  EXPECT_EQ(Camera(1).FindHome(kEarthId)->zoom, 0.65);
}

TEST_F(HomeFileTest, AnUnnamedPlaceIsWrittenInOneUnitAndReadInAnother) {
  Camera camera(1);
  StandOn(camera, kMarsId);
  SphCoor place;
  place.dist = 1.0;
  camera.SetLocation(place);
  camera.StoreParams(kHomeLocation);
  camera.SaveHomeParams();
  EXPECT_EQ(ReadHomes(), std::string("1\n0 2 1 0 0 0 0 ") + kMarsInFile + "\n");
  EXPECT_EQ(Camera(1).FindHome(kMarsId)->location.dist, 1.0 / 149597870.7);
}

TEST_F(HomeFileTest, ANamedPlaceIsWrittenInKilometres) {
  Camera camera(1);
  StandOn(camera, kMarsId);
  SphCoor place;
  place.dist = 1.0;
  camera.SetLocation(place);
  camera.SetLocationName("Gale");
  camera.StoreParams(kHomeLocation);
  camera.SaveHomeParams();
  EXPECT_EQ(ReadHomes(), std::string("1\n0 2 1.49598e+08 0 0 0 0 ") + kMarsInFile + " 1\nGale\n");
  EXPECT_EQ(Camera(1).FindHome(kMarsId)->location.dist, 149598000.0 / 149597870.7);
}

TEST_F(HomeFileTest, TheWholeRecordIsWrittenAsThePageSays) {
  Camera camera(1);
  StandOn(camera, kEarthId);
  camera.SetUniversalTime({2460000, 0.25, 1});
  camera.SetRA_Dec({0.5, -0.25, 0.125, 0});
  camera.SetZoom(3.5);
  SphCoor place;
  place.lon = 0.15;
  place.lat = 0.87;
  place.coorSys = 2;
  camera.SetLocation(place);
  camera.SetTimeZoneName("Europe/Berlin", true);
  camera.StoreParams(kHomeLocation | kHomeView | kHomeTime);
  camera.SaveHomeParams();
  EXPECT_EQ(ReadHomes(), std::string("7\n0 2 0 0.15 0.87 0 2 ") + kEarthInFile +
                             "\n"
                             "    0.50000000    -0.25000000     0.12500000 -1\n3.5\n0 -1 -1\n"
                             "2460000         0.25000000 1\nEurope/Berlin\n");
}

TEST_F(HomeFileTest, AnEmptyZoneIsWrittenAsAHyphenAndReadBackAsEmpty) {
  Camera camera(1);
  StandOn(camera, kMarsId);
  camera.SetTimeZoneName("Europe/Berlin", true);
  camera.StoreParams(kHomeLocation | kHomeTime);
  camera.SaveHomeParams();
  EXPECT_NE(ReadHomes().find("\n-\n"), std::string::npos);
  EXPECT_STREQ(Camera(1).FindHome(kMarsId)->timeZoneName, "");
}

TEST_F(HomeFileTest, HomesAreWrittenInTheOrderOfTheirObservers) {
  Camera camera(1);
  for (const SSO_ID& object : {kMarsId, kMoonId, kEarthId}) {
    StandOn(camera, object);
    camera.StoreParams(kHomeLocation);
  }
  camera.SaveHomeParams();
  const std::string text = ReadHomes();
  const auto moon = text.find("1836019566 301"), earth = text.find(kEarthInFile),
             mars = text.find(kMarsInFile);
  EXPECT_LT(moon, earth);
  EXPECT_LT(earth, mars);
  EXPECT_NE(mars, std::string::npos);
}

TEST_F(HomeFileTest, NamesWithMarksOfTheFileComeBackAsTheyWere) {
  for (const std::string name : {"!Home", "}Home", "100 % sure %n %s", "\\!Home", "\\\\Home", "\\Home", "\\",
                                 "-", " two blanks ", "!", "}", "1 2 3", "M\xC3\xBCnchen"}) {
    Camera camera(1);
    StandOn(camera, kMarsId);
    camera.SetLocationName(name.c_str());
    camera.StoreParams(kHomeLocation | kHomeView);
    camera.SaveHomeParams();
    const Camera later(1);
    ASSERT_NE(later.FindHome(kMarsId), nullptr) << name;
    EXPECT_EQ(later.FindHome(kMarsId)->locationName, name);
    EXPECT_EQ(later.FindHome(kMarsId)->flags, 3) << name;
  }
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(HomeFileTest, ANameOf300BytesKeeps255) {
  const std::string name(300, 'n');
  Camera camera(1);
  StandOn(camera, kMarsId);
  camera.SetLocationName(name.c_str());
  camera.StoreParams(kHomeLocation);
  EXPECT_EQ(camera.GetLocationName(), name);
  camera.SaveHomeParams();
  EXPECT_EQ(Camera(1).FindHome(kMarsId)->locationName, name.substr(0, 255));
  WriteHomes("1\n" + LocationLine(kMarsInFile, "0", " 1") + std::string(4000, 'x') + "\n");
  EXPECT_EQ(Camera(1).FindHome(kMarsId)->locationName, std::string(255, 'x'));
}

TEST_F(HomeFileTest, LineEndsInANameBecomeBlanks) {
  Camera camera(1);
  StandOn(camera, kMarsId);
  camera.SetLocationName("two\nlines\r\n");
  camera.StoreParams(kHomeLocation);
  camera.SaveHomeParams();
  EXPECT_STREQ(Camera(1).FindHome(kMarsId)->locationName, "two lines  ");
}

TEST_F(HomeFileTest, CommentsAreSkippedAndTheEndMarkEndsTheFile) {
  WriteHomes("! homes\n1\n! where\n" + LocationLine(kMarsInFile) + "}\n1\n" + LocationLine(kEarthInFile));
  const Camera camera(1);
  EXPECT_NE(camera.FindHome(kMarsId), nullptr);
  EXPECT_EQ(camera.FindHome(kEarthId), nullptr);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(HomeFileTest, LineEndsOfEitherKindAByteOrderMarkAndBlankLinesAreFine) {
  WriteHomes("\xEF\xBB\xBF\r\n1\r\n0 2 0 0.15 0.87 1 2 1886154356 4 1\r\nGale\r\n\r\n");
  const Camera camera(1);
  ASSERT_NE(camera.FindHome(kMarsId), nullptr);
  EXPECT_STREQ(camera.FindHome(kMarsId)->locationName, "Gale");
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(HomeFileTest, OfTwoRecordsForOneObserverTheFirstCounts) {
  WriteHomes("1\n" + LocationLine(kMarsInFile, "0", " 1") + "first\n1\n" +
             LocationLine(kMarsInFile, "0", " 1") + "second\n");
  EXPECT_STREQ(Camera(1).FindHome(kMarsId)->locationName, "first");
}

TEST_F(HomeFileTest, ARecordWithoutALocationNamesNoObserver) {
  WriteHomes("2\n0.5 0 0 -1\n2\n0 -1 -1\n");
  Camera camera(1);
  EXPECT_EQ(camera.FindHome(kEarthId), nullptr);
  ASSERT_NE(camera.FindHome(SSO_ID()), nullptr);
  EXPECT_EQ(camera.FindHome(SSO_ID())->alp, 0.5);
}

TEST_F(HomeFileTest, TheEarthsHomeGivesZoneAndNameToANewCamera) {
  WriteHomes("5\n" + LocationLine(kEarthInFile, "0", " 1") + "Home town\n2460000 0.25 1\nEurope/Berlin\n");
  const Camera camera(1);
  EXPECT_STREQ(camera.GetTimeZoneName(), "Europe/Berlin");
  EXPECT_EQ(camera.GetLocationName(), "Home town");
}

// A line that the reader refuses would cost the homes behind it.
TEST_F(HomeFileTest, APlaceThatIsNoNumberDoesNotCostTheHomesBehindIt) {
  Camera camera(1);
  StandOn(camera, kMoonId);
  SphCoor place;
  place.lat = std::numeric_limits<double>::quiet_NaN();
  camera.SetLocation(place);
  camera.StoreParams(kHomeLocation);
  StandOn(camera, kMarsId);
  camera.StoreParams(kHomeLocation);
  camera.SaveHomeParams();
  const Camera later(1);
  ASSERT_NE(later.FindHome(kMoonId), nullptr);
  EXPECT_EQ(later.FindHome(kMoonId)->location.lat, 0.0);
  EXPECT_NE(later.FindHome(kMarsId), nullptr);
  EXPECT_TRUE(debug.lines.empty());
}

struct Damage {
  const char* name;
  const char* text;  // after one good record
};
class DamagedHomesTest : public HomeTest, public testing::WithParamInterface<Damage> {};

TEST_P(DamagedHomesTest, EndTheLoadingAndKeepWhatWasRead) {
  WriteHomes("1\n" + LocationLine(kMarsInFile) + GetParam().text);
  const Camera camera(1);
  EXPECT_NE(camera.FindHome(kMarsId), nullptr);
  EXPECT_EQ(camera.FindHome(kEarthId), nullptr);
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0], "File " + ZentharPath::GetPath("home_params.ini") +
                                ": home 2 is damaged, it and what follows is left out\n");
}

INSTANTIATE_TEST_SUITE_P(
    Each, DamagedHomesTest,
    testing::Values(Damage{"FlagsThatAreNoNumber", "seven\n"}, Damage{"LocationLineMissing", "1\n"},
                    Damage{"LocationWithEightNumbers", "1\n0 2 0 0.15 0.87 1 2 1886154356\n"},
                    Damage{"MovingTypeBeyondAByte", "1\n300 2 0 0.15 0.87 1 2 1886154356 3\n"},
                    Damage{"UnitBeyondAByte", "1\n0 2 0 0.15 0.87 256 2 1886154356 3\n"},
                    Damage{"LatitudeThatIsNotFinite", "1\n0 2 0 0.15 nan 1 2 1886154356 3\n"},
                    Damage{"NameLineMissing", "1\n0 2 0 0.15 0.87 1 2 1886154356 3 1\n"},
                    Damage{"ViewLineMissing", "3\n0 2 0 0.15 0.87 1 2 1886154356 3\n"},
                    Damage{"ThreeNumbersOfTheView", "3\n0 2 0 0.15 0.87 1 2 1886154356 3\n0 0 0\n"},
                    Damage{"ZoomMissing", "3\n0 2 0 0.15 0.87 1 2 1886154356 3\n0 0 0 1\n"},
                    Damage{"DirectionLineMissing", "3\n0 2 0 0.15 0.87 1 2 1886154356 3\n0 0 0 1\n1\n"},
                    Damage{"TimeLineMissing", "5\n0 2 0 0.15 0.87 1 2 1886154356 3\n"},
                    Damage{"ZoneLineMissing", "5\n0 2 0 0.15 0.87 1 2 1886154356 3\n2460000 0.5 1\n"},
                    Damage{"BytesOfNoText", "\x01\xFF\x80 \n1\n0 2 0 0.15 0.87 1 2 1886154356 3\n"}),
    [](const auto& each) { return std::string(each.param.name); });

TEST_F(HomeFileTest, SavingWithoutAWorkAreaReports) {
  Camera camera(1);
  StandOn(camera, kMarsId);
  camera.StoreParams(kHomeLocation);
  ZentharPath::SetRoots(roots.dir.Path("data").c_str(), nullptr);
  camera.SaveHomeParams();
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_EQ(debug.lines[0], "File home_params.ini: homes not saved\n");
}

TEST_F(HomeFileTest, AFileThatCannotBeReplacedStaysAndIsReported) {
  // A folder of that name can be neither opened nor replaced.
  std::filesystem::create_directories(roots.dir.Path("work/home_params.ini/inside"));
  Camera camera(1);
  StandOn(camera, kMarsId);
  camera.StoreParams(kHomeLocation);
  debug.lines.clear();
  camera.SaveHomeParams();
  EXPECT_TRUE(std::filesystem::is_directory(roots.dir.Path("work/home_params.ini/inside")));
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_NE(debug.lines[0].find("home_params.ini"), std::string::npos);
}

}  // namespace
