// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "text/dates_format.h"

#include <climits>
#include <cstring>
#include <string>

#include <gtest/gtest.h>

namespace CommonInterfaces {
namespace {

constexpr short kDate[] = {5, 3, 2024};

TEST(DatesFormat, KnownFormatsOrderDayMonthAndYear) {
  EXPECT_EQ(FormatShortDate(0, kDate), "03/05/2024");
  EXPECT_EQ(FormatShortDate(1, kDate), "05/03/2024");
  EXPECT_EQ(FormatShortDate(2, kDate), "2024/03/05");
}

TEST(DatesFormat, KnownFormatsOrderDayAndMonth) {
  EXPECT_EQ(FormatDayMonth(0, kDate), "03/05");
  EXPECT_EQ(FormatDayMonth(1, kDate), "05/03");
  EXPECT_EQ(FormatDayMonth(2, kDate), "03/05");
}

TEST(DatesFormat, UnknownFormatsGiveNothing) {
  for (const int format : {-1, 3, 20560, INT_MIN, INT_MAX}) {
    EXPECT_EQ(FormatShortDate(format, kDate), "") << format;
    EXPECT_EQ(FormatDayMonth(format, kDate), "") << format;
  }
}

TEST(DatesFormat, NothingIsCopiedOfAnEmptyText) {
  char buffer[] = "untouched";
  EXPECT_FALSE(CopyToBuffer(buffer, ""));
  EXPECT_STREQ(buffer, "untouched");
  EXPECT_FALSE(CopyToBuffer(nullptr, "text"));
}

TEST(DatesFormat, BufferGetsAtMost256BytesAndIsTerminated) {
  for (const unsigned length : {1u, 254u, 255u, 256u, 300u}) {
    char buffer[258];
    std::memset(buffer, '#', sizeof buffer);
    ASSERT_TRUE(CopyToBuffer(buffer, std::string(length, 'x')));
    const unsigned kept = length < 255u ? length : 255u;
    EXPECT_EQ(std::string(buffer), std::string(kept, 'x'));
    EXPECT_EQ(buffer[kept + 1], '#') << length;
  }
}

}  // namespace
}  // namespace CommonInterfaces
