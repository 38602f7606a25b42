// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "astro/object_id.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/frame/frame_maker.h"
#include "skyview/commands/object_finder.h"
#include "skyview/commands/prepared_view.h"

namespace skyview {

// The sky that the options ask for, with all that it is computed from: what draw paints, what why explains.
// Not moved, for the parts refer to each other.
class ShownSky {
 public:
  // Restores the view, loads the catalogs, finds what the options name and prepares the first frame. Throws
  // Stop.
  ShownSky(const SkyOptions& options, const std::optional<scene::SessionCapsule>& session, const Clock& clock,
           Diagnostics& diagnostics);
  ShownSky(const ShownSky&) = delete;
  ShownSky& operator=(const ShownSky&) = delete;

  // The orbits of --orbits, at once or over that many seconds of the animation clock.
  void ShowOrbits(double fadeIn);
  // The frame of the view as it stands.
  void Compute() { m_Maker->Compute(); }

  // What the frame shows, in the current language, UTF-8 lines; first what was chosen where the options leave
  // it to the clock.
  std::string MakeReport();
  // Why the object of that name is or is not in the frame, lines. Throws Stop for a name that is not that of
  // one.
  std::string Explain(const std::string& asker, const std::string& name);

  // The objects that are drawn at a pixel (y down) or at most that many pixels beside it, a line for each,
  // what was painted last first; a line that says so where there is none.
  std::string DescribeAt(double x, double y, double tolerance);

  CommonInterfaces::Camera& GetCamera() { return m_View.camera; }
  PreparedView& GetView() { return m_View; }
  scene::FrameMaker& GetMaker() { return *m_Maker; }
  const scene::SkyMarkers& GetMarkers() const { return m_Markers; }
  const std::vector<SSO_ID>& GetMarks() const { return m_Marks; }

 private:
  std::string DescribeAim(const scene::FoundObject& aim);
  void SetUpFrame(const SkyOptions& options);

  PreparedView m_View;
  scene::SkyCatalogs m_Catalogs;
  ObjectFinder m_Finder;
  std::vector<int> m_Orbits;    // bodies whose orbits are shown
  std::vector<SSO_ID> m_Marks;  // objects that are marked
  scene::ShownKinds m_Shown;
  scene::ObjectFilters m_Filters;
  scene::SkyMarkers m_Markers;
  std::optional<scene::FrameMaker> m_Maker;  // makes room for the catalogs, so once they are loaded
  std::string m_Choice;                      // DescribeChoice
  std::string m_Besides;                     // what is known of the object of --look
  std::vector<std::string> m_Status;         // of the first frame
  bool m_WithShowers;
};

}  // namespace skyview
