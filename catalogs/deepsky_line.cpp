// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "catalogs/deepsky_line.h"

#include <cmath>

#include "astro/constants.h"
#include "astro/coordinates.h"
#include "common_interfaces/record_lines.h"
#include "utils/characters.h"

namespace CommonInterfaces {
namespace {

using astro::kRadiansPerDegree;

// The fields of a line. A field that is no number is passed over, so that those behind it stay in their
// columns: the record-line parsers would stop in front of it for good.
class Fields {
 public:
  explicit Fields(char* line) : m_Cursor(line) {}

  bool IsAnyRead() const { return m_AnyRead; }

  bool Integer(int& value) {
    return Field([&value](char*& cursor) { return GetLong1(cursor, value); });
  }
  bool Real(double& value) {
    double read = 0.0;
    const bool good =
        Field([&read](char*& cursor) { return GetDouble(cursor, read); }) && std::isfinite(read);
    if (good) value = read;
    return good;
  }
  // Degrees become radians. The parser of angles takes one character behind a number without a mark: it is a
  // blank.
  bool Angle(double& radians) {
    double degrees = 0.0;
    const bool good =
        Field([&degrees](char*& cursor) {
          return IsDigit(*cursor) || *cursor == '.' || *cursor == '-' ? GetRaOrDec(cursor, degrees) : 0;
        }) &&
        std::isfinite(degrees);
    if (good) radians = degrees * kRadiansPerDegree;
    return good;
  }
  // The letter that follows at once the number that was just read, 0 without one.
  unsigned Letter() const {
    const char c = *m_NumberEnd;
    return c >= 'A' && c <= 'G' ? static_cast<unsigned>(c) & 7u : 0u;
  }

 private:
  template <class Parse>
  bool Field(Parse parse) {
    m_NumberEnd = nullptr;
    if (!RemoveLeading(m_Cursor) || *m_Cursor == '!') return false;  // a comment, to the end of the line
    if (*m_Cursor == '+' && (IsDigit(m_Cursor[1]) || m_Cursor[1] == '.')) ++m_Cursor;
    char* const start = m_Cursor;
    const bool read = parse(m_Cursor) == 1 && m_Cursor != start;
    m_NumberEnd = read ? m_Cursor : nullptr;
    const bool inside = m_Cursor == start || !IsBlank(m_Cursor[-1]);
    while (inside && *m_Cursor && !IsBlank(*m_Cursor)) ++m_Cursor;
    m_AnyRead = m_AnyRead || read;
    return read;
  }

  char* m_Cursor;
  char* m_NumberEnd = nullptr;
  bool m_AnyRead = false;
};

void ReadObjectNumber(Fields& fields, DSOImageDesc& image) {
  int number = 0;
  if (!fields.Integer(number)) return;
  image.number = (static_cast<unsigned>(number) & 0xFFFFFFu) | fields.Letter() << 28;
}

void ReadSize(Fields& fields, DSOImageDesc& image) {
  double arcMinutes = 0.0;
  if (!fields.Real(arcMinutes)) return;
  image.size = static_cast<float>(arcMinutes * kRadiansPerDegree / 60.0);
  image.reciprocalSize = image.size != 0.0f ? 1.0f / image.size : 0.0f;
}

void ReadDirection(Fields& fields, DSOImageDesc& image) {
  double ra = 0.0, dec = 0.0;
  fields.Angle(ra);
  fields.Angle(dec);
  sfp(1.0, ra, dec, image.direction);
}

void SetBounds(DSOImageDesc& image) {
  const double r = image.aspectRatio;
  image.halfDiagonal = static_cast<double>(image.size) * std::sqrt(1.0 + 1.0 / (r * r));
  image.cosHalfDiagonal = std::cos(image.halfDiagonal);
}

}  // namespace

bool ParseDeepskyImage(char* line, DSOImageDesc& image) {
  image = DSOImageDesc();
  Fields fields(line);
  ReadObjectNumber(fields, image);
  ReadSize(fields, image);
  ReadDirection(fields, image);
  fields.Real(image.rotation);
  fields.Integer(image.flags);
  double ratio = 0.0;
  if (fields.Real(ratio) && ratio > 0.0) image.aspectRatio = ratio;
  fields.Integer(image.layer);
  fields.Real(image.blackPoint);
  fields.Real(image.brightness);
  SetBounds(image);
  return fields.IsAnyRead();
}

}  // namespace CommonInterfaces
