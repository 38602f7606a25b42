// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/text_lines.h"

#include <algorithm>

#include "utils/text.h"
#include "utils/utf8.h"

namespace skydata {
namespace {

constexpr char kBlanks[] = " \t\r";

}  // namespace

bool HasByteOrderMark(const std::string& bytes) { return bytes.starts_with(kUtf8Mark); }

TextLines SplitAtLineFeeds(const std::string& bytes) {
  TextLines lines;
  std::size_t begin = HasByteOrderMark(bytes) ? sizeof kUtf8Mark - 1 : 0;
  while (begin < bytes.size()) {
    const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
    lines.push_back({static_cast<int>(lines.size()) + 1, bytes.substr(begin, end - begin)});
    begin = end + 1;
  }
  return lines;
}

TextLines SplitPlainLines(const std::string& bytes) {
  TextLines lines = SplitAtLineFeeds(bytes);
  for (TextLine& line : lines) {
    const bool hasEnd = &line != &lines.back() || bytes.back() == '\n';
    if (hasEnd && line.text.ends_with('\r')) line.text.pop_back();
  }
  return lines;
}

TextLines SplitTrimmedLines(const std::string& bytes) {
  TextLines lines = SplitAtLineFeeds(bytes);
  for (TextLine& line : lines) line.text.erase(line.text.find_last_not_of(kBlanks) + 1);
  return lines;
}

std::vector<TextField> SplitAtTabs(const TextLine& line) {
  std::vector<TextField> fields;
  int column = 1;
  for (const std::string& text : GetTokens(line.text.c_str(), "\t")) {
    fields.push_back({text, column});
    column += static_cast<int>(text.size()) + 1;
  }
  return fields;
}

bool IsBlankText(const std::string& text) { return text.find_first_not_of(" \t\r\n") == std::string::npos; }

int FindBadUtf8(const std::string& text) {
  for (int at = 0, length = 1; at < static_cast<int>(text.size()); at += length) {
    if (DecodeUtf8(text, at, &length) < 0) return at;
  }
  return -1;
}

int CountCharacters(const std::string& utf8) {
  return static_cast<int>(std::count_if(
      utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

}  // namespace skydata
