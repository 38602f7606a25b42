// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_grids.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <set>

#include "astro/vectors.h"
#include "scene/frame_helpers.h"
#include "support/allocation_counter.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

class Grids : public testing::Test {
 protected:
  Grids() { f.shown.horizon = false; }

  template <class See>
  int ForEachLine(See see) const {
    const DisplayList& list = f.frame.GetDisplayList();
    int lines = 0;
    for (const scene::Run& run : list.GetRuns()) {
      if (run.layer != Layer::kSkyLines) continue;
      EXPECT_EQ(run.type, RecordType::kPolyline);
      for (int i = run.first; i < run.first + run.count; ++i, ++lines)
        see(list.GetPolylines()[static_cast<std::size_t>(i)]);
    }
    return lines;
  }
  int CountLines() const {
    return ForEachLine([](const PolylineRecord&) {});
  }
  std::multiset<std::string> GetLabels(LabelKind kind) const {
    std::multiset<std::string> texts;
    for (const Label& label : f.frame.GetParts().labels.GetLabels()) {
      if (label.kind == kind) texts.insert(label.text);
    }
    return texts;
  }
  // Where the camera itself draws a direction in the frame of its angles.
  tPoint<double> Project(double azimuth, double altitude) const {
    return ViewGeometry(f.camera).Project(
        MakeDirection(-azimuth * kRadiansPerDegree, altitude * kRadiansPerDegree), SkyFrameOf::kHorizon);
  }

  FrameFixture f;
};

}  // namespace

TEST_F(Grids, NothingUnlessAskedFor) {
  f.Compute();
  EXPECT_EQ(CountLines(), 0);
}

TEST_F(Grids, EveryFieldDrawsItsOwn) {
  unsigned char SkyLines::*const fields[] = {
      &SkyLines::equatorialGrid, &SkyLines::equator,        &SkyLines::eclipticGrid, &SkyLines::ecliptic,
      &SkyLines::galacticGrid,   &SkyLines::horizontalGrid, &SkyLines::meridian,     &SkyLines::points};
  f.camera.SetZoom(0.25);
  for (std::size_t i = 0; i < std::size(fields); ++i) {
    f.shown.lines = {};
    f.shown.lines.*fields[i] = 1;
    f.Compute();
    EXPECT_GT(CountLines(), 0) << i;
  }
}

// From 52.5 degrees north, looking south at 30 degrees, 37 degrees up to the corners.
TEST_F(Grids, HorizontalLinesLieOnTheirCoordinates) {
  f.shown.lines.horizontalGrid = 1;
  f.Compute();
  const ViewGeometry geometry(f.camera);
  int vertices = 0;
  ForEachLine([&](const PolylineRecord& line) {
    for (int i = line.firstVertex; i < line.firstVertex + line.vertexCount; ++i, ++vertices) {
      const Vertex& v = f.frame.GetDisplayList().GetVertices()[static_cast<std::size_t>(i)];
      // Back from the picture to azimuth and altitude: one of them is a multiple of the step of five degrees.
      const double left = v.x - 800.0, up = 500.0 - static_cast<double>(v.y);
      const double theta = 2.0 * std::atan(std::hypot(left, up) / geometry.scale),
                   bearing = std::atan2(up, left);
      const double x = std::cos(theta), y = -std::sin(theta) * std::cos(bearing),
                   z = std::sin(theta) * std::sin(bearing);
      const double tilt = 30.0 * kRadiansPerDegree;
      const double ahead = x * std::cos(tilt) - z * std::sin(tilt),
                   high = x * std::sin(tilt) + z * std::cos(tilt);
      const double altitude = std::asin(high) / kRadiansPerDegree,
                   azimuth = std::atan2(y, ahead) / kRadiansPerDegree;
      const double off =
          std::min(std::fabs(std::remainder(altitude, 5.0)),
                   std::fabs(std::remainder(azimuth, 5.0)) * std::cos(altitude * kRadiansPerDegree));
      EXPECT_LT(off * kRadiansPerDegree * geometry.scale * 0.5, 0.01) << azimuth << " " << altitude;
    }
  });
  EXPECT_GT(vertices, 1000);
}

TEST_F(Grids, LinesOfTheHorizonSayAzimuthAndAltitude) {
  f.shown.lines.horizontalGrid = 1;
  f.Compute();
  const auto labels = GetLabels(LabelKind::kHorizontalGrid);
  for (const char* text : {"180\u00B0", "170\u00B0", "190\u00B0", "+30\u00B0", "+25\u00B0"})
    EXPECT_GE(labels.count(text), 1u) << text;
  // South-east lies left of the south.
  double east = -1.0, west = -1.0;
  for (const Label& label : f.frame.GetParts().labels.GetLabels()) {
    if (std::string(label.text) == "170\u00B0") east = label.place.x;
    if (std::string(label.text) == "190\u00B0") west = label.place.x;
  }
  EXPECT_LT(east, west);
}

TEST_F(Grids, LabelsSitAtTheEdgeOfTheWindow) {
  f.shown.lines.equatorialGrid = 1;
  f.Compute();
  int labels = 0;
  for (const Label& label : f.frame.GetParts().labels.GetLabels()) {
    if (label.kind != LabelKind::kEquatorialGrid) continue;
    ++labels;
    const double width = TextExtents().GetWidth(label.text, label.size, 0);
    const double away =
        std::min({label.place.x, 1600.0 - label.place.x - width, label.place.y, 1000.0 - label.place.y});
    EXPECT_LE(away, 14.0) << label.text;
    EXPECT_GE(away, 0.0) << label.text;
  }
  EXPECT_GE(labels, 15);
}

TEST_F(Grids, SpacingFollowsTheZoom) {
  f.shown.lines.horizontalGrid = 1;
  for (const double zoom : {0.25, 1.0, 7.0, 90.0, 1500.0, 10000.0}) {
    f.camera.SetZoom(zoom);
    f.Compute();
    const int lines = CountLines();
    EXPECT_GE(lines, 8) << zoom;
    EXPECT_LE(lines, 120) << zoom;
  }
}

// Where steps are seconds a whole turn has a million meridians; those of the first grid must not use up the
// texts of the second.
TEST_F(Grids, EveryGridIsLabelledHoweverFineItsSteps) {
  f.camera.SetZoom(1500.0);
  f.shown.lines.equatorialGrid = f.shown.lines.horizontalGrid = 1;
  f.Compute();
  EXPECT_GE(GetLabels(LabelKind::kEquatorialGrid).size(), 4u);
  EXPECT_GE(GetLabels(LabelKind::kHorizontalGrid).size(), 4u);
}

// At the zenith, where all of them meet.
TEST_F(Grids, EveryMeridianIsDrawnOnceAroundAPole) {
  f.SetLook(180.0, 90.0);
  f.shown.lines.horizontalGrid = 1;
  f.Compute();
  const auto labels = GetLabels(LabelKind::kHorizontalGrid);
  for (const char* text : {"0\u00B0", "90\u00B0", "180\u00B0", "270\u00B0"})
    EXPECT_EQ(labels.count(text), 1u) << text;
  int radial = 0;
  const int lines = ForEachLine([&](const PolylineRecord& line) {
    const auto* v = f.frame.GetDisplayList().GetVertices().data() + line.firstVertex;
    const auto away = [&](int i) { return std::hypot(v[i].x - 800.0, v[i].y - 500.0); };
    radial += std::fabs(away(0) - away(line.vertexCount - 1)) > 100.0;
  });
  EXPECT_GT(lines, radial);
  EXPECT_EQ(radial % 4, 0) << "as many in each quarter";
  EXPECT_GE(radial, 12);
}

TEST_F(Grids, ThePolesStandWhereTheyAre) {
  f.SetLook(0.0, 52.5);
  f.shown.lines.points = 1;
  f.Compute();
  // The celestial pole stands over the north point, as high as the latitude.
  const tPoint<double> pole = Project(0.0, 52.5);
  std::vector<tPoint<double>> middles;
  ForEachLine([&](const PolylineRecord& line) {
    const auto* v = f.frame.GetDisplayList().GetVertices().data() + line.firstVertex;
    middles.push_back({0.5 * (v[0].x + v[1].x), 1000.0 - 0.5 * (v[0].y + v[1].y)});
  });
  ASSERT_EQ(middles.size(), 2u) << "the two strokes of one cross";
  for (const auto& p : middles) {
    EXPECT_NEAR(p.x, pole.x, 0.01);
    EXPECT_NEAR(p.y, pole.y, 0.01);
  }
  EXPECT_TRUE(f.HasLabel("North celestial pole"));
}

// The poles of the equator move along circles about those of the ecliptic.
TEST_F(Grids, CircleOfPrecessionRunsThroughThePoleOfEitherHemisphere) {
  f.shown.lines.points = 16;
  for (const double latitude : {52.5, -52.5}) {
    f.SetPlace(latitude, 13.4);
    const double azimuth = latitude > 0.0 ? 0.0 : 180.0;
    f.SetLook(azimuth, 52.5);
    f.Compute();
    const tPoint<double> pole = Project(azimuth, 52.5);
    double nearest = 1e9;
    ForEachLine([&](const PolylineRecord& line) {
      const auto* v = f.frame.GetDisplayList().GetVertices().data() + line.firstVertex;
      for (int i = 1; i < line.vertexCount; ++i) {
        const double x = v[i - 1].x, y = v[i - 1].y, dx = v[i].x - x, dy = v[i].y - y;
        const double toX = pole.x - x, toY = 1000.0 - pole.y - y;
        const double part = std::clamp((toX * dx + toY * dy) / (dx * dx + dy * dy), 0.0, 1.0);
        nearest = std::min(nearest, std::hypot(part * dx - toX, part * dy - toY));
      }
    });
    EXPECT_LT(nearest, 1.0) << latitude;
  }
}

TEST_F(Grids, MeridianRunsThroughSouthPointAndZenith) {
  f.shown.lines.meridian = 1;
  f.Compute();
  EXPECT_EQ(CountLines(), 1);
  ForEachLine([&](const PolylineRecord& line) {
    for (int i = 0; i < line.vertexCount; ++i)
      EXPECT_NEAR(f.frame.GetDisplayList().GetVertices()[static_cast<std::size_t>(line.firstVertex + i)].x,
                  800.0, 0.01);
  });
  EXPECT_TRUE(f.HasLabel("Meridian"));
}

TEST_F(Grids, NoHorizonNoMeridian) {
  f.shown.lines.meridian = 3;
  f.shown.lines.horizontalGrid = 1;
  f.camera.SetBasePlane(0);
  f.Compute();
  EXPECT_EQ(CountLines(), 0);
}

// The small sky has Rigel's place in the catalogue; the line of its right ascension goes through the drawn
// star, 20 arc seconds of aberration and all.
TEST_F(Grids, J2000CoordinatesMoveWithTheStars) {
  const GridSystem system = MakeGridSystem(GridSystemId::kEquatorJ2000, (f.Compute(), f.observer));
  const Direction rigel = MakeDirection(78.6344671 * kRadiansPerDegree, -8.2016384 * kRadiansPerDegree);
  const Direction shown = ShownDirection(system, rigel, f.observer),
                  star = ApparentDirection(rigel, f.observer);
  EXPECT_EQ(VectorsAngle(shown.v, star.v), 0.0);
  EXPECT_GT(VectorsAngle(shown.v, rigel.v), 1e-6);
}

TEST_F(Grids, NothingIsAllocatedAfterTheFirstFrame) {
  f.shown.lines = {3, 3, 1, 1, 3, 1, 3, 31};
  f.camera.SetZoom(0.3);
  f.Compute();
  const auto before = host_test::GetAllocationCount();
  for (const double zoom : {0.25, 1.0, 20.0, 3000.0}) {
    f.camera.SetZoom(zoom);
    f.Compute();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
}
