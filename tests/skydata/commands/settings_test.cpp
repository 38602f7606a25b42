// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The settings commands as a user meets them: streams and exit codes.
#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <sstream>

#include "skydata/command_line.h"
#include "support/temp_dir.h"
#include "tests/skydata/settings/bytes.h"

namespace skydata {
namespace {

using namespace skydata_test;

struct Result {
  int code;
  std::string output, errors;
};

class SettingsCommand : public testing::Test {
 protected:
  Result Run(std::vector<std::string> arguments, const std::string& input = "") {
    arguments.insert(arguments.begin(), "settings");
    std::istringstream in(input);
    std::streambuf* const usual = std::cin.rdbuf(in.rdbuf());
    std::ostringstream output, errors;
    const int code = skydata::Run(arguments, output, errors);
    std::cin.rdbuf(usual);
    return {code, output.str(), errors.str()};
  }
  std::string Write(const char* name, const std::string& bytes) { return m_Dir.Write(name, bytes); }

  test_support::TempDir m_Dir;
};

const std::string kSound = kHeader1 + SmallBlock();
const std::string kDamaged = kSound.substr(0, kSound.size() - 1);

TEST_F(SettingsCommand, DumpAndBuildWorkThroughPipes) {
  const Result dump = Run({"dump", "-"}, kSound);
  EXPECT_EQ(dump.code, kDone) << dump.errors;
  const Result build = Run({"build", "-", "-"}, dump.output);
  EXPECT_EQ(build.code, kDone) << build.errors;
  EXPECT_EQ(build.output, kSound);
}

// Keys of the camera record are not in the vocabulary of the library.
TEST_F(SettingsCommand, CameraFieldsHaveTheirNamesWithoutAnOption) {
  const std::string file = Write("view.ini", "header 1\n[block CAMR 1]\n[section camr]\nm_Zoom = f64 0.68\n");
  ASSERT_EQ(Run({"build", file, m_Dir.Path("view.data")}).code, kDone);
  EXPECT_NE(Run({"dump", m_Dir.Path("view.data")}).output.find("m_Zoom = f64 0.68\n"), std::string::npos);
  EXPECT_EQ(Run({"check", m_Dir.Path("view.data")}).output.find("unknown-name"), std::string::npos);
}

TEST_F(SettingsCommand, SetChangesOneFieldAndNothingElse) {
  const std::string text =
      "header 1\n[block CAMR 1]\n[section camr]\nm_Zoom = f64 0.68\nm_fi = f64 50.1deg\n[section star]\n"
      "VisMagnitude = f32 -2, 6 | condition=1\n";
  const std::string file = m_Dir.Path("view.data");
  ASSERT_EQ(Run({"build", Write("view.ini", text), file}).code, kDone);
  const std::string before = m_Dir.Read("view.data");
  const Result set = Run({"set", file, "camr.m_Zoom=2.5"});
  EXPECT_EQ(set.code, kDone) << set.errors;
  EXPECT_EQ(set.output, file + ": camr.m_Zoom=2.5\n");
  EXPECT_EQ(Run({"set", file, "star.VisMagnitude=-1,3"}).code, kDone);
  EXPECT_EQ(Run({"set", file, "camr.m_fi=52.5deg", "--block", "CAMR,1"}).code, kDone);
  const std::string dump = Run({"dump", file}).output;
  for (const char* line :
       {"m_Zoom = f64 2.5\n", "m_fi = f64 52.5deg\n", "VisMagnitude = f32 -1, 3 | condition=1\n"})
    EXPECT_NE(dump.find(line), std::string::npos) << line << dump;
  EXPECT_EQ(m_Dir.Read("view.data").size(), before.size());
  EXPECT_EQ(Run({"set", file, "camr.m_Zoom=0.68"}).code, kDone);
  EXPECT_EQ(Run({"set", file, "star.VisMagnitude=-2,6"}).code, kDone);
  EXPECT_EQ(Run({"set", file, "camr.m_fi=50.1deg"}).code, kDone);
  EXPECT_EQ(m_Dir.Read("view.data"), before);
}

TEST_F(SettingsCommand, SetThatDoesNotFitLeavesTheFileAsItWas) {
  const std::string file = Write("a.data", kSound);
  for (const char* change : {"star.Draw=300", "star.Draw=1,1", "star.Draw=", "star.Drow=1", "abcd.Draw=1"}) {
    const Result set = Run({"set", file, change});
    EXPECT_EQ(set.code, kBadData) << change;
    EXPECT_EQ(set.errors.substr(0, file.size() + 2), file + ": ") << set.errors;
    EXPECT_EQ(std::count(set.errors.begin(), set.errors.end(), '\n'), 1) << set.errors;
  }
  for (const char* change : {"star.Draw", "star=1", "=1"})
    EXPECT_EQ(Run({"set", file, change}).code, kBadUsage) << change;
  EXPECT_EQ(m_Dir.Read("a.data"), kSound);
  EXPECT_EQ(Run({"set", Write("cut.data", kDamaged), "star.Draw=0"}).code, kBadData);
  EXPECT_EQ(m_Dir.Read("cut.data"), kDamaged);
}

TEST_F(SettingsCommand, BuildMakesOrReplacesAFile) {
  const std::string text = Write("a.ini", "header 1\n[block FLTR defaults]\n[section star]\nDraw = u8 1\n");
  const std::string out = Write("a.data", "old");
  EXPECT_EQ(Run({"build", text, out}).output, out + ": 60 bytes\n");
  EXPECT_EQ(m_Dir.Read("a.data"), kSound);
}

TEST_F(SettingsCommand, AMistakeInATextNamesItsLine) {
  EXPECT_EQ(Run({"build", "-", m_Dir.Path("out.data")}, "header 1\nnonsense\n").errors.substr(0, 5), "-:2: ");
  EXPECT_FALSE(std::filesystem::exists(m_Dir.Path("out.data")));
}

TEST_F(SettingsCommand, DumpOfADamagedFileShowsTheRestAndWhere) {
  const std::string path = Write("a.data", kDamaged);
  const Result dump = Run({"dump", path});
  EXPECT_EQ(dump.code, kBadData);
  EXPECT_EQ(dump.output, "header 1\n\n[block FLTR defaults]\n[section star]\n");
  EXPECT_EQ(dump.errors,
            path +
                ":35: error: block FLTR defaults: a record of 21 bytes, of which the file holds 20; a "
                "reader stops here and has 0 of 1 field [record-cut]\n");
}

TEST_F(SettingsCommand, NamesOfATextAreShown) {
  const std::string text =
      Write("a.ini", "header 1\n[block FLTR defaults]\n[section star]\nMyOwnName = u8 1\n");
  const std::string file = m_Dir.Path("a.data");
  ASSERT_EQ(Run({"build", text, file}).code, kDone);
  EXPECT_EQ(Run({"dump", file}).output.find("MyOwnName"), std::string::npos);
  EXPECT_NE(Run({"dump", file, "--names", text}).output.find("MyOwnName = u8 1\n"), std::string::npos);
  EXPECT_EQ(Run({"check", file, "--names", text}).output, "");
}

TEST_F(SettingsCommand, CheckEndsWithOneWhenThereIsAFinding) {
  const std::string sound = Write("sound.data", kSound), damaged = Write("damaged.data", kDamaged);
  const Result clean = Run({"check", sound});
  EXPECT_EQ(clean.code, kDone);
  EXPECT_EQ(clean.output + clean.errors, "");
  EXPECT_EQ(Run({"check", sound, damaged}).code, kBadData);
  const Result missing = Run({"check", m_Dir.Path("none.data")});
  EXPECT_EQ(missing.code, kBadData);
  EXPECT_EQ(missing.output,
            m_Dir.Path("none.data") + ":0: error: the file is missing or cannot be read [unreadable]\n");
  EXPECT_EQ(Run({"check"}).code, kBadUsage);
}

TEST_F(SettingsCommand, CheckIsNotTroubledByWhatIsOnlyOdd) {
  const std::string path = Write("a.data", kHeader1 + Block(kKeyOne, {Section(kStarBytes, 0, 0)},
                                                            {Record(kStarBytes, 3, 1, 1, "\x01")}));
  const Result check = Run({"check", path});
  EXPECT_EQ(check.code, kDone);
  EXPECT_NE(check.output.find("[unknown-name]"), std::string::npos);
}

TEST_F(SettingsCommand, CheckWritesJson) {
  EXPECT_EQ(Run({"check", "--json", Write("sound.data", kSound)}).output, "[]\n");
  EXPECT_EQ(Run({"check", "--json", "-", "-"}, kHeader1).output,
            "[\n  {\"file\": \"-\", \"offset\": 8, \"code\": \"no-block\", \"severity\": \"error\", "
            "\"text\": \"the file "
            "holds no block\"},\n  {\"file\": \"-\", \"offset\": 0, \"code\": \"empty-file\", \"severity\": "
            "\"error\", "
            "\"text\": \"the file is empty\"}\n]\n");
}

TEST_F(SettingsCommand, DiffEndsWithZeroOneOrTwo) {
  const std::string sound = Write("sound.data", kSound), damaged = Write("damaged.data", kDamaged);
  const std::string other = Write("other.data", kHeader1 + SmallBlock(kKeyOne));
  EXPECT_EQ(Run({"diff", sound, sound}).code, 0);
  EXPECT_EQ(Run({"diff", sound, other}).code, 1);
  const Result trouble = Run({"diff", sound, damaged});
  EXPECT_EQ(trouble.code, 2);
  EXPECT_NE(trouble.errors.find("[record-cut]"), std::string::npos);
  const Result missing = Run({"diff", sound, m_Dir.Path("none.data")});
  EXPECT_EQ(missing.code, 2);
  EXPECT_EQ(missing.errors, m_Dir.Path("none.data") + ": cannot be opened\n");
}

TEST_F(SettingsCommand, ConvertNeedsATargetAndNeverOverwritesOne) {
  const std::string old = Write("old.data", kHeader1 + Block(kKeyOne, {Section(kStarBytes, 0, 0)},
                                                             {OldRecord(kStarBytes, "Draw", 1, 1, "\x01")}));
  const std::string before = m_Dir.Read("old.data");
  EXPECT_EQ(Run({"convert", old}).code, kBadUsage);
  EXPECT_EQ(Run({"convert", old, "--out", m_Dir.Path("new.data"), "--in-place"}).code, kBadUsage);
  EXPECT_EQ(Run({"convert", old, "--from", "new", "--in-place"}).code, kBadUsage);
  EXPECT_EQ(Run({"convert", old, "--out", old}).errors,
            old + ": exists already (--in-place replaces the file itself)\n");
  EXPECT_EQ(m_Dir.Read("old.data"), before);
  EXPECT_EQ(Run({"convert", old, "--out", m_Dir.Path("new.data")}).output,
            m_Dir.Path("new.data") + ": 1 fields converted\n");
  EXPECT_EQ(Run({"convert", old, "--in-place"}).code, kDone);
  EXPECT_EQ(m_Dir.Read("old.data"), m_Dir.Read("new.data"));
  const Result again = Run({"convert", old, "--in-place"});
  EXPECT_EQ(again.code, kBadData);
  EXPECT_EQ(again.errors, old + ": is in the current layout already\n");
}

TEST_F(SettingsCommand, ExplainWantsSectionAndName) {
  const std::string path = Write("a.data", kSound);
  EXPECT_EQ(Run({"explain", path, "star.Draw"}).code, kDone);
  EXPECT_EQ(Run({"explain", path, "star.Drow"}).code, kBadData);
  for (const char* field : {"star", "star.", ".Draw", "stars.Draw"})
    EXPECT_EQ(Run({"explain", path, field}).code, kBadUsage) << field;
  for (const char* block : {"FLTR", "FLTR,", ",1", "x,1"})
    EXPECT_EQ(Run({"explain", path, "star.Draw", "--block", block}).code, kBadUsage) << block;
  EXPECT_EQ(Run({"explain", path, "star.Draw", "--block", "FLTR,defaults"}).code, kDone);
}

TEST_F(SettingsCommand, MissingEmptyAndTruncatedFilesAreOneLineEach) {
  const std::string empty = Write("empty.data", ""), cut = Write("cut.data", "SREV\x01");
  for (const std::string& path : {m_Dir.Path("none.data"), empty, cut}) {
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"dump", path},
                                                      {"convert", path, "--in-place"},
                                                      {"diff", path, Write("a.data", kSound)}}) {
      const Result result = Run(arguments);
      EXPECT_NE(result.code, kDone) << path << ' ' << arguments[0];
      EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
      EXPECT_NE(result.errors.find(path), std::string::npos) << result.errors;
    }
  }
}

TEST_F(SettingsCommand, BadUsageIsOneLineAndExitCodeTwo) {
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{},
                                                    {"dump"},
                                                    {"dump", "a", "b"},
                                                    {"build", "a"},
                                                    {"diff", "a"},
                                                    {"explain", "a"},
                                                    {"look"}}) {
    const Result result = Run(arguments);
    EXPECT_EQ(result.code, kBadUsage);
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 1) << result.errors;
  }
}

}  // namespace
}  // namespace skydata
