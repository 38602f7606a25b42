// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/besides.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/physical_ephemeris.h"
#include "astro/rotation.h"
#include "common_interfaces/field_names.h"
#include "common_interfaces/object_kinds.h"
#include "scene/search/object_sight.h"
#include "scene/view/base_plane.h"
#include "scene/words/angle_text.h"
#include "scene/words/disc_text.h"
#include "scene/words/words.h"
#include "utils/text.h"

namespace scene {
namespace {

std::string Line(const std::string& text) { return PutSignsFirst(ToUtf8(text)) + "\n"; }

// Of the kinds of features the Latin ones need no translation.
std::string DescribeFeatureType(const std::string& type) {
  if (type == "Crater") return ToUtf8(Localize(Word::kCrater, {}));
  if (type == "Satellite feature") return ToUtf8(Localize(Word::kSatelliteCrater, {}));
  if (type == "Landing site") return ToUtf8(Localize(Word::kLandingSite, {}));
  return type;
}

// Degrees between the vertical at a feature and the direction to a body that has the point in its zenith.
double FindZenithDistance(const SurfaceFeature& feature, const astro::BodyShape& shape,
                          const astro::SurfacePoint& below) {
  const double axes[3] = {shape.a, shape.a, shape.c};
  const double cosine = std::cos(below.latitude);
  const double towards[3] = {cosine * std::cos(below.eastLongitude), cosine * std::sin(below.eastLongitude),
                             std::sin(below.latitude)};
  double along = 0.0, length = 0.0;
  for (int i = 0; i < 3; ++i) {
    const double normal = feature.surface[i] / (axes[i] * axes[i]);
    along += normal * towards[i];
    length += normal * normal;
  }
  return std::acos(std::clamp(along / std::sqrt(length), -1.0, 1.0)) / kRadiansPerDegree;
}

std::string DescribeSides(const SurfaceFeature& feature, const SSO_ID& body,
                          const astro::PhysicalEphemeris& surface) {
  constexpr double kRight = 90.0;  // degrees
  const auto shape = astro::GetBodyShape(body);
  if (!shape) return "";
  const double sun = kRight - FindZenithDistance(feature, *shape, surface.sun),
               middle = FindZenithDistance(feature, *shape, surface.observer);
  return Line(Localize(sun > 0.0 ? Word::kSunUpThere : Word::kSunDownThere, {sun})) +
         Line(Localize(middle < kRight ? Word::kOnVisibleSide : Word::kOnFarSide, {middle}));
}

std::string DescribeFeature(const FoundObject& object, SkyCatalogs& catalogs,
                            const CommonInterfaces::Camera& camera) {
  const SurfaceFeature& feature = catalogs.gazetteers.GetFeature(object.index);
  const SSO_ID body = Gazetteers::GetBody(object.index);
  const bool moon = body.kind == FourCC("moon") && body.number == astro::kMoonNumber;
  std::string text =
      Line(Localize(moon ? Word::kOnMoon : Word::kOnBody,
                    {feature.latitude / kRadiansPerDegree, feature.longitude / kRadiansPerDegree}));
  const FoundObject carrier = {ObjectGroup::kBody, FindBody(catalogs.bodies, body)};
  ObservedBody seen;
  const SkyMoment moment = GetMoment(camera);
  if (carrier.index < 0 || !IsNearSurface(camera) ||
      !ObjectSight(carrier, catalogs).Observe(moment, GetPlace(camera), seen))
    return text;
  if (feature.diameter > 0.0) {
    const double angle = feature.diameter / (seen.distance * astro::kKilometresPerAu);
    text += Line(Localize(Word::kExtent, {feature.diameter, FormatSize(angle).c_str()}));
  }
  const auto surface = astro::FindPhysicalEphemeris(body, seen, moment.julianDateTT);
  return surface ? text + DescribeSides(feature, body, *surface) : text;
}

// The limit of Dawes: 116 seconds of arc for an aperture of a millimetre.
std::string DescribePair(const StarPair& pair) {
  constexpr double kDawes = 116.0;
  constexpr double kSmallest = 20.0;  // mm: what any binoculars have
  const double seconds = pair.separation / astro::kRadiansPerArcsecond;
  const std::string name = pair.components + (pair.discoverer.empty() ? "" : " (" + pair.discoverer + ")");
  if (!pair.magnitudes[0] || !pair.magnitudes[1]) return "";
  std::string text = Line(Localize(Word::kStarPair, {name.c_str(), *pair.magnitudes[0], *pair.magnitudes[1],
                                                     seconds, pair.angle / kRadiansPerDegree}));
  if (seconds > 0.0 && kDawes / seconds > kSmallest)
    text += Line(Localize(Word::kSeparatedFrom, {kDawes / seconds}));
  return text;
}

std::string DescribePairs(int brightStar, int hipparcos, const SkyCatalogs& catalogs) {
  std::string text;
  for (const StarPair& pair : catalogs.starPairs.Get()) {
    const bool is =
        (hipparcos > 0 && pair.hipparcos == hipparcos) || (brightStar > 0 && pair.brightStar == brightStar);
    if (is) text += DescribePair(pair);
  }
  return text;
}

}  // namespace

std::string DescribeType(const FoundObject& object, const SkyCatalogs& catalogs) {
  if (object.group == ObjectGroup::kAsterism) return ToUtf8(Localize(Word::kAsterism, {}));
  if (object.group == ObjectGroup::kFeature)
    return DescribeFeatureType(catalogs.gazetteers.GetFeature(object.index).type);
  const char* const type =
      CommonInterfaces::GetObjectTypeName(GetKind(object, catalogs), GetNumber(object, catalogs));
  return type ? ToUtf8(type) : "";
}

std::string DescribeBesides(const FoundObject& object, SkyCatalogs& catalogs,
                            const CommonInterfaces::Camera& camera) {
  if (object.group == ObjectGroup::kFeature) return DescribeFeature(object, catalogs, camera);
  if (object.group == ObjectGroup::kTileStar)
    return DescribePairs(0, GetHipparcosNumber(object.index), catalogs);
  if (object.group != ObjectGroup::kStar) return "";
  catalogs.starTable.Select(catalogs.stars.GetRecord(object.index));
  const double hipparcos = FieldNumber(catalogs.starTable, CommonInterfaces::FieldIds::HipparcosID, 0.0);
  return DescribePairs(catalogs.stars.GetNumber(object.index), static_cast<int>(hipparcos), catalogs);
}

}  // namespace scene
