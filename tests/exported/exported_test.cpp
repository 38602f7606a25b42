// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What an application does with the libraries, through the three umbrella headers alone. Each test crosses
// the border of the shared library: allocation here and release there, virtual calls, exceptions, exported
// data.
#include <astro/astro.h>
#include <common_interfaces/common_interfaces.h>
#include <gtest/gtest.h>
#include <utils/utils.h>

#include <memory>
#include <numbers>
#include <string>
#include <vector>

#include "support/temp_dir.h"

namespace {

using namespace CommonInterfaces;

constexpr double kPi = std::numbers::pi;

std::vector<unsigned char> ShortField(unsigned section, const char* name, short value) {
  std::vector<unsigned char> record(22);
  StoreLE32(&record[0], section);
  StoreLE32(&record[4], static_cast<unsigned>(GetUniqueID(name)));
  record[8] = kFieldInt16;
  StoreLE16(&record[9], 1);
  record[15] = 1;
  StoreLE32(&record[16], kOwnQuerySection);
  StoreLE16(&record[20], static_cast<std::uint16_t>(value));
  return record;
}

// One function under two names: a plain call is clear although both are seen.
TEST(Exported, NameIdsAreAskedForPlainly) {
  EXPECT_GT(GetUniqueID("RA"), 0);
  EXPECT_EQ(GetUniqueID("RA"), CommonInterfaces::GetUniqueID("RA"));
  EXPECT_EQ(&::GetUniqueID, &CommonInterfaces::GetUniqueID);
  EXPECT_EQ(GetUniqueID("RA"), FieldIds::RA);
}

TEST(Exported, SettingsReachTheCameraAndShiftItsLimits) {
  const test_support::TempRoots roots;
  SettingsData settings(1, FourCC("FLTR"), "filters.data");
  const auto field = ShortField(FourCC("star"), "StarZoomDependShow", 15);
  ASSERT_EQ(settings.CreateField(reinterpret_cast<const FieldData*>(field.data()), 22, false), 0);

  Camera camera(1);
  camera.CreateDefault();
  EXPECT_EQ(camera.GetDarkMagObject(FourCC("star")), 60);  // magnitude 4 at zoom 1
  camera.FillMagCorrectionsVector(&settings);
  EXPECT_EQ(camera.GetDarkMagObject(FourCC("star")), 75);
}

TEST(Exported, QueryListIsMadeThereAndReleasedHere) {
  const test_support::TempRoots roots;
  SettingsData settings(1, FourCC("FLTR"), "filters.data");
  const auto field = ShortField(FourCC("star"), "Magnitude", 65);
  settings.CreateField(reinterpret_cast<const FieldData*>(field.data()), 22, false);
  settings.SetSectionStatus(FourCC("star"), 1);
  const std::unique_ptr<BaseList> list(settings.CreateQueryList(FourCC("star"), false));
  auto* queries = dynamic_cast<TBaseList<BaseQuery*>*>(list.get());
  ASSERT_NE(queries, nullptr);
  ASSERT_EQ(queries->size(), 1u);
  EXPECT_NE(dynamic_cast<TQuery<short>*>(queries->front()), nullptr);
  EXPECT_EQ(*static_cast<const short*>(queries->front()->GetValue(0)), 65);
}

TEST(Exported, RecordsArePlacedInAPoolOfTheLibrary) {
  OutputPool pool(1024, 2);
  auto* star = new (pool) StarOutput;
  ASSERT_NE(star, nullptr);
  EXPECT_TRUE(pool.isPoolMemory(star));
  const std::unique_ptr<BaseOutput> heap(new DeepskyOutput);
  EXPECT_FALSE(pool.isPoolMemory(heap.get()));
}

TEST(Exported, ErrorsThrownInTheLibraryAreCaughtHere) {
  thread::Semaphore semaphore(0x7FFFFFFF);
  EXPECT_THROW(semaphore.unlock(), thread::Semaphore::Error);
  EXPECT_THROW(semaphore.unlock(), thread::GenericError);
}

TEST(Exported, DerivedThreadRunsItsOwnRun) {
  class Own : public thread::Thread {
   public:
    void run() override { ran = true; }
    bool ran = false;
  };
  Own own;
  own.start();
  own.waitForEnd();
  EXPECT_TRUE(own.ran);
}

TEST(Exported, StaticDataOfTheLibraryIsSeen) {
  EXPECT_EQ(Camera::s_ZoomDependDesc[19].row, 19);
  AnimationInterval::m_CurrentTime = 2.5;
  EXPECT_EQ(AnimationInterval::m_CurrentTime, 2.5);
}

TEST(Exported, StringsAreFoundInTheLanguageOfTheRoots) {
  const test_support::TempRoots roots;
  roots.dir.Write("data/qxstrings.txt", "star\tStar\n");
  QX4Strings::StartLocaleUpdate();
  const QX4Strings strings;
  EXPECT_STREQ(QX4Strings::GetString(FourCC("star"), true), "Star");
  EXPECT_STREQ(GetObjectTypeName(FourCC("uSTR"), 0), "Star");
}

TEST(Exported, AViewOfTheSkyHasTheZenithAboveAndEastToTheLeftOfSouth) {
  double frame[9];
  HorizonMatrix(0.0, 0.87, frame);
  double zenith[3];
  const double up[3] = {0.0, 0.0, 1.0};
  V3Mprod(up, frame, zenith);  // back to the equator of date
  EXPECT_NEAR(Vmod(zenith, 3), 1.0, 1e-15);

  Camera camera(1);
  camera.CreateDefault();
  camera.SetWinRect({800, 600, 800, 600});
  camera.SetRA_Dec({kPi, 0.3, 0.0, 0});  // south, a little above the horizon
  double southEast[3];
  sfp(1.0, 1.25 * kPi, 0.3, southEast);
  tPoint<double> pixel;
  camera.RA_Dec2PixD(southEast, &pixel);
  EXPECT_LT(pixel.x, 400.0);
  tPoint<double> higher;
  double above[3];
  sfp(1.0, kPi, 0.5, above);
  camera.RA_Dec2PixD(above, &higher);
  EXPECT_GT(higher.y, 300.0);
}

TEST(Exported, AStarOfAnOwnDatabaseReachesAnOwnModel) {
  class OneField : public BaseDB {
   public:
    const void* GetField(int id) const override {
      return id == GetUniqueID("Parallax") ? &parallax : nullptr;
    }
    unsigned GetFieldType(int) const override { return kFieldInt16; }
    short parallax = 768;  // milliarcseconds
  };
  class OwnModel : public CQXSolSys {
   public:
    bool SetLocateObject(const SSO_ID&, const void* data) override {
      star = *static_cast<const StarRecord*>(data);
      return true;
    }
    StarRecord star;
  };
  OneField database;
  OwnModel model;
  SSO_ID id(FourCC("star"), 1);
  EXPECT_EQ(ConvertDBRecord(id, &database, nullptr, &model, kConvertLocateObject), kConversionDone);
  EXPECT_DOUBLE_EQ(model.star.parallax, 0.768 * 4.84813681109536e-06);
  EXPECT_EQ(model.star.visMagnitude, 999999.0f);
}

TEST(Exported, PathsMadeHereAreKeptAndReleasedThere) {
  const SSO_ID sun(FourCC("plnt"), 10);
  for (int kind = 0; kind < 3; ++kind) {
    auto* path = new PathLine;
    path->m_Object = SSO_ID(FourCC("comt"), 1);
    path->m_Reference = sun;
    path->m_Kind = kind == 0 ? 0 : 1;  // the last replaces the second
    path->m_Points.resize(100);
    RenderSettings::movePathToCache(path);
  }
  EXPECT_EQ(RenderSettings::s_PathLineCache.size(), 2u);
  const std::unique_ptr<PathLine> path(RenderSettings::takePathFromCache(SSO_ID(FourCC("comt"), 1), &sun, 1));
  ASSERT_NE(path, nullptr);
  EXPECT_EQ(path->m_Points.size(), 100u);
  EXPECT_EQ(RenderSettings::s_PathLineCache.size(), 1u);  // which goes with the process
}

}  // namespace
