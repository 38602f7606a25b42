// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/host_texts.h"

#include <gtest/gtest.h>

#include "common_interfaces/string_table.h"
#include "scene/catalogs/language.h"
#include "scene/frame_helpers.h"
#include "utils/locale.h"

using CommonInterfaces::QX4Strings;
using namespace scene;
using namespace skyview;

namespace {

class LocaleGuard {
 public:
  explicit LocaleGuard(const char* locale) { SetSystemLocale(locale); }
  ~LocaleGuard() { SetSystemLocale("en"); }
};

}  // namespace

TEST(HostTexts, StandInEveryLanguageAndFitTheirArguments) {
  host_test::FrameFixture f;
  std::string error;
  int count = 0, seen = 0;
  const auto* uses = GetHostTexts(&count);
  ASSERT_GT(count, 0);
  for (const char* language : {"de", "ru", "en"}) {
    ASSERT_TRUE(SwitchLanguage(
        f.sky.dir.Path("data"), language, [] {}, error))
        << error;
    for (const auto* use = uses; use != uses + count; ++use) {
      for (unsigned id = use->first; id <= use->last; ++id) {
        const char* text = QX4Strings::GetString(id, true);
        ASSERT_TRUE(text && *text) << language << " " << id;
        EXPECT_EQ(CommonInterfaces::FindFormatFault(text, use->arguments), "") << language << " " << id;
        EXPECT_LE(std::char_traits<char>::length(text), static_cast<std::size_t>(use->maxLength));
        ++seen;
      }
    }
  }
  EXPECT_EQ(seen, 3 * 293);
}

TEST(HostTexts, AreRequiredAndAscendingInTheRangeOfApplications) {
  int count = 0;
  const auto* uses = GetHostTexts(&count);
  unsigned last = 899999;
  for (const auto* use = uses; use != uses + count; ++use) {
    EXPECT_GT(use->first, last);
    EXPECT_GE(use->last, use->first);
    EXPECT_TRUE(use->isRequired) << use->use;
    last = use->last;
  }
  EXPECT_LE(last, 999999u);
}

TEST(HostTexts, MissingOneIsEmptyWithOneLine) {
  host_test::FrameFixture f;
  std::string error;
  f.sky.dir.Write("data/languages/en/qxstrings.txt", "1\tskyview\n");
  ASSERT_TRUE(SwitchLanguage(
      f.sky.dir.Path("data"), "en", [] {}, error))
      << error;
  EXPECT_EQ(Localize(HostText::kPlace, {"x"}), "");
  EXPECT_EQ(f.diagnostics.lines.size(), 1u);
}

TEST(CodePages, TextGoesOutInTheLanguagesPage) {
  {
    LocaleGuard russian("ru");
    EXPECT_EQ(ToUtf8("\xC7\xE5\xEC\xEB\xFF 10\xB0"), "Земля 10°");
    EXPECT_EQ(ToCodePage("Земля"), "\xC7\xE5\xEC\xEB\xFF");
  }
  LocaleGuard german("de");
  EXPECT_EQ(ToUtf8("H\xF6he"), "Höhe");
  EXPECT_EQ(ToCodePage("Höhe"), "H\xF6he");
}

TEST(CodePages, CharacterThatThePageLacksIsAQuestionMark) {
  LocaleGuard english("en");
  EXPECT_EQ(ToCodePage("α Ori"), "? Ori");
  EXPECT_EQ(ToCodePage("Земля é"), "????? \xE9");
}

TEST(CodePages, NameOfAFileIsInUtf8OrInThePageAlready) {
  LocaleGuard german("de");
  EXPECT_EQ(NameToCodePage("Köln"), "K\xF6ln");
  EXPECT_EQ(NameToCodePage("K\xF6ln"), "K\xF6ln");
}

TEST(CodePages, BytesThatAreNoUtf8AreQuestionMarks) {
  LocaleGuard english("en");
  EXPECT_EQ(ToCodePage("a\xFF z"), "a? z");
  EXPECT_EQ(ToCodePage("cut \xD0"), "cut ?");
  EXPECT_EQ(ToCodePage(""), "");
}
