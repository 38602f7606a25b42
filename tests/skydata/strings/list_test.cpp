// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/list.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace skydata {
namespace {

bool Contains(const std::string& text, const std::string& piece) {
  return text.find(piece) != std::string::npos;
}

TEST(StringsList, NamesIdentifiersArgumentsRoomAndUse) {
  const std::string list = ListTexts();
  EXPECT_TRUE(Contains(list, "\n7211\tdouble, text\t200\trequired\tdistance near a surface: value, unit\n"));
  EXPECT_TRUE(Contains(list, "\n971 to 982\tno format\t64\trequired\tmonth name inside a date\n"));
  EXPECT_TRUE(Contains(list, "\n7207\tnone\t255\trequired\t"));
  EXPECT_TRUE(Contains(list, "\nstar\tno format\t"));
}

TEST(StringsList, ThePageOfTheStringTableIsUpToDate) {
  std::ifstream in(CI_DATA_SOURCE "/../../docs/formats/strings.md", std::ios::binary);
  const std::string page{std::istreambuf_iterator<char>(in), {}};
  EXPECT_TRUE(Contains(page, ListTextsAsMarkdown()))
      << "put the output of `skydata strings list --markdown` in the place of the table";
}

}  // namespace
}  // namespace skydata
