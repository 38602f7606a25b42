// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/star_data.h"

#include <limits>

#include <gtest/gtest.h>

using namespace CommonInterfaces;

namespace {

TEST(SpectrumTest, EveryClassHasItsIndex) {
  const char* const spectra[] = {"O9", "B1V", "A0", "F5Ib", "G2V", "K0III", "M5"};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(GetSpectrType(spectra[i]), i) << spectra[i];
}

TEST(SpectrumTest, SmallLettersInFrontArePassedOver) { EXPECT_EQ(GetSpectrType("gK2"), 5); }

TEST(SpectrumTest, CarbonAndZirconiumClassesCountAsM) {
  for (const char* spectrum : {"S4,2", "R3", "N0", "C5,4"}) EXPECT_EQ(GetSpectrType(spectrum), 6) << spectrum;
}

TEST(SpectrumTest, NoCapitalLetterIsNoClass) {
  EXPECT_EQ(GetSpectrType("k0"), 255);
  EXPECT_EQ(GetSpectrType(""), 255);
  EXPECT_EQ(GetSpectrType("+++"), 255);
  EXPECT_EQ(GetSpectrType("\xC3\x84"), 255);  // bytes beyond ASCII are no capital letters
  EXPECT_EQ(GetSpectrType(nullptr), 255);
}

TEST(SpectrumTest, OnlyTheFirstCapitalLetterIsTried) {
  EXPECT_EQ(GetSpectrType("Xp"), 255);
  EXPECT_EQ(GetSpectrType("WB5"), 255);
  EXPECT_EQ(GetSpectrType("sdB5"), 1);
}

// The table lives as long as the process: every test has stars of its own.

TEST(StarSubTypeTest, UnknownStarsHaveTheGeneralSubType) {
  EXPECT_EQ(GetStarSubType(101), 3);
  EXPECT_EQ(GetStarSubType(-1), 3);
}

TEST(StarSubTypeTest, ARecordedSubTypeIsFound) {
  SetAddStarInfo(7, 201);
  SetAddStarInfo(255, std::numeric_limits<int>::min());
  EXPECT_EQ(GetStarSubType(201), 7);
  EXPECT_EQ(GetStarSubType(std::numeric_limits<int>::min()), 255);
}

TEST(StarSubTypeTest, SubTypesZeroAndOneAreStoredAsTheGeneralOne) {
  SetAddStarInfo(0, 301);
  SetAddStarInfo(1, 302);
  SetAddStarInfo(2, 303);
  EXPECT_EQ(GetStarSubType(301), 3);
  EXPECT_EQ(GetStarSubType(302), 3);
  EXPECT_EQ(GetStarSubType(303), 2);
}

TEST(StarSubTypeTest, TheFirstSubTypeOfAStarStays) {
  SetAddStarInfo(1, 401);
  SetAddStarInfo(5, 401);
  EXPECT_EQ(GetStarSubType(401), 3);
  SetAddStarInfo(9, 402);
  SetAddStarInfo(5, 402);
  EXPECT_EQ(GetStarSubType(402), 9);
}

}  // namespace
