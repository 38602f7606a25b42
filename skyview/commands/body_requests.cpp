// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/body_requests.h"

#include <algorithm>

#include "scene/curve_chart.h"
#include "scene/light_curve.h"
#include "paint/picture_file.h"
#include "scene/satellites.h"
#include "skyview/reports/host_texts.h"
#include "utils/messages.h"
#include "skyview/session/view_state.h"
#include "utils/text.h"

namespace skyview {
namespace {

constexpr double kOrbitFadeIn = 1.0;  // seconds

}  // namespace

bool AddSatellites(const Options& options, const CommonInterfaces::Camera& camera, scene::BodyList& bodies,
                   std::string& error) {
  if (!options.tle) return true;
  const std::string path = ResolveInput(*options.tle);
  if (path.empty()) {
    error = "--tle: " + *options.tle + ": not found, neither here nor in the data root";
    return false;
  }
  if (!scene::LoadSatellites(path, bodies, error)) {
    error = "--tle: " + error;
    return false;
  }
  scene::ReportLostSatellites(bodies, scene::GetMoment(camera));
  return true;
}

bool FindOrbits(const Options& options, const scene::ObjectSearch* search, const scene::BodyList& bodies,
                std::vector<int>& orbits, std::string& error) {
  if (!options.orbits) return true;
  for (int i = 0; i < static_cast<int>(bodies.size()); ++i) {
    const SSO_ID& id = bodies[static_cast<std::size_t>(i)].id;
    const bool planet = id.kind == FourCC("plnt") && i != scene::kSunBody;
    if (i != scene::kSunBody && (options.orbits->all || (options.orbits->planets && planet))) orbits.push_back(i);
  }
  for (const auto& name : options.orbits->names) {
    const auto found = search ? search->FindOne(name, error) : std::nullopt;
    if (found && (found->group != scene::ObjectGroup::kBody || found->index == scene::kSunBody)) {
      error = "'" + name + "': has no orbit that can be drawn";
    }
    if (!found || found->group != scene::ObjectGroup::kBody || found->index == scene::kSunBody) {
      error = "--orbits " + error;
      return false;
    }
    if (std::find(orbits.begin(), orbits.end(), found->index) == orbits.end()) orbits.push_back(found->index);
  }
  return true;
}

void ShowOrbits(const Options& options, const std::vector<int>& orbits, scene::SkyFrame& frame) {
  for (const int body : orbits) frame.ShowOrbit(body, options.play ? kOrbitFadeIn : 0.0);
}

bool DrawLightCurve(const Options& options, const CommonInterfaces::Camera& camera, std::string& text,
                    std::string& error) {
  const scene::SkyMoment now = scene::GetMoment(camera);
  const scene::LightCurve curve = scene::MakeLightCurve(*scene::FindVariableStar(*options.lightCurve), now.day + now.fraction);
  scene::DisplayList list;
  scene::DrawCurveChart(curve,
                        {scene::ToUtf8(Localize(HostText::kCurveDate, {})),
                         scene::ToUtf8(Localize(HostText::kCurveMagnitude, {}))},
                        options.size.width, options.size.height, list);
  for (const auto& name : options.out) {
    if (!paint::WritePicture(list, name, error)) return false;
  }
  const auto [least, most] = std::minmax_element(curve.points.begin(), curve.points.end(),
                                                 [](const auto& a, const auto& b) { return a.y < b.y; });
  text = FormatText("%s: JD %.3f to %.3f, magnitude %.2f to %.2f\n", curve.title.c_str(), curve.first, curve.last,
                least->y, most->y);
  return true;
}

}  // namespace skyview
