// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The lists of objects that the user keeps. Their names are in the code page of the language, whatever that
// was.
#include "common_interfaces/object_lists.h"
#include "skydata/files/object_names.h"
#include "skydata/lint/rules.h"

namespace skydata {
namespace {

using Entries = FirstLines<std::pair<int, int>>;

// Whether the reader takes the line.
bool CheckEntry(const TextLine& line, int fieldCount, const LintRun& run, Entries& entries,
                LintReport& report) {
  const auto fields = SplitAtTabs(line);
  if (IsBlankText(line.text) || !HasFields(line, fields, fieldCount, fieldCount, report)) return false;
  CheckName({line, fields[0], "name", report});
  const auto kind = ReadInteger({line, fields[1], "kind", report});
  const auto number = ReadInteger({line, fields[2], "number", report});
  const bool isWhole = fieldCount < 4 || ReadInteger({line, fields[3], "fourth field", report});
  if (!kind || !number || !isWhole) return false;
  if (!IsKnownKind(*kind)) {
    report.Add(LintCode::kUnknownKind, line.number, fields[1].column,
               NameKind(*kind) + " is no kind of object");
  }
  CheckReference(run, *kind, *number, line.number, fields[2].column, report);
  if (const int first = entries.Note({*kind, *number}, line.number)) {
    report.Add(LintCode::kDuplicate, line.number, fields[1].column,
               NameObject(*kind, *number) + " stands in line " + std::to_string(first) + " already");
  }
  return true;
}

int CheckList(const LintFile& file, int fieldCount, LintRun& run, LintReport& report) {
  TextRules rules;
  rules.mayBeEmpty = true;
  rules.isUtf8 = false;
  Entries entries;
  int count = 0;
  for (const TextLine& line : ReadLintLines(file.bytes, rules, report)) {
    count += CheckEntry(line, fieldCount, run, entries, report);
  }
  return count;
}

}  // namespace

void LintFavourites(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  const int count = CheckList(file, 3, run, report);
  const ReaderWatch watch;
  CommonInterfaces::FavouriteObjectsFile favourites;
  favourites.Read();
  AddMessages(watch, {}, report);
  CompareCounts(favourites.GetSize(), count, report);
}

void LintChosen(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  const int count = CheckList(file, 4, run, report);
  const ReaderWatch watch;
  const CommonInterfaces::ChoosingObjectsFile chosen(file.path.c_str());
  std::vector<SSO_ID> objects;
  chosen.GetObjects(objects);
  AddMessages(watch, {}, report);
  CompareCounts(static_cast<int>(objects.size()), count, report);
}

}  // namespace skydata
