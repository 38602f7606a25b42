// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// iCalendar (RFC 5545).
#include <cmath>

#include "scene/words/event_kinds.h"
#include "scene/words/event_title.h"
#include "skyview/almanac/event_formats.h"
#include "utils/messages.h"
#include "utils/utf8.h"

namespace skyview {
namespace {

std::string FormatBody(const SSO_ID& id) {
  if (id.IsEmpty()) return "";
  const unsigned kind = static_cast<unsigned>(id.kind);
  std::string text = "-";
  for (int shift = 24; shift >= 0; shift -= 8) text += static_cast<char>(kind >> shift & 0xFF);
  return text + std::to_string(id.number);
}

// Kind and bodies of the event, its hour, and the place where it is about one. Better tables move an event
// by seconds: its name should not change then.
std::string MakeIdentifier(const astro::SkyEvent& event, const EventWriting& writing) {
  constexpr std::size_t kHour = 11;  // "20270320T20"
  std::string text = std::string(scene::GetKindName(event.kind)) + FormatBody(event.body) +
                     FormatBody(event.other) + "-" + FormatUniversalStamp(event.moment).substr(0, kHour);
  if (writing.place && scene::IsAboutPlace(event.kind)) {
    text += FormatText("%+.2f%+.2f", writing.place->lat / scene::kRadiansPerDegree,
                       writing.place->lon / scene::kRadiansPerDegree);
  }
  return text + "@skyview";
}

std::string FormatComponent(const astro::SkyEvent& event, const EventWriting& writing) {
  const std::string begin = FormatUniversalStamp(scene::Later(event.moment, -event.sinceBegin)),
                    end = FormatUniversalStamp(scene::Later(event.moment, event.untilEnd));
  std::string text = "BEGIN:VEVENT\r\n";
  text += FoldCalendarLine("UID:" + MakeIdentifier(event, writing));
  text += "DTSTAMP:" + begin + "\r\nDTSTART:" + begin + "\r\n";
  if (end != begin) text += "DTEND:" + end + "\r\n";
  text += FoldCalendarLine(
      "SUMMARY:" + EscapeCalendarText(scene::GetEventTitle(event, writing.catalogs, writing.showers)));
  text += FoldCalendarLine(std::string("CATEGORIES:") + scene::GetKindName(event.kind));
  return text + "TRANSP:TRANSPARENT\r\nEND:VEVENT\r\n";
}

}  // namespace

std::string FoldCalendarLine(std::string_view utf8) {
  constexpr std::size_t kMost = 75;
  std::string text;
  std::size_t room = kMost;
  while (utf8.size() > room) {
    std::size_t end = FitUtf8(utf8, room).size();
    if (end == 0) end = room;  // no character is that long
    text.append(utf8.substr(0, end)).append("\r\n ");
    utf8.remove_prefix(end);
    room = kMost - 1;  // the blank counts
  }
  return text.append(utf8).append("\r\n");
}

std::string EscapeCalendarText(std::string_view utf8) {
  std::string text;
  for (const char c : utf8) {
    if (c == '\n') {
      text += "\\n";
      continue;
    }
    if (c == '\\' || c == ';' || c == ',') text += '\\';
    text += c;
  }
  return text;
}

std::string FormatEventCalendar(const std::vector<astro::SkyEvent>& events, const EventWriting& writing) {
  std::string text =
      "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//common_interfaces//skyview//EN\r\nCALSCALE:GREGORIAN\r\n";
  for (const auto& event : events) text += FormatComponent(event, writing);
  return text + "END:VCALENDAR\r\n";
}

}  // namespace skyview
