// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/record_conversion.h"

#include <array>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "output/recorded_conversion.h"
#include "support/debug_capture.h"

using namespace CommonInterfaces;
using test_support::DebugCapture;
using test_support::MadeUpRecord;
using test_support::RecordingModel;

namespace {

// 0.001 * 4.84813681109536e-06 radians
constexpr double kMilliarcsecond = 4.84813681109536e-09;
constexpr float kUnknown = 999999.0f;
constexpr float kUnknownDeepsky = 9999.0f;
const int kDeepskyKinds[] = {FourCC("gala"), FourCC("nebu"), FourCC("clst"), FourCC("dsnv"), FourCC("uDSO")};

int SubType(int code) { return static_cast<int>(static_cast<unsigned>(code) << 24 | 31u); }

class RecordConversionTest : public testing::Test {
 protected:
  int Convert(const SSO_ID& object, short mode = kConvertAimObject) {
    SSO_ID id = object;
    const int result = ConvertDBRecord(id, &db, nullptr, &model, mode);
    EXPECT_TRUE(id == object);
    return result;
  }

  const RecordingModel::Call& Converted(const SSO_ID& object, short mode = kConvertAimObject) {
    model.calls.clear();
    EXPECT_EQ(Convert(object, mode), 1);
    EXPECT_EQ(model.calls.size(), 1u);
    if (model.calls.empty()) model.calls.emplace_back();
    EXPECT_TRUE(model.calls[0].id == object);
    return model.calls[0];
  }

  StarRecord Star() { return Converted(SSO_ID(FourCC("star"), 7)).star; }
  DeepskyRecord Deepsky(int number) { return Converted(SSO_ID(FourCC("clst"), number)).deepsky; }
  ConstellationRecord Constellation() { return Converted(SSO_ID(FourCC("cnst"), 1)).constellation; }

  MadeUpRecord db;
  RecordingModel model;
};

TEST_F(RecordConversionTest, AStarHasItsFieldsInTheModelsUnits) {
  db.SetDouble("RA", 1.25);
  db.SetDouble("Dec", -0.5);
  db.SetFloat("PropMotionRA", -546.0f);
  db.SetFloat("PropMotionDec", 1223.0f);
  db.SetFloat("Parallax", 200.0f);
  db.SetFloat("RadialVelocity", -12.5f);
  db.SetFloat("Radius", 1.5f);
  db.SetFloat("Magnitude", 1.0f);
  db.SetFloat("VisMagnitude", 2.0f);
  db.SetFloat("BlueMagnitude", 3.0f);
  db.SetFloat("AbsMagnitude", -4.0f);
  for (const int kind : {FourCC("star"), FourCC("uSTR")}) {
    const StarRecord star = Converted(SSO_ID(kind, 5)).star;
    EXPECT_EQ(star.ra, 1.25);
    EXPECT_EQ(star.dec, -0.5);
    EXPECT_DOUBLE_EQ(star.properMotionRA, -546.0 * kMilliarcsecond);
    EXPECT_DOUBLE_EQ(star.properMotionDec, 1223.0 * kMilliarcsecond);
    EXPECT_DOUBLE_EQ(star.parallax, 200.0 * kMilliarcsecond);
    EXPECT_EQ(star.radialVelocity, -12.5f);
    EXPECT_EQ(star.radius, 1.5f);
    EXPECT_EQ(star.magnitude, 1.0f);
    EXPECT_EQ(star.visMagnitude, 2.0f);
    EXPECT_EQ(star.blueMagnitude, 3.0f);
    EXPECT_EQ(star.absMagnitude, -4.0f);
  }
}

TEST_F(RecordConversionTest, AStarWithoutFieldsHasTheDefaults) {
  const StarRecord star = Star();
  for (const double value : {star.ra, star.dec, star.properMotionRA, star.properMotionDec, star.parallax,
                             double{star.radialVelocity}, double{star.radius}}) {
    EXPECT_EQ(value, 0.0);
  }
  for (const float magnitude : {star.magnitude, star.visMagnitude, star.blueMagnitude, star.absMagnitude}) {
    EXPECT_EQ(magnitude, kUnknown);
  }
}

TEST_F(RecordConversionTest, ProperMotionIsTakenAs16BitIntegersAndAsFloats) {
  db.SetShort("PropMotionRA", -798);
  db.SetShort("PropMotionDec", 10328);
  const StarRecord integers = Star();
  EXPECT_DOUBLE_EQ(integers.properMotionRA, -798.0 * kMilliarcsecond);
  EXPECT_DOUBLE_EQ(integers.properMotionDec, 10328.0 * kMilliarcsecond);
  db.SetFloat("PropMotionRA", -798.25f);
  db.SetFloat("PropMotionDec", 10328.5f);
  const StarRecord floats = Star();
  EXPECT_DOUBLE_EQ(floats.properMotionRA, -798.25 * kMilliarcsecond);
  EXPECT_DOUBLE_EQ(floats.properMotionDec, 10328.5 * kMilliarcsecond);
}

TEST_F(RecordConversionTest, EveryFieldOfAStarIsTakenInEveryEncoding) {
  for (unsigned type = kFieldInt8; type <= kFieldBytes; ++type) {
    int value = 1;
    for (const char* name : {"RA", "Dec", "PropMotionRA", "PropMotionDec", "Parallax", "RadialVelocity",
                             "Radius", "Magnitude", "VisMagnitude", "BlueMagnitude", "AbsMagnitude"}) {
      db.SetEncoded(name, type, {value++});
    }
    const StarRecord star = Star();
    EXPECT_EQ(star.ra, 1.0) << type;
    EXPECT_EQ(star.dec, 2.0) << type;
    EXPECT_DOUBLE_EQ(star.properMotionRA, 3.0 * kMilliarcsecond) << type;
    EXPECT_DOUBLE_EQ(star.properMotionDec, 4.0 * kMilliarcsecond) << type;
    EXPECT_DOUBLE_EQ(star.parallax, 5.0 * kMilliarcsecond) << type;
    EXPECT_EQ(star.radialVelocity, 6.0f) << type;
    EXPECT_EQ(star.radius, 7.0f) << type;
    EXPECT_EQ(star.magnitude, 8.0f) << type;
    EXPECT_EQ(star.visMagnitude, 9.0f) << type;
    EXPECT_EQ(star.blueMagnitude, 10.0f) << type;
    EXPECT_EQ(star.absMagnitude, 11.0f) << type;
  }
}

TEST_F(RecordConversionTest, EveryFieldOfADeepskyObjectIsTakenInEveryEncoding) {
  for (unsigned type = kFieldInt8; type <= kFieldBytes; ++type) {
    int value = 1;
    for (const char* name : {"RA", "Dec", "LargestDimension", "VisMagnitude", "BlueMagnitude", "Distance"}) {
      db.SetEncoded(name, type, {value++});
    }
    const DeepskyRecord object = Deepsky(SubType(40));
    EXPECT_EQ(object.ra, 1.0) << type;
    EXPECT_EQ(object.dec, 2.0) << type;
    EXPECT_EQ(object.angularSize, 3.0) << type;
    EXPECT_EQ(object.visMagnitude, 4.0f) << type;
    EXPECT_EQ(object.blueMagnitude, 5.0f) << type;
    EXPECT_DOUBLE_EQ(object.parallax, 4.848137e-06 / 6) << type;
    EXPECT_DOUBLE_EQ(Deepsky(SubType(50)).parallax, 4.848137e-09 / 6) << type;
  }
}

TEST_F(RecordConversionTest, AFieldThatIsNoFiniteNumberIsMissing) {
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity()}) {
    db.SetDouble("RA", bad);
    db.SetDouble("Parallax", bad);
    db.SetFloat("VisMagnitude", static_cast<float>(bad));
    const StarRecord star = Star();
    EXPECT_EQ(star.ra, 0.0);
    EXPECT_EQ(star.parallax, 0.0);
    EXPECT_EQ(star.visMagnitude, kUnknown);
  }
}

TEST_F(RecordConversionTest, AFieldOfAnUnknownTypeIsMissing) {
  const std::vector<double> values{1.0, 2.0, 3.0};
  for (const unsigned type : {9u, 10u, 255u, 256u, 0xFFFFFFFFu}) {
    db.Set("RA", type, values);
    db.Set("VisMagnitude", type, values);
    db.Set("CenterVector", type, values);
    EXPECT_EQ(Star().ra, 0.0) << type;
    EXPECT_EQ(Star().visMagnitude, kUnknown) << type;
    EXPECT_EQ(Constellation().center[0], 0.0) << type;
  }
}

TEST_F(RecordConversionTest, AValueBeyondTheRangeOfItsTargetIsMissing) {
  db.SetDouble("VisMagnitude", 1e39);
  db.SetDouble("RadialVelocity", -1e300);
  EXPECT_EQ(Star().visMagnitude, kUnknown);
  EXPECT_EQ(Star().radialVelocity, 0.0f);
}

TEST_F(RecordConversionTest, DeepskyMagnitudesStartAt9999AndSizesAt0) {
  for (const int kind : kDeepskyKinds) {
    const DeepskyRecord object = Converted(SSO_ID(kind, SubType(50))).deepsky;
    EXPECT_EQ(object.visMagnitude, kUnknownDeepsky);
    EXPECT_EQ(object.blueMagnitude, kUnknownDeepsky);
    for (const double value :
         {object.ra, object.dec, object.parallax, object.angularSize, double{object.linearSize}}) {
      EXPECT_EQ(value, 0.0);
    }
  }
}

TEST_F(RecordConversionTest, EveryDeepskyKindIsReadAlike) {
  db.SetDouble("RA", 2.5);
  db.SetDouble("Dec", -1.25);
  db.SetFloat("VisMagnitude", 8.5f);
  db.SetFloat("LargestDimension", 0.25f);
  for (const int kind : kDeepskyKinds) {
    const DeepskyRecord object = Converted(SSO_ID(kind, SubType(62))).deepsky;
    EXPECT_EQ(object.ra, 2.5);
    EXPECT_EQ(object.dec, -1.25);
    EXPECT_EQ(object.visMagnitude, 8.5f);
    EXPECT_EQ(object.angularSize, 0.25);
  }
}

TEST_F(RecordConversionTest, SubType50TakesTheDistanceInKiloparsecsAndMakesASizeOfIt) {
  db.SetFloat("LargestDimension", 0.0078125f);
  db.SetFloat("Distance", 2.5f);
  const DeepskyRecord object = Deepsky(SubType(50));
  // 0.00390625 * 2500 pc * 206264.8062470964 au/pc
  EXPECT_FLOAT_EQ(object.linearSize, 2014304.8f);
  EXPECT_DOUBLE_EQ(object.parallax, 1.9392548e-09);  // 4.848137e-09 / 2.5
}

TEST_F(RecordConversionTest, SubTypes40And41TakeTheDistanceInParsecs) {
  db.SetFloat("LargestDimension", 0.0078125f);
  db.SetShort("Distance", 4000);
  for (const int code : {40, 41}) {
    const DeepskyRecord object = Deepsky(SubType(code));
    EXPECT_DOUBLE_EQ(object.parallax, 1.21203425e-09) << code;  // 4.848137e-06 / 4000
    EXPECT_EQ(object.linearSize, 0.0f) << code;
  }
}

TEST_F(RecordConversionTest, OtherSubTypesIgnoreTheDistance) {
  db.SetFloat("LargestDimension", 0.0078125f);
  db.SetShort("Distance", 4000);
  for (int code = 0; code < 256; ++code) {
    if (code == 40 || code == 41 || code == 50) continue;
    const DeepskyRecord object = Deepsky(SubType(code));
    EXPECT_EQ(object.parallax, 0.0) << code;
    EXPECT_EQ(object.linearSize, 0.0f) << code;
  }
}

TEST_F(RecordConversionTest, OnlyTheTopByteOfTheNumberIsTheSubType) {
  db.SetShort("Distance", 4000);
  EXPECT_EQ(Deepsky(40).parallax, 0.0);
  EXPECT_EQ(Deepsky(40 << 16).parallax, 0.0);
  EXPECT_GT(Deepsky((40 << 24) | 0xFFFFFF).parallax, 0.0);
}

TEST_F(RecordConversionTest, ADistanceThatIsNotPositiveIsUnknown) {
  db.SetFloat("LargestDimension", 0.0078125f);
  for (const float distance : {0.0f, -2.5f, -0.0f}) {
    db.SetFloat("Distance", distance);
    for (const int code : {40, 41, 50}) {
      EXPECT_EQ(Deepsky(SubType(code)).parallax, 0.0) << distance;
      EXPECT_EQ(Deepsky(SubType(code)).linearSize, 0.0f) << distance;
    }
  }
}

TEST_F(RecordConversionTest, ADistanceThatGivesNoNumberIsUnknown) {
  db.SetFloat("LargestDimension", 0.0078125f);
  db.SetDouble("Distance", 5e-324);
  EXPECT_EQ(Deepsky(SubType(40)).parallax, 0.0);
  db.SetDouble("Distance", 1e300);
  EXPECT_EQ(Deepsky(SubType(50)).linearSize, 0.0f);
  EXPECT_EQ(Deepsky(SubType(50)).parallax, 0.0);
}

TEST_F(RecordConversionTest, TheCentreOfAConstellationIsMadeAUnitVector) {
  db.Set("CenterVector", kFieldInt16, std::vector<short>{-20000, 10000, 20000});
  const ConstellationRecord constellation = Constellation();
  EXPECT_DOUBLE_EQ(constellation.center[0], -2.0 / 3.0);
  EXPECT_DOUBLE_EQ(constellation.center[1], 1.0 / 3.0);
  EXPECT_DOUBLE_EQ(constellation.center[2], 2.0 / 3.0);
}

TEST_F(RecordConversionTest, TheCentreIsTakenInEveryEncoding) {
  for (unsigned type = kFieldInt8; type <= kFieldBytes; ++type) {
    db.SetEncoded("CenterVector", type, {3, 0, 4});
    const ConstellationRecord constellation = Constellation();
    EXPECT_DOUBLE_EQ(constellation.center[0], 0.6) << type;
    EXPECT_EQ(constellation.center[1], 0.0) << type;
    EXPECT_DOUBLE_EQ(constellation.center[2], 0.8) << type;
  }
}

TEST_F(RecordConversionTest, ACentreWithoutDirectionIsUnusableAndSaysSo) {
  db.Set("CenterVector", kFieldInt16, std::vector<short>{0, 0, 0});
  DebugCapture capture;
  EXPECT_EQ(Convert(SSO_ID(FourCC("cnst"), 12)), -1);
  EXPECT_EQ(capture.lines, std::vector<std::string>{"Object cnst 12: its centre has no direction\n"});
  db.Set("CenterVector", kFieldDouble, std::vector<double>{1e300, 1e300, 0.0});  // too long to be measured
  EXPECT_EQ(Convert(SSO_ID(FourCC("cnst"), 12)), -1);
  EXPECT_TRUE(model.calls.empty());
}

TEST_F(RecordConversionTest, AMissingCentreStaysAtZero) {
  EXPECT_EQ(Constellation().center[2], 0.0);
  const double nan = std::numeric_limits<double>::quiet_NaN();
  db.Set("CenterVector", kFieldDouble, std::vector<double>{1.0, 0.0, nan});
  for (const double component : Constellation().center) EXPECT_EQ(component, 0.0);
}

TEST_F(RecordConversionTest, EveryModeGoesToItsOperation) {
  const SSO_ID star(FourCC("star"), 7);
  EXPECT_EQ(Converted(star, 0).operation, "aim");
  EXPECT_EQ(Converted(star, 1).operation, "locate");
  EXPECT_EQ(Converted(star, 2).operation, "additional");
  EXPECT_EQ(Converted(star, 3).operation, "integration");
}

TEST_F(RecordConversionTest, AnyOtherModeConvertsAndHandsNothingOver) {
  for (const short mode : {short{-1}, short{4}, short{256}, std::numeric_limits<short>::min(),
                           std::numeric_limits<short>::max()}) {
    EXPECT_EQ(Convert(SSO_ID(FourCC("star"), 7), mode), 1) << mode;
    EXPECT_EQ(Convert(SSO_ID(FourCC("comt"), 7), mode), 1) << mode;
  }
  EXPECT_TRUE(model.calls.empty());
}

TEST_F(RecordConversionTest, UnknownKindsDoNothingAtAll) {
  DebugCapture capture;
  OrbitalElements elements;
  for (const int kind : {FourCC("uNEB"), FourCC("uCLS"), FourCC("uGAL"), FourCC("plnt"), FourCC("moon"),
                         FourCC("STAR"), -1, 0, 7}) {
    SSO_ID id(kind, 3);
    EXPECT_EQ(ConvertDBRecord(id, &db, reinterpret_cast<unsigned char*>(&elements), &model, 0), 0) << kind;
    EXPECT_EQ(ConvertDBRecord(id, nullptr, nullptr, nullptr, 0), 0) << kind;
  }
  EXPECT_TRUE(model.calls.empty());
  EXPECT_TRUE(capture.lines.empty());
}

TEST_F(RecordConversionTest, WithoutADatabaseItsKindsAreUnusableAndOneLineSaysSo) {
  for (const int kind : {FourCC("star"), FourCC("uSTR"), FourCC("gala"), FourCC("nebu"), FourCC("clst"),
                         FourCC("dsnv"), FourCC("uDSO"), FourCC("cnst"), FourCC("comt"), FourCC("astr")}) {
    DebugCapture capture;
    SSO_ID id(kind, 5);
    OrbitalElements elements;
    EXPECT_EQ(ConvertDBRecord(id, nullptr, reinterpret_cast<unsigned char*>(&elements), &model, 0), -1)
        << kind;
    ASSERT_EQ(capture.lines.size(), 1u);
    EXPECT_EQ(capture.lines[0].substr(12), "5: no database to convert it from\n");
  }
  EXPECT_TRUE(model.calls.empty());
}

TEST_F(RecordConversionTest, WithoutAModelEveryKindIsUnusableAndOneLineSaysSo) {
  for (const int kind :
       {FourCC("star"), FourCC("clst"), FourCC("cnst"), FourCC("comt"), FourCC("scft"), FourCC("fAST")}) {
    DebugCapture capture;
    SSO_ID id(kind, 5);
    OrbitalElements elements;
    EXPECT_EQ(ConvertDBRecord(id, &db, reinterpret_cast<unsigned char*>(&elements), nullptr, 0), -1) << kind;
    ASSERT_EQ(capture.lines.size(), 1u);
    EXPECT_EQ(capture.lines[0].substr(12), "5: no solar-system model to hand it to\n");
  }
}

TEST(SetDataToSolSysTest, EveryModeGoesToItsOperationWithThePointerItself) {
  RecordingModel model;
  StarRecord star;
  const SSO_ID id(FourCC("star"), 9);
  for (short mode = -3; mode < 8; ++mode) SetDataToSolSys(id, &star, &model, mode);
  ASSERT_EQ(model.calls.size(), 4u);
  const char* expected[] = {"aim", "locate", "additional", "integration"};
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(model.calls[i].operation, expected[i]);
    EXPECT_EQ(model.calls[i].data, &star);
    EXPECT_TRUE(model.calls[i].id == id);
  }
}

TEST(SetDataToSolSysTest, NoDataIsHandedOnToo) {
  RecordingModel model;
  SetDataToSolSys(SSO_ID(FourCC("plnt"), 4), nullptr, &model, kConvertAimObject);
  ASSERT_EQ(model.calls.size(), 1u);
  EXPECT_EQ(model.calls[0].data, nullptr);
}

TEST(SetDataToSolSysTest, WithoutAModelOneLineSaysSo) {
  DebugCapture capture;
  SetDataToSolSys(SSO_ID(0x01414243, -5), nullptr, nullptr, kConvertAimObject);
  EXPECT_EQ(capture.lines, std::vector<std::string>{"Object ?ABC -5: no solar-system model to hand it to\n"});
}

}  // namespace
