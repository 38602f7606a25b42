// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/star_catalog.h"

#include <map>
#include <set>

#include "scene/view/directions.h"
#include "skydata/build/catalog_text.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/source_table.h"
#include "skydata/build/star_marks.h"

namespace skydata {
namespace {

// The columns of the source, in its order.
enum StarColumn {
  kHR,
  kRA,
  kDec,
  kMagnitude,
  kColorIndex,
  kSpectralType,
  kMotionRA,
  kMotionDec,
  kParallax,
  kRadialVelocity,
  kName,
  kBayer,
  kFlamsteed,
  kHipparcos
};

const std::vector<std::string> kSourceColumns = {"HR",
                                                 "RA_deg",
                                                 "Dec_deg",
                                                 "V_mag",
                                                 "B-V_mag",
                                                 "SpectralType",
                                                 "pmRAcosDec_mas_yr",
                                                 "pmDec_mas_yr",
                                                 "Parallax_mas",
                                                 "RadialVelocity_km_s",
                                                 "Name",
                                                 "Bayer",
                                                 "Flamsteed",
                                                 "HIP"};
const std::vector<std::string> kCatalogColumns = {
    "Number:i32",      "RA:f64",           "Dec:f64",           "VisMagnitude:f32", "ColorIndexBV:f32",
    "SpectrType:text", "PropMotionRA:f32", "PropMotionDec:f32", "Parallax:f32",     "RadialVelocity:f32",
    "ProperName:text", "Bayer:text",       "Flamsteed:text",    "HipparcosID:i32",  "PairAngle:f32",
    "VarName:text",    "HasPlanets:i32"};

constexpr int kMaxNumber = 999999999;
constexpr double kBrightest = -2.0, kFaintest = 30.0;
constexpr double kMaxMotion = 20000.0;   // mas/yr; the fastest star has 10400 (Barnard's Star)
constexpr double kMaxParallax = 1000.0;  // mas; the nearest star has 769
constexpr double kMaxVelocity = 1000.0;  // km/s

void AddStar(const SourceTable& table, int row, CatalogText& catalog) {
  catalog.AddAngle(table.GetNumber(row, kRA, 0.0, 360.0));
  catalog.AddAngle(table.GetNumber(row, kDec, -90.0, 90.0));
  catalog.AddFloat(table.GetNumber(row, kMagnitude, kBrightest, kFaintest));
  catalog.AddFloat(table.FindNumber(row, kColorIndex, -2.0, 10.0));
  catalog.AddText(table.GetText(row, kSpectralType));
  catalog.AddFloat(table.FindNumber(row, kMotionRA, -kMaxMotion, kMaxMotion));
  catalog.AddFloat(table.FindNumber(row, kMotionDec, -kMaxMotion, kMaxMotion));
  catalog.AddFloat(table.FindNumber(row, kParallax, -kMaxParallax, kMaxParallax));
  catalog.AddFloat(table.FindNumber(row, kRadialVelocity, -kMaxVelocity, kMaxVelocity));
  catalog.AddText(table.GetText(row, kName));
  catalog.AddText(table.GetText(row, kBayer));
  catalog.AddText(table.GetText(row, kFlamsteed));
  if (table.GetText(row, kHipparcos).empty()) {
    catalog.AddText("");
  } else {
    catalog.AddInteger(table.GetInteger(row, kHipparcos, 1, kMaxNumber));
  }
}

void AddMarks(const StarMarks& marks, CatalogText& catalog) {
  catalog.AddFloat(marks.pairAngle ? std::optional(*marks.pairAngle * scene::kRadiansPerDegree)
                                   : std::nullopt);
  catalog.AddText(marks.variable);
  catalog.AddText(marks.planets ? "1" : "");
}

}  // namespace

std::vector<BrightStar> ReadBrightStars(const std::filesystem::path& source) {
  const SourceTable table(source / "stars" / "stars.tsv", kSourceColumns);
  std::vector<BrightStar> stars;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const bool hasHip = !table.GetText(row, kHipparcos).empty();
    stars.push_back({table.GetNumber(row, kRA, 0.0, 360.0) * scene::kRadiansPerDegree,
                     table.GetNumber(row, kDec, -90.0, 90.0) * scene::kRadiansPerDegree,
                     table.GetNumber(row, kMagnitude, kBrightest, kFaintest),
                     table.FindNumber(row, kMotionRA, -kMaxMotion, kMaxMotion).value_or(0.0),
                     table.FindNumber(row, kMotionDec, -kMaxMotion, kMaxMotion).value_or(0.0),
                     hasHip ? table.GetInteger(row, kHipparcos, 1, kMaxNumber) : 0});
  }
  return stars;
}

std::string MakeStarCatalog(const std::filesystem::path& source) {
  const SourceTable table(source / "stars" / "stars.tsv", kSourceColumns);
  CatalogText catalog("stars/stars.tsv", kCatalogColumns);
  const std::map<int, StarMarks> marks = ReadStarMarks(source);
  std::set<int> numbers;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const int number = table.GetInteger(row, kHR, 1, kMaxNumber);
    if (!numbers.insert(number).second)
      table.Fail(row, kHR, std::to_string(number) + " stands above already");
    catalog.AddInteger(number);
    AddStar(table, row, catalog);
    const auto known = marks.find(number);
    AddMarks(known == marks.end() ? StarMarks() : known->second, catalog);
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

}  // namespace skydata
