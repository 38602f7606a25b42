// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One home as lines of "home_params.ini". File format: docs/formats/home_params.md.
#pragma once

#include "common_interfaces/home_parameters.h"
#include "utils/file.h"

namespace CommonInterfaces {

enum class HomeReading { kRead, kEnd, kDamaged };

// The next record of the file. `home` is meaningful for kRead only; kEnd: nothing but blank lines was left.
HomeReading ReadHome(MTextFile& file, HomeParameters& home);

// False when a line could not be written.
bool WriteHome(MTextFile& file, const HomeParameters& home);

}  // namespace CommonInterfaces
