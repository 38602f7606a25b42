// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/dates_months.h"

#include <algorithm>
#include <vector>

#include "common_interfaces/dates.h"
#include "common_interfaces/string_table.h"
#include "text/text_ids.h"
#include "utils/locale.h"

namespace CommonInterfaces {

namespace {

constexpr int kMonths = 12;
constexpr char kLanguageWithCases[] = "ru";  // whose nouns have a form of their own inside a date

// The names are copies: texts of the table go with the next change of language.
struct MonthNames {
  std::vector<std::string> names;  // 12, or none when the table had none of them
  std::string locale;              // that they were taken under

  void Refresh(bool standAlone);
};

// Both live as long as the process, made on first use.
MonthNames& GetNamesInDate() {
  static MonthNames s_Names;
  s_Names.Refresh(false);
  return s_Names;
}
MonthNames& GetNamesStandingAlone() {
  static MonthNames s_Names;
  s_Names.Refresh(true);
  return s_Names;
}

void MonthNames::Refresh(bool standAlone) {
  const std::string current = GetSystemLocale();
  if (!names.empty() && locale == current) return;
  const bool hasOwnNames = standAlone && current == kLanguageWithCases;
  const unsigned first = hasOwnNames ? TextIds::kFirstMonthAlone : TextIds::kFirstMonth;
  QX4Strings strings;
  names.assign(kMonths, "");
  bool any = false;
  for (unsigned i = 0; i < kMonths; ++i) {
    const char* const text = QX4Strings::GetString(first + i, true);
    if (!text) continue;
    names[i] = text;
    any = true;
  }
  // A table that could not be read is looked into again.
  if (!any) names.clear();
  locale = current;
}

}  // namespace

const std::string& GetMonthOfLongDate(int month) {
  static const std::string s_None;
  const MonthNames& months = GetNamesInDate();
  if (month < 1 || month > static_cast<int>(months.names.size())) return s_None;
  return months.names[static_cast<std::size_t>(month - 1)];
}

std::string GetMonth(int month) {
  const std::vector<std::string>& names = GetNamesStandingAlone().names;
  return names.empty() ? "" : names[static_cast<std::size_t>(std::clamp(month, 1, kMonths) - 1)];
}

std::vector<std::string> GetMonthList() {
  std::vector<std::string> names = GetNamesStandingAlone().names;
  names.resize(kMonths);
  return names;
}

}  // namespace CommonInterfaces
