// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Orbits on their way into the solar-system model: of databases, of the user's lists, and those that go as
// they are.
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/record_conversion.h"
#include "output/recorded_conversion.h"
#include "output/unusable_record.h"
#include "support/debug_capture.h"

using namespace CommonInterfaces;
using test_support::DebugCapture;
using test_support::MadeUpRecord;
using test_support::RecordingModel;

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr short kModes[] = {0, 1, 2, 3};
const int kUserKinds[] = {FourCC("fAST"), FourCC("fCOM"), FourCC("fSCO"), FourCC("uSCO")};

class OrbitRecordsTest : public testing::Test {
 protected:
  OrbitalElements FromDatabase(const char (&kind)[5], short mode = kConvertAimObject) {
    model.calls.clear();
    SSO_ID id(FourCC(kind), 8);
    EXPECT_EQ(ConvertDBRecord(id, &db, nullptr, &model, mode), 1);
    EXPECT_EQ(model.calls.size(), 1u);
    return model.calls.empty() ? OrbitalElements() : model.calls[0].elements;
  }

  int ConvertUser(int kind, const OrbitalElements& elements, short mode = kConvertAimObject) {
    model.calls.clear();
    SSO_ID id(kind, 1003);
    OrbitalElements record = elements;
    const int result = ConvertDBRecord(id, nullptr, reinterpret_cast<unsigned char*>(&record), &model, mode);
    EXPECT_EQ(std::memcmp(&record.epoch, &elements.epoch, sizeof elements.epoch), 0);
    return result;
  }

  OrbitalElements User(const OrbitalElements& elements) {
    EXPECT_EQ(ConvertUser(FourCC("fCOM"), elements), 1);
    EXPECT_EQ(model.calls.size(), 1u);
    return model.calls.empty() ? OrbitalElements() : model.calls[0].elements;
  }

  void ExpectUnusable(const OrbitalElements& elements, const std::string& reason) {
    DebugCapture capture;
    EXPECT_EQ(ConvertUser(FourCC("fCOM"), elements), -1);
    EXPECT_EQ(capture.lines, std::vector<std::string>{"Object fCOM 1003: " + reason + "\n"});
    EXPECT_TRUE(model.calls.empty());
  }

  static OrbitalElements Ellipse(double a, double e) {
    OrbitalElements elements;
    elements.a = a;
    elements.e = e;
    return elements;
  }

  MadeUpRecord db;
  RecordingModel model;
};

TEST_F(OrbitRecordsTest, DatabaseElementsAreTakenInRadiansAsTheyAre) {
  db.SetDouble("a", 2.75);
  db.SetDouble("e", 0.125);
  db.SetDouble("i", 0.25);
  db.SetDouble("om", 1.5);
  db.SetDouble("w", 2.5);
  db.SetDouble("M0", 3.5);
  db.SetDouble("n", 0.00375);
  db.SetDouble("JulianDate", 2460000.5);
  db.SetFloat("Hy", 3.5f);
  db.SetFloat("SlopeParam", 0.125f);
  for (const short mode : {short{0}, short{1}, short{3}}) {
    const OrbitalElements elements = FromDatabase("astr", mode);
    EXPECT_EQ(elements.elementSet, kKeplerElements);
    EXPECT_EQ(elements.tag, 0);
    EXPECT_EQ(elements.centralKind, FourCC("plnt"));
    EXPECT_EQ(elements.centralNumber, 10);
    EXPECT_EQ(elements.a, 2.75);
    EXPECT_EQ(elements.e, 0.125);
    EXPECT_EQ(elements.i, 0.25);
    EXPECT_EQ(elements.om, 1.5);
    EXPECT_EQ(elements.w, 2.5);
    EXPECT_EQ(elements.M0, 3.5);
    EXPECT_EQ(elements.n, 0.00375);
    EXPECT_EQ(elements.epoch, 2460000.5);
    EXPECT_EQ(elements.absMagnitude, 3.5f);
    EXPECT_EQ(elements.slope, 0.125f);
  }
  EXPECT_TRUE(model.askedFor.empty());  // the mean motion is the record's
}

TEST_F(OrbitRecordsTest, DatabaseElementsThatAreMissingKeepTheirDefaults) {
  const OrbitalElements elements = FromDatabase("comt");
  for (const double value : {elements.a, elements.e, elements.i, elements.om, elements.w, elements.M0,
                             elements.n, double{elements.slope}}) {
    EXPECT_EQ(value, 0.0);
  }
  EXPECT_EQ(elements.epoch, 2451545.0);
  EXPECT_EQ(elements.absMagnitude, 999999.0f);
}

TEST_F(OrbitRecordsTest, EveryElementIsTakenInEveryEncoding) {
  for (unsigned type = kFieldInt8; type <= kFieldBytes; ++type) {
    int value = 1;
    for (const char* name : {"a", "e", "i", "om", "w", "M0", "n", "JulianDate", "Hy", "SlopeParam"}) {
      db.SetEncoded(name, type, {value++});
    }
    const OrbitalElements elements = FromDatabase("astr");
    const double read[] = {elements.a,  elements.e, elements.i,     elements.om,           elements.w,
                           elements.M0, elements.n, elements.epoch, elements.absMagnitude, elements.slope};
    for (int k = 0; k < 10; ++k) EXPECT_EQ(read[k], k + 1.0) << type << ' ' << k;
  }
}

TEST_F(OrbitRecordsTest, TheEpochWithAFractionWinsOverTheOther) {
  db.Set("JulianDate", kFieldInt32, std::vector<int>{2460000});
  EXPECT_EQ(FromDatabase("astr").epoch, 2460000.0);
  db.SetDouble("JulianDate_d", 2460000.25);
  EXPECT_EQ(FromDatabase("astr").epoch, 2460000.25);
  db.Remove("JulianDate");
  EXPECT_EQ(FromDatabase("astr").epoch, 2460000.25);
}

TEST_F(OrbitRecordsTest, CometsHaveYAndAsteroidsTheSlopeParameter) {
  db.SetFloat("y", 10.0f);
  db.SetFloat("SlopeParam", 0.25f);
  EXPECT_EQ(FromDatabase("comt").slope, 10.0f);
  EXPECT_EQ(FromDatabase("astr").slope, 0.25f);
}

TEST_F(OrbitRecordsTest, ASlopeUnderTheOthersNameIsTakenToo) {
  db.SetFloat("y", 10.0f);
  EXPECT_EQ(FromDatabase("astr").slope, 10.0f);
  db.Remove("y");
  db.SetFloat("SlopeParam", 4.0f);
  EXPECT_EQ(FromDatabase("comt").slope, 4.0f);
}

TEST_F(OrbitRecordsTest, AnAdditionalCometOrAsteroidGoesAsItIs) {
  db.SetDouble("a", 2.75);
  OrbitalElements record;
  record.i = 30.0;
  for (const int kind : {FourCC("comt"), FourCC("astr")}) {
    model.calls.clear();
    SSO_ID id(kind, 8);
    EXPECT_EQ(ConvertDBRecord(id, &db, reinterpret_cast<unsigned char*>(&record), &model, 2), 1);
    ASSERT_EQ(model.calls.size(), 1u);
    EXPECT_EQ(model.calls[0].operation, "additional");
    EXPECT_EQ(model.calls[0].data, &record);
    EXPECT_EQ(model.calls[0].elements.i, 30.0);
    EXPECT_EQ(ConvertDBRecord(id, nullptr, reinterpret_cast<unsigned char*>(&record), &model, 2), 1);
  }
}

TEST_F(OrbitRecordsTest, WhatGoesAsItIsNeedNotBeAligned) {
  std::vector<unsigned char> bytes(sizeof(OrbitalElements) + 1, 7);
  SSO_ID id(FourCC("scft"), 25544);
  EXPECT_EQ(ConvertDBRecord(id, nullptr, bytes.data() + 1, &model, 0), 1);
  ASSERT_EQ(model.calls.size(), 1u);
  EXPECT_EQ(model.calls[0].data, bytes.data() + 1);
}

TEST_F(OrbitRecordsTest, ASpacecraftGoesAsItIsInEveryMode) {
  OrbitalElements record;
  record.elementSet = kTwoLineElements;
  record.n = 15.5;
  for (const short mode : kModes) {
    model.calls.clear();
    SSO_ID id(FourCC("scft"), 25544);
    EXPECT_EQ(ConvertDBRecord(id, &db, reinterpret_cast<unsigned char*>(&record), &model, mode), 1);
    ASSERT_EQ(model.calls.size(), 1u);
    EXPECT_EQ(model.calls[0].data, &record);
    EXPECT_EQ(model.calls[0].elements.n, 15.5);
    EXPECT_EQ(model.calls[0].elements.tag, 0);
  }
}

TEST_F(OrbitRecordsTest, ANullRecordIsUnusableAndOneLineSaysSo) {
  const auto expectLine = [&](int kind, short mode, const char* line) {
    DebugCapture capture;
    SSO_ID id(kind, 8);
    EXPECT_EQ(ConvertDBRecord(id, &db, nullptr, &model, mode), -1);
    EXPECT_EQ(capture.lines, std::vector<std::string>{line});
  };
  expectLine(FourCC("comt"), 2, "Object comt 8: no record to hand over\n");
  expectLine(FourCC("astr"), 2, "Object astr 8: no record to hand over\n");
  for (const short mode : kModes) {
    expectLine(FourCC("scft"), mode, "Object scft 8: no record to hand over\n");
    expectLine(FourCC("fAST"), mode, "Object fAST 8: no record to convert\n");
    expectLine(FourCC("fCOM"), mode, "Object fCOM 8: no record to convert\n");
    expectLine(FourCC("fSCO"), mode, "Object fSCO 8: no record to convert\n");
    expectLine(FourCC("uSCO"), mode, "Object uSCO 8: no record to convert\n");
  }
  EXPECT_TRUE(model.calls.empty());
}

// Only the characters of ASCII: from the blank, 32, to the tilde, 126.
TEST_F(OrbitRecordsTest, KindsThatAreNoTextAreToldWithQuestionMarks) {
  const DebugCapture capture;
  CommonInterfaces::PrintUnusable(SSO_ID(0x1F207E7F, 8), "why");
  CommonInterfaces::PrintUnusable(SSO_ID(-1, 9), "why");
  EXPECT_EQ(capture.lines, (std::vector<std::string>{"Object ? ~? 8: why\n", "Object ???? 9: why\n"}));
}

TEST_F(OrbitRecordsTest, AnglesOfTheUsersListsAreDegrees) {
  OrbitalElements record = Ellipse(1.0, 0.0);
  record.i = 180.0;
  record.om = 90.0;
  record.w = -45.0;
  record.M0 = 720.0;
  record.epoch = 2459000.5;
  record.absMagnitude = 12.5f;
  record.slope = 4.0f;
  for (const int kind : kUserKinds) {
    for (const short mode : kModes) {
      ASSERT_EQ(ConvertUser(kind, record, mode), 1);
      ASSERT_EQ(model.calls.size(), 1u);
      const OrbitalElements& elements = model.calls[0].elements;
      EXPECT_DOUBLE_EQ(elements.i, kPi);
      EXPECT_DOUBLE_EQ(elements.om, kPi / 2);
      EXPECT_DOUBLE_EQ(elements.w, -kPi / 4);
      EXPECT_DOUBLE_EQ(elements.M0, 4 * kPi);
      EXPECT_EQ(elements.epoch, 2459000.5);
      EXPECT_EQ(elements.absMagnitude, 12.5f);
      EXPECT_EQ(elements.slope, 4.0f);
    }
  }
}

// The model's gravitational parameter is 4.
TEST_F(OrbitRecordsTest, TheMeanMotionOfAnEllipseComesFromItsSemiMajorAxis) {
  EXPECT_DOUBLE_EQ(User(Ellipse(1.0, 0.0)).n, 2.0);
  EXPECT_DOUBLE_EQ(User(Ellipse(4.0, 0.5)).n, 0.25);         // sqrt(4 / 64)
  EXPECT_DOUBLE_EQ(User(Ellipse(4.0, 1.0 - 1e-7)).n, 0.25);  // near to a parabola, and still an ellipse
}

TEST_F(OrbitRecordsTest, AnEarlierMeanMotionIsReplaced) {
  OrbitalElements record = Ellipse(1.0, 0.0);
  record.n = 77.0;
  EXPECT_DOUBLE_EQ(User(record).n, 2.0);
}

TEST_F(OrbitRecordsTest, TheMeanMotionOfAHyperbolaComesFromItsPerihelionDistance) {
  EXPECT_DOUBLE_EQ(User(Ellipse(2.0, 3.0)).n, 2.0);   // axis 2 / 2 = 1
  EXPECT_DOUBLE_EQ(User(Ellipse(2.0, 1.5)).n, 0.25);  // axis 2 / 0.5 = 4
}

TEST_F(OrbitRecordsTest, TheMeanMotionOfAParabolaComesFromItsPerihelionDistance) {
  EXPECT_DOUBLE_EQ(User(Ellipse(2.0, 1.0)).n, 0.5);  // sqrt(4 / (2 * 8))
  EXPECT_DOUBLE_EQ(User(Ellipse(2.0, 1.0 + 9e-7)).n, 0.5);
}

TEST_F(OrbitRecordsTest, NearAParabolaTheRuleChangesAtAMillionth) {
  // 2^-20 is below 1e-6 and 2^-20 + 2^-24 above it; both, and their sums with 1, are exact.
  const double below = 9.5367431640625e-07;
  const double above = below + 5.9604644775390625e-08;
  EXPECT_DOUBLE_EQ(User(Ellipse(2.0, 1.0 + below)).n, 0.5);
  EXPECT_DOUBLE_EQ(User(Ellipse(2.0, 1.0 + above)).n, 2.0 / std::pow(2.0 / above, 1.5));
}

TEST_F(OrbitRecordsTest, TheCentralBodyIsTheRecords) {
  OrbitalElements record = Ellipse(1.0, 0.0);
  record.centralKind = FourCC("moon");
  record.centralNumber = 301;
  User(record);
  ASSERT_EQ(model.askedFor.size(), 1u);
  EXPECT_TRUE(model.askedFor[0] == SSO_ID(FourCC("moon"), 301));
  EXPECT_EQ(model.calls[0].elements.centralNumber, 301);
}

TEST_F(OrbitRecordsTest, TwoLineElementsAreTaggedAndTurnInRadiansPerMinute) {
  OrbitalElements record = Ellipse(0.0, 0.0005);
  record.elementSet = kTwoLineElements;
  record.i = 51.6;
  record.n = 15.5;
  record.meanMotionDot = 1e-4;
  record.dragTerm = 2e-5;
  model.gravity = 0.0;
  const OrbitalElements elements = User(record);
  EXPECT_EQ(elements.elementSet, 9);
  EXPECT_EQ(elements.tag, 0x544C455F);  // "TLE_"
  EXPECT_DOUBLE_EQ(elements.n, 15.5 * 2.0 * kPi / 1440.0);
  EXPECT_DOUBLE_EQ(elements.i, 51.6 * kPi / 180.0);
  EXPECT_EQ(elements.meanMotionDot, 1e-4);
  EXPECT_EQ(elements.dragTerm, 2e-5);
  EXPECT_TRUE(model.askedFor.empty());
}

TEST_F(OrbitRecordsTest, EveryOtherElementSetIsKeplers) {
  for (const int code : {0, 1, 8, 10, 255}) {
    OrbitalElements record = Ellipse(1.0, 0.0);
    record.elementSet = static_cast<unsigned char>(code);
    record.tag = kTwoLineTag;
    const OrbitalElements elements = User(record);
    EXPECT_EQ(elements.elementSet, code);
    EXPECT_EQ(elements.tag, 0);
    EXPECT_DOUBLE_EQ(elements.n, 2.0);
  }
}

TEST_F(OrbitRecordsTest, RecordsOfTheUserAreCopiedFromAnyAddressAndNotChanged) {
  OrbitalElements record = Ellipse(1.0, 0.0);
  record.i = 180.0;
  std::vector<unsigned char> bytes(sizeof record + 1);
  std::memcpy(bytes.data() + 1, &record, sizeof record);
  const std::vector<unsigned char> before = bytes;
  SSO_ID id(FourCC("uSCO"), 1);
  EXPECT_EQ(ConvertDBRecord(id, nullptr, bytes.data() + 1, &model, 0), 1);
  EXPECT_EQ(bytes, before);
  ASSERT_EQ(model.calls.size(), 1u);
  EXPECT_NE(model.calls[0].data, bytes.data() + 1);
  EXPECT_DOUBLE_EQ(model.calls[0].elements.i, kPi);
}

TEST_F(OrbitRecordsTest, ElementsAboutAnUnknownBodyAreUnusable) {
  for (const double gravity : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    model.gravity = gravity;
    ExpectUnusable(Ellipse(1.0, 0.0), "the body that it goes around is not known");
  }
}

TEST_F(OrbitRecordsTest, ElementsThatAreNoOrbitAreUnusable) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  ExpectUnusable(Ellipse(0.0, 0.5), "its elements are no orbit");
  ExpectUnusable(Ellipse(-1.0, 0.5), "its elements are no orbit");
  ExpectUnusable(Ellipse(-1.0, 1.5), "its elements are no orbit");
  ExpectUnusable(Ellipse(1.0, -0.5), "its elements are no orbit");
  ExpectUnusable(Ellipse(nan, 0.5), "its elements are no orbit");
  ExpectUnusable(Ellipse(1.0, nan), "its elements are no orbit");
}

TEST_F(OrbitRecordsTest, ElementsThatAreNotNumbersAreUnusable) {
  for (const double bad :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    for (double OrbitalElements::*member :
         {&OrbitalElements::epoch, &OrbitalElements::i, &OrbitalElements::om, &OrbitalElements::w,
          &OrbitalElements::M0}) {
      OrbitalElements record = Ellipse(1.0, 0.0);
      record.*member = bad;
      ExpectUnusable(record, "its elements are not all numbers");
    }
    OrbitalElements twoLines;
    twoLines.elementSet = kTwoLineElements;
    twoLines.n = bad;
    ExpectUnusable(twoLines, "its elements are not all numbers");
  }
}

TEST_F(OrbitRecordsTest, KeplersElementsMayHoldAnythingInTheMembersOfTwoLineElements) {
  for (double OrbitalElements::*member :
       {&OrbitalElements::meanMotionDot, &OrbitalElements::meanMotionDotDot, &OrbitalElements::dragTerm}) {
    OrbitalElements record = Ellipse(1.0, 0.0);
    record.*member = std::numeric_limits<double>::quiet_NaN();
    EXPECT_DOUBLE_EQ(User(record).n, 2.0);
  }
}

TEST_F(OrbitRecordsTest, TwoLineElementsMayHoldAnythingInTheMembersThatTheirModelLeavesAside) {
  OrbitalElements record;
  record.elementSet = kTwoLineElements;
  record.n = 15.5;
  record.a = record.meanMotionDot = record.meanMotionDotDot = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(User(record).tag, kTwoLineTag);
  record.dragTerm = std::numeric_limits<double>::infinity();
  ExpectUnusable(record, "its elements are not all numbers");
}

TEST_F(OrbitRecordsTest, AMeanMotionThatIsNoNumberIsUnusable) {
  ExpectUnusable(Ellipse(1e-200, 0.0), "its elements are not all numbers");  // its cube is 0
}

TEST_F(OrbitRecordsTest, ABrightnessThatIsNoNumberIsUnknown) {
  OrbitalElements record = Ellipse(1.0, 0.0);
  record.absMagnitude = std::numeric_limits<float>::quiet_NaN();
  record.slope = std::numeric_limits<float>::infinity();
  EXPECT_EQ(User(record).absMagnitude, 999999.0f);
  EXPECT_EQ(User(record).slope, 0.0f);
}

}  // namespace
