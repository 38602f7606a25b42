// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Single fields of a line: read as the library reads them, with a finding for what is odd.
#pragma once

#include <optional>
#include <string>

#include "skydata/lint/text_rules.h"

namespace skydata {

// Where a field stands, and how to call it.
struct FieldPlace {
  const TextLine& line;
  const TextField& field;
  const char* what;
  LintReport& report;
};

// A whole number as "%d" takes it: blanks, a sign, digits, anything behind. None when a reader takes none.
std::optional<int> ReadInteger(const FieldPlace& place);

// The same, and a finding outside the range; the number all the same.
std::optional<int> ReadInteger(const FieldPlace& place, int least, int most);

// A four-character code. None when the field has not four bytes; a finding for a kind that nothing knows.
std::optional<int> ReadKind(const FieldPlace& place);

// A decimal number or a four-character code, in that order.
std::optional<int> ReadNumberOrKind(const FieldPlace& place);

// False, with a finding, when the line has fewer fields than `least`; a finding when it has more than `most`.
bool HasFields(const TextLine& line, const std::vector<TextField>& fields, int least, int most,
               LintReport& report);

// Whether the name is there and fits the 79 bytes of an identifier; findings otherwise.
void CheckName(const FieldPlace& place);

}  // namespace skydata
