// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/meteor_showers.h"

#include <gtest/gtest.h>

#include <string>

#include "support/debug_capture.h"
#include "support/string_table_file.h"

namespace {

using CommonInterfaces::ReadMeteorShowers;
using CommonInterfaces::SHOWER;
using Lines = std::vector<std::string>;

constexpr double kDegree = 3.14159265358979323846 / 180.0;
constexpr char kPerseids[] = "Perseids;26;7;13;8;20;8;PER;109P/Swift-Tuttle;3;12;+57";

class MeteorShowers : public testing::Test {
 protected:
  // The showers that these texts hold, from 6101 on.
  std::vector<SHOWER> Read(const Lines& texts, bool expected = true) {
    std::string table;
    for (std::size_t i = 0; i < texts.size(); ++i) table += std::to_string(6101 + i) + "\t" + texts[i] + "\n";
    LoadStrings(roots, table);
    std::vector<SHOWER> showers;
    EXPECT_EQ(ReadMeteorShowers(&showers), expected);
    return showers;
  }
  // The declination of a shower with that last field.
  SHOWER WithDeclination(const std::string& text) {
    const auto showers = Read({"a;1;2;3;4;5;6;b;c;7;8;" + text});
    return showers.empty() ? SHOWER() : showers[0];
  }
  Lines Names(const Lines& texts) {
    Lines names;
    for (const SHOWER& shower : Read(texts)) names.push_back(shower.name);
    return names;
  }
  static std::string Bad(const std::string& text) { return "Bad string for meteor shower " + text + "\n"; }

  test_support::TempRoots roots;
  test_support::DebugCapture debug;
};

TEST_F(MeteorShowers, FieldsOfAShower) {
  const auto showers = Read({kPerseids});
  ASSERT_EQ(showers.size(), 1u);
  const SHOWER& shower = showers[0];
  EXPECT_STREQ(shower.name, "Perseids");
  EXPECT_EQ(shower.beginDay, 26);
  EXPECT_EQ(shower.beginMonth, 7);
  EXPECT_EQ(shower.maximumDay, 13);
  EXPECT_EQ(shower.maximumMonth, 8);
  EXPECT_EQ(shower.endDay, 20);
  EXPECT_EQ(shower.endMonth, 8);
  EXPECT_STREQ(shower.code, "PER");
  EXPECT_STREQ(shower.parentBody, "109P/Swift-Tuttle");
  EXPECT_EQ(shower.raHours, 3);
  EXPECT_EQ(shower.raMinutes, 12);
  EXPECT_EQ(shower.decDegrees, 57);
  EXPECT_EQ(shower.decSign, '+');
  EXPECT_NEAR(shower.ra, 48.0 * kDegree, 1e-15);  // 3 h 12 min are 3.2 h of 15 degrees
  EXPECT_NEAR(shower.dec, 57.0 * kDegree, 1e-15);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(MeteorShowers, ShowersAreAppendedInTheirOrder) {
  LoadStrings(roots,
              std::string("6101\t") + kPerseids + "\n6102\tLyrids;16;4;22;4;27;4;LYR;C/1861 G1;18;9;+33\n");
  std::vector<SHOWER> showers(1);
  EXPECT_TRUE(ReadMeteorShowers(&showers));
  ASSERT_EQ(showers.size(), 3u);
  EXPECT_STREQ(showers[0].name, "");
  EXPECT_STREQ(showers[1].name, "Perseids");
  EXPECT_STREQ(showers[2].name, "Lyrids");
}

TEST_F(MeteorShowers, DeclinationIsSignedAndItsSignKept) {
  SHOWER shower = WithDeclination("-16");
  EXPECT_NEAR(shower.dec, -16.0 * kDegree, 1e-15);
  EXPECT_EQ(shower.decSign, '-');
  EXPECT_EQ(shower.decDegrees, 16);
  shower = WithDeclination("16");
  EXPECT_NEAR(shower.dec, 16.0 * kDegree, 1e-15);
  EXPECT_EQ(shower.decSign, '+') << "an unsigned text is positive";
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(MeteorShowers, TheSignOfMinusZeroIsKept) {
  const SHOWER shower = WithDeclination("-0");
  EXPECT_EQ(shower.decSign, '-');
  EXPECT_EQ(shower.decDegrees, 0);
  EXPECT_EQ(shower.dec, 0.0);
}

TEST_F(MeteorShowers, DeclinationCountsWholeDegrees) {
  EXPECT_EQ(WithDeclination(" -16.7 ").decDegrees, 16);
  EXPECT_NEAR(WithDeclination("-90").dec, -90.0 * kDegree, 1e-15);
}

TEST_F(MeteorShowers, RightAscensionTakesMinutesAsTheyAre) {
  const auto showers = Read({"a;1;2;3;4;5;6;b;c;23;59;0", "a;1;2;3;4;5;6;b;c;0;0;0"});
  ASSERT_EQ(showers.size(), 2u);
  EXPECT_NEAR(showers[0].ra, 359.75 * kDegree, 1e-14);
  EXPECT_EQ(showers[1].ra, 0.0);
}

TEST_F(MeteorShowers, ElevenFieldsAreReportedAndSkippedAndTheNextIsRead) {
  const std::string eleven = "Lyrids;16;4;22;4;27;4;LYR;C/1861 G1;18;9";
  EXPECT_EQ(Names({eleven, kPerseids}), Lines{"Perseids"});
  EXPECT_EQ(debug.lines, Lines{Bad(eleven)});
}

TEST_F(MeteorShowers, MoreThanTwelveFieldsAreRead) {
  EXPECT_EQ(Names({std::string(kPerseids) + ";more;"}), Lines{"Perseids"});
}

TEST_F(MeteorShowers, WithoutText6101ThereAreNoneAndNoMessage) {
  LoadStrings(roots, std::string("6102\t") + kPerseids + "\n");
  std::vector<SHOWER> showers;
  EXPECT_FALSE(ReadMeteorShowers(&showers));
  EXPECT_TRUE(showers.empty());
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(MeteorShowers, TheListEndsAtAGap) {
  LoadStrings(roots, std::string("6101\t") + kPerseids + "\n6103\t" + kPerseids + "\n");
  std::vector<SHOWER> showers;
  EXPECT_TRUE(ReadMeteorShowers(&showers));
  EXPECT_EQ(showers.size(), 1u);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(MeteorShowers, TheListEndsAtATextWithoutASemicolon) {
  EXPECT_EQ(Names({kPerseids, "no shower", kPerseids}), Lines{"Perseids"});
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(MeteorShowers, OnlyBadTextsAreNoShowers) {
  EXPECT_TRUE(Read({"a;b", ";"}, false).empty());
  EXPECT_EQ(debug.lines, (Lines{Bad("a;b"), Bad(";")}));
}

// Their shower would come on day 0 or stand at the vernal equinox.
TEST_F(MeteorShowers, TextsWhereNumbersBelongAreReportedAndSkipped) {
  const Lines bad = {
      "a;x;2;3;4;5;6;b;c;7;8;9",     "a;1;;3;4;5;6;b;c;7;8;9",       "a;1;2;3;4;5;6;b;c;;8;9",
      "a;1;2;3;4;5;6;b;c;7;8;north", "a;1;2;3;4;5;6;b;c;7;8;+-9",    "a;1;2;3;4;5;6;b;c;7;8;",
      "a;1;2;3;4;5;32768;b;c;7;8;9", "a;1;2;3;4;5;6;b;c;7;-32769;9", "a;1;2;3;4;5;6;b;c;7;8;-99999"};
  EXPECT_TRUE(Read(bad, false).empty());
  Lines expected;
  for (const std::string& text : bad) expected.push_back(Bad(text));
  EXPECT_EQ(debug.lines, expected);
}

TEST_F(MeteorShowers, TheParentBodyIsTrimmedAndNothingElse) {
  const auto showers = Read({"a ;1;2;3;4;5;6; b ;\\t c d ;7;8;9"});
  ASSERT_EQ(showers.size(), 1u);
  EXPECT_STREQ(showers[0].name, "a ");
  EXPECT_STREQ(showers[0].code, " b ");
  EXPECT_STREQ(showers[0].parentBody, "c d");
}

TEST_F(MeteorShowers, LongTextsAreCutToTheirFields) {
  const std::string n(100, 'n');
  const auto showers = Read({n + ";1;2;3;4;5;6;" + n + ";" + n + ";7;8;9"});
  ASSERT_EQ(showers.size(), 1u);
  EXPECT_EQ(std::string(showers[0].name), std::string(63, 'n'));
  EXPECT_EQ(std::string(showers[0].code), std::string(7, 'n'));
  EXPECT_EQ(std::string(showers[0].parentBody), std::string(59, 'n'));
  EXPECT_EQ(showers[0].beginDay, 1);
  EXPECT_EQ(showers[0].decDegrees, 9);
}

TEST_F(MeteorShowers, TextsAreNotFormats) {
  const std::string text = "%s%n;1;2;3;4;5;6;%d;%f;7;8";
  EXPECT_TRUE(Read({text}, false).empty());
  EXPECT_EQ(debug.lines, Lines{Bad(text)});
}

TEST_F(MeteorShowers, BytesOfAnyCodePageAreKept) {
  EXPECT_EQ(Names({"\xCF\xE5\xF0\xF1\xE5\xE8\xE4\xFB;1;2;3;4;5;6;b;c;7;8;9"}),
            Lines{"\xCF\xE5\xF0\xF1\xE5\xE8\xE4\xFB"});
}

TEST_F(MeteorShowers, ANullListTakesNone) {
  LoadStrings(roots, std::string("6101\t") + kPerseids + "\n");
  EXPECT_FALSE(ReadMeteorShowers(nullptr));
}

TEST_F(MeteorShowers, ARecordIsPlainBytesWithoutLeftovers) {
  const SHOWER empty;
  EXPECT_STREQ(empty.name, "");
  EXPECT_EQ(empty.decSign, '+');
  EXPECT_EQ(empty.beginDay, 0);
  EXPECT_EQ(empty.dec, 0.0);
}

}  // namespace
