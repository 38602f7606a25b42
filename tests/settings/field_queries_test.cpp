// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Queries made from one settings field.
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/queries.h"
#include "common_interfaces/settings_field.h"
#include "settings/field_bytes.h"
#include "support/debug_capture.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

using Access = SettingFieldTestAccess;
using test_support::ByteParts;
using test_support::Bytes;
using test_support::FieldOf;
using test_support::Int32s;
using test_support::IntParts;
using test_support::LittleEndian;
using test_support::RecordParts;

constexpr unsigned kSection = 0x706C6E74;  // that of RecordParts
constexpr unsigned kOther = 0x6D6F6F6E;

template <class T>
std::vector<T> ValuesOf(const BaseQuery* query) {
  const auto* typed = dynamic_cast<const TQuery<T>*>(query);
  EXPECT_NE(typed, nullptr);
  return typed ? typed->m_Values : std::vector<T>();
}

RecordParts LabelList(std::initializer_list<int> values) {
  RecordParts parts = ByteParts(values);
  parts.condition = 0x4000;
  return parts;
}

// A label list of `size` elements: the selector, then 1, 2, 3, ... modulo 256.
RecordParts LongLabelList(unsigned size, int selector) {
  RecordParts parts = LabelList({selector});
  for (unsigned i = 1; i < size; ++i) parts.values += static_cast<char>(i);
  parts.size = size;
  return parts;
}

template <class T>
void ExpectQueryOf(unsigned char type, const std::string& bytes, const std::vector<T>& values) {
  RecordParts parts;
  parts.type = type;
  parts.size = static_cast<unsigned>(values.size());
  parts.nameId = 1234;
  parts.condition = 17;
  parts.values = bytes;
  SettingField field = FieldOf(parts);
  const BaseQuery* const query = field.CreateQuery(kSection, false);
  ASSERT_NE(query, nullptr) << int{type};
  EXPECT_EQ(query->m_NameId, 1234);
  EXPECT_EQ(query->m_Condition, 17U);
  EXPECT_EQ(ValuesOf<T>(query), values) << int{type};
}

TEST(FieldQuery, EveryFilterableTypeMakesTheQueryOfItsType) {
  ExpectQueryOf<char>(0, Bytes({0x41, 0x7F}), {'A', '\x7F'});
  ExpectQueryOf<unsigned char>(1, Bytes({0, 255}), {0, 255});
  ExpectQueryOf<short>(2, Bytes({0x34, 0x12, 0x00, 0x80}), {0x1234, -32768});
  ExpectQueryOf<unsigned short>(3, Bytes({0x34, 0x12, 0xFF, 0xFF}), {0x1234, 65535});
  ExpectQueryOf<int>(4, Int32s({-1, 70000}), {-1, 70000});
  ExpectQueryOf<unsigned int>(5, LittleEndian(0xFFFFFFFF, 4), {0xFFFFFFFF});
  ExpectQueryOf<float>(6, Bytes({0x00, 0x00, 0x20, 0xC0}), {-2.5F});
  ExpectQueryOf<double>(7, LittleEndian(0x3FF8000000000000, 8) + LittleEndian(0xC000000000000000, 8),
                        {1.5, -2.0});
}

TEST(FieldQuery, Type8NeverMakesAQuery) {
  RecordParts parts = ByteParts({1, 1, 1, 1, 1, 7, 0, 0, 0});
  parts.type = 8;
  parts.condition = 0x4000;
  SettingField field = FieldOf(parts);
  EXPECT_EQ(field.CreateQuery(kSection, false), nullptr);
  EXPECT_EQ(field.CreateQuery(kSection, true), nullptr);
}

TEST(FieldQuery, UnknownTypeMakesNoQueryAndPrintsNothing) {
  test_support::DebugCapture debug;
  RecordParts parts = ByteParts({1, 2});
  parts.type = 9;
  EXPECT_EQ(FieldOf(parts).CreateQuery(kSection, true), nullptr);
  EXPECT_TRUE(debug.lines.empty());
}

TEST(FieldQuery, FieldWithoutValuesMakesAnEmptyQuery) {
  SettingField field = FieldOf(IntParts({}));
  const BaseQuery* const query = field.CreateQuery(kSection, false);
  ASSERT_NE(query, nullptr);
  EXPECT_EQ(query->GetValue(0), nullptr);
}

TEST(FieldQuery, HeaderThatClaimsTooManyValuesMakesAQueryOfThoseThatAreThere) {
  RecordParts parts = IntParts({1, 2});
  parts.size = 65535;
  SettingField field = FieldOf(parts);
  EXPECT_EQ(ValuesOf<int>(field.CreateQuery(kSection, false)), (std::vector<int>{1, 2}));
}

TEST(FieldQuery, OwnSectionCountsWhenTheQuerySectionIsNone) {
  SettingField field = FieldOf(IntParts({1}));
  EXPECT_EQ(field.CreateQuery(kOther, true), nullptr);
  EXPECT_NE(field.CreateQuery(kSection, true), nullptr);
}

TEST(FieldQuery, QuerySectionReplacesTheOwnSection) {
  RecordParts parts = IntParts({1});
  parts.querySection = kOther;
  SettingField field = FieldOf(parts);
  EXPECT_EQ(field.CreateQuery(kSection, true), nullptr);
  EXPECT_NE(field.CreateQuery(kOther, true), nullptr);
}

TEST(FieldQuery, SwitchedOffFieldTakesNoPartEvenInAnAllRequest) {
  RecordParts parts = IntParts({1});
  parts.compareStatus = 0;
  SettingField field = FieldOf(parts);
  EXPECT_EQ(field.CreateQuery(kSection, false), nullptr);
  EXPECT_EQ(field.CreateQuery(kSection, true), nullptr);
}

TEST(FieldQuery, SwitchedOffLabelListTakesPartInAnAllRequest) {
  RecordParts parts = LabelList({0, 10, 20});
  parts.compareStatus = 0;
  SettingField field = FieldOf(parts);
  EXPECT_EQ(field.CreateQuery(kSection, false), nullptr);
  EXPECT_EQ(ValuesOf<unsigned char>(field.CreateQuery(kSection, true)), (std::vector<unsigned char>{10, 20}));
}

// The condition alone decides who takes part: a field of another type need not be a label list.
TEST(FieldQuery, SwitchedOffFieldOfAnyTypeWithTheLabelConditionTakesPartInAnAllRequest) {
  RecordParts parts = IntParts({1, 2});
  parts.condition = 0x4000;
  parts.compareStatus = 0;
  SettingField field = FieldOf(parts);
  EXPECT_EQ(field.CreateQuery(kSection, false), nullptr);
  EXPECT_EQ(ValuesOf<int>(field.CreateQuery(kSection, true)), (std::vector<int>{1, 2}));
}

TEST(FieldQuery, LabelListQueriesTheSelectedLabel) {
  SettingField field = FieldOf(LabelList({3, 10, 20, 30, 40, 50}));
  EXPECT_EQ(ValuesOf<unsigned char>(field.CreateQuery(kSection, false)), (std::vector<unsigned char>{40}));
}

TEST(FieldQuery, LabelListQueriesAllLabelsInAnAllRequest) {
  SettingField field = FieldOf(LabelList({3, 10, 20, 30, 40, 50}));
  const BaseQuery* const query = field.CreateQuery(kSection, true);
  EXPECT_EQ(ValuesOf<unsigned char>(query), (std::vector<unsigned char>{10, 20, 30, 40, 50}));
  EXPECT_EQ(query->m_Condition, 0x4000U);
  EXPECT_EQ(query->m_NameId, 77);
}

TEST(FieldQuery, SelectorOfTheLastLabel) {
  SettingField field = FieldOf(LabelList({1, 10, 20}));
  EXPECT_EQ(ValuesOf<unsigned char>(field.CreateQuery(kSection, false)), (std::vector<unsigned char>{20}));
}

// Element 0 equal to size - 1 points just past the end; the label list does not fall back to all its values.
TEST(FieldQuery, SelectorPastTheEndMakesNoQuery) {
  for (int selector : {2, 3, 255}) {
    SettingField field = FieldOf(LabelList({selector, 10, 20}));
    EXPECT_EQ(field.CreateQuery(kSection, false), nullptr) << selector;
    EXPECT_EQ(Access::Query(field), nullptr) << selector;
  }
}

TEST(FieldQuery, SelectorOf255ReachesElement256) {
  SettingField field = FieldOf(LongLabelList(257, 255));
  EXPECT_EQ(ValuesOf<unsigned char>(field.CreateQuery(kSection, false)), (std::vector<unsigned char>{0}));
  SettingField shorter = FieldOf(LongLabelList(256, 255));
  EXPECT_EQ(shorter.CreateQuery(kSection, false), nullptr);
}

TEST(FieldQuery, SelectorCountsWhatTheRecordHoldsNotWhatItClaims) {
  RecordParts parts = LabelList({2, 10, 20});
  parts.size = 100;
  SettingField field = FieldOf(parts);
  EXPECT_EQ(field.CreateQuery(kSection, false), nullptr);
}

TEST(FieldQuery, CountOfAllLabelsIsTakenModulo256) {
  SettingField with255 = FieldOf(LongLabelList(256, 0));
  EXPECT_EQ(ValuesOf<unsigned char>(with255.CreateQuery(kSection, true)).size(), 255U);
  SettingField with256 = FieldOf(LongLabelList(257, 0));
  EXPECT_EQ(with256.CreateQuery(kSection, true), nullptr);
  SettingField with257 = FieldOf(LongLabelList(258, 0));
  EXPECT_EQ(ValuesOf<unsigned char>(with257.CreateQuery(kSection, true)), (std::vector<unsigned char>{1}));
}

TEST(FieldQuery, LabelConditionWithOneElementIsAnOrdinaryField) {
  SettingField field = FieldOf(LabelList({9}));
  EXPECT_EQ(ValuesOf<unsigned char>(field.CreateQuery(kSection, false)), (std::vector<unsigned char>{9}));
}

TEST(FieldQuery, UnsignedBytesWithAnotherConditionAreAnOrdinaryField) {
  SettingField field = FieldOf(ByteParts({0, 10, 20}));
  EXPECT_EQ(ValuesOf<unsigned char>(field.CreateQuery(kSection, false)),
            (std::vector<unsigned char>{0, 10, 20}));
}

TEST(FieldQuery, UnchangedFieldReturnsTheSameQuery) {
  SettingField field = FieldOf(IntParts({1, 2}));
  const BaseQuery* const query = field.CreateQuery(kSection, false);
  EXPECT_EQ(field.CreateQuery(kSection, false), query);
  field.SetData(Int32s({1, 2}).data());
  field.SetElement(Int32s({2}).data(), 1);
  field.SetCompareStatus(1);
  EXPECT_EQ(field.CreateQuery(kSection, true), query);
  EXPECT_EQ(Access::Query(field), query);
}

// The address of a deleted query may be given to the next one, so the new object is known by its values.
TEST(FieldQuery, EveryEffectiveSetterLeadsToANewQuery) {
  SettingField field = FieldOf(IntParts({1, 2}));
  field.CreateQuery(kSection, false);
  field.SetData(Int32s({3, 4}).data());
  EXPECT_EQ(ValuesOf<int>(field.CreateQuery(kSection, false)), (std::vector<int>{3, 4}));
  field.SetElement(Int32s({5}).data(), 0);
  EXPECT_EQ(ValuesOf<int>(field.CreateQuery(kSection, false)), (std::vector<int>{5, 4}));
  field.SetDataAndStore(Int32s({6, 7}).data());
  EXPECT_EQ(ValuesOf<int>(field.CreateQuery(kSection, false)), (std::vector<int>{6, 7}));
  field.RestoreData();
  EXPECT_EQ(ValuesOf<int>(field.CreateQuery(kSection, false)), (std::vector<int>{5, 4}));
  EXPECT_FALSE(Access::IsModified(field));
}

TEST(FieldQuery, ChangedCompareStatusLeadsToANewQuery) {
  SettingField field = FieldOf(IntParts({1}));
  const BaseQuery* const held = field.CreateQuery(kSection, false);
  ASSERT_NE(held, nullptr);
  field.SetNameId(99);  // not a change that rebuilds; it shows in the rebuilt query
  EXPECT_EQ(field.CreateQuery(kSection, false)->m_NameId, 77);
  field.SetCompareStatus(2);
  EXPECT_EQ(field.CreateQuery(kSection, false)->m_NameId, 99);
}

TEST(FieldQuery, ChangeOfAFieldThatTakesNoPartDropsItsQueryAndItsModifiedFlag) {
  SettingField field = FieldOf(IntParts({1}));
  ASSERT_NE(field.CreateQuery(kSection, false), nullptr);
  field.SetCompareStatus(0);
  EXPECT_EQ(field.CreateQuery(kSection, false), nullptr);
  EXPECT_EQ(Access::Query(field), nullptr);
  EXPECT_FALSE(Access::IsModified(field));
}

// Only a label list can hold a query while it is switched off: an "all" request made it.
TEST(FieldQuery, SwitchedOffFieldWithAHeldQueryAnswersAllRequestsOnly) {
  RecordParts parts = LabelList({0, 10, 20});
  parts.compareStatus = 0;
  SettingField field = FieldOf(parts);
  const BaseQuery* const held = field.CreateQuery(kSection, true);
  ASSERT_NE(held, nullptr);
  EXPECT_EQ(field.CreateQuery(kSection, false), nullptr);
  EXPECT_EQ(Access::Query(field), held);
  EXPECT_EQ(field.CreateQuery(kSection, true), held);
}

// A held query answers whatever it was made for.
TEST(FieldQuery, HeldQueryIsReturnedForAnotherSectionAndForAllAlike) {
  SettingField field = FieldOf(LabelList({1, 10, 20}));
  const BaseQuery* const selected = field.CreateQuery(kSection, false);
  EXPECT_EQ(field.CreateQuery(kOther, false), selected);
  EXPECT_EQ(field.CreateQuery(kSection, true), selected);
  EXPECT_EQ(ValuesOf<unsigned char>(selected), (std::vector<unsigned char>{20}));
}

TEST(FieldQuery, ResizeAloneKeepsTheHeldQuery) {
  SettingField field = FieldOf(IntParts({1}));
  const BaseQuery* const held = field.CreateQuery(kSection, false);
  field.SetData(Int32s({5, 6}).data(), 2);
  EXPECT_EQ(field.CreateQuery(kSection, false), held);
  EXPECT_EQ(ValuesOf<int>(held), std::vector<int>{1});
}

class AimQuery : public testing::Test {
 protected:
  // The Moon: element 0 is the kind, element 1 the number.
  const SSO_ID moon{FourCC("moon"), 301};
  RecordParts parts = IntParts({FourCC("moon"), 301, 3, 4, 5, 6, 7, 8});
};

TEST_F(AimQuery, FieldOfTheAimMakesAQueryOfAllItsValuesThatTheCallerOwns) {
  SettingField field = FieldOf(parts);
  const std::unique_ptr<BaseQuery> first(field.CreateAimQuery(kSection, moon));
  const std::unique_ptr<BaseQuery> second(field.CreateAimQuery(kSection, moon));
  EXPECT_NE(first, second);
  EXPECT_EQ(Access::Query(field), nullptr);
  EXPECT_EQ(ValuesOf<int>(first.get()), (std::vector<int>{FourCC("moon"), 301, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(first->m_NameId, 77);
  EXPECT_EQ(first->m_Condition, 5U);
}

TEST_F(AimQuery, SectionIsNotUsed) {
  SettingField field = FieldOf(parts);
  EXPECT_NE(std::unique_ptr<BaseQuery>(field.CreateAimQuery(kOther, moon)), nullptr);
}

TEST_F(AimQuery, MoreThanEightElementsQualify) {
  parts = IntParts({FourCC("moon"), 301, 3, 4, 5, 6, 7, 8, 9});
  SettingField field = FieldOf(parts);
  const std::unique_ptr<BaseQuery> query(field.CreateAimQuery(kSection, moon));
  EXPECT_EQ(ValuesOf<int>(query.get()).size(), 9U);
}

TEST_F(AimQuery, OtherKindOrNumberDoesNotQualify) {
  SettingField field = FieldOf(parts);
  EXPECT_EQ(field.CreateAimQuery(kSection, SSO_ID(FourCC("plnt"), 301)), nullptr);
  EXPECT_EQ(field.CreateAimQuery(kSection, SSO_ID(FourCC("moon"), 302)), nullptr);
}

TEST_F(AimQuery, SevenElementsDoNotQualify) {
  parts = IntParts({FourCC("moon"), 301, 3, 4, 5, 6, 7});
  EXPECT_EQ(FieldOf(parts).CreateAimQuery(kSection, moon), nullptr);
}

TEST_F(AimQuery, EightElementsOfWhichTheRecordHoldsOnlySevenDoNotQualify) {
  parts.values.resize(parts.values.size() - 1);
  EXPECT_EQ(FieldOf(parts).CreateAimQuery(kSection, moon), nullptr);
}

TEST_F(AimQuery, SwitchedOffFieldDoesNotQualify) {
  parts.compareStatus = 0;
  EXPECT_EQ(FieldOf(parts).CreateAimQuery(kSection, moon), nullptr);
}

TEST_F(AimQuery, OtherTypesOfTheSameBytesDoNotQualify) {
  for (int type : {0, 1, 2, 3, 5, 6, 7, 8, 9}) {
    parts.type = static_cast<unsigned char>(type);
    EXPECT_EQ(FieldOf(parts).CreateAimQuery(kSection, moon), nullptr) << type;
  }
}

}  // namespace
}  // namespace CommonInterfaces
