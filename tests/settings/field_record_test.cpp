// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Reading and writing of field records in both layouts, through SettingField as callers do it.
#include "settings/field_record.h"

#include <string>

#include <gtest/gtest.h>

#include "settings/field_bytes.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/file.h"

namespace CommonInterfaces {
namespace {

using Access = SettingFieldTestAccess;
using test_support::Bytes;
using test_support::DataOf;
using test_support::FieldOf;
using test_support::IntParts;
using test_support::LittleEndian;
using test_support::RecordParts;
using test_support::WithLength;

class FieldRecordFile : public testing::Test {
 protected:
  ~FieldRecordFile() override { SettingField::SetOldSettings(false); }

  // Reads one field from a file of that content.
  SettingField Read(const std::string& content) {
    EXPECT_TRUE(file.Open(dir.Write("field", content).c_str(), MFile::kRead));
    return {&file, nullptr, 0};
  }
  SettingField ReadOld(const std::string& content) {
    SettingField::SetOldSettings(true);
    return Read(content);
  }
  std::string Write(const SettingField& field, bool expected = true) {
    dir.Write("written", "");
    MFile out;
    EXPECT_TRUE(out.Open(dir.Path("written").c_str(), MFile::kWrite));
    EXPECT_EQ(field.Write(&out), expected);
    out.Close();
    return dir.Read("written");
  }

  test_support::TempDir dir;
  test_support::DebugCapture debug;
  MFile file;
};

// A field is its record, and the file starts it at an odd address as often as not.
TEST(FieldData, HeaderIsPackedTo20Bytes) {
  EXPECT_EQ(sizeof(FieldData), 20U);
  EXPECT_EQ(alignof(FieldData), 1U);
}

TEST(FieldData, WidthsOfTheElementTypes) {
  EXPECT_EQ(FieldElementWidth(0), 1);
  EXPECT_EQ(FieldElementWidth(1), 1);
  EXPECT_EQ(FieldElementWidth(2), 2);
  EXPECT_EQ(FieldElementWidth(3), 2);
  EXPECT_EQ(FieldElementWidth(4), 4);
  EXPECT_EQ(FieldElementWidth(5), 4);
  EXPECT_EQ(FieldElementWidth(6), 4);
  EXPECT_EQ(FieldElementWidth(7), 8);
  EXPECT_EQ(FieldElementWidth(8), 1);
  for (unsigned type = 9; type < 256; ++type) EXPECT_EQ(FieldElementWidth(type), 0) << type;
}

TEST_F(FieldRecordFile, WrittenRecordToTheByte) {
  RecordParts parts;
  parts.section = 0x706C6E74;
  parts.nameId = 0x01020304;
  parts.type = 2;
  parts.size = 3;
  parts.condition = 0x4000;
  parts.compareStatus = 1;
  parts.querySection = 0xFFFFFFFF;
  parts.values = Bytes({0x34, 0x12, 0xFF, 0xFF, 0x00, 0x80});
  EXPECT_EQ(Write(FieldOf(parts)), Bytes({
                                       0x1A, 0x00, 0x00, 0x00,              // 26 bytes follow
                                       0x74, 0x6E, 0x6C, 0x70,              // section "plnt"
                                       0x04, 0x03, 0x02, 0x01,              // name id
                                       0x02,                                // signed 16-bit
                                       0x03, 0x00,                          // three of them
                                       0x00, 0x40, 0x00, 0x00,              // condition
                                       0x01,                                // switched on
                                       0xFF, 0xFF, 0xFF, 0xFF,              // own query section
                                       0x34, 0x12, 0xFF, 0xFF, 0x00, 0x80,  // 4660, -1, -32768
                                   }));
}

TEST_F(FieldRecordFile, CurrentLayoutIsReadFieldByField) {
  const SettingField field = Read(Bytes({
      0x18, 0x00, 0x00, 0x00,  // 24 bytes follow
      0x72, 0x61, 0x74, 0x73,  // section "star"
      0xFF, 0xFF, 0xFF, 0x7F,  // name id
      0x06,                    // float
      0x01, 0x00,              // one
      0x00, 0x01, 0x00, 0x00,  // condition 256
      0x07,                    // compare status
      0x6E, 0x6F, 0x6F, 0x6D,  // query section "moon"
      0x00, 0x00, 0x20, 0xC0,  // -2.5
  }));
  ASSERT_TRUE(field.IsOk());
  EXPECT_EQ(field.GetSection(), 0x73746172U);
  EXPECT_EQ(field.GetNameId(), 0x7FFFFFFF);
  EXPECT_EQ(field.GetType(), 6U);
  EXPECT_EQ(field.GetSize(), 1U);
  EXPECT_EQ(field.GetCondition(), 256U);
  EXPECT_EQ(field.GetCompareStatus(), 7);
  EXPECT_EQ(field.GetQuerySection(), 0x6D6F6F6EU);
  float value = 0;
  field.GetData(&value);
  EXPECT_EQ(value, -2.5F);
}

TEST_F(FieldRecordFile, RecordsFollowOneAnother) {
  SettingField first = Read(WithLength(IntParts({1}).Current()) + WithLength(IntParts({2, 3}).Current()));
  SettingField second(&file, nullptr, 0);
  EXPECT_EQ(DataOf(first), test_support::Int32s({1}));
  EXPECT_EQ(DataOf(second), test_support::Int32s({2, 3}));
  EXPECT_FALSE(second.Read(&file));
}

TEST_F(FieldRecordFile, RecordLengthOf65555IsAccepted) {
  RecordParts parts;
  parts.size = 65535;
  parts.values = std::string(65535, 'v');
  const std::string content = WithLength(parts.Current());
  ASSERT_EQ(content.size(), 4U + 65555U);
  const SettingField field = Read(content);
  EXPECT_EQ(Access::RecordSize(field), 65555);
  EXPECT_EQ(DataOf(field), parts.values);
  EXPECT_EQ(Write(field), content);
}

TEST_F(FieldRecordFile, RecordLengthOf65556IsRefused) {
  const SettingField field = Read(LittleEndian(65556, 4) + std::string(65556, '\0'));
  EXPECT_EQ(Access::RecordSize(field), -1);
  EXPECT_FALSE(field.IsOk());
  EXPECT_EQ(file.Tell(), 4);
}

TEST_F(FieldRecordFile, NegativeLengthIsRefused) {
  for (unsigned length : {0xFFFFFFFFU, 0x80000000U, 0xFFFFFFECU}) {
    const SettingField field = Read(LittleEndian(length, 4) + std::string(100, '\0'));
    EXPECT_EQ(Access::RecordSize(field), -1) << length;
    EXPECT_EQ(Access::Record(field), nullptr) << length;
  }
}

TEST_F(FieldRecordFile, LengthThatIsCutOffIsAFailedRead) {
  for (int size = 0; size < 4; ++size) {
    const SettingField field = Read(std::string(static_cast<std::size_t>(size), '\x14'));
    EXPECT_EQ(Access::RecordSize(field), -1) << size;
    EXPECT_EQ(Access::Record(field), nullptr) << size;
  }
}

TEST_F(FieldRecordFile, LengthOfZeroIsAnEmptyField) {
  SettingField field = Read(LittleEndian(0, 4));
  EXPECT_EQ(Access::RecordSize(field), 0);
  EXPECT_FALSE(field.IsOk());
  file.Seek(0, 0);
  EXPECT_TRUE(field.Read(&file));
}

TEST_F(FieldRecordFile, RecordOf1To19BytesIsAFailedRead) {
  for (unsigned length = 1; length < 20; ++length) {
    const SettingField field = Read(LittleEndian(length, 4) + std::string(40, '\x01'));
    EXPECT_EQ(Access::RecordSize(field), -1) << length;
    EXPECT_EQ(Access::Record(field), nullptr) << length;
    EXPECT_EQ(field.GetType(), 0U) << length;
  }
}

TEST_F(FieldRecordFile, RecordOf20BytesIsAFieldWithoutValues) {
  const SettingField field = Read(WithLength(RecordParts{}.Current()));
  EXPECT_TRUE(field.IsOk());
  EXPECT_EQ(field.GetSize(), 0U);
}

TEST_F(FieldRecordFile, RecordThatIsCutOffIsAFailedReadAtEveryLength) {
  const std::string content = WithLength(IntParts({1, 2, 3}).Current());
  for (std::size_t size = 4; size < content.size(); ++size) {
    const SettingField field = Read(content.substr(0, size));
    EXPECT_EQ(Access::RecordSize(field), -1) << size;
    EXPECT_EQ(Access::Record(field), nullptr) << size;
  }
  EXPECT_TRUE(Read(content).IsOk());
}

TEST_F(FieldRecordFile, OldLayoutIsReadIntoTheCurrentOne) {
  RecordParts parts = IntParts({1, -2});
  parts.querySection = 0x61737472;
  const std::string old = parts.Old("IntegrationFlag");
  const SettingField field = ReadOld(WithLength(old));
  EXPECT_EQ(Access::RecordSize(field), static_cast<int>(old.size()) - 28);
  parts.nameId = CommonInterfaces::GetUniqueID("IntegrationFlag");
  EXPECT_EQ(Access::RecordBytes(field), parts.Current());
  EXPECT_EQ(Write(field), WithLength(parts.Current()));
}

TEST_F(FieldRecordFile, OldNameThatFillsAll32BytesNeedsNoTerminator) {
  const std::string name(32, 'n');
  const SettingField field = ReadOld(WithLength(IntParts({1}).Old(name)));
  EXPECT_EQ(field.GetNameId(), CommonInterfaces::GetUniqueID(name.c_str()));
}

TEST_F(FieldRecordFile, OldNameEndsAtItsFirstZero) {
  const SettingField field = ReadOld(WithLength(IntParts({1}).Old(std::string("Grid\0rest", 9))));
  EXPECT_EQ(field.GetNameId(), CommonInterfaces::GetUniqueID("Grid"));
}

TEST_F(FieldRecordFile, OldRecordTooShortForItsHeaderIsAFailedReadAtEveryLength) {
  for (unsigned length = 0; length < 48; ++length) {
    const SettingField field = ReadOld(LittleEndian(length, 4) + std::string(100, '\x01'));
    EXPECT_EQ(Access::RecordSize(field), -1) << length;
    EXPECT_EQ(Access::Record(field), nullptr) << length;
  }
}

TEST_F(FieldRecordFile, OldRecordOf48BytesIsAFieldWithoutValues) {
  const SettingField field = ReadOld(WithLength(RecordParts{}.Old("Grid")));
  EXPECT_EQ(Access::RecordSize(field), 20);
  EXPECT_EQ(field.GetSize(), 0U);
}

TEST_F(FieldRecordFile, OldRecordThatIsCutOffIsAFailedReadAtEveryLength) {
  const std::string content = WithLength(IntParts({1, 2}).Old("Grid"));
  for (std::size_t size = 0; size < content.size(); ++size) {
    const SettingField field = ReadOld(content.substr(0, size));
    EXPECT_EQ(Access::RecordSize(field), -1) << size;
    EXPECT_EQ(Access::Record(field), nullptr) << size;
  }
}

// The limit is on the length in the file, so an old record holds 28 bytes of values less.
TEST_F(FieldRecordFile, OldRecordLengthOf65555IsAcceptedAnd65556IsRefused) {
  RecordParts parts;
  parts.size = 65507;
  parts.values = std::string(65507, 'v');
  EXPECT_EQ(Access::RecordSize(ReadOld(WithLength(parts.Old("Grid")))), 65527);
  parts.values += 'v';
  EXPECT_EQ(Access::RecordSize(ReadOld(WithLength(parts.Old("Grid")))), -1);
}

TEST_F(FieldRecordFile, FailedReadDropsTheRecordThatWasThere) {
  SettingField field = FieldOf(IntParts({1, 2}));
  ASSERT_TRUE(file.Open(dir.Write("short", "\x01").c_str(), MFile::kRead));
  EXPECT_FALSE(field.Read(&file));
  EXPECT_EQ(Access::RecordSize(field), -1);
  EXPECT_EQ(Access::Record(field), nullptr);
}

TEST_F(FieldRecordFile, ReadReplacesTheRecordAndItsQuery) {
  SettingField field = FieldOf(IntParts({1, 2}));
  ASSERT_NE(field.CreateQuery(0x706C6E74, false), nullptr);
  ASSERT_TRUE(file.Open(dir.Write("f", WithLength(IntParts({3}).Current())).c_str(), MFile::kRead));
  EXPECT_TRUE(field.Read(&file));
  EXPECT_EQ(Access::Query(field), nullptr);
  EXPECT_EQ(DataOf(field), test_support::Int32s({3}));
}

TEST_F(FieldRecordFile, WithoutAFileReadingAndWritingFail) {
  SettingField field(nullptr, nullptr, 0);
  EXPECT_FALSE(field.IsOk());
  EXPECT_EQ(Access::RecordSize(field), -1);
  EXPECT_FALSE(FieldOf(IntParts({1})).Write(nullptr));
}

TEST_F(FieldRecordFile, FileThatIsNotOpenFails) {
  MFile closed;
  EXPECT_FALSE(SettingField(&closed, nullptr, 0).IsOk());
  EXPECT_FALSE(FieldOf(IntParts({1})).Write(&closed));
}

TEST_F(FieldRecordFile, FileOpenForReadingCannotBeWritten) {
  ASSERT_TRUE(file.Open(dir.Write("field", "old").c_str(), MFile::kRead));
  EXPECT_FALSE(FieldOf(IntParts({1})).Write(&file));
  file.Close();
  EXPECT_EQ(dir.Read("field"), "old");
}

TEST_F(FieldRecordFile, FailedFieldWritesNothing) {
  EXPECT_EQ(Write(SettingField(nullptr, nullptr, 0), false), "");
}

TEST_F(FieldRecordFile, EmptyFieldWritesALengthOfZero) {
  const SettingField failed(nullptr, nullptr, 0);
  EXPECT_EQ(Write(SettingField(failed)), Bytes({0, 0, 0, 0}));
}

TEST_F(FieldRecordFile, HeaderThatClaimsTooMuchIsWrittenBackUnchanged) {
  RecordParts parts = IntParts({1, 2});
  parts.size = 500;
  const std::string content = WithLength(parts.Current());
  SettingField field = Read(content);
  EXPECT_EQ(field.GetSize(), 2U);
  EXPECT_EQ(Write(field), content);
}

TEST_F(FieldRecordFile, BytesBehindTheClaimedValuesAreWrittenBackUnchanged) {
  RecordParts parts = IntParts({1, 2, 3});
  parts.size = 1;
  const std::string content = WithLength(parts.Current());
  SettingField field = Read(content);
  EXPECT_EQ(field.GetSize(), 1U);
  EXPECT_EQ(Write(field), content);
}

TEST_F(FieldRecordFile, ReadingPrintsNothing) {
  Read("\x01");
  Read(LittleEndian(65556, 4));
  Read(LittleEndian(5, 4) + "12345");
  ReadOld(LittleEndian(47, 4) + std::string(47, 'x'));
  EXPECT_TRUE(debug.lines.empty());
}

}  // namespace
}  // namespace CommonInterfaces
