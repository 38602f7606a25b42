// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Cameras, frames, render settings and the string table notice a second thread, and no more than that.
#include <gtest/gtest.h>

#include "common_interfaces/camera.h"
#include "common_interfaces/render_settings.h"
#include "common_interfaces/string_table.h"
#include "one_thread/overlap.h"
#include "scene/catalogs/data_root.h"
#include "scene/frame/frame_maker.h"
#include "scene/small_root.h"
#include "support/string_table_file.h"
#include "support/temp_dir.h"

namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::QX4Strings;
using CommonInterfaces::RenderSettings;
using one_thread_tests::CalledWhile;
using one_thread_tests::Changing;
using one_thread_tests::Operation;
using one_thread_tests::Overlap;
using one_thread_tests::Reading;

constexpr double kNorth[3] = {0.0, 0.0, 1.0};

class CameraByTwoThreads : public testing::Test {
 protected:
  std::vector<Operation> Changes() {
    return {{"operator=", [this] { camera = another; }},
            {"CreateDefault", [this] { camera.CreateDefault(); }},
            {"ReadSelf", [this] { camera.ReadSelf(nullptr, 1); }},
            {"WriteSelf", [this] { camera.WriteSelf("view.data", 1); }},
            {"SaveSelf", [this] { camera.SaveSelf("view.data", 1); }},
            {"SetUniversalTime", [this] { camera.SetTime({}); }},
            {"SetTimeZoneName", [this] { camera.SetTimeZoneName("UTC", true); }},
            {"UpdateLocUTCDeltaFromTimeZone", [this] { camera.UpdateLocUTCDeltaFromTimeZone(); }},
            {"SetObserver", [this] { camera.SetObserver({}); }},
            {"SetCenterView", [this] { camera.SetCenterView({}); }},
            {"SetMovingType", [this] { camera.SetMovingType(6, false); }},
            {"SetRA_Dec", [this] { camera.SetRA_Dec({}); }},
            {"SetReductionMatrix", [this] { camera.SetReductionMatrix(identity); }},
            {"SetZoom", [this] { camera.SetZoom(camera.GetZoom() + 1.0); }},
            {"SetWinRect",
             [this] {
               camera.SetWinRect({8, 6, 8, 6});
             }},
            {"RefreshLimitingMagnitudes", [this] { camera.RefreshLimitingMagnitudes(); }},
            {"StoreParams", [this] { camera.StoreParams(0); }},
            {"StoreHomeParams", [this] { camera.SaveHomeParams(); }},
            {"GoHome", [this] { camera.GoHome(false); }},
            {"SetPlay", [this] { camera.SetPlay({}, {}, 1.0, 2.0); }},
            {"StopAnyPlay", [this] { camera.StopAnyPlay(); }},
            {"AddOIMarker", [this] { camera.AddOIMarker({}); }},
            {"UpdateOIMarkers", [this] { camera.UpdateOIMarkers(); }}};
  }
  std::vector<Operation> Readings() {
    return {{"GetTime", [this] { static_cast<const Camera&>(camera).GetTime(date); }},
            {"Pix2Vec",
             [this] {
               camera.Pix2Vec({1, 2}, vector);
             }},
            {"BatchRA_Dec2PixD", [this] { camera.BatchRA_Dec2PixD(kNorth, &pixel, 1); }},
            {"BatchRA_Dec2K2PixD", [this] { camera.BatchRA_Dec2K2PixD(kNorth, &pixel, 1); }},
            {"Reduct2CamDouble", [this] { camera.Reduct2CamDouble(kNorth, vector, true); }},
            {"FindHome", [this] { camera.FindHome({}); }},
            {"GetPlay", [this] { camera.GetPlay({}); }},
            {"GetDarkMagDrawF", [this] { camera.GetDarkMagDrawF(0); }}};
  }

  test_support::TempRoots roots;
  Camera camera{1}, another{1};
  double identity[9] = {1.0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 1.0};
  double vector[3] = {};
  tPoint<double> pixel;
  CommonInterfaces::_Date date;
};

TEST_F(CameraByTwoThreads, ChangeDuringAChangeIsNoticedWithBothOperations) {
  const Overlap overlap([this] { camera.GoHome(true); }, [this] { camera.SetZoom(2.0); });
  EXPECT_EQ(overlap.GetOperations(), "Camera: GoHome, SetZoom");
}

TEST_F(CameraByTwoThreads, EveryWatchedChangeIsNoticedDuringAChangeAndDuringAReading) {
  for (const Operation& operation : Changes()) {
    EXPECT_EQ(CalledWhile<Changing>(&camera, operation.call), operation.name);
    EXPECT_EQ(CalledWhile<Reading>(&camera, operation.call), operation.name);
  }
}

TEST_F(CameraByTwoThreads, EveryWatchedReadingIsNoticedDuringAChangeAlone) {
  for (const Operation& operation : Readings()) {
    EXPECT_EQ(CalledWhile<Changing>(&camera, operation.call), operation.name);
    EXPECT_EQ(CalledWhile<Reading>(&camera, operation.call), "") << operation.name;
  }
}

TEST_F(CameraByTwoThreads, AnotherCameraMayBeUsedMeanwhile) {
  const Overlap overlap([this] { camera.GoHome(true); }, [this] { another.SetZoom(2.0); });
  EXPECT_TRUE(overlap.HasHappened());
  EXPECT_TRUE(overlap.GetBreaches().empty());
}

TEST_F(CameraByTwoThreads, HandingOverIsNone) {
  const test_support::BreachCapture breaches;
  for (int i = 0; i < 3; ++i) {
    for (const Operation& operation : Changes()) {
      operation.call();
      std::thread(operation.call).join();
    }
  }
  EXPECT_EQ(breaches.GetCount(), 0);
}

class FrameByTwoThreads : public testing::Test {
 protected:
  static scene::SkyCatalogs Open(const host_test::SmallRoot& root) {
    scene::SkyCatalogs catalogs;
    std::string error;
    EXPECT_TRUE(scene::OpenDataRoot(root.dir.Path("data"), "", "en", catalogs, error)) << error;
    return catalogs;
  }

  host_test::SmallRoot root;
  scene::SkyCatalogs catalogs = Open(root);
  Camera camera{1};
  scene::ShownKinds shown;
  scene::SkyMarkers markers;
  scene::FrameMaker maker{camera, catalogs, shown, scene::ObjectFilters::None(), markers};
  scene::FrameMaker another{camera, catalogs, shown, scene::ObjectFilters::None(), markers};

  void SetUp() override {
    const test_support::BreachCapture breaches;
    camera.CreateDefault();
    camera.SetWinRect({80, 60, 80, 60});
    maker.Prepare();
    another.Prepare();
    EXPECT_EQ(breaches.GetCount(), 0);
  }
};

TEST_F(FrameByTwoThreads, MakerIsNoticed) {
  EXPECT_EQ(CalledWhile<Changing>(&maker, [this] { maker.Prepare(); }), "Prepare");
}

TEST_F(FrameByTwoThreads, FrameIsNoticed) {
  const Operation operations[] = {{"Compute", [this] { maker.Compute(); }},
                                  {"SetCaption", [this] { maker.GetFrame().SetCaption({}); }},
                                  {"SetMarkers", [this] { maker.GetFrame().SetMarkers({}); }},
                                  {"SetShowers", [this] { maker.GetFrame().SetShowers({}); }},
                                  {"SetFinders", [this] { maker.GetFrame().SetFinders({}); }},
                                  {"SetLandscape", [this] { maker.GetFrame().SetLandscape({}); }},
                                  {"FetchTexts", [this] { maker.GetFrame().FetchTexts(); }}};
  for (const Operation& operation : operations) {
    EXPECT_EQ(CalledWhile<Changing>(&maker.GetFrame(), operation.call), operation.name);
    EXPECT_EQ(CalledWhile<Changing>(&another.GetFrame(), operation.call), "") << operation.name;
  }
}

TEST_F(FrameByTwoThreads, CameraThatChangesWhileItsFrameIsComputedIsNoticed) {
  EXPECT_EQ(CalledWhile<Changing>(&camera, [this] { maker.Compute(); }), "Compute");
  EXPECT_EQ(CalledWhile<Reading>(&camera, [this] { maker.Compute(); }), "");
}

TEST_F(FrameByTwoThreads, HandingOverIsNone) {
  const test_support::BreachCapture breaches;
  for (int i = 0; i < 3; ++i) {
    maker.Compute();
    std::thread([this] { maker.Compute(); }).join();
  }
  EXPECT_EQ(breaches.GetCount(), 0);
}

TEST(RenderSettingsByTwoThreads, ChangesAreNoticed) {
  RenderSettings settings, another;
  const Operation operations[] = {{"CreateDefault", [&] { settings.CreateDefault(); }},
                                  {"SetAsterFavo", [&] { settings.SetAsterFavo(1, 2); }},
                                  {"ClearFavo", [&] { settings.ClearFavo(); }},
                                  {"InsertSCelem", [&] { settings.InsertSCelem(1, 2); }},
                                  {"ShowOrbit", [&] { settings.ShowOrbit({}, true, 1.0); }},
                                  {"isObjectWithOrbit", [&] { settings.isObjectWithOrbit({}); }},
                                  {"clearNPMOrbits", [&] { settings.clearNPMOrbits(true); }}};
  for (const Operation& operation : operations) {
    EXPECT_EQ(CalledWhile<Changing>(&settings, operation.call), operation.name);
    EXPECT_EQ(CalledWhile<Changing>(&another, operation.call), "") << operation.name;
  }
}

TEST(RenderSettingsByTwoThreads, ReadingIsNoticedDuringAChangeAlone) {
  const RenderSettings settings;
  EXPECT_EQ(CalledWhile<Changing>(&settings, [&] { settings.GetOrbitAlpha({}); }), "GetOrbitAlpha");
  EXPECT_EQ(CalledWhile<Reading>(&settings, [&] { settings.GetOrbitAlpha({}); }), "");
}

TEST(RenderSettingsByTwoThreads, PathCacheIsNoticedWhicheverObjectIsUsed) {
  const Overlap overlap([] { RenderSettings::takePathFromCache({}, nullptr, 0); },
                        [] { RenderSettings::movePathToCache(nullptr); });
  EXPECT_EQ(overlap.GetOperations(), "RenderSettings::s_PathLineCache: takePathFromCache, movePathToCache");
}

// The first line of the table is there twice, which loading says.
constexpr char kTwice[] = "1\tone\n1\tone\n2\ttwo\n";

class StringsByTwoThreads : public testing::Test {
 protected:
  test_support::TempRoots roots;
};

TEST_F(StringsByTwoThreads, ReadingWhileTheTableIsLoadedIsNoticed) {
  const Overlap overlap([this] { test_support::LoadStrings(roots, kTwice); },
                        [] { QX4Strings::GetString(2, true); });
  EXPECT_EQ(overlap.GetOperations(), "QX4Strings: Load, GetString");
}

TEST_F(StringsByTwoThreads, ChangeOfLanguageDuringAReadingIsNoticed) {
  test_support::LoadStrings(roots, "1\tone\n");
  const Overlap overlap([] { QX4Strings::GetString(7, false); }, [] { QX4Strings::StartLocaleUpdate(); });
  EXPECT_EQ(overlap.GetOperations(), "QX4Strings: GetString, StartLocaleUpdate");
}

TEST_F(StringsByTwoThreads, ReadersOfALoadedTableAreNone) {
  test_support::LoadStrings(roots, "1\tone\n");
  const Overlap overlap([] { QX4Strings::GetString(7, false); },
                        [] {
                          const QX4Strings strings;
                          EXPECT_STREQ(QX4Strings::GetString(1, true), "one");
                        });
  EXPECT_TRUE(overlap.HasHappened());
  EXPECT_TRUE(overlap.GetBreaches().empty());
}

}  // namespace
