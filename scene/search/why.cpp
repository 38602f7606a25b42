// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/why.h"

#include <algorithm>
#include <optional>

#include "astro/physical_ephemeris.h"
#include "astro/vectors.h"
#include "scene/frame/frame_parts.h"
#include "scene/visibility/kind_switches.h"
#include "scene/visibility/object_tests.h"
#include "scene/visibility/zoom_search.h"
#include "utils/text.h"

namespace scene {
namespace {

// The object as the tests see it.
struct Case {
  int kind;
  std::optional<float> code;  // constellations have none
  ObjectTraits traits;
  unsigned obstacles;
  ObjectPlace place;
  const char* label;
  std::optional<int> labelIndex;  // of what is drawn
  ClassLimits limits;
};

template <class List, class Is>
std::optional<int> FindLabelIndex(const List& drawn, Is is) {
  for (const auto& entry : drawn) {
    if (is(entry)) return entry.output->m_LabelIndex;
  }
  return std::nullopt;
}

Case MakeStarCase(int star, const ObjectTests& tests, const SkyFrame& frame) {
  const StarCatalog& stars = frame.GetCatalogs().stars;
  Case made = {FourCC("star"),
               stars.GetCode(star),
               stars.GetTraits(star),
               0,
               {},
               stars.GetLabel(star, tests.GetLabels(FourCC("star"))),
               {},
               tests.GetStarLimits()};
  made.obstacles = tests.FindStarObstacles(star, made.place);
  made.labelIndex =
      FindLabelIndex(frame.GetStars(), [star](const DrawnStar& drawn) { return drawn.star == star; });
  return made;
}

Case MakeTileStarCase(int number, const ObjectTests& tests, const SkyFrame& frame) {
  Case made = {FourCC("star"), {}, {}, kNoPlace, {}, "", {}, tests.GetStarLimits()};
  const auto star = FindTileStar(frame.GetCatalogs(), number);
  if (!star) return made;
  made.code = star->GetCode();
  made.traits = GetTraits(*star);
  made.obstacles = tests.FindStarObstacles(*star, made.place);
  made.labelIndex = FindLabelIndex(frame.GetStars(), [number](const DrawnStar& drawn) {
    return drawn.star < 0 && drawn.number == number;
  });
  return made;
}

Case MakeDeepskyCase(int index, const ObjectTests& tests, const SkyFrame& frame) {
  const auto& object = frame.GetCatalogs().deepsky[static_cast<std::size_t>(index)];
  Case made = {object.kind,
               object.code,
               GetTraits(object),
               0,
               {},
               object.GetLabel(tests.GetLabels(object.kind)),
               {},
               tests.GetDeepskyLimits(object.kind)};
  made.obstacles = tests.FindDeepskyObstacles(index, made.place);
  made.labelIndex = FindLabelIndex(frame.GetDeepsky(),
                                   [index](const DrawnDeepsky& drawn) { return drawn.object == index; });
  return made;
}

Case MakeConstellationCase(int index, const ObjectTests& tests, const ShownView& view) {
  const auto& constellation = view.frame.GetCatalogs().constellations[static_cast<std::size_t>(index)];
  const char* name = constellation.GetName(view.shown.GetConstellationForm()).c_str();
  Case made = {FourCC("cnst"),
               {},
               GetTraits(constellation),
               0,
               {},
               name,
               {},
               ClassLimits(view.camera, FourCC("cnst"))};
  made.obstacles = tests.FindConstellationObstacles(index, made.place);
  const auto& labels = view.frame.GetParts().labels.GetLabels();
  for (std::size_t i = 0; i < labels.size(); ++i) {
    if (labels[i].text == name) made.labelIndex = static_cast<int>(i);
  }
  return made;
}

// The index of the label that names the object.
std::optional<int> FindNamedIndex(const ObjectRef& object, const SkyFrame& frame) {
  const auto& labels = frame.GetParts().labels.GetLabels();
  const auto found = std::find_if(labels.begin(), labels.end(),
                                  [&object](const Label& label) { return label.object == object; });
  if (found == labels.end()) return std::nullopt;
  return static_cast<int>(found - labels.begin());
}

void FindPlace(const Direction& apparent, const ObjectTests& tests, const ViewGeometry& geometry,
               Case& made) {
  made.place.apparent = apparent;
  made.place.pixel = geometry.Project(apparent, SkyFrameOf::kJ2000);
  if (!tests.IsAboveHorizon(apparent)) made.obstacles |= kBelowHorizon;
  if (!geometry.IsInside(made.place.pixel, 0.0)) made.obstacles |= kOutside;
}

Case MakeAsterismCase(int index, const ObjectTests& tests, const ViewGeometry& geometry,
                      const ShownView& view) {
  const Asterism& asterism = view.frame.GetCatalogs().asterisms.Get()[static_cast<std::size_t>(index)];
  const ClassLimits limits(view.camera, FourCC("cnst"));
  Case made = {FourCC("astm"), {}, {}, 0, {}, asterism.shown.c_str(), {}, limits};
  if (!view.shown.asterisms) made.obstacles |= kKindOff;
  if (tests.GetLight().GetLineStrength() <= 0.0) made.obstacles |= kSkyTooBright;
  FindPlace(ApparentDirection(asterism.direction, view.observer), tests, geometry, made);
  made.labelIndex = FindNamedIndex({FourCC("astm"), asterism.GetNumber()}, view.frame);
  return made;
}

bool AreFeaturesShown(const SSO_ID& body, const ShownKinds& shown) {
  return body.kind == FourCC("moon") ? shown.moonFeatures : shown.planetFeatures;
}

Case MakeFeatureCase(int index, const ObjectTests& tests, const ViewGeometry& geometry,
                     const ShownView& view) {
  const SkyCatalogs& catalogs = view.frame.GetCatalogs();
  const SSO_ID id = Gazetteers::GetBody(index);
  const SurfaceFeature& feature = catalogs.gazetteers.GetFeature(index);
  const SolarSystemPart& part = view.frame.GetParts().solarSystem;
  const BodyModel& model = part.GetModel();
  Case made = {FourCC("feat"), {}, {}, 0, {}, feature.name.c_str(), {}, ClassLimits(view.camera, id.kind)};
  const int body = FindBody(catalogs.bodies, id);
  const BodyState* const state =
      part.IsSeenFromEarth() && body >= 0 ? &model.GetStates()[static_cast<std::size_t>(body)] : nullptr;
  const auto surface = state && state->known
                           ? astro::FindPhysicalEphemeris(id, state->seen, model.GetMoment().julianDateTT)
                           : std::nullopt;
  if (!surface) {
    made.obstacles = kNoPlace;
    return made;
  }
  if (!AreFeaturesShown(id, view.shown) || !view.shown.IsShown(id.kind)) made.obstacles |= kKindOff;
  const SurfaceView disc(geometry, *state, *surface);
  const SurfacePlace place = disc.Find(feature);
  made.obstacles |= disc.FindObstacles(feature, place) & ~static_cast<unsigned>(kOutside);
  FindPlace(place.apparent, tests, geometry, made);
  made.labelIndex =
      FindNamedIndex({FourCC("feat"), catalogs.gazetteers.GetFeature(index).number}, view.frame);
  return made;
}

// What the kind of the object depends on.
KindState FindState(const FoundObject& found, int kind, const ShownView& view) {
  if (found.group == ObjectGroup::kAsterism)
    return ReadSwitchState(view.settings, FourCC("cnst"), "PatternsVisible", true);
  if (found.group != ObjectGroup::kFeature) return ReadKindState(view.settings, kind);
  const int body = Gazetteers::GetBody(found.index).kind;
  const KindState state = ReadKindState(view.settings, body);
  if (!state.sectionOn || !state.switchOn) return state;
  return ReadSwitchState(view.settings, static_cast<unsigned>(body),
                         body == FourCC("moon") ? "MoonFeatures" : "PlanetFeatures", true);
}

Case MakeBodyCase(int index, const ViewGeometry& geometry, const ShownView& view) {
  const SolarSystemPart& part = view.frame.GetParts().solarSystem;
  const BodyTests tests(part.GetModel(), geometry, view.observer, view.shown, view.filters,
                        view.frame.GetParts().light, view.frame.GetParts().landscape.GetPainted());
  const SkyBody& body = part.GetModel().GetBodies()[static_cast<std::size_t>(index)];
  const BodyState& state = part.GetModel().GetStates()[static_cast<std::size_t>(index)];
  Case made = {body.id.kind,
               tests.GetLimitCode(index),
               GetTraits(body, state.code),
               0,
               {},
               part.GetMarks().GetLabel(index, view.shown).c_str(),
               {},
               tests.GetLimits(body.id.kind)};
  made.obstacles = part.IsSeenFromEarth() ? tests.FindObstacles(index, made.place) : unsigned{kNoPlace};
  if (const DrawnBody* drawn = part.GetMarks().Find(index)) made.labelIndex = drawn->labelIndex;
  return made;
}

// Of what is drawn.
LabelFate FindLabelFate(const Case& object, const ShownKinds& shown) {
  if (!object.labelIndex) return LabelFate::kNone;
  if (!*object.label) return LabelFate::kNameless;
  if (*object.labelIndex >= 0) return LabelFate::kPlaced;
  if (object.code && !shown.GetLabels(object.kind).shown) return LabelFate::kOff;
  return object.code && *object.code > object.limits.label ? LabelFate::kTooFaint : LabelFate::kNoRoom;
}

Case MakeCase(const FoundObject& found, const ViewGeometry& geometry, const ShownView& view) {
  if (found.group == ObjectGroup::kBody) return MakeBodyCase(found.index, geometry, view);
  const ObjectTests tests(view.frame.GetCatalogs(), geometry, view.observer, view.shown, view.filters,
                          view.frame.GetParts().light, view.frame.GetParts().landscape.GetPainted());
  switch (found.group) {
    case ObjectGroup::kStar:
      return MakeStarCase(found.index, tests, view.frame);
    case ObjectGroup::kTileStar:
      return MakeTileStarCase(found.index, tests, view.frame);
    case ObjectGroup::kDeepsky:
      return MakeDeepskyCase(found.index, tests, view.frame);
    case ObjectGroup::kAsterism:
      return MakeAsterismCase(found.index, tests, geometry, view);
    case ObjectGroup::kFeature:
      return MakeFeatureCase(found.index, tests, geometry, view);
    default:
      return MakeConstellationCase(found.index, tests, view);
  }
}

}  // namespace

Explanation Explain(const FoundObject& found, const ShownView& view) {
  const ViewGeometry geometry(view.camera, view.observer);
  const Case object = MakeCase(found, geometry, view);
  Explanation why = {object.kind,
                     object.traits,
                     object.obstacles,
                     FindState(found, object.kind, view),
                     {},
                     object.code,
                     object.limits,
                     object.place.dim,
                     {},
                     {},
                     {},
                     0.0,
                     object.place.pixel,
                     object.label,
                     LabelFate::kNone};
  why.pixel.y = geometry.height - why.pixel.y;
  const ObjectFilter& filter = view.filters.Get(object.kind);
  for (const auto& rule : filter.GetRules()) {
    if (!filter.Passes(rule, object.traits)) why.rejecting.push_back(rule);
  }
  if (object.code) {
    why.drawnFromZoom =
        FindLeastZoom(view.camera, object.kind, *object.code + object.place.dim, LimitOf::kDrawing);
    why.labelFromZoom = FindLeastZoom(view.camera, object.kind, *object.code, LimitOf::kLabel);
  }
  if (object.obstacles & kNoPlace) return why;
  why.standing = FindStanding(object.place.apparent, view.observer);
  why.fromCentre = VectorsAngle(object.place.apparent.v, geometry.centreJ2000.v) / kRadiansPerDegree;
  why.label = FindLabelFate(object, view.shown);
  return why;
}

}  // namespace scene
