// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The tables of the object search: articles, distances, objects of the three-dimensional flight.
#include <algorithm>
#include <iterator>

#include "common_interfaces/flight_objects.h"
#include "common_interfaces/object_articles.h"
#include "skydata/files/binary_tables.h"
#include "skydata/files/object_names.h"
#include "skydata/lint/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr int kGalaxy = FourCC("gala"), kMesh = FourCC("mesh"), kStar = FourCC("star");
constexpr int kKindColumn = 1, kNumberColumn = 2, kArticleColumn = 3;
constexpr int kFirstNumberColumn = 3;

bool IsAlwaysFlownTo(int kind) {
  static constexpr int kKinds[] = {FourCC("plnt"), FourCC("moon"), FourCC("astr"), FourCC("comt"),
                                   FourCC("scft")};
  return std::find(std::begin(kKinds), std::end(kKinds), kind) != std::end(kKinds);
}

void CheckKind(int kind, int line, LintReport& report) {
  if (!IsKnownKind(kind)) {
    report.Add(LintCode::kUnknownKind, line, kKindColumn, NameKind(kind) + " is no kind of object");
  }
}

void CheckArticle(const ArticleRecord& record, int line, const LintRun& run, LintReport& report) {
  CheckKind(record.kind, line, report);
  const bool isRemapped = (record.number & ~kLowNumberBits) == kGalaxyArticle;
  if (record.kind == kMesh || (record.kind == kGalaxy && !isRemapped)) {
    report.Add(LintCode::kNeverFound, line, kNumberColumn,
               NameObject(record.kind, record.number) + " is never looked up" +
                   (record.kind == kMesh ? "" : ": articles of galaxies are filed from 1006632960 on"));
  }
  CheckReference(run, record.kind, record.number, line, kNumberColumn, report);
  if (record.article < 0) {
    report.Add(LintCode::kOutOfRange, line, kArticleColumn,
               "article " + std::to_string(record.article) + " is below 0, which stands for none");
  }
}

void CompareArticle(const CommonInterfaces::ArticlesInformation& reader, const ArticleRecord& record,
                    int line, LintReport& report) {
  const int found = reader.GetArticleId(record.kind, record.number);
  if (found == record.article) return;
  report.Add(
      LintCode::kReaderDiffers, line, kArticleColumn,
      "the reader has article " + std::to_string(found) + " for " + NameObject(record.kind, record.number));
}

void CheckNumbers(const DistanceNumbers& group, int line, const LintRun& run, LintReport& report) {
  for (std::size_t i = 0; i < group.numbers.size(); ++i) {
    const int number = group.numbers[i], column = kFirstNumberColumn + static_cast<int>(i);
    CheckReference(run, group.kind, number, line, column, report);
    if (i == 0 || group.numbers[i - 1] < number) continue;
    const bool isSame = group.numbers[i - 1] == number;
    report.Add(isSame ? LintCode::kDuplicate : LintCode::kUnsorted, line, column,
               NameObject(group.kind, number) + " stands behind " + std::to_string(group.numbers[i - 1]) +
                   (isSame ? "" : ": the numbers are searched as they stand, and must be sorted"));
  }
}

void CheckGroup(const DistanceNumbers& group, int line, FirstLines<int>& kinds, LintReport& report) {
  CheckKind(group.kind, line, report);
  if (IsAlwaysFlownTo(group.kind)) {
    report.Add(LintCode::kNeverFound, line, kKindColumn,
               NameKind(group.kind) + " is never looked up: it can always be flown to");
  }
  if (const int first = kinds.Note(group.kind, line)) {
    report.Add(
        LintCode::kNeverFound, line, kKindColumn,
        "only the first group of " + NameKind(group.kind) + " is looked at, group " + std::to_string(first));
  }
  if (group.numbers.size() < group.count) {
    report.Add(LintCode::kCount, line, kNumberColumn,
               "the group counts " + std::to_string(group.count) + " numbers, the file has " +
                   std::to_string(group.numbers.size()));
  }
}

using Objects = FirstLines<std::pair<int, int>>;

// Whether the reader takes the line.
bool CheckFlightLine(const TextLine& line, const LintRun& run, Objects& objects, LintReport& report,
                     std::pair<int, int>& object) {
  const auto fields = SplitAtTabs(line);
  if (IsBlankText(line.text) || !HasFields(line, fields, 2, 3, report)) return false;
  const auto kind = ReadNumberOrKind({line, fields[0], "kind", report});
  const auto number = ReadInteger({line, fields[1], "number", report});
  if (!kind || !number) return false;
  object = {*kind, *number};
  CheckReference(run, *kind, *number, line.number, fields[1].column, report);
  if (*kind == kStar) {
    report.Add(LintCode::kNeverFound, line.number, 1, "star is never looked up: it can always be flown to");
  }
  if (const int first = objects.Note(object, line.number)) {
    report.Add(LintCode::kDuplicate, line.number, 1,
               NameObject(*kind, *number) + " stands in line " + std::to_string(first) + " already");
  }
  return true;
}

}  // namespace

void LintArticles(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  if (file.bytes.empty()) report.Add(LintCode::kEmptyFile, 0, 0, "the file is empty");
  if (file.bytes.size() % kArticleSize != 0) {
    report.Add(LintCode::kFileSize, 0, 0,
               "the file has " + std::to_string(file.bytes.size()) +
                   " bytes, no multiple of 12: its reader takes nothing of it");
  }
  const ReaderWatch watch;
  const CommonInterfaces::ArticlesInformation reader(file.path.c_str());
  const bool isRead = file.bytes.size() % kArticleSize == 0;
  FirstLines<std::pair<int, int>> firsts;
  int line = 0;
  for (const ArticleRecord& record : DecodeArticles(file.bytes)) {
    ++line;
    CheckArticle(record, line, run, report);
    if (const int first = firsts.Note({record.kind, record.number}, line)) {
      report.Add(
          LintCode::kDuplicate, line, kNumberColumn,
          NameObject(record.kind, record.number) + " stands in record " + std::to_string(first) + " already");
    } else if (isRead && record.kind != kMesh &&
               (record.kind != kGalaxy || (record.number & ~kLowNumberBits) == kGalaxyArticle)) {
      CompareArticle(reader, record, line, report);
    }
  }
  AddMessages(watch, {}, report);
}

void LintDistances(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  if (file.bytes.empty()) report.Add(LintCode::kEmptyFile, 0, 0, "the file is empty");
  const DistanceTable table = DecodeDistances(file.bytes);
  FirstLines<int> kinds;
  int line = 0;
  for (const DistanceNumbers& group : table.groups) {
    CheckGroup(group, ++line, kinds, report);
    CheckNumbers(group, line, run, report);
  }
  const bool isWhole =
      table.groups.empty() || table.groups.back().numbers.size() == table.groups.back().count;
  if (table.restSize > 0 && isWhole) {
    report.Add(LintCode::kTrailingBytes, line + 1, 0,
               std::to_string(table.restSize) + " bytes behind the last group");
  }
  const ReaderWatch watch;
  CommonInterfaces::General3DFlightObjectsList reader(file.path.c_str());
  AddMessages(watch, {}, report);
  if (report.HasFindings()) return;
  for (line = 1; const DistanceNumbers& group : table.groups) {
    for (const int number : group.numbers) {
      if (reader.objectInList(group.kind, number)) continue;
      report.Add(LintCode::kReaderDiffers, line, 0,
                 "the reader does not find " + NameObject(group.kind, number));
    }
    ++line;
  }
}

void LintFlightList(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  const TextLines lines = ReadLintLines(file.bytes, {}, report);
  const ReaderWatch watch;
  CommonInterfaces::Voyvane3DFlightObjectsList reader;
  Objects objects;
  for (const TextLine& line : lines) {
    std::pair<int, int> object;
    if (!CheckFlightLine(line, run, objects, report, object)) continue;
    if (reader.objectInList(object.first, object.second)) continue;
    report.Add(LintCode::kReaderDiffers, line.number, 1,
               "the reader does not find " + NameObject(object.first, object.second));
  }
  AddMessages(watch, {}, report);
}

}  // namespace skydata
