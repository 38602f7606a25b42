// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "output/database_record.h"

#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/field_data.h"
#include "common_interfaces/field_names.h"
#include "output/recorded_conversion.h"

using namespace CommonInterfaces;
using test_support::MadeUpRecord;

namespace {

template <class T>
double Read(unsigned type, T value) {
  MadeUpRecord record;
  record.Set("n", type, std::vector<T>{value});
  double number = -77.0;
  EXPECT_TRUE(GetFieldNumber(record, FieldIds::n, number));
  return number;
}

TEST(DatabaseRecordTest, TheEndsOfEveryEncodingAreRead) {
  EXPECT_EQ(Read<signed char>(kFieldInt8, -128), -128.0);
  EXPECT_EQ(Read<signed char>(kFieldInt8, 127), 127.0);
  EXPECT_EQ(Read<unsigned char>(kFieldUInt8, 255), 255.0);
  EXPECT_EQ(Read<short>(kFieldInt16, -32768), -32768.0);
  EXPECT_EQ(Read<unsigned short>(kFieldUInt16, 65535), 65535.0);
  EXPECT_EQ(Read<int>(kFieldInt32, std::numeric_limits<int>::min()), -2147483648.0);
  EXPECT_EQ(Read<unsigned>(kFieldUInt32, 0xFFFFFFFF), 4294967295.0);
  EXPECT_EQ(Read<float>(kFieldFloat, 0.1f), double{0.1f});
  EXPECT_EQ(Read<double>(kFieldDouble, 1e300), 1e300);
  EXPECT_EQ(Read<unsigned char>(kFieldBytes, 200), 200.0);
}

TEST(DatabaseRecordTest, AMissingFieldLeavesTheValue) {
  const MadeUpRecord record;
  double number = 5.0;
  float small = 6.0f;
  EXPECT_FALSE(GetFieldNumber(record, FieldIds::n, number));
  EXPECT_FALSE(GetFieldNumber(record, FieldIds::n, small));
  EXPECT_EQ(number, 5.0);
  EXPECT_EQ(small, 6.0f);
}

TEST(DatabaseRecordTest, AnUnknownTypeIsAMissingField) {
  MadeUpRecord record;
  for (const unsigned type : {9u, 255u, 0x80000000u}) {
    record.Set("n", type, std::vector<double>{1.0});
    double number = 5.0;
    EXPECT_FALSE(GetFieldNumber(record, FieldIds::n, number));
    EXPECT_EQ(number, 5.0);
  }
}

TEST(DatabaseRecordTest, SeveralValuesAreReadAllOrNone) {
  MadeUpRecord record;
  record.Set("CenterVector", kFieldInt16, std::vector<short>{-1, 2, -3});
  double values[3] = {7.0, 8.0, 9.0};
  EXPECT_TRUE(GetFieldNumbers(record, FieldIds::CenterVector, values, 3));
  EXPECT_EQ(values[0], -1.0);
  EXPECT_EQ(values[1], 2.0);
  EXPECT_EQ(values[2], -3.0);
  record.Set("CenterVector", kFieldFloat,
             std::vector<float>{1.0f, std::numeric_limits<float>::quiet_NaN(), 3.0f});
  EXPECT_FALSE(GetFieldNumbers(record, FieldIds::CenterVector, values, 3));
  EXPECT_EQ(values[0], -1.0);
  EXPECT_EQ(values[2], -3.0);
}

TEST(DatabaseRecordTest, AFloatTakesTheLargestFloatAndNothingBeyond) {
  MadeUpRecord record;
  float small = 6.0f;
  const double largest = std::numeric_limits<float>::max();
  record.SetDouble("n", largest);
  EXPECT_TRUE(GetFieldNumber(record, FieldIds::n, small));
  EXPECT_EQ(small, std::numeric_limits<float>::max());
  record.SetDouble("n", -2.0 * largest);
  EXPECT_FALSE(GetFieldNumber(record, FieldIds::n, small));
  EXPECT_EQ(small, std::numeric_limits<float>::max());
}

}  // namespace
