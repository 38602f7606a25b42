// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstring>
#include <string>

#include "astro/delta_t.h"
#include "camera/camera_file_fixture.h"
#include "camera/view_helpers.h"

namespace {

using namespace test_support;
using CommonInterfaces::_Date;
using CommonInterfaces::Camera;
using CommonInterfaces::SettingsData;

constexpr unsigned kMovingTypeRecord = 0x4C4F5343;  // an identifier other than CAMR
constexpr unsigned kDefaults = SettingsData::kDefaultsTag;

TEST_F(CameraFileTest, NullNameReadsTheDefaultsAndSkipsTheDaylightSavingRule) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, Double("m_Zoom", 7.0));
  ReplaceField(fields, Int32("StartYear", 1999));
  ReplaceField(fields, Int16("IsDST", {1}));
  ReplaceField(fields, Float("TimeZone", 5.5f));
  TempRoots own;
  WriteCameraDefaults(own, fields);
  Camera reader(kOwner);
  EXPECT_TRUE(reader.ReadSelf(nullptr, kCAMR));
  EXPECT_EQ(reader.GetZoom(), 7.0);
  EXPECT_EQ(reader.GetDST()->StartYear, 0);
  EXPECT_FALSE(reader.GetDST()->IsDST);
  EXPECT_EQ(reader.GetDST()->TimeZone, 3.0f);
}

TEST_F(CameraFileTest, NamedFileGivesTheDaylightSavingRuleToo) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, Int32("StartYear", 1999));
  ReplaceField(fields, Int16("IsDST", {-3}));
  ReplaceField(fields, Int16("DateFrom", {1999, 3, -1, 2, 30}));
  ReplaceField(fields, Int16("DateTo", {-32768, 32767, 0, -5, 6}));
  ReplaceField(fields, Int16("DS_Shift", {60, -30}));
  ReplaceField(fields, Int16("IsCalendarDate", {1, 0x1FF}));
  ReplaceField(fields, Float("TimeZone", 5.5f));
  ReplaceField(fields, Int16("IsNorth", {1}));
  AppendBlock(Path("view.data"), kCAMR, kOwner, kCameraSection, fields);
  ASSERT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));
  const auto& dst = *camera.GetDST();
  EXPECT_EQ(dst.StartYear, 1999);
  EXPECT_TRUE(dst.IsDST);
  EXPECT_EQ(dst.DateFrom.date[0], 1999);
  EXPECT_EQ(dst.DateFrom.date[1], 3);
  EXPECT_EQ(dst.DateFrom.date[2], -1);
  EXPECT_EQ(dst.DateFrom.time[0], 2);
  EXPECT_EQ(dst.DateFrom.time[1], 30);
  EXPECT_EQ(dst.DateTo.date[0], -32768);
  EXPECT_EQ(dst.DateTo.date[1], 32767);
  EXPECT_EQ(dst.DateTo.time[0], -5);
  EXPECT_EQ(dst.DateTo.time[1], 6);
  EXPECT_EQ(dst.DS_Shift[0], 60.0f);
  EXPECT_EQ(dst.DS_Shift[1], -30.0f);
  EXPECT_EQ(dst.IsCalendarDate[0], 1);
  EXPECT_EQ(dst.IsCalendarDate[1], 0xFF);
  EXPECT_EQ(dst.TimeZone, 5.5f);
  EXPECT_TRUE(dst.IsNorth);
}

TEST_F(CameraFileTest, ReadRecomputesDeltaTAndRaisesNoTimeFlag) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, Int32("m_JT", 2400000));
  ReplaceField(fields, Double("m_TJ", 0.75));
  AppendBlock(Path("view.data"), kCAMR, kOwner, kCameraSection, fields);
  ASSERT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));
  _Date t;
  camera.GetTime(t);
  EXPECT_EQ(t.day, 2400000);
  EXPECT_EQ(t.fraction, 0.75 + ET_UT::Get(2400000, 0.75) / 86400.0);
  EXPECT_FALSE(camera.IsTimeChanged());
}

TEST_F(CameraFileTest, ReadRefreshesTheLimitsButKeepsTheScale) {
  camera.SetWinRect(Window(600, 800));
  camera.SetZoom(1.0);
  camera.ClearZoomChanged();
  const double scale = camera.VisRad2PixD(0.1);
  RecordFields fields = CameraFields();
  ReplaceField(fields, Double("m_Zoom", 10.0));
  AppendBlock(Path("view.data"), kCAMR, kOwner, kCameraSection, fields);
  ASSERT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));
  EXPECT_EQ(camera.GetZoom(), 10.0);
  EXPECT_FALSE(camera.IsZoomChanged());
  EXPECT_EQ(camera.GetDarkMagObject(FourCC("star")), 100);
  EXPECT_EQ(camera.VisRad2PixD(0.1), scale);
  camera.SetWinRect(Window(600, 800));
  EXPECT_GT(camera.VisRad2PixD(0.1), 9 * scale);
}

TEST_F(CameraFileTest, ReadTurnsTheViewToTheRestoredAnglesAndKeepsFirstLook) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, Double("m_alp", 1.0));
  ReplaceField(fields, Double("m_bet", 0.5));
  ReplaceField(fields, Double("m_slp", 0.25));
  ReplaceField(fields, UInt8("m_FirstLook", 1));
  AppendBlock(Path("view.data"), kCAMR, kOwner, kCameraSection, fields);
  camera.SetWinRect(Window(600, 800));
  camera.SetZoom(1.0);
  ASSERT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));
  tPoint<double> p;
  camera.RA_Dec2K2PixD(Direction(1.0, 0.5).v, &p);
  EXPECT_NEAR(p.x, 300, 1e-9);
  EXPECT_NEAR(p.y, 400, 1e-9);
  EXPECT_EQ(camera.GetViewAngles().slope, 0.25);
  EXPECT_TRUE(camera.IsFirstLook());
  LookAt(camera, 1.0, 0.5);
  EXPECT_FALSE(camera.IsFirstLook());
}

TEST_F(CameraFileTest, CentringTheViewEndsTheFirstLook) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, UInt8("m_FirstLook", 1));
  AppendBlock(Path("view.data"), kCAMR, kOwner, kCameraSection, fields);
  ASSERT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));
  camera.SetCenterView(SSO_ID(FourCC("plnt"), 4));
  EXPECT_FALSE(camera.IsFirstLook());
}

TEST_F(CameraFileTest, ReadRenamesTheObserverAndMarksThoseOfNamedFiles) {
  SSO_ID mars(FourCC("plnt"), 4);
  std::strcpy(mars.name, "Mars");
  camera.SetObserver(mars);
  camera.SetObserverName("Mars");
  ASSERT_FALSE(camera.IsObserverChanged());
  ASSERT_TRUE(camera.ReadSelf(nullptr, kCAMR));
  EXPECT_TRUE(camera.IsObserverChanged());
  EXPECT_EQ(camera.GetObserver(), SSO_ID(FourCC("plnt"), 3));
  EXPECT_STREQ(camera.GetObserver().name, "");
  EXPECT_EQ(camera.GetObserver().fourth, 0);
  AppendBlock(Path("view.data"), kCAMR, kOwner, kCameraSection, CameraFields());
  ASSERT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));
  EXPECT_EQ(camera.GetObserver().fourth, 1);
}

TEST_F(CameraFileTest, AroundTheGalaxyTheObserverNumberIsFixed) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, Int8("m_ObsMovingType", 9));
  ReplaceField(fields, UInt32("m_ObsObjType", 0x67616C61));  // "gala"
  ReplaceField(fields, Int32("m_ObsObjID", 31));
  AppendBlock(Path("galaxy.data"), kCAMR, kOwner, kCameraSection, fields);
  ASSERT_TRUE(camera.ReadSelf(Path("galaxy.data").c_str(), kCAMR));
  EXPECT_EQ(camera.GetObserver().number, 0x3D000000);
  EXPECT_EQ(camera.GetMovingType(), 9);
  ReplaceField(fields, Int8("m_ObsMovingType", 10));
  AppendBlock(Path("flight.data"), kCAMR, kOwner, kCameraSection, fields);
  ASSERT_TRUE(camera.ReadSelf(Path("flight.data").c_str(), kCAMR));
  EXPECT_EQ(camera.GetObserver().number, 31);
  ReplaceField(fields, Int8("m_ObsMovingType", 9));
  ReplaceField(fields, UInt32("m_ObsObjType", 0x73746172));  // "star"
  AppendBlock(Path("star.data"), kCAMR, kOwner, kCameraSection, fields);
  ASSERT_TRUE(camera.ReadSelf(Path("star.data").c_str(), kCAMR));
  EXPECT_EQ(camera.GetObserver().number, 31);
}

TEST_F(CameraFileTest, CoordinateSystemOfTheLocationComesFromItsOwnKey) {
  camera.SetLocation({0, 0, 0, 0, 9});
  RecordFields fields = CameraFields();
  ReplaceField(fields, UInt8("m_DispCoorSysObserver", 3));
  AppendBlock(Path("view.data"), kCAMR, kOwner, kCameraSection, fields);
  ASSERT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));
  EXPECT_EQ(camera.GetLocation().coorSys, 3);
}

TEST_F(CameraFileTest, MissingFileAnswersFalseAndChangesNothing) {
  camera.SetZoom(3.0);
  camera.SetObserver(SSO_ID(FourCC("plnt"), 4));
  camera.SetObserverName("Mars");
  EXPECT_FALSE(camera.ReadSelf(Path("missing.data").c_str(), kCAMR));
  EXPECT_FALSE(camera.ReadSelf(Path("missing.data").c_str(), 7));
  EXPECT_EQ(camera.GetZoom(), 3.0);
  EXPECT_STREQ(camera.GetObserver().name, "Mars");
  EXPECT_FALSE(camera.IsObserverChanged());
}

TEST_F(CameraFileTest, RecordOfAMovingTypeIsReadUnderItsIdentifier) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, Double("m_Zoom", 42.0));
  WriteCameraDefaults(roots, fields, kMovingTypeRecord);
  EXPECT_TRUE(camera.ReadSelf(nullptr, kMovingTypeRecord));
  EXPECT_EQ(camera.GetZoom(), 42.0);
  EXPECT_TRUE(camera.ReadSelf(nullptr, kCAMR));
  EXPECT_EQ(camera.GetZoom(), 1.0);
  EXPECT_FALSE(camera.ReadSelf(nullptr, 0xFFFFFFFF));
}

TEST_F(CameraFileTest, BlockOfAMovingTypeIsKeyedByIdentifierAndOwner) {
  WriteCameraDefaults(roots, CameraFields(), kMovingTypeRecord);
  RecordFields fields = CameraFields();
  ReplaceField(fields, Double("m_Zoom", 6.0));
  AppendBlock(Path("view.data"), kMovingTypeRecord, kOwner, kCameraSection, fields);
  ReplaceField(fields, Double("m_Zoom", 8.0));
  AppendBlock(Path("view.data"), kCAMR, kMovingTypeRecord, kCameraSection, fields);
  EXPECT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kMovingTypeRecord));
  EXPECT_EQ(camera.GetZoom(), 6.0);
}

TEST_F(CameraFileTest, SavedViewIsFoundUnderTheIdItWasSavedWith) {
  camera.CreateDefault();
  camera.SetZoom(12.0);
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  camera.SetZoom(13.0);
  camera.WriteSelfAll(Path("view.data").c_str(), 8);
  Camera other(kOwner);
  EXPECT_TRUE(other.ReadSelf(Path("view.data").c_str(), 8));
  EXPECT_EQ(other.GetZoom(), 13.0);
  EXPECT_TRUE(other.ReadSelf(Path("view.data").c_str(), 7));
  EXPECT_EQ(other.GetZoom(), 12.0);
}

TEST_F(CameraFileTest, ViewSavedUnderTheOwnerIsTheLastResort) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, Double("m_Zoom", 5.0));
  AppendBlock(Path("view.data"), kCAMR, kOwner, kCameraSection, fields);
  EXPECT_TRUE(camera.ReadSelf(Path("view.data").c_str(), 99));
  EXPECT_EQ(camera.GetZoom(), 5.0);
  Camera stranger(kOwner + 1);
  EXPECT_FALSE(stranger.ReadSelf(Path("view.data").c_str(), 99));
}

TEST_F(CameraFileTest, DamagedViewIsNotReplacedByThatOfTheOwner) {
  AppendBlock(Path("owner.data"), kCAMR, kOwner, kCameraSection, CameraFields());
  AppendBlock(Path("damaged.data"), kCAMR, 99, kCameraSection, CameraFields());
  const std::string damaged = roots.dir.Read("damaged.data");
  roots.dir.Write("view.data", roots.dir.Read("owner.data") + damaged.substr(8, damaged.size() - 9));
  camera.SetZoom(3.0);
  EXPECT_FALSE(camera.ReadSelf(Path("view.data").c_str(), 99));
  EXPECT_EQ(camera.GetZoom(), 3.0);
  EXPECT_TRUE(camera.ReadSelf(Path("view.data").c_str(), 98));
  EXPECT_EQ(camera.GetZoom(), 1.0);
}

TEST_F(CameraFileTest, DefaultsOfANamedFileAreNoSavedView) {
  AppendBlock(Path("view.data"), kCAMR, kDefaults, kCameraSection, CameraFields());
  camera.SetZoom(3.0);
  EXPECT_FALSE(camera.ReadSelf(Path("view.data").c_str(), 99));
  EXPECT_EQ(camera.GetZoom(), 3.0);
  EXPECT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));  // but they are the record itself
  EXPECT_EQ(camera.GetZoom(), 1.0);
}

TEST_F(CameraFileTest, RecordWithoutTheCameraSectionIsAFailedRead) {
  AppendBlock(Path("view.data"), 99, kOwner, 0x61626364, CameraFields());
  AppendBlock(Path("view.data"), kCAMR, 99, kCameraSection, CameraFields());
  camera.SetZoom(3.0);
  EXPECT_FALSE(camera.ReadSelf(Path("view.data").c_str(), 99));
  EXPECT_EQ(camera.GetZoom(), 3.0);
}

TEST_F(CameraFileTest, DefaultsWithoutTheCameraSectionAreAFailedRead) {
  TempRoots own;
  AppendBlock(own.dir.Path("data/filters.data"), kCAMR, kDefaults, 0x61626364, CameraFields());
  Camera reader(kOwner);
  EXPECT_FALSE(reader.ReadSelf(nullptr, kCAMR));
  EXPECT_FALSE(reader.IsObserverChanged());
}

// Its own record of the file is damaged, be it the one of the file's defaults: no saved view stands in for
// it.
TEST_F(CameraFileTest, SavedViewDoesNotStandInForADamagedRecordOfAMovingType) {
  AppendBlock(Path("view.data"), kCAMR, kMovingTypeRecord, kCameraSection, CameraFields());
  ASSERT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kMovingTypeRecord)) << "a saved view alone";
  AppendBlock(Path("view.data"), kMovingTypeRecord, kDefaults, 0x61626364, CameraFields());
  EXPECT_FALSE(camera.ReadSelf(Path("view.data").c_str(), kMovingTypeRecord));
}

TEST_F(CameraFileTest, DaylightSavingFieldsThatAreMissingKeepWhatTheCameraHas) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, Int32("StartYear", 1999));
  ReplaceField(fields, Int16("IsDST", {1}));
  ReplaceField(fields, Int16("DateFrom", {1999, 3, 28, 2, 30}));
  ReplaceField(fields, Int16("DS_Shift", {60, -30}));
  ReplaceField(fields, Int16("IsCalendarDate", {1, 1}));
  AppendBlock(Path("view.data"), kCAMR, kOwner, kCameraSection, fields);
  ASSERT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));
  TempRoots without;
  RecordFields rest = CameraFields();
  for (const char* key : {"IsDST", "DateFrom", "DateTo", "DS_Shift", "IsCalendarDate", "IsNorth"})
    rest.erase(FindField(rest, key));
  AppendBlock(without.dir.Path("other.data"), kCAMR, kOwner, kCameraSection, rest);
  WriteCameraDefaults(without, rest);
  Camera reader(kOwner);
  reader = camera;
  ASSERT_TRUE(reader.ReadSelf(without.dir.Path("other.data").c_str(), kCAMR));
  const auto& dst = *reader.GetDST();
  EXPECT_EQ(dst.StartYear, 0) << "what is there is read";
  EXPECT_TRUE(dst.IsDST);
  EXPECT_EQ(dst.DateFrom.date[2], 28);
  EXPECT_EQ(dst.DateFrom.time[1], 30);
  EXPECT_EQ(dst.DS_Shift[1], -30.0f);
  EXPECT_EQ(dst.IsCalendarDate[1], 1);
}

}  // namespace
