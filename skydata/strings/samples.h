// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the library's functions make of the texts of the string table, for sample cameras, dates and numbers.
#pragma once

#include <string>
#include <vector>

namespace skydata {

struct TextSample {
  std::string identifiers;  // of the texts that it is made of, separated by blanks
  std::string use;
  std::string text;  // in the code page of the string table
};
using TextSamples = std::vector<TextSample>;

// All of them use the string table as it is loaded, and the system locale; for the thread of the string
// table.
void AddTimeSamples(TextSamples& samples);    // clock, dates, months, numbers of days
void AddPlaceSamples(TextSamples& samples);   // where the observer is, how far
void AddViewSamples(TextSamples& samples);    // centred object, direction, plane, slope, zoom, field of view
void AddObjectSamples(TextSamples& samples);  // types of objects, messages, transliteration

}  // namespace skydata
