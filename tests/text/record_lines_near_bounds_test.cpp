// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "text/record_lines_inside.h"

using CommonInterfaces::record_lines::NearTable;

// The texts of the two characters and what follows them in memory: nothing behind the end of a text is taken
// for one.
TEST(NearTableBounds, ReplacementsWithoutACharacterReplaceNothing) {
  const char singles[] = "\xE9\0\xE8\xC0", doubles[] = "\xDF\0\xE6";
  const NearTable table(singles, "eabc", doubles, "ssaeoe");
  EXPECT_EQ(table.Convert("\xE9\xDF"), "ess");
  EXPECT_EQ(table.Convert("\xE8\xC0\xE6"), "\xE8\xC0\xE6");
}

TEST(NearTableBounds, CharactersWithoutAReplacementStay) {
  const NearTable table("\xE9\xE8", "e", "\xDF\xE6", "ssa");
  EXPECT_EQ(table.Convert("\xE9\xE8\xDF\xE6"), "e\xE8ss\xE6");
}
