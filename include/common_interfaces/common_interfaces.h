// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Everything the library exports.
#pragma once

#include "common_interfaces/camera.h"
#include "common_interfaces/camera_state.h"
#include "common_interfaces/clipping.h"
#include "common_interfaces/date.h"
#include "common_interfaces/dates.h"
#include "common_interfaces/daylight_savings.h"
#include "common_interfaces/field_data.h"
#include "common_interfaces/field_names.h"
#include "common_interfaces/home_parameters.h"
#include "common_interfaces/item_engine.h"
#include "common_interfaces/marker_info.h"
#include "common_interfaces/moving_modes.h"
#include "common_interfaces/object_kinds.h"
#include "common_interfaces/object_outputs.h"
#include "common_interfaces/object_shadow_map.h"
#include "common_interfaces/orbit_info.h"
#include "common_interfaces/output_pool.h"
#include "common_interfaces/play_desc.h"
#include "common_interfaces/queries.h"
#include "common_interfaces/record_lines.h"
#include "common_interfaces/record_source.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "common_interfaces/star_data.h"
#include "common_interfaces/string_table.h"
#include "common_interfaces/thread.h"
#include "common_interfaces/zoom_dependence.h"
