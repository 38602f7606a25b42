// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include "utils/code_page.h"

namespace host_test {

// The shipped string table of a language as the data root has it: the source file in the language's code
// page.
inline std::string ShippedStrings(const std::string& language) {
  std::ifstream in(std::string(CI_DATA_SOURCE) + "/strings/" + language + "/qxstrings.txt", std::ios::binary);
  const std::string source{std::istreambuf_iterator<char>(in), {}};
  std::string bytes;
  return Utf8ToCodePage(GetCodePageOf(language.c_str()), source, &bytes, nullptr) ? bytes : "";
}

}  // namespace host_test
