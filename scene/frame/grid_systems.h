// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/display/labels.h"
#include "scene/display/palette.h"
#include "scene/view/arc_walk.h"
#include "scene/view/grid_steps.h"
#include "scene/view/observer_frame.h"

namespace scene {

// The systems of coordinates whose lines a frame can draw.
enum class GridSystemId { kEquatorOfDate, kEquatorJ2000, kEcliptic, kGalactic, kHorizontal };
inline constexpr int kGridSystemCount = 5;

struct GridSystem {
  double axes[9];  // from J2000 axes to those of the system
  // Whether its coordinates are places in catalogues, which aberration moves with their stars; the others are
  // coordinates of what is seen.
  bool ofCatalogues;
  LongitudeUnit unit;
  bool westward;  // labels count against the direction of the axes, as azimuths do
  Colour colour;
  LabelKind label;
  bool ofSight = false;  // its coordinates are those at which air shows things
};

// The ecliptic and the equator of date are those of the observer's moment, the galactic frame is that of
// base_plane.h. The horizontal one needs an observer with a horizon.
GridSystem MakeGridSystem(GridSystemId id, const ObserverFrame& observer);

// Of the system's coordinates, as the picture shows them before air lifts it: J2000 axes, with aberration
// where the system asks for it.
Direction ShownDirection(const GridSystem& system, const Direction& coordinates,
                         const ObserverFrame& observer);

// The same as the picture shows it with the air: what lines are walked with.
SightOfSystem FindSight(const GridSystem& system, const ObserverFrame& observer);

}  // namespace scene
