// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <variant>

#include "astro/object_records.h"
#include "astro/satellite.h"
#include "astro/solar_system.h"
#include "astro/two_body.h"
#include "companions/astro/model/moment.h"

namespace astro_internal {

// An orbit made ready for many moments: what stays the same from one to the next.
struct ReadyOrbit {
  OrbitalElements elements;
  OrbitPlane plane = {};
  std::optional<SatelliteModel> satellite;  // of two-line elements
};

// An object with a copy of its record, checked and made ready. Of an orbit of elements it allocates nothing.
struct ModelObject {
  SSO_ID id;
  std::variant<std::monostate, StarRecord, DeepskyRecord, ConstellationRecord, ReadyOrbit> record;
};

// Checks the record and makes the object ready. False, and `object` untouched, for a kind
// that the model does not know and a record that is missing or unusable. `data` of the
// planets, the Sun and the Moon is not looked at.
bool MakeModelObject(const SSO_ID& id, const void* data, ModelObject& object);

// As the observer sees it at the moment; false, and the result untouched, where it cannot be seen.
bool ObserveObject(const ModelObject& object, const Moment& moment, ObservedBody& result);

// Position and velocity (may be null) about the Sun at the moment; false, and the results untouched, for what
// stands beyond the solar system and for what is nowhere.
bool StateOfObject(const ModelObject& object, const Moment& moment, double position[3], double velocity[3]);

}  // namespace astro_internal
