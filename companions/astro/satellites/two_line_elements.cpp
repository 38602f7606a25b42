// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The fixed columns of two-line elements: docs/formats/two_line_elements.md.
#include <cmath>
#include <cstring>
#include <initializer_list>
#include <string_view>

#include "astro/constants.h"
#include "astro/satellite.h"
#include "utils/characters.h"
#include "utils/numbers.h"

namespace {

using astro::kRadiansPerDegree;

constexpr double kRadiansPerMinute = astro::kTurn / astro::kMinutesPerDay;  // for each revolution per day
constexpr std::size_t kLineLength = 69;
constexpr int kFirstYear = 57;  // 57 to 99 are 1957 to 1999

std::string_view Trim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

bool IsSign(char c) { return c == ' ' || c == '+' || c == '-'; }

// Reads the columns of one line. After the first thing that is wrong it stays
// failed, with the message of that.
class Line {
 public:
  Line(const std::string& text, char number, std::string& error)
      : m_Text(text), m_Number(number), m_Error(error) {}

  // Length, number of the line, blanks between the fields, checksum.
  bool Check(std::initializer_list<int> blankColumns) {
    if (m_Text.size() < kLineLength)
      return Fail(static_cast<int>(m_Text.size()) + 1, kLineLength, "missing: a line has 69 columns");
    if (m_Text[0] != m_Number) return Fail(1, 1, "must be the number of the line");
    for (const int column : blankColumns) {
      if (m_Text[static_cast<std::size_t>(column) - 1] != ' ') return Fail(column, column, "must be blank");
    }
    if (m_Text.size() > kLineLength && std::strchr(" \t\r\n", m_Text[kLineLength]) == nullptr)
      return Fail(70, 70, "the line must end or go on with a blank");
    return CheckSum();
  }

  // The catalogue number, five digits or a letter and four: A0000 is 100000, and I and O are left out.
  int GetCatalogueNumber() {
    std::string_view text = Trim(Columns(3, 7));
    int number = 0;
    if (text.size() == 5 && text[0] >= 'A' && text[0] <= 'Z' && text[0] != 'I' && text[0] != 'O') {
      const char letter = text[0];
      number = letter - 'A' + 10 - (letter > 'I' ? 1 : 0) - (letter > 'O' ? 1 : 0);
      text.remove_prefix(1);
    } else if (text.empty()) {
      Fail(3, 7, "is no catalogue number");
    }
    for (const char c : text) {
      if (!IsDigit(c)) Fail(3, 7, "is no catalogue number");
      number = number * 10 + (c - '0');
    }
    return number;
  }

  // A decimal number with its own point and no exponent. An empty field is 0 where `mayBeEmpty`.
  double GetNumber(int first, int last, bool mayBeEmpty = false) {
    std::string_view text = Trim(Columns(first, last));
    if (text.empty() && mayBeEmpty) return 0.0;
    const bool isFixed = text.find_first_of("eE") == std::string_view::npos;
    double value = 0.0;
    if (!isFixed || !TakeNumber(text, value) || !text.empty()) Fail(first, last, "is no number");
    return value;
  }

  // Digits behind a point that is not written; a blank is a 0.
  double GetFraction(int first, int last) {
    double value = 0.0;
    double unit = 1.0;
    for (const char c : Columns(first, last)) {
      if (!IsDigit(c) && c != ' ') Fail(first, last, "is no row of digits");
      value = value * 10.0 + (IsDigit(c) ? c - '0' : 0);
      unit *= 10.0;
    }
    return value / unit;
  }

  // "-11606-4": sign, five digits behind a point that is not written, power of ten. An empty field is 0.
  double GetPower(int first) {
    const int last = first + 7;
    const std::string_view text = Columns(first, last);
    if (Trim(text).empty()) return 0.0;
    const bool isWellFormed = IsSign(text[0]) && IsSign(text[6]) && IsDigit(text[7]);
    if (!isWellFormed) Fail(first, last, "is no number with a power of ten");
    const double power = std::pow(10.0, text[6] == '-' ? '0' - text[7] : text[7] - '0');
    const double size = GetFraction(first + 1, first + 5) * power;
    return text[0] == '-' ? -size : size;
  }

  bool Fail(int first, int last, const char* message) {
    if (!m_Error.empty()) return false;
    m_Error =
        std::string("line ") + m_Number + ", column" + (first == last ? " " : "s ") + std::to_string(first);
    if (first != last) m_Error += " to " + std::to_string(last);
    m_Error += std::string(": ") + message;
    return false;
  }

 private:
  std::string_view Columns(int first, int last) const {
    return std::string_view(m_Text).substr(static_cast<std::size_t>(first) - 1,
                                           static_cast<std::size_t>(last - first) + 1);
  }

  // Digits count as they are, a minus as 1, everything else as 0.
  bool CheckSum() {
    int sum = 0;
    for (std::size_t i = 0; i + 1 < kLineLength; ++i)
      sum += IsDigit(m_Text[i]) ? m_Text[i] - '0' : (m_Text[i] == '-' ? 1 : 0);
    if (m_Text[kLineLength - 1] == static_cast<char>('0' + sum % 10)) return true;
    return Fail(69, 69, ("the checksum must be " + std::to_string(sum % 10)).c_str());
  }

  const std::string& m_Text;
  char m_Number;
  std::string& m_Error;
};

// Julian date from the last two digits of a year and the day in it; the first of January is day 1.
double EpochFrom(int year, double day) {
  const int before = (year < kFirstYear ? 2000 : 1900) + year - 1;
  const int days = 365 * before + before / 4 - before / 100 + before / 400;
  return 1721424.5 + days + day;
}

void ReadFirst(Line& line, OrbitalElements& elements) {
  const double year = line.GetNumber(19, 20);
  const double day = line.GetNumber(21, 32);
  if (!(year >= 0.0) || year != std::floor(year)) line.Fail(19, 20, "is no year");
  if (!(day >= 1.0 && day < 367.0)) line.Fail(21, 32, "is no day of the year");
  elements.meanMotionDot = line.GetNumber(34, 43, true);
  elements.meanMotionDotDot = line.GetPower(45);
  elements.dragTerm = line.GetPower(54);
  // The year is a digit or two when it is one: see above.
  elements.epoch = year >= 0.0 ? EpochFrom(static_cast<int>(year), day) : 0.0;
}

void ReadSecond(Line& line, OrbitalElements& elements) {
  elements.i = line.GetNumber(9, 16) * kRadiansPerDegree;
  elements.om = line.GetNumber(18, 25) * kRadiansPerDegree;
  elements.e = line.GetFraction(27, 33);
  elements.w = line.GetNumber(35, 42) * kRadiansPerDegree;
  elements.M0 = line.GetNumber(44, 51) * kRadiansPerDegree;
  elements.n = line.GetNumber(53, 63) * kRadiansPerMinute;
}

}  // namespace

bool ParseTwoLineElements(const std::string& line1, const std::string& line2, OrbitalElements& elements,
                          int& number, std::string& error) {
  std::string found;
  Line first(line1, '1', found);
  Line second(line2, '2', found);
  // The columns that stand blank between the fields.
  if (!first.Check({2, 9, 18, 33, 44, 53, 62, 64}) || !second.Check({2, 8, 17, 26, 34, 43, 52})) {
    error = found;
    return false;
  }
  OrbitalElements read;
  read.elementSet = kTwoLineElements;
  read.tag = kTwoLineTag;
  read.centralNumber = astro::kEarthNumber;
  const int catalogueNumber = first.GetCatalogueNumber();
  ReadFirst(first, read);
  if (found.empty() && second.GetCatalogueNumber() != catalogueNumber)
    second.Fail(3, 7, "is another catalogue number than that of line 1");
  ReadSecond(second, read);
  if (!found.empty()) {
    error = found;
    return false;
  }
  elements = read;
  number = catalogueNumber;
  return true;
}
