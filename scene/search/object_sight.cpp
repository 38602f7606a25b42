// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/object_sight.h"

#include "common_interfaces/record_conversion.h"

namespace scene {

ObjectSight::ObjectSight(const FoundObject& object, SkyCatalogs& catalogs) {
  SSO_ID id(GetKind(object, catalogs), GetNumber(object, catalogs));
  const auto index = static_cast<std::size_t>(object.index);
  constexpr short kMode = CommonInterfaces::kConvertLocateObject;
  if (object.group == ObjectGroup::kStar) {
    catalogs.starTable.Select(catalogs.stars.GetRecord(object.index));
    CommonInterfaces::ConvertDBRecord(id, &catalogs.starTable, nullptr, &m_Model, kMode);
  } else if (object.group == ObjectGroup::kDeepsky) {
    CommonInterfaces::ConvertDBRecord(id, &catalogs.deepsky.SelectRecord(catalogs.deepsky[index]), nullptr,
                                      &m_Model, kMode);
  } else if (object.group == ObjectGroup::kConstellation) {
    ConstellationRecord record;
    for (int i = 0; i < 3; ++i) record.center[i] = catalogs.constellations[index].direction.v[i];
    CommonInterfaces::SetDataToSolSys(id, &record, &m_Model, kMode);
  } else {
    SkyBody& body = catalogs.bodies[index];
    CommonInterfaces::SetDataToSolSys(id, body.hasElements ? &body.elements : nullptr, &m_Model, kMode);
  }
}

bool ObjectSight::Observe(const SkyMoment& moment, const EarthPlace& place, ObservedBody& seen) {
  SetUpModel(moment, place, m_Model);
  return m_Model.ObserveLocateObject(seen);
}

}  // namespace scene
