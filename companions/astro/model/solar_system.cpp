// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/solar_system.h"

#include <cmath>
#include <map>
#include <optional>
#include <utility>

#include "companions/astro/model/integrated_object.h"
#include "companions/astro/model/model_object.h"
#include "companions/astro/model/moment.h"
#include "companions/astro/model/object_kinds.h"
#include "companions/astro/planets/gravity.h"

using astro_internal::IntegratedObject;
using astro_internal::ModelObject;
using astro_internal::Moment;
using astro_internal::Place;

namespace {

// Metres: who turns with the Earth at 27 au would be as fast as light.
constexpr double kFarthestHeight = 1e9;

}  // namespace

struct CQXSolSys::Inside {
  Place place;
  Moment moment = astro_internal::MomentAt(astro::kJ2000, 63.83, Place());
  std::optional<ModelObject> aim;
  std::optional<ModelObject> locate;
  std::map<SSO_ID, ModelObject> additional;
  std::optional<IntegratedObject> integrated;

  // An object that was given before; null when there is none.
  const ModelObject* Find(const SSO_ID& id) const {
    if (aim.has_value() && aim->id == id) return &*aim;
    if (locate.has_value() && locate->id == id) return &*locate;
    const auto found = additional.find(id);
    return found != additional.end() ? &found->second : nullptr;
  }

  bool NeedsRecord(const SSO_ID& id, const void* data) const {
    return data == nullptr && astro_internal::FamilyOf(id) != astro_internal::ObjectFamily::kPlanet;
  }

  // Calls `use` with the object, made ready on the stack when its record comes along.
  template <class Use>
  bool With(const SSO_ID& id, const void* data, Use use) const {
    if (NeedsRecord(id, data)) {
      const ModelObject* known = Find(id);
      return known != nullptr && use(*known);
    }
    ModelObject object;
    return astro_internal::MakeModelObject(id, data, object) && use(object);
  }

  // The record of an object that comes without one is that of a slot, which may be the one to be filled.
  const void* RecordOf(const SSO_ID& id, const void* data) const {
    const ModelObject* known = NeedsRecord(id, data) ? Find(id) : nullptr;
    if (known == nullptr) return data;
    if (const auto* star = std::get_if<StarRecord>(&known->record)) return star;
    if (const auto* deepsky = std::get_if<DeepskyRecord>(&known->record)) return deepsky;
    if (const auto* constellation = std::get_if<ConstellationRecord>(&known->record)) return constellation;
    return &std::get<astro_internal::ReadyOrbit>(known->record).elements;
  }

  bool Make(const SSO_ID& id, const void* data, ModelObject& object) const {
    return astro_internal::MakeModelObject(id, RecordOf(id, data), object);
  }
};

CQXSolSys::CQXSolSys() : m_Inside(new Inside) {}
CQXSolSys::~CQXSolSys() { delete m_Inside; }

bool CQXSolSys::SetAimObject(const SSO_ID& id, const void* data) {
  ModelObject object;
  if (!m_Inside->Make(id, data, object)) return false;
  m_Inside->aim = std::move(object);
  return true;
}

bool CQXSolSys::SetLocateObject(const SSO_ID& id, const void* data) {
  ModelObject object;
  if (!m_Inside->Make(id, data, object)) return false;
  m_Inside->locate = std::move(object);
  return true;
}

bool CQXSolSys::SetAdditionalObject(const SSO_ID& id, const void* data) {
  ModelObject object;
  if (!m_Inside->Make(id, data, object)) return false;
  m_Inside->additional[id] = std::move(object);
  return true;
}

bool CQXSolSys::InitIntegr(const SSO_ID& id, const void* data) {
  ModelObject object;
  if (!m_Inside->Make(id, data, object)) return false;
  std::optional<IntegratedObject> begun = IntegratedObject::Begin(object);
  if (!begun.has_value()) return false;
  m_Inside->integrated = begun;
  return true;
}

double CQXSolSys::GetGravity(const SSO_ID& body) const { return astro_internal::BodyGravity(body); }

void CQXSolSys::SetMoment(double julianDateTT, double deltaT) {
  m_Inside->moment = astro_internal::MomentAt(julianDateTT, deltaT, m_Inside->place);
}

void CQXSolSys::SetObserverOnEarth(double lon, double lat, double height) {
  Place place;
  if (std::isfinite(lon) && std::isfinite(lat) && std::fabs(height) <= kFarthestHeight) {
    place = {true, lon, lat, height};
  }
  if (place == m_Inside->place)
    return;  // the moment knows it, and to compute it costs most of an observation
  m_Inside->place = place;
  SetMoment(m_Inside->moment.dateTT, m_Inside->moment.deltaT);
}

void CQXSolSys::SetObserverAtEarthCentre() {
  m_Inside->place = Place();
  SetMoment(m_Inside->moment.dateTT, m_Inside->moment.deltaT);
}

bool CQXSolSys::Observe(const SSO_ID& id, const void* data, ObservedBody& result) const {
  return m_Inside->With(id, data, [this, &result](const ModelObject& object) {
    return astro_internal::ObserveObject(object, m_Inside->moment, result);
  });
}

bool CQXSolSys::ObserveAimObject(ObservedBody& result) const {
  return m_Inside->aim.has_value() && astro_internal::ObserveObject(*m_Inside->aim, m_Inside->moment, result);
}

bool CQXSolSys::ObserveLocateObject(ObservedBody& result) const {
  return m_Inside->locate.has_value() &&
         astro_internal::ObserveObject(*m_Inside->locate, m_Inside->moment, result);
}

bool CQXSolSys::ObserveAdditionalObject(const SSO_ID& id, ObservedBody& result) const {
  const auto found = m_Inside->additional.find(id);
  return found != m_Inside->additional.end() &&
         astro_internal::ObserveObject(found->second, m_Inside->moment, result);
}

bool CQXSolSys::ObserveIntegrated(ObservedBody& result) {
  return m_Inside->integrated.has_value() && m_Inside->integrated->Observe(m_Inside->moment, result);
}

bool CQXSolSys::GetHeliocentricState(const SSO_ID& id, const void* data, double position[3],
                                     double velocity[3]) const {
  return m_Inside->With(id, data, [this, position, velocity](const ModelObject& object) {
    return astro_internal::StateOfObject(object, m_Inside->moment, position, velocity);
  });
}

void CQXSolSys::ClearAdditionalObjects() { m_Inside->additional.clear(); }
