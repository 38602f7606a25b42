// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/pseudo.h"

#include "tests/skydata/strings/fixture.h"

namespace skydata {
namespace {

using skydata_test::Strings;

class StringsPseudo : public skydata_test::StringsTest {
 protected:
  std::string Disguise(const std::string& text, const std::string& language = "en") {
    return MakePseudoLanguage(Read(text, language));
  }
};

TEST_F(StringsPseudo, TextsAreAccentedBracketedAndAThirdLonger) {
  EXPECT_EQ(Disguise("7200\tLocal time\n"), "7200\t[L\u00F6\u00E7\u00E1l t\u00EEm\u00E9~~~~]\n");
  EXPECT_EQ(Disguise("13063\tday\n"), "13063\t[\u00F0\u00E1\u00FD~]\n");
}

TEST_F(StringsPseudo, CyrillicLettersGetTheAccentsOfTheirCodePage) {
  EXPECT_EQ(Disguise("130632\tдней\n", "ru"), "130632\t[днёй~~]\n");
}

TEST_F(StringsPseudo, FormatsAndEscapesStay) {
  EXPECT_EQ(Disguise("7211\t%-5.1f of %s\n"), "7211\t[%-5.1f \u00F6\u0192 %s~~~~]\n");
  EXPECT_EQ(Disguise("900500\ta\\tb\\\\n\n"), "900500\t[\u00E1\\tb\\\\\u00F1~~~]\n");
}

TEST_F(StringsPseudo, TheEndOfALineAndANoBreakBlankStayAtTheEnd) {
  EXPECT_EQ(Disguise("0\tno\\n\n"), "0\t[\u00F1\u00F6~]\\n\n");
  EXPECT_EQ(Disguise("15400\tP:\u00A0\n"), "15400\t[P:~]\u00A0\n");
}

TEST_F(StringsPseudo, TextsThatAreDataStay) {
  const std::string data = "14000\t\u00E4\n14001\ta\n14002\t\u00DF\n14003\tss\n20560\t1\n40830\tdd/mm/yyyy\n";
  EXPECT_EQ(Disguise(data), data);
}

TEST_F(StringsPseudo, OfAShowerOnlyTheNameIsDisguised) {
  EXPECT_EQ(Disguise("6101\tLyrids;16;4;22;4;27;4;LYR;C/1861 G1 (Thatcher);18;9;+33\n"),
            "6101\t[L\u00FDr\u00EE\u00F0\u0161~~];16;4;22;4;27;4;LYR;C/1861 G1 (Thatcher);18;9;+33\n");
}

TEST_F(StringsPseudo, ALetterOfAHemisphereStaysOneCharacter) {
  EXPECT_EQ(Disguise("966\tE\n965\tW\n"), "966\t\u00C9\n965\tW\n");
}

TEST_F(StringsPseudo, ATextNeverOutgrowsItsRoom) {
  const std::string word(63, 'x');  // an era word has room for 64 bytes
  EXPECT_EQ(Disguise("7203\t" + word + "\n"), "7203\t" + word + "\n");
  EXPECT_EQ(Disguise("7203\t" + word.substr(2) + "\n"), "7203\t[" + word.substr(2) + "~]\n");
}

TEST_F(StringsPseudo, CommentsIdentifiersTabsAndNotesStay) {
  EXPECT_EQ(Disguise("A comment\n\n\t07200\t\tday\tnote\n"),
            "A comment\n\n\t07200\t\t[\u00F0\u00E1\u00FD~]\tnote\n");
}

TEST_F(StringsPseudo, EveryShippedLanguageInDisguisePassesTheCheck) {
  for (const std::string language : {"en", "de", "ru"}) {
    const std::string disguised = Disguise(skydata_test::ReadShippedStrings(language), language);
    EXPECT_EQ(Check(disguised, language), Strings{}) << language;
    EXPECT_EQ(Lines(CompareStrings({Read(skydata_test::ReadShippedStrings("en")), Read(disguised, "xx")})),
              Strings{});
  }
}

}  // namespace
}  // namespace skydata
