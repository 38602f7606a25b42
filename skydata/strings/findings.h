// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace skydata {

// What is wrong with a line of a string table. Codes are stable, programs may rely on them;
// docs/translating.md explains each.
struct StringsFinding {
  std::string file;
  int line = 0;
  const char* code = "";
  bool isError = true;  // false: a warning, the library reads the line as it is meant
  std::string text;
};
using StringsFindings = std::vector<StringsFinding>;

// By file and line, findings of one line in the order in which they were added.
void SortFindings(StringsFindings& findings);

// One line each: "file:12: error: what [code]".
std::string FormatFindings(const StringsFindings& findings);

// One JSON array (RFC 8259) of objects with "file", "line", "code", "severity" ("error" or "warning") and
// "text", in UTF-8, ended by a line feed.
std::string FormatFindingsAsJson(const StringsFindings& findings);

}  // namespace skydata
