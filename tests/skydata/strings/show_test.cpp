// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/show.h"
#include "skydata/files/object_names.h"

#include <set>
#include <sstream>

#include "common_interfaces/text_formats.h"
#include "skydata/build/data_root.h"
#include "skydata/files/source_error.h"
#include "support/debug_capture.h"
#include "tests/skydata/strings/fixture.h"
#include "utils/locale.h"

namespace skydata {
namespace {

class StringsShow : public skydata_test::StringsTest {
 protected:
  ~StringsShow() override {
    SetSystemLocale("en");
    ZentharPath::SetRoots(nullptr, nullptr);
  }
  static std::string ShowShipped(const std::string& language) {
    return ShowFile(CI_DATA_SOURCE "/strings/" + language + "/qxstrings.txt", "");
  }
  static void ExpectLine(const std::string& shown, const std::string& line) {
    EXPECT_NE(('\n' + shown).find('\n' + line + '\n'), std::string::npos) << line;
  }
};

TEST_F(StringsShow, EveryTextThatTheLibraryRequiresIsShown) {
  std::set<std::string> shown;
  std::istringstream lines(ShowShipped("en"));
  for (std::string line; std::getline(lines, line);) {
    EXPECT_EQ(std::count(line.begin(), line.end(), '\t'), 2) << line;
    std::istringstream identifiers(line.substr(0, line.find('\t')));
    for (std::string identifier; identifiers >> identifier;) shown.insert(identifier);
  }
  int count = 0;
  const auto* const uses = CommonInterfaces::GetTextUses(&count);
  for (int i = 0; i < count; ++i) {
    for (unsigned id = uses[i].first; uses[i].isRequired && id <= uses[i].last; ++id)
      EXPECT_TRUE(shown.count(NameIdentifier(id))) << id;
  }
}

TEST_F(StringsShow, NoSampleIsEmptyAndNothingIsReported) {
  for (const char* language : {"en", "de", "ru"}) {
    const test_support::DebugCapture capture;
    const std::string shown = ShowShipped(language);
    EXPECT_EQ(shown.find("\t\n"), std::string::npos);
    // The tables of transliteration are those of the first language of the process.
    EXPECT_TRUE(capture.lines.empty()) << capture.lines.front();
  }
}

TEST_F(StringsShow, EnglishReadsAsItShould) {
  const std::string shown = ShowShipped("en");
  ExpectLine(shown, "7200 7203 7228\tlocal time with daylight saving: caption, clock\tLocal time: 09:00 DST");
  ExpectLine(shown, "7201 7204\tUniversal Time, year -43: caption, date\tUniversal Time: 17/03/0043 BC");
  ExpectLine(shown, "1159 14300\tplace below the surface\tIn free flight near Mars, below the surface");
  ExpectLine(shown, "7208 965 968\tcoordinates near a surface\t70°24'15.12\" W, 24°37'37.92\" S");
  ExpectLine(shown, "7216\tdirection by hours, minutes below 0\tRA 0h00m00.00s, Dec 0°-05'00.00\"");
  ExpectLine(shown, "973 40830\tlong date\t3 March 2024");
}

// Times, places, views, objects, and the parts of a view in their order.
TEST_F(StringsShow, SamplesOfOneThingStandTogether) {
  const std::string shown = ShowShipped("en");
  std::size_t before = 0;
  for (const char* use :
       {"local time", "coordinates near a surface", "centred object", "direction by hours",
        "direction at the horizon", "reference plane", "slope", "zoom", "field of view", "message: "}) {
    const auto found = shown.find(std::string("\t") + use);
    ASSERT_NE(found, std::string::npos) << use;
    EXPECT_GT(found, before) << use;
    before = found;
  }
}

TEST_F(StringsShow, GermanReadsAsItShould) {
  const std::string shown = ShowShipped("de");
  ExpectLine(shown, "7208 966 967\tcoordinates near a surface\t8°40'55.56\" O, 50°06'39.24\" N");
  ExpectLine(shown, "20560\tdate in digits\t05.03.2024");
  ExpectLine(shown, "973 40830\tlong date\t 3. März 2024");
  ExpectLine(shown, "15400 5011\treference plane\tBezugsebene:\u00A0Äquator");
}

TEST_F(StringsShow, RussianReadsAsItShould) {
  const std::string shown = ShowShipped("ru");
  ExpectLine(shown, "973 40830\tlong date\t3 марта 2024");
  ExpectLine(shown, "973 1973\tname of a month\tмарт");
  ExpectLine(shown, "13063 130631 130632\tnumber of days\t22 дня");
  ExpectLine(shown, "13063 130631 130632\tnumber of days\t11 дней");
  ExpectLine(shown, "7208 965 968\tcoordinates near a surface\t70°24'15.12\" З, 24°37'37.92\" Ю");
  ExpectLine(shown, "7227\tfield of view\tПоле зрения: 65° на 37°");
}

TEST_F(StringsShow, LineFeedsStayInTheirLine) {
  ExpectLine(
      ShowShipped("en"),
      "3007\tmessage: planets and moons cannot be read\tPlanets and moons: catalogs/planets.txt cannot be "
      "read\\n");
}

TEST_F(StringsShow, ALanguageOfADataRootShowsWhatItsSourceShows) {
  BuildDataRoot(CI_DATA_SOURCE, m_Dir.Path("data"), "en");
  for (const char* language : {"en", "ru"})
    EXPECT_EQ(ShowLanguage(m_Dir.Path("data"), language), ShowShipped(language)) << language;
}

TEST_F(StringsShow, ALanguageThatTheDataRootLacksIsAnError) {
  EXPECT_THROW(ShowLanguage(m_Dir.Path(), "xx"), SourceError);
}

}  // namespace
}  // namespace skydata
