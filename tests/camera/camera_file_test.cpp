// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "astro/delta_t.h"
#include "camera/view_helpers.h"
#include "common_interfaces/settings_field.h"
#include "support/camera_settings.h"
#include "support/debug_capture.h"

namespace {

using namespace test_support;
using CommonInterfaces::_Date;
using CommonInterfaces::Camera;
using CommonInterfaces::CameraStep;
using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

constexpr unsigned kOwner = 1;
constexpr unsigned kMovingTypeRecord = 0x4C4F5343;  // an identifier other than CAMR
constexpr unsigned kDefaults = SettingsData::kDefaultsTag;

// The bytes of a field of the camera record (first, second) in a file; "" when it is not there.
std::string FieldBytes(const std::string& path, unsigned first, unsigned second, const char* key) {
  SettingsData settings(second, first, "filters.data");
  if (!settings.Read(path.c_str())) return "";
  settings.SetCurSection(kCameraSection);
  if (settings.GetCurSection() != kCameraSection) return "";
  const SettingField* field = settings.GetAtField(kCameraSection, GetUniqueID(key), false);
  if (field == nullptr) return "";
  std::string bytes(field->GetSize() * CommonInterfaces::FieldElementWidth(field->GetType()), '\0');
  field->GetData(bytes.data());
  return bytes;
}

template <class T>
T FieldValue(const std::string& path, unsigned second, const char* key) {
  T value = {};
  const std::string bytes = FieldBytes(path, kCAMR, second, key);
  EXPECT_EQ(bytes.size(), sizeof value) << key;
  if (bytes.size() == sizeof value) std::memcpy(&value, bytes.data(), sizeof value);
  return value;
}

// The fields with random values, and with only the values that a camera gives back unchanged.
RecordFields RandomFields(unsigned seed) {
  Random random(seed);
  RecordFields fields = CameraFields();
  for (RecordField& field : fields) {
    if (field.type == CommonInterfaces::kFieldDouble) {
      const double value = random.Real(-1e6, 1e6);
      std::memcpy(field.bytes.data(), &value, sizeof value);
    } else {
      for (unsigned char& byte : field.bytes) byte = static_cast<unsigned char>(random.Whole(0, 255));
    }
  }
  ReplaceField(fields, Double("m_Zoom", random.Real(0.3, 500)));
  ReplaceField(fields, Int8("m_ObsMovingType", random.Whole(0, 8)));
  ReplaceField(fields, UInt8("m_FirstLook", 1));
  ReplaceField(fields, Int16("IsDST", {static_cast<short>(random.Whole(0, 1))}));
  ReplaceField(fields, Int16("IsNorth", {static_cast<short>(random.Whole(0, 1))}));
  ReplaceField(fields, Float("TimeZone", static_cast<float>(random.Real(-12, 14))));
  ReplaceField(fields, Int16("IsCalendarDate", {static_cast<short>(random.Whole(0, 255)),
                                                static_cast<short>(random.Whole(0, 255))}));
  return fields;
}

// A camera looks for the file of its defaults once, when it is made: the file has to be there before it.
struct RootsWithDefaults : TempRoots {
  RootsWithDefaults() { WriteCameraDefaults(*this); }
};

class CameraFileTest : public testing::Test {
 protected:
  std::string Path(const char* name) const { return roots.dir.Path(name); }

  RootsWithDefaults roots;
  Camera camera{kOwner};
};

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

TEST_F(CameraFileTest, ShortRecordNamesTheEarthWhateverTheObserver) {
  camera.CreateDefault();
  camera.SetObserver(SSO_ID(FourCC("plnt"), 4));
  camera.WriteSelf(Path("view.data").c_str(), 7);
  EXPECT_EQ(FieldValue<unsigned>(Path("view.data"), 7, "m_ObsObjType"), 0x706C6E74u);
  EXPECT_EQ(FieldValue<int>(Path("view.data"), 7, "m_ObsObjID"), 3);
  EXPECT_EQ(camera.GetObserver(), SSO_ID(FourCC("plnt"), 4));
}

TEST_F(CameraFileTest, ShortRecordHoldsTimePlaceAndTimeStep) {
  camera.CreateDefault();
  camera.SetTime({2460000, 0.25, 0});
  camera.SetLocation({3.5, 1.0, -0.5, 6, 9});
  camera.SetStep(CameraStep::kTime, {0.5, 3});
  camera.WriteSelf(Path("view.data").c_str(), 7);
  const std::string view = Path("view.data");
  EXPECT_EQ(FieldValue<int>(view, 7, "m_JT"), 2460000);
  EXPECT_EQ(FieldValue<double>(view, 7, "m_TJ"), 0.25);
  EXPECT_EQ(FieldValue<int>(view, 7, "timeType"), 0);
  EXPECT_EQ(FieldValue<double>(view, 7, "m_dist"), 3.5);
  EXPECT_EQ(FieldValue<double>(view, 7, "m_lam"), 1.0);
  EXPECT_EQ(FieldValue<double>(view, 7, "m_fi"), -0.5);
  EXPECT_EQ(FieldValue<unsigned char>(view, 7, "m_distUnits"), 6);
  EXPECT_EQ(FieldValue<double>(view, 7, "m_TimeStep"), 0.5);
  EXPECT_EQ(FieldValue<int>(view, 7, "m_TimeStepUnits"), 3);
}

TEST_F(CameraFileTest, ShortRecordLeavesTheOtherValuesAlone) {
  camera.CreateDefault();
  camera.SetZoom(9.0);
  camera.SetFinderSize(50);
  camera.SetObsLocatType(6);
  camera.SetAimingDispType(2);
  camera.SetBasePlane(3);
  LookAt(camera, 1.0, 0.5);
  camera.SetStep(CameraStep::kZoom, {4.0, 0});
  camera.SetLocation({0, 0, 0, 0, 9});
  camera.GetDST()->StartYear = 1995;
  camera.WriteSelf(Path("view.data").c_str(), 7);
  const std::string view = Path("view.data");
  EXPECT_EQ(FieldValue<double>(view, 7, "m_Zoom"), 1.0);
  EXPECT_EQ(FieldValue<short>(view, 7, "m_FinderSize"), 20);
  EXPECT_EQ(FieldValue<unsigned char>(view, 7, "m_ObsLocatType"), 2);
  EXPECT_EQ(FieldValue<unsigned char>(view, 7, "m_DispCoorSysObserver"), 2);
  EXPECT_EQ(FieldValue<unsigned char>(view, 7, "m_AimingDispType"), 0);
  EXPECT_EQ(FieldValue<unsigned char>(view, 7, "m_BasePlane"), 0);
  EXPECT_EQ(FieldValue<double>(view, 7, "m_slp"), 0.0);
  EXPECT_NE(FieldValue<double>(view, 7, "m_alp"), 1.0);
  EXPECT_EQ(FieldValue<double>(view, 7, "m_ZoomStep"), 1.2);
  EXPECT_EQ(FieldValue<int>(view, 7, "StartYear"), 0);
}

TEST_F(CameraFileTest, ShortRecordSwitchesTheFSTModeOn) {
  camera.CreateDefault();
  camera.SetFST_Mode(0);
  camera.WriteSelf(Path("view.data").c_str(), 7);
  EXPECT_EQ(camera.GetFST_Mode(), 1);
  EXPECT_EQ(FieldValue<signed char>(Path("view.data"), 7, "FST"), 1);
}

TEST_F(CameraFileTest, FullRecordKeepsTheFSTMode) {
  camera.CreateDefault();
  camera.SetFST_Mode(0);
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  EXPECT_EQ(FieldValue<signed char>(Path("view.data"), 7, "FST"), 0);
}

TEST_F(CameraFileTest, FullRecordSavesTheCoordinateSystemOfTheLocation) {
  camera.CreateDefault();
  camera.SetLocation({0, 0, 0, 0, 7});
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  EXPECT_EQ(FieldValue<unsigned char>(Path("view.data"), 7, "m_DispCoorSysObserver"), 7);
}

TEST_F(CameraFileTest, FullRecordDerivesFirstLookFromTheCentreObject) {
  camera.CreateDefault();
  const SSO_ID centres[] = {{-1, -1}, {FourCC("plnt"), -1}, {-1, 4}, {FourCC("plnt"), 4}};
  for (int i = 0; i < 4; ++i) {
    camera.SetCenterView(centres[i]);
    const std::string view = Path(("view" + std::to_string(i)).c_str());
    camera.WriteSelfAll(view.c_str(), 7);
    EXPECT_EQ(FieldValue<unsigned char>(view, 7, "m_FirstLook"), i == 3 ? 1 : 0) << i;
    EXPECT_FALSE(camera.IsFirstLook());
  }
}

TEST_F(CameraFileTest, FullRecordKeepsTheDaylightSavingRuleInSixteenBits) {
  camera.CreateDefault();
  CommonInterfaces::DaylightSavingsData rule;
  rule.IsDST = true;
  rule.DS_Shift[0] = 59.9f;
  rule.DS_Shift[1] = -1e9f;
  rule.IsCalendarDate[1] = 0xFF;
  rule.DateFrom.date[2] = -7;
  camera.SetDST(&rule);
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  EXPECT_EQ(FieldValue<short>(Path("view.data"), 7, "IsDST"), 1);
  EXPECT_EQ(FieldValue<short>(Path("view.data"), 7, "IsNorth"), 0);
  Camera other(kOwner);
  ASSERT_TRUE(other.ReadSelf(Path("view.data").c_str(), 7));
  EXPECT_EQ(other.GetDST()->DS_Shift[0], 59.0f);
  EXPECT_EQ(other.GetDST()->DS_Shift[1], -32768.0f);
  EXPECT_EQ(other.GetDST()->IsCalendarDate[1], 0xFF);
  EXPECT_EQ(other.GetDST()->DateFrom.date[2], -7);
}

TEST_F(CameraFileTest, EveryKeyOfRandomRecordsComesBackThroughASecondCamera) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    const RecordFields fields = RandomFields(seed);
    const std::string original = Path(("original" + std::to_string(seed)).c_str());
    const std::string saved = Path(("saved" + std::to_string(seed)).c_str());
    const std::string savedAgain = Path(("again" + std::to_string(seed)).c_str());
    AppendBlock(original, kCAMR, 7, kCameraSection, fields);
    Camera first(kOwner), second(kOwner);
    first.CreateDefault();
    second.CreateDefault();
    ASSERT_TRUE(first.ReadSelf(original.c_str(), 7));
    first.WriteSelfAll(saved.c_str(), 7);
    ASSERT_TRUE(second.ReadSelf(saved.c_str(), 7));
    second.WriteSelfAll(savedAgain.c_str(), 7);
    for (const RecordField& field : fields) {
      const std::string expected(field.bytes.begin(), field.bytes.end());
      EXPECT_EQ(FieldBytes(saved, kCAMR, 7, field.key.c_str()), expected) << field.key << " seed " << seed;
      EXPECT_EQ(FieldBytes(savedAgain, kCAMR, 7, field.key.c_str()), expected)
          << field.key << " seed " << seed;
    }
  }
}

// The worked example of docs/formats/camera_record.md.
TEST_F(CameraFileTest, SavedViewBeginsWithTheBytesOfTheWorkedExample) {
  camera.CreateDefault();
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  const unsigned char expected[] = {
      0x52, 0x4D, 0x41, 0x43, 7, 0,  0, 0, 1, 0,  0x72, 0x6D, 0x61, 0x63, 0xFF, 0xFF, 0xFF, 0xFF,
      0,    0,    48,   0,    0, 49, 0, 0, 0, 22, 0,    0,    0,    0x72, 0x6D, 0x61, 0x63, 0x9D,
      0x76, 0xB9, 0x10, 2,    1, 0,  0, 0, 0, 0,  0,    0xFF, 0xFF, 0xFF, 0xFF, 20,   0};
  const std::string written = roots.dir.Read("view.data").substr(8, sizeof expected);
  EXPECT_EQ(written, std::string(reinterpret_cast<const char*>(expected), sizeof expected));
}

TEST_F(CameraFileTest, IdOfAWriteStaysTheIdOfTheSettings) {
  camera.CreateDefault();
  camera.SetZoom(4.0);
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  camera.SetZoom(5.0);
  EXPECT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));  // looks for (CAMR, 7) now
  EXPECT_EQ(camera.GetZoom(), 4.0);
}

TEST_F(CameraFileTest, WritingWithoutFieldsIsHarmlessAndQuietAndSavesNothing) {
  Camera fresh(kOwner);  // has read nothing yet, so its settings hold no fields
  fresh.SetZoom(5.0);
  DebugCapture debug;
  fresh.WriteSelf(Path("view.data").c_str(), 7);
  fresh.WriteSelfAll(Path("view.data").c_str(), 7);
  EXPECT_EQ(fresh.GetZoom(), 5.0);
  EXPECT_TRUE(fresh.ReadSelf(Path("view.data").c_str(), 7));  // an empty block laid over the defaults
  EXPECT_EQ(fresh.GetZoom(), 1.0);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(CameraFileTest, WritingToNowhereChangesNothing) {
  camera.CreateDefault();
  camera.WriteSelf(Path("no/such/folder/view.data").c_str(), 7);
  camera.WriteSelfAll(Path("no/such/folder/view.data").c_str(), 7);
  EXPECT_EQ(camera.GetZoom(), 1.0);
}

}  // namespace
