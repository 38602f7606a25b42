// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/dates.h"
#include "support/debug_capture.h"
#include "support/string_table_file.h"
#include "support/temp_dir.h"
#include "utils/locale.h"

namespace test_support {

inline constexpr char kMonthTexts[] =
    "971\tJanuary\n972\tFebruary\n973\tMarch\n974\tApril\n975\tMay\n976\tJune\n"
    "977\tJuly\n978\tAugust\n979\tSeptember\n980\tOctober\n981\tNovember\n982\tDecember\n";

// Russian names, transliterated: as a date wants them (971 on), and as they stand alone (1971 on).
inline constexpr char kRussianMonthTexts[] =
    "971\tyanvarya\n972\tfevralya\n973\tmarta\n974\taprelya\n975\tmaya\n976\tiyunya\n"
    "977\tiyulya\n978\tavgusta\n979\tsentyabrya\n980\toktyabrya\n981\tnoyabrya\n982\tdekabrya\n"
    "1971\tyanvar\n1972\tfevral\n1973\tmart\n1974\taprel\n1975\tmay\n1976\tiyun\n"
    "1977\tiyul\n1978\tavgust\n1979\tsentyabr\n1980\toktyabr\n1981\tnoyabr\n1982\tdekabr\n";

using Lines = std::vector<std::string>;

// Data roots of its own, an empty string table, the locale "en", the date format of the start, no month names
// kept from another test.
class DatesTest : public testing::Test {
 protected:
  DatesTest() {
    Restore();
    debug.lines.clear();
  }
  ~DatesTest() override { Restore(); }

  void Load(const std::string& texts) { LoadStrings(roots, texts); }

  TempRoots roots;
  DebugCapture debug;

 private:
  // A table without names leaves no names.
  void Restore() {
    Load("");
    SetSystemLocale("no language");
    CommonInterfaces::GetMonth(1);
    CommonInterfaces::GetDateString(2024, 1, 1);
    SetSystemLocale("en");
    CommonInterfaces::SetDateFormat("yyyy/mm/dd");
  }
};

}  // namespace test_support
