// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/bodies/solar_system_part.h"
#include "scene/chart/finder_marks.h"
#include "scene/chart/landscape_picture.h"
#include "scene/display/display_list.h"
#include "scene/display/labels.h"
#include "scene/frame/caption_block.h"
#include "scene/frame/chart_legend.h"
#include "scene/frame/favourite_marks.h"
#include "scene/frame/image_frames.h"
#include "scene/frame/marker_marks.h"
#include "scene/frame/milky_way_picture.h"
#include "scene/frame/nebula_clouds.h"
#include "scene/frame/shower_radiants.h"
#include "scene/frame/sky_asterisms.h"
#include "scene/frame/sky_boundaries.h"
#include "scene/frame/sky_figures.h"
#include "scene/frame/sky_grids.h"
#include "scene/frame/sky_horizon.h"
#include "scene/frame/sky_objects.h"

namespace scene {

// The parts of a frame. Each computes itself, with pixels that count from the bottom upwards as the camera's
// do, and then draws itself into the display list.
struct FrameParts {
  explicit FrameParts(const SkyCatalogs& catalogs);

  SkyLight light;
  LabelPlacer labels;
  CaptionBlock caption;
  MarkerMarks markers;
  MilkyWayPicture milkyWay;
  SkyHorizon horizon;
  LandscapePicture landscape;
  SkyGrids grids;
  SkyBoundaries boundaries;
  SkyFigures figures;
  SkyAsterisms asterisms;
  NebulaClouds nebulae;
  SolarSystemPart solarSystem;
  SkyObjects objects;
  FavouriteMarks favourites;
  ImageFrames imageFrames;
  ShowerRadiants radiants;
  FinderMarks finders;
  ChartLegend legend;
  bool withLegend = false;
  double enlargement = 1.0;
  DisplayList list;
};

}  // namespace scene
