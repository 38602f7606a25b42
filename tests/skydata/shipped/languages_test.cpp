// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The languages that ship: nothing wrong with them, and what a speaker would notice first.
#include <filesystem>

#include "common_interfaces/record_lines.h"
#include "common_interfaces/text_formats.h"
#include "skydata/strings/rules.h"
#include "tests/skydata/strings/fixture.h"
#include "utils/utf8.h"

namespace skydata {
namespace {

using skydata_test::Strings;

class ShippedLanguages : public skydata_test::StringsTest {
 protected:
  static StringsSource ReadShipped(const std::string& language) {
    return ReadStrings(CI_DATA_SOURCE "/strings/" + language + "/qxstrings.txt");
  }
  static std::string Get(const StringsSource& source, unsigned identifier) {
    const StringsEntry* const entry = FindEntry(source, identifier);
    return entry ? entry->text : "(missing)";
  }
  // A word in plain Latin letters, by the rule of the library and the tables of the language.
  static std::string Transliterate(const StringsSource& source, const std::string& word) {
    const std::u32string singles = Decode(Get(source, 14000)), doubles = Decode(Get(source, 14002));
    std::string plain;
    for (const char32_t c : Decode(word)) {
      if (const auto at = singles.find(c); at != std::u32string::npos) {
        plain += Get(source, 14001)[at];
      } else if (const auto two = doubles.find(c); two != std::u32string::npos) {
        plain += Get(source, 14003).substr(2 * two, 2);
      } else {
        plain += static_cast<char>(c);
      }
    }
    return plain;
  }

 private:
  static std::u32string Decode(const std::string& utf8) {
    std::u32string text;
    for (int at = 0, length = 1; at < static_cast<int>(utf8.size()); at += length)
      text += static_cast<char32_t>(DecodeUtf8(utf8, at, &length));
    return text;
  }
};

TEST_F(ShippedLanguages, NothingIsWrongWithThem) {
  std::vector<StringsSource> sources;
  for (const auto& entry : std::filesystem::directory_iterator(CI_DATA_SOURCE "/strings")) {
    sources.push_back(ReadShipped(entry.path().filename().string()));
    EXPECT_EQ(Lines(CheckStrings(sources.back())), Strings{}) << entry.path();
  }
  EXPECT_EQ(sources.size(), 3u);
  EXPECT_EQ(Lines(CompareStrings(sources)), Strings{});
}

TEST_F(ShippedLanguages, HemisphereLettersAreThoseOfTheLanguage) {
  const std::pair<const char*, const char*> kLetters[] = {{"en", "WENS"}, {"de", "WONS"}, {"ru", "ЗВСЮ"}};
  for (const auto& [language, letters] : kLetters) {
    const StringsSource source = ReadShipped(language);
    EXPECT_EQ(Get(source, 965) + Get(source, 966) + Get(source, 967) + Get(source, 968), letters);
  }
}

TEST_F(ShippedLanguages, RussianDaysAndMonthsAreDeclined) {
  const StringsSource russian = ReadShipped("ru");
  EXPECT_EQ(Get(russian, 13063), "день");
  EXPECT_EQ(Get(russian, 130631), "дня");
  EXPECT_EQ(Get(russian, 130632), "дней");
  EXPECT_EQ(Get(russian, 973), "марта");  // 5 марта
  EXPECT_EQ(Get(russian, 1973), "март");
  EXPECT_EQ(Get(russian, 975), "мая");
  EXPECT_EQ(Get(russian, 1975), "май");
}

TEST_F(ShippedLanguages, DatesAreWrittenDayFirst) {
  const std::pair<const char*, const char*> kPatterns[] = {
      {"en", "d-m-yyyy"}, {"de", "dd.mm.yyyy"}, {"ru", "d-m-yyyy"}};
  for (const auto& [language, pattern] : kPatterns) {
    EXPECT_EQ(Get(ReadShipped(language), 40830), pattern);
    EXPECT_EQ(Get(ReadShipped(language), 20560), "1");
  }
}

TEST_F(ShippedLanguages, TheReferencePlaneIsSetApartFromItsCaption) {
  // The plane's name follows at once, and blanks at the end of a text do not survive: a no-break blank does.
  for (const char* language : {"en", "de", "ru"})
    EXPECT_EQ(Get(ReadShipped(language), 15400).substr(Get(ReadShipped(language), 15400).size() - 3),
              ":\u00A0");
}

TEST_F(ShippedLanguages, NamesAreTransliteratedAsTheLanguageDoes) {
  EXPECT_EQ(Transliterate(ReadShipped("en"), "Größe Ångström café"), "Grosse Angstrom cafe");
  EXPECT_EQ(Transliterate(ReadShipped("de"), "Größe Übergang äö café"), "Groesse Uebergang aeoe cafe");
  const StringsSource russian = ReadShipped("ru");
  EXPECT_EQ(Transliterate(russian, "Жук Хвост Царь Часы Шар Щит Юла Яна Ёж"),
            "Zhuk Khvost Tsar' Chasy Shar Scit Yula Yana Yozh");
  EXPECT_EQ(Transliterate(russian, "Большая Медведица, Объект"), "Bol'shaya Medveditsa, Ob'ekt");
}

TEST_F(ShippedLanguages, EveryLetterOfTheAlphabetIsTransliterated) {
  const StringsSource russian = ReadShipped("ru");
  for (const std::string& alphabet :
       {std::string("АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"), std::string("абвгдеёжзийклмнопрстуфхцчшщъыьэюя")}) {
    for (const char c : Transliterate(russian, alphabet))
      EXPECT_TRUE(std::isalpha(static_cast<unsigned char>(c)) || c == '\'') << static_cast<int>(c);
  }
}

}  // namespace
}  // namespace skydata
