// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/zones/zone_rule.h"

#include <string>

#include <gtest/gtest.h>

#include "companions/utils/zones/zone_calendar.h"

namespace {

using namespace utils_internal;

constexpr int kHour = 3600;

long long Moment(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return DayFromDate(year, month, day) * kSecondsPerDay + hour * kHour + minute * 60 + second;
}

ZoneRule Rule(const char* text) {
  const auto rule = ZoneRule::Parse(text);
  EXPECT_TRUE(rule) << text;
  return rule.value_or(ZoneRule());
}

// Daylight time runs from `start` on and ends at `end`, both in Universal Time.
void ExpectDaylight(const ZoneRule& rule, long long start, long long end) {
  EXPECT_EQ(rule.GetOffset(start - 1), rule.standardOffset);
  EXPECT_EQ(rule.GetOffset(start), rule.daylightOffset);
  EXPECT_EQ(rule.GetOffset(end - 1), rule.daylightOffset);
  EXPECT_EQ(rule.GetOffset(end), rule.standardOffset);
}

TEST(ZoneRuleParse, ZoneWithoutDaylightTime) {
  EXPECT_EQ(Rule("IST-5:30").GetOffset(Moment(2050, 7, 1)), 5 * kHour + 1800);
  EXPECT_EQ(Rule("EST5").GetOffset(0), -5 * kHour);
  EXPECT_EQ(Rule("UTC0").GetOffset(0), 0);
  EXPECT_EQ(Rule("LMT+0:53:28").GetOffset(0), -3208);
}

TEST(ZoneRuleParse, QuotedNames) {
  EXPECT_EQ(Rule("<+03>-3").GetOffset(0), 3 * kHour);
  EXPECT_EQ(Rule("<-0330>3:30").GetOffset(0), -(3 * kHour + 1800));
  const ZoneRule rule = Rule("<+1030>-10:30<+11>-11,M10.1.0,M4.1.0");
  EXPECT_EQ(rule.standardOffset, 37800);
  EXPECT_EQ(rule.daylightOffset, 39600);
}

TEST(ZoneRuleParse, DaylightTimeIsAnHourAheadUnlessSaid) {
  EXPECT_EQ(Rule("EST5EDT,M3.2.0,M11.1.0").daylightOffset, -4 * kHour);
  EXPECT_EQ(Rule("IST-1GMT0,M10.5.0,M3.5.0/1").daylightOffset, 0);  // winter time as the exception
}

TEST(ZoneRuleParse, TextsThatAreNoRuleAreRefused) {
  for (const char* text : {"",
                           "CET",
                           "CE-1",
                           "-1",
                           "CET-",
                           "CET-25",
                           "CET-1:60",
                           "CET-1:",
                           "CET-1:00:60",
                           "CET-1 ",
                           "<+03-3",
                           "<+3>-3",
                           "C3T-1",
                           "CET-1CEST",
                           "CET-1CEST,",
                           "CET-1CEST,M3.5.0",
                           "CET-1CEST,M3.5.0,",
                           "CET-1CEST,M3.5.0,M10.5.0,",
                           "CET-1CEST,M3.5.0,M10.5.0/",
                           "CET-1CEST,M0.5.0,M10.5.0",
                           "CET-1CEST,M13.5.0,M10.5.0",
                           "CET-1CEST,M3.0.0,M10.5.0",
                           "CET-1CEST,M3.6.0,M10.5.0",
                           "CET-1CEST,M3.5.7,M10.5.0",
                           "CET-1CEST,M3.5,M10.5.0",
                           "CET-1CEST,J0,M10.5.0",
                           "CET-1CEST,J366,M10.5.0",
                           "CET-1CEST,366,M10.5.0",
                           "CET-1CEST,-1,M10.5.0",
                           "CET-1CEST,M3.5.0/168,M10.5.0",
                           "CET-1CEST,M3.5.0/0001,M10.5.0",
                           "CET-1CEST,M3.5.0/--1,M10.5.0",
                           "CET-1CE,M3.5.0,M10.5.0",
                           "CET-1CEST;M3.5.0;M10.5.0",
                           "CET-99999999999999999999"}) {
    EXPECT_FALSE(ZoneRule::Parse(text)) << text;
  }
}

TEST(ZoneRuleParse, TextCutAnywhereIsRefusedOrAnotherRule) {
  const std::string text = "<-02>2<-01>,M3.5.0/-1,M10.5.0/0";
  EXPECT_TRUE(ZoneRule::Parse(text));
  for (std::size_t length = 0; length < text.size(); ++length) {
    const auto cut = ZoneRule::Parse(std::string_view(text).substr(0, length));
    // Complete are "<-02>2" and the ends after the second date's day and after its time.
    EXPECT_EQ(cut.has_value(), length == 6 || length == 29) << text.substr(0, length);
  }
}

// Central European Time: the last Sundays of March and October at 01:00 UT (directive 2000/84/EC). In 2050
// these are the 27th and the 30th.
TEST(ZoneRuleOffset, LastSundayOfAMonth) {
  ExpectDaylight(Rule("CET-1CEST,M3.5.0,M10.5.0/3"), Moment(2050, 3, 27, 1), Moment(2050, 10, 30, 1));
}

// Energy Policy Act of 2005: from the second Sunday of March to the first of November, at 02:00 local time.
// In 2007 these were 11 March and 4 November.
TEST(ZoneRuleOffset, SecondAndFirstSunday) {
  ExpectDaylight(Rule("EST5EDT,M3.2.0,M11.1.0"), Moment(2007, 3, 11, 7), Moment(2007, 11, 4, 6));
}

TEST(ZoneRuleOffset, SouthOfTheEquatorDaylightTimeRunsOverNewYear) {
  const ZoneRule rule = Rule("AEST-10AEDT,M10.1.0,M4.1.0/3");
  ExpectDaylight(rule, Moment(2023, 9, 30, 16), Moment(2024, 4, 6, 16));  // 1 October and 7 April, local
  EXPECT_EQ(rule.GetOffset(Moment(2023, 12, 31, 23, 59, 59)), 11 * kHour);
  EXPECT_EQ(rule.GetOffset(Moment(2024, 1, 1)), 11 * kHour);
}

TEST(ZoneRuleOffset, HalfHourOfDaylightTime) {
  ExpectDaylight(Rule("<+1030>-10:30<+11>-11,M10.1.0,M4.1.0"), Moment(2023, 9, 30, 15, 30),
                 Moment(2024, 4, 6, 15));
}

TEST(ZoneRuleOffset, NegativeTimeLiesOnTheDayBefore) {
  // 23:00 on Saturday, 30 March 2024, at two hours west: 01:00 UT on Sunday.
  ExpectDaylight(Rule("<-02>2<-01>,M3.5.0/-1,M10.5.0/0"), Moment(2024, 3, 31, 1), Moment(2024, 10, 27, 1));
}

TEST(ZoneRuleOffset, TimeBeyondADayLiesOnALaterDay) {
  // Israel: the Friday before the last Sunday of March at 02:00, written as Thursday of the fourth week at
  // 26:00.
  ExpectDaylight(Rule("IST-2IDT,M3.4.4/26,M10.5.0"), Moment(2024, 3, 29, 0), Moment(2024, 10, 26, 23));
  // 167 hours after the midnight that begins 1 January: 7 January, 23:00.
  ExpectDaylight(Rule("AAA0BBB,0/167,M12.1.0"), Moment(2024, 1, 7, 23), Moment(2024, 12, 1, 1));
}

TEST(ZoneRuleOffset, DayNumbersWithAndWithoutLeapDay) {
  // Day 60 without leap days is 1 March in every year; the day with index 59 is 29 February in a leap year.
  const ZoneRule julian = Rule("AAA0BBB,J60/0,J300/0");
  ExpectDaylight(julian, Moment(2023, 3, 1), Moment(2023, 10, 26, 23));
  ExpectDaylight(julian, Moment(2024, 3, 1), Moment(2024, 10, 26, 23));
  const ZoneRule index = Rule("AAA0BBB,59/0,300/0");
  ExpectDaylight(index, Moment(2023, 3, 1), Moment(2023, 10, 27, 23));
  ExpectDaylight(index, Moment(2024, 2, 29), Moment(2024, 10, 26, 23));
}

TEST(ZoneRuleOffset, DayBefore29FebruaryIsTheSameInBothCounts) {
  ExpectDaylight(Rule("AAA0BBB,J59/0,J300/0"), Moment(2024, 2, 28), Moment(2024, 10, 26, 23));
  ExpectDaylight(Rule("AAA0BBB,58/0,J300/0"), Moment(2024, 2, 28), Moment(2024, 10, 26, 23));
}

// RFC 8536, section 3.3.1, gives this form for daylight time all the year.
TEST(ZoneRuleOffset, DaylightTimeAllTheYear) {
  const ZoneRule rule = Rule("XXX3EDT4,0/0,J365/23");
  for (int year : {2023, 2024, 2100}) {
    for (int month = 1; month <= 12; ++month) EXPECT_EQ(rule.GetOffset(Moment(year, month, 1)), -4 * kHour);
    for (int hour = 0; hour < 24; ++hour) {
      EXPECT_EQ(rule.GetOffset(Moment(year, 12, 31, hour)), -4 * kHour);
      EXPECT_EQ(rule.GetOffset(Moment(year, 1, 1, hour)), -4 * kHour);
    }
  }
}

TEST(ZoneRuleOffset, StartAndEndAtOneMomentIsNoDaylightTime) {
  const ZoneRule rule = Rule("AAA0BBB,J100/1,J100/2");
  EXPECT_EQ(rule.GetOffset(Moment(2024, 4, 10, 0, 59, 59)), 0);
  EXPECT_EQ(rule.GetOffset(Moment(2024, 4, 10, 1)), 0);
}

TEST(ZoneRuleOffset, MomentsFarAwayFollowTheRule) {
  const ZoneRule rule = Rule("CET-1CEST,M3.5.0,M10.5.0/3");
  // The Gregorian calendar repeats after 400 years: 2,000,000 years on, the dates are those of 2000.
  ExpectDaylight(rule, Moment(2002000, 3, 26, 1), Moment(2002000, 10, 29, 1));
  for (long long time : {-1000000000000000LL, 1000000000000000LL}) {
    const int offset = rule.GetOffset(time);
    EXPECT_TRUE(offset == kHour || offset == 2 * kHour);
  }
}

}  // namespace
