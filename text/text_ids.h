// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The identifiers of the texts that the library takes from the string table; object types have their
// four-character codes besides. Translations are keyed by them: never renumber. What each text is, its
// arguments and its room stand in text_uses.cpp.
#pragma once

namespace CommonInterfaces {
namespace TextIds {

enum TextId : unsigned {
  // Messages and types.
  kUnknownElementType = 0,
  kFirstSubType = 1,  // to kLastSubType: types of deep-sky objects, by sub-type code
  kFirstNebula = 30,
  kLastNebula = 36,
  kFirstCluster = 40,
  kLastCluster = 45,
  kFirstGalaxy = 61,
  kLastGalaxy = 68,
  kLastSubType = 255,
  kPlanetsUnreadable = 3007,
  kFirstShower = 6101,  // to kLastShower
  kLastShower = 7199,
  kFirstMoonType = 20261,  // to kLastMoonType: types of moons, Mars to planet 9
  kLastMoonType = 20266,

  // Places.
  kWest = 965,  // letters of hemispheres
  kEast = 966,
  kNorth = 967,
  kSouth = 968,
  kInOrbit = 1125,  // captions of the place, by moving type
  kFarFromSun = 1127,
  kOnBoard = 1131,
  kLanding = 1132,
  kApproaching = 1141,
  kLeaving = 1142,
  kAmongGalaxies = 1152,
  kOnSurface = 1157,
  kAboveSurface = 1158,
  kFreeFlight = 1159,
  kFirstUnit = 1160,  // to kLastUnit: distance units, by DistanceUnit
  kLastUnit = 1167,
  kPositionNearSurface = 7208,
  kPositionInSpace = 7209,
  kDistanceNearSurface = 7211,
  kDistanceInSpace = 7212,
  kBelowSurface = 14300,

  // The view.
  kFirstPlane = 5011,  // to kLastPlane: reference planes, by the code of the base plane
  kLastPlane = 5014,
  kCenteredOn = 7214,
  kLockedOn = 7215,
  kDirectionByHours = 7216,
  kDirectionByDegrees = 7217,
  kDirectionOther = 7218,
  kSlope = 7219,
  kZoom = 7220,
  kFieldOfView = 7227,
  kPlaneCaption = 15400,

  // Dates and times.
  kFirstMonth = 971,  // to kLastMonth: inside a date
  kLastMonth = 982,
  kFirstMonthAlone = 1971,  // to kLastMonthAlone: in languages that decline
  kLastMonthAlone = 1982,
  kTimeCaption = 7200,  // of local time; those of the other time kinds follow in their order
  kUniversalTimeCaption = 7201,
  kThirdTimeCaption = 7202,
  kEra = 7203,
  kEraBefore = 7204,
  kThirdTimeDate = 7207,
  kDaylightSaving = 7228,
  kOneDay = 13063,
  kFewDays = 130631,   // 2 to 4
  kManyDays = 130632,  // 5 to 20
  kDateOrder = 20560,
  kLongDatePattern = 40830,

  // Transliteration: the bytes and, one further, their replacements.
  kSingles = 14000,
  kSingleReplacements = 14001,
  kDoubles = 14002,
  kDoubleReplacements = 14003,
};

}  // namespace TextIds
}  // namespace CommonInterfaces
