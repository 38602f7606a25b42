// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/bodies/body_marks.h"

#include <algorithm>
#include <cmath>

#include "astro/moon_phenomena.h"
#include "astro/moons.h"
#include "astro/vectors.h"
#include "scene/display/style_rules.h"
#include "utils/text.h"

namespace scene {
namespace {

constexpr double kLabelApart = 18.0;  // pixels of a picture of 1600 x 1000, of a moon from its planet
constexpr double kStep = 1e-4;        // radians towards the Sun, to see which way that is in the picture

LabelKind LabelKindOfBody(int kind) {
  if (kind == FourCC("scft")) return LabelKind::kSatellite;
  return kind == FourCC("astr") || kind == FourCC("comt") ? LabelKind::kSmallBody : LabelKind::kPlanet;
}

// The direction in the picture from a body towards the Sun along the great circle: where its bright limb is.
// Up when the two stand in one place.
tPoint<double> FindSunward(const ViewGeometry& geometry, const double body[3], const double sun[3],
                           const tPoint<double>& place) {
  double along = 0.0;
  for (int i = 0; i < 3; ++i) along += body[i] * sun[i];
  Direction aside;
  for (int i = 0; i < 3; ++i) aside.v[i] = sun[i] - along * body[i];
  aside = Normalised(aside);
  for (int i = 0; i < 3; ++i) aside.v[i] = body[i] + kStep * aside.v[i];
  const auto p = geometry.Project(Normalised(aside), SkyFrameOf::kJ2000);
  const double length = std::hypot(p.x - place.x, p.y - place.y);
  if (!(length > 0.0)) return {0.0, 1.0};
  return {(p.x - place.x) / length, (p.y - place.y) / length};
}

}  // namespace

BodyMarks::BodyMarks(const BodyModel& model)
    : m_Model(model),
      m_Globes(model.GetBodies()),
      m_Labels(model.GetBodies().size()),
      m_Numbers(m_Labels.size()) {
  m_Drawn.reserve(m_Labels.size());
  m_Shadows.reserve(m_Labels.size());
  for (std::size_t i = 0; i < m_Numbers.size(); ++i) {
    const SSO_ID& id = model.GetBodies()[i].id;
    if (id.kind == FourCC("scft")) m_Numbers[i] = std::to_string(id.number);
  }
  FetchTexts();
}

void BodyMarks::FetchTexts() {
  for (std::size_t i = 0; i < m_Labels.size(); ++i) m_Labels[i] = GetBodyLabel(m_Model.GetBodies()[i]);
}

const std::string& BodyMarks::GetLabel(int body, const ShownKinds& shown) const {
  const auto index = static_cast<std::size_t>(body);
  return shown.noradNumbers && !m_Numbers[index].empty() ? m_Numbers[index] : m_Labels[index];
}

void BodyMarks::Clear() {
  m_Drawn.clear();
  m_Shadows.clear();
}

void BodyMarks::Compute(const ViewGeometry& geometry, const BodyTests& tests, const ShownKinds& shown,
                        const EclipseShadows& shadows) {
  Clear();
  ObjectPlace place;
  for (int body = 0; body < static_cast<int>(m_Labels.size()); ++body) {
    if (tests.IsDrawn(body, place)) Add(geometry, tests, shown, body, place);
  }
  AddEarthShadow(geometry, shadows);
  AddMoonShadows(geometry);
}

void BodyMarks::KeepClear(LabelPlacer& labels) const {
  for (const auto& drawn : m_Drawn) labels.Reserve(drawn.place, drawn.radius, drawn.radius);
}

void BodyMarks::Add(const ViewGeometry& geometry, const BodyTests& tests, const ShownKinds& shown, int body,
                    const ObjectPlace& place) {
  const SkyBody& entry = m_Model.GetBodies()[static_cast<std::size_t>(body)];
  const BodyState& state = m_Model.GetStates()[static_cast<std::size_t>(body)];
  const bool moon = entry.id.kind == FourCC("moon");
  DrawnBody drawn = {};
  drawn.body = body;
  drawn.place = place.pixel;
  drawn.radius = place.radius;
  drawn.asDisc = body == kSunBody || body == kMoonBody ||
                 tests.GetTrueRadius(state) > tests.GetSymbolRadius(body, place.dim);
  drawn.opacity = tests.GetLimits(entry.id.kind).Opacity(tests.GetDrawnCode(body, place.dim));
  drawn.cosPhase = (moon ? shown.moonPhases : shown.planetPhases) ? std::cos(state.seen.phaseAngle) : 1.0;
  drawn.toSun = m_Model.GetSun().known
                    ? FindSunward(geometry, state.seen.apparent, m_Model.GetSun().seen.apparent, place.pixel)
                    : tPoint<double>{0.0, 1.0};
  drawn.distance = state.seen.distance;
  drawn.labelIndex = -1;
  drawn.lines =
      moon ? GlobeLines{shown.moonGrid, shown.moonGuides} : GlobeLines{shown.planetGrid, shown.planetGuides};
  if (drawn.asDisc) drawn.globe = m_Globes.Find(body, state, geometry, m_Model.GetMoment().julianDateTT);
  if (drawn.globe && geometry.air) drawn.place = drawn.globe->centre;
  m_Drawn.push_back(drawn);
}

// The Sun, the Moon and the planets come first and so have the choice of places.
void BodyMarks::PlaceLabels(const ViewGeometry& geometry, const BodyTests& tests, const ShownKinds& shown,
                            LabelPlacer& labels) {
  for (auto& drawn : m_Drawn) {
    const SSO_ID& id = m_Model.GetBodies()[static_cast<std::size_t>(drawn.body)].id;
    const int kind = id.kind;
    if (!shown.GetLabels(kind).shown) continue;
    if (!tests.IsLabelled(drawn.body)) continue;
    if (tests.FindDistanceToPlanet(drawn.body, drawn.place) < kLabelApart * geometry.unit) continue;
    const LabelKind labelKind = LabelKindOfBody(kind);
    const double size = (drawn.body > kMoonBody && kind == FourCC("moon") ? 11.0
                         : labelKind == LabelKind::kPlanet                ? 14.0
                                                                          : 11.0) *
                        geometry.unit;
    const double ring = GetStyleRules(shown.style).ringedBodies ? 3.0 * geometry.unit : 0.0;
    drawn.labelIndex = labels.PlaceBeside(GetLabel(drawn.body, shown).c_str(), drawn.place,
                                          drawn.radius + ring, size, labelKind, {id.kind, id.number});
  }
  std::sort(m_Drawn.begin(), m_Drawn.end(),
            [](const DrawnBody& a, const DrawnBody& b) { return a.distance > b.distance; });
}

void BodyMarks::AddEarthShadow(const ViewGeometry& geometry, const EclipseShadows& shadows) {
  const auto* shadow = shadows.GetMoonShadow();
  const DrawnBody* moon = Find(kMoonBody);
  if (!shadow || !moon) return;
  const ObservedBody& seen = m_Model.GetMoon().seen;
  Direction foot;
  for (int i = 0; i < 3; ++i) foot.v[i] = seen.apparent[i] * seen.distance + shadow->m_Foot[i];
  const auto centre = geometry.Project(Normalised(foot), SkyFrameOf::kJ2000);
  // A Moon drawn larger than it is takes its shadow with it.
  const double scale = moon->radius / geometry.camera.VisRad2PixD(seen.angularRadius);
  const auto pixels = [&](double radius) {
    return radius > 0.0 ? scale * geometry.camera.VisRad2PixD(radius / seen.distance) : 0.0;
  };
  m_Shadows.push_back({kMoonBody,
                       {moon->place.x + scale * (centre.x - moon->place.x),
                        moon->place.y + scale * (centre.y - moon->place.y)},
                       pixels(shadow->m_UmbraRadius),
                       pixels(shadow->m_PenumbraRadius)});
}

// On the side of the planet that is seen, where they are large enough to be.
void BodyMarks::AddMoonShadows(const ViewGeometry& geometry) {
  constexpr double kLeast = 0.5;  // pixels
  const BodyList& bodies = m_Model.GetBodies();
  for (std::size_t i = 0; i < bodies.size(); ++i) {
    const SSO_ID& id = bodies[i].id;
    const BodyState& moon = m_Model.GetStates()[i];
    if (!moon.known || id.number == kMoonNumber || !astro::IsMoonOfPlanet(id)) continue;
    const DrawnBody* const planet = Find(FindBody(bodies, astro::PlanetOfMoon(id)));
    if (!planet || !planet->asDisc) continue;
    const ObservedBody& seen = m_Model.GetStates()[static_cast<std::size_t>(planet->body)].seen;
    const auto shadow =
        astro::FindMoonShadow(bodies[static_cast<std::size_t>(planet->body)].id, seen, moon.seen,
                              moon.seen.angularRadius * moon.seen.distance, m_Model.GetMoment().julianDateTT);
    if (!shadow || astro::Dot(shadow->place, seen.apparent) >= 0.0) continue;
    Direction there;
    for (int k = 0; k < 3; ++k) there.v[k] = seen.apparent[k] * seen.distance + shadow->place[k];
    const auto pixels = [&](double radius) {
      return radius > 0.0 ? geometry.camera.VisRad2PixD(radius / seen.distance) : 0.0;
    };
    const DrawnShadow drawn = {planet->body, geometry.Project(Normalised(there), SkyFrameOf::kJ2000),
                               pixels(shadow->umbraRadius), pixels(shadow->penumbraRadius)};
    if (drawn.penumbra >= kLeast) m_Shadows.push_back(drawn);
  }
}

const DrawnBody* BodyMarks::Find(int body) const {
  for (const auto& drawn : m_Drawn) {
    if (drawn.body == body) return &drawn;
  }
  return nullptr;
}

}  // namespace scene
