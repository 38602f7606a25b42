// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <fstream>
#include <string>

#include "astro/delta_t.h"
#include "camera/home_fixture.h"
#include "camera/view_helpers.h"

namespace {

using namespace test_support;
using namespace CommonInterfaces;

const SSO_ID kSunId(FourCC("plnt"), 10);
const SSO_ID kStarId(FourCC("star"), 7);
const SSO_ID kOtherGalaxy(FourCC("gala"), 5);

// A record of the test's settings, by the number that its values are made from.
struct Record {
  int number;
  unsigned identifier;  // the bytes of the moving type's name, first byte lowest
  int type, plane, coordinates;
};
constexpr Record kRecords[] = {
    {99, 0x43414D52, 0, 0, 2},  // "RMAC": the camera's own
    {0, 0x43535851, 0, 1, 2},   // "QXSC"
    {1, 0x434D5851, 1, 1, 2},   // "QXMC"
    {2, 0x43484F56, 2, 0, 2},   // "VOHC"
    {3, 0x4346434E, 3, 2, 0},   // "NCFC"
    {4, 0x43534F4C, 4, 3, 3},   // "LOSC"
    {5, 0x43535453, 5, 0, 2},   // "STSC"
    {9, 0x4347414C, 9, 2, 3},   // "LAGC"
    {10, 0x43464C54, 10, 3, 3}  // "TLFC"
};

RecordFields FieldsOf(const Record& record) {
  const int n = record.number;
  RecordFields fields = CameraFields();
  ReplaceField(fields, Double("m_Zoom", 2.0 + n));
  ReplaceField(fields, Double("m_lam", (20 + n) * kDegree));
  ReplaceField(fields, Double("m_fi", (10 + n % 60) * kDegree));
  ReplaceField(fields, Double("m_dist", 0.5 * n));
  ReplaceField(fields, UInt8("m_distUnits", n % 8));
  ReplaceField(fields, UInt8("m_DispCoorSysObserver", record.coordinates));
  ReplaceField(fields, UInt8("m_BasePlane", record.plane));
  ReplaceField(fields, Int8("m_ObsMovingType", record.type));
  ReplaceField(fields, UInt8("m_dirLock", n == 10));
  ReplaceField(fields, Double("m_alp", (30 + n) * kDegree));
  ReplaceField(fields, Double("m_bet", 5 * kDegree));
  ReplaceField(fields, Double("m_slp", n % 7 * kDegree));
  ReplaceField(fields, Int32("m_JT", 2400000 + n));
  ReplaceField(fields, Double("m_TJ", 0.125));
  ReplaceField(fields, Int32("timeType", 0));
  ReplaceField(fields, Int8("FST", 1));
  if (n == 3) ReplaceField(fields, Int32("m_ObsObjID", 10));
  if (n == 9) {
    ReplaceField(fields, UInt32("m_ObsObjType", 0x67616C61));  // "gala"
    ReplaceField(fields, Int32("m_ObsObjID", 0));
  }
  return fields;
}

struct RootsWithRecords : TempRoots {
  RootsWithRecords() {
    for (const Record& record : kRecords) WriteCameraDefaults(*this, FieldsOf(record), record.identifier);
  }
};

void SetStart(Camera& camera, int type) {
  camera.CreateDefault();
  camera.SetMovingType(static_cast<char>(type), false);
  camera.SetZoom(50.0 + type);
  SphCoor place = camera.GetLocation();
  place.lon = (-50 - type) * kDegree;
  place.lat = (40 + type) * kDegree;
  place.dist = 7.0;
  place.distUnits = 3;
  camera.SetLocation(place);
  camera.SetUniversalTime({2460000, 0.25, 1});
  camera.SetFST_Mode(0);
  const bool locked = type % 2 != 0;
  camera.SetCenterView(locked ? kStarId : SSO_ID());
  camera.SetDirectionLock(locked);
  camera.SetRA_Dec({(70 + type) * kDegree, -20 * kDegree, 15 * kDegree, 0});
  camera.SetObserver(type <= 1 ? kMarsId : type == 9 ? kOtherGalaxy : kMoonId);
  camera.SetObserverName("");  // clears the observer-changed flag
  camera.ClearZoomChanged();
}

std::string Name(const SSO_ID& object) {
  if (object.kind == -1) return "-:-1";
  std::string name;
  for (int shift = 24; shift >= 0; shift -= 8) name += static_cast<char>(object.kind >> shift & 0xFF);
  return name + ":" + std::to_string(object.number);
}

std::string Describe(const Camera& camera) {
  _Date time;
  camera.GetUniversalTime(time);
  const SphCoor& place = camera.GetLocation();
  const SphViewCoor& angles = camera.GetViewAngles();
  std::string flags = camera.IsObserverChanged() ? "o" : "";
  if (camera.IsZoomChanged()) flags += "z";
  char text[512];
  std::snprintf(text, sizeof text, "%d %g %g %g %g %d %d %s %s %d %d %d %g %g %g %d %g %d %d %s",
                camera.GetMovingType(), camera.GetZoom(), place.lon / kDegree, place.lat / kDegree,
                place.dist, place.distUnits, place.coorSys, Name(camera.GetObserver()).c_str(),
                Name(camera.GetCenterObject()).c_str(), camera.IsFirstLook(), camera.IsDirectionLocked(),
                camera.GetBasePlane(), angles.lon / kDegree, angles.lat / kDegree, angles.slope / kDegree,
                time.day, time.fraction, time.type, camera.GetFST_Mode(),
                flags.empty() ? "-" : flags.c_str());
  return text;
}

class MovingTypeTest : public testing::Test {
 protected:
  RootsWithRecords roots;
  Camera camera{1};
};

TEST_F(MovingTypeTest, EachOfTheChangesGivesTheStateOfTheTable) {
  std::ifstream table(MOVING_TYPES_TABLE);
  std::string line;
  ASSERT_TRUE(std::getline(table, line)) << MOVING_TYPES_TABLE;
  int count = 0;
  for (int from = 0; from < 12; ++from) {
    for (int to = 0; to < 12; ++to) {
      for (const bool keep : {false, true}) {
        Camera own(1);
        SetStart(own, from);
        own.SetMovingType(static_cast<char>(to), keep);
        ASSERT_TRUE(std::getline(table, line));
        EXPECT_EQ(
            std::to_string(from) + " " + std::to_string(to) + (keep ? " keep | " : " - | ") + Describe(own),
            line);
        ++count;
      }
    }
  }
  EXPECT_EQ(count, 288);
  EXPECT_FALSE(std::getline(table, line));
}

TEST_F(MovingTypeTest, WhoComesBackFindsTheView) {
  for (const int away : {1, 2, 3, 4, 5, 9, 10}) {
    Camera own(1);
    SetStart(own, 0);
    const std::string view = Describe(own);
    own.SetMovingType(static_cast<char>(away), true);
    own.SetMovingType(0, true);
    own.SetObserverName("");
    own.ClearZoomChanged();
    // Types 1 and 3 turn to the body that was left, type 4 locks on it: that is theirs to do.
    own.SetCenterView(SSO_ID());
    own.SetDirectionLock(false);
    EXPECT_EQ(Describe(own), view) << "by way of type " << away;
  }
}

TEST_F(MovingTypeTest, ThePlaceIsOnlyPutBackOnItsOwnBody) {
  SetStart(camera, 0);
  camera.SetMovingType(3, false);
  camera.SetObserver(SSO_ID(FourCC("plnt"), 5));
  camera.SetMovingType(0, false);
  EXPECT_EQ(camera.GetObserver(), SSO_ID(FourCC("plnt"), 5));
  EXPECT_NEAR(camera.GetLocation().lon / kDegree, 20, 1e-12);  // the record's
}

TEST_F(MovingTypeTest, APlaceLeftInThisCallComesBackWhicheverBodyTheRecordNames) {
  SetStart(camera, 0);
  camera.SetObserver(kOtherGalaxy);
  // By the camera's own record, which names the Earth and lies at 119 degrees.
  camera.SetMovingType(1, false);
  EXPECT_NE(camera.GetObserver(), kOtherGalaxy);
  EXPECT_NEAR(camera.GetLocation().lon / kDegree, -50, 1e-12);
  EXPECT_NEAR(camera.GetLocation().lat / kDegree, 40, 1e-12);
  EXPECT_EQ(camera.GetLocation().coorSys, 2);
}

TEST_F(MovingTypeTest, APlaceLeftInThisCallHasTheRecordsDistance) {
  SetStart(camera, 1);
  camera.SetMovingType(1, false);
  EXPECT_NEAR(camera.GetLocation().lon / kDegree, -51, 1e-12);
  EXPECT_EQ(camera.GetLocation().dist, 0.5);
  EXPECT_EQ(camera.GetLocation().distUnits, 1);
}

TEST_F(MovingTypeTest, APlaceOfAnEarlierCallComesBackWithItsDistance) {
  SetStart(camera, 0);
  camera.SetMovingType(3, false);
  camera.SetMovingType(0, false);
  EXPECT_NEAR(camera.GetLocation().lon / kDegree, -50, 1e-12);
  EXPECT_EQ(camera.GetLocation().dist, 7.0);
  EXPECT_EQ(camera.GetLocation().distUnits, 3);
}

TEST_F(MovingTypeTest, ATypeThatIsNoneIsRefusedWithALine) {
  SetStart(camera, 0);
  const std::string before = Describe(camera);
  for (const int type : {12, 127, -1, -128}) {
    DebugCapture debug;
    camera.SetMovingType(static_cast<char>(type), true);
    EXPECT_EQ(Describe(camera), before);
    ASSERT_EQ(debug.lines.size(), 1u);
    EXPECT_EQ(debug.lines[0], "Bad moving type " + std::to_string(type) + " in Camera::SetMovingType\n");
  }
}

TEST_F(MovingTypeTest, TheObserversNameStaysWithIt) {
  SetStart(camera, 0);
  SSO_ID named = kMarsId;
  std::snprintf(named.name, sizeof named.name, "%s", "Mars");
  camera.SetObserver(SSO_ID());
  camera.SetObserver(named);
  camera.SetMovingType(1, false);
  EXPECT_STREQ(camera.GetObserver().name, "Mars");
}

TEST_F(MovingTypeTest, TimeZoneAndDeltaTStay) {
  SetStart(camera, 0);
  camera.SetTimeZoneName("Europe/Berlin", true);
  camera.SetMovingType(3, false);
  EXPECT_STREQ(camera.GetTimeZoneName(), "Europe/Berlin");
  _Date dynamical;
  camera.GetTime(dynamical);
  EXPECT_EQ(dynamical.fraction, 0.25 + ET_UT::Get(2460000, 0.25) / 86400.0);
}

TEST_F(MovingTypeTest, ScaleMatrixAndLimitsFollowTheNewState) {
  SetStart(camera, 0);
  camera.SetWinRect(Window(800, 600));
  camera.SetMovingType(3, false);  // zoom 5, direction (33, 5) degrees
  Camera same(1);
  same.CreateDefault();
  same.SetMovingType(3, false);
  same.SetZoom(5.0);
  same.SetWinRect(Window(800, 600));
  LookAt(same, 33 * kDegree, 5 * kDegree, 3 * kDegree);
  EXPECT_EQ(camera.GetFieldOfView(), same.GetFieldOfView());
  EXPECT_EQ(camera.GetDarkMagObjectF(FourCC("star")), same.GetDarkMagObjectF(FourCC("star")));
  const Direction direction(35 * kDegree, 7 * kDegree);
  tPoint<double> a, b;
  camera.RA_Dec2PixD(direction.v, &a);
  same.RA_Dec2PixD(direction.v, &b);
  EXPECT_EQ(a.x, b.x);
  EXPECT_EQ(a.y, b.y);
}

TEST_F(MovingTypeTest, WhatIsKeptGivesThePictureAndTheLimitsItGaveBefore) {
  SetStart(camera, 0);
  camera.SetWinRect(Window(800, 600));
  const Direction direction(72 * kDegree, -18 * kDegree);
  tPoint<double> before, after;
  camera.RA_Dec2PixD(direction.v, &before);
  const float limit = camera.GetDarkMagObjectF(FourCC("star"));
  camera.SetMovingType(1, true);  // the record has zoom 3 and looks to (31, 5) degrees
  camera.RA_Dec2PixD(direction.v, &after);
  EXPECT_EQ(after.x, before.x);
  EXPECT_EQ(after.y, before.y);
  EXPECT_EQ(camera.GetDarkMagObjectF(FourCC("star")), limit);
}

TEST_F(MovingTypeTest, WithoutRecordsOnlyTheTypeChanges) {
  ZentharPath::SetRoots(nullptr, nullptr);
  Camera bare(1);
  bare.CreateDefault();
  bare.SetZoom(3.0);
  for (char type = 0; type < 12; ++type) {
    bare.SetMovingType(type, false);
    EXPECT_EQ(bare.GetMovingType(), type);
    EXPECT_EQ(bare.GetZoom(), 3.0);
  }
}

TEST_F(MovingTypeTest, WhoStandsOnTheSunStaysThere) {
  SetStart(camera, 0);
  camera.SetObserver(kSunId);
  camera.SetMovingType(1, false);
  EXPECT_EQ(camera.GetObserver(), kSunId);
}

// Away from the planets the types on a body have the camera's own record, which counts from another plane
// than the home on the Earth did.
TEST_F(MovingTypeTest, GoingHomeTakesThePlaneOfAPlanetsRecord) {
  for (const int from : {0, 1, 2, 9}) {
    Camera own(1);
    own.CreateDefault();
    own.SetMovingType(0, false);
    ASSERT_EQ(own.GetBasePlane(), 1);
    SphCoor place = own.GetLocation();
    place.lat = 0.25;
    own.SetLocation(place);
    own.SetRA_Dec({0.5, -0.125, 0.0, 0});
    own.StoreParams(kHomeLocation | kHomeView);
    own.SetObserver(from == 9 ? kOtherGalaxy : kMoonId);
    own.SetMovingType(static_cast<char>(from), false);
    ASSERT_NE(own.GetBasePlane(), 1) << from;
    own.GoHome(true);
    EXPECT_EQ(own.GetBasePlane(), 1) << from;
    EXPECT_EQ(own.GetMovingType(), 0) << from;
    EXPECT_EQ(own.GetObserver(), kEarthId) << from;
    EXPECT_EQ(own.GetLocation().lat, 0.25) << from;
    EXPECT_EQ(own.GetViewAngles().lon, 0.5) << from;
  }
}

TEST_F(MovingTypeTest, GoingHomeChangesTheTypeEvenToTheSame) {
  camera.CreateDefault();
  camera.StoreParams(kHomeLocation);
  ASSERT_EQ(camera.GetMovingType(), 0);
  ASSERT_NE(camera.GetBasePlane(), 1);
  camera.GoHome(true);
  EXPECT_EQ(camera.GetBasePlane(), 1);
  EXPECT_EQ(camera.GetZoom(), 2.0);  // the home holds none: that of the type's record
}

// A second change would leave the home's place too, and forget the one that was left.
TEST_F(MovingTypeTest, GoingHomeChangesTheTypeOnce) {
  camera.CreateDefault();
  SphCoor elsewhere = camera.GetLocation();
  elsewhere.coorSys = 3;
  camera.SetLocation(elsewhere);
  camera.StoreParams(kHomeLocation);
  SetStart(camera, 0);
  camera.SetObserver(kMoonId);
  camera.GoHome(true);
  camera.SetMovingType(3, false);
  camera.SetObserver(kMoonId);
  camera.SetMovingType(0, false);
  EXPECT_EQ(camera.GetObserver(), kMoonId);
  EXPECT_NEAR(camera.GetLocation().lon / kDegree, -50, 1e-12);
}

TEST_F(MovingTypeTest, AHomeWithoutAPlaceTakesThePlaneOfAPlanetsRecordToo) {
  camera.CreateDefault();
  camera.StoreParams(kHomeView);
  camera.SetObserver(kMoonId);
  camera.GoHome(true);
  EXPECT_EQ(camera.GetObserver(), kEarthId);
  EXPECT_EQ(camera.GetBasePlane(), 1);
}

TEST_F(MovingTypeTest, GoingHomeDoesNotTurnToTheBodyThatWasLeft) {
  for (const char* const type : {"1", "4"}) {
    roots.dir.Write("work/home_params.ini", std::string("3\n") + type +
                                                " 2 0 0.15 0.87 1 2 1886154356 3\n"
                                                "0.5 0.25 0 -1\n2\n0 -1 -1\n");
    Camera own(1);
    SetStart(own, 0);
    own.GoHome(true);
    EXPECT_EQ(own.GetMovingType(), type[0] - '0');
    EXPECT_EQ(own.GetObserver(), kEarthId);
    EXPECT_TRUE(own.GetCenterObject().IsEmpty()) << type;
    EXPECT_FALSE(own.IsDirectionLocked()) << type;
    EXPECT_FALSE(own.IsFirstLook()) << type;
  }
}

TEST_F(MovingTypeTest, WhoHasBeenAroundTheSunAloneTurnsToIt) {
  ASSERT_TRUE(camera.ReadSelf(nullptr, kRecords[4].identifier));
  ASSERT_EQ(camera.GetObserver(), kSunId);
  camera.SetMovingType(1, false);
  EXPECT_EQ(camera.GetObserver(), kSunId);
  EXPECT_EQ(camera.GetCenterObject(), kSunId);
}

TEST_F(MovingTypeTest, WhoComesFromAStarIsWhereTheRecordIs) {
  camera.CreateDefault();
  camera.SetObserver(kStarId);
  camera.SetMovingType(3, false);
  EXPECT_EQ(camera.GetObserver(), kSunId);
  EXPECT_EQ(camera.GetCenterObject(), SSO_ID());
}

TEST_F(MovingTypeTest, WhoHasNeverStoodAnywhereStandsWhereTheRecordIs) {
  ASSERT_TRUE(camera.ReadSelf(nullptr, kRecords[4].identifier));
  camera.SetMovingType(0, false);
  EXPECT_NEAR(camera.GetLocation().lon / kDegree, 20, 1e-12);
  EXPECT_NEAR(camera.GetLocation().lat / kDegree, 10, 1e-12);
}

}  // namespace
