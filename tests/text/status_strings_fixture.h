// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "astro/julian_date.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/date.h"
#include "common_interfaces/status_strings.h"
#include "support/camera_settings.h"
#include "support/debug_capture.h"
#include "support/string_table_file.h"

namespace test_support {

inline constexpr double kDegree = std::numbers::pi / 180;

// A caller's buffer of the promised size between guards. It begins full of other bytes, without a terminator.
class GuardedText {
 public:
  GuardedText() { std::memset(m_Bytes, kFill, sizeof m_Bytes); }
  char* Get() { return m_Bytes + kGuard; }
  bool IsUntouched() const {
    return std::all_of(std::begin(m_Bytes), std::end(m_Bytes), [](char c) { return c == kFill; });
  }
  // The text; a mistake of the function under test otherwise.
  std::string Read() const {
    const char* const begin = m_Bytes + kGuard;
    EXPECT_NE(std::memchr(begin, '\0', CommonInterfaces::kStatusTextSize), nullptr) << "not terminated";
    for (int i = 0; i < kGuard; ++i) {
      EXPECT_EQ(m_Bytes[i], kFill) << "written before the buffer";
      EXPECT_EQ(begin[CommonInterfaces::kStatusTextSize + i], kFill) << "written behind the buffer";
    }
    return std::string(begin, strnlen(begin, CommonInterfaces::kStatusTextSize));
  }

 private:
  static size_t strnlen(const char* text, size_t most) {
    const void* const end = std::memchr(text, '\0', most);
    return end ? static_cast<size_t>(static_cast<const char*>(end) - text) : most;
  }
  static constexpr int kGuard = 64;
  static constexpr char kFill = '\x5A';
  char m_Bytes[2 * kGuard + CommonInterfaces::kStatusTextSize];
};

// A camera with its built-in defaults and a table of the test's own.
class StatusTextTest : public testing::Test {
 protected:
  StatusTextTest() { camera.CreateDefault(); }

  void Load(std::string_view table) {
    LoadStrings(roots, table);
    debug.lines.clear();
  }

  // Puts a camera in place that read the shipped record with `field` in place of its own.
  void ReadCameraWith(const RecordField& field) {
    RecordFields fields = CameraFields();
    ReplaceField(fields, field);
    std::remove(roots.dir.Path("data/filters.data").c_str());
    WriteCameraDefaults(roots, fields);
    CommonInterfaces::Camera reader(1);
    ASSERT_TRUE(reader.ReadSelf(nullptr, kCAMR));
    camera = reader;
  }
  void SetMovingType(int type) { ReadCameraWith(Int8("m_ObsMovingType", type)); }

  void SetTime(const CalendarDate& date, int kind) {
    CommonInterfaces::_Date time;
    DJ(date, time.day, time.fraction);
    time.type = kind;
    camera.SetUniversalTime(time);
  }

  // "text|caption", by way of the string form, after comparing it with the buffer form.
  std::string Time() {
    std::string caption;
    const std::string text = CommonInterfaces::GetTimeString(&camera, caption);
    GuardedText textBuffer, captionBuffer;
    CommonInterfaces::GetTimeString(&camera, textBuffer.Get(), captionBuffer.Get());
    EXPECT_EQ(textBuffer.Read(), text.substr(0, CommonInterfaces::kStatusTextSize - 1));
    EXPECT_EQ(captionBuffer.Read(), caption.substr(0, CommonInterfaces::kStatusTextSize - 1));
    EXPECT_EQ(CommonInterfaces::GetTimeString(&camera), text);
    return text + "|" + caption;
  }
  std::string Date() {
    std::string caption;
    const std::string text = CommonInterfaces::GetDateString(&camera, caption);
    GuardedText textBuffer, captionBuffer;
    CommonInterfaces::GetDateString(&camera, textBuffer.Get(), captionBuffer.Get());
    EXPECT_EQ(textBuffer.Read(), text.substr(0, CommonInterfaces::kStatusTextSize - 1));
    EXPECT_EQ(captionBuffer.Read(), caption.substr(0, CommonInterfaces::kStatusTextSize - 1));
    EXPECT_EQ(CommonInterfaces::GetDateString(&camera), text);
    return text + "|" + caption;
  }

  TempRoots roots;
  DebugCapture debug;
  CommonInterfaces::Camera camera{1};
};

using Lines = std::vector<std::string>;

}  // namespace test_support
