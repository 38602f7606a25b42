// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "host/sky_frame.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "common_interfaces/clipping.h"
#include "host/caption.h"
#include "utils/text.h"

namespace skyview {
namespace {

using CommonInterfaces::DeepskyOutput;
using CommonInterfaces::StarOutput;

constexpr unsigned kPoolBlockSize = 1u << 16;  // bytes
constexpr int kMilkyWayLevels = 5;
constexpr int kCompassMarks = 16;

// The north galactic pole (J2000; IAU 1958), far from every outline of the Milky Way.
constexpr double kGalacticPoleRA = 192.85948 * kRadiansPerDegree;
constexpr double kGalacticPoleDec = 27.12825 * kRadiansPerDegree;

// Blocks enough for a record of every object of the catalogs; they are allocated when they are first needed.
unsigned PoolBlockCount(const SkyCatalogs& catalogs) {
  const std::size_t usable = kPoolBlockSize - CommonInterfaces::OutputPool::kReservedBytes;
  const auto blocks = [usable](std::size_t count, std::size_t size) { return count / (usable / size) + 1; };
  return static_cast<unsigned>(
      blocks(static_cast<std::size_t>(catalogs.stars.GetCount()), sizeof(StarOutput)) +
      blocks(catalogs.deepsky.size(), sizeof(DeepskyOutput)));
}

double AngleFromAxis(const ViewGeometry& geometry, const tPoint<double>& p) {
  return 2.0 *
         std::atan(std::hypot(p.x - geometry.width * 0.5, p.y - geometry.height * 0.5) / geometry.scale);
}

CommonInterfaces::ScreenPlace MakePlace(const ViewGeometry& geometry, const tPoint<double>& p,
                                        double radius) {
  return {static_cast<float>(p.x), static_cast<float>(p.y), static_cast<float>(radius),
          static_cast<float>(AngleFromAxis(geometry, p))};
}

}  // namespace

double GetPictureUnit(int width, int height) {
  return std::clamp(std::sqrt(static_cast<double>(width) * height / (1600.0 * 1000.0)), 0.4, 6.0);
}

SkyFrame::SkyFrame(const SkyCatalogs& catalogs)
    : m_Catalogs(catalogs),
      m_Pool(kPoolBlockSize, PoolBlockCount(catalogs)),
      m_MilkyWay(kMilkyWayLevels),
      m_Haze(kHazeAltitudes.size()) {
  AppendAltitudeCircle(0.0, m_AltitudeCircles);
  for (double altitude : kHazeAltitudes) AppendAltitudeCircle(altitude, m_AltitudeCircles);
  ReserveLists();
  FetchTexts();
}

void SkyFrame::ReserveLists() {
  m_Stars.reserve(static_cast<std::size_t>(m_Catalogs.stars.GetCount()));
  m_Deepsky.reserve(m_Catalogs.deepsky.size());
  m_Lines.reserve(m_Catalogs.figurePoints.size());
  m_Compass.reserve(kCompassMarks);
  m_Ground.Reserve(1, kAltitudeCirclePoints);
  for (auto& band : m_Haze) band.Reserve(1, kAltitudeCirclePoints);
  for (int level = 1; level <= kMilkyWayLevels; ++level) {
    std::size_t rings = 0, points = 0;
    for (const auto& ring : m_Catalogs.milkyWay) {
      if (ring.level != level) continue;
      ++rings;
      points += static_cast<std::size_t>(ring.count);
    }
    m_MilkyWay[level - 1].Reserve(rings, points);
  }
}

void SkyFrame::Compute(const CommonInterfaces::Camera& camera, const ObserverFrame& observer,
                       const ShownKinds& shown, const ObjectFilters& filters) {
  const ViewGeometry geometry(camera);
  ++m_Number;
  m_Width = geometry.width;
  m_Height = geometry.height;
  m_Unit = GetPictureUnit(m_Width, m_Height);
  m_PoolExhausted = false;
  m_Pool.clear(false);
  m_Stars.clear();
  m_Deepsky.clear();
  m_Lines.clear();
  m_Compass.clear();
  for (auto& level : m_MilkyWay) level.Clear();
  for (auto& band : m_Haze) band.Clear();
  m_Ground.Clear();
  m_Labels.Begin(m_Width, m_Height);

  const ObjectTests tests(m_Catalogs, geometry, observer, shown, filters, m_Unit);
  AddCaption();
  AddMarkers();
  if (shown.milkyWay) AddMilkyWay(geometry);
  if (shown.horizon && observer.horizon) AddHorizon(geometry);
  if (shown.compass && observer.horizon) AddCompass(geometry);
  AddFigures(geometry, observer, tests);
  AddStars(geometry, tests);
  AddDeepsky(geometry, tests);
  LabelStars(tests.GetStarLimits());
  LabelDeepsky(tests);
  AddNames(tests, shown);
}

void SkyFrame::AddCaption() {
  double baseline = 1.1 * kCaptionFont * m_Unit;
  for (auto line = m_Caption.rbegin(); line != m_Caption.rend(); ++line) {
    m_Labels.PlaceAt(line->c_str(), {kCaptionLeft * m_Unit, baseline}, kCaptionFont * m_Unit,
                     LabelKind::kCaption);
    baseline += kCaptionLineStep * m_Unit;
  }
}

// A marker's y counts from the top. The finder has no place on the sky.
void SkyFrame::AddMarkers() {
  constexpr double kArm = 9.0;  // pixels
  m_Markers.clear();
  m_Markers.reserve(m_CameraMarkers.size());  // the labels point into the list
  for (const auto& marker : m_CameraMarkers) {
    if (marker.id == CommonInterfaces::kOnScreenFinderMarker || marker.x < 0) continue;
    DrawnMarker drawn = {{static_cast<double>(marker.x), static_cast<double>(m_Height - marker.y)}, ""};
    std::snprintf(drawn.text, sizeof drawn.text, "%d", marker.id);
    m_Markers.push_back(drawn);
    m_Labels.Reserve(drawn.place, kArm * m_Unit, kArm * m_Unit);
  }
  for (const auto& drawn : m_Markers) {
    m_Labels.PlaceBeside(drawn.text, drawn.place, kArm * m_Unit, 12.0 * m_Unit, LabelKind::kMarker);
  }
}

void SkyFrame::AddMilkyWay(const ViewGeometry& geometry) {
  const Direction pole = MakeDirection(kGalacticPoleRA, kGalacticPoleDec);
  for (int level = 1; level <= kMilkyWayLevels; ++level) {
    RegionProjector projector(geometry, SkyFrameOf::kJ2000, pole, m_MilkyWay[level - 1]);
    for (const auto& ring : m_Catalogs.milkyWay) {
      if (ring.level != level) continue;
      projector.AddRing(
          {m_Catalogs.milkyWayPoints.data() + ring.first, static_cast<std::size_t>(ring.count)});
    }
  }
}

void SkyFrame::AddHorizon(const ViewGeometry& geometry) {
  const Direction zenith = {{0.0, 0.0, 1.0}};
  const auto circle = [this](std::size_t index) {
    return std::span<const Direction>(m_AltitudeCircles.data() + index * kAltitudeCirclePoints,
                                      kAltitudeCirclePoints);
  };
  RegionProjector(geometry, SkyFrameOf::kHorizon, zenith, m_Ground).AddRing(circle(0));
  for (std::size_t band = 0; band < m_Haze.size(); ++band) {
    RegionProjector(geometry, SkyFrameOf::kHorizon, zenith, m_Haze[band]).AddRing(circle(band + 1));
  }
}

void SkyFrame::AddCompass(const ViewGeometry& geometry) {
  for (int i = 0; i < kCompassMarks; ++i) {
    const double azimuth = i * 2.0 * kPi / kCompassMarks;
    const auto p = geometry.Project(MakeDirection(-azimuth, 0.0), SkyFrameOf::kHorizon);
    if (!geometry.IsInside(p, 0.0)) continue;
    const auto below = geometry.Project(MakeDirection(-azimuth, -kRadiansPerDegree), SkyFrameOf::kHorizon);
    const double length = std::hypot(below.x - p.x, below.y - p.y);
    const CompassMark mark = {p, {(below.x - p.x) / length, (below.y - p.y) / length}, i % 4 == 0};
    m_Compass.push_back(mark);
    if (i % 2 != 0) continue;
    AddCompassLetter(mark, m_CompassLetters.text[i / 2]);
  }
}

// Below the horizon, on the ground; above it where the picture ends there.
void SkyFrame::AddCompassLetter(const CompassMark& mark, const char* letter) {
  const double size = (mark.main ? 24.0 : 13.0) * m_Unit;
  const LabelKind kind = mark.main ? LabelKind::kCompass : LabelKind::kCompassBetween;
  for (const double away : {(mark.main ? 26.0 : 20.0) * m_Unit, (mark.main ? -20.0 : -14.0) * m_Unit}) {
    const tPoint<double> place = {mark.place.x + mark.down.x * away, mark.place.y + mark.down.y * away};
    if (m_Labels.PlaceCentred(letter, place, size, kind) >= 0) return;
  }
}

void SkyFrame::AddFigures(const ViewGeometry& geometry, const ObserverFrame& observer,
                          const ObjectTests& tests) {
  for (const auto& stroke : m_Catalogs.figures) {
    if (tests.IsFigureDrawn(stroke.constellation)) AddStroke(geometry, observer, tests, stroke);
  }
}

// The stroke leaves a gap at its stars. Pieces with an end more than a right angle from the view axis and outside the
// window are left out: their straight picture may have nothing to do with the arc.
void SkyFrame::AddStroke(const ViewGeometry& geometry, const ObserverFrame& observer,
                         const ObjectTests& tests, const FigureStroke& stroke) {
  constexpr double kGap = 7.0;  // pixels
  const tRect<int> window = {0, 0, m_Width + 1, m_Height + 1};
  const Direction* points = m_Catalogs.figurePoints.data() + stroke.first;
  tPoint<double> last{};
  bool lastUsable = false;
  for (int i = 0; i < stroke.count; ++i) {
    const Direction apparent = ApparentDirection(points[i], observer);
    const auto p = geometry.Project(apparent, SkyFrameOf::kJ2000);
    const bool usable =
        Dot(apparent, geometry.centreJ2000) > 0.0 || geometry.IsInside(p, geometry.halfDiagonal);
    if (i > 0 && usable && lastUsable && tests.IsAboveHorizon(apparent)) {
      tPoint<double> from = last, to = p;
      const double length = std::hypot(to.x - from.x, to.y - from.y);
      const double gap = std::min(kGap * m_Unit, 0.3 * length) / std::max(length, 1e-9);
      if (i == 1) from = {last.x + gap * (p.x - last.x), last.y + gap * (p.y - last.y)};
      if (i == stroke.count - 1) to = {p.x - gap * (p.x - last.x), p.y - gap * (p.y - last.y)};
      if (CommonInterfaces::line_in_rectD(&from, &to, window)) m_Lines.push_back({from, to});
    }
    last = p;
    lastUsable = usable;
  }
}

// The catalog begins with the brightest star: behind the first one that is too faint there is no other.
void SkyFrame::AddStars(const ViewGeometry& geometry, const ObjectTests& tests) {
  const StarCatalog& stars = m_Catalogs.stars;
  const ClassLimits& limits = tests.GetStarLimits();
  ObjectPlace place;
  for (int i = 0; i < stars.GetCount() && stars.GetCode(i) <= limits.draw; ++i) {
    if (tests.IsStarDrawn(i, place)) AddStar(geometry, place, i, limits);
  }
}

void SkyFrame::AddStar(const ViewGeometry& geometry, const ObjectPlace& place, int star,
                       const ClassLimits& limits) {
  auto* output = new (m_Pool) StarOutput;
  if (!output) {
    m_PoolExhausted = true;
    return;
  }
  output->m_Frame = m_Number;
  output->m_Place = MakePlace(geometry, place.pixel, place.radius);
  output->m_OnScreen = geometry.IsInside(place.pixel, 0.0);
  output->m_AsDisc = place.radius >= 1.0;
  output->m_Drawn = true;
  m_Stars.push_back({output, star, limits.Opacity(m_Catalogs.stars.GetCode(star))});
}

void SkyFrame::AddDeepsky(const ViewGeometry& geometry, const ObjectTests& tests) {
  ObjectPlace place;
  for (int i = 0; i < static_cast<int>(m_Catalogs.deepsky.size()); ++i) {
    if (!tests.IsDeepskyDrawn(i, place)) continue;
    AddDeepskyObject(geometry, place.pixel, i, tests.GetDeepskyLimits(m_Catalogs.deepsky[i].kind));
  }
}

void SkyFrame::AddDeepskyObject(const ViewGeometry& geometry, const tPoint<double>& p, int object,
                                const ClassLimits& limits) {
  // Radius of a symbol in pixels: true to scale where it can be seen and ends somewhere.
  constexpr double kLeast = 4.5, kMost = 2000.0;
  const auto& entry = m_Catalogs.deepsky[object];
  auto* output = new (m_Pool) DeepskyOutput;
  if (!output) {
    m_PoolExhausted = true;
    return;
  }
  const double major =
      std::clamp(0.5 * geometry.camera.VisRad2PixD(entry.largest), kLeast * m_Unit, kMost * m_Unit);
  const double ratio = entry.largest > 0.0f && entry.smallest > 0.0f ? entry.smallest / entry.largest : 1.0;
  output->m_Frame = m_Number;
  output->m_Place = MakePlace(geometry, p, major);
  output->m_OnScreen = geometry.IsInside(p, 0.0);
  output->m_MajorSize = static_cast<float>(2.0 * major);
  output->m_MinorSize = static_cast<float>(2.0 * major * std::clamp(ratio, 0.3, 1.0));
  output->m_SymbolDrawn = output->m_Drawn = true;
  m_Deepsky.push_back({output, object, limits.Opacity(entry.code)});
}

void SkyFrame::LabelStars(const ClassLimits& limits) {
  constexpr double kNotable = 2.0;  // pixels; larger discs keep labels of others away
  const StarCatalog& stars = m_Catalogs.stars;
  for (const auto& drawn : m_Stars) {
    const auto& place = drawn.output->m_Place;
    if (place.radius > kNotable * m_Unit) m_Labels.Reserve({place.x, place.y}, place.radius, place.radius);
  }
  for (const auto& drawn : m_Stars) {
    if (stars.GetCode(drawn.star) > limits.label) break;
    const auto& place = drawn.output->m_Place;
    const bool proper = stars.HasProperName(drawn.star);
    drawn.output->m_LabelIndex = m_Labels.PlaceBeside(stars.GetLabel(drawn.star), {place.x, place.y},
                                                      place.radius, (proper ? 13.0 : 11.0) * m_Unit,
                                                      proper ? LabelKind::kStarName : LabelKind::kStarLetter);
  }
}

void SkyFrame::LabelDeepsky(const ObjectTests& tests) {
  for (const auto& drawn : m_Deepsky) {
    const auto& object = m_Catalogs.deepsky[drawn.object];
    if (object.code > tests.GetDeepskyLimits(object.kind).label) continue;
    const auto& place = drawn.output->m_Place;
    drawn.output->m_LabelIndex = m_Labels.PlaceBeside(object.label.c_str(), {place.x, place.y}, place.radius,
                                                      11.0 * m_Unit, LabelKindOfDeepsky(object.kind));
  }
}

void SkyFrame::AddNames(const ObjectTests& tests, const ShownKinds& shown) {
  ObjectPlace place;
  for (int i = 0; i < static_cast<int>(m_Catalogs.constellations.size()); ++i) {
    if (!tests.IsConstellationNamed(i, place)) continue;
    m_Labels.PlaceCentred(m_Catalogs.constellations[i].GetShownName(shown.englishNames).c_str(), place.pixel,
                          15.0 * m_Unit, LabelKind::kConstellation);
  }
}

}  // namespace skyview
