// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/object_sight.h"

#include "astro/constants.h"
#include "astro/physical_ephemeris.h"
#include "common_interfaces/record_conversion.h"
#include "scene/view/surface_point.h"
#include "utils/text.h"

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
    CommonInterfaces::ConvertDBRecord(id, &catalogs.deepsky.SelectRecord(catalogs.deepsky[index]), nullptr,
                                      &m_Model, kMode);
  } else if (object.group == ObjectGroup::kConstellation) {
    SetDirection(catalogs.constellations[index].direction);
  } else if (object.group == ObjectGroup::kAsterism) {
    SetDirection(catalogs.asterisms.Get()[index].direction);
  } else if (object.group == ObjectGroup::kFeature) {
    m_Body = Gazetteers::GetBody(object.index);
    m_Feature = catalogs.gazetteers.GetFeature(object.index);
    CommonInterfaces::SetDataToSolSys(m_Body, nullptr, &m_Model, kMode);
  } else {
    SkyBody& body = catalogs.bodies[index];
    CommonInterfaces::SetDataToSolSys(id, body.hasElements ? &body.elements : nullptr, &m_Model, kMode);
  }
}

void ObjectSight::SetDirection(const Direction& direction) {
  const SSO_ID id(FourCC("cnst"), 0);
  ConstellationRecord record;
  for (int i = 0; i < 3; ++i) record.center[i] = direction.v[i];
  CommonInterfaces::SetDataToSolSys(id, &record, &m_Model, CommonInterfaces::kConvertLocateObject);
}

bool ObjectSight::Observe(const SkyMoment& moment, const EarthPlace& place, ObservedBody& seen) {
  SetUpModel(moment, place, m_Model);
  if (!m_Model.ObserveLocateObject(seen)) return false;
  if (!m_Feature) return true;
  const auto surface = astro::FindPhysicalEphemeris(m_Body, seen, moment.julianDateTT);
  if (!surface) return false;
  const Direction there = FindSurfaceDirection(m_Feature->surface, surface->toBody, seen);
  for (int i = 0; i < 3; ++i) {
    seen.astrometric[i] += there.v[i] - seen.apparent[i];
    seen.apparent[i] = there.v[i];
  }
  return true;
}

}  // namespace scene
