// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/star_download.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

using CommonInterfaces::StarDownloadDesc;

namespace {

constexpr double kDegree = 0.017453292519943295;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

StarDownloadDesc ByCentre() {
  StarDownloadDesc field;
  field.m_Id = 7;
  field.m_Lon = 1.5;
  field.m_Lat = -0.25;
  field.m_FieldSize = 0.125;
  field.m_Level = 4;
  field.m_Step = 2;
  field.m_Rotation = 30.0;
  return field;
}

StarDownloadDesc ByDirection() {
  StarDownloadDesc field = ByCentre();
  field.m_bDirection = true;
  field.m_DirectionLon = 2.0;
  field.m_DirectionLat = 0.5;
  return field;
}

// The change makes two fields differ, from whichever side one looks.
template <class Change>
void ExpectDifferent(const StarDownloadDesc& base, Change change) {
  StarDownloadDesc other = base;
  change(other);
  EXPECT_FALSE(base == other);
  EXPECT_FALSE(other == base);
  EXPECT_TRUE(base != other);
  EXPECT_TRUE(other != base);
}

template <class Change>
void ExpectEqual(const StarDownloadDesc& base, Change change) {
  StarDownloadDesc other = base;
  change(other);
  EXPECT_TRUE(base == other);
  EXPECT_TRUE(other == base);
  EXPECT_FALSE(base != other);
  EXPECT_FALSE(other != base);
}

TEST(StarDownloadDescTest, AFieldEqualsItself) {
  EXPECT_TRUE(ByCentre() == ByCentre());
  EXPECT_TRUE(ByDirection() == ByDirection());
}

TEST(StarDownloadDescTest, AnyDirectionFlagButZeroIsSet) {
  StarDownloadDesc field = ByDirection();
  field.m_bDirection = 0x80;
  field.m_Lon += 1.0;  // the centre does not count
  EXPECT_TRUE(field == ByDirection());
}

TEST(StarDownloadDescTest, IdentifiersMustBeEqual) {
  ExpectDifferent(ByCentre(), [](auto& field) { field.m_Id = 8; });
  ExpectDifferent(ByDirection(), [](auto& field) { field.m_Id = 0x80000007; });
}

TEST(StarDownloadDescTest, CentreAndSizeDifferByLessThanAMillionth) {
  // 1e-6 itself, as a double, is not less; the next double below it is. Against 0 the difference is exact.
  const double limit = 1e-6;
  const double below = std::nextafter(limit, 0.0);
  StarDownloadDesc zero = ByCentre();
  zero.m_Lon = zero.m_Lat = zero.m_FieldSize = 0.0;
  for (const double sign : {1.0, -1.0}) {
    ExpectEqual(zero, [&](auto& field) { field.m_Lon = sign * below; });
    ExpectDifferent(zero, [&](auto& field) { field.m_Lon = sign * limit; });
    ExpectEqual(zero, [&](auto& field) { field.m_Lat = sign * below; });
    ExpectDifferent(zero, [&](auto& field) { field.m_Lat = sign * limit; });
    ExpectEqual(zero, [&](auto& field) { field.m_FieldSize = sign * below; });
    ExpectDifferent(zero, [&](auto& field) { field.m_FieldSize = sign * limit; });
  }
}

TEST(StarDownloadDescTest, LongitudesAreNotReducedToOneTurn) {
  ExpectDifferent(ByCentre(), [](auto& field) { field.m_Lon += 2 * 3.14159265358979323846; });
}

TEST(StarDownloadDescTest, LevelsAndStepsMayDifferByOne) {
  for (const StarDownloadDesc& base : {ByCentre(), ByDirection()}) {
    ExpectEqual(base, [](auto& field) { field.m_Level = 5; });
    ExpectEqual(base, [](auto& field) { field.m_Level = 3; });
    ExpectDifferent(base, [](auto& field) { field.m_Level = 6; });
    ExpectDifferent(base, [](auto& field) { field.m_Level = 2; });
    ExpectEqual(base, [](auto& field) { field.m_Step = 3; });
    ExpectEqual(base, [](auto& field) { field.m_Step = 1; });
    ExpectDifferent(base, [](auto& field) { field.m_Step = 4; });
    ExpectDifferent(base, [](auto& field) { field.m_Step = 0; });
  }
}

TEST(StarDownloadDescTest, LevelsAreNumbersFrom0To255AndDoNotWrap) {
  StarDownloadDesc low = ByCentre();
  low.m_Level = 0;
  ExpectDifferent(low, [](auto& field) { field.m_Level = 255; });
}

TEST(StarDownloadDescTest, RotationsDifferByLessThan90DegreesAndDoNotWrap) {
  for (const StarDownloadDesc& base : {ByCentre(), ByDirection()}) {
    ExpectEqual(base, [](auto& field) { field.m_Rotation = std::nextafter(120.0, 0.0); });
    ExpectDifferent(base, [](auto& field) { field.m_Rotation = 120.0; });
    ExpectEqual(base, [](auto& field) { field.m_Rotation = -59.5; });
    ExpectDifferent(base, [](auto& field) { field.m_Rotation = -60.0; });
    ExpectDifferent(base, [](auto& field) { field.m_Rotation = 390.0; });
  }
}

TEST(StarDownloadDescTest, WithTheFlagTheCentreDoesNotCount) {
  ExpectEqual(ByDirection(), [](auto& field) { field.m_Lon = -1.0; });
  ExpectEqual(ByDirection(), [](auto& field) { field.m_Lat = 1.0; });
}

TEST(StarDownloadDescTest, WithoutTheFlagTheDirectionDoesNotCount) {
  ExpectEqual(ByCentre(), [](auto& field) { field.m_DirectionLon = 3.0; });
  ExpectEqual(ByCentre(), [](auto& field) { field.m_DirectionLat = -1.0; });
}

TEST(StarDownloadDescTest, DirectionsLieLessThanHalfTheFieldApart) {
  // Along a meridian the angle is the difference of the latitudes: here half the field of 0.125 is 0.0625.
  StarDownloadDesc base = ByDirection();
  base.m_DirectionLat = 0.0;
  ExpectEqual(base, [](auto& field) { field.m_DirectionLat = 0.0625 - 1e-12; });
  ExpectDifferent(base, [](auto& field) { field.m_DirectionLat = 0.0625 + 1e-12; });
  // Along a parallel at 60 degrees the chord counts: sin(angle / 2) = cos 60 sin(difference / 2).
  base.m_DirectionLat = 60.0 * kDegree;
  const double difference = 2.0 * std::asin(std::sin(0.03125) / 0.5);
  ExpectEqual(base, [&](auto& field) { field.m_DirectionLon += difference - 1e-12; });
  ExpectDifferent(base, [&](auto& field) { field.m_DirectionLon += difference + 1e-12; });
}

TEST(StarDownloadDescTest, DirectionsAreAnglesOnTheSphere) {
  ExpectEqual(ByDirection(), [](auto& field) { field.m_DirectionLon += 2 * 3.14159265358979323846; });
}

TEST(StarDownloadDescTest, TheSmallerOfTheTwoFieldsSetsTheAngle) {
  // The sizes differ by 9e-7, which is allowed; the smaller one halved is 0.0625 - 4.5e-7.
  StarDownloadDesc base = ByDirection();
  base.m_DirectionLat = 0.0;
  StarDownloadDesc other = base;
  other.m_FieldSize = 0.125 - 9e-7;
  other.m_DirectionLat = 0.0625 - 4.4e-7;
  EXPECT_FALSE(base == other);
  EXPECT_FALSE(other == base);
  other.m_DirectionLat = 0.0625 - 4.6e-7;
  EXPECT_TRUE(base == other);
  EXPECT_TRUE(other == base);
}

TEST(StarDownloadDescTest, WithTheFlagTheSizesStillDifferByLessThanAMillionth) {
  ExpectEqual(ByDirection(), [](auto& field) { field.m_FieldSize += 9.99e-7; });
  ExpectDifferent(ByDirection(), [](auto& field) { field.m_FieldSize += 1.001e-6; });
}

TEST(StarDownloadDescTest, AFieldWithoutExtentGivenByDirectionEqualsNotEvenItself) {
  StarDownloadDesc field = ByDirection();
  field.m_FieldSize = 0.0;
  EXPECT_FALSE(field == field);  // an angle of 0 is not less than half of 0
}

TEST(StarDownloadDescTest, OnlyTheFlagOfTheFirstOperandCounts) {
  StarDownloadDesc direction = ByDirection();
  StarDownloadDesc centre = ByDirection();
  centre.m_bDirection = false;
  centre.m_Lon = direction.m_Lon + 1.0;  // the centres are far apart, the directions the same
  EXPECT_TRUE(direction == centre);
  EXPECT_FALSE(centre == direction);
  EXPECT_FALSE(direction != centre);
  EXPECT_TRUE(centre != direction);
}

TEST(StarDownloadDescTest, NumbersThatAreNotFiniteAreEqualToNothing) {
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(), kInfinity}) {
    StarDownloadDesc fields[] = {ByCentre(),    ByCentre(),    ByCentre(),
                                 ByDirection(), ByDirection(), ByDirection()};
    fields[0].m_Lon = bad;
    fields[1].m_FieldSize = bad;
    fields[2].m_Rotation = bad;
    fields[3].m_DirectionLon = bad;
    fields[4].m_FieldSize = bad;
    fields[5].m_Rotation = bad;
    for (const StarDownloadDesc& field : fields) {
      EXPECT_FALSE(field == field);
      EXPECT_FALSE(field == (field.m_bDirection ? ByDirection() : ByCentre()));
      EXPECT_FALSE((field.m_bDirection ? ByDirection() : ByCentre()) == field);
    }
  }
}

TEST(StarDownloadDescTest, AssignmentCopiesEveryFieldAndToItselfChangesNothing) {
  const StarDownloadDesc source = ByDirection();
  StarDownloadDesc copy;
  copy = source;
  EXPECT_EQ(std::memcmp(&copy, &source, sizeof copy), 0);
  StarDownloadDesc& same = copy;
  copy = same;
  EXPECT_EQ(std::memcmp(&copy, &source, sizeof copy), 0);
}

TEST(StarDownloadDescTest, RecordsAreComparedAtAnyAddress) {
  std::vector<unsigned char> bytes(2 * sizeof(StarDownloadDesc) + 1);
  const StarDownloadDesc source = ByDirection();
  std::memcpy(bytes.data() + 1, &source, sizeof source);
  std::memcpy(bytes.data() + 1 + sizeof source, &source, sizeof source);
  const auto* fields = reinterpret_cast<const StarDownloadDesc*>(bytes.data() + 1);
  EXPECT_TRUE(fields[0] == fields[1]);
}

}  // namespace
