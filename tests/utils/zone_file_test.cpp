// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/zones/zone_file.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "utils/zone_file_builder.h"

namespace {

using namespace utils_internal;
using Bytes = std::vector<unsigned char>;

Zone Parse(const Bytes& bytes) {
  std::string problem;
  const auto zone = ParseZoneFile(bytes, problem);
  EXPECT_TRUE(zone) << problem;
  return zone.value_or(Zone());
}

std::string ProblemOf(const Bytes& bytes) {
  std::string problem;
  EXPECT_FALSE(ParseZoneFile(bytes, problem));
  return problem;
}

// Three types, daylight time for 1000 seconds, and a rule.
ZoneFileBuilder Sample() {
  ZoneFileBuilder builder;
  builder.types = {{3208, 0, 0}, {3600, 0, 4}, {7200, 1, 8}};
  builder.names = std::string("LMT\0CET\0CEST\0", 13);
  builder.changes = {{-5000000000LL, 1}, {1000, 2}, {2000, 1}};
  builder.footer = "\nCET-1CEST,M3.5.0,M10.5.0/3\n";
  return builder;
}

TEST(ZoneFile, OffsetHoldsFromItsChangeOn) {
  ZoneFileBuilder builder = Sample();
  builder.footer = "\n\n";
  const Zone zone = Parse(builder.Build());
  EXPECT_EQ(zone.GetOffset(-5000000001LL), 3208);
  EXPECT_EQ(zone.GetOffset(-5000000000LL), 3600);
  EXPECT_EQ(zone.GetOffset(999), 3600);
  EXPECT_EQ(zone.GetOffset(1000), 7200);
  EXPECT_EQ(zone.GetOffset(1999), 7200);
  EXPECT_EQ(zone.GetOffset(2000), 3600);
  EXPECT_EQ(zone.GetOffset(1000000000000LL), 3600);
}

TEST(ZoneFile, RuleHoldsFromTheLastChangeOn) {
  ZoneFileBuilder builder = Sample();
  builder.footer = "\nXYZ-9\n";
  const Zone zone = Parse(builder.Build());
  EXPECT_EQ(zone.GetOffset(1999), 7200);
  EXPECT_EQ(zone.GetOffset(2000), 9 * 3600);
}

TEST(ZoneFile, WithoutChangesTheRuleHoldsForAllTime) {
  ZoneFileBuilder builder;
  builder.footer = "\n<+03>-3\n";
  const Zone zone = Parse(builder.Build());
  EXPECT_EQ(zone.GetOffset(-100000000000LL), 3 * 3600);
  EXPECT_EQ(zone.GetOffset(100000000000LL), 3 * 3600);
}

TEST(ZoneFile, WithoutChangesAndRuleTimeTypeZeroHolds) {
  EXPECT_EQ(Parse(ZoneFileBuilder().Build()).GetOffset(0), 3600);
}

// RFC 8536, section 3.2: time type 0, even when it is daylight time and a standard type follows.
TEST(ZoneFile, BeforeTheFirstChangeTimeTypeZeroHolds) {
  ZoneFileBuilder builder;
  builder.types = {{7200, 1, 0}, {3600, 0, 0}};
  builder.changes = {{0, 1}};
  const Zone zone = Parse(builder.Build());
  EXPECT_EQ(zone.GetOffset(-1), 7200);
  EXPECT_EQ(zone.GetOffset(0), 3600);
}

TEST(ZoneFile, Version1HasTimesOf32BitsAndNoRule) {
  ZoneFileBuilder builder = Sample();
  builder.version = 0;
  builder.changes = {{-2147483648LL, 1}, {1000, 2}, {2000, 1}};
  const Zone zone = Parse(builder.Build());
  EXPECT_FALSE(zone.rule);
  EXPECT_EQ(zone.GetOffset(-2147483649LL), 3208);
  EXPECT_EQ(zone.GetOffset(-2147483648LL), 3600);
  EXPECT_EQ(zone.GetOffset(1500), 7200);
  EXPECT_EQ(zone.GetOffset(5000000000LL), 3600);
}

TEST(ZoneFile, Versions2To4UseTheSecondBlock) {
  for (char version : {'2', '3', '4', '5'}) {
    ZoneFileBuilder first;
    first.version = version;
    first.types = {{-3600, 0, 0}};
    first.changes = {{5, 0}, {6, 0}};
    first.leaps = {{7, 1}};
    first.flags = std::string(2, '\0');
    ZoneFileBuilder builder = Sample();
    builder.version = version;
    builder.firstBlock = first.Block(4);
    EXPECT_EQ(Parse(builder.Build()).GetOffset(1500), 7200) << version;
  }
}

TEST(ZoneFile, IndicatorsAreSkipped) {
  ZoneFileBuilder builder = Sample();
  builder.flags = std::string("\1\1\0\1\0\0", 6);
  EXPECT_EQ(Parse(builder.Build()).GetOffset(1500), 7200);
}

// Two leap seconds, at the plain times 500 and 1500. The file's clock counts them: it shows 501 when the
// second one second later begins, and 1001 and 2002 at the changes.
TEST(ZoneFile, LeapSecondsAreTakenOutOfTheChanges) {
  ZoneFileBuilder builder = Sample();
  builder.leaps = {{500, 1}, {1501, 2}};
  builder.changes = {{-5000000000LL, 1}, {1001, 2}, {2002, 1}};
  const Zone zone = Parse(builder.Build());
  EXPECT_EQ(zone.changes, (std::vector<long long>{-5000000000LL, 1000, 2000}));
}

TEST(ZoneFile, ChangesAtTheEdgesOfTimeStayInOrder) {
  ZoneFileBuilder builder = Sample();
  builder.leaps = {{INT64_MIN, 1}};
  builder.changes = {{INT64_MIN, 1}, {0, 2}, {INT64_MAX, 1}};
  const Zone zone = Parse(builder.Build());
  EXPECT_TRUE(std::is_sorted(zone.changes.begin(), zone.changes.end()));
  EXPECT_EQ(zone.GetOffset(-1000000000000000LL), 3600);
  EXPECT_EQ(zone.GetOffset(1000000000000000LL), 7200);
}

TEST(ZoneFile, BytesBehindTheRuleAreIgnored) {
  Bytes bytes = Sample().Build();
  bytes.insert(bytes.end(), {'x', 0, '\n'});
  EXPECT_TRUE(Parse(bytes).rule);
}

TEST(DamagedZoneFile, OtherFilesAreRefused) {
  EXPECT_EQ(ProblemOf({}), "header incomplete");
  EXPECT_EQ(ProblemOf(Bytes(1000, 'x')), "not a zone file");
}

TEST(DamagedZoneFile, UnknownVersionsAreRefused) {
  Bytes bytes = Sample().Build();
  for (const char version : {'\1', '0', '1'}) {
    bytes[4] = static_cast<unsigned char>(version);
    EXPECT_EQ(ProblemOf(bytes), "unknown version");
  }
}

TEST(DamagedZoneFile, CountsBeyondTheFileAreRefused) {
  for (std::size_t count = 20; count < 44; count += 4) {
    ZoneFileBuilder builder = Sample();
    builder.version = 0;
    Bytes bytes = builder.Build();
    bytes[count] = bytes[count + 1] = bytes[count + 2] = bytes[count + 3] = 0xFF;
    EXPECT_EQ(ProblemOf(bytes), "data block incomplete") << count;
    builder.version = '2';
    bytes = builder.Build();
    bytes[count] = 0x7F;
    EXPECT_EQ(ProblemOf(bytes), "first data block incomplete") << count;
  }
}

// Six counts of 2^32 - 1 would be a block of a few bytes if their sum were taken in 32 bits.
TEST(DamagedZoneFile, CountsWhoseSumWouldOverflowAreRefused) {
  Bytes bytes = Sample().Build();
  std::fill(bytes.begin() + 20, bytes.begin() + 44, 0xFF);
  EXPECT_EQ(ProblemOf(bytes), "first data block incomplete");
}

TEST(DamagedZoneFile, NoTimeTypes) {
  ZoneFileBuilder builder;
  builder.types.clear();
  EXPECT_EQ(ProblemOf(builder.Build()), "no time types");
  builder = ZoneFileBuilder();
  builder.names.clear();
  EXPECT_EQ(ProblemOf(builder.Build()), "no time types");
}

TEST(DamagedZoneFile, IndicatorCountsThatDoNotFit) {
  ZoneFileBuilder builder = Sample();
  builder.flags = std::string(4, '\0');
  EXPECT_EQ(ProblemOf(builder.Build()), "indicator counts do not fit");
}

TEST(DamagedZoneFile, ChangeToAMissingTimeType) {
  ZoneFileBuilder builder = Sample();
  builder.changes[1].type = 3;
  EXPECT_EQ(ProblemOf(builder.Build()), "change to a missing time type");
}

TEST(DamagedZoneFile, ChangesOutOfOrder) {
  ZoneFileBuilder builder = Sample();
  builder.changes[2].time = builder.changes[1].time;
  EXPECT_EQ(ProblemOf(builder.Build()), "changes out of order");
}

TEST(DamagedZoneFile, OffsetOutOfRange) {
  ZoneFileBuilder builder = Sample();
  for (int offset : {-25 * 3600, 26 * 3600, INT32_MIN, INT32_MAX}) {
    builder.types[2].offset = offset;
    EXPECT_EQ(ProblemOf(builder.Build()), "offset out of range") << offset;
  }
}

TEST(DamagedZoneFile, BadTimeType) {
  ZoneFileBuilder builder = Sample();
  builder.types[1].daylight = 2;
  EXPECT_EQ(ProblemOf(builder.Build()), "bad time type");
  builder = Sample();
  builder.types[1].name = 13;
  EXPECT_EQ(ProblemOf(builder.Build()), "bad time type");
}

TEST(DamagedZoneFile, LeapSecondsOutOfOrderOrOfManySeconds) {
  ZoneFileBuilder builder = Sample();
  builder.leaps = {{500, 1}, {500, 2}};
  EXPECT_EQ(ProblemOf(builder.Build()), "leap seconds out of order");
  builder.leaps = {{500, 1}, {600, 100}};
  EXPECT_EQ(ProblemOf(builder.Build()), "leap seconds do not fit");
}

TEST(DamagedZoneFile, RuleLine) {
  ZoneFileBuilder builder = Sample();
  builder.footer = "";
  EXPECT_EQ(ProblemOf(builder.Build()), "no rule line");
  builder.footer = "CET-1\n";
  EXPECT_EQ(ProblemOf(builder.Build()), "no rule line");
  builder.footer = "\nCET-1";
  EXPECT_EQ(ProblemOf(builder.Build()), "rule line incomplete");
  builder.footer = "\nCET\n";
  EXPECT_EQ(ProblemOf(builder.Build()), "rule line not understood");
  builder.footer = std::string("\nCET-1\0\n", 8);
  EXPECT_EQ(ProblemOf(builder.Build()), "rule line not understood");
}

TEST(DamagedZoneFile, SecondHeader) {
  ZoneFileBuilder builder = Sample();
  Bytes bytes = builder.Build();
  const std::size_t second = ZoneFileBuilder().Block(4).size();
  bytes[second + 4] = 0;
  EXPECT_EQ(ProblemOf(bytes), "second header of version 1");
  bytes[second] = 'X';
  EXPECT_EQ(ProblemOf(bytes), "not a zone file");
}

void AskEverywhere(const Zone& zone) {
  for (long long time : {-1000000000000000LL, -5000000000LL, 0LL, 1500LL, 2000000000LL, 1000000000000000LL}) {
    const int offset = zone.GetOffset(time);
    EXPECT_GE(offset, -25 * 3600);
    EXPECT_LE(offset, 26 * 3600);
  }
}

Bytes SampleWithEverything(char version) {
  ZoneFileBuilder builder = Sample();
  builder.version = version;
  builder.leaps = {{500, 1}, {1501, 2}};
  builder.flags = std::string("\1\1\0\1\0\0", 6);
  if (version == 0) builder.changes[0].time = -2000000000;
  return builder.Build();
}

TEST(DamagedZoneFile, CutAtEveryLengthIsRefused) {
  for (char version : {'\0', '3'}) {
    const Bytes whole = SampleWithEverything(version);
    AskEverywhere(Parse(whole));
    for (std::size_t length = 0; length < whole.size(); ++length) {
      EXPECT_NE(ProblemOf(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length))), "")
          << length;
    }
  }
}

TEST(DamagedZoneFile, EveryByteChangedToEveryValueStaysInBounds) {
  for (char version : {'\0', '3'}) {
    Bytes bytes = SampleWithEverything(version);
    for (unsigned char& byte : bytes) {
      const unsigned char good = byte;
      for (int value = 0; value < 256; ++value) {
        byte = static_cast<unsigned char>(value);
        std::string problem;
        if (const auto zone = ParseZoneFile(bytes, problem)) {
          AskEverywhere(*zone);
        } else {
          EXPECT_NE(problem, "");
        }
      }
      byte = good;
    }
  }
}

}  // namespace
