// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/shown_sky.h"

#include "scene/frame/caption.h"
#include "scene/search/pick.h"
#include "scene/search/why.h"
#include "scene/session/image_group_names.h"
#include "scene/session/orbit_request.h"
#include "scene/words/besides.h"
#include "skyview/commands/start.h"
#include "skyview/reports/explanation.h"
#include "skyview/reports/report.h"
#include "skyview/reports/shower_report.h"
#include "skyview/reports/status.h"
#include "skyview/session/choice.h"
#include "skyview/session/favourite_list.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace skyview {
namespace {

// The bodies whose orbits --orbits asks for.
std::vector<int> FindOrbits(const ExtraOptions& options, const scene::SkyCatalogs& catalogs,
                            ObjectFinder& finder) {
  if (!options.orbits) return {};
  std::string error;
  const auto orbits = scene::FindOrbitBodies(*options.orbits, catalogs.bodies, finder.GetSearch(), error);
  Require(orbits.has_value(), "--orbits " + error);
  return *orbits;
}

// The objects that are marked: those of the session, else the user's favourites.
std::vector<SSO_ID> FindMarks(const std::optional<scene::SessionCapsule>& session) {
  if (!session) return ReadFavourites();
  std::vector<SSO_ID> marks;
  for (const auto& mark : session->marks) marks.emplace_back(mark.kind, mark.number);
  return marks;
}

// That of the body below the observer, if one is wanted. The default one can be done without.
scene::Landscape FindLandscape(const ChartOptions& chart, const CommonInterfaces::Camera& camera) {
  scene::Landscape landscape;
  const int choice = chart.landscape.value_or(scene::kDefaultLandscape);
  std::string error;
  if (choice == scene::kNoLandscape) return landscape;
  const bool found = scene::LoadLandscape(camera.GetObserver(), choice, landscape, error);
  Require(found || !chart.landscape, "--landscape: " + error);
  if (!found) PrintDebugString("%s\n", error.c_str());
  return landscape;
}

}  // namespace

ShownSky::ShownSky(const SkyOptions& options, const std::optional<scene::SessionCapsule>& session,
                   const Clock& clock, Diagnostics& diagnostics)
    : m_View(options.view, options.settings, session, clock, diagnostics),
      m_Finder(m_Catalogs),
      m_WithShowers(options.extras.showers) {
  LoadCatalogs(options.satellites, m_View.camera, scene::CatalogUse::kPictures, m_Catalogs);
  m_Shown = scene::ReadShownKinds(m_View.settings);
  m_Shown.naturalSky = options.extras.sky != SkyKind::kNone;
  m_Shown.darkness = options.chart.GetDarkness();
  scene::SetChartStyle(options.chart.GetStyle(), m_Shown);
  if (const auto aim =
          AimView(options.view, m_Catalogs, m_Finder, m_Shown.refraction, m_View.camera, diagnostics))
    m_Besides = DescribeAim(*aim);
  m_Choice = DescribeChoice(options.view, m_View.camera);
  m_Orbits = FindOrbits(options.extras, m_Catalogs, m_Finder);
  AddFavourites(options.settings, m_Catalogs, m_Finder, m_View.settings);
  m_Marks = FindMarks(session);
  m_Filters.Refresh(m_View.settings);
  for (const auto& mark : options.view.markers) m_Markers.Add(mark, m_View.camera);
  m_Maker.emplace(m_View.camera, m_Catalogs, m_Shown, m_Filters, m_Markers);
  m_Maker->Prepare();
  m_Status = MakeStatus(m_View.camera, m_Catalogs);
  SetUpFrame(options);
}

std::string ShownSky::DescribeAim(const scene::FoundObject& aim) {
  const std::string text = scene::DescribeBesides(aim, m_Catalogs, m_View.camera);
  return text.empty() ? "" : m_Finder.GetSearch().GetTitle(aim) + "\n" + text;
}

void ShownSky::SetUpFrame(const SkyOptions& options) {
  scene::SkyFrame& frame = m_Maker->GetFrame();
  const PictureSize size = options.view.GetSize();
  frame.SetFavourites(m_Marks);
  frame.SetLandscape(FindLandscape(options.chart, m_View.camera));
  frame.SetFinders(options.chart.MakeFinders());
  frame.ShowLegend(options.chart.HasLegend());
  if (options.extras.showers) frame.SetShowers(scene::LoadShowers());
  if (const auto missing = frame.SetImageFrames(options.extras.framesOf)) {
    Require(false, std::string(scene::GetImageCatalogName(*missing)) + ": not found, which --frames-of " +
                       scene::FormatImageGroups(*missing) + " wants");
  }
  frame.SetCaption(scene::MakeCaption(m_Status, size.width, size.height));
}

void ShownSky::ShowOrbits(double fadeIn) {
  for (const int body : m_Orbits) m_Maker->GetFrame().ShowOrbit(body, fadeIn);
}

std::string ShownSky::MakeReport() {
  std::string report =
      m_Choice + skyview::MakeReport(m_View.camera, m_Status, m_Maker->GetFrame()) + m_Besides;
  if (m_WithShowers) report += MakeShowerReport(m_View.camera, m_Maker->GetObserver(), scene::LoadShowers());
  return report;
}

std::string ShownSky::Explain(const std::string& asker, const std::string& name) {
  const scene::FoundObject object = m_Finder.Find(asker, name);
  const scene::ShownView view = {m_Maker->GetFrame(), m_View.camera,  m_Maker->GetObserver(), m_Shown,
                                 m_Filters,           m_View.settings};
  return FormatExplanation(m_Finder.GetSearch().GetTitle(object), scene::Explain(object, view), view);
}

std::string ShownSky::DescribeAt(double x, double y, double tolerance) {
  const scene::DisplayList& list = m_Maker->GetFrame().GetDisplayList();
  std::string lines;
  for (const auto& hit : scene::PickObjects(list, x, y, tolerance)) {
    const auto object = scene::FindObject(hit.object, m_Catalogs);
    if (object) lines += m_Finder.GetSearch().GetTitle(*object) + "\n";
  }
  return lines.empty() ? "no object is drawn there\n" : lines;
}

}  // namespace skyview
