// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/messages.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

#include "utils/utf8.h"

namespace {

// The C1 controls, which terminals obey as well, end at U+009F.
bool IsHarmful(int character) {
  if (character == '\n' || character == '\t') return false;
  return character < ' ' || (character >= 0x7F && character <= 0x9F);
}

}  // namespace

std::string FormatText(const char* format, ...) {
  char text[512];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  return text;
}

std::string MakePrintable(const std::string& text) {
  std::string printable;
  printable.reserve(text.size());
  for (int at = 0, length = 0; at < static_cast<int>(text.size()); at += length) {
    const int character = DecodeUtf8(text, at, &length);
    const std::string bytes = text.substr(static_cast<std::size_t>(at), static_cast<std::size_t>(length));
    if (!IsHarmful(character)) {  // a byte of no character, -1, is
      printable += bytes;
      continue;
    }
    for (const char byte : bytes) printable += FormatText("\\x%02X", static_cast<unsigned char>(byte));
  }
  return printable;
}

std::string MakeOneLine(std::string text) {
  while (text.ends_with('\n')) text.pop_back();
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

std::string JoinNames(const std::vector<std::string>& names) {
  std::string joined;
  for (const auto& name : names) joined += (joined.empty() ? "" : ", ") + name;
  return joined;
}
