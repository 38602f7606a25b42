// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/grid_systems.h"

#include <algorithm>
#include <iterator>

#include "astro/constants.h"
#include "astro/earth_orientation.h"
#include "astro/vectors.h"
#include "scene/view/air.h"
#include "scene/view/base_plane.h"

namespace scene {

GridSystem MakeGridSystem(GridSystemId id, const ObserverFrame& observer) {
  const double julianDateTT = astro::kJ2000 + observer.years * astro::kDaysPerJulianYear;
  GridSystem system = {
      {}, false, LongitudeUnit::kDegrees, false, palette::kEquatorialGrid, LabelKind::kEquatorialGrid};
  switch (id) {
    case GridSystemId::kEquatorOfDate:
      system.unit = LongitudeUnit::kHours;
      PrecessionNutationMatrix(julianDateTT, system.axes);
      break;
    case GridSystemId::kEquatorJ2000:
      system.unit = LongitudeUnit::kHours;
      system.ofCatalogues = true;
      system.colour = palette::kJ2000Grid;
      system.label = LabelKind::kJ2000Grid;
      PlaneMatrix(kEquatorPlane, system.axes);
      break;
    case GridSystemId::kEcliptic:
      system.colour = palette::kEclipticGrid;
      system.label = LabelKind::kEclipticGrid;
      TrueEclipticMatrix(julianDateTT, system.axes);
      break;
    case GridSystemId::kGalactic:
      system.ofCatalogues = true;
      system.colour = palette::kGalacticGrid;
      system.label = LabelKind::kGalacticGrid;
      PlaneMatrix(kGalacticPlane, system.axes);
      break;
    case GridSystemId::kHorizontal:
      system.westward = true;
      system.ofSight = true;
      system.colour = palette::kHorizontalGrid;
      system.label = LabelKind::kHorizontalGrid;
      std::copy(std::begin(observer.reduction), std::end(observer.reduction), system.axes);
      break;
  }
  return system;
}

Direction ShownDirection(const GridSystem& system, const Direction& coordinates,
                         const ObserverFrame& observer) {
  Direction direction;
  V3Mprod(system.ofSight && observer.refraction ? Lowered(coordinates).v : coordinates.v, system.axes,
          direction.v);
  return system.ofCatalogues ? ApparentDirection(direction, observer) : direction;
}

SightOfSystem FindSight(const GridSystem& system, const ObserverFrame& observer) {
  SightOfSystem sight = {
      {}, system.ofCatalogues, {}, observer.inverseLorentzFactor, observer.refraction && !system.ofSight};
  for (int axis = 0; axis < 3; ++axis) {
    for (int i = 0; i < 3; ++i)
      sight.turn[3 * i + axis] = astro::Dot(observer.reduction + 3 * i, system.axes + 3 * axis);
  }
  MV3prod(observer.reduction, observer.velocity, sight.velocity);
  return sight;
}

}  // namespace scene
