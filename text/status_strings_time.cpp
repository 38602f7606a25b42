// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstdlib>

#include "astro/julian_date.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/date.h"
#include "common_interfaces/status_strings.h"
#include "common_interfaces/text_formats.h"
#include "text/format_render.h"
#include "text/status_strings_text.h"
#include "text/text_ids.h"

namespace CommonInterfaces {
namespace {

constexpr double kNoDay = -1.0;  // of a daylight-saving rule

bool IsKnownKind(int kind) { return kind == kLocalTime || kind == kUniversalTime || kind == kThirdTime; }

std::string GetCaption(int kind) {
  return IsKnownKind(kind) ? GetTableText(TextIds::kTimeCaption + static_cast<unsigned>(kind)) : "";
}

// The moment that a clock of the camera's time kind shows; `day` is the civil day's.
struct ShownMoment {
  CalendarDate date;
  int day = 0;
};

ShownMoment GetShownMoment(const Camera& camera, _Date time) {
  if (time.type == kLocalTime) {
    time.fraction += camera.GetLocUTCdelta();
    Adjust_JD(time.day, time.fraction);
  }
  ShownMoment moment;
  moment.day = time.day;
  JD(time.day, time.fraction, moment.date);
  return moment;
}

bool IsDaylightSaving(const DaylightSavingsData& rule, int day) {
  if (!rule.IsDST || rule.FirstDay == kNoDay || rule.LastDay == kNoDay) return false;
  return day >= rule.FirstDay && day <= rule.LastDay;
}

std::string GetClock(Camera& camera, const _Date& time) {
  const ShownMoment moment = GetShownMoment(camera, time);
  std::string text = RenderFormat(" %02d:%02d", {moment.date.hour, moment.date.minute});
  if (time.type == kLocalTime && IsDaylightSaving(*camera.GetDST(), moment.day)) {
    if (const char* const mark = FindOptionalText(TextIds::kDaylightSaving)) text += std::string(" ") + mark;
  }
  return text;
}

// Not shifted by one before year 0: year -43, which is 44 BC, shows as 0043. Users know the dates of their
// observations by these texts.
std::string GetDay(const Camera& camera, const _Date& time) {
  const CalendarDate date = GetShownMoment(camera, time).date;
  const std::string era = GetTableText(date.year >= 0 ? TextIds::kEra : TextIds::kEraBefore);
  return RenderFormat("%02d/%02d/%04d %s", {date.day, date.month, std::abs(date.year), era.c_str()});
}

}  // namespace

std::string GetTimeString(Camera* camera, std::string& caption) {
  caption.clear();
  if (camera == nullptr) return "";
  _Date time;
  camera->GetUniversalTime(time);
  caption = GetCaption(time.type);
  return time.type == kLocalTime || time.type == kUniversalTime ? GetClock(*camera, time) : "";
}

std::string GetDateString(Camera* camera, std::string& caption) {
  caption.clear();
  if (camera == nullptr) return "";
  _Date time;
  camera->GetUniversalTime(time);
  caption = GetCaption(time.type);
  if (time.type == kThirdTime) return FormatLocalizedText(TextIds::kThirdTimeDate, {});
  return IsKnownKind(time.type) ? GetDay(*camera, time) : "";
}

std::string GetTimeString(Camera* camera) {
  std::string caption;
  return GetTimeString(camera, caption);
}

std::string GetDateString(Camera* camera) {
  std::string caption;
  return GetDateString(camera, caption);
}

void GetTimeString(Camera* camera, char* text, char* caption) {
  if (text == nullptr) return;
  std::string captionText;
  CopyStatusText(GetTimeString(camera, captionText), text);
  CopyStatusText(captionText, caption);
}

void GetDateString(Camera* camera, char* text, char* caption) {
  if (text == nullptr) return;
  std::string captionText;
  CopyStatusText(GetDateString(camera, captionText), text);
  CopyStatusText(captionText, caption);
}

}  // namespace CommonInterfaces
