// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace scene {

// The zooms at which a frame can be drawn; zoom 1 shows 37 degrees from the centre to a corner.
inline constexpr double kMinZoom = 0.25;  // below, the picture would reach the point opposite to the view
inline constexpr double kMaxZoom = 10000.0;

}  // namespace scene
