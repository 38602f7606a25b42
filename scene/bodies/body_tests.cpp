// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/body_tests.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "astro/moons.h"
#include "astro/vectors.h"
#include "common_interfaces/zoom_dependence.h"
#include "scene/view/air.h"

namespace scene {
namespace {

// Pixels of the standard picture.
constexpr double kSunRadius = 13.0, kMoonRadius = 12.0;
constexpr double kSatellite = 3.0, kLargestDot = 7.0;
constexpr double kLargestMoonDot = 2.5;  // moons crowd about their planet
constexpr double kLeastApart = 2.0;      // a moon from the dot of its planet
constexpr double kMargin = 40.0;         // where the tail of a comet may still reach in

// The code of a satellite at that distance, au, which counts as one of magnitude 4 at 1000 km: a guess that
// serves the limits of the zoom and nothing else.
float FindSatelliteCode(double distance) {
  constexpr double kStandard = 4.0, kStandardDistance = 1000.0 / 149597870.7;
  const double magnitude = kStandard + 5.0 * std::log10(std::max(distance, 1e-9) / kStandardDistance);
  return static_cast<float>((magnitude + CommonInterfaces::kMagCodeOffset) *
                            CommonInterfaces::kMagCodesPerMag);
}

}  // namespace

bool IsOfMainBelt(const OrbitalElements& elements) {
  constexpr double kInner = 2.065, kOuter = 3.278, kMarsAphelion = 1.666;  // au
  return elements.a >= kInner && elements.a <= kOuter && elements.a * (1.0 - elements.e) > kMarsAphelion;
}

BodyTests::BodyTests(const BodyModel& model, const ViewGeometry& geometry, const ObserverFrame& observer,
                     const ShownKinds& shown, const ObjectFilters& filters, const SkyLight& light,
                     const Landscape& landscape)
    : m_Model(model),
      m_Geometry(geometry),
      m_Observer(observer),
      m_Shown(shown),
      m_Light(light),
      m_Landscape(landscape),
      m_StarLimits(geometry.camera, FourCC("star")),
      m_Kinds{{{FourCC("plnt"), ClassLimits(geometry.camera, FourCC("plnt")), filters.Get(FourCC("plnt"))},
               {FourCC("moon"), ClassLimits(geometry.camera, FourCC("moon")), filters.Get(FourCC("moon"))},
               {FourCC("astr"), ClassLimits(geometry.camera, FourCC("astr")), filters.Get(FourCC("astr"))},
               {FourCC("comt"), ClassLimits(geometry.camera, FourCC("comt")), filters.Get(FourCC("comt"))},
               {FourCC("scft"), ClassLimits(geometry.camera, FourCC("scft")), filters.Get(FourCC("scft"))}}} {
}

const BodyTests::Kind& BodyTests::FindKind(int kind) const {
  for (const auto& entry : m_Kinds) {
    if (entry.kind == kind) return entry;
  }
  return m_Kinds.back();
}

const ClassLimits& BodyTests::GetLimits(int kind) const { return FindKind(kind).limits; }

double BodyTests::GetTrueRadius(const BodyState& state) const {
  return m_Geometry.camera.VisRad2PixD(state.seen.angularRadius);
}

bool BodyTests::HasMagnitude(int body) const {
  return m_Model.GetBodies()[static_cast<std::size_t>(body)].id.kind != FourCC("scft");
}

float BodyTests::GetLimitCode(int body) const {
  const BodyState& state = m_Model.GetStates()[static_cast<std::size_t>(body)];
  return HasMagnitude(body) ? state.code : FindSatelliteCode(state.seen.distance);
}

float BodyTests::GetDrawnCode(int body, float dim) const {
  const auto index = static_cast<std::size_t>(body);
  const SkyBody& entry = m_Model.GetBodies()[index];
  const float code = GetLimitCode(body) + dim;
  return IsOfShownGroup(entry) ? std::min(code, GetLimits(entry.id.kind).draw) : code;
}

bool BodyTests::IsLabelled(int body) const {
  const SkyBody& entry = m_Model.GetBodies()[static_cast<std::size_t>(body)];
  return (m_Shown.asteroidNames && IsOfShownGroup(entry)) ||
         GetLimitCode(body) <= GetLimits(entry.id.kind).label;
}

bool BodyTests::IsOfShownGroup(const SkyBody& body) const {
  if (body.id.kind != FourCC("astr")) return false;
  return IsOfMainBelt(body.elements) ? m_Shown.asteroidBelt : m_Shown.asteroidGroups;
}

// The faint ones of a group are seen as long as symbols are.
bool BodyTests::IsHiddenBySky(int body, float dim) const {
  const SkyBody& entry = m_Model.GetBodies()[static_cast<std::size_t>(body)];
  if (IsOfShownGroup(entry)) return m_Light.GetLineStrength() <= 0.0;
  return SkyLight::Hides(GetLimits(entry.id.kind), m_Model.GetStates()[static_cast<std::size_t>(body)].code,
                         dim);
}

double BodyTests::GetSymbolRadius(int body, float dim) const {
  if (body == kSunBody) return kSunRadius * m_Geometry.unit;
  if (body == kMoonBody) return kMoonRadius * m_Geometry.unit;
  const auto index = static_cast<std::size_t>(body);
  if (!HasMagnitude(body)) return kSatellite * m_Geometry.unit;
  constexpr float kSmaller = 0.5f;  // as stars
  float code = GetDrawnCode(body, kSmaller * dim);
  if (IsOfShownGroup(m_Model.GetBodies()[index])) code = std::min(code, m_StarLimits.draw);
  const SSO_ID& id = m_Model.GetBodies()[index].id;
  const double largest = id.kind == FourCC("moon") ? kLargestMoonDot : kLargestDot;
  return m_Geometry.unit * std::min(GetDotRadius(m_StarLimits, code), largest);
}

// A body is seen as soon as its upper limb is.
bool BodyTests::IsAboveHorizon(const BodyState& state) const {
  if (!m_Shown.horizon) return true;
  if (!m_Observer.horizon) return true;
  const double altitude =
      std::asin(std::clamp(astro::Dot(m_Observer.reduction + 6, state.seen.apparent), -1.0, 1.0));
  return std::sin(altitude + state.seen.angularRadius) >= (m_Observer.refraction ? kRisingSine : 0.0);
}

// As long as its upper limb stands over the skyline it is drawn.
bool BodyTests::IsBehindLand(const BodyState& state) const {
  return !m_Landscape.layers.empty() &&
         m_Landscape.Hides(SeenFromGround(MakeDirection(state.seen.apparent), m_Observer),
                           state.seen.angularRadius);
}

// The Sun and the Moon are seen under any sky.
float BodyTests::FindDim(int body, const tPoint<double>& pixel) const {
  if (!HasMagnitude(body) || body == kSunBody || body == kMoonBody) return 0.0f;
  const auto index = static_cast<std::size_t>(body);
  return m_Light.FindDim(GetLimits(m_Model.GetBodies()[index].id.kind), pixel,
                         SeenSine(MakeDirection(m_Model.GetStates()[index].seen.apparent), m_Observer));
}

double BodyTests::FindDistanceToPlanet(int moon, const tPoint<double>& place) const {
  constexpr double kFar = std::numeric_limits<double>::infinity();
  const SSO_ID& id = m_Model.GetBodies()[static_cast<std::size_t>(moon)].id;
  if (!astro::IsMoonOfPlanet(id) || id.number == kMoonNumber) return kFar;
  const int planet = FindBody(m_Model.GetBodies(), astro::PlanetOfMoon(id));
  const BodyState& state = m_Model.GetStates()[static_cast<std::size_t>(planet)];
  if (!state.known) return kFar;
  const tPoint<double> p = m_Geometry.Project(MakeDirection(state.seen.apparent), SkyFrameOf::kJ2000);
  const double symbol = GetSymbolRadius(planet, FindDim(planet, p));
  if (GetTrueRadius(state) > symbol) return kFar;
  return std::hypot(place.x - p.x, place.y - p.y) - symbol;
}

template <bool kFirst>
unsigned BodyTests::Test(int index, ObjectPlace& place) const {
  const SkyBody& body = m_Model.GetBodies()[static_cast<std::size_t>(index)];
  const BodyState& state = m_Model.GetStates()[static_cast<std::size_t>(index)];
  if (!state.known) return kNoPlace;
  const Kind& kind = FindKind(body.id.kind);
  unsigned obstacles = 0;
  const auto ends = [&obstacles](bool failed, Obstacle obstacle) {
    if (failed) obstacles |= obstacle;
    return kFirst && failed;
  };
  if (ends(!m_Shown.IsShown(body.id.kind), kKindOff)) return obstacles;
  if (ends(!IsOfShownGroup(body) && !(GetLimitCode(index) <= kind.limits.draw), kTooFaint)) return obstacles;
  if (ends(!kind.filter.Passes(GetTraits(body, state.code)), kFiltered)) return obstacles;
  if (ends(!IsAboveHorizon(state), kBelowHorizon)) return obstacles;
  if (ends((obstacles & kBelowHorizon) == 0 && IsBehindLand(state), kBehindLand)) return obstacles;
  place.apparent = MakeDirection(state.seen.apparent);
  place.pixel = m_Geometry.Project(place.apparent, SkyFrameOf::kJ2000);
  place.dim = FindDim(index, place.pixel);
  const bool above = (obstacles & kBelowHorizon) == 0;
  if (ends(above && IsHiddenBySky(index, place.dim), kSkyTooBright)) return obstacles;
  place.radius = std::max(GetTrueRadius(state), GetSymbolRadius(index, place.dim));
  if (ends(!m_Geometry.IsInside(place.pixel, place.radius + kMargin * m_Geometry.unit), kOutside))
    return obstacles;
  ends(FindDistanceToPlanet(index, place.pixel) < kLeastApart * m_Geometry.unit, kBesidePlanet);
  return obstacles;
}

template unsigned BodyTests::Test<true>(int, ObjectPlace&) const;
template unsigned BodyTests::Test<false>(int, ObjectPlace&) const;

}  // namespace scene
