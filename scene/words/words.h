// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The texts of the string table that tell of objects. Numbers that several places name stand here.
#pragma once

#include <initializer_list>
#include <string>

#include "common_interfaces/text_formats.h"
#include "scene/catalogs/texts.h"

namespace scene {

enum class Word : unsigned {
  kSecondsAcross = 900303,
  kMinutesAcross,
  kDegreesAcross,
  kOutsideModel = 900312,
  kFirstMoonPhase = 900321,  // new moon, then each eighth of the way around
  kWhereJ2000 = 900341,
  kWhereOfDate,
  kWhereDirection,
  kWhereRefraction,
  kWhereMagnitude,
  kWhereSizeAndPhase,
  kWhereSize,
  kWhereRises,
  kWhereTransit,
  kWhereSets,
  kWhereNoRise,
  kWhereNoTransit,
  kWhereNoSet,
  kWhereStaysUp,
  kWhereStaysDown,
  kWhereConstellation = 900357,  // before a colon and the name
  kHiddenBySky = 900431,         // why an object is not drawn: the limit there and its magnitude
  kHiddenByDaylight,
  kBehindLand = 900503,  // likewise
  kTakenForMagnitude,
  kName = 900527,
  kOtherNames,
  kSpectralType,
  kSectionOff,  // why an object is drawn or not, until kDrawn
  kAsterismsOff,
  kKindOff,
  kNeverDrawn,
  kNoPlace,
  kTooFaint,
  kMagnitudeIs,
  kShownAsMagnitude,
  kFromZoom,
  kAtEveryZoom,
  kAtNoZoom,
  kBelowHorizon,
  kOutsidePicture,
  kBehindView,
  kLookThere,
  kBesidePlanet,
  kFarSide,
  kInNight,
  kTooSmall,
  kNoRoomForName,
  kLabelIs,
  kLabelNone,
  kLabelTooFaint,
  kLabelOff,
  kLabelNoRoom,
  kFilterRejects,
  kNoFavourite,
  kNoMemory,
  kDrawn,
  kKind,
  kAsterism = 900560,
  kCrater,
  kSatelliteCrater,
  kLandingSite,
  kOnMoon,
  kOnBody,
  kExtent,
  kSunUpThere,
  kSunDownThere,
  kOnVisibleSide,
  kOnFarSide,
  kStarPair,
  kSeparatedFrom
};

// The text with its arguments, both in the code page of the language; "" when the table lacks it or it does
// not fit, with one diagnostic line.
inline std::string Localize(Word word, std::initializer_list<CommonInterfaces::FormatArgument> arguments) {
  return CommonInterfaces::FormatLocalizedText(static_cast<unsigned>(word), arguments);
}

// The same in UTF-8.
inline std::string Say(Word word, std::initializer_list<CommonInterfaces::FormatArgument> arguments = {}) {
  return ToUtf8(Localize(word, arguments));
}

}  // namespace scene
