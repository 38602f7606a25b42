// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/object_sight.h"

#include "astro/constants.h"
#include "common_interfaces/record_conversion.h"

namespace scene {
namespace {

// What a tile catalog does not tell stays unknown.
StarRecord MakeStarRecord(const StarTileRecord& star) {
  constexpr double kRadiansPerUnit = 2.0 * kPi / StarTileRecord::kTurnUnits;
  constexpr double kRadiansPerMotion = StarTileRecord::kMotionUnit * 1e-3 * astro::kRadiansPerArcsecond;
  StarRecord record;
  record.ra = star.GetRAUnits() * kRadiansPerUnit;
  record.dec = star.GetDecUnits() * kRadiansPerUnit;
  record.visMagnitude = record.magnitude = star.GetMagnitude();
  if (!star.HasMotion()) return record;
  record.properMotionRA = star.GetMotionEast() * kRadiansPerMotion;
  record.properMotionDec = star.GetMotionNorth() * kRadiansPerMotion;
  return record;
}

}  // namespace

ObjectSight::ObjectSight(const FoundObject& object, SkyCatalogs& catalogs) {
  SSO_ID id(GetKind(object, catalogs), GetNumber(object, catalogs));
  const auto index = static_cast<std::size_t>(object.index);
  constexpr short kMode = CommonInterfaces::kConvertLocateObject;
  if (object.group == ObjectGroup::kStar) {
    catalogs.starTable.Select(catalogs.stars.GetRecord(object.index));
    CommonInterfaces::ConvertDBRecord(id, &catalogs.starTable, nullptr, &m_Model, kMode);
  } else if (object.group == ObjectGroup::kTileStar) {
    const auto star = FindTileStar(catalogs, object.index);
    StarRecord record = star ? MakeStarRecord(*star) : StarRecord();
    CommonInterfaces::SetDataToSolSys(id, &record, &m_Model, kMode);
  } else if (object.group == ObjectGroup::kDeepsky) {
    catalogs.deepskyTable.Select(catalogs.deepsky[index].record);
    CommonInterfaces::ConvertDBRecord(id, &catalogs.deepskyTable, nullptr, &m_Model, kMode);
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
