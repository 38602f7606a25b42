// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The pictures of commands that draw a chart.
#pragma once

#include <string>

#include "scene/display/display_list.h"
#include "skyview/options/picture_group.h"

namespace skyview {

// Throws Stop when there is no picture to write.
void RequirePicture(const std::string& command, const PictureOptions& pictures);

// To all files of --out. Throws Stop.
void WriteChart(const PictureOptions& pictures, const scene::DisplayList& chart);

}  // namespace skyview
