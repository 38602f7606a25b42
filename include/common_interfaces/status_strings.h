// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The short texts in which the user reads the state of a view camera. Captions, units and formats come from
// the string table (docs/status_texts.md lists them); texts are in the code page of the table.
//
// Every text has two forms. One returns a std::string of any length. The other writes into the caller's
// buffer of kStatusTextSize bytes: never more than that, always terminated, a longer text cut at the end with
// one line. A null buffer does nothing at all, a null camera gives the empty text.
//
// The functions load the string table when it is not loaded, so they belong to the thread that uses it. A
// text that the table lacks counts as empty, unless said otherwise, and a format that does not fit its
// arguments (text_formats.h) gives the empty text; either is reported in one line. Nothing throws, cameras
// are only read. Numbers do not depend on the process's locale: the decimal mark is a point.
#pragma once

#include <string>

#include "astro/coordinates.h"
#include "common_interfaces/api.h"

namespace CommonInterfaces {

class Camera;

// What a caller's buffer must hold, terminating zero included.
inline constexpr int kStatusTextSize = 256;

// Clock time in the camera's time kind and that kind's caption. The text begins with a blank: " 07:05". It
// shows the last full minute. Local time is followed by the daylight-saving mark while the camera's rule is
// on and the local civil day lies between its first and last day (-1: none, no mark). The third kind of time,
// and a kind that is none of the three, has no text. `caption` may be null.
COMMON_INTERFACES_API void GetTimeString(Camera* camera, char* text, char* caption);
COMMON_INTERFACES_API std::string GetTimeString(Camera* camera);
COMMON_INTERFACES_API std::string GetTimeString(Camera* camera, std::string& caption);

// Date, "05/03/2024 AD": day, month, year, era; and the caption, as for the time. A year before 0 shows its
// magnitude with the era word of negative years, not shifted by one, and year 0 is 0000 of the other era:
// deliberate. The third kind of time has a text of its own instead of a date.
COMMON_INTERFACES_API void GetDateString(Camera* camera, char* text, char* caption);
COMMON_INTERFACES_API std::string GetDateString(Camera* camera);
COMMON_INTERFACES_API std::string GetDateString(Camera* camera, std::string& caption);

// Where the observer is: the caption of the camera's moving type, full stops at its end removed, then (but
// for the types 4, 9, 10 and 11) a blank and the name of the place. A type that is none has an empty caption.
// Type 3 below the surface adds a text without a separator, deliberately: "BELOW SURFACE" if the table has
// none. Files keep no names: behind ReadSelf the text ends in that blank until SetLocationName has named the
// place or the observer's body.
COMMON_INTERFACES_API void GetLocationString(Camera* camera, char* text);
COMMON_INTERFACES_API std::string GetLocationString(Camera* camera);

// Longitude and latitude of the location, by one of two formats of the table: that of `surfaceFormat` for the
// moving types 0 to 2, of `spaceFormat` for 3 to 11; "" for any other. Its arguments: degrees (int), minutes
// (int), seconds (double, to 0.01), hemisphere letter (char) of the longitude, then of the latitude. Values
// are magnitudes, the letter carries the sign. Letters are the first of the table's texts; E, W, N or S where
// the table has none.
COMMON_INTERFACES_API void GetPositionCoordString(Camera* camera, char* text, int surfaceFormat,
                                                  int spaceFormat);
COMMON_INTERFACES_API std::string GetPositionCoordString(Camera* camera, int surfaceFormat, int spaceFormat);

// The distance of the location in the unit of its code: value (double), name of the unit (text). One format
// for the moving types 0 to 2, another for 3 to 11; "" for any other.
COMMON_INTERFACES_API void GetDistanceString(Camera* camera, char* text);
COMMON_INTERFACES_API std::string GetDistanceString(Camera* camera);

// The name of the object that the view is centred on; another format while the direction is locked. "" unless
// both kind and number of the object are at least 0 and it has a name.
COMMON_INTERFACES_API void GetCenterOnString(Camera* camera, char* text);
COMMON_INTERFACES_API std::string GetCenterOnString(Camera* camera);

// The viewing direction, by one of three formats of the table. Direction mode 0 shows the first angle in
// hours with `hoursFormat`, 1 in degrees with `degreesFormat`, any other in degrees with `otherFormat`.
// Arguments: degrees or hours (int), minutes (int), seconds (double, to 0.01) of the first angle, then of the
// second. A negative second angle carries its sign on the first field that is not zero: -30 minutes are 0,
// -30, 0. The mode is the owner's to choose (SetAimingDispType) by the plane that the angles count from:
// behind ReadSelf it is what the record keeps, 0 in the shipped ones, and an azimuth reads as hours. Along
// the horizon the first angle grows over west; an azimuth is 2 pi less it.
COMMON_INTERFACES_API void GetDirectionString(Camera* camera, char* text, int hoursFormat, int degreesFormat,
                                              int otherFormat);
COMMON_INTERFACES_API std::string GetDirectionString(Camera* camera, int hoursFormat, int degreesFormat,
                                                     int otherFormat);

// The caption and, without a separator, the name of the plane that directions count from. False and "" when
// the table lacks one of the two.
COMMON_INTERFACES_API bool GetRefPlane(Camera* camera, char* text);
COMMON_INTERFACES_API std::string GetRefPlane(Camera* camera);

// The slope of the view in whole degrees (int), towards zero, with its sign and not reduced to one turn; at
// most 32767, and 0 for one that is not finite.
COMMON_INTERFACES_API void GetSlopeString(Camera* camera, char* text);
COMMON_INTERFACES_API std::string GetSlopeString(Camera* camera);

// The zoom (double).
COMMON_INTERFACES_API void GetZoomString(Camera* camera, char* text);
COMMON_INTERFACES_API std::string GetZoomString(Camera* camera);

// The extent of the view across and up, through the window's centre: two pieces of text, each in whole
// degrees from 1 degree on, in whole minutes from 1 minute on, else in seconds with two decimals. The degree
// sign is the single byte 0xB0.
COMMON_INTERFACES_API void GetFoV(Camera* camera, char* text);
COMMON_INTERFACES_API std::string GetFoV(Camera* camera);

// An angle in compact form: whole degrees from 10 degrees on; degrees and minutes from 1 degree on; whole
// minutes from 10 minutes on; minutes and seconds from 1 minute on; seconds. Degrees of 0 or less are left
// out, the sign with them, and seconds are rounded to whole ones, so that 59.6 reads 60. The degree sign is
// the two bytes 0xC2 0xB0, unlike that of GetFoV. All of it deliberate. The misspelt name is, too: callers
// are compiled against it.
COMMON_INTERFACES_API void FRomDMS2String(char* text, M_DMSTag const& angle);
COMMON_INTERFACES_API std::string FRomDMS2String(M_DMSTag const& angle);

// The word for days in the grammatical form for that number: one form after 11 to 20, else by the last digit
// (1; 2 to 4; 0 and 5 to 9). 111 to 114 follow their last digit, deliberately. A negative number follows its
// magnitude. A missing form is replaced by that of 1, null when that is missing too. The table owns the text.
COMMON_INTERFACES_API char const* GetNumberDays(int number);

// The name with its first '&' turned into a blank and the Latin letter behind it into the Greek letter of
// that place (code page 1253): "&a CMa" gives " \xE1 CMa". The final sigma has no letter: q is rho, r is
// sigma, s is tau; capitals alike. A name without '&' is returned as it is; behind '&', what is no letter
// stays. Any thread.
COMMON_INTERFACES_API std::string const FormatGreekName(std::string const& name);

}  // namespace CommonInterfaces
