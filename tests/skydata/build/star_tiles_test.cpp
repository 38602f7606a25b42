// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/star_tiles.h"

#include <cmath>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "astro/healpix.h"
#include "astro/vectors.h"
#include "scene/catalogs/star_tiles.h"
#include "skydata/build/source_table.h"
#include "skydata/build/star_catalog.h"
#include "skydata/files/source_error.h"
#include "tests/skydata/tiny_source.h"

namespace skydata {
namespace {

constexpr double kSecond = scene::kRadiansPerDegree / 3600.0;

// Opened tiles of the bytes, and their stars by HIP number.
struct Opened {
  Opened(const test_support::TempDir& dir, const StarTilesFile& made) {
    std::string error;
    EXPECT_TRUE(tiles.Open(dir.Write("made.tiles", made.bytes).c_str(), error)) << error;
    for (int band = 0; band < tiles.GetBandCount(); ++band) {
      for (std::uint32_t cell = 0; cell < astro::GetHealpixCellCount(tiles.GetBand(band).order); ++cell) {
        const auto records = tiles.GetStars(band, cell);
        for (std::uint32_t i = 0; i < records.GetCount(); ++i)
          EXPECT_TRUE(stars.emplace(scene::GetHipparcosNumber(records[i].GetNumber()), records[i]).second);
      }
    }
    EXPECT_FALSE(tiles.HasDamage());
  }
  scene::StarTiles tiles;
  std::map<int, scene::StarTileRecord> stars;
};

std::set<int> GetNumbers(const Opened& opened) {
  std::set<int> numbers;
  for (const auto& [number, star] : opened.stars) numbers.insert(number);
  return numbers;
}

// A source of one bright star with a HIP number, one without, and these rows of the Hipparcos table.
StarTilesFile Make(const skydata_test::TinySource& source, const std::string& rows) {
  source.Write("stars/stars.tsv",
               "HR\tRA_deg\tDec_deg\tV_mag\tB-V_mag\tSpectralType\tpmRAcosDec_mas_yr\tpmDec_mas_yr\t"
               "Parallax_mas\tRadialVelocity_km_s\tName\tBayer\tFlamsteed\tHIP\n"
               "1\t10\t20\t5\t\t\t\t\t\t\t\t\t\t100\n2\t30\t-40\t5.5\n");
  source.Write("stars/hipparcos.tsv", "HIP\tRA_deg\tDec_deg\tV_mag\tB-V_mag\n" + rows);
  return MakeStarTiles(source.dir.Path(), source.dir.Path());
}

TEST(StarTilesFile, BrightStarsAreLeftOutByNumberAndByPlace) {
  const skydata_test::TinySource source;
  const StarTilesFile made = Make(source,
                                  "100\t10.01\t20\t5\t0.5\n"     // the bright star, 34" off
                                  "101\t10\t20.003\t5.1\t0.5\n"  // 11" from a bright star that has its own
                                  "200\t30\t-40.0008\t8\t\n"     // 3" from the other one
                                  "201\t30\t-40.003\t5.6\t\n"    // 11" from it, which has a nearer one
                                  "300\t200\t60\t9\t1.25\n");
  EXPECT_EQ(made.knownByNumber, 1);
  EXPECT_EQ(made.knownByPlace, 1);
  EXPECT_EQ(made.stars, 3);
  const Opened opened(source.dir, made);
  EXPECT_EQ(GetNumbers(opened), (std::set<int>{101, 201, 300}));
  EXPECT_FLOAT_EQ(opened.stars.at(300).GetColour(), 1.25f);
  EXPECT_FLOAT_EQ(opened.stars.at(300).GetMagnitude(), 9.0f);
  EXPECT_FALSE(opened.stars.at(300).HasMotion());
}

TEST(StarTilesFile, BadSourceIsNamed) {
  const skydata_test::TinySource source;
  const auto message = [&](const std::string& rows) {
    return skydata_test::MessageOf(source.dir, [&] { Make(source, rows); });
  };
  EXPECT_EQ(message("5\t1\t1\t9\t\n5\t2\t2\t9\t\n"), "stars/hipparcos.tsv:3: HIP: 5 stands above already");
  EXPECT_NE(message("5\t1\t91\t9\t\n").find("stars/hipparcos.tsv:2: Dec_deg"), std::string::npos);
  EXPECT_NE(message("5\t1\t1\t\t\n").find("stars/hipparcos.tsv:2: V_mag"), std::string::npos);
}

TEST(StarTilesFile, NumbersAreTakenUpToTheirBounds) {
  const skydata_test::TinySource source;
  EXPECT_EQ(Make(source, "1\t0\t-90\t-2\t-2\n999999\t360\t90\t30\t10\n").stars, 2);
  const std::pair<const char*, const char*> bad[] = {{"0\t1\t1\t9\t\n", "HIP: 0"},
                                                     {"1000000\t1\t1\t9\t\n", "HIP: 1000000"},
                                                     {"5\t-0.01\t1\t9\t\n", "RA_deg: -0.01"},
                                                     {"5\t360.01\t1\t9\t\n", "RA_deg: 360.01"},
                                                     {"5\t1\t-90.01\t9\t\n", "Dec_deg: -90.01"},
                                                     {"5\t1\t90.01\t9\t\n", "Dec_deg: 90.01"},
                                                     {"5\t1\t1\t-2.01\t\n", "V_mag: -2.01"},
                                                     {"5\t1\t1\t30.01\t\n", "V_mag: 30.01"},
                                                     {"5\t1\t1\t9\t-2.01\n", "B-V_mag: -2.01"},
                                                     {"5\t1\t1\t9\t10.01\n", "B-V_mag: 10.01"}};
  for (const auto& [row, told] : bad)
    EXPECT_EQ(skydata_test::MessageOf(source.dir, [&] { Make(source, row); }),
              std::string("stars/hipparcos.tsv:2: ") + told + " is out of range");
}

class ShippedStarTiles : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    const test_support::TempDir dir;
    s_Made = MakeStarTiles(CI_DATA_SOURCE, dir.Path());
  }
  static StarTilesFile s_Made;
};
StarTilesFile ShippedStarTiles::s_Made;

// 8978 HIP numbers stand in the table of the bright stars, some of them twice.
TEST_F(ShippedStarTiles, EveryStarIsCountedOnce) {
  EXPECT_EQ(s_Made.knownByNumber, 8978);
  EXPECT_EQ(s_Made.knownByNumber + s_Made.knownByPlace + s_Made.stars, 118216);
  EXPECT_LE(s_Made.knownByPlace, 88) << "the bright stars without a HIP number";
}

TEST_F(ShippedStarTiles, NoneIsLostAndNoneStandsTwice) {
  const test_support::TempDir dir;
  const Opened opened(dir, s_Made);
  EXPECT_EQ(opened.stars.size(), static_cast<std::size_t>(s_Made.stars));
  const SourceTable table(std::filesystem::path(CI_DATA_SOURCE) / "stars" / "hipparcos.tsv",
                          {"HIP", "RA_deg", "Dec_deg", "V_mag", "B-V_mag"});
  std::multimap<std::uint32_t, BrightStar> bright;
  std::set<int> brightHip;
  for (const BrightStar& star : ReadBrightStars(CI_DATA_SOURCE)) {
    bright.emplace(astro::GetHealpixCell(4, scene::MakeDirection(star.ra, star.dec).v), star);
    brightHip.insert(star.hip);
  }
  int missing = 0;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const int hip = table.GetInteger(row, 0, 1, 999999);
    const auto found = opened.stars.find(hip);
    const scene::Direction place =
        scene::MakeDirection(table.GetNumber(row, 1, 0.0, 360.0) * scene::kRadiansPerDegree,
                             table.GetNumber(row, 2, -90.0, 90.0) * scene::kRadiansPerDegree);
    double nearest = 1e9;
    const auto [first, last] = bright.equal_range(astro::GetHealpixCell(4, place.v));
    for (auto at = first; at != last; ++at) {
      const BrightStar& star = at->second;
      nearest = std::min(nearest, VectorsAngle(place.v, scene::MakeDirection(star.ra, star.dec).v) / kSecond);
    }
    if (found == opened.stars.end()) {
      ++missing;
      EXPECT_TRUE(brightHip.count(hip) == 1 || nearest < 30.0) << hip;
    } else {
      EXPECT_EQ(brightHip.count(hip), 0u) << hip;
      EXPECT_GT(nearest, 4.0) << hip;
      EXPECT_LT(VectorsAngle(found->second.GetDirection().v, place.v), 0.001 * kSecond) << hip;
    }
  }
  EXPECT_EQ(missing, s_Made.knownByNumber + s_Made.knownByPlace);
}

}  // namespace
}  // namespace skydata
