// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/view_state.h"

#include <cmath>
#include <filesystem>

#include "astro/constants.h"
#include "astro/julian_date.h"
#include "common_interfaces/settings_data.h"
#include "scene/search/aim.h"
#include "scene/view/base_plane.h"
#include "scene/view/field_of_view.h"
#include "scene/view/observer_frame.h"
#include "skyview/session/defaults.h"
#include "skyview/session/here_and_now.h"
#include "skyview/session/homes.h"
#include "skyview/session/session.h"
#include "skyview/session/zone_time.h"
#include "utils/messages.h"
#include "utils/path.h"
#include "utils/text.h"
#include "utils/whole_file.h"

namespace skyview {
namespace {

using CommonInterfaces::_Date;
using CommonInterfaces::Camera;
using CommonInterfaces::SettingsData;

constexpr unsigned kCameraRecord = FourCC("CAMR");

ViewResult BadData(const std::string& message) { return {Failure::kBadData, message}; }
ViewResult BadOption(const std::string& message) { return {Failure::kBadOption, message}; }

ViewResult RestoreView(const ViewFile& view, Camera& camera) {
  const std::string path = ResolveInput(view.path);
  if (path.empty()) return BadData(view.path + ": not found, neither here nor in the data root");
  std::string reason;
  if (!IsBoundedFile(path.c_str(), reason)) return BadData(path + ": " + reason);
  const std::string number = std::to_string(view.id);
  if (!SettingsData::HoldsBlock(path.c_str(), kCameraRecord, static_cast<unsigned>(view.id))) {
    return BadData(path + ": holds no view " + number);
  }
  if (!camera.ReadSelf(path.c_str(), static_cast<unsigned>(view.id))) {
    const std::string fault = FindFaultOfViewDefaults();
    return BadData(fault.empty() ? path + ": view " + number + " is damaged" : fault);
  }
  return {};
}

// What a file may say and the sky of a place on the Earth cannot show.
const char* FindFault(const Camera& camera) {
  const SphCoor& place = camera.GetLocation();
  const SphViewCoor& angles = camera.GetViewAngles();
  _Date time;
  camera.GetUniversalTime(time);
  if (camera.GetBasePlane() > scene::kGalacticPlane)
    return "has a direction that counts from an unknown plane";
  if (const char* fault = scene::FindObserverFault(camera)) return fault;
  if (!(std::fabs(place.lat) <= 0.5 * scene::kPi) || !(std::fabs(place.lon) <= 4.0 * scene::kPi))
    return "has no usable place";
  if (!(std::fabs(time.fraction) <= 2.0)) return "has no usable time";
  if (!std::isfinite(angles.lon + angles.slope) || !(std::fabs(angles.lat) <= 0.5 * scene::kPi)) {
    return "has no usable direction";
  }
  if (!(camera.GetZoom() >= scene::kMinZoom && camera.GetZoom() <= scene::kMaxZoom))
    return "has a zoom outside 0.25 to 10000";
  return nullptr;
}

void ApplyPlace(const Place& place, Camera& camera) {
  SphCoor location = camera.GetLocation();
  location.lat = place.latitude * scene::kRadiansPerDegree;
  location.lon = place.longitude * scene::kRadiansPerDegree;
  location.dist = place.height / astro::kMetresPerAu;
  camera.SetLocation(location);
  camera.SetLocationName(place.name.c_str());  // UTF-8, as from a file
}

ViewResult ApplyField(double field, const PictureSize& size, Camera& camera) {
  const double zoom = scene::FindZoomOfField(field, size.width, size.height);
  if (!(zoom >= scene::kMinZoom && zoom <= scene::kMaxZoom)) {
    const auto field_of = [&size](double at) { return scene::GetFieldOfZoom(at, size.width, size.height); };
    return BadOption(FormatText("--fov %.6g: wants %.3g to %.4g degrees across %d pixels of %dx%d", field,
                                field_of(scene::kMaxZoom), field_of(scene::kMinZoom), size.width, size.width,
                                size.height));
  }
  camera.SetZoom(zoom);
  return {};
}

// At most one of the ways to say it is given.
ViewResult ApplyZoom(const ViewOptions& options, Camera& camera) {
  if (options.zoom) camera.SetZoom(*options.zoom);
  if (options.aim && options.aim->zoom) camera.SetZoom(*options.aim->zoom);
  return options.field ? ApplyField(*options.field, options.GetSize(), camera) : ViewResult{};
}

void SetMoment(const UniversalMoment& moment, Camera& camera) {
  _Date time;
  camera.GetUniversalTime(time);
  time.day = moment.day;
  time.fraction = moment.fraction;
  camera.SetUniversalTime(time);
}

ViewResult ApplyTime(const WrittenTime& written, const std::string& text, Camera& camera) {
  const std::string zone = camera.GetDisplayTimeZoneName(true);
  UniversalMoment moment = {written.day, written.fraction - written.utcOffset.value_or(0.0)};
  Adjust_JD(moment.day, moment.fraction);
  if (!written.utcOffset) {
    const auto found = LocalToUniversal(zone, written.day, written.fraction);
    if (!found)
      return BadOption("--time '" + text + "': the clocks of " + zone +
                       " skip that time; wants one they show");
    moment = *found;
  }
  SetMoment(moment, camera);
  return {};
}

// Without --time the clock decides only where nothing is restored: then tonight, or now for travellers.
ViewResult ApplyClock(const ViewOptions& options, const Clock& clock, Camera& camera) {
  if (!options.clockTime && !FollowsClock(options)) return {};
  const ClockTime unsaid = scene::IsNearSurface(camera) ? ClockTime::kTonight : ClockTime::kNow;
  const auto moment = FindMoment(options.clockTime.value_or(unsaid), clock(), camera);
  if (!moment) return BadOption("--time tonight: wants an observer near the Earth's surface");
  SetMoment(*moment, camera);
  return {};
}

// A direction on the sky becomes the direction in which it stands at this time and place.
void CountFromHorizon(Camera& camera) {
  if (camera.GetBasePlane() == scene::kHorizonPlane || !scene::CountsFromHorizon(camera)) return;
  const SphViewCoor sky = camera.GetViewAngles();
  camera.SetBasePlane(scene::kHorizonPlane);
  scene::PrepareObserver(camera);
  scene::Direction there;
  camera.ReductRADec2CamDouble(sky.lon, sky.lat, there.v);
  SphViewCoor angles;
  psf(there.v, 1.0, angles.lon, angles.lat);
  camera.SetRA_Dec(angles);
}

// A direction that is locked on the object travelled around turns to it. Any other object's place is not
// known here: it is not what the view is centred on.
void TurnToObserver(Camera& camera) {
  const SphCoor& place = camera.GetLocation();
  const bool around =
      camera.GetCenterObject() == camera.GetObserver() && place.coorSys == camera.GetBasePlane();
  if (!camera.IsDirectionLocked() || !around) {
    camera.SetCenterView(SSO_ID());
    camera.SetDirectionLock(false);
    return;
  }
  SphViewCoor angles;
  angles.lon = std::fmod(place.lon + scene::kPi, 2.0 * scene::kPi);
  angles.lat = -place.lat;
  camera.SetRA_Dec(angles);
}

void Move(const MovingType& moving, Camera& camera) {
  camera.SetMovingType(static_cast<char>(moving.type), moving.keep);
  if (moving.type != 0) TurnToObserver(camera);
}

ViewResult RestoreSession(const SessionCapsule& capsule, Diagnostics& diagnostics, Camera& camera) {
  std::vector<std::string> lost;
  std::string error;
  if (!scene::RestoreCamera(capsule, camera, lost, error)) return BadData(error);
  for (const auto& line : lost) diagnostics.lines.push_back(line + "\n");
  return {};
}

// What places and directions on the Earth cannot be told to.
ViewResult CheckEarth(const ViewOptions& options, const Camera& camera) {
  if (camera.GetObserver() == SSO_ID(FourCC("plnt"), 3)) return {};
  if (options.place) return BadOption("--place: wants a view from the Earth");
  if (options.look) return BadOption("--look: wants a view from the Earth, whose horizon it counts from");
  if (options.aim) return BadOption("--look: wants a view from the Earth");
  return {};
}

std::string NameView(const ViewOptions& options) {
  if (options.movingType) return "--moving-type " + std::to_string(options.movingType->type) + ": the view ";
  if (options.session) return *options.session + ": the view ";
  return options.view ? options.view->path + ": the view " : "filters.data: the default view ";
}

}  // namespace

std::string ResolveInput(const std::string& name) {
  std::error_code ignored;
  if (std::filesystem::is_regular_file(name, ignored)) return std::filesystem::absolute(name).string();
  return ZentharPath::GetPath(name.c_str());
}

ViewResult ApplyOptions(const ViewOptions& options, const std::optional<SessionCapsule>& session,
                        const Clock& clock, Diagnostics& diagnostics, Camera& camera) {
  if (options.view) {
    if (auto restored = RestoreView(*options.view, camera); restored.failure != Failure::kNone)
      return restored;
  }
  if (session) {
    if (auto restored = RestoreSession(*session, diagnostics, camera); restored.failure != Failure::kNone)
      return restored;
  }
  if (options.home) {
    if (auto gone = GoHome(camera); gone.failure != Failure::kNone) return gone;
  }
  if (options.movingType) Move(*options.movingType, camera);
  const bool followsClock = FollowsClock(options);
  const Standpoint standpoint = FindStandpoint(options, camera);
  if (followsClock && standpoint == Standpoint::kHome) StandAtHome(camera);
  if (auto checked = CheckEarth(options, camera); checked.failure != Failure::kNone) return checked;
  if (options.zone) {
    if (!IsKnownZone(*options.zone, diagnostics)) {
      return BadOption("--zone '" + *options.zone +
                       "': wants NAME (time zone of the IANA database, for example " + "Europe/Berlin)");
    }
    camera.SetTimeZoneName(options.zone->c_str(), true);
  }
  if (options.place) ApplyPlace(*options.place, camera);
  if (followsClock && scene::IsNearSurface(camera)) LookAround(standpoint, camera);
  if (options.look) scene::LookTo({options.look->azimuth, options.look->altitude}, camera);
  if (auto zoomed = ApplyZoom(options, camera); zoomed.failure != Failure::kNone) return zoomed;
  if (options.time) {
    if (auto set = ApplyTime(*options.time, options.timeText, camera); set.failure != Failure::kNone)
      return set;
  }
  if (auto told = ApplyClock(options, clock, camera); told.failure != Failure::kNone) return told;
  if (const char* fault = FindFault(camera)) return BadData(NameView(options) + fault);
  const PictureSize size = options.GetSize();
  camera.SetWinRect({size.width, size.height, size.width, size.height});
  camera.UpdateLocUTCDeltaFromTimeZone();
  CountFromHorizon(camera);
  return {};
}

bool SaveView(Camera& camera, const ViewFile& view, std::string& error) {
  const std::string target = std::filesystem::absolute(view.path).string();
  if (camera.SaveSelfAll(target.c_str(), view.id)) return true;
  const std::string fault = FindFaultOfViewDefaults();
  error = fault.empty() ? view.path + ": the view cannot be saved there" : fault;
  return false;
}

}  // namespace skyview
