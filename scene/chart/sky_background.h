// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The sky behind everything, and the ground in its light. Makes no allocation.
#pragma once

#include "scene/display/display_list.h"
#include "scene/display/palette.h"
#include "scene/visibility/sky_light.h"

namespace scene {

// The colours of a photograph whose exposure follows the zenith, a mesh over the whole picture: by day as
// bright as the sky looks, at night as dark. A sky without Sun and Moon is that of DrawPlainSky, from zenith
// to horizon.
void DrawNaturalSky(const SkyLight& light, DisplayList& list);

// Black, a little lighter at the foot of the picture.
void DrawPlainSky(DisplayList& list);

Rgba FindGroundColour(const SkyLight& light);

// Of a part of a landscape that has that colour by day. `far`: 1 where air veils it, 0 before the viewer: at
// night it is the darker the nearer it is, and darker than the sky.
Rgba FindLandColour(const SkyLight& light, const Colour& day, double far);

}  // namespace scene
