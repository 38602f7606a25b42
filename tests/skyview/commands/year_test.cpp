// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The chart of a year, as it is written.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "paint/picture_file.h"
#include "skyview/small_sky.h"
#include "utils/numbers.h"

using host_test::SmallSky;

namespace {

using Arguments = std::vector<std::string>;

struct WrittenText {
  double y, size;  // pixels
};

// The number behind `name`, for example of y="12.5".
double ReadAttribute(const std::string& element, const std::string& name) {
  const auto begin = element.find(" " + name + "=\"") + name.size() + 3;
  return ParseNumber(element.substr(begin, element.find('"', begin) - begin), 0.0, 1e4)
      .value_or(std::nan(""));
}

std::optional<WrittenText> FindText(const std::string& svg, const std::string& text) {
  const auto end = svg.find(">" + text + "</text>");
  if (end == std::string::npos) return std::nullopt;
  const auto begin = svg.rfind("<text ", end);
  const std::string element = svg.substr(begin, end - begin);
  return WrittenText{ReadAttribute(element, "y"), ReadAttribute(element, "font-size")};
}

// The night of the chart, 0 the first of January, at whose middle an event's name stands. The names of months
// stand 18 units below the beginning of the first night and have 15 units, those of events stand 0.35 of
// their size below the middle of theirs.
double FindNight(const std::string& svg, const std::string& event) {
  const auto january = FindText(svg, "January"), december = FindText(svg, "December");
  const auto name = FindText(svg, event);
  if (!january || !december || !name) return std::nan("");
  const double begin = january->y - 18.0 / 15.0 * january->size;
  const double night = (december->y - january->y) / 334.0;
  return (name->y - 0.35 * name->size - begin) / night - 0.5;
}

}  // namespace

// The year's clocks are those of its winter, also where it begins in summer. June solstice on the 21st at
// 14:11 UT, 9:11 in New York, in the night after the 20th, 170 days after the first of January; September
// equinox on the 23rd at 6:02 UT, 16:02 in Sydney, in the night after the 23rd, 265 days after it.
TEST(YearCommand, ChartHasTheHoursOfStandardTimeAndEventsAtTheirNights) {
  SmallSky sky;
  const std::string file = sky.dir.Path("year.svg");
  const struct {
    const char *zone, *place, *hours, *event;
    int night;
  } cases[] = {{"America/New_York", "40.7,-74.0", "Hours: UT-05:00 all year", "June solstice", 170},
               {"Australia/Sydney", "-33.9,151.2", "Hours: UT+10:00 all year", "September equinox", 265}};
  for (const auto& c : cases) {
    const Arguments year = {"year", "2027", "--place", c.place, "--zone", c.zone, "--out", file};
    ASSERT_EQ(sky.Run(year), paint::CanDraw() ? 0 : 1) << sky.errors.str();
    ASSERT_EQ(std::filesystem::exists(file), paint::CanDraw());
    if (!paint::CanDraw()) continue;
    const std::string svg = sky.dir.Read("year.svg");
    EXPECT_NE(svg.find(c.hours), std::string::npos) << c.zone;
    EXPECT_NEAR(FindNight(svg, c.event), c.night, 0.1) << c.zone;
  }
}
