// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "skydata/settings/explain.h"

namespace skydata {

// The bytes of a settings file with other values in one field: as many of its type as it had, so that nothing
// else moves. `request` chooses field and container as for ExplainField, defaults and own block in the one
// file; `values` are those of a settings text. Throws SourceError: a damaged file or one in the old layout, a
// field that the file or the container lacks, values that do not fit.
std::string SetFieldValues(const ExplainRequest& request, const std::vector<std::string>& values,
                           const std::string& bytes, const FieldNames& names);

}  // namespace skydata
