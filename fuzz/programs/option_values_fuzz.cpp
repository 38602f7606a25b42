// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The command line of skyview: one text by every reader of values, and its lines as arguments.
#include <string>
#include <vector>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "scene/words/moment_text.h"
#include "skyview/options/almanac_group.h"
#include "skyview/options/chart_group.h"
#include "skyview/options/command_line.h"
#include "skyview/options/day_span.h"
#include "skyview/options/motion_values.h"
#include "skyview/options/option_values.h"
#include "skyview/options/picture_group.h"
#include "skyview/options/settings_group.h"
#include "skyview/options/sky_group.h"
#include "skyview/options/stop.h"
#include "skyview/options/view_group.h"

namespace {

using fuzz::Require;
using namespace skyview;

bool IsBetween(double value, double from, double to) { return value >= from && value <= to; }

void CheckPlaces(const std::string& text) {
  if (const auto file = ParseViewFile(text)) Require(file->id >= 1, "a view has a number");
  if (const auto place = ParsePlace(text))
    Require(IsBetween(place->latitude, -90, 90) && IsBetween(place->longitude, -180, 180), "a place");
  if (const auto look = ParseLook(text))
    Require(IsBetween(look->azimuth, 0, 360) && IsBetween(look->altitude, -90, 90), "a direction");
  if (const auto aim = ParseAim(text)) {
    Require(!aim->name.empty(), "an aim has a name");
    if (aim->zoom) Require(IsBetween(*aim->zoom, scene::kMinZoom, scene::kMaxZoom), "and a zoom");
  }
  if (const auto pixel = ParsePixel(text))
    Require(IsBetween(pixel->x, 0, 16384) && IsBetween(pixel->y, 0, 16384), "a pixel");
  if (const auto zoom = ParseZoom(text))
    Require(IsBetween(*zoom, scene::kMinZoom, scene::kMaxZoom), "a zoom");
  if (const auto field = ParseField(text)) Require(IsBetween(*field, 0.0001, 359), "a field");
  Require(!ParseSize(text) || !ParsePixel(text), "a size is no pixel");
}

void CheckTimes(const std::string& text) {
  ParseClockTime(text);
  if (const auto time = ParseTime(text)) {
    Require(time->fraction >= -0.5 && time->fraction < 0.5, "a fraction of a civil day");
    if (time->utcOffset) Require(IsBetween(*time->utcOffset, -1.0, 1.0), "an offset is less than a day");
    const std::string written = scene::FormatDay(time->day, time->fraction);
    const auto again = ParseTime(written);
    Require(again && (again->day == time->day || again->day == time->day + 1), "a day that is written");
  }
  for (const auto span : {ParseYear(text), ParseMonth(text), ParseDaySpan(text)}) {
    if (span) Require(span->GetCount() >= 1 && span->GetCount() <= 400 * 366, "a span of days");
  }
}

void CheckMotion(const std::string& text) {
  if (const auto type = ParseMovingType(text)) Require(IsBetween(type->type, 0, 11), "a kind of motion");
  if (const auto play = ParsePlay(text)) Require(play->time || !play->view.empty(), "something changes");
  if (const auto count = ParseFrameCount(text)) Require(IsBetween(*count, 1, kMaxFrames), "frames");
  if (const auto names = FrameNames::Parse(text))
    Require(names->Get(1) != names->Get(2), "pictures have names of their own");
  Require(!IsPictureName(text) || text.size() > 4, "a picture has a name");
}

// The lines of the text as the arguments of a command that takes every group.
void CheckCommandLine(const std::string& text) {
  std::vector<std::string> arguments(1);
  for (const char c : text) {
    if (c == '\n' || c == '\0')
      arguments.emplace_back();
    else
      arguments.back() += c;
  }
  ViewOptions view;
  SatelliteOptions satellites;
  ChartOptions chart;
  PictureOptions picture;
  std::vector<std::string> names;
  CommandLine line("draw", "draws");
  line.Take(kViewGroup, view);
  line.Take(kSatelliteGroup, satellites);
  line.Take(kChartGroup, chart);
  line.Take(kPictureGroup, picture);
  line.TakeNames("NAME", "what to draw", names);
  try {
    line.Parse(arguments);
    for (const std::string& name : names) Require(!name.empty(), "a name is not empty");
  } catch (const Stop& stop) {
    Require(!stop.message.empty(), "what is wrong is told");
    Require(stop.code == kDone || fuzz::IsOneLine(stop.message), "in one line");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckPlaces(text);
  CheckTimes(text);
  CheckMotion(text);
  CheckCommandLine(text);
  return 0;
}
