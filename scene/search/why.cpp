// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/why.h"

#include <optional>

#include "astro/vectors.h"
#include "skyview/options/filter_text.h"
#include "scene/visibility/object_tests.h"
#include "skyview/options/option_values.h"
#include "scene/view/standing.h"
#include "skyview/reports/text_format.h"
#include "scene/visibility/zoom_search.h"
#include "utils/text.h"

namespace skyview {
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
  Case made = {
      FourCC("star"),       stars.GetCode(star), stars.GetTraits(star), 0, {}, stars.GetLabel(star), {},
      tests.GetStarLimits()};
  made.obstacles = tests.FindStarObstacles(star, made.place);
  made.labelIndex =
      FindLabelIndex(frame.GetStars(), [star](const DrawnStar& drawn) { return drawn.star == star; });
  return made;
}

Case MakeDeepskyCase(int index, const ObjectTests& tests, const SkyFrame& frame) {
  const auto& object = frame.GetCatalogs().deepsky[static_cast<std::size_t>(index)];
  Case made = {object.kind,
               object.code,
               GetTraits(object),
               0,
               {},
               object.label.c_str(),
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
  const auto& labels = view.frame.GetLabels();
  for (std::size_t i = 0; i < labels.size(); ++i) {
    if (labels[i].text == name) made.labelIndex = static_cast<int>(i);
  }
  return made;
}

Case MakeBodyCase(int index, const ViewGeometry& geometry, const ShownView& view) {
  const SolarSystemPart& part = view.frame.GetSolarSystem();
  const BodyTests tests(part.GetModel(), geometry, view.observer, view.shown, view.filters);
  const SkyBody& body = part.GetModel().GetBodies()[static_cast<std::size_t>(index)];
  const BodyState& state = part.GetModel().GetStates()[static_cast<std::size_t>(index)];
  Case made = {body.id.kind,
               state.code,
               GetTraits(body, state.code),
               0,
               {},
               part.GetMarks().GetLabel(index).c_str(),
               {},
               tests.GetLimits(body.id.kind)};
  if (!tests.HasMagnitude(index)) made.code.reset();
  made.obstacles = part.IsSeenFromEarth() ? tests.FindObstacles(index, made.place) : unsigned{kNoPlace};
  if (const DrawnBody* drawn = part.GetMarks().Find(index)) made.labelIndex = drawn->labelIndex;
  return made;
}

void AddSwitches(const Case& object, const ShownView& view, std::vector<std::string>& reasons) {
  const std::string section = GetCodeText(object.kind);
  const KindState state = ReadKindState(view.settings, object.kind);
  if (!state.sectionOn)
    reasons.push_back("the section " + section + " is switched off (--set " + section + ":on)");
  if (state.switchName && !state.switchOn) {
    const std::string name = section + "." + state.switchName;
    reasons.push_back("its kind is switched off: " + name + " is 0 (--set " + name + "=1)");
  }
  if (!state.switchName) reasons.push_back("objects of the kind " + section + " are never drawn");
}

std::string DescribeZoom(const Case& object, LimitOf limit, CommonInterfaces::Camera& camera) {
  const auto zoom = FindLeastZoom(camera, object.kind, *object.code, limit);
  if (!zoom) return "no zoom up to 10000 shows it";
  return *zoom <= kMinZoom ? "shown at every zoom" : Format("shown from zoom %.4g on", *zoom);
}

std::string DescribeFaintness(const Case& object, const ClassLimits& limits, const ShownView& view) {
  return Format("too faint at zoom %.4g: the limit is magnitude %.2f, its magnitude %.2f; ",
                view.camera.GetZoom(), MagnitudeOfCode(limits.draw), MagnitudeOfCode(*object.code)) +
         DescribeZoom(object, LimitOf::kDrawing, view.camera);
}

std::string DescribeOutside(const Case& object, const ViewGeometry& geometry, const ShownView& view) {
  const Standing standing = FindStanding(object.place.apparent, view.observer);
  const double away = VectorsAngle(object.place.apparent.v, geometry.centreJ2000.v) / kRadiansPerDegree;
  if (!view.observer.horizon) {
    return Format("%s, %.1f\u00B0 from its centre", away > 90.0 ? "behind the view" : "outside the picture",
                  away);
  }
  return Format(
      "%s, %.1f\u00B0 from its centre: to see it look at azimuth %.1f\u00B0, altitude %.1f\u00B0 (--look "
      "%.1f,%.1f)",
      away > 90.0 ? "behind the view" : "outside the picture", away, standing.azimuth, standing.altitude,
      standing.azimuth, standing.altitude);
}

void AddReasons(const Case& object, const ViewGeometry& geometry, const ShownView& view,
                std::vector<std::string>& reasons) {
  if (object.obstacles & kNoPlace) {
    reasons.push_back("nobody can tell where it is for this observer at this moment");
  }
  if (object.obstacles & kKindOff) AddSwitches(object, view, reasons);
  if (object.obstacles & kFiltered) {
    for (auto& reason : DescribeRejections(view.filters.Get(object.kind), object.kind, object.traits)) {
      reasons.push_back(std::move(reason));
    }
  }
  if (object.obstacles & kTooFaint) reasons.push_back(DescribeFaintness(object, object.limits, view));
  if (object.obstacles & kBelowHorizon) {
    reasons.push_back(Format("below the horizon: altitude %.1f\u00B0",
                             FindStanding(object.place.apparent, view.observer).altitude));
  }
  if (object.obstacles & kOutside) reasons.push_back(DescribeOutside(object, geometry, view));
  if (object.obstacles == 0 && !object.labelIndex) {
    reasons.push_back(object.code ? "no memory was left for it" : "no free place for its name");
  }
}

// What became of the label of an object that is drawn.
std::string DescribeLabel(const Case& object, const ClassLimits& limits, const ShownView& view) {
  if (!*object.label) return "label: none, it has no name, letter or number of its own";
  if (*object.labelIndex >= 0) return "label: " + std::string(object.label);
  if (*object.code > limits.label) {
    return Format("label hidden: names go to magnitude %.2f at this zoom; ", MagnitudeOfCode(limits.label)) +
           DescribeZoom(object, LimitOf::kLabel, view.camera);
  }
  return "label hidden: no free place beside it";
}

void AddFacts(const Case& object, const ShownView& view, std::vector<std::string>& facts) {
  facts.push_back(Format("pixel %.0f, %.0f from the upper left corner", object.place.pixel.x,
                         view.frame.GetHeight() - object.place.pixel.y));
  if (!object.code) return;
  facts.push_back(Format("magnitude %.2f: ", MagnitudeOfCode(*object.code)) +
                  DescribeZoom(object, LimitOf::kDrawing, view.camera));
  facts.push_back(DescribeLabel(object, object.limits, view));
}

}  // namespace

Explanation Explain(const FoundObject& found, const ShownView& view) {
  const ViewGeometry geometry(view.camera);
  const ObjectTests tests(view.frame.GetCatalogs(), geometry, view.observer, view.shown, view.filters);
  const Case object = found.group == ObjectGroup::kStar      ? MakeStarCase(found.index, tests, view.frame)
                      : found.group == ObjectGroup::kDeepsky ? MakeDeepskyCase(found.index, tests, view.frame)
                      : found.group == ObjectGroup::kBody    ? MakeBodyCase(found.index, geometry, view)
                                                          : MakeConstellationCase(found.index, tests, view);
  Explanation explanation;
  AddReasons(object, geometry, view, explanation.reasons);
  explanation.drawn = explanation.reasons.empty();
  if (object.obstacles & kNoPlace) return explanation;
  const Standing standing = FindStanding(object.place.apparent, view.observer);
  explanation.facts.push_back(
      Format(view.observer.horizon ? "azimuth %.1f\u00B0, altitude %.1f\u00B0"
                                   : "longitude %.1f\u00B0, latitude %.1f\u00B0 along the plane of the view",
             standing.azimuth, standing.altitude));
  if (explanation.drawn) AddFacts(object, view, explanation.facts);
  return explanation;
}

std::string FormatExplanation(const std::string& title, const Explanation& explanation) {
  std::string text = title + (explanation.drawn ? ": drawn\n" : ": not drawn\n");
  for (const auto& reason : explanation.reasons) text += "- " + reason + "\n";
  for (const auto& fact : explanation.facts) text += fact + "\n";
  return text;
}

}  // namespace skyview
