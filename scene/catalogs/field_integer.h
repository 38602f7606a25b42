// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <climits>

#include "scene/catalogs/catalog_table.h"

namespace scene {

// The value of a numeric field without its fraction; `missing` when the record lacks it, when it is a text,
// and for a number that no int holds: a table may give any column as real numbers.
inline int FieldInteger(const CatalogTable& record, int fieldId, int missing) {
  const double number = FieldNumber(record, fieldId, missing);
  return number > INT_MIN - 1.0 && number < INT_MAX + 1.0 ? static_cast<int>(number) : missing;
}

}  // namespace scene
