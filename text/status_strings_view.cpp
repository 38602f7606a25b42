// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <cstring>
#include <optional>

#include "astro/coordinates.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/status_strings.h"
#include "common_interfaces/string_table.h"
#include "common_interfaces/text_formats.h"
#include "text/format_render.h"
#include "text/status_strings_text.h"
#include "text/text_ids.h"

namespace CommonInterfaces {
namespace {

// How the direction is shown (Camera::GetAimingDispType).
constexpr int kByHours = 0;
constexpr int kByDegrees = 1;

// The name of the centre object, whose record a file may have left without its terminating zero.
std::string GetName(const SSO_ID& object) {
  const void* const end = std::memchr(object.name, '\0', sizeof object.name);
  if (end == nullptr) return std::string(object.name, sizeof object.name);
  return object.name;
}

std::optional<std::string> FindRefPlane(Camera* camera) {
  if (camera == nullptr) return std::nullopt;
  const QX4Strings loaded;
  const char* const caption = loaded.GetString(TextIds::kPlaneCaption, false);
  const char* const plane = loaded.GetString(TextIds::kFirstPlane + camera->GetBasePlane(), false);
  if (caption == nullptr || plane == nullptr) return std::nullopt;
  return std::string(caption) + plane;
}

// Across `pixels` of the window. The projection is stereographic, so half the extent is twice an arc tangent:
// hence four, not two.
double GetExtent(Camera& camera, int pixels) {
  const double tangent = std::tan(camera.GetFieldOfView() / 2);
  return 4 * std::atan(pixels / camera.GetWinDiag() * 0.5 * tangent);
}

// The degree sign is one byte here: the piece goes into a text of the table's code page.
std::string FormatExtent(double extent) {
  const M_DMSTag angle = Rad2GMS(extent, kAngleDegrees);
  if (angle.degrees >= 1) return RenderFormat("%d\xB0", {angle.degrees});
  if (angle.minutes >= 1) return RenderFormat("%d'", {angle.minutes});
  return RenderFormat("%0.2f\"", {static_cast<double>(angle.seconds)});
}

}  // namespace

std::string GetCenterOnString(Camera* camera) {
  if (camera == nullptr) return "";
  const SSO_ID& object = camera->GetCenterObject();
  const std::string name = GetName(object);
  if (object.kind < 0 || object.number < 0 || name.empty()) return "";
  return FormatLocalizedText(camera->IsDirectionLocked() ? TextIds::kLockedOn : TextIds::kCenteredOn,
                             {name.c_str()});
}

std::string GetDirectionString(Camera* camera, int hoursFormat, int degreesFormat, int otherFormat) {
  if (camera == nullptr) return "";
  const int mode = camera->GetAimingDispType();
  const int format = mode == kByHours ? hoursFormat : mode == kByDegrees ? degreesFormat : otherFormat;
  const SphViewCoor& angles = camera->GetViewAngles();
  const M_DMSTag first = Rad2GMS(angles.lon, mode == kByHours ? kAngleHours : kAngleDegrees);
  const M_DMSTag second = Rad2GMS(angles.lat, kAngleSignedDegrees);
  return FormatLocalizedText(static_cast<unsigned>(format),
                             {first.degrees, first.minutes, static_cast<double>(first.seconds),
                              second.degrees, second.minutes, static_cast<double>(second.seconds)});
}

std::string GetRefPlane(Camera* camera) { return FindRefPlane(camera).value_or(""); }

std::string GetSlopeString(Camera* camera) {
  if (camera == nullptr) return "";
  // Split like every other angle, so that 30 degrees that are a rounding error short of it show as 30.
  const M_DMSTag slope = Rad2GMS(camera->GetViewAngles().slope, kAngleSignedDegrees);
  return FormatLocalizedText(TextIds::kSlope, {slope.degrees});
}

std::string GetZoomString(Camera* camera) {
  return camera != nullptr ? FormatLocalizedText(TextIds::kZoom, {camera->GetZoom()}) : "";
}

std::string GetFoV(Camera* camera) {
  if (camera == nullptr) return "";
  const tPoint<int> window = camera->GetWinSize();
  const std::string across = FormatExtent(GetExtent(*camera, window.x));
  const std::string up = FormatExtent(GetExtent(*camera, window.y));
  return FormatLocalizedText(TextIds::kFieldOfView, {across.c_str(), up.c_str()});
}

void GetCenterOnString(Camera* camera, char* text) {
  if (text != nullptr) CopyStatusText(GetCenterOnString(camera), text);
}

void GetDirectionString(Camera* camera, char* text, int hoursFormat, int degreesFormat, int otherFormat) {
  if (text == nullptr) return;
  CopyStatusText(GetDirectionString(camera, hoursFormat, degreesFormat, otherFormat), text);
}

bool GetRefPlane(Camera* camera, char* text) {
  if (text == nullptr) return false;
  const std::optional<std::string> plane = FindRefPlane(camera);
  CopyStatusText(plane.value_or(""), text);
  return plane.has_value();
}

void GetSlopeString(Camera* camera, char* text) {
  if (text != nullptr) CopyStatusText(GetSlopeString(camera), text);
}

void GetZoomString(Camera* camera, char* text) {
  if (text != nullptr) CopyStatusText(GetZoomString(camera), text);
}

void GetFoV(Camera* camera, char* text) {
  if (text != nullptr) CopyStatusText(GetFoV(camera), text);
}

}  // namespace CommonInterfaces
