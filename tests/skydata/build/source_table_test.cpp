// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/source_table.h"

#include <gtest/gtest.h>

#include "tests/skydata/source_text.h"

namespace skydata {
namespace {

class SourceTableFile : public testing::Test {
 protected:
  SourceTable Load(const std::string& text) { return SourceTable(m_Dir.Write("t.tsv", text), {"A", "B"}); }
  std::string LoadMessage(const std::string& text) {
    return skydata_test::MessageOf(m_Dir, [&] { Load(text); });
  }
  std::string CellMessage(const std::string& cell) {
    const SourceTable table = Load("A\tB\n" + cell + "\tx\n");
    return skydata_test::MessageOf(m_Dir, [&] { table.GetInteger(0, 0, 0, 10); });
  }
  test_support::TempDir m_Dir;
};

TEST_F(SourceTableFile, CommentsBlankLinesMarkAndCarriageReturnsArePassedOver) {
  const SourceTable table = Load("\xEF\xBB\xBF# note\r\n\r\nA\tB\r\n1\tα Ori\r\n\r\n# more\r\n2.5\t\r\n");
  ASSERT_EQ(table.GetRowCount(), 2);
  EXPECT_EQ(table.GetText(0, 1), "α Ori");
  EXPECT_EQ(table.GetText(1, 1), "");
  EXPECT_EQ(table.GetNumber(1, 0, 0.0, 10.0), 2.5);
}
TEST_F(SourceTableFile, EmptyCellsAtTheEndOfALineMayBeMissing) {
  EXPECT_EQ(Load("A\tB\n1\n").GetText(0, 1), "");
}
TEST_F(SourceTableFile, OtherColumnsAreRefused) {
  EXPECT_EQ(LoadMessage("A\tC\n"), "t.tsv:1: wants the columns A, B");
  EXPECT_EQ(LoadMessage("# nothing\n"), "t.tsv: wants the columns A, B");
}
TEST_F(SourceTableFile, TooManyCellsAreRefused) {
  EXPECT_EQ(LoadMessage("A\tB\n1\t2\n\n1\t2\t3\n"), "t.tsv:4: has 3 cells, wants 2");
}
TEST_F(SourceTableFile, AMissingFileIsNamed) {
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { SourceTable(m_Dir.Path("t.tsv"), {"A"}); }),
            "t.tsv: cannot be opened");
}
TEST_F(SourceTableFile, EveryCellMistakeNamesLineAndColumn) {
  EXPECT_EQ(CellMessage("x"), "t.tsv:2: A: 'x' is no number");
  EXPECT_EQ(CellMessage("1x"), "t.tsv:2: A: '1x' is no number");
  EXPECT_EQ(CellMessage("nan"), "t.tsv:2: A: 'nan' is no number");
  EXPECT_EQ(CellMessage("11"), "t.tsv:2: A: 11 is out of range");
  EXPECT_EQ(CellMessage("-1"), "t.tsv:2: A: -1 is out of range");
  EXPECT_EQ(CellMessage("1.5"), "t.tsv:2: A: 1.5 is no whole number");
  EXPECT_EQ(CellMessage(""), "t.tsv:2: A: must not be empty");
  EXPECT_EQ(CellMessage("10"), "");
}
TEST_F(SourceTableFile, AnOptionalCellMayBeEmpty) {
  EXPECT_EQ(Load("A\tB\n\tx\n").FindNumber(0, 0, 0.0, 1.0), std::nullopt);
}

}  // namespace
}  // namespace skydata
