// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Bodies, observation times and landscapes.
#include "skydata/build/catalog_files.h"

#include <gtest/gtest.h>

#include "tests/skydata/tiny_source.h"

namespace skydata {
namespace {

constexpr char kBodies[] = "bodies/planets_moons.tsv";
constexpr char kBodyColumns[] = "Kind\tNumber\tName\tFlag\n";

class BodiesSource : public testing::Test {
 protected:
  std::string Make(const std::string& rows) {
    m_Source.Write(kBodies, kBodyColumns + rows);
    return m_Source.Make(MakePlanetsAndMoons);
  }
  std::string Message(const std::string& rows) {
    return m_Source.Message(MakePlanetsAndMoons, kBodies, kBodyColumns + rows);
  }
  skydata_test::TinySource m_Source;
};

TEST_F(BodiesSource, ALineHasKindNumberNameAndTheFlagThatIsGiven) {
  EXPECT_EQ(Make("plnt\t1\tMercury\nmoon\t101\tX Y\t1\nplnt\t2\tVenus\t0\n"),
            "plnt\t1\tMercury\nmoon\t101\tX Y\t1\nplnt\t2\tVenus\t0\n");
}
TEST_F(BodiesSource, TheOrderOfTheLinesIsFree) {
  EXPECT_EQ(Make("moon\t102\tB\nplnt\t1\tM\nmoon\t101\tA\n"), "moon\t102\tB\nplnt\t1\tM\nmoon\t101\tA\n");
}
TEST_F(BodiesSource, AGapIsNamedByTheLineBehindIt) {
  EXPECT_EQ(Message("plnt\t1\tA\nplnt\t3\tB\n"),
            "bodies/planets_moons.tsv:3: Number: plnt 2 is missing before it");
  EXPECT_EQ(Message("plnt\t1\tA\nmoon\t101\tB\nmoon\t103\tC\n"),
            "bodies/planets_moons.tsv:4: Number: moon 102 is missing before it");
  EXPECT_EQ(Message("plnt\t1\tA\nmoon\t102\tB\n"),
            "bodies/planets_moons.tsv:3: Number: moon 101 is missing before it");
}
TEST_F(BodiesSource, AMoonWantsItsPlanet) {
  EXPECT_EQ(Message("plnt\t1\tA\nmoon\t201\tB\n"),
            "bodies/planets_moons.tsv:3: Number: plnt 2 is missing before it");
}
TEST_F(BodiesSource, OtherKindsAreRefused) {
  EXPECT_EQ(Message("plan\t1\tA\n"), "bodies/planets_moons.tsv:2: Kind: 'plan' is neither plnt nor moon");
}
TEST_F(BodiesSource, NumbersMustBePossible) {
  EXPECT_EQ(Message("plnt\t0\tA\n"), "bodies/planets_moons.tsv:2: Number: 0 is out of range");
  EXPECT_EQ(Message("plnt\t1.5\tA\n"), "bodies/planets_moons.tsv:2: Number: 1.5 is no whole number");
  EXPECT_EQ(Message("plnt\t\tA\n"), "bodies/planets_moons.tsv:2: Number: must not be empty");
  EXPECT_EQ(Message("moon\t300\tA\n"),
            "bodies/planets_moons.tsv:2: Number: 300 is not planet * 100 + k, k from 1 on");
  EXPECT_EQ(Message("moon\t7\tA\n"),
            "bodies/planets_moons.tsv:2: Number: 7 is not planet * 100 + k, k from 1 on");
}
TEST_F(BodiesSource, ABodyStandsOnce) {
  EXPECT_EQ(Message("plnt\t1\tA\nplnt\t1\tB\n"),
            "bodies/planets_moons.tsv:3: Number: plnt 1 stands above already");
}
TEST_F(BodiesSource, NamesMustFitAnIdentifier) {
  EXPECT_EQ(Message("plnt\t1\t" + std::string(79, 'x') + "\n"), "");
  EXPECT_EQ(Message("plnt\t1\t" + std::string(80, 'x') + "\n"),
            "bodies/planets_moons.tsv:2: Name: is longer than 79 bytes");
  EXPECT_EQ(Message("plnt\t1\n"), "bodies/planets_moons.tsv:2: Name: must not be empty");
}
TEST_F(BodiesSource, AFlagIsZeroOrOne) {
  EXPECT_EQ(Message("plnt\t1\tA\t2\n"), "bodies/planets_moons.tsv:2: Flag: 2 is out of range");
  EXPECT_EQ(Message("plnt\t1\tA\tyes\n"), "bodies/planets_moons.tsv:2: Flag: 'yes' is no number");
}
TEST_F(BodiesSource, OtherColumnsAreRefused) {
  EXPECT_EQ(m_Source.Message(MakePlanetsAndMoons, kBodies, "Kind\tNumber\tName\nplnt\t1\tA\n"),
            "bodies/planets_moons.tsv:1: wants the columns Kind, Number, Name, Flag");
}

constexpr char kTimes[] = "comets/observation_times.tsv";
constexpr char kTimeColumns[] = "Kind\tNumber\tComet\tYear\tMonth\tDay\tHour_UT\n";

class TimesSource : public testing::Test {
 protected:
  std::string Make(const std::string& rows) {
    m_Source.Write(kTimes, kTimeColumns + rows);
    return m_Source.Make(MakeObservationTimes);
  }
  std::string Message(const std::string& rows) {
    return m_Source.Message(MakeObservationTimes, kTimes, kTimeColumns + rows);
  }
  skydata_test::TinySource m_Source;
};

TEST_F(TimesSource, ADateIsDayMonthYearAndHour) {
  EXPECT_EQ(Make("comt\t1\t1P/Halley\t1986\t2\t19\t3.25\ncomt\t1\t\t-1\t2\t29\t0\n"),
            "comt\t1\t19/2/1986 3.25\ncomt\t1\t29/2/-1 0\n");
}
TEST_F(TimesSource, TheCometMustBeInTheCatalog) {
  EXPECT_EQ(Message("comt\t2\t\t1986\t2\t19\t0\n"),
            "comets/observation_times.tsv:2: Number: no comt '2' is known");
  EXPECT_EQ(Message("astr\t1\t\t1986\t2\t19\t0\n"),
            "comets/observation_times.tsv:2: Kind: 'astr' is not comt");
}
TEST_F(TimesSource, DatesMustBePossible) {
  EXPECT_EQ(Message("comt\t1\t\t1986\t13\t1\t0\n"),
            "comets/observation_times.tsv:2: Month: 13 is out of range");
  EXPECT_EQ(Message("comt\t1\t\t1986\t2\t29\t0\n"),
            "comets/observation_times.tsv:2: Day: 29 is out of range");
  EXPECT_EQ(Message("comt\t1\t\t1900\t2\t29\t0\n"),
            "comets/observation_times.tsv:2: Day: 29 is out of range");
  EXPECT_EQ(Message("comt\t1\t\t1500\t2\t29\t0\n"), "");  // Julian calendar
  EXPECT_EQ(Message("comt\t1\t\t2000\t2\t29\t0\n"), "");
  EXPECT_EQ(Message("comt\t1\t\t1986\t4\t31\t0\n"),
            "comets/observation_times.tsv:2: Day: 31 is out of range");
  EXPECT_EQ(Message("comt\t1\t\t1582\t10\t4\t0\ncomt\t1\t\t1583\t10\t5\t0\n"), "");
  EXPECT_EQ(Message("comt\t1\t\t1582\t10\t15\t0\n"), "");
  for (const int day : {5, 14}) {
    EXPECT_EQ(Message("comt\t1\t\t1582\t10\t" + std::to_string(day) + "\t0\n"),
              "comets/observation_times.tsv:2: Day: October 1582 has no day " + std::to_string(day));
  }
  EXPECT_EQ(Message("comt\t1\t\t99999\t4\t1\t0\n"),
            "comets/observation_times.tsv:2: Year: 99999 is out of range");
}
TEST_F(TimesSource, AnHourIsBelow24) {
  EXPECT_EQ(Message("comt\t1\t\t1986\t2\t19\t23.99\n"), "");
  EXPECT_EQ(Message("comt\t1\t\t1986\t2\t19\t24\n"),
            "comets/observation_times.tsv:2: Hour_UT: 24 hours are the next day");
  EXPECT_EQ(Message("comt\t1\t\t1986\t2\t19\n"),
            "comets/observation_times.tsv:2: Hour_UT: must not be empty");
}
TEST_F(TimesSource, ACometHasOneTimeAYear) {
  EXPECT_EQ(Message("comt\t1\t\t1986\t2\t19\t0\ncomt\t1\t\t1986\t3\t1\t0\n"),
            "comets/observation_times.tsv:3: Year: comet 1 has a time of this year above already");
}

constexpr char kLandscapes[] = "surface/panoramas.tsv";
constexpr char kLandscapeColumns[] = "Kind\tNumber\tFile\tDefault\tIdentifier\tTitle\tLeftAzimuth_deg\n";

class PanoramaSource : public testing::Test {
 protected:
  PanoramaSource() {
    m_Source.Write("surface/a.svg", "<svg/>");
    m_Source.Write("surface/b.svg", "<svg/>");
  }
  std::string Make(const std::string& rows) {
    m_Source.Write(kLandscapes, kLandscapeColumns + rows);
    return m_Source.Make(MakePanoramas);
  }
  std::string Message(const std::string& rows) {
    return m_Source.Message(MakePanoramas, kLandscapes, kLandscapeColumns + rows);
  }
  skydata_test::TinySource m_Source;
};

TEST_F(PanoramaSource, ALineHasTheSevenFieldsInOrder) {
  EXPECT_EQ(Make("plnt\t3\ta.svg\t1\t17\tOpen sea\t90\nmoon\t301\tb.svg\t0\t0\tMare\t359\n"),
            "plnt\t3\ta.svg\t1\t17\tOpen sea\t90\nmoon\t301\tb.svg\t0\t0\tMare\t359\n");
}
TEST_F(PanoramaSource, ThePictureMustBeThere) {
  EXPECT_EQ(Message("plnt\t3\tc.svg\t1\t1\tT\t0\n"),
            "surface/panoramas.tsv:2: File: no picture 'c.svg' beside the table");
  EXPECT_EQ(Message("plnt\t3\tpanoramas.tsv\t1\t1\tT\t0\n"),
            "surface/panoramas.tsv:2: File: 'panoramas.tsv' is no .svg");
  for (const std::string bad : {"", "../a.svg", "A.svg", "a b.svg", ".svg"}) {
    EXPECT_EQ(
        Message("plnt\t3\t" + bad + "\t1\t1\tT\t0\n"),
        "surface/panoramas.tsv:2: File: '" + bad + "' has other characters than a-z, 0-9, _, - and . inside");
  }
}
TEST_F(PanoramaSource, TheBodyMustBeKnown) {
  EXPECT_EQ(Message("plnt\t4\ta.svg\t1\t1\tT\t0\n"), "surface/panoramas.tsv:2: Number: no plnt '4' is known");
}
TEST_F(PanoramaSource, NumbersMustFitTheirFields) {
  EXPECT_EQ(Message("plnt\t3\ta.svg\t2\t1\tT\t0\n"), "surface/panoramas.tsv:2: Default: 2 is out of range");
  EXPECT_EQ(Message("plnt\t3\ta.svg\t1\t65535\tT\t0\n"),
            "surface/panoramas.tsv:2: Identifier: 65535 is out of range");
  EXPECT_EQ(Message("plnt\t3\ta.svg\t1\t1\tT\t360\n"),
            "surface/panoramas.tsv:2: LeftAzimuth_deg: 360 is out of range");
}
TEST_F(PanoramaSource, IdentifiersStandOnceAndABodyHasOneDefault) {
  EXPECT_EQ(Message("plnt\t3\ta.svg\t1\t1\tT\t0\nplnt\t2\tb.svg\t1\t1\tT\t0\n"),
            "surface/panoramas.tsv:3: Identifier: 1 stands above already");
  EXPECT_EQ(Message("plnt\t3\ta.svg\t1\t1\tT\t0\nplnt\t3\tb.svg\t1\t2\tT\t0\n"),
            "surface/panoramas.tsv:3: Default: the body has a default above already");
}
TEST_F(PanoramaSource, ALineMustFitTheReadersBuffer) {
  const std::string rest = "plnt\t3\ta.svg\t1\t1\t\t0";
  EXPECT_EQ(Message("plnt\t3\ta.svg\t1\t1\t" + std::string(255 - rest.size(), 'x') + "\t0\n"), "");
  EXPECT_EQ(Message("plnt\t3\ta.svg\t1\t1\t" + std::string(256 - rest.size(), 'x') + "\t0\n"),
            "surface/panoramas.tsv:2: Title: makes the line longer than 255 bytes");
}

}  // namespace
}  // namespace skydata
