// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/star_index_input.h"

#include <vector>

#include <gtest/gtest.h>

#include "scene/catalogs/star_tile_record.h"
#include "skydata/files/source_error.h"
#include "support/temp_dir.h"
#include "tests/skydata/source_text.h"
#include "tests/skydata/stars/fits_index.h"

namespace skydata {
namespace {

using skydata_test::FitsIndex;

constexpr double kMas = scene::kRadiansPerDegree / 3600000.0;

const std::vector<FitsIndex::Star> kStars = {{219.920, -60.835, 0.137f},
                                             {0.001, 89.9, 9.5f},
                                             {359.5, -0.001, 11.25f},
                                             {0.0, 0.0, 1.9f},
                                             {180.0, 0.0, 8.0f}};

std::string MessageOf(const std::string& bytes) {
  const test_support::TempDir dir;
  return skydata_test::MessageOf(dir, [&] {
    StarIndexInput input(dir.Write("i.fits", bytes));
    scene::TileStar star;
    while (input.Take(star)) continue;
  });
}

TEST(StarIndexInput, StarsAreThoseOfTheTables) {
  const test_support::TempDir dir;
  StarIndexInput input(dir.Write("i.fits", FitsIndex(kStars).Make()));
  for (int round = 0; round < 2; ++round) {
    scene::TileStar star;
    for (const int number : {1, 2, 3, 5}) {
      ASSERT_TRUE(input.Take(star));
      const FitsIndex::Star& wanted = kStars[static_cast<std::size_t>(number - 1)];
      EXPECT_EQ(star.number, scene::kImportedNumbers + number);
      const double ra = star.ra < 0.0 ? star.ra + 2.0 * scene::kPi : star.ra;
      EXPECT_NEAR(ra, wanted.ra * scene::kRadiansPerDegree, 0.2 * kMas / std::cos(star.dec));
      EXPECT_NEAR(star.dec, wanted.dec * scene::kRadiansPerDegree, 0.2 * kMas);
      EXPECT_EQ(star.magnitude, static_cast<double>(wanted.magnitude));
      EXPECT_NE(star.colour, star.colour) << "unknown";
    }
    EXPECT_FALSE(input.Take(star));
    EXPECT_EQ(input.GetPlaceless(), 1u) << "the fourth";
    EXPECT_EQ(input.GetShare(), 1.0);
    input.Rewind();
  }
}

TEST(StarIndexInput, WhatTheFileSaysOfItselfIsChecked) {
  FitsIndex other(kStars);
  other.endian = "'01:02:03:04'";
  EXPECT_EQ(MessageOf(other.Make()), "i.fits: its numbers are not little-endian");
  FitsIndex more(kStars);
  more.magnitudesMore = 1;
  EXPECT_EQ(MessageOf(more.Make()), "i.fits: it has 5 places and 6 magnitudes");
  FitsIndex flat(kStars);
  flat.scale = 0.0;
  EXPECT_EQ(MessageOf(flat.Make()), "i.fits: its scale of places is not above 0");
  auto stars = kStars;
  stars[2].magnitude = 99.0f;
  EXPECT_EQ(MessageOf(FitsIndex(stars).Make()), "i.fits: star 3: its magnitude is not between -32 and 32");
}

TEST(StarIndexInput, PlaceOffTheSphereIsRefused) {
  std::string bytes = FitsIndex(kStars).Make();
  const auto at = bytes.find("kdtree_data_stars");
  const std::size_t data = (at / 2880 + 1) * 2880;
  bytes[data + 3] = static_cast<char>(bytes[data + 3] + 1);
  EXPECT_EQ(MessageOf(bytes), "i.fits: star 1: its place is not on the sphere");
}

TEST(StarIndexInput, FileThatEndsEarlyIsRefused) {
  const std::string whole = FitsIndex(kStars).Make();
  // The last table may lack the zeros that fill its block.
  const std::size_t end = whole.size() - 2880 + 4 * kStars.size();
  EXPECT_EQ(MessageOf(whole.substr(0, end)), "");
  for (std::size_t size = 0; size < end; size += 97) {
    const std::string message = MessageOf(whole.substr(0, size));
    EXPECT_EQ(message.find("i.fits: it "), 0u) << size << ": " << message;
  }
}

TEST(StarIndexInput, SizesThatLieAreRefused) {
  const std::string whole = FitsIndex(kStars).Make();
  const auto change = [&](const std::string& from, const std::string& to) {
    std::string bytes = whole;
    bytes.replace(bytes.find(from), to.size(), to);
    return MessageOf(bytes);
  };
  EXPECT_EQ(change("NAXIS2  = 5 / rows", "NAXIS2  = 999999999999999999999"),
            "i.fits: it ends in the middle of its data");
  EXPECT_EQ(change("NAXIS2  = 5 / rows", "NAXIS2  = -5"), "i.fits: its header gives no size in NAXIS2");
  EXPECT_EQ(change("NAXIS   =                    2", "NAXIS   = 4000000000000   "),
            "i.fits: its header gives no size in NAXIS");
  EXPECT_EQ(change("BITPIX  =                    8", "BITPIX  = 99                "),
            "i.fits: its header gives no size in BITPIX");
  EXPECT_EQ(change("NAXIS1  = 12", "NAXIS1  = 11"),
            "i.fits: the rows of its table kdtree_data_stars have 11 bytes, wants 12");
  EXPECT_EQ(change("'MAG_VT'", "'MAG_BT'"), "i.fits: it has no table MAG_VT");
}

// No byte of a header makes more than a message.
TEST(StarIndexInput, DamagedHeadersAreSurvived) {
  const std::string whole = FitsIndex(kStars).Make();
  for (std::size_t at = 0; at < whole.size(); at += 61) {
    std::string bytes = whole;
    bytes[at] = static_cast<char>(bytes[at] ^ (1 << at % 8));
    const std::string message = MessageOf(bytes);
    EXPECT_EQ(message.find('\n'), std::string::npos);
  }
}

}  // namespace
}  // namespace skydata
