// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/settings_field.h"

#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "settings/field_fixture.h"
#include "settings/field_record.h"
#include "support/string_table_file.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

using namespace field_test;

// The CRC-32 table of the reflected polynomial 0xEDB88320, as the code of RFC 1952 (1996), section 8 makes it, has
// T[0] = 0 and T[1] = 0x77073096. From h = 0 one byte c gives T[c].
TEST(GetUniqueID, OneByteIsItsTableEntry) {
  EXPECT_EQ(CommonInterfaces::GetUniqueID(""), 0);
  EXPECT_EQ(CommonInterfaces::GetUniqueID("\x01"), 0x77073096);
}

TEST(GetUniqueID, IsTheRuleOfTheGlobalOne) {
  for (const char* name : {"", "QXid", "IntegrationFlag", "NGC-IC", "3D-FlightMarker", "\xC3\xA4\xFF"}) {
    EXPECT_EQ(CommonInterfaces::GetUniqueID(name), ::GetUniqueID(name)) << name;
    EXPECT_GE(CommonInterfaces::GetUniqueID(name), 0) << name;
  }
}

TEST(GetUniqueID, NullCountsAsTheEmptyName) { EXPECT_EQ(CommonInterfaces::GetUniqueID(nullptr), 0); }

TEST_F(Field, TakesAPrivateCopyOfTheRecord) {
  std::string record = IntParts({1, 2}).Current();
  const SettingField field = FieldOf(record);
  record[20] = 9;
  EXPECT_TRUE(field.IsOk());
  EXPECT_EQ(Access::RecordSize(field), 28);
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
  EXPECT_FALSE(Access::IsModified(field));
  EXPECT_EQ(Access::StoreState(field), 0);
  EXPECT_EQ(Access::Query(field), nullptr);
}

TEST_F(Field, RecordOf1To19BytesIsRefused) {
  const std::string record = RecordParts{}.Current();
  for (unsigned size = 1; size < 20; ++size) {
    debug.lines.clear();
    const SettingField field = FieldOf(record.substr(0, size));
    EXPECT_EQ(Access::RecordSize(field), -1) << size;
    EXPECT_EQ(Access::Record(field), nullptr) << size;
    EXPECT_EQ(debug.lines, Lines{"Bad parameter 'size = " + std::to_string(size) +
                                 "' in function SettingField::SettingField\n"});
  }
}

TEST_F(Field, RecordOf65556BytesIsRefused) {
  const SettingField longest = FieldOf(RecordParts{}.Current() + std::string(65535, 'v'));
  EXPECT_EQ(Access::RecordSize(longest), 65555);
  const SettingField longer = FieldOf(RecordParts{}.Current() + std::string(65536, 'v'));
  EXPECT_EQ(Access::RecordSize(longer), -1);
  EXPECT_EQ(debug.lines, Lines{"Bad parameter 'size = 65556' in function SettingField::SettingField\n"});
}

TEST_F(Field, RecordOfNoBytesIsAnEmptyField) {
  const FieldData header{};
  const SettingField field(nullptr, &header, 0);
  EXPECT_EQ(Access::RecordSize(field), 0);
  EXPECT_FALSE(field.IsOk());
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(Field, HeaderGetters) {
  RecordParts parts = IntParts({1, 2, 3});
  parts.section = 0xFEDCBA98;
  parts.nameId = 0x12345678;
  parts.condition = 0x87654321;
  parts.compareStatus = 200;
  parts.querySection = 0xFFFFFFFF;
  const SettingField field = FieldOf(parts);
  EXPECT_EQ(field.GetSection(), 0xFEDCBA98U);
  EXPECT_EQ(field.GetNameId(), 0x12345678);
  EXPECT_EQ(field.GetType(), 4U);
  EXPECT_EQ(field.GetSize(), 3U);
  EXPECT_EQ(field.GetCondition(), 0x87654321U);
  EXPECT_EQ(field.GetCompareStatus(), 200);
  EXPECT_EQ(field.GetQuerySection(), 0xFFFFFFFFU);
}

TEST_F(Field, SetNameIdLeavesTheModifiedFlagAlone) {
  SettingField field = FieldOf(IntParts({1}));
  field.SetNameId(-3);
  EXPECT_EQ(field.GetNameId(), -3);
  EXPECT_FALSE(Access::IsModified(field));
}

TEST_F(Field, OldSettingsFlagIsInitiallyOff) {
  EXPECT_FALSE(SettingField::IsOldSettings());
  SettingField::SetOldSettings(true);
  EXPECT_TRUE(SettingField::IsOldSettings());
  SettingField::SetOldSettings(false);
  EXPECT_FALSE(SettingField::IsOldSettings());
}

TEST_F(Field, CopyHasTheRecordAndTheModifiedFlagButNothingElse) {
  SettingField field = FieldOf(IntParts({1, 2}));
  field.SetCompareStatusAndStore(0);
  ASSERT_TRUE(Access::IsModified(field));
  const SettingField copy(field);
  EXPECT_EQ(Access::RecordBytes(copy), Access::RecordBytes(field));
  EXPECT_NE(Access::Record(copy), Access::Record(field));
  EXPECT_TRUE(Access::IsModified(copy));
  EXPECT_EQ(Access::StoreState(copy), 0);
}

TEST_F(Field, CopyHasNoQuery) {
  SettingField field = FieldOf(IntParts({1, 2}));
  ASSERT_NE(field.CreateQuery(0x706C6E74, false), nullptr);
  const SettingField copy(field);
  EXPECT_EQ(Access::Query(copy), nullptr);
}

TEST_F(Field, CopyOfAFailedFieldIsEmpty) {
  const SettingField failed = FailedField();
  const SettingField copy(failed);
  EXPECT_EQ(Access::RecordSize(failed), -1);
  EXPECT_EQ(Access::RecordSize(copy), 0);
  EXPECT_EQ(Access::Record(copy), nullptr);
  EXPECT_FALSE(Access::IsModified(copy));
}

TEST_F(Field, AssignmentOfTheSameSizeKeepsTheRecordInPlace) {
  SettingField field = FieldOf(IntParts({1, 2}));
  const FieldData* const before = Access::Record(field);
  SettingField source = FieldOf(IntParts({3, 4}));
  source.SetCompareStatus(9);
  field = source;
  EXPECT_EQ(Access::Record(field), before);
  EXPECT_EQ(Access::RecordBytes(field), Access::RecordBytes(source));
  EXPECT_TRUE(Access::IsModified(field));
}

TEST_F(Field, AssignmentOfAnotherSizeReplacesTheRecord) {
  SettingField field = FieldOf(IntParts({1, 2}));
  field.SetCompareStatus(9);
  field = FieldOf(ByteParts({7}));
  EXPECT_EQ(Access::RecordSize(field), 21);
  EXPECT_EQ(DataOf(field), Bytes({7}));
  EXPECT_FALSE(Access::IsModified(field));
}

TEST_F(Field, AssignmentToAFailedFieldMakesItValid) {
  SettingField field = FailedField();
  field = FieldOf(ByteParts({7}));
  EXPECT_TRUE(field.IsOk());
  EXPECT_EQ(DataOf(field), Bytes({7}));
}

TEST_F(Field, AssignmentDeletesTheQuery) {
  SettingField field = FieldOf(IntParts({1, 2}));
  ASSERT_NE(field.CreateQuery(0x706C6E74, false), nullptr);
  field = FieldOf(IntParts({3, 4}));
  EXPECT_EQ(Access::Query(field), nullptr);
}

TEST_F(Field, AssignmentToItselfKeepsTheRecord) {
  SettingField field = FieldOf(IntParts({1, 2}));
  const SettingField& self = field;
  field = self;
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
}

TEST_F(Field, AssignmentKeepsTheStoreState) {
  SettingField field = FieldOf(IntParts({1, 2}));
  field.SetCompareStatusAndStore(0);
  field = FieldOf(IntParts({3, 4}));
  EXPECT_EQ(Access::StoreState(field), 2);
  field.SetCompareStatus(0);
  field.RestoreCompareStatus();
  EXPECT_EQ(field.GetCompareStatus(), 1);
}

TEST_F(Field, AssignmentReturnsACopyByValue) {
  SettingField field = FieldOf(IntParts({1, 2}));
  static_assert(std::is_same_v<decltype(field = field), SettingField>);
  const SettingField source = FieldOf(IntParts({3, 4}));
  (field = source).SetCompareStatus(77);
  EXPECT_EQ(field.GetCompareStatus(), 1);
}

// The earlier record is deliberately not released, so it is still there to be read; the test releases it.
TEST_F(Field, AssignmentFromAnEmptyFieldLeavesTheEarlierRecordAllocated) {
  SettingField field = FieldOf(ByteParts({5, 6}));
  field.SetCompareStatus(0);
  FieldData* const earlier = Access::Record(field);
  field = FailedField();
  EXPECT_EQ(Access::Record(field), nullptr);
  EXPECT_EQ(Access::RecordSize(field), 0);
  EXPECT_FALSE(Access::IsModified(field));
  EXPECT_EQ(earlier->data[1], 6);
  FreeFieldData(earlier);
}

TEST_F(Field, BadIndexTouchesNothing) {
  SettingField field = FieldOf(ByteParts({5, 6}));
  char out = '#';
  EXPECT_FALSE(field.GetElement(&out, 2));
  EXPECT_EQ(out, '#');
  EXPECT_FALSE(field.SetElement("x", 0xFFFFFFFF));
  EXPECT_EQ(DataOf(field), Bytes({5, 6}));
  EXPECT_EQ(debug.lines, (Lines{"Bad parameter 'inIndex = 2' in function SettingField::GetOffset\n",
                                "Bad parameter 'inIndex = -1' in function SettingField::GetOffset\n"}));
}

TEST_F(Field, SetDataOfEqualBytesReturnsFalseAndLeavesTheModifiedFlag) {
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
TEST_F(Field, ValuesAreComparedAsBytes) {
  RecordParts parts;
  parts.type = 6;
  parts.size = 1;
  parts.values = LittleEndian(0x7FC00000, 4);
  SettingField field = FieldOf(parts);
  EXPECT_FALSE(field.SetData(LittleEndian(0x7FC00000, 4).data()));
  EXPECT_TRUE(field.SetData(LittleEndian(0, 4).data()));
  EXPECT_TRUE(field.SetData(LittleEndian(0x80000000, 4).data()));
}

TEST_F(Field, ResizeReturnsFalseLeavesTheModifiedFlagAndKeepsTheHeader) {
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

TEST_F(Field, ResizeToTheSameCountReturnsFalseToo) {
  SettingField field = FieldOf(IntParts({1, 2}));
  EXPECT_FALSE(field.SetData(Int32s({3, 4}).data(), 2));
  EXPECT_FALSE(Access::IsModified(field));
  EXPECT_EQ(DataOf(field), Int32s({3, 4}));
}

TEST_F(Field, ResizeFromTheFieldsOwnValues) {
  SettingField field = FieldOf(IntParts({1, 2, 3}));
  field.SetData(Access::Record(field)->data + 4, 2);
  EXPECT_EQ(DataOf(field), Int32s({2, 3}));
}

TEST_F(Field, ResizeUpToTheLongestRecordIsDoneAndBeyondItIsRefused) {
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

TEST_F(Field, ResizeTo65535BytesIsDoneAndTo65536Refused) {
  SettingField field = FieldOf(ByteParts({1}));
  const std::string values(65536, 'b');
  field.SetData(values.data(), 65535);
  EXPECT_EQ(field.GetSize(), 65535U);
  EXPECT_EQ(Access::RecordSize(field), 65555);
  field.SetData(values.data(), 65536);
  EXPECT_EQ(field.GetSize(), 65535U);
  EXPECT_EQ(debug.lines, Lines{"Bad parameter 'count = 65536' in function SettingField::SetData\n"});
}

TEST_F(Field, ResizeToANegativeCountIsRefused) {
  SettingField field = FieldOf(IntParts({1, 2}));
  EXPECT_FALSE(field.SetData(Int32s({3}).data(), -2));
  EXPECT_FALSE(field.SetData(Int32s({3}).data(), -2147483647 - 1));
  EXPECT_FALSE(field.SetData(Int32s({3}).data(), 2147483647));
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
  EXPECT_EQ(debug.lines, (Lines{"Bad parameter 'count = -2' in function SettingField::SetData\n",
                                "Bad parameter 'count = -2147483648' in function SettingField::SetData\n",
                                "Bad parameter 'count = 2147483647' in function SettingField::SetData\n"}));
}

TEST_F(Field, NullValuesChangeNothing) {
  SettingField field = FieldOf(IntParts({1, 2}));
  EXPECT_FALSE(field.SetData(nullptr));
  EXPECT_FALSE(field.SetData(nullptr, 1));
  EXPECT_FALSE(field.SetDataAndStore(nullptr));
  EXPECT_FALSE(field.SetElement(nullptr, 0));
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
  EXPECT_EQ(Access::StoreState(field), 0);
}

}  // namespace
}  // namespace CommonInterfaces
