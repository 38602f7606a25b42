// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/settings_field.h"

#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "settings/field_bytes.h"
#include "settings/field_fixture.h"
#include "settings/field_record.h"
#include "support/string_table_file.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

using Access = SettingFieldTestAccess;
using test_support::ByteParts;
using test_support::Bytes;
using test_support::DataOf;
using test_support::FailedField;
using test_support::FieldOf;
using test_support::Int32s;
using test_support::IntParts;
using test_support::LittleEndian;
using test_support::RecordParts;
using Lines = std::vector<std::string>;

using FieldValues = test_support::FieldTest;

TEST_F(FieldValues, BadIndexTouchesNothing) {
  SettingField field = FieldOf(ByteParts({5, 6}));
  char out = '#';
  EXPECT_FALSE(field.GetElement(&out, 2));
  EXPECT_EQ(out, '#');
  EXPECT_FALSE(field.SetElement("x", 0xFFFFFFFF));
  EXPECT_EQ(DataOf(field), Bytes({5, 6}));
  EXPECT_EQ(debug.lines, (Lines{"Bad parameter 'inIndex = 2' in function SettingField::GetOffset\n",
                                "Bad parameter 'inIndex = -1' in function SettingField::GetOffset\n"}));
}

TEST_F(FieldValues, SetDataOfEqualBytesReturnsFalseAndLeavesTheModifiedFlag) {
  SettingField field = FieldOf(IntParts({1, 2}));
  EXPECT_FALSE(field.SetData(Int32s({1, 2}).data()));
  EXPECT_FALSE(Access::IsModified(field));
  EXPECT_TRUE(field.SetData(Int32s({1, 3}).data()));
  EXPECT_TRUE(Access::IsModified(field));
  EXPECT_FALSE(field.SetData(Int32s({1, 3}).data()));
  EXPECT_TRUE(Access::IsModified(field));
  EXPECT_EQ(DataOf(field), Int32s({1, 3}));
}

// Values are compared as bytes: 0.0 and -0.0 differ, and a value that is not a number equals itself.
TEST_F(FieldValues, ValuesAreComparedAsBytes) {
  RecordParts parts;
  parts.type = 6;
  parts.size = 1;
  parts.values = LittleEndian(0x7FC00000, 4);
  SettingField field = FieldOf(parts);
  EXPECT_FALSE(field.SetData(LittleEndian(0x7FC00000, 4).data()));
  EXPECT_TRUE(field.SetData(LittleEndian(0, 4).data()));
  EXPECT_TRUE(field.SetData(LittleEndian(0x80000000, 4).data()));
}

TEST_F(FieldValues, ResizeReturnsFalseLeavesTheModifiedFlagAndKeepsTheHeader) {
  RecordParts parts = IntParts({1, 2});
  SettingField field = FieldOf(parts);
  for (const auto& values : {Int32s({7, 8, 9}), Int32s({5}), std::string()}) {
    const int count = static_cast<int>(values.size() / 4);
    EXPECT_FALSE(field.SetData(values.data(), count));
    EXPECT_FALSE(Access::IsModified(field));
    parts.size = static_cast<unsigned>(count);
    parts.values = values;
    EXPECT_EQ(Access::RecordBytes(field), parts.Current());
  }
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(FieldValues, ResizeToTheSameCountReturnsFalseToo) {
  SettingField field = FieldOf(IntParts({1, 2}));
  EXPECT_FALSE(field.SetData(Int32s({3, 4}).data(), 2));
  EXPECT_FALSE(Access::IsModified(field));
  EXPECT_EQ(DataOf(field), Int32s({3, 4}));
}

TEST_F(FieldValues, ResizeFromTheFieldsOwnValues) {
  SettingField field = FieldOf(IntParts({1, 2, 3}));
  field.SetData(Access::Record(field)->data + 4, 2);
  EXPECT_EQ(DataOf(field), Int32s({2, 3}));
}

TEST_F(FieldValues, ResizeUpToTheLongestRecordIsDoneAndBeyondItIsRefused) {
  RecordParts parts;
  parts.type = 7;
  SettingField field = FieldOf(parts);
  const std::string values(8 * 8192, 'd');
  EXPECT_FALSE(field.SetData(values.data(), 8191));
  EXPECT_EQ(field.GetSize(), 8191U);
  EXPECT_EQ(Access::RecordSize(field), 20 + 8 * 8191);
  EXPECT_EQ(debug.lines, Lines{});
  EXPECT_FALSE(field.SetData(values.data(), 8192));
  EXPECT_EQ(field.GetSize(), 8191U);
  EXPECT_EQ(Access::RecordSize(field), 20 + 8 * 8191);
  EXPECT_EQ(debug.lines, Lines{"Bad parameter 'count = 8192' in function SettingField::SetData\n"});
}

TEST_F(FieldValues, ResizeTo65535BytesIsDoneAndTo65536Refused) {
  SettingField field = FieldOf(ByteParts({1}));
  const std::string values(65536, 'b');
  field.SetData(values.data(), 65535);
  EXPECT_EQ(field.GetSize(), 65535U);
  EXPECT_EQ(Access::RecordSize(field), 65555);
  field.SetData(values.data(), 65536);
  EXPECT_EQ(field.GetSize(), 65535U);
  EXPECT_EQ(debug.lines, Lines{"Bad parameter 'count = 65536' in function SettingField::SetData\n"});
}

TEST_F(FieldValues, ResizeToANegativeCountIsRefused) {
  SettingField field = FieldOf(IntParts({1, 2}));
  EXPECT_FALSE(field.SetData(Int32s({3}).data(), -2));
  EXPECT_FALSE(field.SetData(Int32s({3}).data(), -2147483647 - 1));
  EXPECT_FALSE(field.SetData(Int32s({3}).data(), 2147483647));
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
  EXPECT_EQ(debug.lines, (Lines{"Bad parameter 'count = -2' in function SettingField::SetData\n",
                                "Bad parameter 'count = -2147483648' in function SettingField::SetData\n",
                                "Bad parameter 'count = 2147483647' in function SettingField::SetData\n"}));
}

TEST_F(FieldValues, NullValuesChangeNothing) {
  SettingField field = FieldOf(IntParts({1, 2}));
  EXPECT_FALSE(field.SetData(nullptr));
  EXPECT_FALSE(field.SetData(nullptr, 1));
  EXPECT_FALSE(field.SetDataAndStore(nullptr));
  EXPECT_FALSE(field.SetElement(nullptr, 0));
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
  EXPECT_EQ(Access::StoreState(field), 0);
}

TEST_F(FieldValues, HeaderThatClaimsTooManyValuesYieldsThoseThatAreThere) {
  RecordParts parts = IntParts({1, 2});
  parts.values += Bytes({9, 9, 9});  // not a whole element
  parts.size = 65535;
  SettingField field = FieldOf(parts);
  EXPECT_EQ(field.GetSize(), 2U);
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
  EXPECT_EQ(Access::Offset(field, 1), 4U);
  EXPECT_EQ(Access::Offset(field, 2), 0xFFFFFFFFU);
  EXPECT_TRUE(field.SetData(Int32s({3, 4}).data()));
  EXPECT_TRUE(field.SetElement(Int32s({5}).data(), 1));
  EXPECT_FALSE(field.SetElement(Int32s({5}).data(), 2));
  parts.values = Int32s({3, 5}) + Bytes({9, 9, 9});
  EXPECT_EQ(Access::RecordBytes(field), parts.Current());
}

TEST_F(FieldValues, ResizeOfAHeaderThatClaimsTooMuchCountsFromWhatIsThere) {
  RecordParts parts = IntParts({1, 2});
  parts.size = 65535;
  SettingField field = FieldOf(parts);
  field.SetData(Int32s({7, 8, 9}).data(), 3);
  EXPECT_EQ(Access::RecordSize(field), 32);
  EXPECT_EQ(field.GetSize(), 3U);
  EXPECT_EQ(DataOf(field), Int32s({7, 8, 9}));
}

TEST_F(FieldValues, UnknownTypePrintsString0AndHasValuesOfNoLength) {
  test_support::TempRoots roots;
  test_support::LoadStrings(roots, "0\tType of a setting is unknown: 100 %s\\n\n");
  RecordParts parts = IntParts({1, 2});
  parts.type = 9;
  SettingField field = FieldOf(parts);
  EXPECT_EQ(field.GetSize(), 2U);
  EXPECT_EQ(debug.lines, Lines{});

  const Lines message{"Type of a setting is unknown: 100 %s\n"};
  EXPECT_EQ(Access::TypeSize(field), 0);
  EXPECT_EQ(debug.lines, message);
  debug.lines.clear();
  char out = '#';
  EXPECT_TRUE(field.GetData(&out));
  EXPECT_EQ(out, '#');
  EXPECT_EQ(debug.lines, message);
  debug.lines.clear();
  EXPECT_FALSE(field.SetData("abcdefgh"));
  EXPECT_EQ(debug.lines, message);
  EXPECT_TRUE(field.GetElement(&out, 1));
  EXPECT_EQ(out, '#');
  EXPECT_FALSE(field.SetElement("abcd", 1));
  EXPECT_EQ(Access::RecordBytes(field), parts.Current());
}

TEST_F(FieldValues, ResizeOfAnUnknownTypeChangesTheCountOnly) {
  test_support::TempRoots roots;
  test_support::LoadStrings(roots, "0\tunknown\n");
  RecordParts parts = IntParts({1, 2});
  parts.type = 255;
  SettingField field = FieldOf(parts);
  EXPECT_FALSE(field.SetData(nullptr, 65535));
  EXPECT_EQ(field.GetSize(), 65535U);
  EXPECT_EQ(Access::RecordSize(field), 28);
  EXPECT_FALSE(field.SetData(nullptr, 65536));
  EXPECT_EQ(field.GetSize(), 65535U);
}

TEST_F(FieldValues, UnknownTypeLoadsTheStringTableAndBearsAMissingText) {
  test_support::TempRoots roots;
  test_support::LoadStrings(roots, "1\tother\n");
  RecordParts parts;
  parts.type = 200;
  EXPECT_EQ(Access::TypeSize(FieldOf(parts)), 0);
  EXPECT_EQ(debug.lines, Lines{"String with ID = 0 not found in file qxstrings.txt\n"});
}

TEST_F(FieldValues, FieldWithoutARecordIsSafeToUse) {
  for (SettingField field : {FailedField(), SettingField(FailedField())}) {
    char out = '#';
    EXPECT_EQ(field.GetNameId(), 0);
    EXPECT_EQ(field.GetType(), 0U);
    EXPECT_EQ(field.GetSize(), 0U);
    EXPECT_EQ(field.GetSection(), 0U);
    EXPECT_EQ(field.GetQuerySection(), 0U);
    EXPECT_EQ(field.GetCondition(), 0U);
    EXPECT_EQ(field.GetCompareStatus(), 0);
    field.SetNameId(5);
    EXPECT_TRUE(field.GetData(&out));
    EXPECT_FALSE(field.SetData("x"));
    EXPECT_FALSE(field.SetData("x", 1));
    EXPECT_FALSE(field.SetDataAndStore("x"));
    field.RestoreData();
    EXPECT_FALSE(field.SetCompareStatus(1));
    EXPECT_FALSE(field.SetCompareStatusAndStore(1));
    field.RestoreCompareStatus();
    EXPECT_FALSE(field.GetElement(&out, 0));
    EXPECT_FALSE(field.SetElement("x", 0));
    EXPECT_EQ(field.CreateQuery(0, true), nullptr);
    EXPECT_EQ(field.CreateAimQuery(0, SSO_ID()), nullptr);
    Access::Swap(field);
    EXPECT_EQ(out, '#');
    EXPECT_FALSE(field.IsOk());
    EXPECT_FALSE(Access::IsModified(field));
    EXPECT_EQ(Access::StoreState(field), 0);
  }
}

TEST_F(FieldValues, SwapReversesSectionConditionSizeAndValuesOnly) {
  RecordParts parts;
  parts.section = 0x01020304;
  parts.nameId = 0x11121314;
  parts.type = 3;
  parts.size = 2;
  parts.condition = 0x21222324;
  parts.compareStatus = 0x31;
  parts.querySection = 0x41424344;
  parts.values = Bytes({0x51, 0x52, 0x53, 0x54});
  SettingField field = FieldOf(parts);
  Access::Swap(field);
  EXPECT_EQ(Access::RecordBytes(field), Bytes({
                                            0x01, 0x02, 0x03, 0x04,  // section, reversed
                                            0x14, 0x13, 0x12, 0x11,  // name id, deliberately not
                                            0x03,                    //
                                            0x00, 0x02,              // size, reversed
                                            0x21, 0x22, 0x23, 0x24,  // condition, reversed
                                            0x31,                    //
                                            0x44, 0x43, 0x42, 0x41,  // query section, deliberately not
                                            0x52, 0x51, 0x54, 0x53,  // both values, reversed
                                        }));
  Access::Swap(field);
  EXPECT_EQ(Access::RecordBytes(field), parts.Current());
}

TEST_F(FieldValues, SwapOfEveryWidth) {
  const std::string values = Bytes({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
  const std::string by2 = Bytes({2, 1, 4, 3, 6, 5, 8, 7, 10, 9, 12, 11, 14, 13, 16, 15});
  const std::string by4 = Bytes({4, 3, 2, 1, 8, 7, 6, 5, 12, 11, 10, 9, 16, 15, 14, 13});
  const std::string by8 = Bytes({8, 7, 6, 5, 4, 3, 2, 1, 16, 15, 14, 13, 12, 11, 10, 9});
  const std::string expected[] = {values, values, by2, by2, by4, by4, by4, by8, values};
  for (unsigned char type = 0; type < 9; ++type) {
    RecordParts parts;
    parts.type = type;
    parts.size = 16U / FieldElementWidth(type);
    parts.values = values;
    SettingField field = FieldOf(parts);
    Access::Swap(field);
    EXPECT_EQ(Access::RecordBytes(field).substr(20), expected[type]) << int{type};
  }
}

// 256 elements: the reversed size is 1, which must not decide how many values are reversed back.
TEST_F(FieldValues, SwapTwiceIsTheRecordAgain) {
  RecordParts parts;
  parts.type = 2;
  parts.size = 256;
  for (int i = 0; i < 512; ++i) parts.values += static_cast<char>(i);
  SettingField field = FieldOf(parts);
  Access::Swap(field);
  Access::Swap(field);
  EXPECT_EQ(Access::RecordBytes(field), parts.Current());
}

TEST_F(FieldValues, NullInPlaceOfTheOutputTakesNothing) {
  const SettingField field = FieldOf(IntParts({1, 2}).Current());
  EXPECT_TRUE(field.GetData(nullptr));
  EXPECT_TRUE(field.GetElement(nullptr, 1));
  EXPECT_FALSE(field.GetElement(nullptr, 2));
}

}  // namespace
}  // namespace CommonInterfaces
