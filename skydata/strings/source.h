// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A string table as its translator writes it, read line by line as the library reads it
// (docs/formats/strings.md). The one reader of such files in skydata.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "utils/code_page.h"

namespace skydata {

enum class StringsEncoding { kDetect, kUtf8, kCodePage };

// Every line of the file, without its end. Texts are in UTF-8 whatever the encoding of the file.
struct StringsLine {
  int number = 0;        // from 1 on
  std::string text;      // a byte that is no character of the encoding is U+FFFD here
  int badByte = -1;      // offset of the first such byte in the line, -1: none
  bool hasZero = false;  // the library reads up to the zero byte only
};

// A line that carries an entry.
struct StringsEntry {
  int line = 0;
  unsigned identifier = 0;
  std::string written;  // the text as it stands in the file, blanks at its ends included
  std::string text;     // as the library shows it: without these, escapes resolved
  int begin = 0;        // where `written` begins in the line, in bytes of UTF-8
};

struct StringsSource {
  std::string path;
  std::string language;
  CodePage page = CodePage::kWestern;
  bool isUtf8 = true;
  std::vector<StringsLine> lines;
  std::vector<StringsEntry> entries;
  std::vector<int> strayTabs;  // lines with a tab that are no entry
};

// Reads the file. `language` "": the name of the folder that it lies in. kDetect: UTF-8 when the file is
// valid UTF-8, else the code page of the language. Throws SourceError when the file cannot be read.
StringsSource ReadStrings(const std::filesystem::path& path, const std::string& language = "",
                          StringsEncoding encoding = StringsEncoding::kDetect);

// The numbers that belong to applications, not to the library.
inline constexpr unsigned kFirstOfApplications = 900000, kLastOfApplications = 999999;
inline bool IsOfApplications(unsigned identifier) {
  return identifier >= kFirstOfApplications && identifier <= kLastOfApplications;
}

// "windows-1252".
std::string NameCodePage(CodePage page);

}  // namespace skydata
