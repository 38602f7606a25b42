// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/show/table.h"

#include <gtest/gtest.h>

#include <string>

namespace skydata {
namespace {

TEST(ShownTable, ColumnsAreAsWideAsTheirWidestText) {
  const ShownTable table = {{"n", "name"},
                            {{ShownCell::Number("7"), "x"}, {ShownCell::Number("10"), "long"}}};
  EXPECT_EQ(FormatTable(table), " n  name\n 7  x\n10  long\n");
}

// A table of 14,000 lines with one such field would else be of gigabytes.
TEST(ShownTable, ATextOfMoreThan200CharactersDoesNotWidenTheOtherLines) {
  const std::string endless(100'000, 'a'), full(200, 'b');
  const ShownTable table = {{"name", "n"}, {{endless, "1"}, {full, "2"}, {"c", "3"}}};
  const std::string blanks(196, ' ');
  EXPECT_EQ(FormatTable(table),
            "name" + blanks + "  n\n" + endless + "  1\n" + full + "  2\n" + "c" + blanks + "     3\n");
}

}  // namespace
}  // namespace skydata
