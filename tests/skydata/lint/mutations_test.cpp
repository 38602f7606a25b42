// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Whatever is done to a file, the rules and the library's readers agree on it: no reader complains where
// there is no finding, and none gets more or less of a file in which nothing is wrong.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <random>

#include "skydata/lint/lint.h"
#include "support/temp_dir.h"
#include "tests/skydata/lint/damaged_cases.h"

namespace skydata {
namespace {

using Random = std::mt19937;

std::size_t Pick(Random& random, std::size_t count) { return random() % std::max<std::size_t>(count, 1); }

// One change of the kinds that editors, transfers and disks make.
void Mutate(std::string& bytes, Random& random) {
  static const std::string kPieces[] = {"\t",
                                        "\n",
                                        "\r\n",
                                        " ",
                                        "-",
                                        "0",
                                        "99999999999",
                                        "x",
                                        "\xFF",
                                        std::string(1, '\0'),
                                        std::string(300, 'a')};
  const std::size_t at = Pick(random, bytes.size());
  switch (Pick(random, 4)) {
    case 0:
      bytes.insert(at, kPieces[Pick(random, std::size(kPieces))]);
      break;
    case 1:
      bytes.erase(at, 1 + Pick(random, 12));
      break;
    case 2:
      if (!bytes.empty()) bytes[at] = static_cast<char>(random());
      break;
    default:
      bytes.resize(at);
  }
}

// Findings that mean that rules and readers do not agree.
std::string FindDisagreement(const std::filesystem::path& root) {
  std::string lines;
  for (const LintFinding& finding : Lint(root)) {
    if (finding.code.starts_with("reader-")) lines += FormatFinding("", finding);
  }
  return lines;
}

TEST(LintMutations, RulesAndReadersAgreeOnWhateverAFileHolds) {
  Random random(20260117);  // the same changes each time
  for (const skydata_test::DamagedCase& one : skydata_test::ReadAllCases(CI_DAMAGED_FILES)) {
    if (!one.wanted.empty()) continue;
    for (int round = 0; round < 20; ++round) {
      const test_support::TempDir dir;
      std::string shown;
      for (const auto& [name, original] : one.files) {
        std::string bytes = original;
        for (std::size_t i = 0; i <= Pick(random, 3); ++i) Mutate(bytes, random);
        dir.Write("root/" + name, bytes);
        shown += name + ": " + testing::PrintToString(bytes) + "\n";
      }
      ASSERT_EQ(FindDisagreement(dir.Path("root")), "") << one.name << "\n" << shown;
    }
  }
}

}  // namespace
}  // namespace skydata
