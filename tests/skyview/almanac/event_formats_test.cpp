// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/almanac/event_formats.h"

#include <gtest/gtest.h>

#include <cmath>

#include "astro/julian_date.h"
#include "scene/frame_helpers.h"
#include "scene/words/event_kinds.h"

using namespace skyview;
using astro::EventKind;
using astro::SkyEvent;

namespace {

scene::SkyMoment At(int month, int day, int hour, int minute, double second) {
  int number = 0;
  double fraction = 0.0;
  DJ({2027, month, day, hour, minute, second}, number, fraction);
  return scene::MakeMoment(number, fraction);
}

SkyEvent Make(EventKind kind, const scene::SkyMoment& moment, double value = 0.0) {
  SkyEvent event;
  event.kind = kind;
  event.moment = moment;
  event.body = astro::kMoon;
  event.value = value;
  return event;
}

class EventFormats : public testing::Test {
 protected:
  EventFormats()
      : clock(InBerlin(f)), writing{f.catalogs, showers, clock, scene::EarthPlace{0.2, 0.9, 0.0}} {}

  static LocalClock InBerlin(host_test::FrameFixture& fixture) {
    fixture.camera.SetDisplayTimeZoneName("Europe/Berlin");
    return LocalClock(fixture.camera);
  }

  host_test::FrameFixture f;
  std::vector<scene::Shower> showers;
  LocalClock clock;
  EventWriting writing;
  const SkyEvent full = Make(EventKind::kFullMoon, At(3, 22, 10, 43, 59.7));
  const SkyEvent eclipse = [] {
    SkyEvent event = Make(EventKind::kSolarEclipse, At(8, 2, 10, 6, 36.0), 1.0788);
    event.detail = 2;
    event.sinceBegin = 2.0 / 24.0;
    event.untilEnd = 3.0 / 24.0;
    return event;
  }();
};

// Undoes the folding of lines, as a reader of calendars does; every line ends in CR LF and is short enough.
std::vector<std::string> Unfold(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find("\r\n", at);
    if (end == std::string::npos) {
      ADD_FAILURE() << "a line without end";
      break;
    }
    EXPECT_LE(end - at, 75u);
    const std::string line = text.substr(at, end - at);
    EXPECT_EQ(line.find('\n'), std::string::npos);
    if (line.starts_with(' ')) {
      lines.back() += line.substr(1);
    } else {
      lines.push_back(line);
    }
    at = end + 2;
  }
  return lines;
}

using Lines = std::vector<std::string>;

}  // namespace

TEST_F(EventFormats, TableHasLocalTimesWithTheirOffset) {
  EXPECT_EQ(FormatEventTable({full, eclipse}, writing),
            "2027-03-22 11:44 +01:00  Full Moon\n"
            "2027-08-02 12:07 +02:00  Solar eclipse, total, magnitude 1.079\n");
}

TEST_F(EventFormats, CsvIsQuotedAndEndsItsRecords) {
  EXPECT_EQ(FormatEventCsv({eclipse}, writing),
            "\"kind\",\"time\",\"begin\",\"end\",\"body\",\"other\",\"value\",\"unit\",\"title\"\r\n"
            "\"solar-eclipse\",\"2027-08-02T12:06:36+02:00\",\"2027-08-02T10:06:36+02:00\","
            "\"2027-08-02T15:06:36+02:00\",\"Moon\",\"\",\"1.0788\",\"\","
            "\"Solar eclipse, total, magnitude 1.079\"\r\n");
}

TEST_F(EventFormats, JsonHasNullsWhereThereIsNothing) {
  EXPECT_EQ(FormatEventJson({full}, writing),
            "[\n {\"kind\": \"full-moon\", \"time\": \"2027-03-22T11:44:00+01:00\", \"begin\": null, "
            "\"end\": null, \"body\": \"Moon\", \"other\": null, \"value\": 0, \"unit\": \"deg\", "
            "\"title\": \"Full Moon\"}\n]\n");
  EXPECT_EQ(FormatEventJson({}, writing), "[]\n");
}

TEST_F(EventFormats, AnglesAreDegreesInFiles) {
  const SkyEvent set = Make(EventKind::kSet, At(3, 1, 17, 0, 0.0), 1.5 * scene::kPi);
  EXPECT_NE(FormatEventJson({set}, writing).find("\"value\": 270, \"unit\": \"deg\""), std::string::npos);
}

TEST_F(EventFormats, CalendarHasAComponentForEachEvent) {
  EXPECT_EQ(Unfold(FormatEventCalendar({full, eclipse}, writing)),
            (Lines{"BEGIN:VCALENDAR",
                   "VERSION:2.0",
                   "PRODID:-//common_interfaces//skyview//EN",
                   "CALSCALE:GREGORIAN",
                   "BEGIN:VEVENT",
                   "UID:full-moon-moon301-20270322T10@skyview",
                   "DTSTAMP:20270322T104400Z",
                   "DTSTART:20270322T104400Z",
                   "SUMMARY:Full Moon",
                   "CATEGORIES:full-moon",
                   "TRANSP:TRANSPARENT",
                   "END:VEVENT",
                   "BEGIN:VEVENT",
                   "UID:solar-eclipse-moon301-20270802T10@skyview",
                   "DTSTAMP:20270802T080636Z",
                   "DTSTART:20270802T080636Z",
                   "DTEND:20270802T130636Z",
                   "SUMMARY:Solar eclipse\\, total\\, magnitude 1.079",
                   "CATEGORIES:solar-eclipse",
                   "TRANSP:TRANSPARENT",
                   "END:VEVENT",
                   "END:VCALENDAR"}));
}

TEST_F(EventFormats, IdentifierKeepsThroughSecondsAndTellsPlacesApart) {
  SkyEvent later = full;
  later.moment = scene::Later(full.moment, 5.0 / 86400.0);
  const auto identifier = [this](const SkyEvent& event) {
    return Unfold(FormatEventCalendar({event}, writing))[5];
  };
  EXPECT_EQ(identifier(full), identifier(later));
  const SkyEvent set = Make(EventKind::kSet, full.moment);
  const std::string here = identifier(set);
  EXPECT_EQ(here, "UID:set-moon301-20270322T10+51.57+11.46@skyview");
  writing.place->lat = -0.5;
  EXPECT_NE(identifier(set), here);
  EXPECT_EQ(identifier(full), identifier(later));  // the Moon is full everywhere
}

TEST(EventCalendar, LongLinesAreFoldedBetweenCharacters) {
  EXPECT_EQ(FoldCalendarLine("short"), "short\r\n");
  EXPECT_EQ(FoldCalendarLine(std::string(75, 'x')), std::string(75, 'x') + "\r\n");
  EXPECT_EQ(FoldCalendarLine(std::string(76, 'x')), std::string(75, 'x') + "\r\n x\r\n");
  std::string russian = "SUMMARY:";
  for (int i = 0; i < 200; ++i) russian += "Я";
  const std::string folded = FoldCalendarLine(russian);
  EXPECT_EQ(Unfold(folded), Lines{russian});
  for (std::size_t at = folded.find("\r\n "); at != std::string::npos; at = folded.find("\r\n ", at + 1))
    EXPECT_NE(static_cast<unsigned char>(folded[at + 3]) & 0xC0, 0x80);
}

TEST(EventCalendar, TextIsEscaped) {
  EXPECT_EQ(EscapeCalendarText("a,b;c\\d\ne: \"f\""), "a\\,b\\;c\\\\d\\ne: \"f\"");
}

TEST(EventHelp, NamesEveryKind) {
  const std::string help = DescribeKinds();
  for (const auto& name : scene::ListKindNames()) EXPECT_NE(help.find(name), std::string::npos) << name;
}
