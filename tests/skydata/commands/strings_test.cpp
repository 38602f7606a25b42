// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <set>
#include <sstream>

#include "skydata/command_line.h"
#include "tests/skydata/strings/fixture.h"

namespace skydata {
namespace {

using skydata_test::StringsText;

class StringsCommand : public skydata_test::StringsTest {
 protected:
  // Runs "skydata strings ..."; what it prints is in m_Output and m_Errors.
  int RunStrings(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "strings");
    std::ostringstream output, errors;
    const int code = skydata::Run(arguments, output, errors);
    m_Output = output.str();
    m_Errors = errors.str();
    return code;
  }
  std::string m_Output, m_Errors;
};

TEST_F(StringsCommand, CheckOfGoodTablesPrintsNothingAndEndsWithZero) {
  const std::string english = m_Dir.Write("en/s.txt", skydata_test::ReadShippedStrings("en"));
  const std::string russian = m_Dir.Write("ru/s.txt", skydata_test::ReadShippedStrings("ru"));
  EXPECT_EQ(RunStrings({"check", english, russian}), kDone);
  EXPECT_EQ(m_Output + m_Errors, "");
}

// By the reader itself, which quotes the file.
TEST_F(StringsCommand, ShowTellsEachFaultOfTheTableOnceInOneLine) {
  m_Dir.Write("data/languages/en/qxstrings.txt", "7200\tone\n7200\ttwo\x1B\n");
  EXPECT_EQ(RunStrings({"show", "--data", m_Dir.Path("data"), "--language", "en"}), kDone);
  EXPECT_EQ(m_Errors.substr(0, m_Errors.find('\n')), "Strings conflict, ID = 7200 Old: one New: two\\x1B");
  std::istringstream lines(m_Errors);
  std::set<std::string> told;
  for (std::string line; std::getline(lines, line);) EXPECT_TRUE(told.insert(line).second) << line;
  EXPECT_GT(told.size(), 10u);
}

TEST_F(StringsCommand, CheckPrintsALineForEachFindingAndEndsWithOne) {
  StringsText text;
  const std::string line = std::to_string(text.NextLine());
  const std::string path = m_Dir.Write("en/s.txt", text.Append("8123\t\\q").Get());
  EXPECT_EQ(RunStrings({"check", path}), kBadData);
  EXPECT_EQ(m_Output, path + ":" + line +
                          ": warning: a backslash stands for itself unless n, t, \\ or \" follows: write it "
                          "twice [escape]\n" +
                          path + ":" + line + ": warning: nothing uses 8123 [unused]\n");
}

TEST_F(StringsCommand, CheckComparesTheFilesItIsGiven) {
  const std::string english = m_Dir.Write("en/s.txt", StringsText().Append("900500\tDay").Get());
  const std::string other = m_Dir.Write("xx/s.txt", StringsText().Get());
  EXPECT_EQ(RunStrings({"check", english, other}), kBadData);
  EXPECT_NE(m_Output.find("error: 900500 is missing, " + english + " has it [untranslated]\n"),
            std::string::npos);
  EXPECT_EQ(std::count(m_Output.begin(), m_Output.end(), '\n'), 1);
}

TEST_F(StringsCommand, CheckTakesLanguageAndEncoding) {
  const std::string path = m_Dir.Write("s.txt", StringsText().Append("900500\t\xE4").Get());
  EXPECT_EQ(RunStrings({"check", path, "--language", "en", "--encoding", "utf-8"}), kBadData);
  EXPECT_NE(m_Output.find("[encoding]"), std::string::npos);
  EXPECT_EQ(RunStrings({"check", path, "--encoding", "latin"}), kBadUsage);
}

TEST_F(StringsCommand, AFileThatCannotBeReadIsAFinding) {
  EXPECT_EQ(RunStrings({"check", "--json", m_Dir.Path("none.txt")}), kBadData);
  EXPECT_NE(m_Output.find("\"code\": \"unreadable\""), std::string::npos);
  EXPECT_EQ(m_Errors, "");
}

TEST_F(StringsCommand, CheckWritesJsonEvenWhenNothingIsWrong) {
  const std::string path = m_Dir.Write("en/s.txt", StringsText().Get());
  EXPECT_EQ(RunStrings({"check", "--json", path}), kDone);
  EXPECT_EQ(m_Output, "[]\n");
}

TEST_F(StringsCommand, PseudoWritesToTheOutputOrToAFile) {
  const std::string path = m_Dir.Write("en/s.txt", "13063\tday\n");
  EXPECT_EQ(RunStrings({"pseudo", path}), kDone);
  EXPECT_EQ(m_Output, "13063\t[\u00F0\u00E1\u00FD~]\n");
  EXPECT_EQ(RunStrings({"pseudo", path, "--out", m_Dir.Path("xx/s.txt")}), kDone);
  EXPECT_EQ(m_Output, "");
  EXPECT_EQ(m_Dir.Read("xx/s.txt"), "13063\t[\u00F0\u00E1\u00FD~]\n");
}

TEST_F(StringsCommand, BadUsageIsOneLineAndExitCodeTwo) {
  for (const auto& arguments :
       std::vector<std::vector<std::string>>{{},
                                             {"chek"},
                                             {"check"},
                                             {"show"},
                                             {"show", "--data", "x"},
                                             {"show", "a", "--data", "x", "--language", "en"},
                                             {"pseudo"},
                                             {"pseudo", "a", "b"},
                                             {"list", "a"}}) {
    EXPECT_EQ(RunStrings(arguments), kBadUsage) << arguments.size();
    EXPECT_EQ(std::count(m_Errors.begin(), m_Errors.end(), '\n'), 1) << m_Errors;
    EXPECT_EQ(m_Output, "");
  }
}

TEST_F(StringsCommand, HelpIsThatOfTheInnermostCommand) {
  EXPECT_EQ(RunStrings({"check", "--help"}), kDone);
  EXPECT_NE(m_Output.find("--encoding"), std::string::npos);
}

TEST_F(StringsCommand, ShowOfALanguageWithoutADataRootNamesThePlace) {
  EXPECT_EQ(RunStrings({"show", "--language", "en", "--data", m_Dir.Path("none")}), kBadData);
  EXPECT_NE(m_Errors.find("qxstrings.txt: not found"), std::string::npos);
}

}  // namespace
}  // namespace skydata
