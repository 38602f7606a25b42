// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The English texts that ship: every identifier that the library asks for, and formats that fit their
// arguments.
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "common_interfaces/string_table.h"
#include "support/debug_capture.h"
#include "utils/path.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::QX4Strings;

class EnglishStrings : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    ZentharPath::SetRoots(CI_DATA_SOURCE "/strings/en", nullptr);
    QX4Strings::StartLocaleUpdate();
    const QX4Strings strings;
    QX4Strings::FinishLocaleUpdate();
    ZentharPath::SetRoots(nullptr, nullptr);
  }

  static std::string Get(unsigned identifier) {
    const char* text = QX4Strings::GetString(identifier, true);
    return text ? text : "(missing)";
  }
  static void ExpectTexts(std::initializer_list<unsigned> identifiers) {
    for (const unsigned identifier : identifiers) {
      EXPECT_NE(Get(identifier), "(missing)") << identifier;
      EXPECT_NE(Get(identifier), "") << identifier;
    }
  }
  static void ExpectRange(unsigned first, unsigned last) {
    for (unsigned identifier = first; identifier <= last; ++identifier) ExpectTexts({identifier});
  }

  // Independent of what the library says about its formats: the conversions of a printf format in order, i
  // for int, f for double, s for text, c for a character, ? for anything else, which no text may have.
  static std::string Conversions(unsigned identifier) {
    std::string found;
    const std::string text = Get(identifier);
    for (std::size_t i = text.find('%'); i != std::string::npos; i = text.find('%', i + 1)) {
      i = text.find_first_not_of("+- 0#123456789.", i + 1);
      const char conversion = i == std::string::npos ? '?' : text[i];
      if (conversion == '%') continue;
      if (std::strchr("dioxX", conversion))
        found += 'i';
      else if (std::strchr("fFeEgG", conversion))
        found += 'f';
      else if (conversion == 's' || conversion == 'c')
        found += conversion;
      else
        found += '?';
      if (i == std::string::npos) break;
    }
    return found;
  }
};

TEST_F(EnglishStrings, LoadWithoutAMessage) {
  const test_support::DebugCapture capture;
  SetUpTestSuite();
  EXPECT_TRUE(capture.lines.empty()) << capture.lines.front();
}

TEST_F(EnglishStrings, EveryIdentifierOfTheLibraryHasAText) {
  ExpectTexts({0, 7200, 7201, 7202, 7203, 7204, 7207, 7228, 1125, 1127, 1131, 1132, 1141, 1142, 1152, 1157,
               1158, 1159, 14300});
  ExpectRange(965, 968);
  ExpectRange(1160, 1167);
  ExpectTexts({7211, 7212, 7214, 7215, 15400, 7219, 7220, 7227, 13063, 130631, 130632});
  ExpectRange(5011, 5014);
  ExpectRange(971, 982);
  ExpectRange(1971, 1982);
  ExpectTexts({40830, 20560, 3007, 6101});
  ExpectRange(14000, 14003);
}

TEST_F(EnglishStrings, EveryObjectTypeHasAName) {
  for (const char* code :
       {"astr", "comt", "pldw", "plnt", "scft", "star", "moon", "cnst", "uNEB", "uCLS", "uDSO", "uGAL"}) {
    ExpectTexts({static_cast<unsigned>(GetFOURCC(code))});
  }
  ExpectRange(20261, 20266);
}

TEST_F(EnglishStrings, EverySubTypeOfTheDeepskyCatalogHasAName) {
  for (const unsigned subType : {30u, 31u, 32u, 33u, 40u, 41u, 42u, 43u, 44u, 62u, 63u, 64u})
    ExpectTexts({subType});
}

TEST_F(EnglishStrings, FormatsFitTheirArguments) {
  EXPECT_EQ(Conversions(7211), "fs");  // distance, unit
  EXPECT_EQ(Conversions(7212), "fs");
  EXPECT_EQ(Conversions(7214), "s");  // name
  EXPECT_EQ(Conversions(7215), "s");
  EXPECT_EQ(Conversions(7219), "i");   // degrees
  EXPECT_EQ(Conversions(7220), "f");   // zoom
  EXPECT_EQ(Conversions(7227), "ss");  // across, up
  EXPECT_EQ(Conversions(3007), "s");   // path
  for (const unsigned position : {7208u, 7209u}) EXPECT_EQ(Conversions(position), "iifciifc") << position;
  for (const unsigned direction : {7216u, 7217u, 7218u})
    EXPECT_EQ(Conversions(direction), "iifiif") << direction;
}

TEST_F(EnglishStrings, TextsThatGetNoArgumentsHaveNoConversions) {
  for (const unsigned identifier :
       {0u, 900000u, 7200u, 7201u, 7202u, 7203u, 7204u, 7207u, 7228u, 14300u, 15400u}) {
    EXPECT_EQ(Conversions(identifier), "") << identifier;
  }
  for (unsigned identifier = 1160; identifier <= 1167; ++identifier)
    EXPECT_EQ(Conversions(identifier), "") << identifier;
}

TEST_F(EnglishStrings, MessagesEndTheirLine) {
  for (const unsigned identifier : {0u, 3007u}) EXPECT_EQ(Get(identifier).back(), '\n') << identifier;
}

TEST_F(EnglishStrings, MeteorShowersHaveTwelveFieldsEach) {
  for (unsigned identifier = 6101; identifier <= 6213; ++identifier) {
    const auto fields = GetSubStrings(Get(identifier).c_str(), ';');
    ASSERT_EQ(fields.size(), 12u) << identifier;
    EXPECT_NEAR(std::stoi(fields[9]), 12, 12) << identifier;
    EXPECT_LE(std::abs(std::stoi(fields[11])), 90) << identifier;
  }
  EXPECT_EQ(Get(6214), "(missing)");
}

TEST_F(EnglishStrings, TheProgramHasAName) { EXPECT_EQ(Get(900000), "skyview"); }

}  // namespace
