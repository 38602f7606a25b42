// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "skydata/strings/check.h"
#include "support/temp_dir.h"

namespace skydata_test {

inline std::string ReadShippedStrings(const std::string& language) {
  std::ifstream in(CI_DATA_SOURCE "/strings/" + language + "/qxstrings.txt", std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// Lines of a string table that start from the shipped English one, in which nothing is wrong.
class StringsText {
 public:
  StringsText() : m_Text(ReadShippedStrings("en")) {}

  // The number of the line that the next Append makes.
  int NextLine() const { return static_cast<int>(std::count(m_Text.begin(), m_Text.end(), '\n')) + 1; }
  StringsText& Append(const std::string& line) {
    m_Text += line + '\n';
    return *this;
  }
  // Puts another line in the place of an entry, "" : none; returns its number.
  int Replace(const std::string& identifier, const std::string& line) {
    const std::size_t begin = m_Text.find('\n' + identifier + '\t') + 1;
    EXPECT_NE(begin, 0u) << identifier;
    const std::size_t end = m_Text.find('\n', begin) + 1;
    m_Text.replace(begin, end - begin, line.empty() ? "" : line + '\n');
    return static_cast<int>(
               std::count(m_Text.begin(), m_Text.begin() + static_cast<std::ptrdiff_t>(begin), '\n')) +
           1;
  }
  const std::string& Get() const { return m_Text; }

 private:
  std::string m_Text;
};

class StringsTest : public testing::Test {
 protected:
  skydata::StringsSource Read(const std::string& text, const std::string& language = "en",
                              skydata::StringsEncoding encoding = skydata::StringsEncoding::kDetect) {
    return skydata::ReadStrings(m_Dir.Write(language + "/s.txt", text), "", encoding);
  }
  // "12 error format: what" for each finding.
  static std::vector<std::string> Lines(const skydata::StringsFindings& findings) {
    std::vector<std::string> lines;
    for (const auto& finding : findings) {
      lines.push_back(std::to_string(finding.line) + (finding.isError ? " error " : " warning ") +
                      finding.code + ": " + finding.text);
    }
    return lines;
  }
  std::vector<std::string> Check(const std::string& text, const std::string& language = "en") {
    return Lines(skydata::CheckStrings(Read(text, language)));
  }

  test_support::TempDir m_Dir;
};

using Strings = std::vector<std::string>;

}  // namespace skydata_test
