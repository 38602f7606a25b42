// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/session.h"

#include <filesystem>

#include "utils/file.h"
#include "utils/whole_file.h"

namespace skyview {
namespace {

namespace fs = std::filesystem;

// A name that means the same file from every folder: a file of the current one by its whole path, a logical
// name as it is.
std::string FindLasting(const std::string& name) {
  std::error_code failure;
  return fs::exists(name, failure) ? fs::absolute(name).string() : name;
}

bool Write(const std::string& path, const std::string& text) {
  constexpr unsigned kLineSize = 4096;
  MTextFile file(false, '!', '}', kLineSize);
  return file.Open(fs::absolute(path).string().c_str(), true) && file.Write("%s", text.c_str()) &&
         file.Close();
}

}  // namespace

bool LoadSession(const std::string& path, SessionCapsule& capsule, std::string& error) {
  std::string text;
  if (ReadWholeFile(path.c_str(), text, error) && scene::ParseSession(text, capsule, error)) return true;
  error = path + ": " + error;
  return false;
}

void TakeOver(const SessionCapsule& capsule, RootOptions& root) {
  if (!root.language) root.language = capsule.language;
}

void TakeOver(const SessionCapsule& capsule, ViewOptions& view) {
  if (!view.size) view.size = capsule.size;
  view.markers.insert(view.markers.begin(), capsule.markers.begin(), capsule.markers.end());
}

void TakeOver(const SessionCapsule& capsule, SatelliteOptions& satellites) {
  if (!satellites.tle && !capsule.tle.empty()) satellites.tle = capsule.tle;
}

void TakeOver(const SessionCapsule& capsule, ExtraOptions& extras) {
  if (!extras.orbits && !capsule.orbits.empty()) extras.orbits = ParseOrbits(capsule.orbits);
  extras.framesOf |= capsule.framesOf;
  extras.showers |= capsule.showers;
  if (!extras.sky && capsule.plainSky) extras.sky = SkyKind::kNone;
}

void TakeOver(const SessionCapsule& capsule, ChartOptions& chart) { TakeOver(capsule.chart, chart); }

bool SaveSession(const std::string& path, const std::string& language, const SkyOptions& options,
                 CommonInterfaces::SettingsData& settings, const scene::SkyMarkers& markers,
                 const std::vector<SSO_ID>& marks, CommonInterfaces::Camera& camera, std::string& error) {
  SessionCapsule capsule;
  capsule.language = language;
  capsule.size = options.view.GetSize();
  capsule.framesOf = options.extras.framesOf;
  capsule.chart = options.chart;
  capsule.showers = options.extras.showers;
  capsule.plainSky = options.extras.sky == SkyKind::kNone;
  if (options.extras.orbits) capsule.orbits = FormatOrbits(*options.extras.orbits);
  if (options.satellites.tle) capsule.tle = FindLasting(*options.satellites.tle);
  if (!scene::DescribeState(settings, markers, marks, camera, capsule, error)) return false;
  if (Write(path, scene::FormatSession(capsule))) return true;
  error = path + ": the session cannot be saved there";
  return false;
}

}  // namespace skyview
