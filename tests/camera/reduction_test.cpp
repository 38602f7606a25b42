// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "camera/view_helpers.h"

namespace {

using namespace test_support;
using CommonInterfaces::Camera;

class ReductionTest : public testing::Test {
 protected:
  ReductionTest() {
    PrecessionNutationMatrix(2469807.5, reduction);  // 2050-01-01
    camera.SetReductionMatrix(reduction);
    LookAt(camera, angles[0], angles[1], angles[2]);
    Camera::InitCameraMatrix(angles, view);
  }

  // (R v) taken through the transpose of V, element by element.
  void Expect(const double v[3], const double out[3], double tolerance) const {
    for (int j = 0; j < 3; ++j) {
      double expected = 0;
      for (int i = 0; i < 3; ++i)
        for (int k = 0; k < 3; ++k) expected += reduction[3 * i + k] * v[k] * view[3 * i + j];
      EXPECT_NEAR(out[j], expected, tolerance) << "component " << j;
    }
  }

  const double angles[3] = {1.0, 0.4, 0.3};
  double reduction[9], view[9];
  Camera camera{1};
};

TEST_F(ReductionTest, NormalisedVectorsGoThroughRAndTheTransposeOfV) {
  const Direction d(2.0, -0.3);
  double out[3];
  camera.Reduct2CamDouble(d.v, out, true);
  Expect(d.v, out, 1e-15);
}

TEST_F(ReductionTest, TheViewMatrixIsAppliedFromTheRightUnlikeInTheProjection) {
  const double unit[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
  camera.SetReductionMatrix(unit);
  LookAt(camera, 0, 0);  // V takes x to the axis of view, its transpose takes x to the second axis
  const double x[3] = {1, 0, 0};
  double out[3];
  camera.Reduct2CamDouble(x, out, true);
  EXPECT_EQ(out[0], 0.0);
  EXPECT_EQ(out[1], 1.0);
  EXPECT_EQ(out[2], 0.0);
}

TEST_F(ReductionTest, NormalisedVectorsAreTakenAsTheyAre) {
  const double v[3] = {3, 0, 4};
  double out[3];
  camera.Reduct2CamDouble(v, out, true);
  Expect(v, out, 1e-14);
  EXPECT_NEAR(Vmod(out, 3), 5.0, 1e-14);
}

TEST_F(ReductionTest, OtherVectorsAreScaledToLengthOne) {
  const double v[3] = {3, 0, 4}, unit[3] = {0.6, 0, 0.8};
  double out[3];
  camera.Reduct2CamDouble(v, out, false);
  Expect(unit, out, 1e-15);
}

TEST_F(ReductionTest, InputAndOutputMayBeTheSameArray) {
  double v[3] = {3, 0, 4};
  const double unit[3] = {0.6, 0, 0.8};
  camera.Reduct2CamDouble(v, v, false);
  Expect(unit, v, 1e-15);
}

TEST_F(ReductionTest, ShortComponentsAreScaledToLengthOne) {
  const short v[3] = {-3000, 0, 4000};
  const double unit[3] = {-0.6, 0, 0.8};
  double out[3];
  camera.Reduct2CamShort(v, out);
  Expect(unit, out, 1e-15);
}

TEST_F(ReductionTest, NothingHasNoDirection) {
  const short v[3] = {0, 0, 0};
  double out[3];
  camera.Reduct2CamShort(v, out);
  EXPECT_TRUE(std::isnan(out[0]));
}

TEST_F(ReductionTest, CataloguePositionsGoThroughRAlone) {
  double out[3];
  camera.ReductRADec2CamDouble(2.0, -0.3, out);
  const Direction d(2.0, -0.3);
  double expected[3];
  MV3prod(reduction, d.v, expected);
  for (int i = 0; i < 3; ++i) EXPECT_NEAR(out[i], expected[i], 1e-15);
}

TEST_F(ReductionTest, PositionsOfTheViewGoBackToJ2000) {
  Random random(4);
  for (int n = 0; n < 200; ++n) {
    const double ra = random.Real(0, 2 * kPi), dec = random.Real(-1.5, 1.5);
    double v[3], ra2k, dec2k;
    camera.ReductRADec2CamDouble(ra, dec, v);
    camera.RADec_RADec2K(std::atan2(v[1], v[0]), std::asin(v[2]), &ra2k, &dec2k);
    EXPECT_NEAR(std::remainder(ra2k - ra, 2 * kPi), 0.0, 1e-12);
    EXPECT_NEAR(dec2k, dec, 1e-12);
  }
}

}  // namespace
