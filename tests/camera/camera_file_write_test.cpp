// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <string>

#include "camera/camera_file_fixture.h"
#include "camera/view_helpers.h"
#include "support/debug_capture.h"

namespace {

using namespace test_support;
using CommonInterfaces::Camera;
using CommonInterfaces::CameraStep;

using CameraFileWriteTest = CameraFileTest;

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

TEST_F(CameraFileWriteTest, ShortRecordNamesTheEarthWhateverTheObserver) {
  camera.CreateDefault();
  camera.SetObserver(SSO_ID(FourCC("plnt"), 4));
  camera.WriteSelf(Path("view.data").c_str(), 7);
  EXPECT_EQ(FieldValue<unsigned>(Path("view.data"), 7, "m_ObsObjType"), 0x706C6E74u);
  EXPECT_EQ(FieldValue<int>(Path("view.data"), 7, "m_ObsObjID"), 3);
  EXPECT_EQ(camera.GetObserver(), SSO_ID(FourCC("plnt"), 4));
}

// What locks the direction, the caller or a change of moving type, leaves no trace in the file.
TEST_F(CameraFileWriteTest, LockedDirectionIsOne) {
  WriteCameraDefaults(roots);
  Camera byCaller(kOwner), inOrbit(kOwner), locked(kOwner);
  for (Camera* each : {&byCaller, &inOrbit, &locked}) each->CreateDefault();
  byCaller.SetDirectionLock(true);
  inOrbit.SetMovingType(4, false);
  locked.SetDirectionLock(true);
  locked.SetMovingType(3, false);
  const std::string view = Path("view.data");
  int id = 20;
  for (Camera* each : {&byCaller, &inOrbit, &locked}) {
    ASSERT_TRUE(each->IsDirectionLocked());
    ASSERT_TRUE(each->SaveSelfAll(view.c_str(), id));
    EXPECT_EQ(FieldValue<unsigned char>(view, static_cast<unsigned>(id), "m_dirLock"), 1);
    ++id;
  }
}

TEST_F(CameraFileWriteTest, ShortRecordHoldsTimePlaceAndTimeStep) {
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

TEST_F(CameraFileWriteTest, ShortRecordLeavesTheOtherValuesAlone) {
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

TEST_F(CameraFileWriteTest, ShortRecordSwitchesTheFSTModeOn) {
  camera.CreateDefault();
  camera.SetFST_Mode(0);
  camera.WriteSelf(Path("view.data").c_str(), 7);
  EXPECT_EQ(camera.GetFST_Mode(), 1);
  EXPECT_EQ(FieldValue<signed char>(Path("view.data"), 7, "FST"), 1);
}

TEST_F(CameraFileWriteTest, FullRecordKeepsTheFSTMode) {
  camera.CreateDefault();
  camera.SetFST_Mode(0);
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  EXPECT_EQ(FieldValue<signed char>(Path("view.data"), 7, "FST"), 0);
}

TEST_F(CameraFileWriteTest, FullRecordSavesTheCoordinateSystemOfTheLocation) {
  camera.CreateDefault();
  camera.SetLocation({0, 0, 0, 0, 7});
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  EXPECT_EQ(FieldValue<unsigned char>(Path("view.data"), 7, "m_DispCoorSysObserver"), 7);
}

TEST_F(CameraFileWriteTest, FullRecordDerivesFirstLookFromTheCentreObject) {
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

TEST_F(CameraFileWriteTest, FullRecordKeepsTheDaylightSavingRuleInSixteenBits) {
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

TEST_F(CameraFileWriteTest, EveryKeyOfRandomRecordsComesBackThroughASecondCamera) {
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
TEST_F(CameraFileWriteTest, SavedViewBeginsWithTheBytesOfTheWorkedExample) {
  camera.CreateDefault();
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  const unsigned char expected[] = {
      0x52, 0x4D, 0x41, 0x43, 7, 0,  0, 0, 1, 0,  0x72, 0x6D, 0x61, 0x63, 0xFF, 0xFF, 0xFF, 0xFF,
      0,    0,    48,   0,    0, 49, 0, 0, 0, 22, 0,    0,    0,    0x72, 0x6D, 0x61, 0x63, 0x9D,
      0x76, 0xB9, 0x10, 2,    1, 0,  0, 0, 0, 0,  0,    0xFF, 0xFF, 0xFF, 0xFF, 20,   0};
  const std::string written = roots.dir.Read("view.data").substr(8, sizeof expected);
  EXPECT_EQ(written, std::string(reinterpret_cast<const char*>(expected), sizeof expected));
}

TEST_F(CameraFileWriteTest, IdOfAWriteStaysTheIdOfTheSettings) {
  camera.CreateDefault();
  camera.SetZoom(4.0);
  camera.WriteSelfAll(Path("view.data").c_str(), 7);
  camera.SetZoom(5.0);
  EXPECT_TRUE(camera.ReadSelf(Path("view.data").c_str(), kCAMR));  // looks for (CAMR, 7) now
  EXPECT_EQ(camera.GetZoom(), 4.0);
}

TEST_F(CameraFileWriteTest, WritingWithoutFieldsIsHarmlessAndQuietAndSavesNothing) {
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

TEST_F(CameraFileWriteTest, WritingToNowhereChangesNothing) {
  camera.CreateDefault();
  camera.WriteSelf(Path("no/such/folder/view.data").c_str(), 7);
  camera.WriteSelfAll(Path("no/such/folder/view.data").c_str(), 7);
  EXPECT_EQ(camera.GetZoom(), 1.0);
}

TEST_F(CameraFileWriteTest, SavedAgainAViewStandsOnceAndIsTheNewOne) {
  const std::string view = Path("view.data");
  AppendBlock(view, kCAMR, 5, kCameraSection, CameraFields());
  camera.CreateDefault();
  EXPECT_TRUE(camera.SaveSelfAll(view.c_str(), 7));
  camera.SetTime({2460000, 0.25, 0});
  EXPECT_TRUE(camera.SaveSelfAll(view.c_str(), 7));
  EXPECT_EQ(FieldValue<int>(view, 7, "m_JT"), 2460000);
  EXPECT_EQ(FieldValue<int>(view, 5, "m_JT"), 2451545);
  camera.SetTime({2460001, 0.25, 0});
  EXPECT_TRUE(camera.SaveSelf(view.c_str(), 7));
  EXPECT_EQ(FieldValue<int>(view, 7, "m_JT"), 2460001);
}

TEST_F(CameraFileWriteTest, ViewIsFoundThoughItsValuesLookLikeAKey) {
  constexpr unsigned kView = 3;
  const unsigned key[] = {kView, kOwner};
  double slope;  // 2e-314
  std::memcpy(&slope, key, sizeof slope);
  RecordFields fields = CameraFields();
  ReplaceField(fields, Double("m_slp", slope));
  ReplaceField(fields, Double("m_Zoom", 4.0));
  const std::string view = Path("view.data");
  AppendBlock(view, kCAMR, kView, kCameraSection, fields);
  camera.CreateDefault();
  ASSERT_TRUE(camera.ReadSelf(view.c_str(), kView));
  EXPECT_EQ(camera.GetZoom(), 4.0);
}

TEST_F(CameraFileWriteTest, NothingOfADamagedFileIsSavedWithTheNextView) {
  const std::string damaged = Path("damaged.data");
  AppendBlock(damaged, kCAMR, kOwner, FourCC("junk"), CameraFields());
  std::filesystem::resize_file(damaged, roots.dir.Read("damaged.data").size() - 1);
  camera.CreateDefault();
  ASSERT_TRUE(camera.SaveSelfAll(Path("before.data").c_str(), 7));
  Camera unlucky(kOwner);
  unlucky.CreateDefault();
  ASSERT_FALSE(unlucky.ReadSelf(damaged.c_str(), kCAMR));
  ASSERT_TRUE(unlucky.SaveSelfAll(Path("after.data").c_str(), 7));
  EXPECT_EQ(roots.dir.Read("after.data"), roots.dir.Read("before.data"));
}

TEST_F(CameraFileWriteTest, WhatCannotBeSavedWholeIsNotSavedAndTold) {
  const DebugCapture debug;
  const std::string view = Path("view.data");
  EXPECT_FALSE(camera.SaveSelfAll(view.c_str(), 7)) << "before the first read there are no fields";
  EXPECT_FALSE(camera.SaveSelf(view.c_str(), 7));
  EXPECT_FALSE(std::filesystem::exists(view));
  EXPECT_EQ(debug.lines.size(), 2u);
  camera.CreateDefault();
  EXPECT_FALSE(camera.SaveSelfAll(Path("data").c_str(), 7)) << "a folder";
  EXPECT_FALSE(camera.SaveSelf(Path("data").c_str(), 7));
  EXPECT_FALSE(camera.SaveSelf(nullptr, 7));
  EXPECT_EQ(debug.lines.size(), 5u);
  Camera copy(camera);  // has no settings object
  EXPECT_FALSE(copy.SaveSelf(view.c_str(), 7));
  EXPECT_FALSE(copy.SaveSelfAll(view.c_str(), 7));
  EXPECT_EQ(debug.lines.size(), 5u);
}

TEST_F(CameraFileWriteTest, WhatLacksFieldsIsToldWithoutANameToo) {
  const DebugCapture debug;
  EXPECT_FALSE(camera.SaveSelf(nullptr, 7));
  EXPECT_EQ(debug.lines,
            std::vector<std::string>{"View not saved in file : the camera's settings lack fields of it\n"});
}

}  // namespace
