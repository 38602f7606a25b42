// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

namespace CommonInterfaces {

// One conversion of a format such as "%-8.3f".
struct FormatConversion {
  const char* end = nullptr;  // behind its last character, also behind the first one that does not belong
  bool isLeft = false;        // flag -
  bool hasPlus = false;       // flag +
  bool hasBlank = false;      // flag blank
  bool isAlternate = false;   // flag #
  bool isZeroFilled = false;  // flag 0
  int width = 0;
  int precision = -1;  // -1: none
  int bits = 32;       // of an int's low bits, those that are written: 8 with hh, 16 with h
  char letter = '\0';  // '%' for a percent sign
};

// Reads the conversion that begins at the percent sign `text`. Null, or what is wrong with it as the end of a
// sentence. Never reads past the terminating zero.
const char* ParseConversion(const char* text, FormatConversion& conversion);

// The type of the argument that a conversion takes, as in TextUse: 'd', 'f', 's' or 'c'; '\0' for %%.
char GetArgumentType(char letter);

}  // namespace CommonInterfaces
