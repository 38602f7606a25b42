// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/dates_format.h"

#include "text/bounded_copy.h"
#include "text/format_render.h"

namespace CommonInterfaces {

std::string FormatShortDate(int dateFormat, const short* date) {
  if (!date) return "";
  const int day = date[0], month = date[1], year = date[2];
  switch (dateFormat) {
    case 0:
      return RenderFormat("%02d/%02d/%04d", {month, day, year});
    case 1:
      return RenderFormat("%02d/%02d/%04d", {day, month, year});
    case 2:
      return RenderFormat("%04d/%02d/%02d", {year, month, day});
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
      return RenderFormat("%02d/%02d", {month, day});
    case 1:
      return RenderFormat("%02d/%02d", {day, month});
    default:
      return "";
  }
}

bool CopyToBuffer(char* out, const std::string& text) {
  if (!out || text.empty()) return false;
  CopyBounded(text, out);
  return true;
}

}  // namespace CommonInterfaces
