// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/shower_radiants.h"

#include <gtest/gtest.h>

#include "support/allocation_counter.h"
#include "scene/frame_helpers.h"
#include "skyview/reports/shower_report.h"

using namespace scene;
using host_test::FrameFixture;
using host_test::SmallRoot;

namespace {

// A shower of August, one that lasts across the new year, and one whose radiant never rises in Berlin.
constexpr const char* kShowers =
    "6101\tPerseids;17;7;12;8;24;8;PER;109P/Swift-Tuttle;3;12;+58\n"
    "6102\tQuadrantids;28;12;3;1;12;1;QUA;2003 EH1;15;20;+49\n"
    "6103\tSoutherners;1;8;20;8;30;8;SOU;;12;0;-80\n";

// The shipped texts with these showers in place of the shipped ones.
std::string WithShowers(const std::string& language) {
  const std::string shipped = host_test::ShippedStrings(language);
  std::string text;
  for (std::size_t begin = 0; begin < shipped.size();) {
    const std::size_t end = std::min(shipped.find('\n', begin), shipped.size() - 1) + 1;
    const std::string line = shipped.substr(begin, end - begin);
    if (!(line.starts_with("61") && line.find('\t') == 4)) text += line;
    begin = end;
  }
  return text + kShowers;
}

void WriteShowers(const SmallSky& sky) {
  sky.dir.Write("data/qxstrings.txt", WithShowers("en"));
  for (const char* language : {"en", "de", "ru"}) {
    sky.dir.Write(std::string("data/languages/") + language + "/qxstrings.txt", WithShowers(language));
  }
}

Shower MakePerseids() {
  Shower shower;
  shower.name = "Perseids";
  shower.record.beginDay = 17;
  shower.record.beginMonth = 7;
  shower.record.maximumDay = 12;
  shower.record.maximumMonth = 8;
  shower.record.endDay = 24;
  shower.record.endMonth = 8;
  shower.radiant = MakeDirection(48.0 * kRadiansPerDegree, 58.0 * kRadiansPerDegree);
  return shower;
}

// The north-east in a summer night.
class ShowerRadiantsTest : public testing::Test {
 protected:
  ShowerRadiantsTest() {
    f.SetTime(2026, 8, 12, 22, 0);
    f.SetLook(40.0, 40.0);
    f.camera.SetZoom(0.5);
    f.frame.SetShowers({MakePerseids()});
  }
  const std::vector<DrawnRadiant>& GetDrawn() const { return f.frame.GetParts().radiants.GetDrawn(); }

  FrameFixture f;
};

const std::vector<std::string> kAugust = {"--place", "52.5,13.4", "--time",   "2026-08-12T22:00Z",
                                          "--look",  "40,40",     "--showers"};

std::vector<std::string> August(const std::vector<std::string>& more) {
  auto arguments = kAugust;
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

}  // namespace

TEST_F(ShowerRadiantsTest, StandWhereTheSkyHasThemWithTheirName) {
  f.Compute();
  ASSERT_EQ(GetDrawn().size(), 1u);
  EXPECT_TRUE(GetDrawn()[0].peak);
  const ViewGeometry geometry(f.camera);
  const auto place = geometry.Project(
      ApparentDirection(MakeDirection(48.0 * kRadiansPerDegree, 58.0 * kRadiansPerDegree), f.observer),
      SkyFrameOf::kJ2000);
  EXPECT_NEAR(GetDrawn()[0].place.x, place.x, 1e-6);
  EXPECT_NEAR(GetDrawn()[0].place.y, place.y, 1e-6);
  EXPECT_TRUE(f.HasLabel("Perseids"));
}

TEST_F(ShowerRadiantsTest, PeakIsOneDay) {
  f.SetTime(2026, 8, 13, 22, 0);
  f.Compute();
  ASSERT_EQ(GetDrawn().size(), 1u);
  EXPECT_FALSE(GetDrawn()[0].peak);
}

TEST_F(ShowerRadiantsTest, EachFrameTakesThoseOfItsDay) {
  f.SetTime(2026, 9, 12, 22, 0);
  f.Compute();
  EXPECT_TRUE(GetDrawn().empty());
  EXPECT_FALSE(f.HasLabel("Perseids"));
  f.SetTime(2026, 8, 1, 22, 0);
  f.Compute();
  EXPECT_EQ(GetDrawn().size(), 1u);
}

TEST_F(ShowerRadiantsTest, BelowTheHorizonOnlyWithoutOne) {
  f.SetPlace(-50.0, 13.4);
  f.SetLook(0.0, -20.0);
  f.Compute();
  EXPECT_TRUE(GetDrawn().empty());
  f.shown.horizon = false;
  f.SetLook(20.0, -20.0);
  f.camera.SetZoom(0.25);
  f.Compute();
  EXPECT_EQ(GetDrawn().size(), 1u);
}

TEST_F(ShowerRadiantsTest, NothingIsAllocatedAFrame) {
  f.Compute();
  const unsigned long long before = host_test::GetAllocationCount();
  std::size_t drawn = 0;
  for (int i = 0; i < 40; ++i) {
    f.SetTime(2026, 8, 10, i % 24, 0);
    f.SetLook(20.0 + i, 40.0);
    f.Compute();
    drawn += GetDrawn().size();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(drawn, 0u);
}

