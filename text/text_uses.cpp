// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>

#include "common_interfaces/text_formats.h"
#include "utils/text.h"

namespace CommonInterfaces {
namespace {

// Bytes. A status text as a whole has 255; its pieces are chosen so that they fit together.
constexpr int kText = 255;
constexpr int kPiece = 100;
constexpr int kFormat = 200;
constexpr int kWord = 64;
constexpr int kMessage = 1000;
constexpr int kTable = 128;  // the bytes from 0x80 on

constexpr const char* kNoFormat = nullptr;
constexpr const char* kNoArguments = "";

constexpr TextUse TypeName(const char (&code)[5], const char* use) {
  const auto identifier = static_cast<unsigned>(FourCC(code));
  return {identifier, identifier, kNoFormat, kText, true, use};
}

constexpr TextUse kUses[] = {
    {0, 0, kNoFormat, kMessage, true, "message: a settings field has an unknown element type"},
    {1, 29, kNoFormat, kText, false, "type of a deep-sky object, by sub-type code"},
    {30, 33, kNoFormat, kText, true, "type of a nebula, by sub-type code"},
    {34, 39, kNoFormat, kText, false, "type of a deep-sky object, by sub-type code"},
    {40, 44, kNoFormat, kText, true, "type of a star cluster or group, by sub-type code"},
    {45, 60, kNoFormat, kText, false, "type of a deep-sky object, by sub-type code"},
    {61, 64, kNoFormat, kText, true, "type of a galaxy, by sub-type code"},
    {65, 255, kNoFormat, kText, false, "type of a deep-sky object, by sub-type code"},
    {965, 965, kNoFormat, 1, true, "hemisphere letter west"},
    {966, 966, kNoFormat, 1, true, "hemisphere letter east"},
    {967, 967, kNoFormat, 1, true, "hemisphere letter north"},
    {968, 968, kNoFormat, 1, true, "hemisphere letter south"},
    {971, 982, kNoFormat, kWord, true, "month name inside a date"},
    {1125, 1125, kNoFormat, kPiece, true, "location caption: in orbit"},
    {1127, 1127, kNoFormat, kPiece, true, "location caption: far from the Sun"},
    {1131, 1131, kNoFormat, kPiece, true, "location caption: on board"},
    {1132, 1132, kNoFormat, kPiece, true, "location caption: landing"},
    {1141, 1141, kNoFormat, kPiece, true, "location caption: approaching"},
    {1142, 1142, kNoFormat, kPiece, true, "location caption: leaving"},
    {1152, 1152, kNoFormat, kPiece, true, "location caption: among the galaxies"},
    {1157, 1157, kNoFormat, kPiece, true, "location caption: on a surface"},
    {1158, 1158, kNoFormat, kPiece, true, "location caption: above a surface"},
    {1159, 1159, kNoFormat, kPiece, true, "location caption: free flight"},
    {1160, 1167, kNoFormat, kWord, true, "name of a distance unit"},
    {1971, 1982, kNoFormat, kWord, true, "month name that stands alone, in languages that decline it"},
    {3007, 3007, "s", kMessage, true, "message: planets and moons cannot be read; path"},
    {5011, 5014, kNoFormat, kPiece, true, "name of a reference plane"},
    {6101, 7199, kNoFormat, kMessage, false, "meteor shower, fields between semicolons"},
    {7200, 7200, kNoFormat, kText, true, "caption of local time"},
    {7201, 7201, kNoFormat, kText, true, "caption of Universal Time"},
    {7202, 7202, kNoFormat, kText, true, "caption of the third kind of time"},
    {7203, 7203, kNoFormat, kWord, true, "era word of years from 0 on"},
    {7204, 7204, kNoFormat, kWord, true, "era word of years before 0"},
    {7207, 7207, kNoArguments, kText, true, "date text of the third kind of time"},
    {7208, 7208, "ddfcddfc", kFormat, true,
     "position near a surface: degrees, minutes, seconds, letter, twice"},
    {7209, 7209, "ddfcddfc", kFormat, true, "position in space: degrees, minutes, seconds, letter, twice"},
    {7211, 7211, "fs", kFormat, true, "distance near a surface: value, unit"},
    {7212, 7212, "fs", kFormat, true, "distance in space: value, unit"},
    {7214, 7214, "s", kFormat, true, "object in the centre of the view: name"},
    {7215, 7215, "s", kFormat, true, "object that the view is locked on: name"},
    {7216, 7216, "ddfddf", kFormat, true, "direction: hours, minutes, seconds; degrees, minutes, seconds"},
    {7217, 7217, "ddfddf", kFormat, true, "direction at the horizon: degrees, minutes, seconds, twice"},
    {7218, 7218, "ddfddf", kFormat, true, "direction from any other plane: degrees, minutes, seconds, twice"},
    {7219, 7219, "d", kFormat, true, "slope: degrees"},
    {7220, 7220, "f", kFormat, true, "zoom: factor"},
    {7227, 7227, "ss", kFormat, true, "field of view: across, up"},
    {7228, 7228, kNoFormat, kWord, false, "mark of daylight saving"},
    {13063, 13063, kNoFormat, kWord, true, "word for one day"},
    {14000, 14000, kNoFormat, kTable, true, "transliteration: bytes to replace by one"},
    {14001, 14001, kNoFormat, kTable, true, "transliteration: their replacements"},
    {14002, 14002, kNoFormat, kTable, true, "transliteration: bytes to replace by two"},
    {14003, 14003, kNoFormat, 2 * kTable, true, "transliteration: their replacements, two bytes each"},
    {14300, 14300, kNoFormat, kWord, false, "appended to the location below a surface"},
    {15400, 15400, kNoFormat, kPiece, true, "caption of the reference plane"},
    {20261, 20266, kNoFormat, kText, true, "type of a moon, by its planet"},
    {20560, 20560, kNoFormat, kWord, true, "order of numeric dates: 0, 1 or 2"},
    {40830, 40830, kNoFormat, kWord, true, "pattern of long dates"},
    {130631, 130631, kNoFormat, kWord, true, "word for two to four days"},
    {130632, 130632, kNoFormat, kWord, true, "word for five and more days"},
    TypeName("astr", "type name: asteroid"),
    TypeName("cnst", "type name: constellation"),
    TypeName("comt", "type name: comet"),
    TypeName("moon", "type name: moon"),
    TypeName("pldw", "type name: dwarf planet"),
    TypeName("plnt", "type name: planet"),
    TypeName("scft", "type name: spacecraft"),
    TypeName("star", "type name: star"),
    TypeName("uCLS", "type name: star cluster of the user"),
    TypeName("uDSO", "type name: deep-sky object of the user"),
    TypeName("uGAL", "type name: galaxy of the user"),
    TypeName("uNEB", "type name: nebula of the user"),
};

constexpr bool IsAscending() {
  for (std::size_t i = 0; i < std::size(kUses); ++i) {
    if (kUses[i].first > kUses[i].last) return false;
    if (i > 0 && kUses[i - 1].last >= kUses[i].first) return false;
  }
  return true;
}
static_assert(IsAscending());

}  // namespace

const TextUse* GetTextUses(int* count) {
  if (count != nullptr) *count = static_cast<int>(std::size(kUses));
  return kUses;
}

const TextUse* FindTextUse(unsigned identifier) {
  const TextUse* const found =
      std::lower_bound(std::begin(kUses), std::end(kUses), identifier,
                       [](const TextUse& use, unsigned wanted) { return use.last < wanted; });
  return found != std::end(kUses) && found->first <= identifier ? found : nullptr;
}

}  // namespace CommonInterfaces
