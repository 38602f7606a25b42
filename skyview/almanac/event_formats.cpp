// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/almanac/event_formats.h"

#include <cmath>
#include <cstdlib>

#include "astro/julian_date.h"
#include "scene/words/event_kinds.h"
#include "scene/words/event_title.h"
#include "skyview/almanac/text_table.h"
#include "utils/json.h"
#include "utils/messages.h"

namespace skyview {
namespace {

constexpr double kSecondsPerDay = 86400.0, kMinutesPerDay = 1440.0;

// "2027-03-20T21:24:41", rounded to the second, of a moment and the offset of its clocks.
std::string FormatSecond(const scene::SkyMoment& moment, double offset) {
  CalendarDate date;
  JD(moment.day, std::round((moment.fraction + offset) * kSecondsPerDay) / kSecondsPerDay, date);
  return FormatText("%s%04d-%02d-%02dT%02d:%02d:%02.0f", date.year < 0 ? "-" : "", std::abs(date.year),
                    date.month, date.day, date.hour, date.minute, date.second);
}

scene::SkyMoment GetBegin(const astro::SkyEvent& event) {
  return scene::Later(event.moment, -event.sinceBegin);
}
scene::SkyMoment GetEnd(const astro::SkyEvent& event) { return scene::Later(event.moment, event.untilEnd); }

bool Lasts(const astro::SkyEvent& event) { return event.sinceBegin > 0.0 || event.untilEnd > 0.0; }

std::string FormatValue(const astro::SkyEvent& event) {
  const std::string unit = scene::GetUnitOfKind(event.kind);
  return FormatText("%.6g", unit == "deg" ? event.value / scene::kRadiansPerDegree : event.value);
}

std::string QuoteCsv(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    quoted += c;
    if (c == '"') quoted += c;
  }
  return quoted + "\"";
}

std::string FormatCsvRecord(const std::vector<std::string>& fields) {
  std::string record;
  for (const auto& field : fields) record += (record.empty() ? "" : ",") + QuoteCsv(field);
  return record + "\r\n";
}

std::vector<std::pair<std::string, std::string>> ListFields(const astro::SkyEvent& event,
                                                            const EventWriting& writing) {
  const auto& [catalogs, showers, clock, place] = writing;
  return {{"kind", scene::GetKindName(event.kind)},
          {"time", FormatStamp(event.moment, clock)},
          {"begin", Lasts(event) ? FormatStamp(GetBegin(event), clock) : ""},
          {"end", Lasts(event) ? FormatStamp(GetEnd(event), clock) : ""},
          {"body", scene::GetEventBody(event.body, catalogs, showers)},
          {"other", scene::GetEventBody(event.other, catalogs, showers)},
          {"value", FormatValue(event)},
          {"unit", scene::GetUnitOfKind(event.kind)},
          {"title", scene::GetEventTitle(event, catalogs, showers)}};
}

}  // namespace

std::string FormatStamp(const scene::SkyMoment& moment, const LocalClock& clock) {
  // Mean times of places have offsets with seconds, which no stamp can say.
  const double offset = std::round(clock.GetOffset(moment) * kMinutesPerDay) / kMinutesPerDay;
  return FormatSecond(moment, offset) + FormatOffset(offset);
}

std::string FormatUniversalStamp(const scene::SkyMoment& moment) {
  std::string stamp;
  for (const char c : FormatSecond(moment, 0.0)) {
    if (c != '-' && c != ':') stamp += c;
  }
  return stamp + "Z";
}

std::string FormatEventTable(const std::vector<astro::SkyEvent>& events, const EventWriting& writing) {
  std::string text;
  for (const auto& event : events) {
    const std::string stamp = writing.clock.FormatMoment(event.moment);
    text += stamp + " " + writing.clock.FormatOffset(event.moment) + "  " +
            scene::GetEventTitle(event, writing.catalogs, writing.showers) + "\n";
  }
  return text;
}

std::string FormatEventCsv(const std::vector<astro::SkyEvent>& events, const EventWriting& writing) {
  std::string text =
      FormatCsvRecord({"kind", "time", "begin", "end", "body", "other", "value", "unit", "title"});
  for (const auto& event : events) {
    std::vector<std::string> fields;
    for (const auto& field : ListFields(event, writing)) fields.push_back(field.second);
    text += FormatCsvRecord(fields);
  }
  return text;
}

std::string FormatEventAsJson(const astro::SkyEvent& event, const scene::SkyCatalogs& catalogs,
                              const std::vector<scene::Shower>& showers, const LocalClock& clock) {
  auto fields = ListFields(event, {catalogs, showers, clock, {}});
  for (auto& [name, value] : fields) {
    if (name != "value") value = value.empty() ? "null" : JsonString(value);
  }
  return JsonObject(fields);
}

std::string FormatEventJson(const std::vector<astro::SkyEvent>& events, const EventWriting& writing) {
  std::vector<std::string> elements;
  for (const auto& event : events)
    elements.push_back(FormatEventAsJson(event, writing.catalogs, writing.showers, writing.clock));
  return JsonArray(elements);
}

std::string DescribeKinds() {
  constexpr int kWidth = 100, kIndent = 16;
  std::string text =
      "Groups of kinds, and the kinds in them; without --kind all but those of every day (*):\n";
  for (const auto& group : scene::ListKindGroups())
    text += WrapList(group + (scene::IsDailyGroup(group) ? " *:" : ":"), scene::ListKinds(group), kWidth,
                     kIndent);
  return text;
}

}  // namespace skyview
