// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/command_line.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/skydata/source_text.h"
#include "tests/support/full_stream.h"

namespace skydata {
namespace {

struct Result {
  int code;
  std::string output, errors;
};

Result RunWith(const std::vector<std::string>& arguments) {
  std::ostringstream output, errors;
  const int code = Run(arguments, output, errors);
  return {code, output.str(), errors.str()};
}

TEST(CommandLine, HelpNamesTheCommandsAndTheirArguments) {
  const Result program = RunWith({"--help"});
  EXPECT_EQ(program.code, kDone);
  EXPECT_NE(program.output.find("build"), std::string::npos);
  const Result build = RunWith({"build", "--help"});
  EXPECT_EQ(build.code, kDone);
  EXPECT_NE(build.output.find("SOURCE"), std::string::npos);
  EXPECT_NE(build.output.find("OUT"), std::string::npos);
  EXPECT_TRUE(program.errors.empty() && build.errors.empty());
}

TEST(CommandLine, VersionIsThatOfTheProject) {
  const Result version = RunWith({"--version"});
  EXPECT_EQ(version.code, kDone);
  EXPECT_EQ(version.output, "skydata " CI_VERSION "\n");
}

TEST(CommandLine, BadUsageIsOneLineAndExitCodeTwo) {
  for (const auto& arguments : std::vector<std::vector<std::string>>{{},
                                                                     {"make"},
                                                                     {"build"},
                                                                     {"build", "a"},
                                                                     {"build", "a", "b", "c"},
                                                                     {"build", "a", "b", "--fast"}}) {
    const Result result = RunWith(arguments);
    EXPECT_EQ(result.code, kBadUsage);
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
    EXPECT_TRUE(result.output.empty());
  }
}

TEST(CommandLine, AMissingSourceIsExitCodeOne) {
  const test_support::TempDir dir;
  const Result result = RunWith({"build", dir.Path("none"), dir.Path("out")});
  EXPECT_EQ(result.code, kBadData);
  EXPECT_EQ(result.errors, dir.Path("none") + ": no such folder\n");
  EXPECT_FALSE(std::filesystem::exists(dir.Path("out")));
}

TEST(CommandLine, BuildSaysHowManyFilesItWrote) {
  const test_support::TempDir dir;
  const Result result = RunWith({"build", CI_DATA_SOURCE, dir.Path("out")});
  EXPECT_EQ(result.code, kDone) << result.errors;
  int count = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(dir.Path("out"))) {
    count += entry.is_regular_file() ? 1 : 0;
  }
  EXPECT_GE(count, 20);
  EXPECT_EQ(result.output, dir.Path("out") + ": " + std::to_string(count) + " files\n");
}

TEST(CommandLine, ALanguageWithoutTextsIsExitCodeOne) {
  const test_support::TempDir dir;
  const Result result = RunWith({"build", CI_DATA_SOURCE, dir.Path("out"), "--language", "xx"});
  EXPECT_EQ(result.code, kBadData);
  EXPECT_NE(result.errors.find("xx"), std::string::npos);
}

TEST(CommandLine, NothingCountsAsSaidThatCouldNotBeWritten) {
  const test_support::TempDir dir;
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{"--version"}, {"--help"}, {"build", CI_DATA_SOURCE, dir.Path("out")}}) {
    for (const int room : {0, 5}) {
      test_support::FullStream output(room);
      std::ostringstream errors;
      EXPECT_EQ(skydata::Run(arguments, output, errors), kBadData);
      EXPECT_EQ(errors.str(), "skydata: standard output: cannot be written\n");
    }
  }
}

}  // namespace
}  // namespace skydata
