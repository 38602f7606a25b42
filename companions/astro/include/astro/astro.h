// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Everything the companion library astro exports.
#pragma once

#include "astro/coordinates.h"
#include "astro/delta_t.h"
#include "astro/earth_orientation.h"
#include "astro/julian_date.h"
#include "astro/object_id.h"
#include "astro/vectors.h"
