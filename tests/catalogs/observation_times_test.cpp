// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/observation_times.h"

#include <gtest/gtest.h>

#include <atomic>
#include <limits>
#include <string>
#include <thread>
#include <vector>

#include "catalogs/observation_times_inside.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::_Date;
using CommonInterfaces::ForgetObservationTimesForTests;
using CommonInterfaces::GetObsTimeFromFile;

constexpr char kFile[] = "data/catalogs/comets/best_observation_time.ini";
const SSO_ID kComet(FourCC("comt"), 1);

class ObservationTimes : public testing::Test {
 protected:
  ObservationTimes() { ForgetObservationTimesForTests(); }
  ~ObservationTimes() override { ForgetObservationTimesForTests(); }

  void Write(const std::string& content) {
    roots.dir.Write(kFile, content);
    ForgetObservationTimesForTests();
  }
  // The Julian date of the answer, for any zero of the fraction; -1 when there is none.
  static double Ask(const SSO_ID& object, int year) {
    _Date date;
    return GetObsTimeFromFile(&date, object, year) ? date.day + date.fraction : -1.0;
  }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

// 1986 February 9, 12 h, is JD 2446471.0; comet 1P/Halley passed its perihelion half a day later.
TEST_F(ObservationTimes, ALineIsKindNumberAndDate) {
  Write("comt\t1\t9/2/1986 12\n");
  _Date date;
  date.type = 7;
  ASSERT_TRUE(GetObsTimeFromFile(&date, kComet, 1986));
  EXPECT_EQ(date.day, 2446471);
  EXPECT_EQ(date.fraction, 0.0);
  EXPECT_EQ(date.type, CommonInterfaces::kUniversalTime);
}

// 1997 April 1, 0 h, is JD 2450539.5; the fraction of a civil day begins at -0.5.
TEST_F(ObservationTimes, TheHourHasAFraction) {
  Write("comt\t1\t1/4/1997 18.51\n");
  _Date date;
  ASSERT_TRUE(GetObsTimeFromFile(&date, kComet, 1997));
  EXPECT_EQ(date.day, 2450540);
  EXPECT_NEAR(date.fraction, 18.51 / 24.0 - 0.5, 1e-12);
}

TEST_F(ObservationTimes, HoursOutsideADayCountOn) {
  Write("comt\t1\t1/4/1997 24\ncomt\t2\t1/4/1997 -0.5\ncomt\t3\t31/3/1997 36.5\n");
  EXPECT_EQ(Ask(kComet, 1997), 2450540.5);
  EXPECT_NEAR(Ask({FourCC("comt"), 2}, 1997), 2450539.5 - 0.5 / 24.0, 1e-9);
  EXPECT_NEAR(Ask({FourCC("comt"), 3}, 1997), 2450538.5 + 36.5 / 24.0, 1e-9);
}

TEST_F(ObservationTimes, TheFractionIsThatOfTheCivilDay) {
  Write("comt\t1\t1/4/1997 24\n");
  _Date date;
  ASSERT_TRUE(GetObsTimeFromFile(&date, kComet, 1997));
  EXPECT_EQ(date.day, 2450541);
  EXPECT_EQ(date.fraction, -0.5);
}

TEST_F(ObservationTimes, KindsAreCodesOrNumbers) {
  Write("1668246900\t1\t9/2/1986 12\nastr\t4\t1/4/1997 0\n");  // "comt"
  EXPECT_EQ(Ask(kComet, 1986), 2446471.0);
  EXPECT_EQ(Ask({FourCC("astr"), 4}, 1997), 2450539.5);
  EXPECT_EQ(Ask({FourCC("astr"), 1}, 1997), -1.0);
  EXPECT_EQ(Ask({FourCC("comt"), 4}, 1997), -1.0);
}

// 2024 March 1 is JD 2460370.5 at 0 h, 366 days after 2023 March 1.
TEST_F(ObservationTimes, AYearOfMinus1StandsForEveryYear) {
  Write("comt\t1\t1/3/-1 6\n");
  EXPECT_EQ(Ask(kComet, 2024), 2460370.75);
  EXPECT_EQ(Ask(kComet, 2023), 2460004.75);
}

TEST_F(ObservationTimes, AnEntryForEveryYearGoesBeforeThatOfTheYear) {
  Write("comt\t1\t9/2/1986 12\ncomt\t1\t1/3/-1 6\n");
  EXPECT_EQ(Ask(kComet, 2024), 2460370.75);
  EXPECT_NE(Ask(kComet, 1986), 2446471.0);
}

TEST_F(ObservationTimes, TheLeapDayOfEveryYearCountsOnInCommonYears) {
  Write("comt\t1\t29/2/-1 0\n");
  EXPECT_EQ(Ask(kComet, 2024), 2460369.5);
  EXPECT_EQ(Ask(kComet, 2023), 2460004.5);
}

TEST_F(ObservationTimes, TheEntryOfTheYearAnswers) {
  Write("comt\t1\t1/4/1997 0\ncomt\t1\t9/2/1986 12\ncomt\t1\t1/3/2024 6\n");
  EXPECT_EQ(Ask(kComet, 1986), 2446471.0);
  EXPECT_EQ(Ask(kComet, 1997), 2450539.5);
  EXPECT_EQ(Ask(kComet, 2024), 2460370.75);
}

TEST_F(ObservationTimes, WithoutAnEntryOfTheYearTheNearestEarlierOneAnswers) {
  Write("comt\t1\t1/4/1997 0\ncomt\t1\t9/2/1986 12\ncomt\t1\t1/3/2024 6\n");
  EXPECT_EQ(Ask(kComet, 1987), 2446471.0);
  EXPECT_EQ(Ask(kComet, 1996), 2446471.0);
  EXPECT_EQ(Ask(kComet, 2023), 2450539.5);
  EXPECT_EQ(Ask(kComet, 3000), 2460370.75);
  EXPECT_EQ(Ask(kComet, std::numeric_limits<int>::max()), 2460370.75);
}

TEST_F(ObservationTimes, BeforeTheFirstEntryThereIsNone) {
  Write("comt\t1\t9/2/1986 12\ncomt\t0\t1/4/1980 0\ncomt\t0\t1/4/1986 0\nastr\t1\t1/4/1980 0\n");
  for (const int year : {1985, 0, -1, std::numeric_limits<int>::min()})
    EXPECT_EQ(Ask(kComet, year), -1.0) << year;
}

TEST_F(ObservationTimes, WhatFailsLeavesTheDate) {
  Write("comt\t1\t9/2/1986 12\n");
  _Date date;
  date.day = 5;
  date.fraction = 0.25;
  date.type = 7;
  EXPECT_FALSE(GetObsTimeFromFile(&date, kComet, 1985));
  EXPECT_EQ(date.day, 5);
  EXPECT_EQ(date.fraction, 0.25);
  EXPECT_EQ(date.type, 7);
}

TEST_F(ObservationTimes, OfTwoEntriesOfAYearTheFirstAnswers) {
  Write("comt\t1\t1/4/1997 0\ncomt\t1\t2/4/1997 0\ncomt\t2\t1/3/-1 6\ncomt\t2\t2/3/-1 6\n");
  EXPECT_EQ(Ask(kComet, 1997), 2450539.5);
  EXPECT_EQ(Ask(kComet, 1998), 2450539.5);
  EXPECT_EQ(Ask({FourCC("comt"), 2}, 2024), 2460370.75);
}

TEST_F(ObservationTimes, BadLinesAreSkippedSilently) {
  Write(
      "comt\t1\ncomt\tone\t9/2/1986 12\ncome t\t1\t9/2/1986 12\ncomt\t1\t9/2/1986\ncomt\t1\t9.2.1986 12\n"
      "comt\t1\t9/2 12\ncomt\t1\t\ncomt\t1\t9 /2/1986 12\ncomt\t1\t9/2/1986 noon\ncomt\t1\t9/2/1986 nan\n"
      "comt\t1\t9/2/1986 1e9\ncomt\t1\t9/2/99999999999 12\n\n");
  for (const int year : {1986, 3000}) EXPECT_EQ(Ask(kComet, year), -1.0);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(ObservationTimes, BlanksInTheDateAndFurtherFields) {
  Write("comt\t 1 \t 9/ 2/ 1986   12 h\tmore\n");
  EXPECT_EQ(Ask(kComet, 1986), 2446471.0);
}

TEST_F(ObservationTimes, MarkLineEndsAndEmptyLines) {
  Write(
      "\xEF\xBB\xBF"
      "comt\t1\t9/2/1986 12\r\n\r\ncomt\t2\t1/4/1997 0");
  EXPECT_EQ(Ask(kComet, 1986), 2446471.0);
  EXPECT_EQ(Ask({FourCC("comt"), 2}, 1997), 2450539.5);
}

TEST_F(ObservationTimes, LongLinesAreCut) {
  Write("comt\t1\t9/2/1986 12" + std::string(300, ' ') + "comt\ncomt\t2\t1/4/1997 0\n");
  EXPECT_EQ(Ask(kComet, 1986), 2446471.0);
  EXPECT_EQ(Ask({FourCC("comt"), 2}, 1997), 2450539.5);
}

TEST_F(ObservationTimes, DatesAtTheEndsOfTheRangeOfNumbers) {
  Write("comt\t1\t2147483647/2147483647/2147483647 23.9\ncomt\t2\t-2147483648/-2147483648/-2147483648 0\n");
  _Date date;
  EXPECT_TRUE(GetObsTimeFromFile(&date, kComet, std::numeric_limits<int>::max()));
  EXPECT_TRUE(GetObsTimeFromFile(&date, {FourCC("comt"), 2}, 0));
}

TEST_F(ObservationTimes, MissingAndEmptyFilesAnswerNothing) {
  EXPECT_EQ(Ask(kComet, 1986), -1.0);
  Write("");
  EXPECT_EQ(Ask(kComet, 1986), -1.0);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(ObservationTimes, ANullDateIsRefused) {
  Write("comt\t1\t9/2/1986 12\n");
  EXPECT_FALSE(GetObsTimeFromFile(nullptr, kComet, 1986));
}

TEST_F(ObservationTimes, TheFileIsReadOnce) {
  Write("comt\t1\t9/2/1986 12\n");
  EXPECT_EQ(Ask(kComet, 1986), 2446471.0);
  roots.dir.Write(kFile, "comt\t1\t1/4/1986 0\n");
  EXPECT_EQ(Ask(kComet, 1986), 2446471.0);
  ForgetObservationTimesForTests();
  EXPECT_EQ(Ask(kComet, 1986), 2446521.5);  // 51 days after February 9, 0 h
}

TEST_F(ObservationTimes, AMissingFileIsNotLookedForAgain) {
  EXPECT_EQ(Ask(kComet, 1986), -1.0);
  roots.dir.Write(kFile, "comt\t1\t9/2/1986 12\n");
  EXPECT_EQ(Ask(kComet, 1986), -1.0);
}

#if !defined(__wasi__)  // which has no threads

TEST_F(ObservationTimes, ThreadsMayAskForTheFirstTimeTogether) {
  constexpr int kThreads = 8, kRounds = 40;
  std::string content;
  for (int number = 1; number <= 2000; ++number)
    content += "comt\t" + std::to_string(number) + "\t9/2/1986 12\n";
  for (int round = 0; round < kRounds; ++round) {
    Write(content);
    std::atomic<int> waiting{kThreads}, right{0};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < kThreads; ++thread) {
      threads.emplace_back([&waiting, &right, thread] {
        --waiting;
        while (waiting > 0) std::this_thread::yield();
        for (const int number : {1, 2000 - thread, 2000}) {
          _Date date;
          if (GetObsTimeFromFile(&date, {FourCC("comt"), number}, 1986) && date.day == 2446471) ++right;
        }
      });
    }
    for (std::thread& thread : threads) thread.join();
    ASSERT_EQ(right, kThreads * 3);
  }
}

#endif

}  // namespace
