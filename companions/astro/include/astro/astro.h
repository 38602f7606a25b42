// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Everything the companion library astro exports.
#pragma once

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "astro/delta_t.h"
#include "astro/earth_orientation.h"
#include "astro/eclipse.h"
#include "astro/healpix.h"
#include "astro/horizon_frame.h"
#include "astro/julian_date.h"
#include "astro/libration.h"
#include "astro/moon_phenomena.h"
#include "astro/moons.h"
#include "astro/object_id.h"
#include "astro/object_records.h"
#include "astro/physical_ephemeris.h"
#include "astro/planets.h"
#include "astro/rise_set.h"
#include "astro/rotation.h"
#include "astro/satellite.h"
#include "astro/satellite_pass.h"
#include "astro/sky_events.h"
#include "astro/solar_system.h"
#include "astro/twilight.h"
#include "astro/two_body.h"
#include "astro/vectors.h"
