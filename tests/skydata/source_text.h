// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "skydata/files/source_error.h"
#include "support/temp_dir.h"

namespace skydata_test {

// The message of the SourceError that the call throws, without the path of the test's folder and with '/' on
// every platform; "" when it throws none.
template <class Call>
std::string MessageOf(const test_support::TempDir& dir, Call call) {
  try {
    call();
  } catch (const skydata::SourceError& error) {
    std::string message = error.what();
    std::string folder = dir.Path();  // ends in a separator
    std::replace(message.begin(), message.end(), '\\', '/');
    std::replace(folder.begin(), folder.end(), '\\', '/');
    for (auto at = message.find(folder); at != std::string::npos; at = message.find(folder)) {
      message.erase(at, folder.size());
    }
    return message;
  }
  return "";
}

// A catalog table cut into records: the comment left out, the header first.
inline std::vector<std::vector<std::string>> SplitTable(const std::string& bytes) {
  std::vector<std::vector<std::string>> records;
  std::istringstream lines(bytes);
  for (std::string line; std::getline(lines, line);) {
    if (line[0] == '#') continue;
    records.emplace_back();
    for (std::size_t begin = 0; begin <= line.size();) {
      const std::size_t end = std::min(line.find('\t', begin), line.size());
      records.back().push_back(line.substr(begin, end - begin));
      begin = end + 1;
    }
  }
  return records;
}

}  // namespace skydata_test
