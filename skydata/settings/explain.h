// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <utility>

#include "skydata/settings/reader/file.h"
#include "skydata/settings/reader/names.h"

namespace skydata {

struct ExplainRequest {
  std::string fileName, defaultsName;  // as they are to be shown
  unsigned section = 0;
  std::string field;  // a name, or "@" and an id
  // Owner and id of the container; else the one that has the field.
  std::optional<std::pair<unsigned, unsigned>> key;
};

// Says where the value of a field comes from when a container reads its block of `file` over the defaults of
// `defaults` (which may be the same file): default, own value, which of them counts, and why. False, with one
// line to `errors`, when that cannot be said: several containers have the field, or none, with the names that
// are near to it.
bool ExplainField(const ExplainRequest& request, const SettingsFile& file, const SettingsFile& defaults,
                  const FieldNames& names, std::ostream& output, std::ostream& errors);

}  // namespace skydata
