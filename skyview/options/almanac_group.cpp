// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/almanac_group.h"

#include <string_view>

#include "skyview/options/stop.h"
#include "utils/numbers.h"
#include "utils/text.h"

namespace skyview {
namespace {

constexpr double kApertures[] = {7.0, 50.0, 200.0};                // mm, by Equipment
constexpr double kFirstBinoculars = 15.0, kFirstTelescope = 80.0;  // mm
constexpr double kLeastAperture = 5.0, kMostAperture = 5000.0;

template <class Value>
struct Word {
  std::string_view word;
  Value value;
};

template <class Value, std::size_t kCount>
std::optional<Value> FindWord(const Word<Value> (&words)[kCount], std::string_view text) {
  for (const auto& word : words) {
    if (word.word == text) return word.value;
  }
  return std::nullopt;
}

constexpr Word<Equipment> kEquipment[] = {
    {"eye", Equipment::kEye}, {"binoculars", Equipment::kBinoculars}, {"telescope", Equipment::kTelescope}};
constexpr Word<TextFormat> kPageFormats[] = {{"text", TextFormat::kText}, {"json", TextFormat::kJson}};
constexpr Word<TextFormat> kEventFormats[] = {{"table", TextFormat::kText},
                                              {"csv", TextFormat::kCsv},
                                              {"json", TextFormat::kJson},
                                              {"ics", TextFormat::kCalendar}};

std::optional<double> ParseAperture(std::string_view text) {
  double aperture = 0.0;
  if (!TakeNumber(text, aperture) || !text.empty()) return std::nullopt;
  if (!(aperture >= kLeastAperture && aperture <= kMostAperture)) return std::nullopt;
  return aperture;
}

bool ReadKinds(const std::string& text, EventOptions& options) {
  for (const auto& kind : GetSubStrings(text.c_str(), ',')) {
    if (kind.empty()) return false;
    options.kinds.push_back(kind);
  }
  return !text.empty();
}

constexpr OptionRow<EquipmentOptions> kEquipmentRows[] = {
    {{"--equipment", "eye|binoculars|telescope",
      "list what can be seen with it: 50 mm binoculars (default), a telescope of 200 mm"},
     Times::kOnce,
     [](const std::string& text, EquipmentOptions& options) {
       return Put(FindWord(kEquipment, text), options.equipment);
     }},
    {{"--aperture", "MM", "the opening of the equipment in millimetres, 5 to 5000"},
     Times::kOnce,
     [](const std::string& text, EquipmentOptions& options) {
       return Put(ParseAperture(text), options.aperture);
     }}};

constexpr OptionRow<PageOptions> kPageRows[] = {
    {{"--format", "text|json", "how the page is written (default: text)"},
     Times::kOnce,
     [](const std::string& text, PageOptions& options) {
       return Put(FindWord(kPageFormats, text), options.format);
     }}};

constexpr OptionRow<EventOptions> kEventRows[] = {
    {{"--kind", "KIND[,KIND...]", "only events of these kinds or groups of kinds; help: lists them"},
     Times::kAgain,
     ReadKinds},
    {{"--format", "table|csv|json|ics", "how they are written (default: table); ics: iCalendar"},
     Times::kOnce,
     [](const std::string& text, EventOptions& options) {
       return Put(FindWord(kEventFormats, text), options.format);
     }},
    {{"--out", "FILE", "write them to this file, which is replaced whole"},
     Times::kOnce,
     [](const std::string& text, EventOptions& options) { return Put(ParseName(text), options.out); }}};

}  // namespace

Equipment EquipmentOptions::GetEquipment() const {
  if (equipment) return *equipment;
  if (!aperture || (*aperture >= kFirstBinoculars && *aperture < kFirstTelescope))
    return Equipment::kBinoculars;
  return *aperture < kFirstBinoculars ? Equipment::kEye : Equipment::kTelescope;
}

double EquipmentOptions::GetAperture() const {
  return aperture.value_or(kApertures[static_cast<int>(GetEquipment())]);
}

const OptionGroup<EquipmentOptions> kEquipmentGroup = {"Equipment", kEquipmentRows, nullptr};
const OptionGroup<PageOptions> kPageGroup = {"Page", kPageRows, nullptr};
const OptionGroup<EventOptions> kEventGroup = {"Events", kEventRows, nullptr};

}  // namespace skyview
