// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "camera/camera_record.h"

#include <cstring>
#include <string>

#include <gtest/gtest.h>

#include "camera/view_helpers.h"
#include "common_interfaces/camera.h"
#include "support/camera_settings.h"
#include "support/debug_capture.h"

namespace {

using namespace test_support;
using CommonInterfaces::_Date;
using CommonInterfaces::Camera;
using CommonInterfaces::RecordReader;
using CommonInterfaces::RecordWriter;
using CommonInterfaces::SettingsData;

constexpr unsigned kOwner = 1;
constexpr unsigned kOtherSection = 0x61626364;  // "abcd"

class CameraRecordTest : public testing::Test {
 protected:
  // Reads those fields as the defaults of the camera.
  bool Read(Camera& camera, const RecordFields& fields) const {
    std::remove(roots.dir.Path("data/filters.data").c_str());
    WriteCameraDefaults(roots, fields);
    Camera reader(kOwner);
    if (!reader.ReadSelf(nullptr, kCAMR)) return false;
    camera = reader;
    return true;
  }
  TempRoots roots;
};

TEST_F(CameraRecordTest, EachMissingFieldLeavesItsMemberAndReadsTheRestQuietly) {
  const RecordFields all = CameraFields();
  for (const RecordField& missing : all) {
    RecordFields fields = all;
    fields.erase(FindField(fields, missing.key));
    std::remove(roots.dir.Path("data/filters.data").c_str());
    WriteCameraDefaults(roots, fields);
    Camera camera(kOwner);
    camera.SetZoom(77.0);
    camera.SetBasePlane(77);
    DebugCapture debug;
    ASSERT_TRUE(camera.ReadSelf(nullptr, kCAMR)) << missing.key;
    EXPECT_TRUE(debug.lines.empty()) << missing.key;
    EXPECT_EQ(camera.GetZoom(), missing.key == "m_Zoom" ? 77.0 : 1.0);
    EXPECT_EQ(camera.GetBasePlane(), missing.key == "m_BasePlane" ? 77 : 0);
    EXPECT_EQ(camera.GetObserver().number, missing.key == "m_ObsObjID" ? -1 : 3);
  }
}

TEST_F(CameraRecordTest, AKeyThatTheCamerasSectionLacksIsTakenFromAnotherQuietly) {
  RecordFields fields = CameraFields();
  fields.erase(FindField(fields, "m_Zoom"));
  SettingsData settings(SettingsData::kDefaultsTag, kCAMR, "filters.data");
  AddField(settings, kOtherSection, Double("m_Zoom", 5.0));
  AddField(settings, kOtherSection, UInt8("m_BasePlane", 3));
  for (const RecordField& field : fields) AddField(settings, kCameraSection, field);
  settings.Write(roots.dir.Path("data/filters.data").c_str());
  Camera camera(kOwner);
  DebugCapture debug;
  ASSERT_TRUE(camera.ReadSelf(nullptr, kCAMR));
  EXPECT_TRUE(debug.lines.empty());
  EXPECT_EQ(camera.GetZoom(), 5.0);
  EXPECT_EQ(camera.GetBasePlane(), 0);  // the section's own comes first
}

TEST_F(CameraRecordTest, EveryFieldOfTheWrongWidthIsLeftOut) {
  const RecordFields all = CameraFields();
  for (const RecordField& wrong : all) {
    RecordFields fields = all;
    const bool isDouble = wrong.type == CommonInterfaces::kFieldDouble;
    ReplaceField(fields, isDouble ? Int32(wrong.key, 0x7F7F7F7F) : Double(wrong.key, 1e300));
    Camera camera(kOwner);
    DebugCapture debug;
    ASSERT_TRUE(Read(camera, fields)) << wrong.key;
    EXPECT_TRUE(debug.lines.empty()) << wrong.key;
    EXPECT_EQ(camera.GetZoom(), wrong.key == "m_Zoom" ? 0.0 : 1.0) << wrong.key;
    EXPECT_EQ(camera.GetFinderSize(), wrong.key == "m_FinderSize" ? 0 : 20) << wrong.key;
    EXPECT_EQ(camera.GetLocation().coorSys, 2) << wrong.key;
  }
}

TEST_F(CameraRecordTest, EveryFieldWithAnotherNumberOfElementsIsLeftOut) {
  const RecordFields all = CameraFields();
  for (const RecordField& wrong : all) {
    for (const bool longer : {true, false}) {
      RecordFields fields = all;
      RecordField field = wrong;
      field.count = static_cast<unsigned short>(longer ? wrong.count * 100 : 0);
      field.bytes.assign(field.count * (wrong.bytes.size() / wrong.count), 0x11);
      ReplaceField(fields, field);
      Camera camera(kOwner);
      ASSERT_TRUE(Read(camera, fields)) << wrong.key;
      EXPECT_EQ(camera.GetZoom(), wrong.key == "m_Zoom" ? 0.0 : 1.0) << wrong.key;
      _Date t;
      camera.GetUniversalTime(t);
      EXPECT_EQ(t.day, 2451545) << wrong.key;
    }
  }
}

TEST_F(CameraRecordTest, RecordWhoseCountClaimsMoreThanItHoldsIsLeftOut) {
  RecordFields fields = CameraFields();
  FindField(fields, "m_Zoom")->bytes.resize(3);
  FindField(fields, "DateFrom")->bytes.resize(5);
  Camera camera(kOwner);
  ASSERT_TRUE(Read(camera, fields));
  EXPECT_EQ(camera.GetZoom(), 0.0);
  EXPECT_EQ(camera.GetFinderSize(), 20);
}

TEST_F(CameraRecordTest, AnyElementTypeOfTheRightWidthIsAccepted) {
  RecordFields fields = CameraFields();
  ReplaceField(fields, MakeField<unsigned short>("m_FinderSize", CommonInterfaces::kFieldUInt16, {31}));
  ReplaceField(fields, UInt32("m_JT", 2460000));
  ReplaceField(fields, MakeField<int>("timeType", CommonInterfaces::kFieldFloat, {2}));
  ReplaceField(fields, MakeField<unsigned char>("FST", CommonInterfaces::kFieldBytes, {1}));
  ReplaceField(fields, Int8("m_BasePlane", 3));
  Camera camera(kOwner);
  ASSERT_TRUE(Read(camera, fields));
  _Date t;
  camera.GetUniversalTime(t);
  EXPECT_EQ(camera.GetFinderSize(), 31);
  EXPECT_EQ(t.day, 2460000);
  EXPECT_EQ(t.type, 2);
  EXPECT_EQ(camera.GetFST_Mode(), 1);
  EXPECT_EQ(camera.GetBasePlane(), 3);
}

TEST_F(CameraRecordTest, WriterLeavesMisshapenFieldsAlone) {
  SettingsData settings(kOwner, kCAMR, "filters.data");
  AddField(settings, kCameraSection, Int32("m_Zoom", 5));
  AddField(settings, kCameraSection, MakeField<double>("m_TJ", CommonInterfaces::kFieldDouble, {1.0, 2.0}));
  AddField(settings, kCameraSection, Double("m_alp", 1.0));
  RecordWriter writer(settings);
  writer.Value("m_Zoom", 9.0);
  writer.Value("m_TJ", 9.0);
  writer.Value("m_alp", 9.0);
  writer.Value("m_bet", 9.0);
  int zoom = 0;
  double tj[2] = {}, alp = 0;
  settings.SetCurSection(kCameraSection);
  settings.GetField("m_Zoom", &zoom);
  settings.GetField("m_TJ", tj);
  settings.GetField("m_alp", &alp);
  EXPECT_EQ(zoom, 5);
  EXPECT_EQ(tj[0], 1.0);
  EXPECT_EQ(alp, 9.0);
}

TEST_F(CameraRecordTest, ReaderTellsWhetherItFoundTheValue) {
  SettingsData settings(kOwner, kCAMR, "filters.data");
  AddField(settings, kCameraSection, Double("m_alp", 1.5));
  AddField(settings, kOtherSection, Double("m_bet", 2.5));
  RecordReader reader(settings);
  double value = 7.0;
  EXPECT_TRUE(reader.Value("m_alp", value));
  EXPECT_EQ(value, 1.5);
  EXPECT_FALSE(reader.Value("m_slp", value));
  EXPECT_EQ(value, 1.5);
  EXPECT_TRUE(reader.Value("m_bet", value));
  EXPECT_EQ(value, 2.5);
}

TEST_F(CameraRecordTest, FileCutOffAnywhereEitherReadsOrChangesNothing) {
  WriteCameraDefaults(roots);
  Camera writer(kOwner);
  writer.CreateDefault();
  writer.SetZoom(12.0);
  const std::string path = roots.dir.Path("view.data");
  writer.WriteSelfAll(path.c_str(), 7);
  const std::string whole = roots.dir.Read("view.data");
  ASSERT_GT(whole.size(), 1000u);
  for (std::size_t length = 0; length < whole.size(); length += 5) {
    roots.dir.Write("cut.data", whole.substr(0, length));
    Camera camera(kOwner);
    camera.SetZoom(3.0);
    EXPECT_FALSE(camera.ReadSelf(roots.dir.Path("cut.data").c_str(), 7)) << length;
    EXPECT_EQ(camera.GetZoom(), 3.0) << length;
    EXPECT_FALSE(camera.IsObserverChanged()) << length;
  }
}

TEST_F(CameraRecordTest, ChangedBytesNeitherBreakTheCameraNorHalfFillIt) {
  WriteCameraDefaults(roots);
  Camera writer(kOwner);
  writer.CreateDefault();
  writer.WriteSelfAll(roots.dir.Path("view.data").c_str(), 7);
  const std::string whole = roots.dir.Read("view.data");
  Random random(5);
  int read = 0;
  for (int n = 0; n < 400; ++n) {
    std::string damaged = whole;
    for (int hits = random.Whole(1, 8); hits > 0; --hits)
      damaged[random.Whole(0, static_cast<int>(whole.size()) - 1)] = static_cast<char>(random.Whole(0, 255));
    roots.dir.Write("damaged.data", damaged);
    Camera camera(kOwner);
    camera.SetWinRect(Window(800, 600));
    const bool ok = camera.ReadSelf(roots.dir.Path("damaged.data").c_str(), 7);
    EXPECT_EQ(camera.IsObserverChanged(), ok);
    tPoint<int> p;
    camera.RA_Dec2Pix(Direction(0.1, 0.1).v, &p);
    (void)camera.GetDarkMagDraw(FourCC("star"));
    read += ok;
  }
  EXPECT_GT(read, 100);
  EXPECT_LT(read, 400);
}

}  // namespace
