// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/optional_table.h"

#include "utils/debug.h"
#include "utils/path.h"

namespace scene {

void LoadOptionalTable(const char* name, CatalogTable& table) {
  table = CatalogTable();
  const std::string path = ZentharPath::GetPath(name);
  if (path.empty() || table.Load(path.c_str())) return;
  PrintDebugString("%s\n", table.GetError().c_str());
}

}  // namespace scene
