// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Files that never end, that are gigantic, or that are none, in the place of every file that the programs
// read.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <thread>

#include <gtest/gtest.h>

#include "programs/command_lines.h"
#include "programs/program_run.h"

namespace program_tests {
namespace {

namespace fs = std::filesystem;
using test_support::TempDir;
using Words = std::vector<std::string>;

constexpr char kBound[] = "holds more than 256 MiB, the most that is read";
// What the bound may take, and what a string takes while it grows, in KiB. Sanitizers take more.
constexpr long kMostMemory = CI_SANITIZED ? 4 << 20 : 1 << 20;

std::string MakeSparseFile(const TempDir& dir, const std::string& name) {
  constexpr off_t kTenGigabytes = 10'000'000'000;
  const std::string path = dir.Write(name, "");
  EXPECT_EQ(truncate(path.c_str(), kTenGigabytes), 0);
  return path;
}

// A run that tells what is wrong with that file in one line, or in one line a check.
void ExpectRefusal(const CommandLine& line, const std::string& file, bool namesBound) {
  const ProgramRun run = RunCommand(line.program, line.arguments);
  const std::string said = run.errors + run.output;
  SCOPED_TRACE(line.Describe() + "\n" + said.substr(0, 1000));
  EXPECT_TRUE(run.status == 1 || run.status == 2) << run.status;
  EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1);
  EXPECT_NE(said.find(file), std::string::npos);
  EXPECT_TRUE(!namesBound || said.find(kBound) != std::string::npos);
  EXPECT_LT(run.mostMemory, kMostMemory);
}

// Each input of each line of skydata, one at a time.
template <class MakeFile>
void RefuseEveryInput(MakeFile makeFile, bool namesBound) {
  const std::size_t count = MakeCommandLines(TempDir()).size();
  int tried = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const TempDir dir;
    const std::string file = makeFile(dir);
    CommandLine line = MakeCommandLines(dir)[i];
    for (const std::size_t input : line.inputs) {
      CommandLine changed = line;
      changed.arguments[input] = file;
      const bool isView = line.program == "skyview";            // its reader moves about in the file
      const bool isStarTable = line.command == "stars import";  // of any length, its lines are bounded
      ExpectRefusal(changed, file, namesBound && !isStarTable && !(isView && file.starts_with("/dev")));
      ++tried;
    }
  }
  EXPECT_GE(tried, 17);
}

// What skyview reads: /dev/zero has no length, and a reader that moves about in a file wants one.
bool IsRead(const std::string& option) { return option == "--tle" || option == "--session"; }

void RefuseEveryOption(const std::string& file, bool namesBound, const TempDir& dir) {
  const auto options = ListFileOptions(dir);
  EXPECT_GE(options.size(), 8u);
  for (const auto& option : options) {
    CommandLine line = {"skyview", option.name, option.before, {}};
    line.arguments.insert(line.arguments.end(), {option.name, file});
    ExpectRefusal(line, file, namesBound && IsRead(option.name));
  }
}

// The data root of the build, file by file as links to it.
void LinkDataRoot(const TempDir& dir) {
  for (const auto& entry : fs::recursive_directory_iterator(CI_BUILT_DATA)) {
    const fs::path place = dir.Path("data") / fs::relative(entry.path(), CI_BUILT_DATA);
    if (entry.is_directory()) continue;
    fs::create_directories(place.parent_path());
    fs::create_symlink(entry.path(), place);
  }
}

std::vector<fs::path> ListDataFiles() {
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator(CI_BUILT_DATA)) {
    if (entry.is_regular_file() && !entry.path().string().ends_with(".source.md"))
      files.push_back(fs::relative(entry.path(), CI_BUILT_DATA));
  }
  return files;
}

// All that a picture and its report can be made of.
Words MakeRichView(const TempDir& dir) {
  return {"--data",
          dir.Path("data"),
          "--work",
          dir.Path("work"),
          "--time",
          "2026-01-15T22:00",
          "--zone",
          "Europe/Berlin",
          "--place",
          "52,13",
          "--tle",
          "catalogs:satellites.tle",
          "--showers",
          "--orbits",
          "all",
          "--frames-of",
          "constellations,deepsky,milkyway"};
}

// Done, or refused with one line that names the file; other lines may name it too.
void ExpectDoneOrRefused(const Words& arguments, const std::string& file) {
  const ProgramRun run = RunCommand("skyview", arguments);
  SCOPED_TRACE(file + "\n" + run.errors.substr(0, 1000));
  EXPECT_LE(run.status, 1);
  EXPECT_LT(run.mostMemory, kMostMemory);
  if (run.status == 0) return;
  EXPECT_NE(run.GetErrorLine(), "");
  EXPECT_NE(run.errors.find(file), std::string::npos);
}

}  // namespace

TEST(EndlessFiles, EndlessInputOfEveryCommandIsRefusedWithTheBound) {
  RefuseEveryInput([](const TempDir&) { return std::string("/dev/zero"); }, true);
}

TEST(EndlessFiles, GiganticInputOfEveryCommandIsRefusedWithTheBound) {
  RefuseEveryInput([](const TempDir& dir) { return MakeSparseFile(dir, "gigantic"); }, true);
}

TEST(EndlessFiles, FolderInPlaceOfAnInputIsRefused) {
  RefuseEveryInput([](const TempDir& dir) { return dir.Path("root"); }, false);
}

TEST(EndlessFiles, EveryOptionThatTakesAFileRefusesAnEndlessOne) {
  const TempDir dir;
  RefuseEveryOption("/dev/zero", true, dir);
}

TEST(EndlessFiles, EveryOptionThatReadsAFileRefusesAGiganticOne) {
  const TempDir dir;
  const std::string file = MakeSparseFile(dir, "gigantic");
  for (const char* option : {"--tle", "--session", "--settings", "--view"}) {
    ExpectRefusal({"skyview", option, {"--data", CI_BUILT_DATA, option, file}, {}}, file, true);
  }
}

// Whoever writes into it never stops.
TEST(EndlessFiles, PipeThatNeverEndsIsRefused) {
  const TempDir dir;
  const std::string pipe = dir.Path("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const auto usual = std::signal(SIGPIPE, SIG_IGN);
  std::thread writer([&pipe] {
    const int end = open(pipe.c_str(), O_WRONLY | O_CLOEXEC);
    const std::string lines(1 << 16, '\n');
    while (write(end, lines.data(), lines.size()) > 0) {
    }
    close(end);
  });
  ExpectRefusal({"skyview", "", {"--data", CI_BUILT_DATA, "--tle", pipe}, {}}, pipe, true);
  writer.join();
  std::signal(SIGPIPE, usual);
}

TEST(EndlessFiles, StandardInputIsBoundedToo) {
  const TempDir dir;
  const std::string command = std::string(CI_PROGRAM_FOLDER) + "/skydata settings dump - < /dev/zero 2> " +
                              dir.Path("errors") + " > " + dir.Path("output");
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
  EXPECT_EQ(dir.Read("errors"), std::string("standard input: ") + kBound + "\n");
  EXPECT_EQ(dir.Read("output"), "");
}

TEST(EndlessFiles, EveryFileOfTheDataRootMayBeEndless) {
  const TempDir dir;
  LinkDataRoot(dir);
  int tried = 0;
  for (const fs::path& file : ListDataFiles()) {
    const fs::path place = dir.Path("data") / file;
    fs::remove(place);
    fs::create_symlink("/dev/zero", place);
    ExpectDoneOrRefused(MakeRichView(dir), file.filename().string());
    fs::remove(place);
    fs::create_symlink(CI_BUILT_DATA / file, place);
    ++tried;
  }
  EXPECT_GE(tried, 25);
}

TEST(EndlessFiles, EveryFileOfTheWorkAreaMayBeEndless) {
  const TempDir dir;
  LinkDataRoot(dir);
  fs::create_directories(dir.Path("work/catalogs"));
  for (const char* file : {"home_params.ini", "catalogs/favourites.txt", "catalogs/observationobjects.txt"}) {
    fs::create_symlink("/dev/zero", dir.Path("work") / fs::path(file));
    const std::string name = fs::path(file).filename().string();
    ExpectDoneOrRefused(MakeRichView(dir), name);
    for (const char* command : {"homes", "favourites"})
      ExpectDoneOrRefused({command, "--data", dir.Path("data"), "--work", dir.Path("work")}, name);
    fs::remove(dir.Path("work") / fs::path(file));
  }
}

TEST(EndlessFiles, LintNamesEveryGiganticFileAndTheBound) {
  const TempDir dir;
  const std::string gigantic = MakeSparseFile(dir, "gigantic");
  const auto files = ListDataFiles();
  std::ptrdiff_t known = 0, mapped = 0;
  for (const fs::path& file : files) {
    const fs::path place = dir.Path("root") / file;
    fs::create_directories(place.parent_path());
    fs::create_symlink(gigantic, place);
    const bool isPicture = file.extension() == ".svg" || file.extension() == ".jpg";
    known += isPicture ? 0 : 1;  // those are looked for, not read
    // These may have any length, and are none of their kind here.
    mapped += file.extension() == ".tiles" || file.extension() == ".prepared" ? 1 : 0;
  }
  const ProgramRun run = RunCommand("skydata", {"lint", dir.Path("root")});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(std::count(run.output.begin(), run.output.end(), '\n'), known) << run.output;
  std::ptrdiff_t refused = 0;
  for (std::size_t at = 0; (at = run.output.find(kBound, at)) != std::string::npos; ++at) ++refused;
  EXPECT_EQ(refused, known - mapped) << run.output;
}

}  // namespace program_tests
