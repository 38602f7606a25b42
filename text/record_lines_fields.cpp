// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cctype>
#include <cstring>

#include "common_interfaces/record_lines.h"
#include "text/bounded_copy.h"
#include "text/record_lines_inside.h"

namespace CommonInterfaces::record_lines {

namespace {

// Takes everything up to the first character for which `ends` is true, or the end of the text.
template <class Ends>
std::string_view TakeUntil(char*& cursor, Ends ends) {
  const char* const start = cursor;
  while (*cursor != '\0' && !ends(*cursor)) ++cursor;
  return {start, static_cast<std::size_t>(cursor - start)};
}

bool IsLineEnd(char c) { return c == '\n' || c == '\r'; }

std::string_view TakeWord(char*& cursor) {
  SkipBlanks(cursor);
  return TakeUntil(cursor, [](char c) { return Is(c, kFieldEnd); });
}

std::string_view TakeUntilTab(char*& cursor) {
  SkipBlanks(cursor);
  return TakeUntil(cursor, [](char c) { return c == '\t' || IsLineEnd(c) || c == ';'; });
}

std::string_view TakeUntilSemicolon(char*& cursor) {
  SkipBlanks(cursor);
  const std::string_view field = TakeUntil(cursor, [](char c) { return IsLineEnd(c) || c == ';'; });
  if (!field.empty()) RemoveTrail(cursor);
  return field;
}

std::string_view TakeUntilDelimiter(char delimiter, char*& cursor) {
  // At a line end nothing is taken, not even a line end that is the delimiter.
  if (IsLineEnd(*cursor)) return {cursor, 0};
  const std::string_view field =
      TakeUntil(cursor, [delimiter](char c) { return c == delimiter || IsLineEnd(c); });
  if (*cursor == delimiter && *cursor != '\0') ++cursor;
  return field;
}

int Store(std::string_view field, char* out) { return CopyBounded(field, out); }

int Store(std::string_view field, std::string& out) {
  out.assign(field);
  return static_cast<int>(field.size());
}

template <class Text>
int StoreLower(std::string_view field, Text&& out) {
  const int length = Store(field, out);
  for (int i = 0; i < length; ++i) {
    char& c = out[static_cast<unsigned>(i)];
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  return length;
}

}  // namespace

}  // namespace CommonInterfaces::record_lines

using namespace CommonInterfaces::record_lines;

int RemoveLeading(char*& cursor) {
  SkipBlanks(cursor);
  return *cursor != '\0';
}

int RemoveTrail(char*& cursor) {
  while (*cursor == ';' || Is(*cursor, kBlank)) ++cursor;
  return *cursor != '\0';
}

int GetString1(char*& cursor, char* out) { return Store(TakeWord(cursor), out); }
int GetString1(char*& cursor, std::string& out) { return Store(TakeWord(cursor), out); }

int GetStringLwr(char*& cursor, char* out) { return StoreLower(TakeWord(cursor), out); }
int GetStringLwr(char*& cursor, std::string& out) { return StoreLower(TakeWord(cursor), out); }

int GetString3(char*& cursor, char* out) { return Store(TakeUntilTab(cursor), out); }
int GetString3(char*& cursor, std::string& out) { return Store(TakeUntilTab(cursor), out); }

int GetString2(char*& cursor, char* out) { return Store(TakeUntilSemicolon(cursor), out); }
int GetString2(char*& cursor, std::string& out) { return Store(TakeUntilSemicolon(cursor), out); }

int CopyClippedByChar(char delimiter, char*& cursor, char* out) {
  return Store(TakeUntilDelimiter(delimiter, cursor), out);
}
int CopyClippedByChar(char delimiter, char*& cursor, std::string& out) {
  return Store(TakeUntilDelimiter(delimiter, cursor), out);
}
