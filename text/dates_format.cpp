// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/dates_format.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace CommonInterfaces {

namespace {

constexpr int kBufferSize = 256;  // what callers are told to provide

}  // namespace

std::string FormatDate(const char* format, ...) {
  char text[kBufferSize];  // long enough but for a month's name of that size
  std::va_list arguments;
  va_start(arguments, format);
  std::va_list again;
  va_copy(again, arguments);
  const int length = std::vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  std::string result(text, static_cast<std::size_t>(std::clamp(length, 0, kBufferSize - 1)));
  if (length >= kBufferSize) {
    result.resize(static_cast<std::size_t>(length));
    // One byte more than the text: the terminating zero goes where a string keeps its own.
    std::vsnprintf(result.data(), result.size() + 1, format, again);
  }
  va_end(again);
  return result;
}

std::string FormatShortDate(int dateFormat, const short* date) {
  if (!date) return "";
  const int day = date[0], month = date[1], year = date[2];
  switch (dateFormat) {
    case 0:
      return FormatDate("%02d/%02d/%04d", month, day, year);
    case 1:
      return FormatDate("%02d/%02d/%04d", day, month, year);
    case 2:
      return FormatDate("%04d/%02d/%02d", year, month, day);
    default:
      return "";
  }
}

std::string FormatDayMonth(int dateFormat, const short* date) {
  if (!date) return "";
  const int day = date[0], month = date[1];
  switch (dateFormat) {
    case 0:
    case 2:  // deliberately as 0, though the format itself only says where the year stands
      return FormatDate("%02d/%02d", month, day);
    case 1:
      return FormatDate("%02d/%02d", day, month);
    default:
      return "";
  }
}

bool CopyToBuffer(char* out, const std::string& text) {
  if (!out || text.empty()) return false;
  out[text.copy(out, kBufferSize - 1)] = '\0';
  return true;
}

}  // namespace CommonInterfaces
