// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Texts that are data: date patterns, tables of transliteration, meteor showers.
#include <algorithm>
#include <iterator>

#include "skydata/files/object_names.h"
#include "skydata/files/text_lines.h"
#include "skydata/strings/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr unsigned kDatePattern = 40830, kDateOrder = 20560;
constexpr unsigned kSingles = 14000, kSingleReplacements = 14001;
constexpr unsigned kDoubles = 14002, kDoubleReplacements = 14003;
constexpr std::size_t kShowerFields = 12;

void CheckReplacements(unsigned from, unsigned to, int each, StringsReport& report) {
  const StringsEntry* const characters = FindEntry(report.GetSource(), from);
  const StringsEntry* const replacements = FindEntry(report.GetSource(), to);
  if (!characters || !replacements) return;
  const int wanted = each * CountCharacters(characters->text), found = CountCharacters(replacements->text);
  if (found != wanted) {
    report.AddError(replacements->line, "transliteration",
                    NameIdentifier(to) + " has " + std::to_string(found) + " characters, wants " +
                        std::to_string(wanted) + ": " + std::to_string(each) + " for each of " +
                        NameIdentifier(from));
  }
}

// The library replaces bytes above 0x80 only.
void CheckReplaced(unsigned identifier, StringsReport& report) {
  const StringsEntry* const entry = FindEntry(report.GetSource(), identifier);
  std::string bytes;
  if (!entry || !Utf8ToCodePage(report.GetSource().page, entry->text, &bytes, nullptr)) return;
  const auto place =
      std::find_if(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) <= 0x80; });
  if (place == bytes.end()) return;
  report.AddWarning(entry->line, "transliteration",
                    "'" + CodePageToUtf8(report.GetSource().page, std::string(1, *place)) +
                        "' is never replaced: only bytes above 0x80 are");
}

bool IsNumber(const std::string& field) {
  const std::size_t begin = !field.empty() && (field[0] == '+' || field[0] == '-') ? 1 : 0;
  return field.size() > begin && field.find_first_not_of("0123456789", begin) == std::string::npos;
}

void CheckShower(const StringsEntry& entry, StringsReport& report) {
  const auto fields = GetSubStrings(entry.text.c_str(), ';');
  const std::string name = NameIdentifier(entry.identifier);
  if (fields.size() != kShowerFields) {
    report.AddError(entry.line, "shower",
                    name + " has " + std::to_string(fields.size()) + " fields, wants 12");
    return;
  }
  for (const std::size_t number : {1, 2, 3, 4, 5, 6, 9, 10, 11}) {
    if (IsNumber(fields[number])) continue;
    report.AddError(
        entry.line, "shower",
        name + ": field " + std::to_string(number + 1) + ", '" + fields[number] + "', is no whole number");
  }
}

}  // namespace

void CheckDates(StringsReport& report) {
  // The patterns that the library tells apart; any other text gives year, month, day.
  static constexpr const char* kPatterns[] = {"dd/mm/yyyy", "dd-mm-yyyy", "dd.mm.yyyy", "d-m-yyyy",
                                              "m/d/yyyy",   "yyyy/mm/dd", "yyyy/m/d"};
  const StringsEntry* const pattern = FindEntry(report.GetSource(), kDatePattern);
  if (pattern &&
      std::find(std::begin(kPatterns), std::end(kPatterns), pattern->text) == std::end(kPatterns)) {
    report.AddError(pattern->line, "date-pattern",
                    "'" + pattern->text +
                        "' is none of dd/mm/yyyy, dd-mm-yyyy, dd.mm.yyyy, d-m-yyyy, m/d/yyyy, "
                        "yyyy/mm/dd, yyyy/m/d");
  }
  const StringsEntry* const order = FindEntry(report.GetSource(), kDateOrder);
  if (order && order->text != "0" && order->text != "1" && order->text != "2") {
    report.AddError(order->line, "date-order",
                    "'" + order->text + "' is none of 0 (month first), 1 (day first), 2 (year first)");
  }
}

void CheckTransliteration(StringsReport& report) {
  const StringsEntry* const singles = FindEntry(report.GetSource(), kSingles);
  if (singles && singles->text.compare(0, 1, "-") == 0) return;  // switched off
  CheckReplacements(kSingles, kSingleReplacements, 1, report);
  CheckReplacements(kDoubles, kDoubleReplacements, 2, report);
  CheckReplaced(kSingles, report);
  CheckReplaced(kDoubles, report);
}

void CheckShowers(StringsReport& report) {
  for (const StringsEntry& entry : report.GetSource().entries) {
    if (entry.identifier < kFirstShower || entry.identifier > kLastShower) continue;
    CheckShower(entry, report);
    if (entry.identifier > kFirstShower && !FindEntry(report.GetSource(), entry.identifier - 1)) {
      report.AddError(entry.line, "shower",
                      NameIdentifier(entry.identifier) +
                          " is not read: " + NameIdentifier(entry.identifier - 1) + " is missing");
    }
  }
}

}  // namespace skydata
