// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/surface_names.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>

#include "astro/constants.h"
#include "scene/display/palette.h"
#include "scene/view/surface_point.h"
#include "scene/visibility/obstacles.h"
#include "utils/text.h"

namespace scene {
namespace {

// Pixels of the standard picture.
constexpr double kLeastDisc = 90.0;  // radius from which on a disc has names
constexpr double kLeastOutline = 3.0;
constexpr double kSmallText = 11.0, kLargeText = 14.0;

constexpr double kLeastCosine = 0.22;  // nearer to the limb nothing can be told apart

bool HasOutline(const SurfaceFeature& feature) {
  return feature.type == "Crater" || feature.type == "Satellite feature";
}

// What a wide text is written over.
bool IsWide(const SurfaceFeature& feature) {
  static constexpr std::string_view kTypes[] = {"Mare",   "Oceanus", "Regio",   "Planitia",
                                                "Planum", "Terra",   "Tessera", "Vastitas"};
  return std::find(std::begin(kTypes), std::end(kTypes), feature.type) != std::end(kTypes);
}

}  // namespace

SurfaceView::SurfaceView(const ViewGeometry& geometry, const BodyState& state,
                         const astro::PhysicalEphemeris& surface)
    : m_Geometry(geometry), m_State(state), m_Surface(surface) {
  m_PixelsPerKm = geometry.camera.VisRad2PixD(1.0 / (state.seen.distance * astro::kKilometresPerAu));
  MV3prod(surface.toBody, state.seen.apparent, m_ToObserver);
  MV3prod(surface.toBody, state.seen.fromSun, m_ToSun);
  for (double& component : m_ToObserver) component = -component;
  for (double& component : m_ToSun) component = -component;
}

SurfacePlace SurfaceView::Find(const SurfaceFeature& feature) const {
  SurfacePlace place;
  place.apparent = FindSurfaceDirection(feature.surface, m_Surface.toBody, m_State.seen);
  place.pixel = m_Geometry.Project(place.apparent, SkyFrameOf::kJ2000);
  double along = 0.0, length = 0.0;
  for (int i = 0; i < 3; ++i) {
    along += feature.surface[i] * m_ToObserver[i];
    length += feature.surface[i] * feature.surface[i];
  }
  place.cosine = along / std::sqrt(length);
  place.radius = 0.5 * feature.diameter * m_PixelsPerKm;
  return place;
}

unsigned SurfaceView::FindObstacles(const SurfaceFeature& feature, const SurfacePlace& place) const {
  unsigned obstacles = 0;
  const Direction normal = {{feature.surface[0], feature.surface[1], feature.surface[2]}};
  if (place.cosine < kLeastCosine) {
    obstacles |= kFarSide;
  } else if (Dot(normal, {{m_ToSun[0], m_ToSun[1], m_ToSun[2]}}) < 0.0) {
    obstacles |= kInNight;
  }
  if (!IsLargeEnough(feature)) obstacles |= kTooSmall;
  if (!m_Geometry.IsInside(place.pixel, 0.0)) obstacles |= kOutside;
  return obstacles;
}

bool SurfaceView::IsLargeEnough(const SurfaceFeature& feature) const {
  return feature.prominence * m_PixelsPerKm >= m_Geometry.unit;
}

SurfaceNames::SurfaceNames(const Gazetteers& gazetteers) : m_Gazetteers(gazetteers) {
  m_Marks.reserve(LabelPlacer::kMaxLabels);
}

void SurfaceNames::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                           const BodyModel& model, const std::vector<DrawnBody>& bodies,
                           const ShownKinds& shown, LabelPlacer& labels) {
  Clear();
  m_Unit = geometry.unit;
  const double leastSine = shown.horizon && observer.horizon ? 0.0 : -2.0;
  for (const DrawnBody& drawn : bodies) {
    const SSO_ID& id = model.GetBodies()[static_cast<std::size_t>(drawn.body)].id;
    const bool wanted = id.kind == FourCC("moon") ? shown.moonFeatures : shown.planetFeatures;
    if (!wanted || !drawn.globe || drawn.radius < kLeastDisc * geometry.unit) continue;
    const BodyState& state = model.GetStates()[static_cast<std::size_t>(drawn.body)];
    const auto surface = astro::FindPhysicalEphemeris(id, state.seen, model.GetMoment().julianDateTT);
    if (surface)
      AddBody(SurfaceView(geometry, state, *surface), id, drawn, leastSine, observer.reduction + 6, labels);
  }
}

// The features are sorted by prominence.
void SurfaceNames::AddBody(const SurfaceView& view, const SSO_ID& id, const DrawnBody& drawn,
                           double leastSine, const double zenith[3], LabelPlacer& labels) {
  const auto& features = m_Gazetteers.Get(id);
  for (std::size_t i = 0; i < features.size(); ++i) {
    const SurfaceFeature& feature = features[i];
    if (!view.IsLargeEnough(feature)) break;
    const SurfacePlace place = view.Find(feature);
    if (view.FindObstacles(feature, place) != 0) continue;
    const Direction up = {{zenith[0], zenith[1], zenith[2]}};
    if (Dot(up, place.apparent) < leastSine) continue;
    const ObjectRef object = {FourCC("feat"), feature.number};
    const bool outline = HasOutline(feature);
    const double size = (IsWide(feature) ? kLargeText : kSmallText) * m_Unit;
    const LabelKind kind = outline ? LabelKind::kCrater : LabelKind::kRegion;
    const char* const name = feature.name.c_str();
    const bool inside = !outline || place.radius * place.cosine > size;
    int label = -1;
    if (inside) label = labels.PlaceCentred(name, place.pixel, size, kind, object);
    if (!inside) label = labels.PlaceBeside(name, place.pixel, place.radius, size, kind, object);
    if (label < 0 || !outline || place.radius < kLeastOutline * m_Unit) continue;
    const double away = std::atan2(place.pixel.y - drawn.place.y, place.pixel.x - drawn.place.x);
    m_Marks.push_back({place, away + 0.5 * kPi, object});
  }
}

void SurfaceNames::Draw(DisplayList& list) const {
  for (const Mark& mark : m_Marks) {
    EllipseRecord ellipse = {};
    ellipse.x = static_cast<float>(mark.place.pixel.x);
    ellipse.y = static_cast<float>(list.GetHeight() - mark.place.pixel.y);
    ellipse.semiMajor = static_cast<float>(mark.place.radius);
    ellipse.semiMinor = static_cast<float>(mark.place.radius * mark.place.cosine);
    ellipse.angle = static_cast<float>(-mark.angle);
    ellipse.width = 0.8f * list.GetUnit();
    ellipse.colour = ToRgba(palette::kCrater);
    ellipse.object = mark.object;
    list.Add(Layer::kBodies, ellipse);
  }
}

}  // namespace scene
