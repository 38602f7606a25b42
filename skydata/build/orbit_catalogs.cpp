// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The catalogs of bodies by their orbits. Field names and units of a database record: angles in radians, mean
// motion in radians per day, for e >= 1 the perihelion distance in place of the semi-major axis.
#include <cmath>
#include <set>

#include "astro/constants.h"
#include "astro/satellite.h"
#include "astro/two_body.h"
#include "skydata/build/catalog_text.h"
#include "skydata/build/catalogs.h"
#include "skydata/build/source_table.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"

namespace skydata {
namespace {

using astro::kRadiansPerDegree;
constexpr int kMaxNumber = 999999999;
constexpr double kFirstJulianDate = 0.0, kLastJulianDate = 1e7;
constexpr double kMaxSize = 1e6;  // au
constexpr double kMaxEccentricity = 100.0;
constexpr double kParabolicMotionBelow = 1e-6;

// What stands for a slope that is not published: of asteroids the usual one of the two-parameter system of
// magnitudes (Bowell et al. 1989), of comets that of a coma which brightens with the fourth power of the
// nearness to the Sun.
constexpr double kUsualSlope = 0.15;
constexpr double kUsualCometSlope = 10.0;

// The columns that both sources have in the same places.
enum OrbitColumn {
  kNumber,
  kName,
  kEpoch,
  kSize,
  kEccentricity,
  kInclination,
  kNode,
  kPericentre,
  kPhase,
  kMagnitude
};
enum AsteroidColumn { kSlope = kMagnitude + 1, kDiameter };

void AddDesignation(const SourceTable& table, int row, std::set<int>& numbers, CatalogText& catalog) {
  const int number = table.GetInteger(row, kNumber, 1, kMaxNumber);
  if (!numbers.insert(number).second)
    table.Fail(row, kNumber, std::to_string(number) + " stands above already");
  if (table.GetText(row, kName).empty()) table.Fail(row, kName, "must not be empty");
  catalog.AddInteger(number);
  catalog.AddText(table.GetText(row, kName));
}

// Epoch, size, eccentricity and the three angles of the plane.
void AddShape(const SourceTable& table, int row, double size, double e, CatalogText& catalog) {
  catalog.AddDouble(table.GetNumber(row, kEpoch, kFirstJulianDate, kLastJulianDate));
  catalog.AddDouble(size);
  catalog.AddDouble(e);
  catalog.AddAngle(table.GetNumber(row, kInclination, 0.0, 180.0));
  catalog.AddAngle(table.GetNumber(row, kNode, 0.0, 360.0));
  catalog.AddAngle(table.GetNumber(row, kPericentre, 0.0, 360.0));
}

double GetPositive(const SourceTable& table, int row, int column) {
  const double value = table.GetNumber(row, column, 0.0, kMaxSize);
  if (value == 0.0) table.Fail(row, column, "must be above 0");
  return value;
}

// The mean motion by the rule of OrbitalElements::n; `size` is the perihelion distance for e >= 1.
double MeanMotion(double size, double e) {
  const double excess = e - 1.0;
  if (excess >= 0.0 && excess < kParabolicMotionBelow)
    return kGaussianConstant / std::sqrt(2.0 * size * size * size);
  const double axis = excess < 0.0 ? size : size / excess;
  return kGaussianConstant / (axis * std::sqrt(axis));
}

void AddComet(const SourceTable& table, int row, CatalogText& catalog) {
  const double e = table.GetNumber(row, kEccentricity, 0.0, kMaxEccentricity);
  const double q = GetPositive(table, row, kSize);
  const double size = e < 1.0 ? q / (1.0 - e) : q;
  AddShape(table, row, size, e, catalog);
  const double sincePerihelion = table.GetNumber(row, kEpoch, kFirstJulianDate, kLastJulianDate) -
                                 table.GetNumber(row, kPhase, kFirstJulianDate, kLastJulianDate);
  const double motion = MeanMotion(size, e);
  // Not brought to one turn: beside the perihelion of a long orbit that would cost the digits.
  catalog.AddDouble(motion * sincePerihelion);
  catalog.AddDouble(motion);
  const auto magnitude = table.FindNumber(row, kMagnitude, -10.0, 40.0);
  catalog.AddFloat(magnitude);
  catalog.AddFloat(magnitude ? std::optional<double>(kUsualCometSlope) : std::nullopt);
}

}  // namespace

std::string MakeAsteroidCatalog(const std::filesystem::path& source) {
  const SourceTable table(source / "orbits" / "asteroids.tsv",
                          {"Number", "Name", "Epoch_JD_TDB", "a_au", "e", "i_deg", "om_deg", "w_deg",
                           "M0_deg", "H_mag", "G", "Diameter_km"});
  CatalogText catalog("orbits/asteroids.tsv",
                      {"Number:i32", "ProperName:text", "JulianDate:f64", "a:f64", "e:f64", "i:f64", "om:f64",
                       "w:f64", "M0:f64", "n:f64", "Hy:f32", "SlopeParam:f32", "Diameter:f32"});
  std::set<int> numbers;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    AddDesignation(table, row, numbers, catalog);
    const double a = GetPositive(table, row, kSize);
    const double e = table.GetNumber(row, kEccentricity, 0.0, 0.999999);
    AddShape(table, row, a, e, catalog);
    catalog.AddAngle(table.GetNumber(row, kPhase, -360.0, 360.0));
    catalog.AddDouble(MeanMotion(a, e));
    catalog.AddFloat(table.FindNumber(row, kMagnitude, -10.0, 40.0));
    catalog.AddFloat(table.FindNumber(row, kSlope, -1.0, 2.0).value_or(kUsualSlope));
    catalog.AddFloat(table.FindNumber(row, kDiameter, 0.0, 1e5));
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

std::string MakeCometCatalog(const std::filesystem::path& source) {
  const SourceTable table(source / "orbits" / "comets.tsv",
                          {"Number", "Name", "Epoch_JD_TDB", "q_au", "e", "i_deg", "om_deg", "w_deg",
                           "Perihelion_JD_TDB", "M1_mag"});
  CatalogText catalog("orbits/comets.tsv",
                      {"Number:i32", "ProperName:text", "JulianDate:f64", "a:f64", "e:f64", "i:f64", "om:f64",
                       "w:f64", "M0:f64", "n:f64", "Hy:f32", "y:f32"});
  std::set<int> numbers;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    AddDesignation(table, row, numbers, catalog);
    AddComet(table, row, catalog);
    catalog.EndRecord();
  }
  return catalog.GetBytes();
}

// The file itself, once every set of it is readable.
std::string MakeSatellites(const std::filesystem::path& source) {
  const std::filesystem::path path = source / "orbits" / "satellites.tle";
  const TextLines lines = ReadLines(path);
  std::set<int> numbers;
  std::string bytes;
  for (std::size_t i = 0; i + 2 < lines.size(); i += 3) {
    OrbitalElements elements;
    int number = 0;
    std::string error;
    if (!ParseTwoLineElements(lines[i + 1].text, lines[i + 2].text, elements, number, error))
      throw SourceError(path.string(), lines[i].number, error);
    if (!numbers.insert(number).second)
      throw SourceError(path.string(), lines[i].number, std::to_string(number) + " stands above already");
    for (std::size_t k = i; k < i + 3; ++k) bytes += lines[k].text + "\n";
  }
  if (lines.size() % 3 != 0)
    throw SourceError(path.string(), lines.back().number,
                      "a satellite takes three lines: name, line 1, line 2");
  return bytes;
}

}  // namespace skydata
