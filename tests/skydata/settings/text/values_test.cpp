// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/values.h"

#include <gtest/gtest.h>

#include "common_interfaces/field_data.h"

namespace skydata {
namespace {

using namespace CommonInterfaces;

std::string Bytes(unsigned char type, std::string_view text) {
  std::string bytes;
  return AppendValue(type, text, bytes) ? bytes : "refused";
}

TEST(Word, FourCharactersReadFromTheMostSignificantByte) { EXPECT_EQ(ParseWord("star"), 0x73746172u); }
TEST(Word, BytesAreThoseOfTheFile) { EXPECT_EQ(ParseWord("bytes:QXSC"), 0x43535851u); }
TEST(Word, DefaultsAreTheTagWithTheBytesTLFD) { EXPECT_EQ(ParseWord("defaults"), ParseWord("bytes:TLFD")); }
TEST(Word, NoneIsAllOnes) { EXPECT_EQ(ParseWord("none"), 0xFFFFFFFFu); }
TEST(Word, ANumberIsDecimalOrHexadecimal) {
  EXPECT_EQ(ParseWord("1"), 1u);
  EXPECT_EQ(ParseWord("4294967295"), 0xFFFFFFFFu);
  EXPECT_EQ(ParseWord("0x4000"), 0x4000u);
}
TEST(Word, FourDigitsAreANumber) { EXPECT_EQ(ParseWord("1234"), 1234u); }
TEST(Word, OtherTextsAreRefused) {
  for (const char* text :
       {"", "sta", "stars", "-1", "4294967296", "0x", "0x1FFFFFFFF", "bytes:ABC", "12ab"}) {
    EXPECT_EQ(ParseWord(text), std::nullopt) << text;
  }
}

TEST(ElementType, NamesStandForTheFrozenCodes) {
  const char* const names[] = {"i8", "u8", "i16", "u16", "i32", "u32", "f32", "f64", "byte"};
  for (int code = 0; code < 9; ++code) EXPECT_EQ(ParseType(names[code]), code) << names[code];
}
TEST(ElementType, AnyCodeCanBeWrittenAsANumber) {
  EXPECT_EQ(ParseType("type9"), 9);
  EXPECT_EQ(ParseType("type255"), 255);
}
TEST(ElementType, OtherNamesAreRefused) {
  for (const char* text : {"", "int", "i64", "type", "type256", "I8"})
    EXPECT_EQ(ParseType(text), std::nullopt) << text;
}

TEST(Value, IntegersAreLittleEndianInTheirWidth) {
  EXPECT_EQ(Bytes(kFieldInt8, "-2"), "\xFE");
  EXPECT_EQ(Bytes(kFieldUInt8, "255"), "\xFF");
  EXPECT_EQ(Bytes(kFieldInt16, "-25"), "\xE7\xFF");
  EXPECT_EQ(Bytes(kFieldUInt16, "0x1234"), "\x34\x12");
  EXPECT_EQ(Bytes(kFieldInt32, "2451545"), std::string("\x59\x68\x25\x00", 4));
  EXPECT_EQ(Bytes(kFieldUInt32, "4294967295"), "\xFF\xFF\xFF\xFF");
  EXPECT_EQ(Bytes(kFieldBytes, "7"), "\x07");
}
TEST(Value, A32BitIntegerMayBeAFourCharacterCode) {
  EXPECT_EQ(Bytes(kFieldUInt32, "plnt"), "tnlp");
  EXPECT_EQ(Bytes(kFieldInt32, "plnt"), "tnlp");
  EXPECT_EQ(Bytes(kFieldInt16, "plnt"), "refused");
}
TEST(Value, AHexadecimalIntegerIsABitPattern) { EXPECT_EQ(Bytes(kFieldInt8, "0xFF"), "\xFF"); }
TEST(Value, IntegersOutOfRangeAreRefused) {
  EXPECT_EQ(Bytes(kFieldInt8, "128"), "refused");
  EXPECT_EQ(Bytes(kFieldUInt8, "-1"), "refused");
  EXPECT_EQ(Bytes(kFieldUInt16, "65536"), "refused");
  EXPECT_EQ(Bytes(kFieldInt32, "2147483648"), "refused");
  EXPECT_EQ(Bytes(kFieldUInt8, "0x100"), "refused");
}
TEST(Value, FloatsAreIEEE754) {
  EXPECT_EQ(Bytes(kFieldFloat, "-2.5"), std::string("\x00\x00\x20\xC0", 4));
  EXPECT_EQ(Bytes(kFieldDouble, "1.5"), std::string("\x00\x00\x00\x00\x00\x00\xF8\x3F", 8));
  EXPECT_EQ(Bytes(kFieldDouble, "+1.5e0"), Bytes(kFieldDouble, "1.5"));
}
TEST(Value, NegativeZeroKeepsItsSign) {
  EXPECT_EQ(Bytes(kFieldFloat, "-0"), std::string("\x00\x00\x00\x80", 4));
}
TEST(Value, DegreesBecomeRadians) {
  EXPECT_EQ(Bytes(kFieldDouble, "180deg"), "\x18\x2D\x44\x54\xFB\x21\x09\x40");  // pi
  EXPECT_EQ(Bytes(kFieldDouble, "180 deg"), Bytes(kFieldDouble, "180deg"));
}
TEST(Value, ABitPatternCanNameAnyFloat) {
  EXPECT_EQ(Bytes(kFieldFloat, "0x7FC00001"), std::string("\x01\x00\xC0\x7F", 4));
  EXPECT_EQ(Bytes(kFieldDouble, "0xFFF0000000000000"), std::string("\x00\x00\x00\x00\x00\x00\xF0\xFF", 8));
}
TEST(Value, OtherFloatsAreRefused) {
  for (const char* text : {"", "deg", "1,5", "1.5x", "nan", "inf", "1e39", "+-1", "0x123456789"}) {
    EXPECT_EQ(Bytes(kFieldFloat, text), "refused") << text;
  }
}
TEST(Value, AnUnknownTypeHasNoValues) { EXPECT_EQ(Bytes(9, "1"), "refused"); }

TEST(HexBytes, ArePairsOfDigits) {
  std::string bytes;
  EXPECT_TRUE(AppendHexBytes("00fF7a", bytes));
  EXPECT_EQ(bytes, std::string("\x00\xFF\x7A", 3));
}
TEST(HexBytes, AnOddDigitAndOtherCharactersAreRefused) {
  std::string bytes;
  EXPECT_FALSE(AppendHexBytes("0", bytes));
  EXPECT_FALSE(AppendHexBytes("0g", bytes));
  EXPECT_FALSE(AppendHexBytes("-1", bytes));
}

}  // namespace
}  // namespace skydata
