// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Orbits of database records and of the user's lists, as the solar-system model takes them.
#pragma once

#include "astro/object_id.h"
#include "astro/object_records.h"
#include "common_interfaces/record_source.h"

class CQXSolSys;

namespace CommonInterfaces {

// Fills the elements of a comet or an asteroid of a database; what the record lacks keeps its default.
OrbitalElements ReadElements(const SSO_ID& id, const BaseDB& record);

// Converts elements of the user's lists in place: degrees to radians, and the mean motion. False, with one
// line that says why, when no finite mean motion comes out.
bool ConvertUserElements(const SSO_ID& id, const CQXSolSys& solSys, OrbitalElements& elements);

}  // namespace CommonInterfaces
