// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/text.h"

#include <cstring>
#include <string_view>

#include "utils/characters.h"

namespace {

std::vector<std::string> SplitAt(std::string_view text, std::string_view delimiters) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  std::size_t begin = 0;
  for (;;) {
    const std::size_t end = text.find_first_of(delimiters, begin);
    pieces.emplace_back(text.substr(begin, end - begin));
    if (end == std::string_view::npos) return pieces;
    begin = end + 1;
  }
}

// The character that a backslash before `c` stands for, or 0 when the backslash stands for itself.
char ResolveEscape(char c) {
  switch (c) {
    case 'n':
      return '\n';
    case 't':
      return '\t';
    case '\\':
    case '"':
      return c;
    default:
      return 0;
  }
}

}  // namespace

std::vector<std::string> GetTokens(const char* text, const char* delimiters) {
  return SplitAt(text ? text : "", delimiters ? delimiters : "");
}

std::vector<std::string> GetSubStrings(const char* text, char delimiter) {
  return SplitAt(text ? text : "", std::string_view(&delimiter, 1));
}

void DeleteBorderSpace(char* text) {
  if (!text) return;
  const char* begin = text;
  while (IsBlank(*begin)) ++begin;
  std::size_t length = std::strlen(begin);
  while (length > 0 && IsBlank(begin[length - 1])) --length;
  std::memmove(text, begin, length);
  text[length] = '\0';
}

int ParseString2(const char* source, char* destination) {
  if (!source || !destination) return 0;
  char* out = destination;
  while (*source) {
    // The character is taken before anything is stored: the two buffers may be one.
    char c = *source++;
    if (c == '\\') {
      if (const char resolved = ResolveEscape(*source)) {
        c = resolved;
        ++source;
      }
    }
    *out++ = c;
  }
  return static_cast<int>(out - destination);
}

bool IsEmptyString(const char* text) {
  if (!text) return true;
  while (IsBlank(*text)) ++text;
  return *text == '\0';
}

int GetFOURCC(const char* text) {
  if (!text || std::strlen(text) != 4) return -1;
  unsigned value = 0;
  for (int i = 0; i < 4; ++i) value = value << 8 | static_cast<unsigned char>(text[i]);
  return static_cast<int>(value);
}
