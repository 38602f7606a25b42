// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/camera.h"
#include "scene/catalogs/showers.h"
#include "scene/view/observer_frame.h"

namespace skyview {

// The showers that are active on the day of the view, UTF-8: a heading with the date, and a line for each,
// the nearest maximum first. A line says the radiant, where it stands now (with a horizon), and the days to
// the maximum.
std::string MakeShowerReport(const CommonInterfaces::Camera& camera, const scene::ObserverFrame& observer,
                             const std::vector<scene::Shower>& showers);

}  // namespace skyview
