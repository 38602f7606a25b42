// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/object_tests.h"

#include "astro/vectors.h"
#include "scene/view/air.h"
#include "utils/text.h"

namespace scene {
namespace {

// How far a dot shrinks that the sky makes fainter: not as far as it fades.
constexpr float kSmaller = 0.5f;
constexpr double kMargin = 20.0;  // pixels outside the window where an object's disc may still reach in

}  // namespace

Direction SeenFromGround(const Direction& apparent, const ObserverFrame& observer) {
  Direction standing;
  MV3prod(observer.reduction, apparent.v, standing.v);
  return observer.refraction ? Lifted(standing) : standing;
}

ObjectTests::ObjectTests(const SkyCatalogs& catalogs, const ViewGeometry& geometry,
                         const ObserverFrame& observer, const ShownKinds& shown, const ObjectFilters& filters,
                         const SkyLight& light, const Landscape& landscape)
    : m_Catalogs(catalogs),
      m_Geometry(geometry),
      m_Observer(observer),
      m_Shown(shown),
      m_Light(light),
      m_Landscape(landscape),
      m_Stars(catalogs.stars),
      m_Centre(geometry.centreJ2000),
      m_StarsShown(shown.stars),
      m_StarLimits(geometry.camera, FourCC("star")),
      m_FaintestStar(m_StarLimits.draw - light.FindLeastDim(m_StarLimits)),
      m_StarFilter(filters.Get(FourCC("star"))),
      m_ConstellationFilter(filters.Get(FourCC("cnst"))),
      m_Deepsky{
          {{FourCC("clst"), ClassLimits(geometry.camera, FourCC("clst")), filters.Get(FourCC("clst"))},
           {FourCC("gala"), ClassLimits(geometry.camera, FourCC("gala")), filters.Get(FourCC("gala"))},
           {FourCC("nebu"), ClassLimits(geometry.camera, FourCC("nebu")), filters.Get(FourCC("nebu"))},
           {FourCC("dsnv"), ClassLimits(geometry.camera, FourCC("dsnv")), filters.Get(FourCC("dsnv"))}}},
      m_StarReach(GetStarReach(catalogs.stars.GetMaxMotion(),
                               catalogs.stars.GetCount() > 0 ? catalogs.stars.GetCode(0) : 0.0f)),
      m_DeepskyReach(std::cos(std::min(1.05 * geometry.cornerAngle, kPi))) {}

// The margin covers the largest proper motion to the date, the aberration and the largest disc.
StarReach ObjectTests::GetStarReach(double maxMotion, float brightest) const {
  constexpr double kAberration =
      1.1e-4;  // radians, a little above the constant of aberration, 20.5 arcseconds
  const double pixels = std::max(kMargin, StarRadius(brightest));
  const double margin =
      kAberration + maxMotion * std::fabs(m_Observer.years) + 2.0 * pixels / m_Geometry.scale;
  const double angle = std::min(m_Geometry.cornerAngle + margin, kPi);
  return {angle, std::cos(angle), pixels, WindowReach(m_Geometry, m_Observer, margin)};
}

// An unknown kind is never shown, so that it matters little whose limits it gets.
const ObjectTests::Deepsky& ObjectTests::FindKind(int kind) const {
  for (const auto& entry : m_Deepsky) {
    if (entry.kind == kind) return entry;
  }
  return m_Deepsky.back();
}

unsigned ObjectTests::GetSigns() const {
  return (m_Shown.doubleSigns ? unsigned{kDoubleStar} : 0u) |
         (m_Shown.variableSigns ? unsigned{kVariableStar} : 0u) |
         (m_Shown.planetSigns ? unsigned{kHasPlanets} : 0u);
}

const ClassLimits& ObjectTests::GetDeepskyLimits(int kind) const { return FindKind(kind).limits; }

float ObjectTests::GetFaintestDeepskyCode() const {
  const auto faintest =
      std::max_element(m_Deepsky.begin(), m_Deepsky.end(),
                       [](const auto& a, const auto& b) { return a.limits.draw < b.limits.draw; });
  return faintest->limits.draw;
}

double ObjectTests::StarRadius(float code) const {
  return m_Geometry.unit * GetDotRadius(m_StarLimits, code);
}

// What stands below the ground is not hidden by the sky.
bool ObjectTests::IsHidden(const ClassLimits& limits, float code, unsigned obstacles,
                           const ObjectPlace& place) {
  return (obstacles & kBelowHorizon) == 0 && SkyLight::Hides(limits, code, place.dim);
}

bool ObjectTests::IsAboveHorizon(const Direction& apparent) const {
  return !m_Shown.horizon || SeenSine(apparent, m_Observer) >= 0.0;
}

double ObjectTests::See(ObjectPlace& place) const {
  const SeenPlace seen = m_Geometry.See(place.apparent, m_Observer);
  place.pixel = seen.pixel;
  return seen.sine;
}

bool ObjectTests::IsBehindLand(unsigned obstacles, const Direction& apparent) const {
  return (obstacles & kBelowHorizon) == 0 && !m_Landscape.layers.empty() &&
         m_Landscape.Hides(SeenFromGround(apparent, m_Observer));
}

template <bool kFirst, class Star>
unsigned ObjectTests::TestStarPlace(const Star& star, const Direction& direction, double margin,
                                    Found<kFirst> found, ObjectPlace& place) const {
  if (!m_StarFilter.IsEmpty() && found.EndsWith(!m_StarFilter.Passes(GetTraits(star)), kFiltered)) {
    return found.obstacles;
  }
  place.apparent = ApparentDirection(direction, star.GetMotion(), m_Observer);
  const double sine = See(place);
  if (found.EndsWith(!IsAboveHorizon(sine), kBelowHorizon)) return found.obstacles;
  if (found.EndsWith(!m_Geometry.IsInside(place.pixel, margin), kOutside)) return found.obstacles;
  if (found.EndsWith(IsBehindLand(found.obstacles, place.apparent), kBehindLand)) return found.obstacles;
  const float code = star.GetCode();
  place.dim = m_Light.FindDim(m_StarLimits, place.pixel, sine);
  if (found.EndsWith(IsHidden(m_StarLimits, code, found.obstacles, place), kSkyTooBright))
    return found.obstacles;
  place.radius = StarRadius(code + kSmaller * place.dim);
  found.EndsWith(!m_Geometry.IsInside(place.pixel, place.radius), kOutside);
  return found.obstacles;
}

template <bool kFirst>
unsigned ObjectTests::TestDeepsky(int index, ObjectPlace& place) const {
  const DeepskyObject& object = m_Catalogs.deepsky[static_cast<std::size_t>(index)];
  const Deepsky& kind = FindKind(object.kind);
  Found<kFirst> found;
  // Most objects are far from the window: told before aberration, which is less than this, is computed.
  constexpr double kMostAberration = 2e-4;
  if (kFirst && Dot(object.direction, m_Geometry.centreJ2000) < m_DeepskyReach - kMostAberration)
    return kOutside;
  if (found.EndsWith(!m_Shown.IsShown(object.kind), kKindOff)) return found.obstacles;
  if (found.EndsWith(object.code > kind.limits.draw, kTooFaint)) return found.obstacles;
  if (found.EndsWith(!kind.filter.Passes(GetTraits(object)), kFiltered)) return found.obstacles;
  place.apparent = ApparentDirection(object.direction, m_Observer);
  if (found.EndsWith(Dot(place.apparent, m_Geometry.centreJ2000) < m_DeepskyReach, kOutside)) {
    return found.obstacles;
  }
  const double sine = See(place);
  if (found.EndsWith(!IsAboveHorizon(sine), kBelowHorizon)) return found.obstacles;
  if (found.EndsWith(!m_Geometry.IsInside(place.pixel, kMargin), kOutside)) return found.obstacles;
  if (found.EndsWith(IsBehindLand(found.obstacles, place.apparent), kBehindLand)) return found.obstacles;
  place.dim = m_Light.FindDimOfExtended(kind.limits, place.pixel, sine);
  const bool faded = m_Light.GetLineStrength() <= 0.0;
  found.EndsWith(faded || IsHidden(kind.limits, object.code, found.obstacles, place), kSkyTooBright);
  return found.obstacles;
}

bool ObjectTests::PassesConstellationFilter(int constellation) const {
  if (m_ConstellationFilter.IsEmpty()) return true;
  return constellation >= 0 && m_ConstellationFilter.Passes(GetTraits(
                                   m_Catalogs.constellations[static_cast<std::size_t>(constellation)]));
}

bool ObjectTests::IsFigureDrawn(int constellation) const {
  return m_Shown.figures && m_Light.GetLineStrength() > 0.0 && PassesConstellationFilter(constellation);
}

bool ObjectTests::IsConstellationShown(int constellation, ObjectPlace& place) const {
  const unsigned obstacles =
      FindConstellationObstacles(constellation, place) & ~static_cast<unsigned>(kKindOff);
  return obstacles == 0 && (m_Shown.figures || m_Shown.constellationNames);
}

template <bool kFirst>
unsigned ObjectTests::TestConstellation(int index, ObjectPlace& place) const {
  const ConstellationName& constellation = m_Catalogs.constellations[static_cast<std::size_t>(index)];
  Found<kFirst> found;
  if (found.EndsWith(!m_Shown.constellationNames, kKindOff)) return found.obstacles;
  if (found.EndsWith(!m_ConstellationFilter.Passes(GetTraits(constellation)), kFiltered))
    return found.obstacles;
  if (found.EndsWith(m_Light.GetLineStrength() <= 0.0, kSkyTooBright)) return found.obstacles;
  place.apparent = ApparentDirection(constellation.direction, m_Observer);
  if (found.EndsWith(!IsAboveHorizon(See(place)), kBelowHorizon)) return found.obstacles;
  found.EndsWith(!m_Geometry.IsInside(place.pixel, 0.0), kOutside);
  return found.obstacles;
}

template unsigned ObjectTests::TestStarPlace<true>(const CatalogStar&, const Direction&, double, Found<true>,
                                                   ObjectPlace&) const;
template unsigned ObjectTests::TestStarPlace<false>(const CatalogStar&, const Direction&, double,
                                                    Found<false>, ObjectPlace&) const;
template unsigned ObjectTests::TestStarPlace<true>(const StarTileRecord&, const Direction&, double,
                                                   Found<true>, ObjectPlace&) const;
template unsigned ObjectTests::TestStarPlace<false>(const StarTileRecord&, const Direction&, double,
                                                    Found<false>, ObjectPlace&) const;
template unsigned ObjectTests::TestDeepsky<true>(int, ObjectPlace&) const;
template unsigned ObjectTests::TestDeepsky<false>(int, ObjectPlace&) const;
template unsigned ObjectTests::TestConstellation<true>(int, ObjectPlace&) const;
template unsigned ObjectTests::TestConstellation<false>(int, ObjectPlace&) const;

}  // namespace scene
