// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/prepared_sky.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <random>

#include "common_interfaces/field_names.h"
#include "scene/catalogs/data_root.h"
#include "scene/catalogs/name_index.h"
#include "scene/catalogs/prepared_parts.h"
#include "scene/search/object_search.h"
#include "scene/small_root.h"
#include "support/debug_capture.h"
#include "utils/bytes.h"
#include "utils/checksum.h"
#include "utils/path.h"

using namespace scene;

namespace {

constexpr std::size_t kCheckAt = 80, kPartsAt = 88;  // docs/formats/prepared_sky.md
constexpr PreparedSky kParts[] = {PreparedSky::kStars, PreparedSky::kDeepsky};

std::string PartsOf(SkyCatalogs& catalogs) {
  PreparedWriter parts;
  for (const PreparedSky part : kParts) PreparedParts::Write(part, catalogs, parts);
  return parts.GetBytes();
}

std::string FileOf(PreparedSky part) {
  return part == PreparedSky::kStars ? "data/catalogs/stars.prepared" : "data/catalogs/ngc_ic.prepared";
}

// With the fingerprint that the parts have, as whoever means harm would write it.
std::string Signed(std::string bytes) {
  StoreLE64(bytes.data() + kCheckAt, GetFingerprint(std::string_view(bytes).substr(kPartsAt)));
  return bytes;
}

}  // namespace

class PreparedSkyTest : public testing::Test {
 protected:
  PreparedSkyTest() {
    EXPECT_TRUE(SetSkyRoots(sky.dir.Path("data"), "", error)) << error;
    EXPECT_TRUE(LoadSkyCatalogs(fromTables, error)) << error;
    EXPECT_FALSE(fromTables.starNames || fromTables.deepskyNames);
    for (const PreparedSky part : kParts) {
      prepared.push_back(PrepareSky(part, sky.dir.Path("data"), error));
      EXPECT_GT(prepared.back().size(), kPartsAt) << error;
    }
  }
  void UseBoth() {
    for (const PreparedSky part : kParts)
      sky.dir.Write(FileOf(part), prepared[static_cast<std::size_t>(part)]);
  }
  // Loads with the file of these bytes, and nothing but what the tables have may come of it.
  void ExpectTablesInstead(PreparedSky part, const std::string& bytes, const std::string& what) {
    sky.dir.Write(FileOf(part), bytes);
    diagnostics.lines.clear();
    SkyCatalogs catalogs;
    ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
    EXPECT_FALSE(part == PreparedSky::kStars ? catalogs.starNames : catalogs.deepskyNames);
    EXPECT_EQ(PartsOf(catalogs), PartsOf(fromTables));
    const std::string path = ZentharPath::GetPath(GetPreparedName(part));
    EXPECT_EQ(diagnostics.lines,
              std::vector<std::string>{path + ": " + what + "; the tables are read instead\n"});
  }

  host_test::SmallRoot sky;
  test_support::DebugCapture diagnostics;
  SkyCatalogs fromTables;
  std::string error;
  std::vector<std::string> prepared;
};

TEST_F(PreparedSkyTest, HoldsWhatTheTablesSay) {
  UseBoth();
  SkyCatalogs catalogs;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  ASSERT_TRUE(catalogs.starNames && catalogs.deepskyNames);
  EXPECT_EQ(PartsOf(catalogs), PartsOf(fromTables));
  EXPECT_TRUE(diagnostics.lines.empty());
  EXPECT_EQ(catalogs.milkyWay.GetOrigin(), fromTables.milkyWay.GetOrigin()) << "read as ever";
  EXPECT_EQ(catalogs.bodies.size(), fromTables.bodies.size());
  ASSERT_EQ(catalogs.stars.GetCount(), 10);
  EXPECT_STREQ(catalogs.stars.GetLabel(0), "Sirius");
  ASSERT_EQ(catalogs.deepsky.size(), fromTables.deepsky.size());
  for (std::size_t i = 0; i < catalogs.deepsky.size(); ++i) {
    EXPECT_STREQ(catalogs.deepsky[i].label, fromTables.deepsky[i].label);
    EXPECT_STREQ(catalogs.deepsky[i].designation, fromTables.deepsky[i].designation);
    EXPECT_STREQ(catalogs.deepsky[i].properName, fromTables.deepsky[i].properName);
  }
}

TEST_F(PreparedSkyTest, ObjectsHaveTheSameNames) {
  UseBoth();
  SkyCatalogs catalogs;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  const ObjectSearch ready(catalogs), read(fromTables);
  for (int i = 0; i < 10; ++i) {
    const FoundObject star = {ObjectGroup::kStar, i};
    EXPECT_EQ(ready.GetTitle(star), read.GetTitle(star));
  }
  for (const char* name : {"Sirius", "alp CMa", "HR 2491", "M31", "NGC 224", "Andromeda", "Orion", "Jupiter",
                           "Halley", "alpha Cen", "Siriuss", "", "Nothing at all"}) {
    EXPECT_EQ(ready.Find(name), read.Find(name)) << name;
    EXPECT_EQ(ready.FindNear(name), read.FindNear(name)) << name;
  }
}

TEST_F(PreparedSkyTest, RecordsOfTablesComeWhenAskedFor) {
  UseBoth();
  SkyCatalogs catalogs;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  EXPECT_EQ(catalogs.starTable.GetCount(), 0);
  catalogs.starTable.Select(catalogs.stars.GetRecord(0));
  EXPECT_STREQ(FieldText(catalogs.starTable, CommonInterfaces::FieldIds::ProperName), "Sirius");
  EXPECT_EQ(catalogs.starTable.GetCount(), 10);
  const CatalogTable& messier = catalogs.deepsky.SelectRecord(catalogs.deepsky[0]);
  EXPECT_GT(FieldNumber(messier, CommonInterfaces::FieldIds::MessierNumber, 0.0), 0.0);
}

TEST_F(PreparedSkyTest, TablesThatChangedSinceAreReadInstead) {
  UseBoth();
  const std::string table = sky.dir.Read("data/catalogs/stars.txt");
  const auto name = table.find("Sirius");
  ASSERT_NE(name, std::string::npos);
  std::string changed = table;
  changed.replace(name, 6, "Sothis");
  sky.dir.Write("data/catalogs/stars.txt", changed);
  SkyCatalogs catalogs;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  EXPECT_STREQ(catalogs.stars.GetLabel(0), "Sothis");
  EXPECT_TRUE(diagnostics.lines.empty());
  EXPECT_TRUE(catalogs.deepskyNames) << "the other file stays good";
  PreparedSkySummary summary;
  const std::string path = sky.dir.Path(FileOf(PreparedSky::kStars));
  ASSERT_TRUE(InspectPreparedSky(path.c_str(), summary, error)) << error;
  EXPECT_EQ(summary.part, PreparedSky::kStars);
  EXPECT_EQ(summary.changedTexts, std::vector<std::string>{"catalogs:stars.txt"});
  ASSERT_FALSE(summary.counts.empty());
  EXPECT_STREQ(summary.counts[0].first, "stars");
  EXPECT_EQ(summary.counts[0].second, 10u);
  sky.dir.Write("data/catalogs/stars.txt", table);
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  EXPECT_STREQ(catalogs.stars.GetLabel(0), "Sirius");
  EXPECT_TRUE(catalogs.starNames);
}

TEST_F(PreparedSkyTest, ATableMoreOrLessCountsAsChanged) {
  UseBoth();
  sky.dir.Write("data/catalogs/ngc_ic.txt", "Number:i32\tRA:f64\tDec:f64\n7\t1\t0.5\n");
  SkyCatalogs catalogs;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  EXPECT_FALSE(catalogs.deepskyNames);
  EXPECT_TRUE(catalogs.starNames);
  EXPECT_EQ(catalogs.deepsky.size(), fromTables.deepsky.size() + 1);
}

TEST_F(PreparedSkyTest, WhatIsDamagedIsOneLine) {
  constexpr char kDamaged[] = "the prepared catalogs are damaged";
  for (const PreparedSky part : kParts) {
    UseBoth();
    const std::string& whole = prepared[static_cast<std::size_t>(part)];
    for (const std::size_t at : {std::size_t{12}, kCheckAt, kPartsAt, kPartsAt + 100, whole.size() - 1}) {
      std::string bytes = whole;
      bytes[at] = static_cast<char>(bytes[at] ^ 0x40);
      ExpectTablesInstead(part, bytes, kDamaged);
    }
    ExpectTablesInstead(part, whole.substr(0, kPartsAt), kDamaged);
    ExpectTablesInstead(part, whole.substr(0, kPartsAt - 1), "these are no prepared catalogs");
    ExpectTablesInstead(part, "", "these are no prepared catalogs");
    ExpectTablesInstead(part, prepared[1 - static_cast<std::size_t>(part)], kDamaged);
    std::string other = whole;
    other[8] = 1;  // the one before
    ExpectTablesInstead(part, other, "these are prepared catalogs of another version");
  }
}

// Behind the end there is nothing, and no count makes room for more than the file holds.
TEST_F(PreparedSkyTest, PartsThatEndTooEarlyOrTooLateAreDamaged) {
  for (const PreparedSky part : kParts) {
    const std::string& whole = prepared[static_cast<std::size_t>(part)];
    for (std::size_t size = kPartsAt; size < whole.size(); size += size < kPartsAt + 100 ? 1 : 97)
      ExpectTablesInstead(part, Signed(whole.substr(0, size)), "the prepared catalogs are damaged");
    ExpectTablesInstead(part, Signed(whole + '\0'), "the prepared catalogs are damaged");
    UseBoth();
  }
}

// Whatever stands in a file that is signed well, its users find all counts and indices within bounds.
TEST_F(PreparedSkyTest, HostileFilesAreTakenSoundOrNotAtAll) {
  std::mt19937 random(20);
  constexpr int kTries = 300;
  for (const PreparedSky part : kParts) {
    UseBoth();
    int taken = 0;
    for (int i = 0; i < kTries; ++i) {
      std::string bytes = prepared[static_cast<std::size_t>(part)];
      for (int k = 0; k < 3; ++k) {
        const std::size_t at = kPartsAt + random() % (bytes.size() - kPartsAt);
        bytes[at] = static_cast<char>(random() % 3 == 0 ? 0xFF : random());
      }
      sky.dir.Write(FileOf(part), Signed(bytes));
      SkyCatalogs catalogs;
      ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
      ASSERT_TRUE(PreparedParts::AreSound(catalogs));
      if (!(part == PreparedSky::kStars ? catalogs.starNames : catalogs.deepskyNames)) continue;
      ++taken;
      const ObjectSearch search(catalogs);
      for (const auto& found : search.Find("Sirius")) EXPECT_LT(found.index, 10);
      search.FindNear("Siriuss");
    }
    EXPECT_GT(taken, kTries / 20) << "some changes are but other names and numbers";
    EXPECT_LT(taken, kTries);
  }
}

TEST_F(PreparedSkyTest, OutlinesAreSoundWhoseNumbersAreAndLieWithinTheirLists) {
  NebulaOutlines& all = fromTables.nebulaOutlines;
  const int objects = static_cast<int>(fromTables.deepsky.size());
  all.outlines = {{objects - 1, MakeDirection(1.0, 0.1), 0.1, 0, 1}};
  all.areas = {{3, 0, 1}};
  all.rings = {{0, 3}};
  all.points = {MakeDirection(0.9, 0.1), MakeDirection(1.1, 0.1), MakeDirection(1.0, 0.2)};
  const NebulaOutlines sound = all;
  EXPECT_TRUE(PreparedParts::AreSound(fromTables));
  all.outlines[0].object = -1;
  EXPECT_TRUE(PreparedParts::AreSound(fromTables)) << "a region that is no object";
  const auto refused = [&](auto spoil) {
    all = sound;
    spoil();
    return !PreparedParts::AreSound(fromTables);
  };
  EXPECT_TRUE(refused([&] { all.outlines[0].object = objects; }));
  EXPECT_TRUE(refused([&] { all.outlines[0].object = -2; }));
  EXPECT_TRUE(refused([&] { all.outlines[0].centre.v[0] = 1.5; }));
  EXPECT_TRUE(refused([&] { all.outlines[0].centre.v[1] = std::nan(""); }));
  EXPECT_TRUE(refused([&] { all.outlines[0].radius = 7.0; }));
  EXPECT_TRUE(refused([&] { all.outlines[0].firstArea = 1; }));
  EXPECT_TRUE(refused([&] { all.outlines[0].areaCount = 0; }));
  EXPECT_TRUE(refused([&] { all.areas[0].level = 4; }));
  EXPECT_TRUE(refused([&] { all.areas[0].level = 0; }));
  EXPECT_TRUE(refused([&] { all.areas[0].ringCount = 0; }));
  EXPECT_TRUE(refused([&] { all.areas[0].ringCount = 2; }));
  EXPECT_TRUE(refused([&] { all.rings[0].count = 0; }));
  EXPECT_TRUE(refused([&] { all.rings[0].count = 4; }));
  EXPECT_TRUE(refused([&] { all.points[2].v[2] = 2.0; }));
}

TEST_F(PreparedSkyTest, TablesThatCannotBeUsedMakeNone) {
  std::filesystem::remove(sky.dir.Path("data/catalogs/constellations.txt"));
  EXPECT_EQ(PrepareSky(PreparedSky::kStars, sky.dir.Path("data"), error), "");
  EXPECT_NE(error.find("constellations.txt"), std::string::npos) << error;
  EXPECT_EQ(PrepareSky(PreparedSky::kDeepsky, sky.dir.Path("data"), error), prepared[1]);
}
