// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How dates become texts. No state; any thread.
#pragma once

#include <string>

namespace CommonInterfaces {

// The short numeric forms in a given date format (GetDateFormat), "" for an unknown one and a null date.
std::string FormatShortDate(int dateFormat, const short* date);
std::string FormatDayMonth(int dateFormat, const short* date);

// Copies a text that is not empty into a caller's buffer of 256 bytes, cut if need be. False, the buffer
// untouched, for an empty text and a null buffer.
bool CopyToBuffer(char* out, const std::string& text);

}  // namespace CommonInterfaces
