// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "common_interfaces/camera.h"
#include "skyview/options/view_group.h"

namespace skyview {

// When the options name neither view nor time: the line that says what was chosen, tonight and from where, or
// now for travellers; in the current language, UTF-8. "" otherwise.
std::string DescribeChoice(const ViewOptions& options, const CommonInterfaces::Camera& camera);

}  // namespace skyview
