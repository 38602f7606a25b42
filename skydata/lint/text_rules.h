// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What is wrong with a text file as such: encoding, line ends, lengths. The rules of each format work on the
// lines that come out of here.
#pragma once

#include <string>

#include "skydata/files/text_lines.h"
#include "skydata/lint/findings.h"

namespace skydata {

struct TextRules {
  int maxLine = 255;             // bytes that the reader takes of a line, its end left aside; 0: any number
  bool mayBeginWithMark = true;  // the reader passes over a byte-order mark
  bool mayBeEmpty = false;
  bool isUtf8 = true;
};

// The lines of a file, blank ones included; of a line longer than the reader's buffer what the reader gets.
// What is wrong with them goes to the report, CR LF once a file.
TextLines ReadLintLines(const std::string& bytes, const TextRules& rules, LintReport& report);

}  // namespace skydata
