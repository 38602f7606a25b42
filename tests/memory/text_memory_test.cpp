// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The string table and what is made of its texts while memory runs out.
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <memory>

#include "common_interfaces/camera.h"
#include "common_interfaces/dates.h"
#include "common_interfaces/status_strings.h"
#include "common_interfaces/string_table.h"
#include "common_interfaces/text_formats.h"
#include "memory/every_allocation.h"
#include "support/string_table_file.h"
#include "utils/timezone.h"

namespace test_support {
namespace {

using namespace CommonInterfaces;
using namespace memory_tests;

std::string Table(const char* word) {
  std::string table;
  for (int i = 1; i < 60; ++i) table += std::to_string(i) + '\t' + word + " %d of many\n";
  return table;
}

std::string TextOf(unsigned identifier) {
  const char* const text = QX4Strings::GetString(identifier, true);
  return text ? text : "none";
}

// The old texts go on being answered until the new ones are whole.
TEST(TextMemory, TableIsLoadedAnew) {
  const TempRoots roots;
  const auto prepare = [&] {
    LoadStrings(roots, Table("old"));
    roots.dir.Write("data/qxstrings.txt", Table("new"));
    QX4Strings::StartLocaleUpdate();
    return std::make_unique<int>();
  };
  FailEveryAllocation(
      prepare, [](int&) { QX4Strings strings; }, [](int&) { return TextOf(1) + TextOf(59) + TextOf(60); });
  QX4Strings::FinishLocaleUpdate();
}

template <class Make>
void FailText(Make make) {
  FailEveryAllocation(
      [] { return std::make_unique<std::string>("an earlier text that is longer than a short one"); },
      [&](std::string& text) { text = make(); }, [](const std::string& text) { return text; });
}

class TextsMemory : public testing::Test {
 protected:
  TextsMemory() {
    std::ifstream shipped(CI_DATA_SOURCE "/strings/en/qxstrings.txt", std::ios::binary);
    LoadStrings(m_Roots, std::string(std::istreambuf_iterator<char>(shipped), {}));
  }

  TempRoots m_Roots;
};

TEST_F(TextsMemory, TextsAreFormatted) {
  FailText([] { return FormatLocalizedText(3007, {"a file with a long name, media:find:table.bin"}); });
  FailText([] { return FindFormatFault("%d of %s, and of no other", "d"); });
}

TEST_F(TextsMemory, StatusTextsAreMade) {
  Camera camera(1);
  camera.CreateDefault();
  camera.SetLocationName("a place with a name that is longer than a short one");
  FailText([&] { return GetTimeString(&camera) + GetDateString(&camera) + GetLocationString(&camera); });
  FailText([&] {
    return GetPositionCoordString(&camera, 0, 0) + GetDistanceString(&camera) + GetZoomString(&camera);
  });
  FailText([&] { return GetDirectionString(&camera, 0, 0, 0) + GetFoV(&camera) + GetSlopeString(&camera); });
}

TEST_F(TextsMemory, DatesAreMade) {
  FailText([] {
    return getDate(2460000.5) + GetDateString(2027, 3, 4) + ", and something that needs room behind it";
  });
  FailText([] { return GetMonthList().back() + GetMonth(3) + ", and something that needs room behind it"; });
}

// What was read is kept for the process, so that each time another zone is asked for.
TEST(ZonesMemory, ZoneThatCouldNotBeReadIsReadTheNextTime) {
  const memory_tests::NoLines quiet;
  int failed = 0;
  for (int hours = -14; hours <= 12; ++hours) {
    if (hours == 0) continue;
    const std::string zone = (hours < 0 ? "Etc/GMT-" : "Etc/GMT+") + std::to_string(std::abs(hours));
    host_test::FailAllocationAfter(failed);
    bool threw = false;
    try {
      isTimezoneKnown(zone.c_str());
    } catch (const std::bad_alloc&) {
      threw = true;
    }
    host_test::FailAllocationAfter(-1);
    EXPECT_NEAR(getLocalUTCDeltaForTimezone(zone.c_str(), 2460000.5), -hours / 24.0, 1e-9) << zone;
    if (threw) ++failed;
  }
  EXPECT_GT(failed, 10) << "allocations";
}

}  // namespace
}  // namespace test_support
