// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <ostream>

#include "skydata/lint/lint.h"
#include "support/temp_dir.h"
#include "tests/skydata/lint/damaged_cases.h"

namespace skydata {
namespace {

using skydata_test::DamagedCase;

const std::vector<DamagedCase>& AllCases() {
  static const std::vector<DamagedCase> s_Cases = skydata_test::ReadAllCases(CI_DAMAGED_FILES);
  return s_Cases;
}

class DamagedFiles : public testing::TestWithParam<int> {};

TEST_P(DamagedFiles, AreToldToTheLetter) {
  const DamagedCase& one = AllCases()[static_cast<std::size_t>(GetParam())];
  const test_support::TempDir dir;
  for (const auto& [name, bytes] : one.files) dir.Write("root/" + name, bytes);
  std::string found;
  for (const LintFinding& finding : Lint(dir.Path("root"))) found += FormatFinding("", finding);
  EXPECT_EQ(found, one.wanted);
}

INSTANTIATE_TEST_SUITE_P(Corpus, DamagedFiles, testing::Range(0, static_cast<int>(AllCases().size())),
                         [](const testing::TestParamInfo<int>& tested) {
                           return AllCases()[static_cast<std::size_t>(tested.param)].name;
                         });

TEST(DamagedFilesCorpus, HasSixtyDamagedFilesAndAControlForEachKind) {
  int damaged = 0, whole = 0;
  for (const DamagedCase& one : AllCases()) ++(one.wanted.empty() ? whole : damaged);
  EXPECT_GE(damaged, 60);
  EXPECT_GE(whole, 13);
}

// Nothing is written: neither a list that is missing is made, nor a file touched.
TEST(DamagedFilesCorpus, IsLeftAsItWas) {
  for (const DamagedCase& one : AllCases()) {
    const test_support::TempDir dir;
    for (const auto& [name, bytes] : one.files) dir.Write("root/" + name, bytes);
    Lint(dir.Path("root"));
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(dir.Path("root"))) {
      count += entry.is_regular_file() ? 1 : 0;
    }
    EXPECT_EQ(count, one.files.size()) << one.name;
    for (const auto& [name, bytes] : one.files) EXPECT_EQ(dir.Read("root/" + name), bytes) << one.name;
  }
}

}  // namespace
}  // namespace skydata
