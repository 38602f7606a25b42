// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/text_lines.h"
#include "skydata/strings/rules.h"

namespace skydata {
namespace {

constexpr int kMaxLine = 4095;  // bytes, the end of the line left aside

void CheckEncoding(const StringsLine& line, StringsReport& report) {
  if (line.badByte < 0) return;
  const StringsSource& source = report.GetSource();
  report.AddError(line.number, "encoding",
                  "byte " + std::to_string(line.badByte + 1) + " of the line is no character in " +
                      (source.isUtf8 ? "UTF-8" : NameCodePage(source.page)));
}

void CheckLength(const StringsLine& line, StringsReport& report) {
  const int length = CountCharacters(line.text);
  if (length > kMaxLine) {
    report.AddError(line.number, "long-line",
                    "has " + std::to_string(length) + " bytes, the library reads " +
                        std::to_string(kMaxLine) + " of a line");
  }
}

}  // namespace

void CheckLines(StringsReport& report) {
  for (const StringsLine& line : report.GetSource().lines) {
    CheckEncoding(line, report);
    CheckLength(line, report);
    if (line.hasZero) report.AddError(line.number, "zero-byte", "ends for the library at its zero byte");
  }
  for (const int line : report.GetSource().strayTabs) {
    report.AddError(line, "no-entry", "has a tab but is no entry: wants identifier, tab, text");
  }
}

}  // namespace skydata
