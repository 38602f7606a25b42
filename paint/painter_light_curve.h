// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cairo.h>

#include "skyview/reports/light_curve.h"

namespace skyview {

// The curve on a canvas of that size, pixels: title, axes with Julian dates and magnitudes, the brighter the higher.
// The captions of the axes are texts of the string table.
void PaintLightCurve(const LightCurve& curve, int width, int height, cairo_t* context);

}  // namespace skyview
