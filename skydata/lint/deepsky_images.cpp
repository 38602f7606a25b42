// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <limits>
#include <optional>

#include "common_interfaces/sky_images.h"
#include "skydata/files/deepsky_picture.h"
#include "skydata/lint/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr double kAny = std::numeric_limits<double>::infinity();
constexpr double kMaxSize = 1200.0;  // minutes of arc; what is larger looks like seconds

struct Range {
  double least, most;
};
// In the order of the columns; the first is looked at on its own.
constexpr Range kRanges[kPictureColumns] = {{0.0, kAny},     {0.0, kAny}, {0.0, 360.0}, {-90.0, 90.0},
                                            {-360.0, 360.0}, {0.0, 3.0},  {0.0, kAny},  {0.0, kAny},
                                            {0.0, 1.0},      {0.0, kAny}};

using Keys = FirstLines<std::pair<int, char>>;

std::string ToText(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

std::optional<double> ReadValue(int column, const TextLine& line, const TextField& field,
                                LintReport& report) {
  bool lacksMark = false;
  const bool isAngle = column == kPictureRA || column == kPictureDec;
  const bool isWhole = column == kPictureFlags || column == kPictureLayer;
  const auto value = isAngle ? ParseAngle(field.text, lacksMark) : ParsePlainNumber(field.text, isWhole);
  if (!value) {
    report.Add(LintCode::kNotANumber, line.number, field.column,
               std::string(NamePictureColumn(column)) + " '" + field.text + "' cannot be read");
  } else if (lacksMark) {
    report.Add(LintCode::kAngleMark, line.number, field.column,
               std::string(NamePictureColumn(column)) + " '" + field.text + "' is read as " + ToText(*value) +
                   " degrees: its last number has no mark");
    return std::nullopt;
  }
  return value;
}

void CheckValue(int column, const TextLine& line, const TextField& field, LintReport& report) {
  const auto value = ReadValue(column, line, field, report);
  if (!value) return;
  const Range& range = kRanges[column];
  const bool mustBePositive =
      column == kPictureSize || column == kPictureAspect || column == kPictureBrightness;
  if (*value < range.least || *value > range.most || (mustBePositive && *value == 0.0)) {
    const std::string wanted = mustBePositive ? "above 0"
                               : range.most == kAny
                                   ? "at least " + ToText(range.least)
                                   : "from " + ToText(range.least) + " to " + ToText(range.most);
    report.Add(LintCode::kOutOfRange, line.number, field.column,
               std::string(NamePictureColumn(column)) + " " + ToText(*value) + " is not " + wanted);
  } else if (column == kPictureSize && *value > kMaxSize) {
    report.Add(LintCode::kUnit, line.number, field.column,
               "size " + ToText(*value) + " looks like seconds of arc, wants minutes");
  }
}

void CheckNumber(const TextLine& line, const TextField& field, const LintRun& run, Keys& keys,
                 LintReport& report) {
  int number = 0;
  char letter = '\0';
  if (!ParsePictureNumber(field.text, number, letter)) {
    report.Add(LintCode::kBadCode, line.number, field.column,
               "number '" + field.text + "' is no number with or without a letter A to G");
    return;
  }
  if (number < 1 || number > kLowNumberBits) {
    report.Add(LintCode::kOutOfRange, line.number, field.column,
               "number " + std::to_string(number) + " is not from 1 to " + std::to_string(kLowNumberBits));
    return;
  }
  if (const int first = keys.Note({number, letter}, line.number)) {
    report.Add(LintCode::kDuplicate, line.number, field.column,
               "'" + field.text + "' stands in line " + std::to_string(first) + " already");
  }
  if (run.objects.IsPictureMissing(number)) {
    report.Add(LintCode::kDanglingReference, line.number, field.column,
               "no catalog has a deep-sky object " + std::to_string(number));
  }
}

void CompareWithReader(const Keys& keys, LintReport& report) {
  const ReaderWatch watch;
  CommonInterfaces::DSOImages reader;
  CommonInterfaces::DSOImages::Reload();
  AddMessages(watch, {}, report);
  if (report.HasErrors()) return;
  int count = 0;
  for (const auto* image = reader.GetFirst(); image; image = reader.GetNext()) ++count;
  CompareCounts(count, keys.GetCount(), report);
}

}  // namespace

void LintDeepskyImages(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  TextRules rules;
  rules.maxLine = 0;
  rules.isUtf8 = false;  // the degree sign is the one byte 0xB0
  Keys keys;
  for (const TextLine& line : ReadLintLines(file.bytes, rules, report)) {
    if (line.text.starts_with('!')) continue;
    const auto fields = SplitAtBlanks(line);
    if (fields.empty()) continue;
    CheckNumber(line, fields[kPictureNumber], run, keys, report);
    HasFields(line, fields, kPictureBrightness, kPictureColumns, report);
    for (int column = kPictureSize; column < kPictureColumns && column < static_cast<int>(fields.size());
         ++column) {
      CheckValue(column, line, fields[static_cast<std::size_t>(column)], report);
    }
  }
  CompareWithReader(keys, report);
}

}  // namespace skydata
