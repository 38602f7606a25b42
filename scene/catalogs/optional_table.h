// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/catalogs/catalog_table.h"

namespace scene {

// Loads a table that a data root may lack: it is then empty. So is one that is none, with one diagnostic line
// that names the file. `name` is a logical one.
void LoadOptionalTable(const char* name, CatalogTable& table);

}  // namespace scene
