// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the saved views that ship show: positions of stars from the Bright Star Catalogue (Hoffleit & Warren
// 1991), turned into pictures by the camera.
#include <gtest/gtest.h>

#include <cmath>

#include "astro/coordinates.h"
#include "astro/delta_t.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "common_interfaces/camera.h"
#include "skydata/build/data_root.h"
#include "support/temp_dir.h"

namespace {

using CommonInterfaces::_Date;
using CommonInterfaces::Camera;

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr int kWidth = 1600, kHeight = 1000;

struct Star {
  double ra, dec;  // degrees
};
constexpr Star kBetelgeuse = {88.793, 7.407}, kBellatrix = {81.283, 6.350}, kRigel = {78.634, -8.202},
               kSaiph = {86.939, -9.670}, kAlnilam = {84.053, -1.202};
constexpr Star kAcrux = {186.650, -63.099}, kGacrux = {187.791, -57.113}, kMimosa = {191.930, -59.689},
               kDelCru = {183.786, -58.749};
constexpr Star kAlcyone = {56.871, 24.105};

class SavedViews : public testing::Test {
 protected:
  SavedViews() {
    skydata::BuildDataRoot(CI_DATA_SOURCE, m_Roots.dir.Path("data"), "en");
    m_Camera.CreateDefault();
    m_Camera.SetWinRect({kWidth, kHeight, kWidth, kHeight});
  }

  // Restores the view and sets the frame of its moment and place: the direction counts from the horizon.
  void Restore(const char* file) {
    ASSERT_TRUE(m_Camera.ReadSelf(file, 1));
    m_Camera.SetWinRect({kWidth, kHeight, kWidth, kHeight});
    ASSERT_EQ(m_Camera.GetBasePlane(), 1);
    _Date universal, dynamical;
    m_Camera.GetUniversalTime(universal);
    m_Camera.GetTime(dynamical);
    const double sidereal = ApparentSiderealTime(universal.day, universal.fraction,
                                                 ET_UT::Get(universal.day, universal.fraction));
    double orientation[9], horizon[9], reduction[9];
    PrecessionNutationMatrix(dynamical.day + dynamical.fraction, orientation);
    HorizonMatrix(sidereal + m_Camera.GetLocation().lon, m_Camera.GetLocation().lat, horizon);
    M3prod(horizon, orientation, reduction);
    m_Camera.SetReductionMatrix(reduction);
  }

  tPoint<double> Project(const Star& star) const {
    double v[3];
    tPoint<double> p{};
    sfp(1.0, star.ra * kDegree, star.dec * kDegree, v);
    m_Camera.RA_Dec2K2PixD(v, &p);
    return p;
  }
  tPoint<double> Middle(const Star& a, const Star& b) const {
    const auto p = Project(a), q = Project(b);
    return {(p.x + q.x) * 0.5, (p.y + q.y) * 0.5};
  }
  // How far the line from bottom to top leans, degrees; 0: upright. The picture's y counts upwards.
  static double Lean(const tPoint<double>& top, const tPoint<double>& bottom) {
    return std::atan2(top.x - bottom.x, top.y - bottom.y) / kDegree;
  }
  // Distance from the middle of the picture in degrees.
  double FromMiddle(const tPoint<double>& p) const {
    return std::hypot(p.x - kWidth * 0.5, p.y - kHeight * 0.5) / m_Camera.VisRad2PixD(0.01) * 0.01 / kDegree;
  }

  test_support::TempRoots m_Roots;
  Camera m_Camera{1};
};

TEST_F(SavedViews, OrionStandsUprightAboveTheSouthernHorizon) {
  Restore("views:orion.data");
  EXPECT_DOUBLE_EQ(m_Camera.GetZoom(), 0.68);
  EXPECT_NEAR(Lean(Middle(kBetelgeuse, kBellatrix), Middle(kRigel, kSaiph)), 0.0, 1.0);
  EXPECT_NEAR(Project(kAlnilam).x, kWidth * 0.5, 20.0);
  EXPECT_GT(Project(kAlnilam).y, kHeight * 0.5);
  const double south[3] = {-1.0, 0.0, 0.0};  // of the horizon frame
  tPoint<double> foot{};
  m_Camera.RA_Dec2PixD(south, &foot);
  EXPECT_GT(foot.y, 0.0);
  EXPECT_LT(foot.y, kHeight * 0.25);
  // As seen from inside the sphere, east is left: Betelgeuse stands left of Bellatrix.
  EXPECT_LT(Project(kBetelgeuse).x, Project(kBellatrix).x);
}

TEST_F(SavedViews, TheSouthernCrossStandsUprightInTheMiddle) {
  Restore("views:southern_cross.data");
  EXPECT_LT(m_Camera.GetLocation().lat, 0.0);
  EXPECT_NEAR(Lean(Project(kGacrux), Project(kAcrux)), 0.0, 2.0);
  EXPECT_LT(FromMiddle(Middle(kGacrux, kAcrux)), 1.0);
  EXPECT_LT(Project(kMimosa).x, Project(kDelCru).x);
}

TEST_F(SavedViews, ThePleiadesFillTheirPicture) {
  Restore("views:pleiades.data");
  EXPECT_DOUBLE_EQ(m_Camera.GetZoom(), 25.0);
  EXPECT_LT(FromMiddle(Project(kAlcyone)), 0.25);
}

}  // namespace
