// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/findings.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "skydata/lint/reader_watch.h"
#include "tests/skydata/lint/damaged_cases.h"
#include "utils/debug.h"

namespace skydata {
namespace {

// Lines of the table of codes in the page: | `code` | severity | ...
std::vector<std::pair<std::string, std::string>> ReadPageCodes() {
  std::vector<std::pair<std::string, std::string>> codes;
  std::ifstream page(CI_LINT_PAGE);
  for (std::string line; std::getline(page, line);) {
    const auto end = line.find("` | ", 3);
    if (!line.starts_with("| `") || end == std::string::npos) continue;
    const auto severity = end + 4;
    codes.emplace_back(line.substr(3, end - 3), line.substr(severity, line.find(' ', severity) - severity));
  }
  return codes;
}

TEST(LintCodes, ThePageListsAllOfThemInTheirOrder) {
  std::vector<std::pair<std::string, std::string>> codes;
  for (const LintKind& kind : GetLintKinds()) codes.emplace_back(kind.code, NameOf(kind.severity));
  EXPECT_EQ(ReadPageCodes(), codes);
}

TEST(LintCodes, TheTableIsInTheOrderOfTheEnumeration) {
  EXPECT_STREQ(KindOf(LintCode::kUnreadable).code, "unreadable");
  EXPECT_STREQ(KindOf(LintCode::kLongLine).code, "long-line");
  EXPECT_STREQ(KindOf(LintCode::kUnknownKind).code, "unknown-kind");
  EXPECT_STREQ(KindOf(LintCode::kNeverFound).code, "never-found");
  EXPECT_STREQ(KindOf(LintCode::kTrailingBytes).code, "trailing-bytes");
  EXPECT_STREQ(KindOf(LintCode::kReaderDiffers).code, "reader-differs");
  EXPECT_EQ(GetLintKinds().size(), static_cast<std::size_t>(LintCode::kReaderDiffers) + 1);
}

TEST(LintCodes, AreWordsJoinedByHyphensAndStandOnce) {
  std::set<std::string> codes;
  for (const LintKind& kind : GetLintKinds()) {
    EXPECT_EQ(std::string(kind.code).find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string::npos)
        << kind.code;
    EXPECT_TRUE(codes.insert(kind.code).second) << kind.code;
  }
}

// Codes that no small file leads to: a file that the system does not open, and faults of the readers
// themselves.
TEST(LintCodes, AlmostAllHaveAFileInTheCorpus) {
  std::string wanted;
  for (const auto& one : skydata_test::ReadAllCases(CI_DAMAGED_FILES)) wanted += one.wanted;
  const std::set<std::string> without = {"unreadable", "reader-message", "reader-differs"};
  for (const LintKind& kind : GetLintKinds()) {
    const bool isThere = wanted.find(std::string(": ") + kind.code + ": ") != std::string::npos;
    EXPECT_EQ(isThere, without.count(kind.code) == 0) << kind.code;
  }
}

LintFinding MakeFinding(const char* file, int line, int column, const char* text) {
  return {file, line, column, Severity::kError, "unit", text};
}

TEST(LintFindings, AreLinesThatEditorsUnderstand) {
  EXPECT_EQ(FormatFinding("root", MakeFinding("a/b.txt", 3, 7, "what")),
            "root/a/b.txt:3:7: error: unit: what\n");
  EXPECT_EQ(FormatFinding("", MakeFinding("b.txt", 0, 0, "what")), "b.txt:0:0: error: unit: what\n");
  EXPECT_EQ(FormatFinding("/", MakeFinding("b.txt", 0, 0, "what")), "/b.txt:0:0: error: unit: what\n");
}

TEST(LintFindings, AreOneJsonArray) {
  EXPECT_EQ(FormatFindingsAsJson("r", {}), "[]\n");
  EXPECT_EQ(
      FormatFindingsAsJson("r", {MakeFinding("a", 1, 2, "\"x\"\xFF"), MakeFinding("b", 3, 4, "y")}),
      "[\n {\"file\": \"r/a\", \"line\": 1, \"column\": 2, \"severity\": \"error\", \"code\": \"unit\", "
      "\"text\": \"\\\"x\\\"\uFFFD\"},\n {\"file\": \"r/b\", \"line\": 3, \"column\": 4, \"severity\": "
      "\"error\", \"code\": \"unit\", \"text\": \"y\"}\n]\n");
}

TEST(LintFindings, AreSortedByFileLineAndColumn) {
  LintFindings findings = {MakeFinding("b", 1, 1, "6"), MakeFinding("a", 10, 1, "5"),
                           MakeFinding("a", 9, 2, "3"), MakeFinding("a", 9, 2, "4"),
                           MakeFinding("a", 9, 1, "2"), MakeFinding("a", 0, 0, "1")};
  SortFindings(findings);
  std::string order;
  for (const LintFinding& finding : findings) order += finding.text;
  EXPECT_EQ(order, "123456");
}

const TextLines kLines = {{1, "plnt\t1"}, {2, ""}, {3, "moon\t301\tMoon"}};

TEST(ReaderMessages, OfALineWithoutAFindingAreFindings) {
  LintFindings findings;
  LintReport report("file", findings);
  report.Add(LintCode::kTooFewFields, 1, 1, "");
  const ReaderWatch watch;
  PrintDebugString("Bad string (plnt\t1) in file x\n");
  PrintDebugString("Bad string (moon\t301\tMoon) in file x\n");
  PrintDebugString("Bad string () in file x\n");
  AddMessages(watch, kLines, report);
  ASSERT_EQ(findings.size(), 3u);
  EXPECT_EQ(findings[1].code, "reader-message");
  EXPECT_EQ(findings[1].text, "its reader says: Bad string (moon\t301\tMoon) in file x");
  EXPECT_EQ(findings[2].text, "its reader says: Bad string () in file x");
}

TEST(ReaderMessages, AreToldByAFindingAboutTheWholeFile) {
  LintFindings findings;
  LintReport report("file", findings);
  report.Add(LintCode::kFileSize, 0, 0, "");
  const ReaderWatch watch;
  PrintDebugString("Bad file size of file x \n");
  AddMessages(watch, kLines, report);
  EXPECT_EQ(findings.size(), 1u);
}

TEST(ReaderMessages, OfAReaderWithoutLinesAreToldByAnyFinding) {
  LintFindings findings;
  const ReaderWatch watch;
  PrintDebugString("Something\n");
  LintReport other("other", findings);
  other.Add(LintCode::kDuplicate, 1, 1, "");
  LintReport report("file", findings);
  AddMessages(watch, {}, report);
  ASSERT_EQ(findings.size(), 2u);
  EXPECT_EQ(findings[1].file, "file");
  AddMessages(watch, {}, report);
  EXPECT_EQ(findings.size(), 2u);
}

}  // namespace
}  // namespace skydata
