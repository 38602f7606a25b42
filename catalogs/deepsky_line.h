// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "common_interfaces/sky_images.h"

namespace CommonInterfaces {

// Reads one line of the deep-sky images, zero-terminated, without its end. Fields that cannot be read keep
// their defaults. False for a line that is no picture: a comment, and one without a single field that can be
// read.
bool ParseDeepskyImage(char* line, DSOImageDesc& image);

}  // namespace CommonInterfaces
