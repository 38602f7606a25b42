// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_kinds.h"
#include "common_interfaces/record_lines.h"
#include "common_interfaces/string_table.h"
#include "common_interfaces/text_formats.h"
#include "skydata/strings/samples.h"

namespace skydata {
namespace {

using CommonInterfaces::QX4Strings;

constexpr unsigned kUnknownElementType = 0, kPlanetsUnreadable = 3007;

std::string GetText(unsigned identifier) {
  const char* const text = QX4Strings::GetString(identifier, true);
  return text ? text : "";
}

void AddMoons(TextSamples& samples) {
  for (int planet = 4; planet <= 9; ++planet) {
    const char* const type = CommonInterfaces::GetMoonOfParentTypeName(planet * 100 + 1);
    samples.push_back({std::to_string(20257 + planet), "type of a moon, by its planet", type ? type : ""});
  }
}

// What is in the tables, in plain Latin letters.
void AddTransliteration(unsigned characters, const char* identifiers, TextSamples& samples) {
  const std::string text = GetText(characters);
  samples.push_back({identifiers, "transliteration", text + " -> " + StringToNear(text)});
}

}  // namespace

void AddObjectSamples(TextSamples& samples) {
  AddMoons(samples);
  AddTransliteration(14000, "14000 14001", samples);
  AddTransliteration(14002, "14002 14003", samples);
  samples.push_back(
      {"0", "message: settings field of an unknown element type", GetText(kUnknownElementType)});
  samples.push_back({"3007", "message: planets and moons cannot be read",
                     CommonInterfaces::FormatLocalizedText(kPlanetsUnreadable, {"catalogs/planets.txt"})});
}

}  // namespace skydata
