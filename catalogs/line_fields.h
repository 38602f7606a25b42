// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the readers of text lines with fields between tabs share.
#pragma once

#include <climits>
#include <memory>
#include <string>
#include <string_view>

#include "astro/object_id.h"
#include "utils/file.h"

namespace CommonInterfaces {

inline constexpr unsigned kLineBuffer = 256;  // with the terminating zero
inline constexpr char kFieldDelimiter[] = "\t";

// Hands every line of the file to `take`, without its end, as a zero-terminated text. False when the file
// cannot be opened, or not be read to its end.
template <class Take>
bool ForEachLine(const std::string& path, Take take) {
  MTextFile file(false, '\0', '\0', kLineBuffer);
  if (!file.Open(path.c_str(), false)) return false;
  char line[kLineBuffer];
  while (file.Readln(line, sizeof line) > 0) take(line);
  return !file.HasReadFailed();
}

// Take a number from the start of a text as "%d" and "%f" do: blanks before it and a sign are allowed, what
// follows it does not matter, and `text` is then behind it. False, with `text` and `value` as they were, when
// there is none, and for one that the value cannot hold. Whatever the locale, the decimal mark is a point; a
// real number is finite.
bool ScanNumber(const char*& text, int& value);
bool ScanNumber(const char*& text, double& value);

// The number at the start of a field, as ScanNumber takes it, if it lies within the bounds.
bool ReadNumber(std::string_view field, int& value, int least = INT_MIN, int most = INT_MAX);

// The kind that a field names: a number, else a four-character code. A code that begins with a digit is
// therefore taken for a number, deliberately.
bool ReadKind(const std::string& field, int& kind);

// Sets the name, cut to its field.
void SetName(std::string_view name, SSO_ID& object);

std::unique_ptr<char[]> CopyToHeap(std::string_view text);

}  // namespace CommonInterfaces
