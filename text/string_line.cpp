// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/string_line.h"

#include <cstddef>
#include <cstring>
#include <string_view>

#include "utils/bytes.h"
#include "utils/characters.h"
#include "utils/numbers.h"

namespace CommonInterfaces {

namespace {

bool IsDelimiter(char c) { return c == '\t' || c == '\n'; }

// Where the first field of `text` ends, without blanks at its end. Looks for one character after the other:
// a search for several at once takes much longer.
char* FindEnd(char* text) {
  std::size_t length = std::strlen(text);
  for (const char delimiter : {'\t', '\n'}) {
    const void* const found = std::memchr(text, delimiter, length);
    if (found) length = static_cast<std::size_t>(static_cast<const char*>(found) - text);
  }
  while (length > 0 && IsBlank(text[length - 1])) --length;
  return text + length;
}

}  // namespace

bool ScanUnsigned(const char* text, unsigned& value) {
  std::string_view rest = text;
  SkipWhiteSpace(rest);
  return TakeModulo32(rest, value);
}

bool ParseStringLine(char* line, StringLine& entry) {
  char* field = line;
  while (*field == '\t') ++field;
  char* fieldEnd = field;
  while (*fieldEnd != '\t' && *fieldEnd != '\0') ++fieldEnd;
  char* text = fieldEnd;
  while (IsDelimiter(*text)) ++text;
  if (fieldEnd == field || *text == '\0') return false;

  *fieldEnd = '\0';
  unsigned identifier = 0;
  if (!ScanUnsigned(field, identifier)) {
    if (fieldEnd - field < 4) return false;
    identifier = LoadBE32(field);
  }
  *FindEnd(text) = '\0';
  while (IsBlank(*text)) ++text;
  entry = {identifier, text};
  return true;
}

}  // namespace CommonInterfaces
