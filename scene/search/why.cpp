// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/why.h"

#include <optional>

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
  const char* name = constellation.GetShownName(view.shown.englishNames).c_str();
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

Case MakeBodyCase(int index, const ViewGeometry& geometry, const ShownView& view) {
  const SolarSystemPart& part = view.frame.GetParts().solarSystem;
  const BodyTests tests(part.GetModel(), geometry, view.observer, view.shown, view.filters,
                        view.frame.GetParts().light);
  const SkyBody& body = part.GetModel().GetBodies()[static_cast<std::size_t>(index)];
  const BodyState& state = part.GetModel().GetStates()[static_cast<std::size_t>(index)];
  Case made = {body.id.kind,
               state.code,
               GetTraits(body, state.code),
               0,
               {},
               part.GetMarks().GetLabel(index, view.shown).c_str(),
               {},
               tests.GetLimits(body.id.kind)};
  if (!tests.HasMagnitude(index)) made.code.reset();
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
                          view.frame.GetParts().light);
  switch (found.group) {
    case ObjectGroup::kStar:
      return MakeStarCase(found.index, tests, view.frame);
    case ObjectGroup::kTileStar:
      return MakeTileStarCase(found.index, tests, view.frame);
    case ObjectGroup::kDeepsky:
      return MakeDeepskyCase(found.index, tests, view.frame);
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
                     ReadKindState(view.settings, object.kind),
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
