// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The lines and the fields of a text file. A UTF-8 byte-order mark at its front belongs to no line.
#pragma once

#include <string>
#include <vector>

namespace skydata {

inline constexpr char kUtf8Mark[] = "\xEF\xBB\xBF";

bool HasByteOrderMark(const std::string& bytes);

// A line with its number, without its end.
struct TextLine {
  int number = 0;  // from 1 on
  std::string text;
};
using TextLines = std::vector<TextLine>;

// A field of a line, and the column where it begins.
struct TextField {
  std::string text;
  int column = 1;  // bytes, from 1 on
};

// All lines, blank ones included. They differ in what they take for the end of a line: the line feed alone,
// or one carriage return before it too.
TextLines SplitAtLineFeeds(const std::string& bytes);
TextLines SplitPlainLines(const std::string& bytes);

// The same, each line without the blanks and carriage returns at its end.
TextLines SplitTrimmedLines(const std::string& bytes);

// The fields between the tabs of a line.
std::vector<TextField> SplitAtTabs(const TextLine& line);

bool IsBlankText(const std::string& text);

// The byte at which the first character begins that is none in UTF-8, -1 when there is none.
int FindBadUtf8(const std::string& text);

// How many characters a text in UTF-8 has, where every character is one.
int CountCharacters(const std::string& utf8);

}  // namespace skydata
