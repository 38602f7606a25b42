// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/string_line.h"

#include <cstring>
#include <string_view>

#include "utils/bytes.h"
#include "utils/characters.h"
#include "utils/numbers.h"
#include "utils/text.h"

namespace CommonInterfaces {

bool ScanUnsigned(const char* text, unsigned& value) {
  std::string_view rest = text;
  SkipWhiteSpace(rest);
  return TakeModulo32(rest, value);
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
