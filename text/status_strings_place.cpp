// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/coordinates.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/status_strings.h"
#include "common_interfaces/text_formats.h"
#include "common_interfaces/units.h"
#include "text/status_strings_text.h"

namespace CommonInterfaces {
namespace {

// By moving type.
constexpr int kCaptions[] = {1157, 1158, 1125, 1159, 1127, 1131, 1132, 1141, 1142, 1152, 1127, 1127};
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
  const char* const text = FindOptionalText(14300);
  return text != nullptr ? text : "BELOW SURFACE";
}

int GetLetterText(char letter) {
  switch (letter) {
    case 'W':
      return 965;
    case 'E':
      return 966;
    case 'N':
      return 967;
    default:
      return 968;
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
  const auto unit = static_cast<signed char>(place.distUnits);
  const std::string unitName = GetTableText(1160 + unit);
  const double distance = ConvertUnitFromAU(place.dist, static_cast<char>(unit));
  return FormatLocalizedText(kind == PlaceKind::kSurface ? 7211 : 7212, {distance, unitName.c_str()});
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
