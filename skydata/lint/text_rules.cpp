// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/text_rules.h"

#include <algorithm>

namespace skydata {
namespace {

void CheckWhole(const std::string& bytes, const TextRules& rules, LintReport& report) {
  if (bytes.empty() || bytes == kUtf8Mark) {
    if (!rules.mayBeEmpty) report.Add(LintCode::kEmptyFile, 0, 0, "the file is empty");
    return;
  }
  if (HasByteOrderMark(bytes) && !rules.mayBeginWithMark) {
    report.Add(LintCode::kByteOrderMark, 1, 1,
               "the file begins with a byte-order mark, which its format does not have");
  }
  if (bytes.back() != '\n') {
    const int last = static_cast<int>(std::count(bytes.begin(), bytes.end(), '\n')) + 1;
    report.Add(LintCode::kNoLastLineEnd, last, 0, "the last line has no end");
  }
}

void CheckLine(TextLine& line, const TextRules& rules, LintReport& report) {
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

TextLines ReadLintLines(const std::string& bytes, const TextRules& rules, LintReport& report) {
  CheckWhole(bytes, rules, report);
  const auto crLf = bytes.find("\r\n");
  if (crLf != std::string::npos) {
    const auto end = bytes.begin() + static_cast<std::ptrdiff_t>(crLf);
    report.Add(LintCode::kCrLf, static_cast<int>(std::count(bytes.begin(), end, '\n')) + 1, 0,
               "the line ends in CR LF");
  }
  TextLines lines = SplitPlainLines(bytes);
  for (TextLine& line : lines) CheckLine(line, rules, report);
  return lines;
}

}  // namespace skydata
