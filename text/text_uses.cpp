// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>

#include "common_interfaces/text_formats.h"
#include "text/text_ids.h"
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

constexpr TextUse One(TextIds::TextId identifier, const char* arguments, int maxLength, bool isRequired,
                      const char* use) {
  return {identifier, identifier, arguments, maxLength, isRequired, use};
}

using namespace TextIds;
constexpr TextUse kUses[] = {
    One(kUnknownElementType, kNoFormat, kMessage, true,
        "message: a settings field has an unknown element type"),
    {kFirstSubType, kFirstNebula - 1, kNoFormat, kText, false, "type of a deep-sky object, by sub-type code"},
    {kFirstNebula, kLastNebula, kNoFormat, kText, true, "type of a nebula, by sub-type code"},
    {kLastNebula + 1, kFirstCluster - 1, kNoFormat, kText, false,
     "type of a deep-sky object, by sub-type code"},
    {kFirstCluster, kLastCluster, kNoFormat, kText, true,
     "type of a star cluster or group, by sub-type code"},
    {kLastCluster + 1, kFirstGalaxy - 1, kNoFormat, kText, false,
     "type of a deep-sky object, by sub-type code"},
    {kFirstGalaxy, kLastGalaxy, kNoFormat, kText, true, "type of a galaxy, by sub-type code"},
    {kLastGalaxy + 1, kLastSubType, kNoFormat, kText, false, "type of a deep-sky object, by sub-type code"},
    One(kWest, kNoFormat, 1, true, "hemisphere letter west"),
    One(kEast, kNoFormat, 1, true, "hemisphere letter east"),
    One(kNorth, kNoFormat, 1, true, "hemisphere letter north"),
    One(kSouth, kNoFormat, 1, true, "hemisphere letter south"),
    {kFirstMonth, kLastMonth, kNoFormat, kWord, true, "month name inside a date"},
    One(kInOrbit, kNoFormat, kPiece, true, "location caption: in orbit"),
    One(kFarFromSun, kNoFormat, kPiece, true, "location caption: far from the Sun"),
    One(kOnBoard, kNoFormat, kPiece, true, "location caption: on board"),
    One(kLanding, kNoFormat, kPiece, true, "location caption: landing"),
    One(kApproaching, kNoFormat, kPiece, true, "location caption: approaching"),
    One(kLeaving, kNoFormat, kPiece, true, "location caption: leaving"),
    One(kAmongGalaxies, kNoFormat, kPiece, true, "location caption: among the galaxies"),
    One(kOnSurface, kNoFormat, kPiece, true, "location caption: on a surface"),
    One(kAboveSurface, kNoFormat, kPiece, true, "location caption: above a surface"),
    One(kFreeFlight, kNoFormat, kPiece, true, "location caption: free flight"),
    {kFirstUnit, kLastUnit, kNoFormat, kWord, true, "name of a distance unit"},
    {kFirstMonthAlone, kLastMonthAlone, kNoFormat, kWord, true,
     "month name that stands alone, in languages that decline it"},
    One(kPlanetsUnreadable, "s", kMessage, true, "message: planets and moons cannot be read; path"),
    {kFirstPlane, kLastPlane, kNoFormat, kPiece, true, "name of a reference plane"},
    {kFirstShower, kLastShower, kNoFormat, kMessage, false, "meteor shower, fields between semicolons"},
    One(kTimeCaption, kNoFormat, kText, true, "caption of local time"),
    One(kUniversalTimeCaption, kNoFormat, kText, true, "caption of Universal Time"),
    One(kThirdTimeCaption, kNoFormat, kText, true, "caption of the third kind of time"),
    One(kEra, kNoFormat, kWord, true, "era word of years from 0 on"),
    One(kEraBefore, kNoFormat, kWord, true, "era word of years before 0"),
    One(kThirdTimeDate, kNoArguments, kText, true, "date text of the third kind of time"),
    One(kPositionNearSurface, "ddfcddfc", kFormat, true,
        "position near a surface: degrees, minutes, seconds, letter, twice"),
    One(kPositionInSpace, "ddfcddfc", kFormat, true,
        "position in space: degrees, minutes, seconds, letter, twice"),
    One(kDistanceNearSurface, "fs", kFormat, true, "distance near a surface: value, unit"),
    One(kDistanceInSpace, "fs", kFormat, true, "distance in space: value, unit"),
    One(kCenteredOn, "s", kFormat, true, "object in the centre of the view: name"),
    One(kLockedOn, "s", kFormat, true, "object that the view is locked on: name"),
    One(kDirectionByHours, "ddfddf", kFormat, true,
        "direction: hours, minutes, seconds; degrees, minutes, seconds"),
    One(kDirectionByDegrees, "ddfddf", kFormat, true,
        "direction at the horizon: degrees, minutes, seconds, twice"),
    One(kDirectionOther, "ddfddf", kFormat, true,
        "direction from any other plane: degrees, minutes, seconds, twice"),
    One(kSlope, "d", kFormat, true, "slope: degrees"),
    One(kZoom, "f", kFormat, true, "zoom: factor"),
    One(kFieldOfView, "ss", kFormat, true, "field of view: across, up"),
    One(kDaylightSaving, kNoFormat, kWord, false, "mark of daylight saving"),
    One(kOneDay, kNoFormat, kWord, true, "word for one day"),
    One(kSingles, kNoFormat, kTable, true, "transliteration: bytes to replace by one"),
    One(kSingleReplacements, kNoFormat, kTable, true, "transliteration: their replacements"),
    One(kDoubles, kNoFormat, kTable, true, "transliteration: bytes to replace by two"),
    One(kDoubleReplacements, kNoFormat, 2 * kTable, true,
        "transliteration: their replacements, two bytes each"),
    One(kBelowSurface, kNoFormat, kWord, false, "appended to the location below a surface"),
    One(kPlaneCaption, kNoFormat, kPiece, true, "caption of the reference plane"),
    {kFirstMoonType, kLastMoonType, kNoFormat, kText, true, "type of a moon, by its planet"},
    One(kDateOrder, kNoFormat, kWord, true, "order of numeric dates: 0, 1 or 2"),
    One(kLongDatePattern, kNoFormat, kWord, true, "pattern of long dates"),
    One(kFewDays, kNoFormat, kWord, true, "word for two to four days"),
    One(kManyDays, kNoFormat, kWord, true, "word for five and more days"),
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
