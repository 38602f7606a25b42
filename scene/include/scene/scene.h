// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Everything that the companion library scene exports: from a camera and a data root to what a picture shows.
// The road of a program: OpenDataRoot (data_root.h), a camera restored, FrameMaker::Prepare and Compute
// (frame_maker.h), then the display list to a painter of the program's own (display_list.h), and clicks back
// to objects (pick.h).
//
// Names are in the namespace scene. Everything belongs to one thread at a time unless its header says
// otherwise. Nothing throws but what the standard library throws when memory runs out; a failure is a return
// value, with one line of text where there is something to say.
#pragma once

#include "scene/aim.h"
#include "scene/air.h"
#include "scene/base_plane.h"
#include "scene/bodies.h"
#include "scene/body_model.h"
#include "scene/caption.h"
#include "scene/catalog_table.h"
#include "scene/class_limits.h"
#include "scene/compass.h"
#include "scene/constellation_bounds.h"
#include "scene/curve_chart.h"
#include "scene/data_root.h"
#include "scene/deepsky_catalog.h"
#include "scene/directions.h"
#include "scene/display_list.h"
#include "scene/drawn_objects.h"
#include "scene/earth_observer.h"
#include "scene/eclipse.h"
#include "scene/favourites.h"
#include "scene/field_of_view.h"
#include "scene/frame_maker.h"
#include "scene/image_groups.h"
#include "scene/label_rules.h"
#include "scene/language.h"
#include "scene/light_curve.h"
#include "scene/name_key.h"
#include "scene/nebula_outlines.h"
#include "scene/night.h"
#include "scene/object_filter.h"
#include "scene/object_names.h"
#include "scene/object_search.h"
#include "scene/object_sight.h"
#include "scene/object_traits.h"
#include "scene/observer_frame.h"
#include "scene/obstacles.h"
#include "scene/pick.h"
#include "scene/satellites.h"
#include "scene/shower_activity.h"
#include "scene/showers.h"
#include "scene/shown_kinds.h"
#include "scene/sky_catalogs.h"
#include "scene/sky_frame.h"
#include "scene/sky_markers.h"
#include "scene/standing.h"
#include "scene/star_catalog.h"
#include "scene/star_tile_record.h"
#include "scene/star_tile_writer.h"
#include "scene/star_tiles.h"
#include "scene/text_extents.h"
#include "scene/texts.h"
#include "scene/why.h"
#include "scene/zoom_range.h"
