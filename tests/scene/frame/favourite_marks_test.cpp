// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/favourite_marks.h"

#include <gtest/gtest.h>

#include "scene/frame_helpers.h"
#include "scene/search/object_search.h"
#include "support/allocation_counter.h"

using namespace scene;
using host_test::FrameFixture;

namespace {

constexpr int kSirius = 2491, kRigel = 1713;

double Distance(const tPoint<double>& a, const tPoint<double>& b) { return std::hypot(a.x - b.x, a.y - b.y); }

tPoint<double> PlaceOf(const DrawnStar& star) { return {star.output->m_Place.x, star.output->m_Place.y}; }

SSO_ID OrionId(const SkyCatalogs& catalogs) {
  return SSO_ID(FourCC("cnst"), GetTraits(catalogs.constellations[0]).number);
}

}  // namespace

TEST(FavouriteMarks, StandBesideTheStarsThatAreDrawn) {
  FrameFixture f;
  f.frame.SetFavourites({SSO_ID(FourCC("star"), kSirius), SSO_ID(FourCC("star"), 7001)});
  f.Compute();
  const auto& marks = f.frame.GetParts().favourites.GetMarks();
  ASSERT_EQ(marks.size(), 1u) << "Vega is not in the picture";
  const auto* sirius = f.Find(kSirius);
  ASSERT_TRUE(sirius);
  const double away = Distance(marks[0].place, PlaceOf(*sirius));
  EXPECT_GT(away,
            sirius->output->m_Place.radius + FavouriteMarks::GetRadius(f.frame.GetDisplayList().GetUnit()));
  EXPECT_LT(away, sirius->output->m_Place.radius + 15.0);
}

TEST(FavouriteMarks, MarkDeepskyObjectsAndConstellations) {
  FrameFixture f;
  f.SetLook(190.0, 35.0);
  f.frame.SetFavourites({SSO_ID(FourCC("nebu"), 42), OrionId(f.catalogs)});
  f.Compute();
  EXPECT_EQ(f.frame.GetParts().favourites.GetMarks().size(), 2u);
}

TEST(FavouriteMarks, ConstellationIsMarkedByItsFigureAlone) {
  FrameFixture f;
  f.SetLook(190.0, 35.0);
  f.frame.SetFavourites({OrionId(f.catalogs)});
  f.shown.constellationNames = false;
  f.Compute();
  EXPECT_EQ(f.frame.GetParts().favourites.GetMarks().size(), 1u);
  f.shown.figures = false;
  f.Compute();
  EXPECT_TRUE(f.frame.GetParts().favourites.GetMarks().empty());
}

TEST(FavouriteMarks, NumberOfAnotherKindMarksNothing) {
  FrameFixture f;
  f.frame.SetFavourites({SSO_ID(FourCC("gala"), kSirius), SSO_ID(FourCC("star"), 42), SSO_ID()});
  f.Compute();
  EXPECT_TRUE(f.frame.GetParts().favourites.GetMarks().empty());
}

TEST(FavouriteMarks, WhatIsNotDrawnIsNotMarked) {
  FrameFixture f;
  f.frame.SetFavourites({SSO_ID(FourCC("star"), kSirius), SSO_ID(FourCC("nebu"), 42)});
  f.shown.stars = f.shown.nebulae = false;
  f.Compute();
  EXPECT_TRUE(f.frame.GetParts().favourites.GetMarks().empty());
}

TEST(FavouriteMarks, StayInTheWindow) {
  FrameFixture f;
  f.frame.SetFavourites({SSO_ID(FourCC("star"), kSirius), SSO_ID(FourCC("star"), kRigel)});
  const double radius = FavouriteMarks::GetRadius(1.0);
  int marks = 0;
  for (int i = 0; i < 400; ++i) {
    f.SetLook(120.0 + 0.4 * i, 20.0);
    f.Compute();
    for (const auto& [place, object] : f.frame.GetParts().favourites.GetMarks()) {
      EXPECT_TRUE(place.x >= radius && place.x <= 1600.0 - radius && place.y >= radius &&
                  place.y <= 1000.0 - radius);
      ++marks;
    }
  }
  EXPECT_GT(marks, 100);
}

TEST(FavouriteMarks, LabelsKeepOffThem) {
  FrameFixture f;
  f.frame.SetFavourites({SSO_ID(FourCC("star"), kSirius), SSO_ID(FourCC("star"), kRigel)});
  f.Compute();
  for (const auto& [place, object] : f.frame.GetParts().favourites.GetMarks()) {
    for (const auto& label : f.frame.GetParts().labels.GetLabels()) {
      const double width = TextExtents().GetWidth(label.text, label.size, 0);
      const double left = label.place.x - label.anchor * width;
      const bool covered = place.x > left && place.x < left + width && place.y > label.place.y &&
                           place.y < label.place.y + 0.76 * label.size;
      EXPECT_FALSE(covered) << label.text;
    }
  }
}

TEST(FavouriteMarks, AreNeverTooSmallToBeSeen) {
  for (const double unit : {0.4, 1.0, 6.0}) {
    EXPECT_GE(FavouriteMarks::GetRadius(unit), 4.0);
    EXPECT_GE(FavouriteMarks::GetRadius(unit), 5.0 * unit);
  }
}

TEST(FavouriteMarks, NothingIsAllocatedAFrame) {
  FrameFixture f;
  f.frame.SetFavourites({SSO_ID(FourCC("star"), kSirius), SSO_ID(FourCC("nebu"), 42), OrionId(f.catalogs)});
  f.Compute();
  const unsigned long long before = host_test::GetAllocationCount();
  std::size_t marks = 0;
  for (int i = 0; i < 60; ++i) {
    f.camera.SetZoom(0.3 + 0.05 * i);
    f.SetLook(180.0 + 0.5 * i, 30.0);
    f.Compute();
    marks += f.frame.GetParts().favourites.GetMarks().size();
  }
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_GT(marks, 60u);
}
