// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/api.h"
#include "scene/chart/light_curve.h"
#include "scene/display/display_list.h"

namespace scene {

// What stands at the axes of a chart, UTF-8. Copied into the list.
struct CurveChartTexts {
  std::string date, magnitude;
};

// Draws a light curve over dates, brighter is higher, as a picture of its own: `list` begins anew with that
// size in pixels.
SCENE_API void DrawCurveChart(const LightCurve& curve, const CurveChartTexts& texts, int width, int height,
                              DisplayList& list);

}  // namespace scene
