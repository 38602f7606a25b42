// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "programs/command_lines.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string_view>

#include "programs/program_run.h"
#include "skydata/commands/command.h"
#include "skyview/commands/command_table.h"

namespace program_tests {
namespace {

using test_support::TempDir;
using Words = std::vector<std::string>;

// What stands behind the words of a command; an input file is marked with '<' in front.
using Endings = std::multimap<std::string, Words>;

Endings MakeSkyviewEndings(const TempDir& dir) {
  const std::string data = CI_BUILT_DATA, work = dir.Path("work");
  dir.Write("work/catalogs/favourites.txt", "Rigel\t1937006962\t1713\n");
  Endings endings = {{"draw", {"--time", "2026-01-15T22:00Z"}},
                     {"draw", {"--view", "<" + data + "/views/orion.data"}},
                     {"where", {"Jupiter"}},
                     {"why", {"M31"}},
                     {"at", {"498,466"}},
                     {"body", {"Mars"}},
                     {"tonight", {"--time", "2027-02-10"}},
                     {"events", {"2027-03"}},
                     {"year", {"2027"}},
                     {"limits", {}},
                     {"homes show", {"--work", work}},
                     {"homes store", {"--look", "180,30", "--work", work}},
                     {"favourites show", {"--work", work}},
                     {"favourites add", {"Sirius", "--work", work}},
                     {"favourites remove", {"Rigel", "--work", work}},
                     {"languages", {}}};
  endings.insert({"curve", {"Algol", "--out", dir.Path("curve.svg")}});
  endings.insert({"moons", {"2027-03", "--out", dir.Path("moons.svg")}});
  endings.insert({"events", {"2027-03", "--format", "ics", "--out", dir.Path("events.ics")}});
  for (auto& [command, words] : endings) words.insert(words.end(), {"--data", data});
  return endings;
}

// A settings file of the layout before today's: one block with two sections and three fields.
std::string MakeOldSettings() {
  constexpr std::string_view kBytes =
      "535245560100000052544c4601000000020072617473ffffffff000001000164697267ffffffff020002000103000000380000"
      "00"
      "726174735669734d61676e697475646500000000000000000000000000000000000000000602000100000001ffffffff000000"
      "c0"
      "000040403200000072617473447261770000000000000000000000000000000000000000000000000000000002010000000000"
      "00"
      "ffffffff01003200000064697267436f6d70617373000000000000000000000000000000000000000000000000000201000000"
      "00"
      "0000ffffffff0000";
  std::string bytes;
  for (std::size_t at = 0; at < kBytes.size(); at += 2)
    bytes += static_cast<char>(std::stoi(std::string(kBytes.substr(at, 2)), nullptr, 16));
  return bytes;
}

Endings MakeSkydataEndings(const TempDir& dir) {
  const std::string data = CI_BUILT_DATA, source = CI_DATA_SOURCE;
  const std::string filters = "<" + data + "/filters.data", ini = source + "/settings/filters.ini";
  const std::string strings = "<" + data + "/languages/en/qxstrings.txt";
  std::filesystem::create_directories(dir.Path("root"));
  dir.Write("root/catalogs/favourites.txt", "cut");
  std::filesystem::copy_file(data + "/filters.data", dir.Path("own.data"));
  return {
      {"build", {source, dir.Path("made")}},
      {"lint", {dir.Path("root")}},
      {"show", {"--as", "catalog", "<" + data + "/catalogs/deepsky.txt"}},
      {"show", {"--json", "--as", "articles", "<" + data + "/media/find/object_articles_table.bin"}},
      {"show", {"--as", "showers", strings}},
      {"settings dump", {filters}},
      {"settings dump", {data + "/views/orion.data", "--names", "<" + ini}},
      {"settings build", {"<" + source + "/views/orion.ini", "-"}},
      {"settings check", {"<" + dir.Write("damaged.data", "52$V")}},
      {"settings diff", {"<" + data + "/views/orion.data", "<" + data + "/views/pleiades.data"}},
      {"settings convert", {"<" + dir.Write("old.data", MakeOldSettings()), "--out", dir.Path("new.data")}},
      {"settings explain", {filters, "star.Draw"}},
      {"settings explain", {data + "/filters.data", "star.Draw", "--defaults", filters}},
      {"settings set", {"<" + dir.Path("own.data"), "star.Draw=0"}},
      {"strings check", {"<" + dir.Write("de/qxstrings.txt", "100|%s%s%d\n101")}},
      {"strings show", {strings}},
      {"strings pseudo", {strings}},
      {"strings list", {}},
      {"stars import",
       {"<" + dir.Write("stars.tsv", "RA\tDec\tMag\n10.5\t-20.25\t11.5\n200.125\t40.5\t9.75\n"), "--output",
        dir.Path("deep.tiles"), "--data", data}}};
}

Words SplitWords(const std::string& text) {
  std::istringstream in(text);
  Words words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

void AddLines(const std::string& program, const std::string& command, const Endings& endings,
              std::vector<CommandLine>& lines) {
  const auto [begin, end] = endings.equal_range(command);
  EXPECT_NE(begin, end) << "no line for " << program << " " << command;
  for (auto ending = begin; ending != end; ++ending) {
    CommandLine line = {program, command, SplitWords(command), {}};
    for (std::string word : ending->second) {
      if (word.starts_with('<')) {
        line.inputs.push_back(line.arguments.size());
        word.erase(0, 1);
      }
      line.arguments.push_back(word);
    }
    lines.push_back(line);
  }
}

void AddGroup(const std::vector<skydata::Command>& commands, const std::string& before,
              const Endings& endings, std::vector<CommandLine>& lines) {
  for (const auto& command : commands) {
    if (command.declare) {
      AddLines("skydata", before + command.name, endings, lines);
    } else {
      AddGroup(command.group, before + command.name + " ", endings, lines);
    }
  }
}

}  // namespace

std::string CommandLine::Describe() const {
  std::string text = program;
  for (const auto& argument : arguments) text += " " + argument;
  return text;
}

std::vector<CommandLine> MakeCommandLines(const TempDir& dir) {
  std::vector<CommandLine> lines;
  const Endings skyview = MakeSkyviewEndings(dir);
  for (const auto& command : skyview::GetCommands()) {
    const std::string name = command.name;
    if (CI_CAN_DRAW || (name != "curve" && name != "moons"))
      AddLines("skyview", command.name, skyview, lines);
  }
  AddGroup(skydata::GetCommands(), "", MakeSkydataEndings(dir), lines);
  return lines;
}

std::vector<FileOption> ListFileOptions(const TempDir& dir) {
  std::vector<FileOption> options;
  std::set<std::string> known;
  for (const auto& line : MakeCommandLines(dir)) {
    if (line.program != "skyview") continue;
    Words help = SplitWords(line.command);
    help.push_back("--help");
    const Words words = SplitWords(RunCommand("skyview", help).output);
    for (std::size_t i = 0; i + 1 < words.size(); ++i) {
      if (words[i].starts_with("--") && words[i + 1].starts_with("FILE") && known.insert(words[i]).second)
        options.push_back({words[i], line.arguments});
    }
  }
  return options;
}

}  // namespace program_tests
