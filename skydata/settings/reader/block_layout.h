// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The sizes of what a block of a settings file is made of: key, number of sections, sections, number of
// fields, and the records of the fields, each behind its length. File format: docs/formats/settings_file.md.
#pragma once

#include <cstddef>

#include "common_interfaces/settings_data.h"
#include "skydata/settings/reader/record_reader.h"

namespace skydata {

inline constexpr std::size_t kKeySize = 8;
inline constexpr std::size_t kSectionCountSize = 2;
inline constexpr std::size_t kSectionSize = sizeof(CommonInterfaces::SectionRecord);
inline constexpr std::size_t kFieldCountSize = 4;
inline constexpr std::size_t kMinRecordSize = CommonInterfaces::kFieldHeaderSize;

}  // namespace skydata
