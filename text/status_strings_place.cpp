// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/coordinates.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/status_strings.h"
#include "common_interfaces/text_formats.h"
#include "common_interfaces/units.h"
#include "text/status_strings_text.h"
#include "text/text_ids.h"

namespace CommonInterfaces {
namespace {

// By moving type.
constexpr unsigned kCaptions[] = {TextIds::kOnSurface,     TextIds::kAboveSurface, TextIds::kInOrbit,
                                  TextIds::kFreeFlight,    TextIds::kFarFromSun,   TextIds::kOnBoard,
                                  TextIds::kLanding,       TextIds::kApproaching,  TextIds::kLeaving,
                                  TextIds::kAmongGalaxies, TextIds::kFarFromSun,   TextIds::kFarFromSun};
constexpr int kMovingTypes = 12;
constexpr int kFreeFlight = 3;

std::string GetCaption(int movingType) {
  if (movingType >= kMovingTypes) return "";
  std::string caption = GetTableText(kCaptions[movingType]);
  caption.erase(caption.find_last_not_of('.') + 1);
  return caption;
}

bool IsCaptionAlone(int movingType) {
  return movingType == 4 || (movingType >= 9 && movingType < kMovingTypes);
}

const char* GetBelowSurfaceText() {
  const char* const text = FindOptionalText(TextIds::kBelowSurface);
  return text != nullptr ? text : "BELOW SURFACE";
}

unsigned GetLetterText(char letter) {
  switch (letter) {
    case 'W':
      return TextIds::kWest;
    case 'E':
      return TextIds::kEast;
    case 'N':
      return TextIds::kNorth;
    default:
      return TextIds::kSouth;
  }
}

char TranslateLetter(char letter) {
  const std::string text = GetTableText(GetLetterText(letter));
  return text.empty() ? letter : text[0];
}

}  // namespace

std::string GetLocationString(Camera* camera) {
  if (camera == nullptr) return "";
  const int movingType = static_cast<unsigned char>(camera->GetMovingType());
  std::string text = GetCaption(movingType);
  if (!IsCaptionAlone(movingType)) text += ' ' + camera->GetLocationName();
  // Nothing in between: a translation chooses its own separator.
  if (movingType == kFreeFlight && camera->IsBelowSurface()) text += GetBelowSurfaceText();
  return text;
}

std::string GetPositionCoordString(Camera* camera, int surfaceFormat, int spaceFormat) {
  if (camera == nullptr) return "";
  const PlaceKind kind = GetPlaceKind(camera->GetMovingType());
  if (kind == PlaceKind::kNone) return "";
  const SphCoor& place = camera->GetLocation();
  M_DMSTag lon, lat;
  char lonLetter = 'E', latLetter = 'N';
  LonLatForObjects(place.lon, place.lat, lon, lonLetter, lat, latLetter);
  const int format = kind == PlaceKind::kSurface ? surfaceFormat : spaceFormat;
  return FormatLocalizedText(
      static_cast<unsigned>(format),
      {lon.degrees, lon.minutes, static_cast<double>(lon.seconds), TranslateLetter(lonLetter), lat.degrees,
       lat.minutes, static_cast<double>(lat.seconds), TranslateLetter(latLetter)});
}

std::string GetDistanceString(Camera* camera) {
  if (camera == nullptr) return "";
  const PlaceKind kind = GetPlaceKind(camera->GetMovingType());
  if (kind == PlaceKind::kNone) return "";
  const SphCoor& place = camera->GetLocation();
  const int unit = static_cast<signed char>(place.distUnits);
  const std::string unitName = GetTableText(TextIds::kFirstUnit + static_cast<unsigned>(unit));
  const double distance = ConvertUnitFromAU(place.dist, static_cast<char>(unit));
  const bool isNear = kind == PlaceKind::kSurface;
  return FormatLocalizedText(isNear ? TextIds::kDistanceNearSurface : TextIds::kDistanceInSpace,
                             {distance, unitName.c_str()});
}

void GetLocationString(Camera* camera, char* text) {
  if (text != nullptr) CopyStatusText(GetLocationString(camera), text);
}

void GetPositionCoordString(Camera* camera, char* text, int surfaceFormat, int spaceFormat) {
  if (text != nullptr) CopyStatusText(GetPositionCoordString(camera, surfaceFormat, spaceFormat), text);
}

void GetDistanceString(Camera* camera, char* text) {
  if (text != nullptr) CopyStatusText(GetDistanceString(camera), text);
}

}  // namespace CommonInterfaces
