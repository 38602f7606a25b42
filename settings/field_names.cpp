// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/field_names.h"

#include <algorithm>
#include <iterator>

namespace CommonInterfaces {

// Made on first use, so that static initialisers of other files may walk it.
const FieldName* GetFieldNames() {
#define COMMON_INTERFACES_DISPLAY(identifier, name) {name, FieldGroup::kDisplay, FieldIds::identifier},
#define COMMON_INTERFACES_ZOOM(identifier, name) {name, FieldGroup::kZoomDependent, FieldIds::identifier},
#define COMMON_INTERFACES_RECORD(identifier, name) {name, FieldGroup::kRecord, FieldIds::identifier},
  // clang-format off
  static const FieldName kRows[] = {
      COMMON_INTERFACES_DISPLAY_FIELD_NAMES(COMMON_INTERFACES_DISPLAY)
      COMMON_INTERFACES_ZOOM_FIELD_NAMES(COMMON_INTERFACES_ZOOM)
      COMMON_INTERFACES_RECORD_FIELD_NAMES(COMMON_INTERFACES_RECORD)
  };
  // clang-format on
#undef COMMON_INTERFACES_DISPLAY
#undef COMMON_INTERFACES_ZOOM
#undef COMMON_INTERFACES_RECORD
  static_assert(std::size(kRows) == kFieldNames);
  return kRows;
}

const char* FindFieldName(int id) {
  const FieldName* const end = GetFieldNames() + kFieldNames;
  const auto found = std::find_if(GetFieldNames(), end, [id](const FieldName& row) { return row.id == id; });
  return found != end ? found->name : nullptr;
}

}  // namespace CommonInterfaces
