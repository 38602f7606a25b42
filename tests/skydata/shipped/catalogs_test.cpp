// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The catalog files of the data root that ships, as the library's own readers see them.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <map>
#include <optional>
#include <set>
#include <sstream>

#include "astro/coordinates.h"
#include "common_interfaces/flight_objects.h"
#include "common_interfaces/meteor_showers.h"
#include "common_interfaces/object_articles.h"
#include "common_interfaces/observation_times.h"
#include "common_interfaces/panoramas.h"
#include "common_interfaces/planets_and_moons.h"
#include "common_interfaces/sky_images.h"
#include "common_interfaces/string_table.h"
#include "skydata/build/data_root.h"
#include "skydata/build/source_table.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace skydata {
namespace {

using namespace CommonInterfaces;

constexpr double kPi = 3.14159265358979323846;
constexpr double kDegree = kPi / 180.0;
constexpr int kPlanet = FourCC("plnt"), kMoon = FourCC("moon"), kStar = FourCC("star"),
              kGalaxy = FourCC("gala"), kCluster = FourCC("clst"), kNebula = FourCC("nebu"),
              kComet = FourCC("comt");

// One data root for all of them. Nothing that a reader prints may be left over.
class ShippedCatalogs : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    s_Roots.emplace();
    BuildDataRoot(CI_DATA_SOURCE, s_Roots->dir.Path("data"), "en");
  }
  static void TearDownTestSuite() { s_Roots.reset(); }
  ~ShippedCatalogs() override { EXPECT_TRUE(m_Debug.lines.empty()) << m_Debug.lines[0]; }

  static SourceTable Source(const char* name, const std::vector<std::string>& columns) {
    return SourceTable(std::filesystem::path(CI_DATA_SOURCE) / name, columns);
  }

  static std::optional<test_support::TempRoots> s_Roots;
  test_support::DebugCapture m_Debug;
};
std::optional<test_support::TempRoots> ShippedCatalogs::s_Roots;

struct Vector {
  double x, y, z;
};
Vector Direction(double ra, double dec) {
  return {std::cos(dec) * std::cos(ra), std::cos(dec) * std::sin(ra), std::sin(dec)};
}
double Dot(const Vector& a, const Vector& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
Vector Cross(const Vector& a, const Vector& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// Whether a direction lies on the inner side of the four great circles through neighbouring corners. Seen
// from inside, where the first corner is at the lower right, they run clockwise.
template <class Image>
bool IsInside(const Image& image, const Vector& point) {
  for (int k = 0; k < 4; ++k) {
    const SkyImageCorner &a = image.corners[k], &b = image.corners[(k + 1) % 4];
    if (Dot(Cross(Direction(a.ra, a.dec), Direction(b.ra, b.dec)), point) <= 0.0) return false;
  }
  return true;
}

std::string IdentifierOf(unsigned id) {
  char bytes[4];
  std::memcpy(bytes, &id, sizeof bytes);
  return {bytes, sizeof bytes};
}

TEST_F(ShippedCatalogs, TenPlanetsAnd151MoonsAreReached) {
  PlanetMoonDescription bodies;
  int planets = 0, moons = 0, counted = 0;
  SSO_ID planet, moon;
  for (bool is = bodies.GetFirstPlanet(planet); is; is = bodies.GetNextPlanet(planet)) {
    ++planets;
    counted += bodies.GetNumberOfMoons(planet);
    for (bool isMoon = bodies.GetFirstMoon(moon, planet); isMoon; isMoon = bodies.GetNextMoon(moon)) {
      ++moons;
      EXPECT_NE(bodies.GetObjectName(moon)[0], '\0');
    }
  }
  EXPECT_EQ(planets, 10);
  EXPECT_EQ(moons, 151);
  EXPECT_EQ(counted, 151);
}
TEST_F(ShippedCatalogs, BodiesHaveTheNamesOfTheirNumbers) {
  PlanetMoonDescription bodies;
  const std::map<std::pair<int, int>, std::string> names = {
      {{kPlanet, 3}, "Earth"}, {{kPlanet, 9}, "Pluto"}, {{kPlanet, 10}, "Sun"},   {{kMoon, 301}, "Moon"},
      {{kMoon, 501}, "Io"},    {{kMoon, 606}, "Titan"}, {{kMoon, 801}, "Triton"}, {{kMoon, 901}, "Charon"}};
  for (const auto& [body, name] : names)
    EXPECT_EQ(bodies.GetObjectName(SSO_ID(body.first, body.second)), name);
}

TEST_F(ShippedCatalogs, EveryFigureLiesInsideItsPicture) {
  const CSTLImages images;
  std::map<std::string, const CSTLImageDesc*> pictures;
  for (auto at = images.GetBegin(); at != images.GetEnd(); ++at) pictures[IdentifierOf((*at)->id)] = *at;
  EXPECT_EQ(pictures.size(), 88u);
  const SourceTable lines =
      Source("constellations/lines.tsv", {"Abbreviation", "Polyline", "RA_deg", "Dec_deg"});
  ASSERT_EQ(lines.GetRowCount(), 893);
  for (int row = 0; row < lines.GetRowCount(); ++row) {
    const auto picture = pictures.find(lines.GetText(row, 0) + " ");
    ASSERT_NE(picture, pictures.end()) << lines.GetText(row, 0);
    EXPECT_TRUE(IsInside(*picture->second, Direction(lines.GetNumber(row, 2, 0, 360) * kDegree,
                                                     lines.GetNumber(row, 3, -90, 90) * kDegree)))
        << lines.GetText(row, 0);
  }
}
// The middle between the upper corners is nearer to the pole than that between the lower ones, unless the
// pole lies inside the picture.
TEST_F(ShippedCatalogs, CornersBeginAtTheLowerRight) {
  const CSTLImages images;
  for (auto at = images.GetBegin(); at != images.GetEnd(); ++at) {
    const SkyImageCorner* const c = (*at)->corners;
    const auto middle = [c](int a, int b) {
      const Vector p = Direction(c[a].ra, c[a].dec), q = Direction(c[b].ra, c[b].dec);
      return Vector{p.x + q.x, p.y + q.y, p.z + q.z};
    };
    const Vector low = middle(0, 1), high = middle(2, 3);
    const Vector up{high.x - low.x, high.y - low.y, high.z - low.z};
    const Vector center{high.x + low.x, high.y + low.y, high.z + low.z};
    const Vector north = Cross(center, Cross({0, 0, 1}, center));
    EXPECT_GT(Dot(up, north), 0.7 * std::sqrt(Dot(up, up) * Dot(north, north))) << IdentifierOf((*at)->id);
  }
}
TEST_F(ShippedCatalogs, TwelvePiecesCoverTheBrightMilkyWay) {
  const MWayImages images;
  ASSERT_EQ(images.GetEnd() - images.GetBegin(), 12);
  EXPECT_EQ(IdentifierOf((*images.GetBegin())->id), "MW01");
  const SourceTable outlines = Source("milkyway/outlines.tsv", {"Level", "Ring", "RA_deg", "Dec_deg"});
  int bright = 0;
  for (int row = 0; row < outlines.GetRowCount(); ++row) {
    if (outlines.GetInteger(row, 0, 1, 5) < 2) continue;
    ++bright;
    const Vector point = Direction(outlines.GetNumber(row, 2, 0, 360) * kDegree,
                                   outlines.GetNumber(row, 3, -90, 90) * kDegree);
    ASSERT_TRUE(std::any_of(images.GetBegin(), images.GetEnd(),
                            [&point](const MWayImageDesc* image) { return IsInside(*image, point); }))
        << "row " << row;
  }
  EXPECT_GT(bright, 15000);
}
// The centre of the Galaxy (17h 45m 40.0s, -29 00' 28", Reid & Brunthaler 2004) lies in the middle of the
// first piece.
TEST_F(ShippedCatalogs, TheFirstPieceHoldsTheCentreOfTheGalaxy) {
  const MWayImages images;
  EXPECT_TRUE(IsInside(**images.GetBegin(), Direction(266.41683 * kDegree, -29.00781 * kDegree)));
}

TEST_F(ShippedCatalogs, EveryMessierObjectHasItsPicture) {
  DSOImages images;
  int count = 0;
  for (const DSOImageDesc* image = images.GetFirst(); image; image = images.GetNext()) {
    EXPECT_EQ(image->number, static_cast<unsigned>(++count));
    EXPECT_GT(image->size, 0.0f) << count;
    EXPECT_GE(image->aspectRatio, 1.0) << count;
  }
  EXPECT_EQ(count, 110);
}
TEST_F(ShippedCatalogs, EveryDeepskyObjectFindsItsPictureByItsOwnNumber) {
  std::istringstream catalog(s_Roots->dir.Read("data/catalogs/deepsky.txt"));
  DSOImages images;
  int count = 0;
  for (std::string line; std::getline(catalog, line);) {
    const auto tab = line.find('\t');
    const int number = tab == std::string::npos ? 0 : std::atoi(line.c_str() + tab);
    if (number == 0) continue;  // the heading
    ++count;
    const DSOImageDesc* const image = images.Find(kGalaxy, number);
    ASSERT_NE(image, nullptr) << line;
    EXPECT_EQ(image->number, static_cast<unsigned>(number) & 0xFFFFFFu) << line;
  }
  EXPECT_EQ(count, 110);
}

// de Vaucouleurs et al. 1991 (RC3): M 31 at 00 42 44.3 +41 16 08, 190' by 62', position angle 35; M 104 at
// position angle 90, M 82 at 65.
TEST_F(ShippedCatalogs, PicturesOfGalaxiesLieAtTheirPositionAngles) {
  DSOImages images;
  const DSOImageDesc* const andromeda = images.Find(kGalaxy, 31);
  ASSERT_NE(andromeda, nullptr);
  double at[3];
  sfp(1.0, 10.6846 * kDegree, 41.2689 * kDegree, at);
  for (int k = 0; k < 3; ++k) EXPECT_NEAR(andromeda->direction[k], at[k], 1e-5);
  EXPECT_EQ(andromeda->rotation, -35.0);
  // Diameters of galaxies depend on the brightness at which they are measured.
  EXPECT_NEAR(static_cast<double>(andromeda->size) / kDegree * 60.0, 95.0, 10.0);
  EXPECT_NEAR(andromeda->aspectRatio, 190.0 / 62.0, 0.6);
  EXPECT_EQ(images.Find(kGalaxy, 104)->rotation, -90.0);
  EXPECT_NEAR(images.Find(kGalaxy, 82)->rotation, -65.0, 2.0);
}
TEST_F(ShippedCatalogs, ARoundObjectHasASquarePicture) {
  DSOImages images;
  const DSOImageDesc* const hercules = images.Find(kCluster, 13);
  EXPECT_EQ(hercules->aspectRatio, 1.0);
  EXPECT_EQ(hercules->rotation, 0.0);
}
TEST_F(ShippedCatalogs, ThePictureOfMessier102IsThatOfNgc5866) {
  DSOImages images;  // 15 06 29.5 +55 45 48 (RC3)
  double at[3];
  sfp(1.0, 226.6229 * kDegree, 55.7633 * kDegree, at);
  for (int k = 0; k < 3; ++k) EXPECT_NEAR(images.Find(kGalaxy, 102)->direction[k], at[k], 1e-5);
}

TEST_F(ShippedCatalogs, EveryArticleOfTheSourceIsFound) {
  const ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(kPlanet, 4), 1004);
  EXPECT_EQ(articles.GetArticleId(kMoon, 301), 10301);
  EXPECT_EQ(articles.GetArticleId(kStar, 2491), 22491);             // Sirius
  EXPECT_EQ(articles.GetArticleId(kCluster, 41 << 24 | 13), 2013);  // M 13, a globular cluster
  EXPECT_EQ(articles.GetArticleId(FourCC("cnst"), GetUniqueID("Ori")), 3060);
  EXPECT_EQ(articles.GetArticleId(kStar, 2), -1);
}
// Whatever the sub-type in the top byte: galaxies are filed under another number.
TEST_F(ShippedCatalogs, TheArticleOfAGalaxyIsFoundByItsNumberInTheCatalog) {
  const ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(kGalaxy, 62 << 24 | 31), 2031);
  EXPECT_EQ(articles.GetArticleId(kGalaxy, 31), 2031);
}

TEST_F(ShippedCatalogs, DistancesAreKnownOfStarsWithAParallaxAndOfMessierObjects) {
  General3DFlightObjectsList distances;
  const SourceTable stars =
      Source("stars/stars.tsv",
             {"HR", "RA_deg", "Dec_deg", "V_mag", "B-V_mag", "SpectralType", "pmRAcosDec_mas_yr",
              "pmDec_mas_yr", "Parallax_mas", "RadialVelocity_km_s", "Name", "Bayer", "Flamsteed", "HIP"});
  int known = 0;
  for (int row = 0; row < stars.GetRowCount(); ++row) {
    const bool isKnown = stars.FindNumber(row, 8, -1000, 1000).value_or(0.0) > 0.0;
    known += isKnown;
    ASSERT_EQ(distances.objectInList(kStar, stars.GetInteger(row, 0, 1, 9999)), isKnown) << row;
  }
  EXPECT_EQ(known, 3100);
  EXPECT_TRUE(distances.objectInList(kGalaxy, 62 << 24 | 31));
  EXPECT_TRUE(distances.objectInList(kNebula, 33 << 24 | 1));
  EXPECT_FALSE(
      distances.objectInList(kCluster, 42 << 24 | 24));  // M 24, a star cloud along the line of sight
}
TEST_F(ShippedCatalogs, FlightsLeadToBodiesAndObjectsOfKnownDistance) {
  Voyvane3DFlightObjectsList flights;
  General3DFlightObjectsList distances;
  for (int planet = 1; planet <= 10; ++planet) EXPECT_TRUE(flights.objectInList(kPlanet, planet));
  EXPECT_TRUE(flights.objectInList(kMoon, 301));
  EXPECT_FALSE(flights.objectInList(kPlanet, 11));
  const SourceTable table =
      Source("deepsky/messier.tsv", {"Messier", "NGC_IC", "Name", "Type", "V_mag", "Largest_arcmin",
                                     "Smallest_arcmin", "RA_deg", "Dec_deg"});
  int flown = 0;
  for (int messier = 1; messier <= table.GetRowCount(); ++messier) {
    for (const int kind : {kGalaxy, kCluster, kNebula}) {
      for (int type = 30; type <= 64; ++type) {
        const bool canFly = flights.objectInList(kind, type << 24 | messier);
        EXPECT_EQ(canFly, distances.objectInList(kind, type << 24 | messier)) << messier;
        flown += canFly;
      }
    }
  }
  EXPECT_EQ(flown, 106);
}

// 1P/Halley was nearest to the Sun on 9 February 1986, close behind the Sun; C/1996 B2 (Hyakutake, 1018 here)
// nearest to the Earth on 25 March 1996 (both: Kronk, Cometography).
TEST_F(ShippedCatalogs, CometsAreSeenBestAroundTheirKnownMaxima) {
  _Date date;
  ASSERT_TRUE(GetObsTimeFromFile(&date, SSO_ID(kComet, 1), 1986));
  EXPECT_NEAR(date.day, 2446471, 15);
  ASSERT_TRUE(GetObsTimeFromFile(&date, SSO_ID(kComet, 1018), 1996));
  EXPECT_NEAR(date.day, 2450168, 2);
  EXPECT_FALSE(GetObsTimeFromFile(&date, SSO_ID(kComet, 1018), 1995));
}
// Perihelia of 2P/Encke: 2017 March 10, 2020 June 25, 2023 October 22 (Minor Planet Center). A comet that
// stays so near the Sun is brightest within weeks of its perihelion.
TEST_F(ShippedCatalogs, EveryReturnOfEnckeHasItsTime) {
  const std::pair<int, int> perihelia[] = {{2017, 2457823}, {2020, 2459026}, {2023, 2460240}};
  for (const auto& [year, day] : perihelia) {
    _Date date;
    ASSERT_TRUE(GetObsTimeFromFile(&date, SSO_ID(kComet, 2), year));
    EXPECT_NEAR(date.day, day, 30) << year;
  }
}

TEST_F(ShippedCatalogs, EveryLandscapeHasItsPicture) {
  const PanoramaDesc panoramas;
  int count = 0;
  for (const SSO_ID& body : {SSO_ID(kPlanet, 3), SSO_ID(kMoon, 301), SSO_ID(kPlanet, 4)}) {
    const auto* const all = panoramas.GetPanoramas(body);
    ASSERT_NE(all, nullptr);
    count += static_cast<int>(all->size());
    EXPECT_EQ(
        std::count_if(all->begin(), all->end(), [](const PanoramaInfo& info) { return info.IsDefault(); }),
        1);
    for (const PanoramaInfo& info : *all) EXPECT_TRUE(std::filesystem::is_regular_file(info.GetPath()));
  }
  EXPECT_EQ(count, 4);
}

int DayOfYear(int day, int month) {
  constexpr int kBefore[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
  return kBefore[month - 1] + day;
}

TEST_F(ShippedCatalogs, EveryShowerHasItsMaximumBetweenBeginningAndEnd) {
  std::vector<SHOWER> showers;
  ASSERT_TRUE(ReadMeteorShowers(&showers));
  EXPECT_EQ(showers.size(), 113u);
  std::set<std::string> codes;
  for (const SHOWER& shower : showers) {
    EXPECT_TRUE(codes.insert(shower.code).second) << shower.code;
    const int begin = DayOfYear(shower.beginDay, shower.beginMonth);
    const int toMaximum = (DayOfYear(shower.maximumDay, shower.maximumMonth) - begin + 365) % 365;
    const int toEnd = (DayOfYear(shower.endDay, shower.endMonth) - begin + 365) % 365;
    EXPECT_LE(toMaximum, toEnd) << shower.code;
    EXPECT_LE(toEnd, 130) << shower.code;
    EXPECT_TRUE(shower.ra >= 0.0 && shower.ra < 2.0 * kPi && std::fabs(shower.dec) <= kPi / 2) << shower.code;
  }
}
// Maxima of the International Meteor Organization's calendar for 2026, and its radiants: Ursids 22 December,
// 14h28m +76; Southern delta-Aquariids 31 July, 22h40m -16; October Draconids 8 October, 17h28m +54.
TEST_F(ShippedCatalogs, ShowersAreWhereTheCalendarPutsThem) {
  struct Known {
    const char* code;
    int day, month;
    double ra, dec;  // degrees
  };
  constexpr Known kKnown[] = {{"URS", 22, 12, 217, 76}, {"SDA", 31, 7, 340, -16}, {"DRA", 8, 10, 262, 54}};
  std::vector<SHOWER> showers;
  ASSERT_TRUE(ReadMeteorShowers(&showers));
  for (const Known& known : kKnown) {
    const auto found = std::find_if(showers.begin(), showers.end(), [&known](const SHOWER& shower) {
      return shower.code == std::string(known.code);
    });
    ASSERT_NE(found, showers.end());
    EXPECT_NEAR(DayOfYear(found->maximumDay, found->maximumMonth), DayOfYear(known.day, known.month), 1)
        << known.code;
    EXPECT_NEAR(found->ra / kDegree, known.ra, 3.0) << known.code;
    EXPECT_NEAR(found->dec / kDegree, known.dec, 3.0) << known.code;
  }
}

}  // namespace
}  // namespace skydata
