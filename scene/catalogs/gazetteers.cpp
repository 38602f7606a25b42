// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/gazetteers.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <string_view>

#include "astro/constants.h"
#include "astro/rotation.h"
#include "common_interfaces/field_names.h"
#include "scene/catalogs/optional_table.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::FieldIds;

struct BodyName {
  int kind, number;
  const char* name;
};
constexpr int kPlanet = FourCC("plnt"), kMoon = FourCC("moon");
constexpr BodyName kNames[] = {
    {kMoon, 301, "moon"},      {kPlanet, 4, "mars"},     {kPlanet, 1, "mercury"},  {kPlanet, 2, "venus"},
    {kPlanet, 9, "pluto"},     {kMoon, 401, "phobos"},   {kMoon, 402, "deimos"},   {kMoon, 501, "io"},
    {kMoon, 502, "europa"},    {kMoon, 503, "ganymede"}, {kMoon, 504, "callisto"}, {kMoon, 601, "mimas"},
    {kMoon, 602, "enceladus"}, {kMoon, 603, "tethys"},   {kMoon, 604, "dione"},    {kMoon, 605, "rhea"},
    {kMoon, 606, "titan"},     {kMoon, 608, "iapetus"},  {kMoon, 701, "ariel"},    {kMoon, 702, "umbriel"},
    {kMoon, 703, "titania"},   {kMoon, 704, "oberon"},   {kMoon, 705, "miranda"},  {kMoon, 801, "triton"},
    {kMoon, 901, "charon"}};
constexpr int kBodies = static_cast<int>(std::size(kNames));
constexpr int kBodyFeatures = 1 << 16;  // numbers of an index that a body has

// Columns of these tables alone.
const int kType = GetUniqueID("Type"), kLatitude = GetUniqueID("Latitude"),
          kLongitude = GetUniqueID("Longitude"), kDiameter = GetUniqueID("Diameter");

constexpr double kLandingSite = 6.0;  // km: as large as that counts a place without an extent

// From which extent on a feature is worth naming, pixels: the extent of what is long and narrow is its
// length.
struct ExtentRule {
  std::string_view type;
  double least;
};
constexpr double kLeastOfMost = 16.0;
constexpr ExtentRule kExtents[] = {
    {"Mare", 30.0},    {"Oceanus", 30.0}, {"Regio", 60.0},     {"Planitia", 40.0},
    {"Terra", 60.0},   {"Planum", 60.0},  {"Catena", 140.0},   {"Chasma", 90.0},
    {"Dorsum", 140.0}, {"Fluctus", 90.0}, {"Fossa", 140.0},    {"Linea", 140.0},
    {"Rima", 140.0},   {"Rupes", 140.0},  {"Scopulus", 140.0}, {"Sulcus", 140.0},
    {"Vallis", 140.0}, {"Virga", 140.0},  {"Flexus", 140.0},   {"Satellite feature", 60.0},
    {"Corona", 60.0},  {"Tessera", 60.0}, {"Flumen", 140.0},   {"Albedo feature", 60.0}};

double FindProminence(const SurfaceFeature& feature) {
  const double extent =
      feature.diameter > 0.0 || feature.type != "Landing site" ? feature.diameter : kLandingSite;
  const auto rule = std::find_if(std::begin(kExtents), std::end(kExtents),
                                 [&feature](const ExtentRule& known) { return known.type == feature.type; });
  return extent / (rule == std::end(kExtents) ? kLeastOfMost : rule->least);
}

int FindSlot(const SSO_ID& body) {
  const auto found = std::find_if(std::begin(kNames), std::end(kNames), [&body](const BodyName& known) {
    return known.kind == body.kind && known.number == body.number;
  });
  return found == std::end(kNames) ? -1 : static_cast<int>(found - std::begin(kNames));
}

// From the middle of the spheroid to its surface.
void SetSurface(const astro::BodyShape& shape, SurfaceFeature& feature) {
  const double cosine = std::cos(feature.latitude), sine = std::sin(feature.latitude);
  const double radius = shape.a * shape.c / std::hypot(shape.c * cosine, shape.a * sine);
  feature.surface[0] = radius * cosine * std::cos(feature.longitude);
  feature.surface[1] = radius * cosine * std::sin(feature.longitude);
  feature.surface[2] = radius * sine;
}

std::vector<SurfaceFeature> ReadFeatures(const BodyName& body) {
  constexpr double kMissing = std::numeric_limits<double>::infinity();
  std::vector<SurfaceFeature> features;
  CatalogTable table;
  LoadOptionalTable(("gazetteers/" + std::string(body.name) + "_features.txt").c_str(), table);
  const auto shape = astro::GetBodyShape(SSO_ID(body.kind, body.number));
  if (!shape) return features;
  for (int record = 0; record < std::min(table.GetCount(), kBodyFeatures); ++record) {
    table.Select(record);
    SurfaceFeature feature = {FieldText(table, FieldIds::ProperName),
                              FieldText(table, kType),
                              FieldNumber(table, kLatitude, kMissing),
                              FieldNumber(table, kLongitude, kMissing),
                              FieldNumber(table, kDiameter, 0.0),
                              0.0,
                              0,
                              {}};
    if (feature.name.empty() || !(feature.latitude + feature.longitude < kMissing)) continue;
    SetSurface(*shape, feature);
    feature.prominence = FindProminence(feature);
    feature.number = GetUniqueID((std::string(body.name) + " " + feature.name).c_str());
    features.push_back(std::move(feature));
  }
  std::stable_sort(features.begin(), features.end(), [](const SurfaceFeature& a, const SurfaceFeature& b) {
    return a.prominence > b.prominence;
  });
  return features;
}

}  // namespace

const std::vector<SSO_ID>& Gazetteers::GetBodies() {
  static const std::vector<SSO_ID> kIds = [] {
    std::vector<SSO_ID> ids;
    for (const BodyName& body : kNames) ids.emplace_back(body.kind, body.number);
    return ids;
  }();
  return kIds;
}

const char* Gazetteers::FindName(const SSO_ID& body) {
  const int slot = FindSlot(body);
  return slot < 0 ? nullptr : kNames[slot].name;
}

const std::vector<SurfaceFeature>& Gazetteers::Get(const SSO_ID& body) const {
  static const std::vector<SurfaceFeature> kNone;
  const int slot = FindSlot(body);
  if (slot < 0) return kNone;
  m_Features.resize(kBodies);
  auto& features = m_Features[static_cast<std::size_t>(slot)];
  if (!features) features = std::make_shared<const std::vector<SurfaceFeature>>(ReadFeatures(kNames[slot]));
  return *features;
}

int Gazetteers::MakeIndex(const SSO_ID& body, int feature) {
  return FindSlot(body) * kBodyFeatures + feature;
}

SSO_ID Gazetteers::GetBody(int index) {
  const BodyName& body = kNames[index / kBodyFeatures];
  return SSO_ID(body.kind, body.number);
}

const SurfaceFeature& Gazetteers::GetFeature(int index) const {
  return Get(GetBody(index))[static_cast<std::size_t>(index % kBodyFeatures)];
}

}  // namespace scene
