// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_frame.h"

#include <gtest/gtest.h>

#include "astro/vectors.h"
#include "scene/frame_helpers.h"
#include "support/allocation_counter.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

constexpr int kSirius = 2491, kRigel = 1713, kBetelgeuse = 2061;

tPoint<double> CompassPlace(const SkyFrame& frame, const std::string& letter) {
  for (const auto& label : frame.GetParts().labels.GetLabels()) {
    if (letter == label.text) return label.place;
  }
  return {-1.0, -1.0};
}

}  // namespace

TEST(SkyFrame, FacingSouthEastIsOnTheLeftAndWestOnTheRight) {
  FrameFixture f;
  f.camera.SetZoom(0.35);
  f.SetLook(180.0, 20.0);
  f.Compute();
  const auto south = CompassPlace(f.frame, "S"), east = CompassPlace(f.frame, "E"),
             west = CompassPlace(f.frame, "W");
  EXPECT_NEAR(south.x, 800.0, 1.0);
  ASSERT_GT(east.x, 0.0);
  ASSERT_GT(west.x, 0.0);
  EXPECT_LT(east.x, south.x);
  EXPECT_GT(west.x, south.x);
}

TEST(SkyFrame, CompassLetterStandsAboveTheHorizonWhereThereIsNoRoomBelow) {
  FrameFixture f;
  // The picture reaches 20.1 degrees below its centre, so the horizon lies just inside its lower edge.
  f.SetLook(180.0, 20.0);
  f.Compute();
  const auto south = CompassPlace(f.frame, "S");
  EXPECT_NEAR(south.x, 800.0, 1.0);
  for (const auto& mark : f.frame.GetParts().horizon.GetCompass()) {
    if (mark.main) {
      EXPECT_GT(south.y, mark.place.y);
    }
  }
}

TEST(SkyFrame, FacingNorthEastIsOnTheRight) {
  FrameFixture f;
  f.camera.SetZoom(0.35);
  f.SetLook(0.0, 20.0);
  f.Compute();
  EXPECT_GT(CompassPlace(f.frame, "E").x, CompassPlace(f.frame, "N").x);
}

// Orion in the south of a northern winter night: Betelgeuse stands higher than Rigel and left (east) of it.
TEST(SkyFrame, UpIsUp) {
  FrameFixture f;
  f.Compute();
  const auto* betelgeuse = f.Find(kBetelgeuse);
  const auto* rigel = f.Find(kRigel);
  ASSERT_TRUE(betelgeuse && rigel);
  EXPECT_GT(betelgeuse->output->m_Place.y, rigel->output->m_Place.y);
  EXPECT_LT(betelgeuse->output->m_Place.x, rigel->output->m_Place.x);
}

TEST(SkyFrame, ObjectsBelowTheHorizonAreLeftOutWhileItIsShown) {
  FrameFixture f;
  f.camera.SetZoom(0.25);
  f.SetLook(180.0, 0.0);
  f.Compute();
  const std::size_t above = f.frame.GetStars().size();
  EXPECT_EQ(f.Find(5340), nullptr) << "Arcturus has not risen";
  f.shown.horizon = false;
  f.Compute();
  EXPECT_GT(f.frame.GetStars().size(), above);
}

TEST(SkyFrame, ZoomShowsFainterStars) {
  FrameFixture f;
  f.sky.dir.Write("data/catalogs/stars.txt",
                  "RA:f64\tDec:f64\tVisMagnitude:f32\n1.46\t0.0\t7.0\n1.46\t0.0\t9.0\n1.46\t0.0\t11.0\n");
  std::string error;
  SkyCatalogs catalogs;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  SkyFrame frame(catalogs);
  // The draw limit is magnitude 7.5 at zoom 1, 11.5 at zoom 10.
  for (const auto& [zoom, count] : {std::pair(1.0, 1u), std::pair(3.0, 2u), std::pair(10.0, 3u)}) {
    f.camera.SetZoom(zoom);
    PrepareObserver(f.camera);
    double there[3];
    SphViewCoor angles;
    f.camera.ReductRADec2CamDouble(1.46, 0.0, there);
    psf(there, 1.0, angles.lon, angles.lat);
    f.camera.SetRA_Dec(angles);
    frame.Compute(f.camera, PrepareObserver(f.camera), ShownKinds());
    EXPECT_EQ(frame.GetStars().size(), count) << "zoom " << zoom;
  }
}

TEST(SkyFrame, EveryVisibleObjectHasOneFilledRecord) {
  FrameFixture f;
  f.Compute();
  ASSERT_FALSE(f.frame.GetStars().empty());
  for (const auto& drawn : f.frame.GetStars()) {
    EXPECT_EQ(drawn.output->m_Frame, 1u);
    EXPECT_TRUE(drawn.output->m_Drawn);
    EXPECT_GT(drawn.output->m_Place.radius, 0.0f);
    EXPECT_GE(drawn.output->m_Place.x, -50.0f);
    EXPECT_LE(drawn.output->m_Place.x, 1650.0f);
  }
  // The picture reaches 20 degrees above its centre at 30: the Orion nebula is in it, the Pleiades stand
  // higher.
  ASSERT_EQ(f.frame.GetDeepsky().size(), 1u);
  EXPECT_TRUE(f.frame.GetDeepsky()[0].output->m_SymbolDrawn);
  EXPECT_FALSE(f.frame.IsPoolExhausted());
}

// Without the air, which would lift the star by other angles than the middle. From the catalogue's places,
// which Sirius, the fastest of the three, has left by 35 seconds of arc since 2000: 1.7e-4.
TEST(SkyFrame, PlaceOfAStarHasItsAngleFromTheMiddleOfThePicture) {
  FrameFixture f;
  f.shown.refraction = false;
  f.Compute();
  const ViewGeometry geometry(f.camera);
  for (const int number : {kSirius, kRigel, kBetelgeuse}) {
    const auto* star = f.Find(number);
    ASSERT_TRUE(star) << number;
    const Direction there = ApparentDirection(f.catalogs.stars.GetDirection(star->star), f.observer);
    EXPECT_NEAR(star->output->m_Place.angle, VectorsAngle(there.v, geometry.centreJ2000.v), 2e-4) << number;
  }
}

TEST(SkyFrame, BrighterStarsAreLargerAndNamed) {
  FrameFixture f;
  f.Compute();
  const auto* sirius = f.Find(kSirius);
  const auto* betelgeuse = f.Find(kBetelgeuse);
  ASSERT_TRUE(sirius && betelgeuse);
  EXPECT_GT(sirius->output->m_Place.radius, betelgeuse->output->m_Place.radius);
  EXPECT_EQ(sirius->opacity, 1.0f);
  ASSERT_GE(sirius->output->m_LabelIndex, 0);
  EXPECT_STREQ(f.frame.GetParts().labels.GetLabels()[sirius->output->m_LabelIndex].text, "Sirius");
}

TEST(SkyFrame, ClassSwitchedOffIsNotDrawn) {
  FrameFixture f;
  f.shown.stars = f.shown.nebulae = false;
  f.camera.SetZoom(0.4);
  f.SetLook(200.0, 45.0);
  f.Compute();
  EXPECT_TRUE(f.frame.GetStars().empty());
  EXPECT_FALSE(f.frame.GetDeepsky().empty());
  for (const auto& drawn : f.frame.GetDeepsky()) {
    EXPECT_NE(f.catalogs.deepsky[drawn.object].kind, FourCC("nebu"));
  }
}

TEST(SkyFrame, FigureLinesStayInsideTheWindow) {
  FrameFixture f;
  for (const double zoom : {0.25, 1.0, 6.0}) {
    f.camera.SetZoom(zoom);
    f.Compute();
    EXPECT_FALSE(f.frame.GetParts().figures.GetLines().empty());
    for (const auto& [line, constellation] : f.frame.GetParts().figures.GetLines()) {
      for (const auto& p : {line.from, line.to}) {
        EXPECT_GE(p.x, -1.0);
        EXPECT_LE(p.x, 1601.0);
        EXPECT_TRUE(std::isfinite(p.y));
      }
    }
  }
}

TEST(SkyFrame, CaptionStandsInTheLowerLeftCorner) {
  FrameFixture f;
  f.frame.SetCaption({"somewhere", "sometime"});
  f.Compute();
  ASSERT_TRUE(f.HasLabel("somewhere") && f.HasLabel("sometime"));
  const auto& lower = f.frame.GetParts().labels.GetLabels()[0];
  const auto& upper = f.frame.GetParts().labels.GetLabels()[1];
  EXPECT_STREQ(lower.text, "sometime");
  EXPECT_LT(upper.place.y, 60.0);
  EXPECT_GE(upper.place.y - lower.place.y, lower.size);
}

TEST(SkyFrame, NothingIsAllocatedAfterTheFirstFrame) {
  FrameFixture f;
  f.frame.SetCaption({"Место: На поверхности — Земля", "Зона"});
  f.SetLook(180.0, 30.0);
  f.Compute();
  const unsigned long long before = host_test::GetAllocationCount();
  ASSERT_GT(before, 0u) << "the counter does not count";
  std::size_t drawn = 0;
  for (int i = 0; i < 60; ++i) {
    f.camera.SetZoom(0.3 + 0.1 * i);
    f.SetLook(6.0 * i, i - 10.0);
    f.SetTime(2026, 1, 15, i % 24, i);
    f.Compute();
    drawn += f.frame.GetStars().size() + f.frame.GetParts().figures.GetLines().size();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(drawn, 0u);
}

TEST(SkyFrame, GroundSurroundsAViewOfTheZenith) {
  FrameFixture f;
  f.camera.SetZoom(0.3);
  f.SetLook(0.0, 90.0);
  f.Compute();
  EXPECT_TRUE(f.frame.GetParts().horizon.GetGround().holdsOutside);
  f.SetLook(0.0, -60.0);
  f.Compute();
  EXPECT_FALSE(f.frame.GetParts().horizon.GetGround().holdsOutside);
}
