// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One line of the string table: an identifier, tabs, a text. File format: docs/formats/strings.md.
#pragma once

namespace CommonInterfaces {

struct StringLine {
  unsigned identifier = 0;
  // Inside the parsed line, without blanks at its ends, escapes not resolved; may be "".
  char* text = nullptr;
};

// Takes a zero-terminated line apart, in place. False when the line carries no entry; the line may be changed
// even then, and `entry` is not. Any byte sequence is fine.
bool ParseStringLine(char* line, StringLine& entry);

// The decimal number at the start of `text`, as scanf's "%u" reads it in the "C" locale: white space, an
// optional sign, digits. A number beyond 32 bits is taken modulo 2^32, and a minus sign negates modulo 2^32.
// False, and `value` stays, when there is no digit.
bool ScanUnsigned(const char* text, unsigned& value);

}  // namespace CommonInterfaces
