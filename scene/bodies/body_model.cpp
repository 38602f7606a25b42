// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/body_model.h"

#include "common_interfaces/record_conversion.h"
#include "common_interfaces/zoom_dependence.h"

namespace scene {
namespace {

void TakeVector(const CQXSolSys& model, const SSO_ID& id, double vector[3]) {
  ObservedBody seen;
  if (!model.Observe(id, nullptr, seen)) return;
  for (int i = 0; i < 3; ++i) vector[i] = seen.apparent[i] * seen.distance;
}

bool IsSame(const SkyMoment& a, const SkyMoment& b) {
  return a.day == b.day && a.fraction == b.fraction && a.deltaT == b.deltaT &&
         a.julianDateTT == b.julianDateTT;
}
bool IsSame(const EarthPlace& a, const EarthPlace& b) {
  return a.lon == b.lon && a.lat == b.lat && a.height == b.height;
}

}  // namespace

BodyModel::BodyModel(const BodyList& bodies) : m_Bodies(bodies), m_States(bodies.size()) {
  for (const auto& body : bodies) {
    if (body.hasElements) {
      OrbitalElements elements = body.elements;
      CommonInterfaces::SetDataToSolSys(body.id, &elements, &m_Model,
                                        CommonInterfaces::kConvertAdditionalObject);
    }
  }
  m_Centre.SetObserverAtEarthCentre();
}

bool BodyModel::Observe(const SkyBody& body, ObservedBody& seen) const {
  return body.hasElements ? m_Model.ObserveAdditionalObject(body.id, seen)
                          : m_Model.Observe(body.id, nullptr, seen);
}

void BodyModel::Compute(const SkyMoment& moment, const EarthPlace& place) {
  if (m_IsComputed && IsSame(moment, m_Moment) && IsSame(place, m_Place)) return;
  m_IsComputed = true;
  m_Moment = moment;
  m_Place = place;
  SetUpModel(moment, place, m_Model);
  for (std::size_t i = 0; i < m_Bodies.size(); ++i) {
    BodyState& state = m_States[i];
    state.known = Observe(m_Bodies[i], state.seen);
    state.code = static_cast<float>((state.seen.magnitude + CommonInterfaces::kMagCodeOffset) *
                                    CommonInterfaces::kMagCodesPerMag);
  }
  m_Centre.SetMoment(moment.julianDateTT, moment.deltaT);
  TakeVector(m_Centre, m_Bodies[kSunBody].id, m_SunFromCentre);
  TakeVector(m_Centre, m_Bodies[kMoonBody].id, m_MoonFromCentre);
}

}  // namespace scene
