// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/show/files.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace skydata {
namespace {

TEST(ShowTable, NumbersStandToTheRightAndLettersCountAsOne) {
  ShownTable table;
  table.columns = {"name", "x [deg]"};
  table.rows = {
      {"\u041C\u0430\u0440\u0441", ShownCell::Real(1.25, 1)}, {"A", ShownCell::Missing()}, {"a\tb", 7}};
  EXPECT_EQ(FormatTable(table),
            "name  x [deg]\n"
            "\u041C\u0430\u0440\u0441      1.2\n"
            "A\n"
            "a b         7\n");
}

TEST(ShowTable, WithoutRecordsIsItsNamesAlone) {
  ShownTable table;
  table.columns = {"kind", "number"};
  EXPECT_EQ(FormatTable(table), "kind  number\n");
  EXPECT_EQ(FormatTableAsJson(table), "[]\n");
}

TEST(ShowTable, JsonHasNoNumberThatIsNone) {
  ShownTable table;
  table.columns = {"a"};
  for (const char* digits : {"1", "-0.5", "1e-05", "0", "+5", "05", ".5", "5.", "1e", "-", "0x1"}) {
    table.rows.push_back({ShownCell::Number(digits)});
  }
  table.rows.push_back({ShownCell::Missing()});
  EXPECT_EQ(FormatTableAsJson(table),
            "[\n {\"a\": 1},\n {\"a\": -0.5},\n {\"a\": 1e-05},\n {\"a\": 0},\n {\"a\": \"+5\"},\n {\"a\": "
            "\"05\"},\n "
            "{\"a\": \".5\"},\n {\"a\": \"5.\"},\n {\"a\": \"1e\"},\n {\"a\": \"-\"},\n {\"a\": \"0x1\"},\n "
            "{\"a\": "
            "null}\n]\n");
}

TEST(ShowFiles, ArticlesAndDistancesHaveKindsInLetters) {
  const std::string articles("rats\xB1\x06\0\0\x07\0\0\0x", 13);
  const ShownTable shown = ShowArticles(articles);
  EXPECT_EQ(FormatTable(shown), "kind  number  article\nstar    1713        7\n");
  EXPECT_EQ(shown.unreadable, 1);
  const std::string distances("rats\x02\0\0\0\x05\0\0\0\x09\0\0\0uben\x02\0\0\0\x2A\0\0\0", 28);
  const ShownTable groups = ShowDistances(distances);
  EXPECT_EQ(FormatTable(groups),
            "group  kind  number\n"
            "    1  star       5\n"
            "    1  star       9\n"
            "    2  nebu      42\n");
  EXPECT_EQ(groups.unreadable, 1);
}

// 90 degrees are 6 hours.
TEST(ShowFiles, CornersAreInHoursAndDegrees) {
  std::string bytes("\0\1Ori ", 6);
  for (int i = 0; i < 4; ++i) bytes += std::string("\0\x89\x54\x40\xFF\xF0\xBD\xC0", 8);
  const ShownTable shown = ShowImages(bytes);
  ASSERT_EQ(shown.rows.size(), 1u);
  EXPECT_EQ(shown.rows[0][0].text, "Ori ");
  EXPECT_EQ(shown.rows[0][1].text, "6.00000");
  EXPECT_EQ(shown.rows[0][2].text, "-10.0000");
  EXPECT_EQ(shown.unreadable, 0);
  EXPECT_EQ(ShowImages(bytes.substr(0, 20)).unreadable, 1);
}

// 5 h 30 m are 5.5 hours, -5 degrees 30' -5.5 degrees.
TEST(ShowFiles, DeepskyImagesAreInHoursAndDegrees) {
  EXPECT_EQ(
      FormatTable(ShowDeepskyImages("! comment\n42A 5 5h30m -5g30' 10 2 1.5 0 0\n")),
      "number  size [arcmin]   RA [h]  Dec [deg]  rotation [deg]  flags  aspect  layer  black  brightness\n"
      "42A                 5  5.50000    -5.5000              10      2     1.5      0      0\n");
}

// With and without a letter behind it: a column of texts, whatever stands in a cell.
TEST(ShowFiles, NumbersOfDeepskyImagesAreTexts) {
  const ShownTable shown = ShowDeepskyImages("42A 5 5h 6g 0 0 1 0 0\n42 5 5h 6g 0 0 1 0 0\n");
  ASSERT_EQ(shown.rows.size(), 2u);
  for (const auto& row : shown.rows) {
    EXPECT_FALSE(row[0].isNumber) << row[0].text;
    EXPECT_TRUE(row[1].isNumber) << row[1].text;
  }
}

TEST(ShowFiles, LinesThatAreNoPictureAreCounted) {
  const ShownTable shown = ShowDeepskyImages("plnt\t1\tMercury\n\n! comment\n42H 5 5h 6g 0 0 1 0 0\n42 5\n");
  EXPECT_EQ(shown.rows.size(), 1u);
  EXPECT_EQ(shown.unreadable, 2);
}

// pi / 2 radians are 6 hours, pi / 6 radians 30 degrees.
TEST(ShowFiles, CatalogsAreInHoursAndDegrees) {
  EXPECT_EQ(FormatTable(ShowCatalog("# made\nNumber:i32\tRA:f64\tDec:f64\tName:text\n"
                                    "7\t1.5707963267948966\t0.5235987755982988\tX\n")),
            "Number   RA [h]  Dec [deg]  Name\n"
            "     7  6.00000    30.0000  X\n");
}

// The satellite of the published example of the form, Vanguard 1.
TEST(ShowFiles, ElementsOfSatellitesAreInDegrees) {
  const ShownTable shown = ShowTwoLineElements(
      "VANGUARD 1\n"
      "1 00005U 58002B   00179.78495062  .00000023  00000-0  28098-4 0  4753\n"
      "2 00005  34.2682 348.7242 1859667 331.7664  19.3264 10.82419157413667\n");
  ASSERT_EQ(shown.rows.size(), 1u);
  std::string row;
  for (const ShownCell& cell : shown.rows[0]) row += cell.text + "|";
  EXPECT_EQ(row, "5|VANGUARD 1|00179.78495062|34.2682|348.7242|0.1859667|331.7664|19.3264|10.82419157|");
}

TEST(ShowFiles, LinesThatAreNoPairOfElementsAreCounted) {
  const std::string first = "1 00005U 58002B   00179.78495062  .00000023  00000-0  28098-4 0  4753\n";
  const std::string second = "2 00005  34.2682 348.7242 1859667 331.7664  19.3264 10.82419157413667\n";
  const auto count = [](const std::string& lines) {
    const ShownTable shown = ShowTwoLineElements(lines);
    return std::pair(static_cast<int>(shown.rows.size()), shown.unreadable);
  };
  EXPECT_EQ(count(first + second + "A\n" + first + second), std::pair(2, 0));
  EXPECT_EQ(count("plnt\t1\tMercury\n"), std::pair(0, 1)) << "a name of nothing";
  EXPECT_EQ(count("A\nB\n" + first + second), std::pair(1, 1)) << "a name of nothing before another";
  EXPECT_EQ(count(first), std::pair(0, 1)) << "cut";
  EXPECT_EQ(count(first + first + second), std::pair(1, 1)) << "the second line is missing";
  EXPECT_EQ(count(first + "A\n" + first + second), std::pair(1, 1)) << "the same before a name";
  EXPECT_EQ(count(second), std::pair(0, 1)) << "the first line is missing";
}

TEST(ShowFiles, LinesOfTheOtherLists) {
  EXPECT_EQ(FormatTable(ShowFlightList("nebu\t42\n1734437985\t31\tM31\n")),
            "kind  number  note\nnebu      42\ngala      31  M31\n");
  EXPECT_EQ(FormatTable(ShowPanoramas("plnt\t3\ta.jpg\t1\t7\tA meadow\t90\n")),
            "kind  number  file   default  id  title     left azimuth [deg]\n"
            "plnt       3  a.jpg        1   7  A meadow                  90\n");
  EXPECT_EQ(FormatTable(ShowObservationTimes("comt\t1\t9/2/1986 3.5\ncomt\t2\t29/2/-1 0\n")),
            "kind  number   year  month  day  hour [UT]\n"
            "comt       1   1986      2    9       3.50\n"
            "comt       2  every      2   29       0.00\n");
  EXPECT_EQ(FormatTable(ShowYearLimits("-4712\n-1\n")), "limit   year\nfirst  -4712\nlast   none\n");
}

TEST(ShowFiles, ShowersComeFromAStringTable) {
  const test_support::TempDir dir;
  const std::string path = dir.Write("en/qxstrings.txt",
                                     "6101\tLyrids;16;4;22;4;27;4;LYR;Thatcher;18;30;-33\n"
                                     "6102\tbroken;1\n6103\tPerseids;17;7;13;8;24;8;PER;Swift;3;0;+58\n");
  const ShownTable shown = ShowShowers(path);
  EXPECT_EQ(FormatTable(shown),
            "  id  name      begin  maximum  end    code  parent body   RA [h]  Dec [deg]\n"
            "6101  Lyrids    16.4.  22.4.    27.4.  LYR   Thatcher     18.5000        -33\n"
            "6103  Perseids  17.7.  13.8.    24.8.  PER   Swift         3.0000         58\n");
  EXPECT_EQ(shown.unreadable, 1);
}

}  // namespace
}  // namespace skydata
