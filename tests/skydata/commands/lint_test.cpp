// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sstream>

#include "skydata/command_line.h"
#include "support/temp_dir.h"

namespace skydata {
namespace {

constexpr char kPlanets[] = "root/catalogs/planets&moons/planets&moons.txt";

class LintCommand : public testing::Test {
 protected:
  // Runs "skydata ..."; what it prints is in m_Output and m_Errors.
  int RunIt(const std::vector<std::string>& arguments) {
    std::ostringstream output, errors;
    const int code = skydata::Run(arguments, output, errors);
    m_Output = output.str();
    m_Errors = errors.str();
    return code;
  }
  std::string Root() const { return std::filesystem::path(m_Dir.Path("root")).generic_string(); }

  test_support::TempDir m_Dir;
  std::string m_Output, m_Errors;
};

TEST_F(LintCommand, NothingIsPrintedWhereNothingIsWrong) {
  m_Dir.Write(kPlanets, "plnt\t1\tMercury\n");
  EXPECT_EQ(RunIt({"lint", Root()}), kDone);
  EXPECT_EQ(m_Output + m_Errors, "");
}

TEST_F(LintCommand, AnErrorIsExitCodeOneAndNamesThePlaceBelowTheRootAsGiven) {
  m_Dir.Write(kPlanets, "plnt\t1\tMercury\nplnt\t3\tEarth\n");
  EXPECT_EQ(RunIt({"lint", Root()}), kBadData);
  EXPECT_EQ(m_Output,
            Root() +
                "/catalogs/planets&moons/planets&moons.txt:2:6: error: gap: plnt 3 is never reached: "
                "plnt 2 is missing\n");
}

TEST_F(LintCommand, AWarningIsExitCodeOneOnlyWhenStrict) {
  m_Dir.Write(kPlanets, "plnt\t1\tMercury");
  EXPECT_EQ(RunIt({"lint", Root()}), kDone);
  EXPECT_NE(m_Output.find(":1:0: warning: no-last-line-end: "), std::string::npos);
  EXPECT_EQ(RunIt({"lint", "--strict", Root()}), kBadData);
}

TEST_F(LintCommand, JsonIsAnArrayWhateverThereIs) {
  m_Dir.Write(kPlanets, "plnt\t1\tMercury\n");
  EXPECT_EQ(RunIt({"lint", "--json", Root()}), kDone);
  EXPECT_EQ(m_Output, "[]\n");
  m_Dir.Write(kPlanets, "plnt\t1\n");
  EXPECT_EQ(RunIt({"lint", "--json", Root()}), kBadData);
  EXPECT_EQ(m_Output,
            "[\n {\"file\": \"" + Root() +
                "/catalogs/planets&moons/planets&moons.txt\", \"line\": 1, \"column\": 7, \"severity\": "
                "\"error\", \"code\": \"too-few-fields\", \"text\": \"the line has 2 fields, wants 3 to "
                "4\"}\n]\n");
}

TEST_F(LintCommand, ARootThatIsNotThereIsBadUsage) {
  EXPECT_EQ(RunIt({"lint", Root()}), kBadUsage);
  EXPECT_EQ(m_Errors, Root() + ": no such folder\n");
  EXPECT_EQ(RunIt({"lint", "--jsn", Root()}), kBadUsage);
  EXPECT_EQ(RunIt({"lint", Root(), "more"}), kBadUsage);
  EXPECT_EQ(m_Output, "");
}

using ShowCommand = LintCommand;

TEST_F(ShowCommand, RecordsStandInColumns) {
  const std::string path = m_Dir.Write("planets&moons.txt", "plnt\t3\tEarth\nmoon\t301\tMoon\t0\n");
  EXPECT_EQ(RunIt({"show", path}), kDone);
  EXPECT_EQ(m_Output,
            "kind  number  name   flag\n"
            "plnt       3  Earth     1\n"
            "moon     301  Moon      0\n");
}

TEST_F(ShowCommand, JsonHasNumbersAsNumbers) {
  const std::string path = m_Dir.Write("planets&moons.txt", "plnt\t3\tEarth\n");
  EXPECT_EQ(RunIt({"show", "--json", path}), kDone);
  EXPECT_EQ(m_Output, "[\n {\"kind\": \"plnt\", \"number\": 3, \"name\": \"Earth\", \"flag\": 1}\n]\n");
}

TEST_F(ShowCommand, ANameThatSaysNothingNeedsAKind) {
  const std::string path = m_Dir.Write("tonight", "Rigel\t1937006962\t1713\n");
  EXPECT_EQ(RunIt({"show", path}), kBadUsage);
  EXPECT_EQ(m_Errors, path + ": nothing is known of a file of this name; --as says what it is\n");
  EXPECT_EQ(RunIt({"show", "--as", "selection", path}), kDone);
  EXPECT_EQ(m_Output,
            "kind  number  name   fourth\n"
            "star    1713  Rigel\n");
  EXPECT_EQ(RunIt({"show", "--as", "selektion", path}), kBadUsage);
  EXPECT_EQ(m_Errors.find("skydata: --as: selektion not in {showers,settings,year-limits,catalog,"), 0u)
      << m_Errors;
}

TEST_F(ShowCommand, RecordsThatCannotBeReadAreCounted) {
  const std::string path =
      m_Dir.Write("favourites.txt", "Rigel\t1937006962\t1713\nRigel\nRigel\tstar\t1713\n");
  EXPECT_EQ(RunIt({"show", path}), kBadData);
  EXPECT_NE(m_Output.find("star    1713  Rigel"), std::string::npos);
  EXPECT_EQ(m_Errors, path + ": 2 records cannot be read (skydata lint says why)\n");
}

TEST_F(ShowCommand, AMissingFileIsOneLine) {
  EXPECT_EQ(RunIt({"show", m_Dir.Path("favourites.txt")}), kBadData);
  EXPECT_EQ(m_Errors, m_Dir.Path("favourites.txt") + ": cannot be opened\n");
}

TEST_F(ShowCommand, SettingsAreDumped) {
  const std::string bytes(
      "SREV\x03\0\0\0RTLF\x01\0\0\0\x01\0tnlp\xFF\xFF\xFF\xFF\0\0\0\0\x01\x01\0\0\0\x15\0\0\0tnlp"
      "\x4D\0\0\0\x01\x01\0\x05\0\0\0\x01\xFF\xFF\xFF\xFF\x09",
      60);
  const std::string path = m_Dir.Write("small.data", bytes);
  EXPECT_EQ(RunIt({"show", path}), kDone);
  const std::string shown = m_Output;
  EXPECT_EQ(RunIt({"settings", "dump", path}), kDone);
  EXPECT_EQ(shown, m_Output);
  EXPECT_EQ(RunIt({"show", "--json", path}), kDone);
  EXPECT_NE(m_Output.find("\"block\": \"FLTR 1\", \"section\": \"plnt\", \"field\": \"@4D\""),
            std::string::npos)
      << m_Output;
}

}  // namespace
}  // namespace skydata
