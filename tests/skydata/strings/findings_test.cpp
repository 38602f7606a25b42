// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/findings.h"

#include <gtest/gtest.h>

namespace skydata {
namespace {

TEST(StringsFindings, AreLinesThatEditorsUnderstand) {
  EXPECT_EQ(
      FormatFindings({{"de/s.txt", 12, "format", true, "does not fit"}, {"s", 1, "unused", false, "x"}}),
      "de/s.txt:12: error: does not fit [format]\ns:1: warning: x [unused]\n");
  EXPECT_EQ(FormatFindings({}), "");
}

TEST(StringsFindings, AreOneJsonArray) {
  EXPECT_EQ(FormatFindingsAsJson({}), "[]\n");
  EXPECT_EQ(FormatFindingsAsJson({{"a", 2, "unused", false, "x"}}),
            "[\n {\"file\": \"a\", \"line\": 2, \"code\": \"unused\", \"severity\": \"warning\", \"text\": "
            "\"x\"}\n]\n");
}

TEST(StringsFindings, JsonIsEscapedAndValidUtf8WhateverTheTextsHold) {
  const std::string json = FormatFindingsAsJson(
      {{"C:\\s.txt", 1, "code-page", true, "a \"\u0434\"\t\x01\xFF"}, {"b", 2, "format", true, ""}});
  EXPECT_EQ(json,
            "[\n {\"file\": \"C:\\\\s.txt\", \"line\": 1, \"code\": \"code-page\", \"severity\": \"error\", "
            "\"text\": \"a \\\"\u0434\\\"\\t\\u0001\uFFFD\"},\n {\"file\": \"b\", \"line\": 2, \"code\": "
            "\"format\", \"severity\": \"error\", \"text\": \"\"}\n]\n");
}

TEST(StringsFindings, AreSortedByFileAndLineAndKeepTheirOrderInALine) {
  StringsFindings findings = {{"b", 1, "x", true, "1"},
                              {"a", 9, "x", true, "2"},
                              {"a", 10, "x", true, "3"},
                              {"a", 9, "a", true, "4"}};
  SortFindings(findings);
  std::string order;
  for (const auto& finding : findings) order += finding.text;
  EXPECT_EQ(order, "2431");
}

}  // namespace
}  // namespace skydata
