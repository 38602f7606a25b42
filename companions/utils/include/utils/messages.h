// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Pieces of lines for people.
#pragma once

#include <string>
#include <vector>

#include "utils/api.h"
#include "utils/debug.h"

// As std::printf, for formats that the program itself has; at most 511 bytes. Any thread.
UTILS_API std::string FormatText(const char* format, ...) UTILS_PRINTF_FORMAT(1, 2);

// The text as a terminal may show it: UTF-8 whose only control characters are line feeds and tabs. Each byte
// of any other one, and each that is part of no character, becomes "\x" and two hexadecimal digits. Any
// thread.
UTILS_API std::string MakePrintable(const std::string& text);

// The text without line feeds at its end, with blanks in place of those inside: a diagnostic that quotes a
// file may have several lines. Any thread.
UTILS_API std::string MakeOneLine(std::string text);

// "A, B, C"; "" for none. Any thread.
UTILS_API std::string JoinNames(const std::vector<std::string>& names);
