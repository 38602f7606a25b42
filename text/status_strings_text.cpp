// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/status_strings_text.h"

#include "common_interfaces/status_strings.h"
#include "common_interfaces/string_table.h"
#include "text/bounded_copy.h"

namespace CommonInterfaces {

std::string GetTableText(unsigned identifier) {
  const QX4Strings loaded;
  const char* const text = loaded.GetString(identifier, false);
  return text != nullptr ? text : "";
}

const char* FindOptionalText(unsigned identifier) {
  const QX4Strings loaded;
  return loaded.GetString(identifier, true);
}

void CopyStatusText(const std::string& text, char* out) {
  static_assert(kStatusTextSize == kLongestText + 1);
  if (out != nullptr) CopyBounded(text, out);
}

PlaceKind GetPlaceKind(char movingType) {
  const auto type = static_cast<unsigned char>(movingType);
  if (type <= 2) return PlaceKind::kSurface;
  return type <= 11 ? PlaceKind::kSpace : PlaceKind::kNone;
}

}  // namespace CommonInterfaces
