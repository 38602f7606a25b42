// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/catalog_table.h"

#include <gtest/gtest.h>

#include <cstring>

#include "common_interfaces/field_data.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

using scene::CatalogTable;
using scene::FieldNumber;
using scene::FieldText;

namespace {

int Id(const char* name) { return GetUniqueID(name); }

class CatalogTableTest : public testing::Test {
 protected:
  bool Load(const std::string& content) { return table.Load(dir.Write("table.txt", content).c_str()); }

  test_support::TempDir dir;
  test_support::DebugCapture debug;
  CatalogTable table;
};

}  // namespace

TEST_F(CatalogTableTest, EveryTypeIsKeptAtItsWidth) {
  ASSERT_TRUE(
      Load("a:i8\tb:u8\tc:i16\td:u16\te:i32\tf:u32\tg:f32\th:f64\ti:text\n"
           "-128\t255\t-32768\t65535\t-2147483648\t4294967295\t0.5\t-1e300\tα Ori\n"));
  ASSERT_EQ(table.GetCount(), 1);
  table.Select(0);
  const struct {
    const char* name;
    unsigned type;
    double value;
  } columns[] = {{"a", CommonInterfaces::kFieldInt8, -128.0},
                 {"b", CommonInterfaces::kFieldUInt8, 255.0},
                 {"c", CommonInterfaces::kFieldInt16, -32768.0},
                 {"d", CommonInterfaces::kFieldUInt16, 65535.0},
                 {"e", CommonInterfaces::kFieldInt32, -2147483648.0},
                 {"f", CommonInterfaces::kFieldUInt32, 4294967295.0},
                 {"g", CommonInterfaces::kFieldFloat, 0.5},
                 {"h", CommonInterfaces::kFieldDouble, -1e300}};
  for (const auto& column : columns) {
    EXPECT_EQ(table.GetFieldType(Id(column.name)), column.type) << column.name;
    EXPECT_DOUBLE_EQ(FieldNumber(table, Id(column.name), 7.0), column.value) << column.name;
  }
  EXPECT_EQ(table.GetFieldType(Id("i")), CommonInterfaces::kFieldInt8);
  EXPECT_STREQ(FieldText(table, Id("i")), "α Ori");
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(CatalogTableTest, RawFieldsAreTheBytesOfTheValue) {
  ASSERT_TRUE(Load("a:i8\te:i32\n1\t305419896\n"));
  table.Select(0);
  int value = 0;
  std::memcpy(&value, table.GetField(Id("e")), sizeof value);
  EXPECT_EQ(value, 0x12345678);
}

TEST_F(CatalogTableTest, EmptyCellMeansTheRecordLacksTheField) {
  ASSERT_TRUE(Load("a:i32\tb:text\tc:f64\n1\t\t2.5\n\tx\t\n"));
  ASSERT_EQ(table.GetCount(), 2);
  table.Select(0);
  EXPECT_EQ(table.GetField(Id("b")), nullptr);
  EXPECT_DOUBLE_EQ(FieldNumber(table, Id("c"), 0.0), 2.5);
  table.Select(1);
  EXPECT_EQ(table.GetField(Id("a")), nullptr);
  EXPECT_EQ(table.GetField(Id("c")), nullptr);
  EXPECT_DOUBLE_EQ(FieldNumber(table, Id("c"), 7.0), 7.0);
  EXPECT_STREQ(FieldText(table, Id("b")), "x");
}

TEST_F(CatalogTableTest, CellsMissingAtTheEndAreLacking) {
  ASSERT_TRUE(Load("a:i32\tb:i32\tc:i32\n1\n"));
  ASSERT_EQ(table.GetCount(), 1);
  table.Select(0);
  EXPECT_NE(table.GetField(Id("a")), nullptr);
  EXPECT_EQ(table.GetField(Id("c")), nullptr);
}

TEST_F(CatalogTableTest, UnknownFieldAndNoRecordGiveNull) {
  ASSERT_TRUE(Load("a:i32\n1\n"));
  EXPECT_EQ(table.GetField(Id("a")), nullptr) << "no record selected yet";
  table.Select(0);
  EXPECT_EQ(table.GetField(Id("nothing")), nullptr);
  for (int record : {-1, 1, 1000000}) {
    table.Select(record);
    EXPECT_EQ(table.GetField(Id("a")), nullptr) << record;
  }
}

TEST_F(CatalogTableTest, CommentsAndBlankLinesArePassedOver) {
  ASSERT_TRUE(Load("# first\n\na:i32\n# between\n1\n\n2\n#last"));
  EXPECT_EQ(table.GetCount(), 2);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(CatalogTableTest, ByteOrderMarkAndCarriageReturnsAreUnderstood) {
  ASSERT_TRUE(
      Load("\xEF\xBB\xBF"
           "a:i32\tb:text\r\n1\tx\r\n2\ty\r\n"));
  ASSERT_EQ(table.GetCount(), 2);
  table.Select(1);
  EXPECT_DOUBLE_EQ(FieldNumber(table, Id("a"), 0.0), 2.0);
  EXPECT_STREQ(FieldText(table, Id("b")), "y");
}

TEST_F(CatalogTableTest, BadRecordIsNamedByFileAndLineAndTheOthersStay) {
  ASSERT_TRUE(Load("a:u8\tb:text\n1\tx\n256\tbad\n3\tz\n"));
  ASSERT_EQ(table.GetCount(), 2);
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_NE(debug.lines[0].find("table.txt:3:"), std::string::npos) << debug.lines[0];
  table.Select(1);
  EXPECT_DOUBLE_EQ(FieldNumber(table, Id("a"), 0.0), 3.0);
  EXPECT_STREQ(FieldText(table, Id("b")), "z");
}

TEST_F(CatalogTableTest, LastLineThatWasCutOffIsNamedByFileAndLine) {
  for (const char* cut : {"3", "3\tx", "3\tx\t"}) {
    debug.lines.clear();
    ASSERT_TRUE(Load(std::string("a:u8\tb:text\tc:text\td:f64\n1\tx\ty\t2\n") + cut));
    EXPECT_EQ(table.GetCount(), 1) << cut;
    ASSERT_EQ(debug.lines.size(), 1u) << cut;
    EXPECT_NE(debug.lines[0].find("table.txt:3: "), std::string::npos) << debug.lines[0];
  }
}

TEST_F(CatalogTableTest, LastLineThatIsWholeNeedsNoEnd) {
  for (const char* last : {"3\tx\t4", "3\tx\t", "\t\t4"}) {
    ASSERT_TRUE(Load(std::string("a:u8\tb:text\tc:f64\n1\ty\t2\n") + last));
    EXPECT_EQ(table.GetCount(), 2) << last;
  }
  EXPECT_TRUE(debug.lines.empty());
  table.Select(1);
  EXPECT_DOUBLE_EQ(FieldNumber(table, Id("c"), 7.0), 4.0);
}

// The texts stand where they were read, one behind the other.
TEST_F(CatalogTableTest, TextsOfTheLastColumnEndWithTheirLines) {
  ASSERT_TRUE(Load("a:text\tb:text\r\nx\tyy\r\nz\t\r\n\tw"));
  ASSERT_EQ(table.GetCount(), 3);
  const char* const texts[3][2] = {{"x", "yy"}, {"z", ""}, {"", "w"}};
  for (int record = 0; record < 3; ++record) {
    table.Select(record);
    EXPECT_STREQ(FieldText(table, Id("a")), texts[record][0]);
    EXPECT_STREQ(FieldText(table, Id("b")), texts[record][1]);
  }
  EXPECT_TRUE(debug.lines.empty());
}

// A refused record leaves no trace in the ones behind it.
TEST_F(CatalogTableTest, CellsOfARefusedRecordAreNotThoseOfTheNext) {
  ASSERT_TRUE(Load("a:i32\tb:f32\tc:i8\n5\t1.5\tx\n\t\t3\n"));
  ASSERT_EQ(table.GetCount(), 1);
  table.Select(0);
  EXPECT_EQ(table.GetField(Id("a")), nullptr);
  EXPECT_EQ(table.GetField(Id("b")), nullptr);
  EXPECT_DOUBLE_EQ(FieldNumber(table, Id("c"), 0.0), 3.0);
}

TEST_F(CatalogTableTest, EveryMalformedCellIsRefused) {
  for (const char* cell : {"x", "1x", "1.5", "-1", "256", " 1", "0x1", "++1"}) {
    ASSERT_TRUE(Load(std::string("a:u8\n") + cell + "\n"));
    EXPECT_EQ(table.GetCount(), 0) << cell;
  }
  for (const char* cell : {"nan", "inf", "1e400", "1,5"}) {
    ASSERT_TRUE(Load(std::string("a:f64\n") + cell + "\n"));
    EXPECT_EQ(table.GetCount(), 0) << cell;
  }
}

TEST_F(CatalogTableTest, MoreCellsThanColumnsIsABadRecord) {
  ASSERT_TRUE(Load("a:i32\n1\t2\n3\n"));
  EXPECT_EQ(table.GetCount(), 1);
  EXPECT_EQ(debug.lines.size(), 1u);
}

TEST_F(CatalogTableTest, HeaderWithUnknownTypeIsAnErrorWithFileAndLine) {
  EXPECT_FALSE(Load("# comment\na:i32\tb:string\n1\tx\n"));
  EXPECT_NE(table.GetError().find("table.txt:2:"), std::string::npos) << table.GetError();
  EXPECT_NE(table.GetError().find("b:string"), std::string::npos);
  EXPECT_EQ(table.GetCount(), 0);
}

TEST_F(CatalogTableTest, FileWithoutHeaderIsAnError) {
  EXPECT_FALSE(Load("# only a comment\n"));
  EXPECT_NE(table.GetError().find("table.txt"), std::string::npos);
  EXPECT_FALSE(Load(""));
}

TEST_F(CatalogTableTest, MissingFileIsAnErrorThatNamesIt) {
  EXPECT_FALSE(table.Load(dir.Path("absent.txt").c_str()));
  EXPECT_NE(table.GetError().find("absent.txt"), std::string::npos);
}

TEST_F(CatalogTableTest, LoadingAgainForgetsTheTableBefore) {
  ASSERT_TRUE(Load("a:i32\n1\n2\n"));
  EXPECT_FALSE(Load("nonsense\n"));
  EXPECT_EQ(table.GetCount(), 0);
  EXPECT_EQ(table.GetField(Id("a")), nullptr);
}
