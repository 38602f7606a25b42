// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// SetDataAndStore, RestoreData and their pair for the compare status.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/settings_field.h"
#include "settings/field_bytes.h"
#include "support/debug_capture.h"
#include "support/string_table_file.h"

namespace CommonInterfaces {
namespace {

using Access = SettingFieldTestAccess;
using test_support::ByteParts;
using test_support::Bytes;
using test_support::DataOf;
using test_support::FieldOf;
using test_support::Int32s;
using test_support::IntParts;
using test_support::RecordParts;
using Lines = std::vector<std::string>;

class FieldUndo : public testing::Test {
 protected:
  test_support::DebugCapture debug;
  SettingField field = FieldOf(IntParts({1, 2}));
};

TEST_F(FieldUndo, RestoreDataBringsTheValuesBack) {
  EXPECT_TRUE(field.SetDataAndStore(Int32s({3, 4}).data()));
  EXPECT_EQ(DataOf(field), Int32s({3, 4}));
  EXPECT_EQ(Access::StoreState(field), 1);
  EXPECT_TRUE(Access::IsModified(field));

  Access::ClearModified(field);
  field.RestoreData();
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
  EXPECT_TRUE(Access::IsModified(field));
  EXPECT_EQ(Access::StoreState(field), 0);
  EXPECT_EQ(Access::SavedData(field), nullptr);
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(FieldUndo, StoringEqualValuesReturnsFalseButStores) {
  EXPECT_FALSE(field.SetDataAndStore(Int32s({1, 2}).data()));
  EXPECT_FALSE(Access::IsModified(field));
  EXPECT_EQ(Access::StoreState(field), 1);
  field.RestoreData();
  EXPECT_FALSE(Access::IsModified(field));
}

TEST_F(FieldUndo, SecondRestoreDataDoesNothing) {
  field.SetDataAndStore(Int32s({3, 4}).data());
  field.RestoreData();
  field.SetData(Int32s({5, 6}).data());
  field.RestoreData();
  EXPECT_EQ(DataOf(field), Int32s({5, 6}));
}

TEST_F(FieldUndo, RestoreDataWithoutAStoreDoesNothing) {
  field.RestoreData();
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
  EXPECT_FALSE(Access::IsModified(field));
}

TEST_F(FieldUndo, SecondStorePrintsOnceAndItsCopyIsTheOneRestored) {
  field.SetDataAndStore(Int32s({3, 4}).data());
  EXPECT_EQ(debug.lines, Lines{});
  EXPECT_TRUE(field.SetDataAndStore(Int32s({5, 6}).data()));
  EXPECT_EQ(debug.lines, Lines{"Extra call of SettingField::SetDataAndStore\n"});
  EXPECT_EQ(DataOf(field), Int32s({5, 6}));
  field.RestoreData();
  EXPECT_EQ(DataOf(field), Int32s({3, 4}));
}

TEST_F(FieldUndo, RestoreDataAfterAGrowingResizeRestoresLengthAndCount) {
  field.SetDataAndStore(Int32s({3, 4}).data());
  field.SetData(Int32s({5, 6, 7, 8}).data(), 4);
  Access::ClearModified(field);
  field.RestoreData();
  EXPECT_EQ(Access::RecordBytes(field), IntParts({1, 2}).Current());
  EXPECT_TRUE(Access::IsModified(field));
}

TEST_F(FieldUndo, RestoreDataAfterAShrinkingResizeRestoresLengthAndCount) {
  field.SetDataAndStore(Int32s({3, 4}).data());
  field.SetData(Int32s({1}).data(), 1);
  Access::ClearModified(field);
  field.RestoreData();
  EXPECT_EQ(Access::RecordBytes(field), IntParts({1, 2}).Current());
  EXPECT_TRUE(Access::IsModified(field));
}

TEST_F(FieldUndo, RestoreDataKeepsTheHeaderOfToday) {
  field.SetDataAndStore(Int32s({3, 4}).data());
  field.SetNameId(99);
  field.SetCompareStatus(7);
  field.SetData(nullptr, 0);
  field.RestoreData();
  RecordParts expected = IntParts({1, 2});
  expected.nameId = 99;
  expected.compareStatus = 7;
  EXPECT_EQ(Access::RecordBytes(field), expected.Current());
}

TEST_F(FieldUndo, RestoreDataOfAHeaderThatClaimsTooMuchGivesItsBytesBack) {
  RecordParts parts = IntParts({1, 2});
  parts.size = 500;
  parts.values += Bytes({9});
  SettingField claiming = FieldOf(parts);
  claiming.SetDataAndStore(Int32s({3, 4}).data());
  claiming.SetData(Int32s({5}).data(), 1);
  claiming.RestoreData();
  EXPECT_EQ(Access::RecordBytes(claiming), parts.Current());
}

TEST_F(FieldUndo, AssignmentOfTheSameShapeInBetweenIsUndoneByRestoreData) {
  field.SetDataAndStore(Int32s({3, 4}).data());
  field = FieldOf(IntParts({5, 6, 7}));
  EXPECT_EQ(Access::StoreState(field), 1);
  field.RestoreData();
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
}

TEST_F(FieldUndo, SavedValuesOfAnotherTypeAreDroppedWithOneLine) {
  field.SetDataAndStore(Int32s({3, 4}).data());
  field = FieldOf(ByteParts({7}));
  field.RestoreData();
  EXPECT_EQ(DataOf(field), Bytes({7}));
  EXPECT_EQ(Access::StoreState(field), 0);
  EXPECT_EQ(Access::SavedData(field), nullptr);
  EXPECT_EQ(debug.lines, Lines{"Saved values do not fit the field in function SettingField::RestoreData\n"});
}

TEST_F(FieldUndo, SavedValuesOfAFieldThatFailedToReadAreDroppedWithOneLine) {
  field.SetDataAndStore(Int32s({3, 4}).data());
  EXPECT_FALSE(field.Read(nullptr));
  field.RestoreData();
  EXPECT_FALSE(field.IsOk());
  EXPECT_EQ(Access::SavedData(field), nullptr);
  EXPECT_EQ(debug.lines, Lines{"Saved values do not fit the field in function SettingField::RestoreData\n"});
}

TEST_F(FieldUndo, UnknownTypeRestoresItsCount) {
  test_support::TempRoots roots;
  test_support::LoadStrings(roots, "0\tunknown\n");
  RecordParts parts = IntParts({1, 2});
  parts.type = 99;
  SettingField unknown = FieldOf(parts);
  EXPECT_FALSE(unknown.SetDataAndStore("x"));
  unknown.SetData(nullptr, 7);
  unknown.RestoreData();
  EXPECT_EQ(Access::RecordBytes(unknown), parts.Current());
}

// The saved values are deliberately not released with their field: see SetDataAndStore in lsan.supp.
TEST_F(FieldUndo, SavedValuesOutliveTheirField) {
  const unsigned char* saved = nullptr;
  {
    SettingField mortal = FieldOf(ByteParts({'a', 'b'}));
    mortal.SetDataAndStore("cd");
    saved = Access::SavedData(mortal);
  }
  // The length of the record, its header, the values.
  EXPECT_EQ(saved[0], 22);
  EXPECT_EQ(std::string(saved + 4 + 20, saved + 4 + 22), "ab");
}

TEST_F(FieldUndo, SetCompareStatusReportsAChange) {
  EXPECT_FALSE(field.SetCompareStatus(1));
  EXPECT_FALSE(Access::IsModified(field));
  EXPECT_TRUE(field.SetCompareStatus(255));
  EXPECT_TRUE(Access::IsModified(field));
  EXPECT_EQ(field.GetCompareStatus(), 255);
}

TEST_F(FieldUndo, RestoreCompareStatusBringsItBack) {
  EXPECT_TRUE(field.SetCompareStatusAndStore(0));
  EXPECT_EQ(Access::StoreState(field), 2);
  Access::ClearModified(field);
  field.RestoreCompareStatus();
  EXPECT_EQ(field.GetCompareStatus(), 1);
  EXPECT_TRUE(Access::IsModified(field));
  EXPECT_EQ(Access::StoreState(field), 0);
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(FieldUndo, RestoreCompareStatusOfAnEqualStatusLeavesTheModifiedFlag) {
  EXPECT_FALSE(field.SetCompareStatusAndStore(1));
  field.RestoreCompareStatus();
  EXPECT_FALSE(Access::IsModified(field));
  EXPECT_EQ(Access::StoreState(field), 0);
}

TEST_F(FieldUndo, RestoreCompareStatusWithoutAStoreDoesNothing) {
  field.SetCompareStatus(5);
  field.RestoreCompareStatus();
  EXPECT_EQ(field.GetCompareStatus(), 5);
}

TEST_F(FieldUndo, SecondStatusStorePrintsOnceAndItsStatusIsTheOneRestored) {
  field.SetCompareStatusAndStore(2);
  field.SetCompareStatusAndStore(3);
  EXPECT_EQ(debug.lines, Lines{"Extra call of SettingField::SetCompareStatusAndStore\n"});
  field.RestoreCompareStatus();
  EXPECT_EQ(field.GetCompareStatus(), 2);
}

TEST_F(FieldUndo, StoringValuesAbandonsASavedStatus) {
  field.SetCompareStatusAndStore(2);
  field.SetDataAndStore(Int32s({3, 4}).data());
  EXPECT_EQ(Access::StoreState(field), 1);
  field.RestoreCompareStatus();
  EXPECT_EQ(field.GetCompareStatus(), 2);
  field.RestoreData();
  EXPECT_EQ(DataOf(field), Int32s({1, 2}));
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(FieldUndo, StoringAStatusAbandonsSavedValues) {
  field.SetDataAndStore(Int32s({3, 4}).data());
  field.SetCompareStatusAndStore(2);
  EXPECT_EQ(Access::StoreState(field), 2);
  field.RestoreData();
  EXPECT_EQ(DataOf(field), Int32s({3, 4}));
  field.RestoreCompareStatus();
  EXPECT_EQ(field.GetCompareStatus(), 1);
  EXPECT_EQ(debug.lines, Lines{});
}

}  // namespace
}  // namespace CommonInterfaces
