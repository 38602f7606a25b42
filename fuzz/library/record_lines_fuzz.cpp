// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Lines of catalogs: the first byte of the input chooses the parser that begins, the parsers then take turns
// along the line. The input's end serves as values to be written, and the whole of it as transliteration
// tables and their text.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "common_interfaces/record_lines.h"
#include "fuzz/scratch.h"
#include "text/record_lines_inside.h"

namespace {

using fuzz::Require;

// A buffer of the size that the parsers count on, with its edge watched by the address sanitizer.
struct Buffer {
  const std::unique_ptr<char[]> text{new char[256]};
};

void CheckLong(char*& cursor) {
  const char* const start = cursor;
  const std::size_t digits = std::strspn(start, "0123456789");
  int value = -1;
  if (!GetLong1(cursor, value)) {
    Require(*start == '\0' || std::strchr(" \t\r\n;!", *start), "only a number stop fails");
    return;
  }
  Require(cursor == start + digits, "the digits are taken, and nothing else");
  const long long expected = std::strtoll(digits != 0 ? start : "0", nullptr, 10);
  Require(value == (expected < 2147483647 ? expected : 2147483647), "integers saturate");
}

void CheckDouble(char*& cursor) {
  const std::string run(cursor, std::strspn(cursor, "0123456789.eE-"));
  const char* const start = cursor;
  double value = 0.0;
  if (!GetDouble(cursor, value)) return;
  Require(cursor == start + run.size(), "the run is taken, and nothing else");
  char* end = nullptr;
  double expected = std::strtod(run.c_str(), &end);
  if (end == run.c_str()) expected = 0.0;  // where there is no number some libraries answer with a sign
  Require(std::memcmp(&value, &expected, sizeof value) == 0, "a run is converted as the C library does");
}

void CheckAngle(char*& cursor) {
  char* again = cursor;
  const bool isLeft = RemoveLeading(again) != 0;
  double value = 0.0;
  Require((GetRaOrDec(cursor, value) != 0) == isLeft, "an angle fails only where nothing is left");
}

template <class ToBuffer, class ToString>
void CheckField(char*& cursor, ToBuffer toBuffer, ToString toString) {
  char* other = cursor;
  const Buffer buffer;
  const int length = toBuffer(cursor, buffer.text.get());
  Require(static_cast<std::size_t>(length) == std::strlen(buffer.text.get()),
          "the length is that of the text");
  std::string whole;
  Require(static_cast<std::size_t>(toString(other, whole)) == whole.size(), "the same of the string");
  Require(other == cursor, "both forms take the same");
  Require(whole.substr(0, 255) == buffer.text.get(), "both forms store the same");
}

using ToBuffer = int (*)(char*&, char*);
using ToString = int (*)(char*&, std::string&);

void TakeTurn(unsigned turn, char*& cursor) {
  short r, g, b;
  switch (turn % 11) {
    case 0:
      return CheckLong(cursor);
    case 1:
      return CheckDouble(cursor);
    case 2:
      return CheckAngle(cursor);
    case 3:
      return CheckField(cursor, static_cast<ToBuffer>(GetString1), static_cast<ToString>(GetString1));
    case 4:
      return CheckField(cursor, static_cast<ToBuffer>(GetString2), static_cast<ToString>(GetString2));
    case 5:
      return CheckField(cursor, static_cast<ToBuffer>(GetString3), static_cast<ToString>(GetString3));
    case 6:
      return CheckField(cursor, static_cast<ToBuffer>(GetStringLwr), static_cast<ToString>(GetStringLwr));
    case 7: {
      const char delimiter = *cursor;
      return CheckField(
          cursor, [=](char*& at, char* out) { return CopyClippedByChar(delimiter, at, out); },
          [=](char*& at, std::string& out) { return CopyClippedByChar(delimiter, at, out); });
    }
    case 8:
      GetSign(cursor);
      return;
    case 9:
      RemoveTrail(cursor);
      return;
    default:
      GetRGB(cursor, r, g, b);
      if (*cursor != '\0') ++cursor;
  }
}

void WalkLine(const std::uint8_t* data, std::size_t size) {
  const std::unique_ptr<char[]> line(new char[size + 1]);
  std::memcpy(line.get(), data, size);
  line[size] = '\0';
  const char* const end = line.get() + std::strlen(line.get());
  char* cursor = line.get();
  unsigned turn = size != 0 ? data[0] : 0;
  for (std::size_t steps = 0; steps < 2 * size + 22; ++steps, ++turn) {
    const char* const before = cursor;
    TakeTurn(turn, cursor);
    Require(cursor >= before && cursor <= end, "the cursor goes forward and stays in the line");
  }
}

void WriteValues(const std::uint8_t* data, std::size_t size) {
  unsigned char value[8] = {};
  const std::size_t count = size < sizeof value ? size : sizeof value;
  if (count != 0) std::memcpy(value, data + size - count, count);
  double angle;
  std::memcpy(&angle, value, sizeof angle);
  for (short mode : {short{0}, short{1}}) {
    const std::unique_ptr<char[]> text(new char[32]);
    const short length = SetRadOrDec(angle, mode, text.get());
    Require(static_cast<std::size_t>(length) == std::strlen(text.get()),
            "the length of an angle is that of its text");
    Require(mode == 1 ? length >= 6 : length == 7 || length == 11, "angles have their lengths");
  }
  for (unsigned type = 0; type < 9; ++type) {
    const Buffer buffer;
    MakeCorrectString(buffer.text.get(), type, value);
    std::string whole;
    MakeCorrectString(whole, type, value);
    Require(whole.substr(0, 255) == buffer.text.get(), "both forms write the same value");
  }
}

void Transliterate(const std::string& text) {
  // The input cut in four, wherever its zero bytes are.
  const std::size_t quarter = text.size() / 4;
  const std::string tables[4] = {text.substr(0, quarter), text.substr(quarter, quarter),
                                 text.substr(2 * quarter, quarter), text.substr(3 * quarter)};
  const CommonInterfaces::record_lines::NearTable table(tables[0].c_str(), tables[1].c_str(),
                                                        tables[2].c_str(), tables[3].c_str());
  const std::string converted = table.Convert(text);
  Require(converted.size() >= text.size() && converted.size() <= 2 * text.size(),
          "a byte becomes one or two");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Scratch::Get();  // its check of the diagnostics
  WalkLine(data, size);
  WriteValues(data, size);
  Transliterate(std::string(reinterpret_cast<const char*>(data), size));
  return 0;
}
