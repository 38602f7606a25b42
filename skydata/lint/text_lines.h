// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Text files as their readers see them, line by line, and what is wrong with the text as such: encoding, line ends,
// lengths. The rules of each format work on the lines that come out of here.
#pragma once

#include <string>
#include <vector>

#include "skydata/lint/findings.h"

namespace skydata {

// A field of a line, and the column where it begins.
struct TextField {
  std::string text;
  int column = 1;  // bytes, from 1 on
};

// A line with its number, without its end; of a line longer than the reader's buffer what the reader gets.
struct LintLine {
  int number = 0;
  std::string text;
};
using LintLines = std::vector<LintLine>;

struct TextRules {
  int maxLine = 255;             // bytes that the reader takes of a line, its end left aside; 0: any number
  bool mayBeginWithMark = true;  // the reader passes over a byte-order mark
  bool mayBeEmpty = false;
  bool isUtf8 = true;
};

// The lines of a file, blank ones included. What is wrong with them goes to the report, CR LF once a file.
LintLines ReadLintLines(const std::string& bytes, const TextRules& rules, LintReport& report);

// The lines of a file without any rule.
LintLines ReadPlainLines(const std::string& bytes);

// The fields between the tabs of a line.
std::vector<TextField> SplitAtTabs(const LintLine& line);

bool IsBlank(const std::string& text);

// The byte at which the first character begins that is none in UTF-8, -1 when there is none.
int FindBadUtf8(const std::string& text);

}  // namespace skydata
