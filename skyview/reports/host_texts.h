// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// skyview's own texts in the string table, in the range of numbers that belongs to applications.
#pragma once

#include <initializer_list>
#include <string>

#include "common_interfaces/text_formats.h"
#include "scene/catalogs/texts.h"

namespace skyview {

enum class HostText : int {
  kProgramName = 900000,
  kPlace,
  kCoordinates,
  kDate,
  kCentre,
  kDirection,
  kUniversalTime,
  kLocalTime,
  kRefraction,
  kMagnitudeLimits,
  kStarsDrawn,
  kDeepskyDrawn,
  kZoomOfView,
  kZoom,
  kLimitsOfClass,
  kFirstClass = 900021,    // the classes of objects in the order of the report
  kEarthAsPlace = 900100,  // the Earth as it follows the captions of the place
  kFavourites = 900201,
  kActiveShowers = 900211,
  kShower,
  kStanding,
  kPeakToday,
  kDaysToPeak,
  kDaysSincePeak,
  kParent = 900221,  // captions of what is known of a body
  kMoons,
  kGazetteer,
  kPanorama,
  kDefaultPanorama,
  kFileMissing,
  kBodiesDrawn = 900300,
  kSunSeen,
  kBodySeen,
  kLunarEclipse = 900306,
  kSolarEclipse,
  kSolarEclipseElsewhere,
  kSatelliteSeen,
  kSatelliteSunlit,
  kSatelliteInShadow,
  kOutsideModel,
  kFirstLunarEclipse = 900315,  // penumbral, partial, total
  kFirstSolarEclipse = 900318,  // partial, annular, total
  kFirstPlanetPhase = 900331,   // evening: crescent, half, gibbous, full; then the same in the morning
  kCurveDate = 900361,
  kCurveMagnitude,
  kChoseTonightAtHome = 900371,  // what is shown when neither view nor time is given
  kChoseTonightThere,
  kChoseTonight,
  kChoseNow,
  kMoonChartTitle = 900670,
  kEast,
  kWest,
  kMoonChartNote,
  kNightDates,
  kNightPlace,
  kTwilight,
  kSunItself,
  kCivil,
  kNautical,
  kAstronomical,
  kEveningUntil,
  kMorningFrom,
  kFirstDarkness = 900684,  // by scene::Darkness
  kMoonless = 900689,
  kNeverMoonless,
  kMoonOfNight,
  kRise,  // heads of tables
  kTransit,
  kSet,
  kBest,
  kAltitude,
  kMagnitude,
  kSize,
  kConstellation,
  kPlanets,
  kWhatIsBest,
  kNakedEye,
  kBinoculars,
  kTelescope,
  kFromMoon,
  kSmallBodies,
  kShowersOfNight,
  kRate,
  kMaximum,
  kPeakNow,
  kPeakIn,
  kPeakAgo,
  kSatellites,
  kJupiterMoons,
  kFirstMoonPhenomenon,  // by astro::MoonPhenomenon
  kNextDays = 900719,
  kNone,
  kAlwaysUp,
  kAlwaysDown,
  kTowards,
  kHoursAndMinutes,
  kKind,
  kYearTitle = 900777,
  kYearChartTitle,
  kYearChartNote,
  kFirstYearPart,  // seasons, phases, eclipses, planets, showers
  kBodyRises = 900785,
  kBodySets,
};

// What is done with each of them, ascending by identifier. Static data.
const CommonInterfaces::TextUse* GetHostTexts(int* count);

// The text, formatted with its arguments, which are in the code page of the language, as the result is. ""
// when the table lacks it or it does not fit, with one diagnostic line.
std::string Localize(HostText text, std::initializer_list<CommonInterfaces::FormatArgument> arguments);

}  // namespace skyview
