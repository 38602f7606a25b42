// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/string_line.h"

#include <cstring>

#include "utils/bytes.h"
#include "utils/text.h"

namespace CommonInterfaces {

// Not scanf: its overflow is undefined, and what counts as white space depends on the process's locale.
bool ScanUnsigned(const char* text, unsigned& value) {
  text += std::strspn(text, " \t\n\v\f\r");
  const bool negative = *text == '-';
  if (*text == '-' || *text == '+') ++text;
  if (*text < '0' || *text > '9') return false;
  unsigned number = 0;
  for (; *text >= '0' && *text <= '9'; ++text) number = number * 10 + static_cast<unsigned>(*text - '0');
  value = negative ? 0 - number : number;
  return true;
}

bool ParseStringLine(char* line, StringLine& entry) {
  char* const field = line + std::strspn(line, "\t");
  char* const fieldEnd = field + std::strcspn(field, "\t");
  char* const text = fieldEnd + std::strspn(fieldEnd, "\t\n");
  if (fieldEnd == field || *text == '\0') return false;
  *fieldEnd = '\0';
  text[std::strcspn(text, "\t\n")] = '\0';

  unsigned identifier = 0;
  if (!ScanUnsigned(field, identifier)) {
    if (fieldEnd - field < 4) return false;
    identifier = LoadBE32(field);
  }
  DeleteBorderSpace(text);
  entry = {identifier, text};
  return true;
}

}  // namespace CommonInterfaces
