// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Whole runs of the programs, in which an allocation fails: of every stretch of a run another one each time.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "programs/program_run.h"
#include "support/temp_dir.h"

namespace program_tests {
namespace {

using test_support::TempDir;
using Words = std::vector<std::string>;

// A command that prints, or that writes files into the folder @.
struct Job {
  std::string program;
  Words arguments;
};

const Job kJobs[] = {
    {"skyview",
     {"draw", "--zone", "Europe/Berlin", "--time", "2026-01-15T22:00", "--save-session", "@/s", "--save-view",
      "@/v.data", "--save-settings", "@/f.data", "--data", CI_BUILT_DATA}},
#if CI_CAN_DRAW
    {"skyview",
     {"--play", "time=10m", "--frames", "2", "--size", "200x100", "--out", "@/%d.png", "--contact-sheet",
      "@/all.png", "--data", CI_BUILT_DATA}},
#endif
    {"skyview", {"where", "Jupiter", "--place", "52,13", "--data", CI_BUILT_DATA}},
    {"skyview", {"favourites", "add", "Sirius", "--work", "@", "--data", CI_BUILT_DATA}},
    {"skyview", {"homes", "store", "--look", "180,30", "--work", "@", "--data", CI_BUILT_DATA}},
    {"skyview", {"body", "Mars", "--language", "ru", "--data", CI_BUILT_DATA}},
    {"skydata", {"lint", CI_BUILT_DATA}},
    {"skydata", {"settings", "dump", CI_BUILT_DATA "/filters.data"}},
    {"skydata", {"settings", "build", CI_DATA_SOURCE "/views/orion.ini", "@/o.data"}},
    {"skydata", {"strings", "check", CI_BUILT_DATA "/languages/de/qxstrings.txt"}},
    {"skydata", {"show", "--json", CI_BUILT_DATA "/catalogs/deepsky.txt"}},
    {"skydata", {"build", CI_DATA_SOURCE, "@/root"}}};

Words FillIn(Words words, const TempDir& dir) {
  for (auto& word : words) {
    if (word.starts_with('@')) word.replace(0, 1, dir.Path("out"));
  }
  return words;
}

ProgramRun RunJob(const Job& job, const TempDir& dir, Words environment) {
  std::filesystem::create_directories(dir.Path("out"));
  std::filesystem::create_directories(dir.Path("temporary"));
  environment.push_back("TMPDIR=" + dir.Path("temporary"));
  environment.push_back("LD_PRELOAD=" CI_FAILING_ALLOCATIONS);
  return RunCommand(job.program, FillIn(job.arguments, dir), {-1, environment});
}

long long CountAllocations(const Job& job) {
  const TempDir dir;
  const ProgramRun run = RunJob(job, dir, {"CI_ALLOCATIONS=" + dir.Path("count")});
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(run.errors, "");
  return std::atoll(dir.Read("count").c_str());
}

// Files that a writer makes beside the one that he is to replace, and those of a moment.
Words FindPartFiles(const TempDir& dir) {
  Words found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(dir.Path("out"))) {
    if (entry.path().extension() == ".tmp") found.push_back(entry.path().filename().string());
  }
  for (const auto& entry : std::filesystem::directory_iterator(dir.Path("temporary")))
    found.push_back(entry.path().filename().string());
  return found;
}

// An allocation that may fail, as std::stable_sort has them, makes no difference: the run then is done.
void ExpectOneLine(const Job& job, long long failAt, bool goesOn) {
  const TempDir dir;
  Words environment = {"CI_FAIL_AT=" + std::to_string(failAt)};
  if (goesOn) environment.push_back("CI_FAIL_ON=1");
  const ProgramRun run = RunJob(job, dir, environment);
  SCOPED_TRACE(job.program + " " + job.arguments[0] + ", allocation " + std::to_string(failAt) +
               (goesOn ? " and all behind it" : "") + "\n" + run.errors);
  EXPECT_EQ(FindPartFiles(dir), Words());
  if (run.status == 0 && !goesOn) {
    EXPECT_EQ(run.errors, "");
    return;
  }
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.GetErrorLine(), "");
}

}  // namespace

// The first ones are made before the main function runs.
TEST(LackOfMemory, EndsEveryRunWithOneLineAndStatusOneAndLeavesNoPartFile) {
  constexpr int kStretches = 24, kFirst = 6;
  const unsigned seed = std::random_device()();
  std::mt19937 random(seed);
  for (const Job& job : kJobs) {
    const long long count = CountAllocations(job);
    SCOPED_TRACE("seed " + std::to_string(seed));
    ASSERT_GT(count, 500) << job.program << " " << job.arguments[0];
    for (long long i = 0; i < kFirst; ++i) ExpectOneLine(job, i, i % 2 == 1);
    for (int i = 0; i < kStretches; ++i) {
      const long long begin = count * i / kStretches, end = count * (i + 1) / kStretches;
      ExpectOneLine(job, begin + static_cast<long long>(random() % static_cast<unsigned>(end - begin)),
                    i % 4 == 3);
    }
    if (HasFailure()) return;
  }
}

// What is there stays as it is, and what a line refuses to answer is not half an answer.
TEST(LackOfMemory, LosesNothingThatIsThere) {
  const Job job = {"skyview", {"favourites", "add", "Sirius", "--work", "@", "--data", CI_BUILT_DATA}};
  const std::string before = "Rigel\t1937006962\t1713\n";
  const long long count = CountAllocations(job);
  for (int i = 0; i < 40; ++i) {
    const TempDir dir;
    dir.Write("out/catalogs/favourites.txt", before);
    const ProgramRun run = RunJob(job, dir, {"CI_FAIL_AT=" + std::to_string(count * (40 + i) / 80)});
    const std::string after = dir.Read("out/catalogs/favourites.txt");
    EXPECT_TRUE(after == before || after == before + "Sirius\t1937006962\t2491\n") << after;
    EXPECT_TRUE(run.status == 0 || run.status == 1) << run.status;
  }
}

}  // namespace program_tests
