// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/surface_names.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/coordinates.h"
#include "astro/vectors.h"
#include "scene/names_files.h"
#include "scene/search/aim.h"
#include "scene/why_helpers.h"
#include "support/allocation_counter.h"

using namespace scene;

namespace {

class SurfaceNamesTest : public testing::Test {
 protected:
  SurfaceNamesTest() {
    host_test::WriteNames(f.sky.dir);
    f.shown.horizon = false;
    f.SetTime(2026, 6, 27, 21, 0);
  }
  void LookAtMoon(double zoom) {
    f.camera.SetZoom(zoom);
    f.Compute();
    const BodyState& moon = f.frame.GetBodies().GetMoon();
    double v[3], longitude = 0.0, latitude = 0.0;
    MV3prod(f.observer.reduction, moon.seen.apparent, v);
    psf(v, 1.0, longitude, latitude);
    f.SetLook(360.0 - longitude / kRadiansPerDegree, latitude / kRadiansPerDegree);
    f.Compute();
  }
  const Label* FindLabel(const std::string& text) const {
    for (const Label& label : f.frame.GetParts().labels.GetLabels()) {
      if (text == label.text) return &label;
    }
    return nullptr;
  }
  std::string NamesOnDisc() const {
    std::string names;
    for (const Label& label : f.frame.GetParts().labels.GetLabels()) {
      if (label.kind == LabelKind::kCrater || label.kind == LabelKind::kRegion)
        names += std::string(label.text) + "; ";
    }
    return names;
  }

  host_test::FrameFixture f;
};

}  // namespace

TEST_F(SurfaceNamesTest, MoreOfThemWithZoomOnTheVisibleSideOnly) {
  LookAtMoon(5.0);
  EXPECT_EQ(NamesOnDisc(), "");
  LookAtMoon(25.0);
  EXPECT_EQ(NamesOnDisc(), "Mare Imbrium; ");
  LookAtMoon(70.0);
  EXPECT_EQ(NamesOnDisc(), "Mare Imbrium; Copernicus; Tycho; Vega; ");
}

// What the Moon's physical ephemeris says against what a picture shows: the pixel of a crater on the axes of
// the globe record, from the middle of its disc, is the crater's place on the body.
TEST_F(SurfaceNamesTest, ANameStandsWhereTheMapHasItsFeature) {
  LookAtMoon(70.0);
  const auto& globes = f.frame.GetDisplayList().GetGlobes();
  ASSERT_EQ(globes.size(), 1u);
  const auto& ellipses = f.frame.GetDisplayList().GetEllipses();
  const int tycho = GetUniqueID("moon Tycho");
  for (const EllipseRecord& outline : ellipses) {
    if (outline.object.number != tycho) continue;
    const DiscRecord& disc = globes[0].disc;
    const double x = (outline.x - disc.x) / disc.radius, y = (outline.y - disc.y) / disc.radius,
                 z = std::sqrt(1.0 - x * x - y * y);
    double v[3];
    for (int i = 0; i < 3; ++i) {
      const float* row = globes[0].toBody + 3 * i;
      v[i] =
          static_cast<double>(row[0]) * x + static_cast<double>(row[1]) * y + static_cast<double>(row[2]) * z;
    }
    // The disc is drawn as seen from afar, the crater from where it is: a quarter of a degree at the limb.
    EXPECT_NEAR(std::asin(v[2]), -0.7557, 0.005);
    EXPECT_NEAR(std::atan2(v[1], v[0]), -0.1958, 0.005);
    EXPECT_NEAR(outline.semiMajor, disc.radius * 0.5 * 85.3 / 1737.4, 0.3);
    return;
  }
  ADD_FAILURE() << "no outline of Tycho";
}

TEST_F(SurfaceNamesTest, NamesAreOffWithTheirSwitch) {
  f.shown.moonFeatures = false;
  LookAtMoon(60.0);
  EXPECT_EQ(NamesOnDisc(), "");
}

TEST_F(SurfaceNamesTest, TheDiscStaysFreeOfOtherLabels) {
  LookAtMoon(60.0);
  const GlobeRecord& globe = f.frame.GetDisplayList().GetGlobes().at(0);
  for (const Label& label : f.frame.GetParts().labels.GetLabels()) {
    if (label.kind != LabelKind::kStarName) continue;
    const double x = label.place.x - globe.disc.x, y = 1000.0 - label.place.y - globe.disc.y;
    EXPECT_GT(std::max(std::fabs(x), std::fabs(y)), globe.disc.radius) << label.text;
  }
}

TEST_F(SurfaceNamesTest, BelowTheHorizonNothingIsNamed) {
  f.shown.horizon = true;
  f.SetTime(2026, 6, 27, 8, 0);
  LookAtMoon(60.0);
  EXPECT_EQ(NamesOnDisc(), "");
}

TEST_F(SurfaceNamesTest, NothingAllocatesOnceTheGazetteerIsThere) {
  LookAtMoon(60.0);
  const unsigned long long before = host_test::GetAllocationCount();
  f.Compute();
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}

namespace {

class WhyFeatureTest : public host_test::WhyFixture {
 protected:
  void LookAt(double zoom, int month = 6, int day = 27) {
    host_test::WriteNames(f.sky.dir);
    UseCatalogs();
    f.SetTime(2026, month, day, 21, 0);
    f.camera.SetZoom(zoom);
    Compute();
    std::string error;
    ASSERT_TRUE(AimAt(ObjectSearch(catalogs).FindOne("Moon", error).value(), catalogs, f.camera));
    Compute();
  }
};

}  // namespace

TEST_F(WhyFeatureTest, ReasonsAreThoseOfThePicture) {
  LookAt(60.0);
  EXPECT_TRUE(Why("Copernicus").IsDrawn());
  EXPECT_EQ(Why("Copernicus").label, LabelFate::kPlaced);
  EXPECT_EQ(Why("Tsiolkovskiy").obstacles, unsigned{kFarSide});
  EXPECT_EQ(Why("Tycho A").obstacles, unsigned{kTooSmall});
  EXPECT_TRUE(Why("Olympus Mons").obstacles & kTooSmall);
}

// The Moon was at first quarter on 25 March 2026 at 19:18: the Sun had not yet risen at 20 degrees west.
TEST_F(WhyFeatureTest, NothingIsNamedByNight) {
  LookAt(60.0, 3, 25);
  EXPECT_EQ(Why("Copernicus").obstacles, unsigned{kInNight});
  EXPECT_EQ(Why("Copernicus").label, LabelFate::kNone);
}

TEST_F(WhyFeatureTest, AnAsterismIsThereOnceItIsSwitchedOn) {
  LookAt(1.0);
  const Explanation off = Why("Orion's Belt");
  EXPECT_TRUE(off.obstacles & kKindOff);
  EXPECT_STREQ(off.state.switchName, "PatternsVisible");
  EXPECT_EQ(off.state.section, static_cast<unsigned>(FourCC("cnst")));
}
