// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/sky_frame.h"

#include <utility>

#include "scene/frame/frame_parts.h"
#include "scene/frame/sky_background.h"
#include "scene/visibility/object_tests.h"

namespace scene {
namespace {

// Room for frames that show everything there is; what the user adds (markers, favourites, outlines, orbits)
// grows once.
DisplayList::Capacity FindCapacity(const SkyCatalogs& catalogs, std::size_t tileStars) {
  constexpr std::size_t kOverlays = 2000, kRimPoints = 4000, kTextLength = 24, kGridLines = 1000,
                        kGridVertices = 60000, kRingColours = 4096;
  constexpr std::size_t kEarthShadows = 2;  // penumbra and umbra on the Moon; moons have one each
  constexpr std::size_t kGrounds = 2;       // of the sky and of the caption; comets have tails
  DisplayList::Capacity capacity;
  capacity.points =
      static_cast<std::size_t>(catalogs.stars.GetCount()) + tileStars + catalogs.bodies.size() + kOverlays;
  capacity.discs = catalogs.bodies.size();
  capacity.globes = catalogs.bodies.size();
  capacity.colours = kRingColours + SkyLight::kColumns * SkyLight::kRows;
  capacity.shadows = kEarthShadows + catalogs.bodies.size();
  capacity.ellipses = catalogs.deepsky.size() + catalogs.bodies.size();
  const NebulaOutlines& nebulae = catalogs.nebulaOutlines;
  capacity.polylines = catalogs.figurePoints.size() + catalogs.deepsky.size() +
                       catalogs.bounds.GetPointCount() + kOverlays + kGridLines;
  capacity.polygons = catalogs.bodies.size() + nebulae.areas.size() + kOverlays;
  capacity.gradients = catalogs.bodies.size() + kGrounds;
  capacity.meshes = 1;
  capacity.rings = catalogs.milkyWay.size() + nebulae.rings.size() + kOverlays;
  constexpr std::size_t kGlobeVertices = 8 * 1000;  // of lines on discs that are seen at a time
  capacity.vertices = kGlobeVertices + catalogs.milkyWayPoints.size() + catalogs.milkyWayPoints.size() / 4 +
                      kRimPoints + 2 * (capacity.polylines + kOverlays) + 4 * catalogs.deepsky.size() +
                      kGridVertices + nebulae.points.size() + nebulae.points.size() / 4;
  capacity.texts = LabelPlacer::kMaxLabels + kOverlays;
  capacity.textBytes = capacity.texts * kTextLength;
  capacity.runs = capacity.discs + capacity.ellipses + catalogs.deepsky.size() + kOverlays;
  return capacity;
}

// What lies lowest first.
void Draw(FrameParts& parts) {
  DisplayList& list = parts.list;
  const double lines = parts.light.GetLineStrength();
  if (parts.light.IsNatural()) {
    DrawNaturalSky(parts.light, list);
  } else {
    DrawPlainSky(list);
  }
  parts.milkyWay.Draw(parts.light.GetGlowStrength(), list);
  parts.horizon.DrawHaze(parts.light.GetGlowStrength(), list);
  const SkyColours sky(list, parts.light);
  parts.grids.Draw(sky, list);
  parts.boundaries.Draw(lines, list);
  parts.figures.Draw(lines, list);
  parts.imageFrames.Draw(list);
  parts.solarSystem.DrawOrbits(sky, list);
  parts.nebulae.Draw(lines, list);
  parts.objects.DrawDeepsky(parts.nebulae, lines, list);
  parts.objects.DrawStars(list);
  parts.solarSystem.DrawBodies(sky, list);
  parts.horizon.DrawGround(FindGroundColour(parts.light), lines, list);
  parts.radiants.Draw(list);
  parts.favourites.Draw(list);
  parts.caption.DrawGround(list);
  parts.horizon.DrawCompass(list);
  parts.markers.Draw(list);
  parts.labels.Draw(lines, sky, list);
}

}  // namespace

FrameParts::FrameParts(const SkyCatalogs& catalogs)
    : milkyWay(catalogs),
      boundaries(catalogs),
      figures(catalogs),
      nebulae(catalogs),
      solarSystem(catalogs.bodies),
      objects(catalogs),
      favourites(catalogs) {
  list.Reserve(FindCapacity(catalogs, objects.GetTileStars().GetCapacity()));
  list.SetMaps(solarSystem.GetMarks().GetGlobes().GetMapPaths());
}

SkyFrame::SkyFrame(const SkyCatalogs& catalogs)
    : m_Catalogs(catalogs), m_Parts(std::make_unique<FrameParts>(catalogs)) {}

SkyFrame::~SkyFrame() = default;

void SkyFrame::SetCaption(std::vector<std::string> lines) { m_Parts->caption.SetLines(std::move(lines)); }

void SkyFrame::SetMarkers(const std::vector<CommonInterfaces::MARKER_INFO>& markers) {
  m_Parts->markers.SetMarkers(markers);
}

void SkyFrame::SetFavourites(const std::vector<SSO_ID>& objects) { m_Parts->favourites.SetObjects(objects); }

void SkyFrame::SetShowers(std::vector<Shower> showers) { m_Parts->radiants.SetShowers(std::move(showers)); }

std::optional<ImageGroup> SkyFrame::SetImageFrames(unsigned groups) {
  return m_Parts->imageFrames.Load(groups, m_Catalogs);
}

bool SkyFrame::ShowOrbit(int body, double fadeIn) {
  return m_Parts->solarSystem.GetOrbits().Show(body, fadeIn);
}

void SkyFrame::SetTextExtents(const TextExtents& extents) { m_Parts->labels.SetExtents(extents); }

void SkyFrame::FetchTexts() {
  m_Parts->horizon.FetchTexts();
  m_Parts->grids.FetchTexts();
  m_Parts->radiants.FetchTexts();
  m_Parts->solarSystem.FetchTexts();
}

// The parts compute themselves in the order in which they take room for their labels.
void SkyFrame::Compute(const CommonInterfaces::Camera& camera, const ObserverFrame& observer,
                       const ShownKinds& shown, const ObjectFilters& filters) {
  const ViewGeometry geometry(camera, observer);
  FrameParts& parts = *m_Parts;
  LabelPlacer& labels = parts.labels;
  labels.Begin(geometry.width, geometry.height, geometry.centreJ2000, geometry.scale);
  parts.solarSystem.Observe(geometry);
  const auto sources = shown.naturalSky ? parts.solarSystem.FindSources(observer) : std::nullopt;
  if (sources) {
    parts.light.Compute(geometry, *sources, shown.extinction);
  } else {
    parts.light.SetPlain();
  }
  const ObjectTests tests(m_Catalogs, geometry, observer, shown, filters, parts.light);
  parts.caption.Place(geometry, labels);
  parts.markers.Compute(geometry, labels);
  parts.milkyWay.Compute(geometry, shown.milkyWay);
  const bool horizon = observer.horizon;
  parts.horizon.Compute(geometry, {shown.horizon && horizon, shown.horizonLine, shown.compass && horizon},
                        labels);
  parts.grids.Compute(geometry, observer, shown.lines, tests, labels);
  parts.boundaries.Compute(geometry, observer, tests, shown.boundaries);
  parts.figures.Compute(geometry, observer, tests);
  parts.nebulae.Compute(geometry, observer, tests, shown);
  parts.objects.Compute(geometry, tests);
  parts.solarSystem.Compute(geometry, observer, shown, filters, parts.light, labels);
  parts.favourites.Compute(geometry, tests, labels);
  parts.radiants.Compute(geometry, observer, tests, labels);
  parts.imageFrames.Compute(geometry, observer, tests, labels);
  parts.solarSystem.PlaceLabels(geometry, observer, shown, filters, parts.light, labels);
  parts.objects.PlaceLabels(geometry, tests, labels);
  parts.figures.PlaceNames(geometry, tests, shown.englishNames, labels);
  parts.list.Begin(geometry.width, geometry.height, geometry.unit);
  Draw(parts);
}

const DisplayList& SkyFrame::GetDisplayList() const { return m_Parts->list; }
const std::vector<DrawnStar>& SkyFrame::GetStars() const { return m_Parts->objects.GetStars(); }
const std::vector<DrawnDeepsky>& SkyFrame::GetDeepsky() const { return m_Parts->objects.GetDeepsky(); }
bool SkyFrame::IsSeenFromEarth() const { return m_Parts->solarSystem.IsSeenFromEarth(); }
const BodyModel& SkyFrame::GetBodies() const { return m_Parts->solarSystem.GetModel(); }
const EclipseShadows& SkyFrame::GetEclipses() const { return m_Parts->solarSystem.GetShadows(); }
bool SkyFrame::IsBodyDrawn(int body) const { return m_Parts->solarSystem.GetMarks().Find(body) != nullptr; }
bool SkyFrame::IsSunlit(int body) const { return m_Parts->solarSystem.GetPasses().IsSunlitNow(body); }
ClassLimits SkyFrame::GetDrawnLimits(const ClassLimits& limits) const {
  return limits.Dimmed(m_Parts->light.FindLeastDim(limits));
}
bool SkyFrame::IsPoolExhausted() const { return m_Parts->objects.IsPoolExhausted(); }

}  // namespace scene
