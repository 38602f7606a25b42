// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/label_order.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "scene/frame_helpers.h"
#include "scene/search/aim.h"
#include "scene/view/standing.h"

using namespace scene;

namespace {

class LabelOrderTest : public testing::Test {
 protected:
  // Stars by "RA Dec magnitude name", degrees; the view looks at right ascension 85 on the equator.
  void Write(const std::vector<std::array<double, 3>>& stars) {
    std::string table = "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\n";
    for (std::size_t i = 0; i < stars.size(); ++i) {
      char line[160];
      std::snprintf(line, sizeof line, "%d\t%.9f\t%.9f\t%g\tStar %c\n", static_cast<int>(i) + 1,
                    stars[i][0] * kRadiansPerDegree, stars[i][1] * kRadiansPerDegree, stars[i][2],
                    'A' + static_cast<int>(i));
      table += line;
    }
    f.sky.dir.Write("data/catalogs/stars.txt", table);
    std::string error;
    ASSERT_TRUE(LoadSkyCatalogs(f.catalogs, error)) << error;
    frame = std::make_unique<SkyFrame>(f.catalogs);
    f.camera.SetZoom(4.0);
    LookTo(FindStanding(
               ApparentDirection(MakeDirection(85.0 * kRadiansPerDegree, 0.0), PrepareObserver(f.camera)),
               PrepareObserver(f.camera)),
           f.camera);
    frame->Compute(f.camera, PrepareObserver(f.camera), f.shown);
  }
  // The order in which labels of stars took their room.
  std::string GetOrder() const {
    std::string order;
    for (const auto& label : frame->GetParts().labels.GetLabels()) {
      if (label.kind == LabelKind::kStarName) order += label.text[5];
    }
    return order;
  }

  host_test::FrameFixture f;
  std::unique_ptr<SkyFrame> frame;
};

}  // namespace

TEST_F(LabelOrderTest, OfEquallyBrightStarsTheOneNearerToTheMiddleComesFirst) {
  Write({{90.0, 2.0, 2.0}, {86.0, 1.0, 2.0}, {80.0, 0.0, 2.0}});
  EXPECT_EQ(GetOrder(), "BCA");
}

// The field is 15 degrees wide: a star near the edge loses less than a magnitude.
TEST_F(LabelOrderTest, BrighterByAMagnitudeIsFirstWhereverItStands) {
  Write({{91.0, 3.0, 1.5}, {85.5, 0.5, 2.5}});
  EXPECT_EQ(GetOrder(), "AB");
  Write({{91.0, 3.0, 2.0}, {85.5, 0.5, 2.1}});
  EXPECT_EQ(GetOrder(), "BA");
}

TEST_F(LabelOrderTest, WhatTheViewIsAimedAtComesBeforeEverything) {
  Write({{85.6, 0.0, 0.0}, {85.0, 0.0, 3.0}});
  EXPECT_EQ(GetOrder(), "BA");
}

// Two names that have no room beside one another on either side: the aimed one stays.
TEST_F(LabelOrderTest, AimedStarKeepsItsNameInACrowd) {
  std::vector<std::array<double, 3>> crowd = {{85.0, 0.0, 3.0}};
  for (int i = -3; i <= 3; ++i) {
    for (int k = -3; k <= 3; ++k) {
      if (i != 0 || k != 0) crowd.push_back({85.0 + 0.12 * i, 0.12 * k, 1.5});
    }
  }
  crowd.resize(26);
  Write(crowd);
  EXPECT_NE(GetOrder().find('A'), std::string::npos);
  EXPECT_LT(GetOrder().size(), 26u) << "a crowd";
}

// Half a magnitude half-way is a quarter of the whole by the square of the distance.
TEST_F(LabelOrderTest, LossGrowsWithTheSquareOfTheDistanceToTheCorner) {
  const ViewGeometry geometry(f.camera, PrepareObserver(f.camera));
  EXPECT_FLOAT_EQ(LabelOrder::Find(geometry, 0.0, 0.0, 30.0f), 40.0f);
  EXPECT_FLOAT_EQ(LabelOrder::Find(geometry, 0.25 * geometry.width, 0.25 * geometry.height, 30.0f), 32.5f);
  EXPECT_FLOAT_EQ(LabelOrder::Find(geometry, 0.5 * geometry.width, 0.5 * geometry.height, 30.0f),
                  LabelOrder::kFirst);
}
