// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// Whose path over the sky is drawn, and what is said of satellites that nobody can find.
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>

#include "astro/julian_date.h"
#include "astro/rise_set.h"
#include "astro/vectors.h"
#include "scene/bodies/satellite_pass.h"
#include "scene/catalogs/satellites.h"
#include "scene/frame_helpers.h"

using namespace scene;

namespace {

// The station's set with another number and mean anomaly, degrees. The last digit of a line is the sum of its
// digits, a minus counting as one.
std::string SetOf(int number, double anomaly) {
  std::string lines[] = {host_test::kStationLine1, host_test::kStationLine2};
  char field[16];
  std::snprintf(field, sizeof field, "%05d", number);
  for (std::string& line : lines) line.replace(2, 5, field);
  std::snprintf(field, sizeof field, "%8.4f", anomaly);
  lines[1].replace(43, 8, field);
  for (std::string& line : lines) {
    int sum = 0;
    for (const char c : line.substr(0, 68)) sum += c >= '0' && c <= '9' ? c - '0' : c == '-' ? 1 : 0;
    line[68] = static_cast<char>('0' + sum % 10);
  }
  return "S" + std::to_string(number) + "\n" + lines[0] + "\n" + lines[1] + "\n";
}

// Follow each other over Berlin on 2014 January 21 at 5:07 UT, a degree and a half of their orbit apart.
std::string Train(int count) {
  std::string sets;
  for (int i = 0; i < count; ++i) sets += SetOf(90001 + i, 272.8005 + 1.5 * i);
  return sets;
}

class SatellitePaths : public testing::Test {
 protected:
  void Load(const std::string& sets) {
    std::string error;
    ASSERT_TRUE(LoadSatellites(f.sky.dir.Write("s.tle", sets), f.catalogs.bodies, error)) << error;
    frame.emplace(f.catalogs);
    f.SetTime(2014, 1, 21, 5, 7);
    f.camera.SetZoom(0.3);
    f.SetLook(190.0, 60.0);
    Compute();
  }
  void Compute() {
    f.observer = PrepareObserver(f.camera);
    frame->Compute(f.camera, f.observer, f.shown);
  }
  const SatellitePasses& GetPasses() const { return frame->GetParts().solarSystem.GetPasses(); }
  // The numbers of the satellites that have a path.
  std::set<int> WithPath() const {
    std::set<int> numbers;
    for (const auto& line : GetPasses().GetLines()) numbers.insert(line.satellite.number);
    return numbers;
  }
  const double* Seen(int number) const {
    const int body = FindBody(f.catalogs.bodies, SSO_ID(FourCC("scft"), number));
    return frame->GetBodies().GetStates()[static_cast<std::size_t>(body)].seen.apparent;
  }

  host_test::FrameFixture f;
  std::optional<SkyFrame> frame;
};

}  // namespace

TEST_F(SatellitePaths, ThreeHaveAllTheirs) {
  Load(Train(3));
  EXPECT_EQ(WithPath(), (std::set<int>{90001, 90002, 90003}));
}

TEST_F(SatellitePaths, OfFourTheOneNearestToTheMiddleHasIts) {
  Load(Train(4));
  for (int number = 90001; number <= 90004; ++number) {
    const astro::HorizonPlace place = astro::MakeHorizonPlace(f.observer.reduction, Seen(number), 0.0);
    ASSERT_GT(place.altitude, 0.0) << number;
    f.SetLook(place.azimuth / kRadiansPerDegree, place.altitude / kRadiansPerDegree);
    Compute();
    EXPECT_EQ(WithPath(), (std::set<int>{number}));
    for (const auto& mark : GetPasses().GetMarks()) EXPECT_EQ(mark.satellite.number, number);
  }
}

TEST_F(SatellitePaths, OneThatNobodyCanFindIsNotTheNearest) {
  Load(Train(4));
  for (auto& body : f.catalogs.bodies) {
    if (body.id == SSO_ID(FourCC("scft"), 90002)) body.elements.e = 1.5;
  }
  const astro::HorizonPlace place = astro::MakeHorizonPlace(f.observer.reduction, Seen(90002), 0.0);
  frame.emplace(f.catalogs);
  f.SetLook(place.azimuth / kRadiansPerDegree, place.altitude / kRadiansPerDegree);
  Compute();
  ASSERT_EQ(WithPath().size(), 1u);
  EXPECT_NE(*WithPath().begin(), 90002);
}

// Only satellites have a shadow to be in.
TEST_F(SatellitePaths, OtherBodiesAreAlwaysSunlit) {
  Load(Train(1));
  EXPECT_TRUE(GetPasses().IsSunlitNow(FindBody(f.catalogs.bodies, SSO_ID(FourCC("plnt"), 5))));
}

TEST_F(SatellitePaths, WhatIsWrongWithTheElementsIsTold) {
  Load(Train(1));
  BodyList bodies;
  for (const auto& body : f.catalogs.bodies) {
    if (body.id.kind == FourCC("scft")) bodies.push_back(body);
  }
  ASSERT_EQ(bodies.size(), 1u);
  int day = 0;
  double fraction = 0.0;
  DJ({2014, 1, 21}, day, fraction);
  const auto told = [&] {
    f.diagnostics.lines.clear();
    ReportLostSatellites("s.tle", bodies, MakeMoment(day, fraction));
    return f.diagnostics.lines.size() == 1 ? f.diagnostics.lines[0] : std::string("not one line");
  };
  const double e = bodies[0].elements.e;
  bodies[0].elements.e = 1.5;
  EXPECT_EQ(told(), "S90001: nobody can tell where it is, its eccentricity is out of range\n");
  bodies[0].elements.e = e;
  bodies[0].elements.n = -bodies[0].elements.n;
  EXPECT_EQ(told(), "S90001: nobody can tell where it is, its mean motion is not above zero\n");
}
