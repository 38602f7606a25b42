// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Binary files in the place of every file that the programs read: what they print may stand on a terminal.
#include <algorithm>
#include <random>

#include <gtest/gtest.h>

#include "programs/command_lines.h"
#include "programs/program_run.h"

namespace program_tests {
namespace {

using test_support::TempDir;
using Words = std::vector<std::string>;

// Where text stops being well-formed UTF-8 without control characters, line ends and tabs aside; npos where
// it does not. By the rules of RFC 3629 and ISO 6429: a terminal obeys C0, DEL and C1.
std::size_t FindHarm(const std::string& text) {
  const auto isTail = [&text](std::size_t at, unsigned char least, unsigned char most) {
    const auto byte = static_cast<unsigned char>(at < text.size() ? text[at] : 0);
    return byte >= least && byte <= most;
  };
  for (std::size_t at = 0; at < text.size();) {
    const auto first = static_cast<unsigned char>(text[at]);
    std::size_t length = 0;
    if (first == '\n' || first == '\t' || (first >= ' ' && first < 0x7F)) length = 1;
    if (first == 0xC2 && isTail(at + 1, 0xA0, 0xBF)) length = 2;
    if (first >= 0xC3 && first <= 0xDF && isTail(at + 1, 0x80, 0xBF)) length = 2;
    const unsigned char low = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
    const unsigned char high = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
    const bool isSecond = isTail(at + 1, low, high), isThird = isTail(at + 2, 0x80, 0xBF);
    if (first >= 0xE0 && first <= 0xEF && isSecond && isThird) length = 3;
    if (first >= 0xF0 && first <= 0xF4 && isSecond && isThird && isTail(at + 3, 0x80, 0xBF)) length = 4;
    if (length == 0) return at;
    at += length;
  }
  return std::string::npos;
}

// All bytes, in lines with and without fields, in an order of their own.
std::string MakeNoise(unsigned seed) {
  std::mt19937 random(seed);
  std::string noise;
  for (int i = 0; i < 4000; ++i)
    noise += static_cast<char>(random() % 8 == 0 ? "\n\t ;|,"[random() % 6] : random());
  return noise + "\x1B[2J\x9B\x07\r\x7F";
}

// The file with every ninth byte or so of its texts made one that harms.
std::string Spoil(std::string text, unsigned seed) {
  constexpr char kHarm[] = {'\x1B', '\x07', '\x7F', '\x80', '\x9B', '\xC2', '\xFF', '\r', '\1'};
  std::mt19937 random(seed);
  for (char& byte : text) {
    if (byte > ' ' && byte != '|' && random() % 9 == 0) byte = kHarm[random() % sizeof kHarm];
  }
  return text;
}

void ExpectHarmless(const CommandLine& line, bool isBytes = false) {
  const ProgramRun run = RunCommand(line.program, line.arguments);
  EXPECT_LE(run.status, 2) << line.Describe();
  EXPECT_EQ(FindHarm(run.errors), std::string::npos) << line.Describe();
  EXPECT_TRUE(isBytes || FindHarm(run.output) == std::string::npos) << line.Describe();
}

// Whose output is a file.
bool WritesBytes(const std::string& command) {
  return command == "settings build" || command == "strings pseudo";
}

std::vector<std::string> MakeBadFiles(const TempDir& dir, const std::string& name, const std::string& good) {
  const std::string folder = "bad/" + std::to_string(name.size());
  return {dir.Write(folder + "/1/" + name, MakeNoise(1)), dir.Write(folder + "/2/" + name, Spoil(good, 2)),
          dir.Write(folder + "/3/" + name, Spoil(good.substr(0, good.size() / 2), 3))};
}

std::string ReadAll(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

TEST(BinaryFiles, HarmIsFound) {
  EXPECT_EQ(FindHarm("abc\t\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80\n"), std::string::npos);
  for (const char* harm : {"a\x1B", "a\r", "a\x7F", "a\x80", "a\xC2\x9B", "a\xC3", "a\xE0\x80\x80", "a\xFF"})
    EXPECT_EQ(FindHarm(harm), 1u);
}

TEST(BinaryFiles, NoInputOfACommandReachesTheTerminal) {
  const std::size_t count = MakeCommandLines(TempDir()).size();
  int tried = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const TempDir dir;
    const CommandLine line = MakeCommandLines(dir)[i];
    for (const std::size_t input : line.inputs) {
      const std::string good = ReadAll(line.arguments[input]);
      const std::string name = std::filesystem::path(line.arguments[input]).filename().string();
      for (const std::string& bad : MakeBadFiles(dir, name, good)) {
        CommandLine changed = line;
        changed.arguments[input] = bad;
        ExpectHarmless(changed, WritesBytes(line.command));
        ++tried;
      }
    }
  }
  EXPECT_GE(tried, 50);
}

TEST(BinaryFiles, NoFileOfAnOptionReachesTheTerminal) {
  const TempDir dir;
  const std::string data = CI_BUILT_DATA;
  const std::pair<const char*, std::string> options[] = {
      {"--tle", ReadAll(data + "/catalogs/satellites.tle")},
      {"--settings", ReadAll(data + "/filters.data")},
      {"--view", ReadAll(data + "/views/orion.data")},
      {"--session", "skyview session 1\nlanguage \x1B\n"}};
  for (const auto& [option, good] : options) {
    for (const std::string& bad : MakeBadFiles(dir, option, good))
      ExpectHarmless({"skyview", option, {"--data", data, option, bad}, {}});
  }
}

// Through skyview, which reads them, and through lint and show, which quote them.
TEST(BinaryFiles, NoFileOfTheDataRootReachesTheTerminal) {
  const TempDir dir;
  const std::string root = dir.Path("data");
  std::filesystem::copy(CI_BUILT_DATA, root, std::filesystem::copy_options::recursive);
  int tried = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(CI_BUILT_DATA)) {
    if (!entry.is_regular_file() || entry.path().string().ends_with(".source.md")) continue;
    const std::string name = std::filesystem::relative(entry.path(), CI_BUILT_DATA).generic_string();
    const std::string good = ReadAll(entry.path().string());
    dir.Write("data/" + name, Spoil(good, 5));
    dir.Write("spoiled/" + name, Spoil(good, 5));
    const Words roots = {"--data", root, "--work", dir.Path("work")};
    Words rich = {"--time",
                  "2026-01-15T22:00",
                  "--place",
                  "52,13",
                  "--showers",
                  "--orbits",
                  "all",
                  "--frames-of",
                  "constellations,deepsky,milkyway",
                  "--tle",
                  "catalogs:satellites.tle"};
    rich.insert(rich.end(), roots.begin(), roots.end());
    ExpectHarmless({"skyview", name, rich, {}});
    ExpectHarmless({"skydata", name, {"show", root + "/" + name}, {}});
    ExpectHarmless({"skydata", name, {"show", "--json", root + "/" + name}, {}});
    dir.Write("data/" + name, good);
    ++tried;
  }
  EXPECT_GE(tried, 25);
  ExpectHarmless({"skydata", "a root of which every file is spoiled", {"lint", dir.Path("spoiled")}, {}});
}

TEST(BinaryFiles, NoFileOfTheWorkAreaReachesTheTerminal) {
  const TempDir dir;
  const std::string homes = "1\n0 2 0 0.15 0.87 1 2 1836019566 \x1B[2J\xFF\n";
  for (const std::string& content : {MakeNoise(7), std::string("\x1B[2J\x9B\t1937006962\t1713\n"), homes}) {
    for (const char* file : {"home_params.ini", "catalogs/favourites.txt"}) {
      dir.Write(std::string("work/") + file, content);
      for (const char* command : {"draw", "homes", "favourites"})
        ExpectHarmless({"skyview", file, {command, "--data", CI_BUILT_DATA, "--work", dir.Path("work")}, {}});
    }
  }
}

}  // namespace program_tests
