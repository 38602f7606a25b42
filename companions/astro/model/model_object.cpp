// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/astro/model/model_object.h"

#include <cmath>
#include <cstring>
#include <utility>

#include "astro/planets.h"
#include "companions/astro/model/far_moons.h"
#include "companions/astro/model/fixed_objects.h"
#include "companions/astro/model/magnitudes.h"
#include "companions/astro/model/moving_object.h"
#include "companions/astro/model/object_kinds.h"
#include "companions/astro/model/observation.h"
#include "companions/astro/model/planet_path.h"
#include "companions/astro/planets/gravity.h"
#include "utils/text.h"

namespace astro_internal {

namespace {

template <class... Numbers>
bool AreFinite(Numbers... numbers) {
  return (std::isfinite(numbers) && ...);
}

bool IsUsable(const StarRecord& r) {
  return AreFinite(r.ra, r.dec, r.properMotionRA, r.properMotionDec, r.parallax, r.radialVelocity, r.radius,
                   r.magnitude, r.visMagnitude, r.blueMagnitude, r.absMagnitude);
}

bool IsUsable(const DeepskyRecord& r) {
  return AreFinite(r.ra, r.dec, r.parallax, r.angularSize, r.linearSize, r.visMagnitude, r.blueMagnitude);
}

bool IsUsable(const ConstellationRecord& r) {
  const double square = r.center[0] * r.center[0] + r.center[1] * r.center[1] + r.center[2] * r.center[2];
  return std::isfinite(square) && square > 0.0;
}

template <class Record>
bool KeepRecord(const void* data, ModelObject& object) {
  Record record;
  std::memcpy(&record, data, sizeof record);  // it may stand at any address
  if (!IsUsable(record)) return false;
  object.record = record;
  return true;
}

bool IsTwoLine(const OrbitalElements& elements) { return elements.elementSet == kTwoLineElements; }

bool KeepSatellite(const OrbitalElements& elements, ModelObject& object) {
  if (elements.tag != kTwoLineTag) return false;
  if (!AreFinite(elements.epoch, elements.e, elements.i, elements.om, elements.w, elements.M0, elements.n,
                 elements.dragTerm)) {
    return false;
  }
  SatelliteModel model(elements);
  if (model.GetFault() != SatelliteFault::kNone) return false;
  ReadyOrbit& orbit = object.record.emplace<ReadyOrbit>();
  orbit.elements = elements;
  orbit.satellite.emplace(std::move(model));
  return true;
}

// Whether there is an orbit is what the two-body motion says at the epoch.
bool KeepOrbit(const void* data, ModelObject& object) {
  OrbitalElements elements;
  std::memcpy(&elements, data, sizeof elements);
  if (!AreFinite(elements.absMagnitude, elements.slope)) return false;
  if (IsTwoLine(elements)) return KeepSatellite(elements, object);
  if (BodyGravity(SSO_ID(elements.centralKind, elements.centralNumber)) == 0.0) return false;
  const OrbitPlane plane = MakeOrbitPlane(elements);
  double position[3], velocity[3];
  if (!ComputeTwoBodyState(elements, plane, elements.epoch, position, velocity)) return false;
  ReadyOrbit& orbit = object.record.emplace<ReadyOrbit>();
  orbit.elements = elements;
  orbit.plane = plane;
  return true;
}

bool KeepAny(ObjectFamily family, const void* data, ModelObject& object) {
  if (family == ObjectFamily::kPlanet) return true;
  if (family == ObjectFamily::kUnknown || data == nullptr) return false;
  if (family == ObjectFamily::kStar) return KeepRecord<StarRecord>(data, object);
  if (family == ObjectFamily::kDeepsky) return KeepRecord<DeepskyRecord>(data, object);
  if (family == ObjectFamily::kConstellation) return KeepRecord<ConstellationRecord>(data, object);
  return KeepOrbit(data, object);
}

MovingObject ViewOf(const ModelObject& object) {
  MovingObject view;
  view.id = object.id;
  if (const ReadyOrbit* orbit = std::get_if<ReadyOrbit>(&object.record)) {
    view.elements = &orbit->elements;
    view.plane = orbit->plane;
    if (orbit->satellite.has_value()) view.satellite = &*orbit->satellite;
  }
  return view;
}

bool IsSun(const SSO_ID& id) { return id == astro::kSun; }

double MagnitudeOf(const MovingObject& view, const Illumination& light) {
  if (view.elements == nullptr)
    return IsFarMoon(view.id) ? FarMoonMagnitude(view.id, light) : PlanetMagnitude(view.id, light);
  if (view.satellite == nullptr && IsAsteroid(view.id.kind)) return AsteroidMagnitude(*view.elements, light);
  if (view.satellite == nullptr && IsComet(view.id.kind)) return CometMagnitude(*view.elements, light);
  return static_cast<double>(kUnknownStarMagnitude);
}

double AngularRadiusOf(const MovingObject& view, double distance) {
  if (view.elements != nullptr) return 0.0;
  const double radius = GetBodyRadius(view.id) / astro::kKilometresPerAu;
  return radius < distance ? std::asin(radius / distance) : 0.0;
}

// All but magnitude and size.
bool SeeMovingObject(const MovingObject& view, const Moment& moment, Sight& sight, ObservedBody& result) {
  const bool isPlanet = IsPlanet(view.id);
  if (isPlanet || IsFarMoon(view.id)) {
    StraightPath path;
    const bool known =
        isPlanet ? MakePlanetPath(moment, view.id, path) : MakeFarMoonPath(moment, view.id, path);
    return known && ObserveMoving(moment, false, path, sight, result);
  }
  const auto stateBefore = [&view, &moment](double days, double position[3]) {
    return StateOf(view, moment, days, position, nullptr);
  };
  return ObserveMoving(moment, IsSun(view.id), stateBefore, sight, result);
}

bool ObserveMovingObject(const ModelObject& object, const Moment& moment, ObservedBody& result) {
  const MovingObject view = ViewOf(object);
  Sight sight;
  if (!SeeMovingObject(view, moment, sight, result)) return false;
  const Illumination light = {result.sunDistance, result.distance, result.phaseAngle,
                              moment.dateTT,      sight.fromSun,   sight.fromObserver};
  result.magnitude = MagnitudeOf(view, light);
  result.angularRadius = AngularRadiusOf(view, result.distance);
  return true;
}

}  // namespace

bool MakeModelObject(const SSO_ID& id, const void* data, ModelObject& object) {
  ModelObject made;
  made.id = id;
  if (!KeepAny(FamilyOf(id), data, made)) return false;
  object = std::move(made);
  return true;
}

bool ObserveObject(const ModelObject& object, const Moment& moment, ObservedBody& result) {
  if (!moment.usable) return false;
  if (const auto* star = std::get_if<StarRecord>(&object.record)) return ObserveStar(moment, *star, result);
  if (const auto* deepsky = std::get_if<DeepskyRecord>(&object.record)) {
    return ObserveDeepsky(moment, *deepsky, result);
  }
  if (const auto* constellation = std::get_if<ConstellationRecord>(&object.record)) {
    return ObserveConstellation(moment, *constellation, result);
  }
  return ObserveMovingObject(object, moment, result);
}

bool StateOfObject(const ModelObject& object, const Moment& moment, double position[3], double velocity[3]) {
  const bool moves = std::holds_alternative<std::monostate>(object.record) ||
                     std::holds_alternative<ReadyOrbit>(object.record);
  double there[3], speed[3];
  if (!moves || !moment.usable) return false;
  if (!StateOf(ViewOf(object), moment, 0.0, there, velocity != nullptr ? speed : nullptr)) return false;
  for (int i = 0; i < 3; ++i) {
    position[i] = there[i];
    if (velocity != nullptr) velocity[i] = speed[i];
  }
  return true;
}

}  // namespace astro_internal
