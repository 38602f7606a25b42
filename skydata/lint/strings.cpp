// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// String tables, and the meteor showers in them.
#include <algorithm>

#include "common_interfaces/dates.h"
#include "common_interfaces/meteor_showers.h"
#include "common_interfaces/string_table.h"
#include "skydata/files/object_names.h"
#include "skydata/files/source_error.h"
#include "skydata/lint/rules.h"
#include "skydata/strings/check.h"
#include "skydata/strings/rules.h"
#include "utils/locale.h"
#include "utils/path.h"
#include "utils/text.h"

namespace skydata {
namespace {

namespace fs = std::filesystem;
using CommonInterfaces::QX4Strings;

constexpr char kTable[] = "qxstrings.txt";
constexpr char kLanguages[] = "languages/";
constexpr int kLeapYear = 2000;

struct ShowerField {
  std::size_t number;  // from 0 on
  const char* what;
  int least, most;
};
constexpr ShowerField kShowerFields[] = {
    {9, "hours", 0, 23}, {10, "minutes", 0, 59}, {11, "declination", -90, 90}};
constexpr std::size_t kDates[] = {1, 3, 5};  // a day, the month behind it
constexpr std::size_t kShowerFieldCount = 12;

// The language of a table: that of its folder; of the one at the top that of the table with the same bytes.
std::string FindLanguage(const LintFile& file, const LintRun& run) {
  if (file.name != kTable) return fs::path(file.name).parent_path().filename().string();
  for (const LintFile& other : run.files) {
    if (other.name != file.name && other.kind == DataKind::kStrings && other.bytes == file.bytes) {
      return FindLanguage(other, run);
    }
  }
  return "en";
}

int ColumnOf(const StringsEntry& entry, const std::vector<std::string>& fields, std::size_t index) {
  std::size_t column = static_cast<std::size_t>(entry.begin) + 1;
  for (std::size_t i = 0; i < index; ++i) column += fields[i].size() + 1;
  return static_cast<int>(column);
}

// A number that the check of string tables takes as one.
bool TakeNumber(const std::string& field, int& number) {
  const std::size_t begin = !field.empty() && (field[0] == '+' || field[0] == '-') ? 1 : 0;
  constexpr std::size_t kMaxDigits = 6;
  if (field.size() == begin || field.size() > begin + kMaxDigits ||
      field.find_first_not_of("0123456789", begin) != std::string::npos) {
    return false;
  }
  number = std::stoi(field);
  return true;
}

void CheckShowerDate(const StringsEntry& entry, const std::vector<std::string>& fields, std::size_t at,
                     LintReport& report) {
  int day = 0, month = 0;
  if (!TakeNumber(fields[at], day) || !TakeNumber(fields[at + 1], month)) return;
  if (day >= 1 && day <= CommonInterfaces::GetDaysInMonth(month, kLeapYear)) return;
  report.Add(LintCode::kBadDate, entry.line, ColumnOf(entry, fields, at),
             "there is no day " + fields[at] + " of month " + fields[at + 1]);
}

void CheckShower(const StringsEntry& entry, FirstLines<std::string>& names, LintReport& report) {
  const auto fields = GetSubStrings(entry.text.c_str(), ';');
  if (fields.size() != kShowerFieldCount) return;
  for (const std::size_t date : kDates) CheckShowerDate(entry, fields, date, report);
  for (const ShowerField& field : kShowerFields) {
    int number = 0;
    if (!TakeNumber(fields[field.number], number)) continue;
    if (number >= field.least && number <= field.most) continue;
    report.Add(LintCode::kOutOfRange, entry.line, ColumnOf(entry, fields, field.number),
               std::string(field.what) + " " + std::to_string(number) + " is not from " +
                   std::to_string(field.least) + " to " + std::to_string(field.most));
  }
  if (const int first = names.Note(fields[0], entry.line)) {
    report.Add(LintCode::kDuplicate, entry.line, ColumnOf(entry, fields, 0),
               "the shower '" + fields[0] + "' stands in line " + std::to_string(first) + " already");
  }
}

void LoadTable(const fs::path& folder, const std::string& language) {
  ZentharPath::SetRoots(folder.string().c_str(), nullptr);
  SetSystemLocale(language.c_str());
  QX4Strings::StartLocaleUpdate();
  const QX4Strings loaded;
  QX4Strings::FinishLocaleUpdate();
}

void CompareEntries(const StringsSource& source, LintReport& report) {
  for (const StringsEntry& entry : source.entries) {
    if (FindEntry(source, entry.identifier) != &entry) continue;
    const char* const text = QX4Strings::GetString(entry.identifier, true);
    if (text && CodePageToUtf8(source.page, text) == entry.text) continue;
    report.Add(LintCode::kReaderDiffers, entry.line, 0,
               "the reader has another text " + NameIdentifier(entry.identifier));
  }
}

int CountShowers(const StringsSource& source) {
  int count = 0;
  for (unsigned identifier = kFirstShower; FindEntry(source, identifier); ++identifier) ++count;
  return count;
}

void CompareWithReader(const StringsSource& source, const LintFile& file, LintRun& run, LintReport& report) {
  const std::string locale = GetSystemLocale();
  const ReaderWatch watch;
  LoadTable(fs::path(file.path).parent_path(), source.language);
  std::vector<CommonInterfaces::SHOWER> showers;
  CommonInterfaces::ReadMeteorShowers(&showers);
  AddMessages(watch, {}, report);
  if (!report.HasErrors()) {
    CompareEntries(source, report);
    CompareCounts(static_cast<int>(showers.size()), CountShowers(source), report);
  }
  ZentharPath::SetRoots(run.root.string().c_str(), run.root.string().c_str());
  SetSystemLocale(locale.c_str());
}

void CheckText(const LintFile& file, const StringsSource& source, LintReport& report) {
  TextRules rules;
  rules.maxLine = 0;  // the check of string tables knows the encoding and counts its characters
  rules.isUtf8 = false;
  ReadLintLines(file.bytes, rules, report);
  const bool isPlain = std::all_of(file.bytes.begin(), file.bytes.end(), [](char c) { return c > 0; });
  if (source.isUtf8 && !isPlain) {
    report.Add(LintCode::kEncoding, 0, 0,
               "the table is in UTF-8, its reader wants " + NameCodePage(source.page));
  }
}

void Append(const StringsFindings& more, const std::string& file, LintRun& run) {
  LintReport report(file, run.findings);
  for (const StringsFinding& finding : more) {
    if (std::string("zero-byte") == finding.code) continue;  // told with its column already
    report.Add(finding.isError ? Severity::kError : Severity::kWarning, finding.code, finding.line, 0,
               finding.text);
  }
}

}  // namespace

void LintStrings(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  const StringsSource source = ReadStrings(file.path, FindLanguage(file, run));
  CheckText(file, source, report);
  Append(CheckStrings(source), file.name, run);
  FirstLines<std::string> names;
  for (const StringsEntry& entry : source.entries) {
    if (entry.identifier >= kFirstShower && entry.identifier <= kLastShower)
      CheckShower(entry, names, report);
  }
  CompareWithReader(source, file, run, report);
}

void CompareLanguages(LintRun& run) {
  std::vector<StringsSource> sources;
  std::map<std::string, std::string> names;  // path as the findings have it, name below the root
  for (const LintFile& file : run.files) {
    if (file.kind != DataKind::kStrings || !file.name.starts_with(kLanguages)) continue;
    sources.push_back(ReadStrings(file.path, FindLanguage(file, run)));
    names[sources.back().path] = file.name;
  }
  for (const StringsFinding& finding : CompareStrings(sources)) Append({finding}, names[finding.file], run);
}

}  // namespace skydata
