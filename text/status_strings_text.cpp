// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/status_strings_text.h"

#include <algorithm>
#include <cstring>

#include "common_interfaces/status_strings.h"
#include "common_interfaces/string_table.h"

namespace CommonInterfaces {

std::string GetTableText(int identifier) {
  const QX4Strings loaded;
  const char* const text = loaded.GetString(static_cast<unsigned>(identifier), false);
  return text != nullptr ? text : "";
}

const char* FindOptionalText(int identifier) {
  const QX4Strings loaded;
  return loaded.GetString(static_cast<unsigned>(identifier), true);
}

void CopyStatusText(const std::string& text, char* out) {
  if (out == nullptr) return;
  const auto length = std::min(text.size(), std::size_t{kStatusTextSize - 1});
  std::memcpy(out, text.data(), length);
  out[length] = '\0';
}

PlaceKind GetPlaceKind(char movingType) {
  const auto type = static_cast<unsigned char>(movingType);
  if (type <= 2) return PlaceKind::kSurface;
  return type <= 11 ? PlaceKind::kSpace : PlaceKind::kNone;
}

}  // namespace CommonInterfaces
