// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/fields.h"

#include <cerrno>
#include <cstdlib>
#include <limits>

#include "skydata/files/object_names.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr std::size_t kMaxName = 79;  // bytes of a name in an identifier, its zero left aside

void Add(const FieldPlace& place, LintCode code, const std::string& text) {
  place.report.Add(code, place.line.number, place.field.column, std::string(place.what) + text);
}

std::string Quote(const std::string& text) { return " '" + text + "'"; }

struct ScannedNumber {
  int value = 0;
  bool isNumber = false, fits = true;
  std::string rest;
};

ScannedNumber Scan(const std::string& text) {
  ScannedNumber scanned;
  char* end = nullptr;
  errno = 0;
  const long long value = std::strtoll(text.c_str(), &end, 10);
  scanned.isNumber = end != text.c_str();
  scanned.fits =
      errno == 0 && value >= std::numeric_limits<int>::min() && value <= std::numeric_limits<int>::max();
  if (scanned.fits) scanned.value = static_cast<int>(value);
  scanned.rest = end;
  return scanned;
}

std::optional<int> Accept(const FieldPlace& place, const ScannedNumber& scanned) {
  if (!scanned.fits) {
    Add(place, LintCode::kOutOfRange, Quote(place.field.text) + " does not fit 32 bits");
    return std::nullopt;
  }
  if (!IsBlankText(scanned.rest)) {
    Add(place, LintCode::kNumberRest,
        Quote(place.field.text) + " is read as " + std::to_string(scanned.value));
  }
  return scanned.value;
}

}  // namespace

std::optional<int> ReadInteger(const FieldPlace& place) {
  const ScannedNumber scanned = Scan(place.field.text);
  if (!scanned.isNumber) {
    Add(place, LintCode::kNotANumber, Quote(place.field.text) + " is no whole number");
    return std::nullopt;
  }
  return Accept(place, scanned);
}

std::optional<int> ReadInteger(const FieldPlace& place, int least, int most) {
  const auto number = ReadInteger(place);
  if (number && (*number < least || *number > most)) {
    Add(place, LintCode::kOutOfRange,
        " " + std::to_string(*number) + " is not from " + std::to_string(least) + " to " +
            std::to_string(most));
  }
  return number;
}

std::optional<int> ReadKind(const FieldPlace& place) {
  if (place.field.text.size() != 4) {
    Add(place, LintCode::kBadCode, Quote(place.field.text) + " is no code of four characters");
    return std::nullopt;
  }
  const int kind = GetFOURCC(place.field.text.c_str());
  if (!IsKnownKind(kind)) {
    Add(place, LintCode::kUnknownKind, Quote(place.field.text) + " is no kind of object");
  }
  return kind;
}

std::optional<int> ReadNumberOrKind(const FieldPlace& place) {
  const ScannedNumber scanned = Scan(place.field.text);
  if (!scanned.isNumber) return ReadKind(place);
  const auto kind = Accept(place, scanned);
  if (kind && !IsKnownKind(*kind)) {
    Add(place, LintCode::kUnknownKind, Quote(place.field.text) + " is no kind of object");
  }
  return kind;
}

bool HasFields(const TextLine& line, const std::vector<TextField>& fields, int least, int most,
               LintReport& report) {
  const int count = static_cast<int>(fields.size());
  const std::string has = "the line has " + std::to_string(count) + " fields, wants ";
  const std::string wanted =
      least == most ? std::to_string(least) : std::to_string(least) + " to " + std::to_string(most);
  if (count < least) {
    report.Add(LintCode::kTooFewFields, line.number, static_cast<int>(line.text.size()) + 1, has + wanted);
  } else if (count > most) {
    report.Add(LintCode::kTooManyFields, line.number, fields[static_cast<std::size_t>(most)].column,
               has + wanted);
  }
  return count >= least;
}

void CheckName(const FieldPlace& place) {
  if (IsBlankText(place.field.text)) {
    Add(place, LintCode::kEmptyName, " is empty");
  } else if (place.field.text.size() > kMaxName) {
    Add(place, LintCode::kLongName,
        " has " + std::to_string(place.field.text.size()) + " bytes, of which identifiers keep 79");
  }
}

}  // namespace skydata
