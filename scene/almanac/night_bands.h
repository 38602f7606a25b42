// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Areas of nights in a chart whose x are hours and whose y are nights.
#pragma once

#include <vector>

#include "scene/almanac/year_graph.h"
#include "scene/chart/chart_frame.h"

namespace scene {

// Adds a ring from the hours `above` at night `top` to the hours `below` at night `bottom`, as far as they
// lie within `shown`.
void AddNightQuad(const ChartFrame& chart, const NightHours& shown, const NightHours& above,
                  const NightHours& below, double top, double bottom);

// Adds the rings of stretches of nights: those of neighbouring nights that overlap are joined from middle
// to middle, one that does not go on ends in a point there. False when there are none.
bool AddNightBand(const ChartFrame& chart, const NightHours& shown,
                  const std::vector<std::vector<NightHours>>& nights);

}  // namespace scene
