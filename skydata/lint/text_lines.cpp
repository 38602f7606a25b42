// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/text_lines.h"

#include <algorithm>

#include "utils/code_page.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";
constexpr std::size_t kMarkLength = 3;

bool HasMark(const std::string& bytes) { return bytes.compare(0, kMarkLength, kByteOrderMark) == 0; }

void CheckWhole(const std::string& bytes, const TextRules& rules, LintReport& report) {
  if (bytes.size() <= (HasMark(bytes) ? kMarkLength : 0)) {
    if (!rules.mayBeEmpty) report.Add(LintCode::kEmptyFile, 0, 0, "the file is empty");
    return;
  }
  if (HasMark(bytes) && !rules.mayBeginWithMark) {
    report.Add(LintCode::kByteOrderMark, 1, 1,
               "the file begins with a byte-order mark, which its format does not have");
  }
  if (bytes.back() != '\n') {
    const int last = static_cast<int>(std::count(bytes.begin(), bytes.end(), '\n')) + 1;
    report.Add(LintCode::kNoLastLineEnd, last, 0, "the last line has no end");
  }
}

void CheckLine(LintLine& line, const TextRules& rules, LintReport& report) {
  const auto zero = line.text.find('\0');
  if (zero != std::string::npos) {
    report.Add(LintCode::kZeroByte, line.number, static_cast<int>(zero) + 1,
               "a reader sees the line up to its zero byte");
    line.text.resize(zero);
  }
  const int badByte = rules.isUtf8 ? FindBadUtf8(line.text) : -1;
  if (badByte >= 0)
    report.Add(LintCode::kEncoding, line.number, badByte + 1, "the byte is no character in UTF-8");
  const int length = static_cast<int>(line.text.size());
  if (rules.maxLine > 0 && length > rules.maxLine) {
    report.Add(LintCode::kLongLine, line.number, rules.maxLine + 1,
               "the line has " + std::to_string(length) + " bytes, of which a reader takes " +
                   std::to_string(rules.maxLine));
    line.text.resize(static_cast<std::size_t>(rules.maxLine));
  }
}

}  // namespace

LintLines ReadPlainLines(const std::string& bytes) {
  LintLines lines;
  std::size_t begin = HasMark(bytes) ? kMarkLength : 0;
  while (begin < bytes.size()) {
    const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
    lines.push_back({static_cast<int>(lines.size()) + 1, bytes.substr(begin, end - begin)});
    if (end < bytes.size() && !lines.back().text.empty() && lines.back().text.back() == '\r') {
      lines.back().text.pop_back();
    }
    begin = end + 1;
  }
  return lines;
}

LintLines ReadLintLines(const std::string& bytes, const TextRules& rules, LintReport& report) {
  CheckWhole(bytes, rules, report);
  const auto crLf = bytes.find("\r\n");
  if (crLf != std::string::npos) {
    const auto end = bytes.begin() + static_cast<std::ptrdiff_t>(crLf);
    report.Add(LintCode::kCrLf, static_cast<int>(std::count(bytes.begin(), end, '\n')) + 1, 0,
               "the line ends in CR LF");
  }
  LintLines lines = ReadPlainLines(bytes);
  for (LintLine& line : lines) CheckLine(line, rules, report);
  return lines;
}

std::vector<TextField> SplitAtTabs(const LintLine& line) {
  std::vector<TextField> fields;
  int column = 1;
  for (const std::string& text : GetTokens(line.text.c_str(), "\t")) {
    fields.push_back({text, column});
    column += static_cast<int>(text.size()) + 1;
  }
  return fields;
}

bool IsBlank(const std::string& text) { return text.find_first_not_of(" \t\r\n") == std::string::npos; }

int FindBadUtf8(const std::string& text) {
  for (int at = 0, length = 1; at < static_cast<int>(text.size()); at += length) {
    if (DecodeUtf8(text, at, &length) < 0) return at;
  }
  return -1;
}

}  // namespace skydata
