// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One field record of a settings file, in either layout. File format: docs/formats/field_record.md.
#pragma once

#include <string_view>

#include "skydata/settings/reader/file.h"
#include "skydata/settings/reader/names.h"

namespace skydata {

constexpr std::size_t kRecordLengthSize = 4;
constexpr std::size_t kOldNameOffset = 4, kOldNameSize = 32;
// An old record holds 32 bytes of name where a current one holds 4 bytes of name id.
constexpr std::size_t kOldLayoutExcess = kOldNameSize - 4;

// How many bytes the header takes in that layout: no record is shorter.
std::size_t GetRecordHeaderSize(RecordLayout layout);

// Whether the record has exactly the length that its header asks for, and, in the old layout, a name of text.
bool FitsLayout(std::string_view record, RecordLayout layout);

// The name in an old record: up to its zero, or all 32 bytes.
std::string_view GetOldName(std::string_view record);

// The parts of a record that is no shorter than its header. `section` is set as well.
FieldText DecodeRecord(std::string_view record, RecordLayout layout, const FieldNames& names,
                       unsigned& section);

}  // namespace skydata
