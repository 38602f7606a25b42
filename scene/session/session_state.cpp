// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/session_state.h"

#include <cstdio>
#include <iterator>
#include <optional>
#include <random>

#include "common_interfaces/settings_field.h"
#include "scene/session/checksum.h"
#include "scene/visibility/favourites.h"
#include "scene/visibility/setting_change.h"
#include "scene/visibility/setting_values.h"
#include "utils/bytes.h"
#include "utils/file_presence.h"
#include "utils/path.h"
#include "utils/text.h"
#include "utils/whole_file.h"

namespace scene {
namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

constexpr unsigned kCameraRecord = FourCC("CAMR");
constexpr unsigned kViewId = 1;
constexpr const char* kSettingsFile = "filters.data";
constexpr const char* kTextFile = "qxstrings.txt";

// What a picture depends on.
constexpr const char* kDataFiles[] = {kSettingsFile,
                                      "FilterCorrection.data",
                                      kTextFile,
                                      "catalogs:stars.txt",
                                      "catalogs:stars.tiles",
                                      "catalogs:deep_stars.tiles",
                                      "catalogs:deepsky.txt",
                                      "catalogs:constellations.txt",
                                      "catalogs:constellation_lines.txt",
                                      "catalogs:milkyway.map",
                                      "catalogs:asteroids.txt",
                                      "catalogs:comets.txt",
                                      "media:time_interval.ini",
                                      "media:surface:panoramas.ini",
                                      "media:skyobjects:constell_images:constell.dat",
                                      "media:skyobjects:dso_images:dsoimagestrue.txt",
                                      "media:skyobjects:mway_images:mway.dat"};

// The keys of the camera record (docs/formats/camera_record.md), to show them by name.
constexpr const char* kCameraKeys[] = {"m_FinderSize",
                                       "m_JT",
                                       "m_TJ",
                                       "timeType",
                                       "FST",
                                       "m_Zoom",
                                       "m_ObsMovingType",
                                       "m_ObsObjType",
                                       "m_ObsObjID",
                                       "m_ObsLocatType",
                                       "m_DispCoorSysObserver",
                                       "m_fi",
                                       "m_lam",
                                       "m_dist",
                                       "m_distUnits",
                                       "m_dirLock",
                                       "m_FirstLook",
                                       "m_dirObjType",
                                       "m_dirObjID",
                                       "m_AimingDispType",
                                       "m_alp",
                                       "m_bet",
                                       "m_slp",
                                       "m_BasePlane",
                                       "m_TimeStep",
                                       "m_TimeStepUnits",
                                       "m_RotateStep",
                                       "m_RotStepUnits",
                                       "m_AimStepAlp",
                                       "m_AimStepAlpUnits",
                                       "m_AimStepBet",
                                       "m_AimStepBetUnits",
                                       "m_PosStepLon",
                                       "m_PosStepLonUnits",
                                       "m_PosStepLat",
                                       "m_PosStepLatUnits",
                                       "m_HeightStep",
                                       "m_DistStepUnits",
                                       "m_ZoomStep",
                                       "m_3DFlightStep",
                                       "m_3DFlightStepUnits",
                                       "StartYear",
                                       "IsDST",
                                       "DateFrom",
                                       "DateTo",
                                       "DS_Shift",
                                       "IsCalendarDate",
                                       "TimeZone",
                                       "IsNorth"};

std::string GetKey(int nameId) {
  for (const char* key : kCameraKeys) {
    if (GetUniqueID(key) == nameId) return key;
  }
  char text[16];
  std::snprintf(text, sizeof text, "@%X", static_cast<unsigned>(nameId));
  return text;
}

// A settings file of a moment. Cameras are read from and written to files only.
class TemporaryFile {
 public:
  TemporaryFile() {
    const std::string folder = GetTemporaryFolder();
    std::random_device random;
    char name[48];
    std::snprintf(name, sizeof name, "session-%08x%08x.data", random(), random());
    if (!folder.empty()) m_Path = folder + "/" + name;
  }
  // Removing allocates nothing: it may be for lack of memory that this object goes.
  ~TemporaryFile() {
    if (!m_Path.empty()) std::remove(m_Path.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  const char* GetPath() const { return m_Path.c_str(); }

 private:
  std::string m_Path;
};

// A data file as it is now: one that is there has a checksum, or a reason why it cannot be read.
struct DataFile {
  std::optional<unsigned long long> checksum;
  std::string reason;
};

DataFile LookAt(const std::string& name) {
  DataFile file;
  const std::string path = ZentharPath::GetPath(name.c_str());
  std::string bytes;
  if (!path.empty() && ReadWholeFile(path.c_str(), bytes, file.reason)) file.checksum = Checksum(bytes);
  return file;
}

// Of every file that the picture depends on. A session that lacked one would never tell that it changed.
bool FindChecksums(SessionCapsule& capsule, std::string& error) {
  std::vector<std::string> names(std::begin(kDataFiles), std::end(kDataFiles));
  names.push_back(capsule.tle);
  for (const auto& name : names) {
    const DataFile file = LookAt(name);
    if (!file.reason.empty()) {
      error = name + ": " + file.reason + ", and a session wants its checksum";
      return false;
    }
    if (file.checksum) capsule.data.push_back({name, *file.checksum});
  }
  return true;
}

bool DescribeView(Camera& camera, std::vector<std::string>& view) {
  const TemporaryFile file;
  camera.WriteSelfAll(file.GetPath(), static_cast<int>(kViewId));
  SettingsData record(kViewId, kCameraRecord, kSettingsFile);
  if (!record.Read(file.GetPath())) return false;
  for (int i = 0; i < record.GetFieldCount(); ++i) {
    const SettingField& field = *record.GetFieldAt(i);
    const std::string values = FormatValues(field);
    if (!values.empty()) view.push_back(GetKey(field.GetNameId()) + "=" + values);
  }
  return !view.empty();
}

// Favourites that the defaults lack, as AddFavourite made them.
std::vector<SessionFavourite> FindFavourites(SettingsData& settings) {
  std::vector<SessionFavourite> favourites;
  for (int i = 0; i < settings.GetFieldCount(); ++i) {
    const SettingField& field = *settings.GetFieldAt(i);
    const auto number = GetFavouriteNumber(field);
    if (number && field.GetCompareStatus() != 0)
      favourites.push_back({static_cast<int>(field.GetSection()), *number});
  }
  return favourites;
}

}  // namespace

bool DescribeState(SettingsData& settings, const SkyMarkers& markers, const std::vector<SSO_ID>& marks,
                   Camera& camera, SessionCapsule& capsule, std::string& error) {
  capsule.zone = camera.GetDisplayTimeZoneName(true);
  capsule.place = camera.GetLocationName();
  SettingsData defaults(settings.GetID(), settings.GetOwner(), kSettingsFile);
  if (!defaults.Read(nullptr) || !DescribeView(camera, capsule.view)) {
    error = std::string(kSettingsFile) + ": holds no defaults, without which the session cannot be saved";
    return false;
  }
  capsule.settings = FindChanges(settings, defaults);
  capsule.favourites = FindFavourites(settings);
  capsule.markers = markers.GetMarks();
  for (const auto& mark : marks) {
    if (IsNameableKind(mark.kind)) capsule.marks.push_back({mark.kind, mark.number});
  }
  return FindChecksums(capsule, error);
}

void RestoreSettings(const SessionCapsule& capsule, SettingsData& settings, std::vector<std::string>& lost) {
  std::string why;
  for (const auto& change : capsule.settings) {
    if (!ChangeSetting(change, settings, why))
      lost.push_back("the session's setting no longer fits: '" + change + "': " + why);
  }
  for (const auto& favourite : capsule.favourites) AddFavourite(settings, favourite.kind, favourite.number);
}

bool RestoreCamera(const SessionCapsule& capsule, Camera& camera, std::vector<std::string>& lost,
                   std::string& error) {
  SettingsData record(kViewId, kCameraRecord, kSettingsFile);
  if (!record.Read(nullptr)) {
    error = std::string(kSettingsFile) + ": holds no defaults of the camera, which the session needs";
    return false;
  }
  for (const auto& value : capsule.view) {
    if (std::string why; !ChangeSetting("camr." + value, record, why))
      lost.push_back("the session's view no longer fits: 'camr." + value + "': " + why);
  }
  const TemporaryFile file;
  if (!record.Save(file.GetPath()) || !camera.ReadSelf(file.GetPath(), kViewId)) {
    error = std::string(file.GetPath()) + ": the session's view cannot be passed on through this file";
    return false;
  }
  camera.SetTimeZoneName(capsule.zone.c_str(), true);
  camera.SetLocationName(capsule.place.c_str());
  return true;
}

std::vector<std::string> FindChangedData(const SessionCapsule& capsule, const std::string& language) {
  std::vector<std::string> lines;
  for (const auto& file : capsule.data) {
    if (file.name == kTextFile && language != capsule.language) continue;
    const DataFile now = LookAt(file.name);
    if (!now.reason.empty()) {
      lines.push_back(file.name + ": " + now.reason + ", so it may have changed since the session was saved");
    } else if (!now.checksum) {
      lines.push_back(file.name + ": missing, it was there when the session was saved");
    } else if (*now.checksum != file.checksum) {
      lines.push_back(file.name + ": changed since the session was saved");
    }
  }
  return lines;
}

}  // namespace scene
