// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/star_catalog.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>

#include "common_interfaces/field_names.h"
#include "common_interfaces/star_data.h"
#include "common_interfaces/zoom_dependence.h"
#include "utils/debug.h"

namespace scene {
namespace {

using CommonInterfaces::FieldIds;

constexpr double kMissing = std::numeric_limits<double>::infinity();
constexpr double kMostColour = 100.0;                   // magnitudes, far beyond any star
constexpr double kRadiansPerMas = 4.84813681109536e-9;  // pi / (180 * 3600 * 1000)

// The change of the unit vector per year: the motion in right ascension includes cos Dec, as catalogues give
// it.
Direction MakeMotion(double ra, double dec, double east, double north) {
  const double sa = std::sin(ra), ca = std::cos(ra), sd = std::sin(dec), cd = std::cos(dec);
  return {{-sa * east - ca * sd * north, ca * east - sa * sd * north, cd * north}};
}

// Columns of this table alone.
const int kPairAngle = GetUniqueID("PairAngle"), kHasPlanetsColumn = GetUniqueID("HasPlanets");

unsigned char FindMarks(const CatalogTable& table) {
  unsigned marks = 0;
  if (FieldNumber(table, kPairAngle, kMissing) < kMissing) marks |= kDoubleStar;
  if (*FieldText(table, FieldIds::VarName) != 0) marks |= kVariableStar;
  if (FieldNumber(table, kHasPlanetsColumn, 0.0) > 0.0) marks |= kHasPlanets;
  return static_cast<unsigned char>(marks);
}

float FindPairAngle(const CatalogTable& table) {
  const double angle = FieldNumber(table, kPairAngle, kMissing);
  return std::fabs(angle) <= 2.0 * kPi ? static_cast<float>(angle) : std::numeric_limits<float>::quiet_NaN();
}

// "α CMa", else "9 CMa".
std::string_view ChooseDesignation(const CatalogTable& table) {
  const std::string_view bayer = FieldText(table, FieldIds::Bayer);
  return bayer.empty() ? std::string_view(FieldText(table, FieldIds::Flamsteed)) : bayer;
}

unsigned char CatalogBits(const CatalogTable& table) {
  const auto bit = [](bool listed, StarCatalogBit value) {
    return listed ? static_cast<unsigned>(value) : 0u;
  };
  return static_cast<unsigned char>(bit(FieldNumber(table, FieldIds::Number, 0.0) > 0.0, kInBrightStars) |
                                    bit(FieldNumber(table, FieldIds::HipparcosID, 0.0) > 0.0, kInHipparcos) |
                                    bit(*FieldText(table, FieldIds::Bayer) != 0, kInBayer) |
                                    bit(*FieldText(table, FieldIds::Flamsteed) != 0, kInFlamsteed));
}

}  // namespace

unsigned char FindLuminosityClass(std::string_view spectrum) {
  constexpr std::pair<std::string_view, unsigned char> kPrefixes[] = {
      {"wd", 7}, {"sd", 6}, {"sg", 4}, {"c", 1}, {"g", 3}, {"d", 5}, {"D", 7}};
  constexpr std::pair<std::string_view, unsigned char> kNumerals[] = {{"III", 3}, {"II", 2}, {"IV", 4},
                                                                      {"I", 1},   {"VI", 6}, {"V", 5}};
  for (const auto& [prefix, cls] : kPrefixes) {
    if (spectrum.starts_with(prefix)) return cls;
  }
  const auto begin = spectrum.find_first_of("IV");
  for (const auto& [numeral, cls] : kNumerals) {
    if (begin != std::string_view::npos && spectrum.substr(begin).starts_with(numeral)) return cls;
  }
  return ObjectTraits::kNoClass;
}

void StarCatalog::Append(CatalogTable& table, int record) {
  table.Select(record);
  const double ra = FieldNumber(table, FieldIds::RA, 0.0), dec = FieldNumber(table, FieldIds::Dec, 0.0);
  const double east = FieldNumber(table, FieldIds::PropMotionRA, 0.0) * kRadiansPerMas;
  const double north = FieldNumber(table, FieldIds::PropMotionDec, 0.0) * kRadiansPerMas;
  const double magnitude = FieldNumber(table, FieldIds::VisMagnitude, 0.0);
  m_Codes.push_back(
      static_cast<float>((magnitude + CommonInterfaces::kMagCodeOffset) * CommonInterfaces::kMagCodesPerMag));
  m_Directions.push_back(MakeDirection(ra, dec));
  m_Motions.push_back(MakeMotion(ra, dec, east, north));
  m_MaxMotion = std::max(m_MaxMotion, std::hypot(east, north));
  m_Spectra.push_back(CommonInterfaces::GetSpectrType(FieldText(table, FieldIds::SpectrType)));
  m_Numbers.push_back(FieldInteger(table, FieldIds::Number, -1));
  const double colour = FieldNumber(table, FieldIds::ColorIndexBV, kMissing);
  m_Colours.push_back(std::fabs(colour) <= kMostColour ? static_cast<float>(colour)
                                                       : std::numeric_limits<float>::quiet_NaN());
  m_Catalogs.push_back(CatalogBits(table));
  m_Luminosities.push_back(FindLuminosityClass(FieldText(table, FieldIds::SpectrType)));
  m_Marks.push_back(FindMarks(table));
  m_PairAngles.push_back(FindPairAngle(table));
  m_Records.push_back(record);
  m_ProperNames.push_back(AddText(FieldText(table, FieldIds::ProperName)));
  const std::string_view designation = ChooseDesignation(table);
  m_Letters.push_back(AddText(designation.substr(0, designation.find(' '))));
  m_Designations.push_back(AddText(designation));
}

unsigned StarCatalog::AddText(std::string_view text) {
  if (text.empty()) return 0;
  const auto offset = static_cast<unsigned>(m_Texts.size());
  m_Texts.append(text).push_back('\0');
  return offset;
}

void StarCatalog::Fill(CatalogTable& table) {
  *this = StarCatalog();
  std::vector<std::pair<double, int>> order;  // magnitude and record
  for (int record = 0; record < table.GetCount(); ++record) {
    table.Select(record);
    const double magnitude = FieldNumber(table, FieldIds::VisMagnitude, kMissing);
    const bool placed =
        FieldNumber(table, FieldIds::RA, kMissing) + FieldNumber(table, FieldIds::Dec, kMissing) < kMissing;
    if (placed && magnitude < kMissing) order.emplace_back(magnitude, record);
  }
  if (const int left = table.GetCount() - static_cast<int>(order.size()); left > 0) {
    PrintDebugString("Stars: %d records without position or magnitude left out\n", left);
  }
  std::sort(order.begin(), order.end());
  for (const auto& [magnitude, record] : order) {
    Append(table, record);
  }
}

}  // namespace scene
