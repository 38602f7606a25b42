// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The values of what surrounds a picture: each text by every reader. What is read is written as a text that
// reads as the same.
#include <string>

#include "fuzz/scratch.h"
#include "scene/chart/light_curve.h"
#include "scene/session/chart_values.h"
#include "scene/session/image_group_names.h"
#include "scene/session/mark_text.h"
#include "scene/session/orbit_request.h"

namespace {

using fuzz::Require;

bool IsBetween(double value, double from, double to) { return value >= from && value <= to; }

void CheckSensor(const std::string& text) {
  const auto sensor = scene::ParseSensor(text);
  if (!sensor) return;
  Require(sensor->width > 0.0 && sensor->width <= 1000.0 && sensor->height > 0.0 && sensor->height <= 1000.0,
          "sides of a sensor");
  Require(IsBetween(sensor->focalLength, 1.0, 100000.0) && IsBetween(sensor->angle, -360.0, 360.0),
          "focal length and angle");
  Require(scene::ParseSensor(scene::FormatSensor(*sensor)) == sensor, "a sensor that was written");
}

void CheckPage(const std::string& text) {
  const auto page = scene::ParsePage(text);
  if (!page) return;
  Require((page->width > page->height) == page->landscape, "a page lies as it says");
  Require(scene::ParsePage(scene::FormatPage(*page)) == page, "a page that was written");
}

void CheckMark(const std::string& text) {
  const auto mark = scene::ParseMark(text);
  if (!mark) return;
  Require(IsBetween(mark->ra, 0.0, 360.0) && IsBetween(mark->dec, -90.0, 90.0), "a place of the sky");
  const auto again = scene::ParseMark(scene::FormatMark(*mark));
  Require(again && again->ra == mark->ra && again->dec == mark->dec, "a mark that was written");
  Require(again->id.value_or(0) == mark->id.value_or(0), "and its identifier");
}

void CheckOrbits(const std::string& text) {
  const auto orbits = scene::ParseOrbits(text);
  if (!orbits) return;
  const std::string written = scene::FormatOrbits(*orbits);
  const auto again = scene::ParseOrbits(written);
  Require(again && again->planets == orbits->planets && again->moons == orbits->moons &&
              again->all == orbits->all && again->names == orbits->names,
          "orbits that were written");
}

void CheckNumbers(const std::string& text) {
  if (const auto style = scene::ParseChartStyle(text))
    Require(scene::FormatChartStyle(*style) == text, "a style has one word");
  if (const auto field = scene::ParseEyepiece(text)) Require(IsBetween(*field, 0.001, 120.0), "a field");
  if (const auto bortle = scene::ParseBortle(text)) Require(IsBetween(*bortle, 1, 9), "a class of darkness");
  if (const auto limit = scene::ParseLimitMagnitude(text)) Require(IsBetween(*limit, 0.0, 6.5), "a limit");
  if (const auto choice = scene::ParseLandscapeChoice(text))
    Require(*choice == scene::kNoLandscape || *choice >= 0, "a landscape or none");
  if (const auto size = scene::ParseSize(text))
    Require(IsBetween(size->width, 64, 16384) && IsBetween(size->height, 64, 16384), "a size");
  if (const auto isOn = scene::ParseSwitch(text)) Require(text == (*isOn ? "on" : "off"), "a switch");
  if (const auto groups = scene::ParseImageGroups(text)) Require(*groups != 0, "groups of images");
}

void CheckVariableStar(const std::string& text) {
  const scene::VariableStar* const star = scene::FindVariableStar(text);
  if (star) Require(scene::FindVariableStar(star->name) == star, "a variable star is found by its name");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckSensor(text);
  CheckPage(text);
  CheckMark(text);
  CheckOrbits(text);
  CheckNumbers(text);
  CheckVariableStar(text);
  return 0;
}
