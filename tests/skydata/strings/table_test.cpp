// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/table.h"

#include "tests/skydata/source_text.h"
#include "tests/skydata/strings/fixture.h"

namespace skydata {
namespace {

using skydata_test::StringsText;

class StringsTable : public skydata_test::StringsTest {
 protected:
  std::string Make(const std::string& text, const std::string& language) {
    return MakeStringTable(m_Dir.Write(language + "/s.txt", text));
  }
  std::string Message(const std::string& text, const std::string& language = "en") {
    return skydata_test::MessageOf(m_Dir, [&] { Make(text, language); });
  }
};

TEST_F(StringsTable, TextsAreInTheCodePageOfTheirLanguage) {
  const std::string german = Make(skydata_test::ReadShippedStrings("de"), "de");
  EXPECT_NE(german.find("\n973\tM\xE4rz\n"), std::string::npos);
  EXPECT_NE(german.find("\n15400\tBezugsebene:\xA0\n"), std::string::npos);
  const std::string russian = Make(skydata_test::ReadShippedStrings("ru"), "ru");
  EXPECT_NE(russian.find("\n130632\t\xE4\xED\xE5\xE9\n"), std::string::npos);
  EXPECT_NE(russian.find("\n968\t\xDE\n"), std::string::npos);
}

TEST_F(StringsTable, LinesKeepTheirNumbersAndCommentsLoseWhatThePageLacks) {
  StringsText text;
  const int line = text.NextLine();
  const std::string table = Make(text.Append("\u00E4 \u0434").Append("900500\tab\tnote \u0434").Get(), "en");
  const std::size_t comment = table.find("\n\xE4 ?\n900500\tab\tnote ?\nMade by skydata, in windows-1252");
  ASSERT_NE(comment, std::string::npos);
  EXPECT_EQ(std::count(table.begin(), table.begin() + static_cast<std::ptrdiff_t>(comment), '\n'), line - 2);
  EXPECT_NE(table.find("Jopek & Kanuchova"), std::string::npos);  // sources are cited in the data root too
}

TEST_F(StringsTable, TheFirstErrorStopsTheTable) {
  StringsText text;
  const std::string line = std::to_string(text.Replace("7211", "7211\t%s"));
  EXPECT_EQ(Message(text.Append("900500\t\u4E2D").Get()),
            "en/s.txt:" + line + ": 7211: conversion 1, %s, gets a double");
}

TEST_F(StringsTable, ATextThatTheCodePageLacksIsAnError) {
  StringsText text;
  const std::string line = std::to_string(text.NextLine());
  EXPECT_EQ(Message(text.Append("900500\tstar \u2605").Get()),
            "en/s.txt:" + line + ": U+2605 '\u2605' is not in windows-1252, the code page of the language");
}

TEST_F(StringsTable, ASourceIsUtf8EvenWhenItIsNot) {
  StringsText text;
  const std::string line = std::to_string(text.NextLine());
  EXPECT_EQ(Message(text.Append("900500\tM\xE4rz").Get()),
            "en/s.txt:" + line + ": byte 9 of the line is no character in UTF-8");
}

TEST_F(StringsTable, AWarningDoesNotStopTheTable) {
  EXPECT_EQ(Message(StringsText().Append("8123\ttext\\q").Get()), "");
}

}  // namespace
}  // namespace skydata
