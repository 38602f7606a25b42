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

using Field = test_support::FieldTest;

// The CRC-32 table of the reflected polynomial 0xEDB88320, as the code of RFC 1952 (1996), section 8 makes
// it, has T[0] = 0 and T[1] = 0x77073096. From h = 0 one byte c gives T[c].
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

struct TypeCase {
  unsigned char type;
  unsigned width;
};

class FieldOfType : public testing::TestWithParam<TypeCase> {
 protected:
  // Three elements, of the bytes 1, 2, 3, ...
  RecordParts Parts() const {
    RecordParts parts;
    parts.type = GetParam().type;
    parts.size = 3;
    for (unsigned i = 1; i <= 3 * GetParam().width; ++i) parts.values += static_cast<char>(i);
    return parts;
  }
};

TEST_P(FieldOfType, WidthAndOffsets) {
  const unsigned width = GetParam().width;
  const SettingField field = FieldOf(Parts());
  test_support::DebugCapture debug;
  EXPECT_EQ(Access::TypeSize(field), width);
  EXPECT_EQ(Access::Offset(field, 0), 0U);
  EXPECT_EQ(Access::Offset(field, 2), width * 2);
  EXPECT_EQ(debug.lines, Lines{});
  EXPECT_EQ(Access::Offset(field, 3), 0xFFFFFFFFU);
  EXPECT_EQ(debug.lines, Lines{"Bad parameter 'inIndex = 3' in function SettingField::GetOffset\n"});
}

TEST_P(FieldOfType, GetDataCopiesAllValues) { EXPECT_EQ(DataOf(FieldOf(Parts())), Parts().values); }

TEST_P(FieldOfType, GetElementCopiesOneElement) {
  const unsigned width = GetParam().width;
  const SettingField field = FieldOf(Parts());
  std::string element(width + 1, '#');
  EXPECT_TRUE(field.GetElement(element.data(), 1));
  EXPECT_EQ(element, Parts().values.substr(width, width) + '#');
}

TEST_P(FieldOfType, SetElementReplacesOneElement) {
  const unsigned width = GetParam().width;
  SettingField field = FieldOf(Parts());
  const std::string element(width, 'e');
  EXPECT_TRUE(field.SetElement(element.data(), 2));
  EXPECT_TRUE(Access::IsModified(field));
  EXPECT_EQ(DataOf(field), Parts().values.substr(0, 2 * width) + element);
}

TEST_P(FieldOfType, SetElementOfEqualBytesChangesNothing) {
  SettingField field = FieldOf(Parts());
  EXPECT_FALSE(field.SetElement(Parts().values.data() + GetParam().width, 1));
  EXPECT_FALSE(Access::IsModified(field));
}

TEST_P(FieldOfType, ResizeCountsInElements) {
  const unsigned width = GetParam().width;
  SettingField field = FieldOf(Parts());
  const std::string values(5 * width, 'n');
  EXPECT_FALSE(field.SetData(values.data(), 5));
  EXPECT_EQ(Access::RecordSize(field), static_cast<int>(20 + 5 * width));
  EXPECT_EQ(field.GetSize(), 5U);
  EXPECT_EQ(DataOf(field), values);
}

INSTANTIATE_TEST_SUITE_P(AllTypes, FieldOfType,
                         testing::Values(TypeCase{0, 1}, TypeCase{1, 1}, TypeCase{2, 2}, TypeCase{3, 2},
                                         TypeCase{4, 4}, TypeCase{5, 4}, TypeCase{6, 4}, TypeCase{7, 8},
                                         TypeCase{8, 1}),
                         [](const auto& test) { return "Type" + std::to_string(test.param.type); });

}  // namespace
}  // namespace CommonInterfaces
