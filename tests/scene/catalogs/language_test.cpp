// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/language.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "common_interfaces/dates.h"
#include "common_interfaces/string_table.h"
#include "scene/frame_helpers.h"
#include "skyview/reports/host_texts.h"
#include "utils/locale.h"

using CommonInterfaces::QX4Strings;
using host_test::FrameFixture;

namespace {

class Language : public testing::Test {
 protected:
  ~Language() override { Switch("en"); }

  bool Switch(
      const std::string& language, const std::function<void()>& fetch = [] {}) {
    error.clear();
    return scene::SwitchLanguage(f.sky.dir.Path("data"), language, fetch, error);
  }
  static std::string LocalTimeCaption() { return scene::ToUtf8(QX4Strings::GetString(7200, false)); }
  bool HasLabel(const std::string& text) {
    f.Compute();
    return f.HasLabel(text);
  }

  FrameFixture f;
  std::string error;
};

}  // namespace

TEST_F(Language, ThoseOfTheDataRootAreFoundInOrder) {
  EXPECT_EQ(scene::FindLanguages(f.sky.dir.Path("data")), (std::vector<std::string>{"de", "en", "ru"}));
}

TEST_F(Language, FolderWithoutTextsIsNone) {
  f.sky.dir.Write("data/languages/fr/readme.txt", "x");
  f.sky.dir.Write("data/languages/qxstrings.txt", "x");
  EXPECT_EQ(scene::FindLanguages(f.sky.dir.Path("data")), (std::vector<std::string>{"de", "en", "ru"}));
  EXPECT_FALSE(Switch("fr"));
}

TEST_F(Language, DataRootWithoutLanguagesHasNone) {
  EXPECT_TRUE(scene::FindLanguages(f.sky.dir.Path("nowhere")).empty());
}

TEST_F(Language, DefaultOneIsListedThoughItHasNoFolder) {
  EXPECT_EQ(scene::ListLanguages(f.sky.dir.Path("data")), (std::vector<std::string>{"de", "en", "ru"}));
  EXPECT_EQ(scene::ListLanguages(f.sky.dir.Path("nowhere")), (std::vector<std::string>{"en"}));
}

TEST_F(Language, SwitchesThereAndBackInOneProcess) {
  const struct {
    const char *language, *caption, *date, *march, *day;
  } expected[] = {{"en", "Local time", "5 March 2024", "March", "day"},
                  {"de", "Ortszeit", " 5. März 2024", "März", "Tag"},
                  {"ru", "Местное время", "5 марта 2024", "март", "день"},
                  {"en", "Local time", "5 March 2024", "March", "day"}};
  for (const auto& e : expected) {
    ASSERT_TRUE(Switch(e.language)) << error;
    EXPECT_STREQ(GetSystemLocale(), e.language);
    EXPECT_EQ(LocalTimeCaption(), e.caption);
    // Both caches of month names: that of long dates and that of the names alone.
    EXPECT_EQ(scene::ToUtf8(CommonInterfaces::GetDateString(2024, 3, 5)), e.date);
    EXPECT_EQ(scene::ToUtf8(CommonInterfaces::GetMonth(3)), e.march);
    EXPECT_EQ(scene::ToUtf8(QX4Strings::GetString(13063, false)), e.day);
  }
  EXPECT_EQ(f.diagnostics.lines, std::vector<std::string>());
}

TEST_F(Language, FrameTakesItsLettersAnew) {
  f.SetLook(180.0, 10.0);
  EXPECT_TRUE(HasLabel("S"));
  ASSERT_TRUE(Switch("ru", [this] { f.frame.FetchTexts(); }));
  EXPECT_TRUE(HasLabel("Ю"));
  EXPECT_FALSE(HasLabel("S"));
  f.SetLook(90.0, 10.0);
  ASSERT_TRUE(Switch("de", [this] { f.frame.FetchTexts(); }));
  EXPECT_TRUE(HasLabel("O"));
  ASSERT_TRUE(Switch("en", [this] { f.frame.FetchTexts(); }));
  EXPECT_TRUE(HasLabel("E"));
}

TEST_F(Language, OldTextsCanStillBeReadWhileTheNewOnesAreFetched) {
  const char* old = QX4Strings::GetString(7200, false);
  std::string oldThen, newThen;
  ASSERT_TRUE(Switch("de", [&] {
    oldThen = old;
    newThen = LocalTimeCaption();
  }));
  EXPECT_EQ(oldThen, "Local time");
  EXPECT_EQ(newThen, "Ortszeit");
}

TEST_F(Language, UnknownOneNamesThoseThatExistAndChangesNothing) {
  ASSERT_TRUE(Switch("de"));
  bool fetched = false;
  for (const char* unknown : {"fr", "", "DE", ".", "..", "de/../ru", "../languages/ru"}) {
    EXPECT_FALSE(Switch(unknown, [&] { fetched = true; })) << unknown;
    EXPECT_EQ(error, "wants one of de, en, ru");
    EXPECT_STREQ(GetSystemLocale(), "de");
    EXPECT_EQ(LocalTimeCaption(), "Ortszeit");
  }
  EXPECT_FALSE(fetched);
}

TEST_F(Language, DefaultNeedsNoFolder) {
  ASSERT_TRUE(Switch("de"));
  std::filesystem::remove_all(f.sky.dir.Path("data/languages"));
  EXPECT_FALSE(Switch("de"));
  EXPECT_EQ(error, "wants one of en");
  ASSERT_TRUE(Switch("en")) << error;
  EXPECT_EQ(LocalTimeCaption(), "Local time");
}

TEST_F(Language, TextsOfTheWorkAreaHideThoseOfTheLanguage) {
  f.sky.dir.Write("work/qxstrings.txt", "7200\tMy time\n");
  ASSERT_TRUE(scene::SetSkyRoots(f.sky.dir.Path("data"), f.sky.dir.Path("work"), error));
  ASSERT_TRUE(Switch("de"));
  EXPECT_EQ(LocalTimeCaption(), "My time");
  std::filesystem::remove(f.sky.dir.Path("work/qxstrings.txt"));
}
