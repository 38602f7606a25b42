// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/chart_options.h"

#include <gtest/gtest.h>

#include "scene/view/directions.h"
#include "support/comma_locale.h"

using namespace scene;

TEST(ChartValues, StylesHaveNames) {
  for (const ChartStyle style :
       {ChartStyle::kScreen, ChartStyle::kPrint, ChartStyle::kNight, ChartStyle::kPhoto})
    EXPECT_EQ(ParseChartStyle(FormatChartStyle(style)), style);
  for (const char* bad : {"", "Print", "paper", "print "}) EXPECT_FALSE(ParseChartStyle(bad)) << bad;
}

TEST(ChartValues, SensorsComeBack) {
  const auto sensor = ParseSensor("23.5x15.6@800@-30");
  ASSERT_TRUE(sensor);
  EXPECT_EQ(*sensor, (Sensor{23.5, 15.6, 800.0, -30.0}));
  EXPECT_EQ(ParseSensor("36x24@50"), (Sensor{36.0, 24.0, 50.0, 0.0}));
  EXPECT_EQ(ParseSensor(FormatSensor(*sensor)), sensor);
  for (const char* bad : {"", "36x24", "36x24@", "36@50", "0x24@50", "36x24@0", "36x24@50@", "36x24@50@400",
                          "36x24@50@1@2", "36x24@50 ", "-36x24@50", "36x24@1e9", "nanx24@50", "36,5x24@50"})
    EXPECT_FALSE(ParseSensor(bad)) << bad;
}

// 210 mm are 595.28 points; 190 x 277 mm at 150 pixels to the inch are 1122 x 1636.
TEST(ChartValues, PagesAreSheetsOfPaper) {
  const auto page = ParsePage("A4");
  ASSERT_TRUE(page);
  EXPECT_NEAR(page->width, 595.276, 0.001);
  EXPECT_NEAR(page->height, 841.890, 0.001);
  EXPECT_EQ(page->GetSize().width, 1122);
  EXPECT_EQ(page->GetSize().height, 1636);
  const auto wide = ParsePage("letter,landscape");
  ASSERT_TRUE(wide);
  EXPECT_NEAR(wide->width, 792.0, 1e-9);
  EXPECT_NEAR(wide->height, 612.0, 1e-9);
  EXPECT_EQ(ParsePage("A4,portrait"), page);
  EXPECT_EQ(ParsePage(FormatPage(*wide)), wide);
  for (const char* bad : {"", "a4", "A9", "A4,", "A4,sideways", "A4landscape", ",landscape"})
    EXPECT_FALSE(ParsePage(bad)) << bad;
}

TEST(ChartValues, NumbersHaveTheirRanges) {
  EXPECT_EQ(ParseEyepiece("1.2"), 1.2);
  EXPECT_EQ(ParseBortle("9"), 9);
  EXPECT_EQ(ParseLimitMagnitude("5.5"), 5.5);
  EXPECT_EQ(ParseLandscapeChoice("none"), kNoLandscape);
  EXPECT_EQ(ParseLandscapeChoice("2"), 2);
  for (const char* bad : {"", "0", "121", "1.2d", "nan", "inf", "1e400"})
    EXPECT_FALSE(ParseEyepiece(bad)) << bad;
  for (const char* bad : {"", "0", "10", "4.5", "-1"}) EXPECT_FALSE(ParseBortle(bad)) << bad;
  for (const char* bad : {"", "-0.1", "6.6", "x"}) EXPECT_FALSE(ParseLimitMagnitude(bad)) << bad;
  for (const char* bad : {"", "-1", "65536", "hills"}) EXPECT_FALSE(ParseLandscapeChoice(bad)) << bad;
  for (const char* bad : {"", "yes", "On"}) EXPECT_FALSE(ParseSwitch(bad)) << bad;
}

TEST(ChartValues, PointsAreDecimalMarksInEveryLocale) {
  const test_support::CommaLocale locale;
  EXPECT_EQ(ParseEyepiece("1.2"), 1.2);
  EXPECT_EQ(ParseSensor("23.5x15.6@800"), (Sensor{23.5, 15.6, 800.0, 0.0}));
}

// 23.5 mm behind 200 mm are 2 atan(0.05875) = 6.725 degrees.
TEST(ChartOptions, FindersComeWidestFirst) {
  ChartOptions chart;
  chart.eyepieces = {1.2, 3.0};
  chart.telrad = true;
  chart.sensors = {{23.5, 15.6, 200.0, 90.0}};
  const auto finders = chart.MakeFinders();
  ASSERT_EQ(finders.size(), 6u);
  EXPECT_EQ(finders[0].diameter, 0.0);
  EXPECT_NEAR(finders[0].width, 0.1175, 1e-12);
  EXPECT_NEAR(finders[0].angle, kPi / 2.0, 1e-12);
  EXPECT_EQ(finders[0].label, "6.725\u00b0 \u00d7 4.467\u00b0");
  const std::pair<double, const char*> circles[] = {
      {4.0, "4\u00b0"}, {3.0, "3\u00b0"}, {2.0, "2\u00b0"}, {1.2, "1.2\u00b0"}, {0.5, "0.5\u00b0"}};
  for (std::size_t i = 0; i < std::size(circles); ++i) {
    EXPECT_NEAR(finders[i + 1].diameter, circles[i].first * kRadiansPerDegree, 1e-12);
    EXPECT_EQ(finders[i + 1].label, circles[i].second);
  }
}

TEST(ChartOptions, LegendIsOnInPrintUnlessItIsSwitchedOff) {
  ChartOptions chart;
  EXPECT_FALSE(chart.HasLegend());
  chart.style = ChartStyle::kPrint;
  EXPECT_TRUE(chart.HasLegend());
  chart.legend = false;
  EXPECT_FALSE(chart.HasLegend());
}

TEST(ChartOptions, SkyQualityIsDarkness) {
  ChartOptions chart;
  EXPECT_EQ(chart.GetDarkness(), 21.8) << "a place in the country";
  chart.bortle = 9;
  EXPECT_LT(chart.GetDarkness(), 17.8);
  chart.bortle.reset();
  chart.limitMagnitude = 5.0;
  EXPECT_NEAR(chart.GetDarkness(), 19.0, 0.5) << "the sky of a suburb";
}

TEST(ChartOptions, LinesOfASessionComeBack) {
  ChartOptions chart;
  chart.style = ChartStyle::kNight;
  chart.landscape = kNoLandscape;
  chart.legend = true;
  chart.eyepieces = {1.0 / 3.0, 2.0};
  chart.telrad = true;
  chart.sensors = {{23.5, 15.6, 800.0, 12.5}};
  chart.page = ParsePage("A3,landscape");
  chart.bortle = 4;
  ChartOptions back;
  std::string text = FormatChart(chart);
  for (std::size_t begin = 0, end; (end = text.find('\n', begin)) != std::string::npos; begin = end + 1) {
    const std::string line = text.substr(begin, end - begin);
    const auto blank = line.find(' ');
    EXPECT_TRUE(ReadChartLine(line.substr(0, blank), line.substr(blank + 1), back)) << line;
  }
  EXPECT_EQ(FormatChart(back), text);
  EXPECT_EQ(back.eyepieces, chart.eyepieces) << "to the last bit";
}

TEST(ChartOptions, DamagedLinesAreRefused) {
  ChartOptions chart;
  const std::pair<const char*, const char*> bad[] = {
      {"style", "paper"}, {"telrad", "off"}, {"eyepiece", "0"}, {"page", "A4,"}, {"nothing", "on"}};
  for (const auto& [word, value] : bad) EXPECT_FALSE(ReadChartLine(word, value, chart)) << word;
  EXPECT_TRUE(ReadChartLine("style", "print", chart));
  EXPECT_FALSE(ReadChartLine("style", "print", chart)) << "twice";
  EXPECT_TRUE(ReadChartLine("telrad", "on", chart));
  EXPECT_FALSE(ReadChartLine("telrad", "on", chart));
}

TEST(ChartOptions, CommandLineComesBeforeTheSession) {
  ChartOptions session, chart;
  session.style = ChartStyle::kPrint;
  session.eyepieces = {1.0};
  session.bortle = 4;
  session.page = ParsePage("A4");
  chart.style = ChartStyle::kNight;
  chart.limitMagnitude = 5.0;
  TakeOver(session, chart);
  EXPECT_EQ(chart.style, ChartStyle::kNight);
  EXPECT_EQ(chart.eyepieces, session.eyepieces);
  EXPECT_EQ(chart.page, session.page);
  EXPECT_FALSE(chart.bortle) << "the limit says it";
  ChartOptions telrad;
  telrad.telrad = true;
  TakeOver(session, telrad);
  EXPECT_TRUE(telrad.eyepieces.empty()) << "other fields were asked for";
}
