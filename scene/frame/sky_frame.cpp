// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/sky_frame.h"

#include <utility>

#include "scene/chart/sky_background.h"
#include "scene/display/deepsky_symbols.h"
#include "scene/display/palette.h"
#include "scene/display/style_rules.h"
#include "scene/frame/frame_parts.h"
#include "scene/visibility/object_tests.h"
#include "utils/one_thread.h"

namespace scene {
namespace {

// Room for frames that show everything there is; what the user adds (markers, favourites, outlines, orbits)
// grows once.
DisplayList::Capacity FindCapacity(const SkyCatalogs& catalogs, std::size_t tileStars,
                                   std::size_t starSigns) {
  constexpr std::size_t kOverlays = 2000, kRimPoints = 4000, kTextLength = 24, kGridLines = 1000,
                        kGridVertices = 60000, kRingColours = 4096;
  constexpr std::size_t kTextsOfLabel = 5;  // on discs labels have shadows
  constexpr std::size_t kEarthShadows = 2;  // penumbra and umbra on the Moon; moons have one each
  constexpr std::size_t kGrounds = 2;       // of the sky and of the caption; comets have tails
  DisplayList::Capacity capacity;
  capacity.points =
      static_cast<std::size_t>(catalogs.stars.GetCount()) + tileStars + catalogs.bodies.size() + kOverlays;
  capacity.discs = catalogs.bodies.size();
  capacity.globes = catalogs.bodies.size();
  capacity.colours = kRingColours + SkyLight::kColumns * SkyLight::kRows + MilkyWayPicture::kMostNodes;
  capacity.shadows = kEarthShadows + catalogs.bodies.size();
  const std::size_t symbols = catalogs.deepsky.size();
  capacity.ellipses = symbols + catalogs.bodies.size() + 2 * starSigns;
  const NebulaOutlines& nebulae = catalogs.nebulaOutlines;
  capacity.polylines = catalogs.figurePoints.size() + kMostSymbolLines * symbols +
                       catalogs.bounds.GetPointCount() + kOverlays + kGridLines + starSigns;
  capacity.polygons = catalogs.bodies.size() + nebulae.areas.size() + kOverlays;
  capacity.gradients = catalogs.bodies.size() + kGrounds;
  constexpr std::size_t kGlobeVertices = 8 * 1000;  // of lines on discs that are seen at a time
  capacity.meshes = 2;                              // the sky, the Milky Way
  capacity.rings = nebulae.rings.size() + kOverlays;
  capacity.vertices = kGlobeVertices + kRimPoints + 2 * (capacity.polylines + kOverlays) +
                      kMostSymbolVertices * symbols + kGridVertices + nebulae.points.size() +
                      nebulae.points.size() / 4;
  capacity.texts = kTextsOfLabel * LabelPlacer::kMaxLabels + kOverlays;
  capacity.textBytes = capacity.texts * kTextLength;
  capacity.runs = capacity.discs + capacity.ellipses + kOverlays;
  return capacity;
}

// What lights the sky; nothing where it is black. A chart of the night knows neither Sun nor Moon, and the
// lamps of a site only where there are some.
std::optional<SkySources> FindSources(const FrameParts& parts, const ObserverFrame& observer,
                                      const ShownKinds& shown) {
  const bool night = GetStyleRules(shown.style).nightSky;
  if (!shown.naturalSky || (night && shown.darkness >= astro::kDarkSky)) return {};
  auto sources = parts.solarSystem.FindSources(observer);
  if (!sources) return {};
  sources->darkness = shown.darkness;
  if (night) sources->sun = sources->moon = {{0.0, 0.0, -1.0}};
  return sources;
}

void DrawBorder(DisplayList& list) {
  const double right = list.GetWidth(), bottom = list.GetHeight();
  list.AddVertex(0.0, 0.0);
  list.AddVertex(right, 0.0);
  list.AddVertex(right, bottom);
  list.AddVertex(0.0, bottom);
  PolylineRecord line = {};
  line.width = 3.0f * list.GetUnit();  // the half of it lies in the picture
  line.colour = ToRgba(palette::kLegendText);
  line.flags = kClosedLine;
  list.AddLine(Layer::kChart, line);
}

// What lies lowest first.
void Draw(FrameParts& parts, const ClassLimits& stars, const SkyCatalogs& catalogs) {
  DisplayList& list = parts.list;
  const double lines = parts.light.GetLineStrength();
  const StyleRules& rules = GetStyleRules(list.GetStyle());
  if (parts.light.IsNatural() && !rules.nightSky) {
    DrawNaturalSky(parts.light, list);
  } else {
    DrawPlainSky(list);
  }
  parts.milkyWay.Draw(list);
  parts.horizon.DrawHaze(parts.light.GetGlowStrength(), list);
  const SkyColours sky(list, parts.light);
  parts.grids.Draw(sky, list);
  parts.boundaries.Draw(lines, list);
  parts.figures.Draw(lines, list);
  parts.asterisms.Draw(lines, list);
  parts.imageFrames.Draw(list);
  parts.solarSystem.DrawOrbits(sky, list);
  // Their light goes as that of the Milky Way does, but for a trace that shows the outline.
  parts.nebulae.Draw(lines * (0.25 + 0.75 * parts.light.GetGlowStrength()), list);
  if (rules.symbols) parts.objects.DrawDeepsky(parts.nebulae, lines, list);
  parts.objects.DrawStars(list);
  parts.solarSystem.DrawBodies(sky, list);
  if (parts.landscape.IsEmpty()) parts.horizon.DrawGround(FindGroundColour(parts.light), lines, list);
  parts.landscape.Draw(parts.light, list);
  parts.radiants.Draw(list);
  parts.favourites.Draw(list);
  if (rules.caption) parts.caption.DrawGround(list);
  parts.horizon.DrawCompass(list);
  parts.markers.Draw(list);
  parts.labels.Draw(lines, sky, list);
  parts.finders.Draw(list);
  if (parts.withLegend) parts.legend.Draw(parts.objects, catalogs, stars, list);
  if (rules.border) DrawBorder(list);
}

}  // namespace

FrameParts::FrameParts(const SkyCatalogs& catalogs)
    : milkyWay(catalogs.milkyWay),
      boundaries(catalogs),
      figures(catalogs),
      asterisms(catalogs),
      nebulae(catalogs),
      solarSystem(catalogs.bodies, catalogs.gazetteers),
      objects(catalogs),
      favourites(catalogs) {
  list.Reserve(FindCapacity(catalogs, objects.GetTileStars().GetCapacity(), objects.GetMostSigns()));
  list.SetMaps(solarSystem.GetMarks().GetGlobes().GetMapPaths());
}

SkyFrame::SkyFrame(const SkyCatalogs& catalogs)
    : m_Catalogs(catalogs), m_Parts(std::make_unique<FrameParts>(catalogs)) {}

SkyFrame::~SkyFrame() = default;

void SkyFrame::SetCaption(std::vector<std::string> lines) {
  const ChangesObject use(this, "SkyFrame");
  m_Parts->caption.SetLines(std::move(lines));
}

void SkyFrame::SetMarkers(const std::vector<CommonInterfaces::MARKER_INFO>& markers) {
  const ChangesObject use(this, "SkyFrame");
  m_Parts->markers.SetMarkers(markers);
}

void SkyFrame::SetFavourites(const std::vector<SSO_ID>& objects) {
  const ChangesObject use(this, "SkyFrame");
  m_Parts->favourites.SetObjects(objects);
}

void SkyFrame::SetShowers(std::vector<Shower> showers) {
  const ChangesObject use(this, "SkyFrame");
  m_Parts->radiants.SetShowers(std::move(showers));
}

void SkyFrame::SetLandscape(Landscape landscape) {
  const ChangesObject use(this, "SkyFrame");
  m_Parts->landscape.SetLandscape(std::move(landscape));
}

void SkyFrame::SetFinders(std::vector<Finder> finders) {
  const ChangesObject use(this, "SkyFrame");
  m_Parts->finders.SetFinders(std::move(finders));
}

void SkyFrame::ShowLegend(bool shown) { m_Parts->withLegend = shown; }

void SkyFrame::SetEnlargement(double enlargement) { m_Parts->enlargement = enlargement; }

std::optional<ImageGroup> SkyFrame::SetImageFrames(unsigned groups) {
  const ChangesObject use(this, "SkyFrame");
  return m_Parts->imageFrames.Load(groups, m_Catalogs);
}

bool SkyFrame::ShowOrbit(int body, double fadeIn) {
  const ChangesObject use(this, "SkyFrame");
  return m_Parts->solarSystem.GetOrbits().Show(body, fadeIn);
}

void SkyFrame::SetTextExtents(const TextExtents& extents) {
  const ChangesObject use(this, "SkyFrame");
  m_Parts->labels.SetExtents(extents);
}

void SkyFrame::FetchTexts() {
  const ChangesObject use(this, "SkyFrame");
  m_Parts->horizon.FetchTexts();
  m_Parts->grids.FetchTexts();
  m_Parts->radiants.FetchTexts();
  m_Parts->solarSystem.FetchTexts();
  m_Parts->legend.FetchTexts();
}

// The parts compute themselves in the order in which they take room for their labels.
void SkyFrame::Compute(const CommonInterfaces::Camera& camera, const ObserverFrame& observer,
                       const ShownKinds& shown, const ObjectFilters& filters) {
  const ChangesObject use(this, "SkyFrame");
  const ReadsObject cameraUse(&camera, "Camera");
  ViewGeometry geometry(camera, observer);
  FrameParts& parts = *m_Parts;
  geometry.unit *= parts.enlargement;
  LabelPlacer& labels = parts.labels;
  labels.Begin(geometry.width, geometry.height, geometry.centreJ2000, geometry.scale);
  parts.solarSystem.Observe(geometry);
  const auto sources = FindSources(parts, observer, shown);
  if (sources) {
    parts.light.Compute(geometry, *sources, shown.extinction);
  } else {
    parts.light.SetPlain();
  }
  const bool horizon = observer.horizon;
  parts.landscape.Compute(geometry, shown.horizon && horizon && GetStyleRules(shown.style).landscape);
  const Landscape& landscape = parts.landscape.GetPainted();
  const ObjectTests tests(m_Catalogs, geometry, observer, shown, filters, parts.light, landscape);
  const bool written = GetStyleRules(shown.style).caption;
  if (written) parts.caption.Place(geometry, labels);
  if (parts.withLegend)
    parts.legend.Place(geometry, written ? parts.caption.GetHeight(geometry.unit) : 0.0, labels);
  parts.finders.Compute(geometry, labels);
  parts.markers.Compute(geometry, labels);
  parts.milkyWay.Compute(geometry, parts.light, shown.milkyWay);
  parts.horizon.Compute(geometry, {shown.horizon && horizon, shown.horizonLine, shown.compass && horizon},
                        labels);
  parts.grids.Compute(geometry, observer, shown.lines, tests, labels);
  parts.boundaries.Compute(geometry, observer, tests, shown.boundaries);
  parts.figures.Compute(geometry, observer, tests);
  parts.asterisms.Compute(geometry, observer, tests, shown.asterisms);
  parts.nebulae.Compute(geometry, observer, tests, shown);
  parts.objects.Compute(geometry, tests);
  parts.solarSystem.Compute(geometry, observer, shown, filters, parts.light, landscape, labels);
  parts.favourites.Compute(geometry, tests, labels);
  parts.radiants.Compute(geometry, observer, tests, labels);
  parts.imageFrames.Compute(geometry, observer, tests, labels);
  parts.solarSystem.PlaceLabels(geometry, observer, shown, filters, parts.light, landscape, labels);
  parts.objects.PlaceLabels(geometry, tests, labels);
  parts.figures.PlaceNames(geometry, tests, shown.GetConstellationForm(), labels);
  parts.asterisms.PlaceNames(geometry, observer, tests, labels);
  parts.landscape.HideLabels(geometry, labels);
  parts.list.Begin(geometry.width, geometry.height, geometry.unit);
  parts.list.SetStyle(shown.style);
  Draw(parts, tests.GetStarLimits(), m_Catalogs);
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
