// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/format.h"

#include <gtest/gtest.h>

#include "common_interfaces/field_data.h"
#include "skydata/settings/text/values.h"
#include "tests/skydata/settings/bytes.h"

namespace skydata {
namespace {

using namespace CommonInterfaces;
using namespace std::string_literals;
using skydata_test::Le32;

std::string Value(unsigned char type, const std::string& bytes) { return FormatValue(type, bytes.data()); }

TEST(FormattedWord, PlainCodesAreWrittenAsSuch) {
  EXPECT_EQ(FormatWord(0x73746172), "star");
  EXPECT_EQ(FormatWord(0x6D5F3031), "m_01");
}
TEST(FormattedWord, WordsWithANameHaveIt) {
  EXPECT_EQ(FormatWord(0xFFFFFFFF), "none");
  EXPECT_EQ(FormatWord(0x44464C54), "defaults");
}
TEST(FormattedWord, WhatTheTextWouldReadInAnotherWayIsANumber) {
  EXPECT_EQ(FormatWord(0x6E6F6E65), "0x6E6F6E65");  // "none"
  EXPECT_EQ(FormatWord(0x2361625D), "0x2361625D");  // "#ab]"
  EXPECT_EQ(FormatWord(0x31323334), "0x31323334");  // "1234"
}
TEST(FormattedWord, SmallNumbersAreDecimal) {
  EXPECT_EQ(FormatWord(0), "0");
  EXPECT_EQ(FormatWord(999), "999");
  EXPECT_EQ(FormatWord(0x4000), "0x4000");
}

TEST(FormattedValue, IntegersOfEveryWidth) {
  EXPECT_EQ(Value(kFieldInt8, "\x80"), "-128");
  EXPECT_EQ(Value(kFieldUInt8, "\x80"), "128");
  EXPECT_EQ(Value(kFieldBytes, "\xFF"), "255");
  EXPECT_EQ(Value(kFieldInt16, "\x00\x80"s), "-32768");
  EXPECT_EQ(Value(kFieldUInt16, "\x00\x80"s), "32768");
  EXPECT_EQ(Value(kFieldInt32, Le32(0xFFFFFFFF)), "-1");
  EXPECT_EQ(Value(kFieldUInt32, Le32(0xFFFFFFFF)), "4294967295");
}
TEST(FormattedValue, A32BitIntegerThatIsACode) {
  EXPECT_EQ(Value(kFieldUInt32, "tnlp"), "plnt");
  EXPECT_EQ(Value(kFieldInt32, "tnlp"), "plnt");
}
TEST(FormattedValue, RealNumbersHaveTheFewestDigits) {
  EXPECT_EQ(Value(kFieldFloat, Le32(0x3DCCCCCD)), "0.1");                      // IEEE 754: 0.1f
  EXPECT_EQ(Value(kFieldDouble, Le32(0x9999999A) + Le32(0x3FB99999)), "0.1");  // 0.1
  EXPECT_EQ(Value(kFieldDouble, Le32(0) + Le32(0x80000000)), "-0");            // minus zero
  EXPECT_EQ(Value(kFieldFloat, Le32(1)), "1e-45");                             // the smallest of all
}
TEST(FormattedValue, AnglesAreDegreesWhereTheseAreExact) {
  // 57 degrees in radians is 0.9948376736367679 (docs/formats/camera_record.md).
  std::string bytes;
  ASSERT_TRUE(AppendValue(kFieldDouble, "0.9948376736367679", bytes));
  EXPECT_EQ(Value(kFieldDouble, bytes), "57deg");
  bytes.clear();
  ASSERT_TRUE(AppendValue(kFieldDouble, "0.994837673636768", bytes));  // one bit more
  EXPECT_EQ(Value(kFieldDouble, bytes), "0.994837673636768");
}
TEST(FormattedValue, WhatHasNoDigitsIsItsBits) {
  EXPECT_EQ(Value(kFieldFloat, Le32(0x7F800000)), "0x7F800000");                     // infinity
  EXPECT_EQ(Value(kFieldFloat, Le32(0xFFC12345)), "0xFFC12345");                     // a NaN with a payload
  EXPECT_EQ(Value(kFieldDouble, Le32(1) + Le32(0x7FF00000)), "0x7FF0000000000001");  // a signalling NaN
}

FieldText Field(const std::string& name, unsigned char type, unsigned short size, const std::string& values) {
  FieldText field;
  field.name = name;
  field.nameId = 0x1234;
  field.type = type;
  field.size = size;
  field.values = values;
  return field;
}

TEST(FormattedField, AttributesStandBehindTheValues) {
  FieldText field = Field("Draw", kFieldUInt8, 2, "\x01\x02");
  EXPECT_EQ(FormatField(field), "Draw = u8 1, 2");
  field.compareStatus = 1;
  field.condition = 0x4000;
  field.querySection = 0x67616C61;
  field.isAgain = true;
  EXPECT_EQ(FormatField(field), "Draw = u8 1, 2 | compare=1 condition=0x4000 query=gala again");
}
TEST(FormattedField, WhatDoesNotFitTheCountIsSizeAndTail) {
  EXPECT_EQ(FormatField(Field("Draw", kFieldInt16, 3, "\x01\x00\x0A"s)), "Draw = i16 1 | size=3 tail=0A");
  EXPECT_EQ(FormatField(Field("Draw", kFieldUInt8, 1, "\x01\xFE")), "Draw = u8 1 | tail=FE");
  EXPECT_EQ(FormatField(Field("Draw", 77, 3, "\x01")), "Draw = type77 | size=3 tail=01");
  EXPECT_EQ(FormatField(Field("Draw", kFieldUInt8, 0, "")), "Draw = u8");
}
TEST(FormattedField, ANameThatCannotStandInTheTextIsItsId) {
  for (const char* name : {"", "[a", "#a", "@a", "a=b", "a #b", " a", "a ", "a\nb"})
    EXPECT_EQ(FormatField(Field(name, kFieldUInt8, 0, "")), "@1234 = u8") << name;
  EXPECT_EQ(FormatField(Field("a#b |c", kFieldUInt8, 0, "")), "a#b |c = u8");
}

TEST(FormattedHeading, OnlyWhatIsNotUsualIsSaid) {
  SectionText section;
  section.id = 0x73746172;
  EXPECT_EQ(FormatSectionHeading(section), "[section star]");
  section.alias = 0x67616C61;
  section.status = 0;
  EXPECT_EQ(FormatSectionHeading(section), "[section star alias=gala status=0]");
  EXPECT_EQ(FormatBlockHeading(0x464C5452, 0x44464C54), "[block FLTR defaults]");
}

}  // namespace
}  // namespace skydata
