// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/explanation.h"

#include <cmath>

#include "scene/zoom_range.h"
#include "skyview/reports/filter_text.h"
#include "skyview/reports/host_texts.h"
#include "utils/messages.h"
#include "utils/text.h"

namespace skyview {
namespace {

void AddSwitches(const scene::Explanation& why, std::vector<std::string>& reasons) {
  const std::string section = scene::GetCodeText(static_cast<int>(why.state.section));
  if (!why.state.sectionOn)
    reasons.push_back("the section " + section + " is switched off (--set " + section + ":on)");
  if (why.kind == FourCC("astm") && why.state.sectionOn) {
    reasons.push_back("asterisms are switched off (--set cnst.PatternsVisible=3)");
  } else if (why.state.switchName && !why.state.switchOn) {
    const std::string name = section + "." + why.state.switchName;
    reasons.push_back("its kind is switched off: " + name + " is 0 (--set " + name + "=1)");
  }
  if (!why.state.switchName) reasons.push_back("objects of the kind " + section + " are never drawn");
}

std::string DescribeZoom(const std::optional<double>& zoom) {
  if (!zoom) return "no zoom up to 10000 shows it";
  return *zoom <= scene::kMinZoom ? "shown at every zoom" : FormatText("shown from zoom %.4g on", *zoom);
}

// The magnitude of an object, or what stands for it.
std::string DescribeMagnitude(const scene::Explanation& why) {
  const double magnitude = scene::MagnitudeOfCode(*why.code);
  if (why.kind == FourCC("scft"))
    return FormatText("magnitude unknown, by its distance taken for %.2f", magnitude);
  return FormatText(
      std::isnan(why.traits.code) ? "magnitude unknown, by its size shown as %.2f" : "magnitude %.2f",
      magnitude);
}

std::string DescribeFaintness(const scene::Explanation& why, double zoom) {
  return FormatText("too faint at zoom %.4g: the limit is magnitude %.2f, its ", zoom,
                    scene::MagnitudeOfCode(why.limits.draw)) +
         DescribeMagnitude(why) + "; " + DescribeZoom(why.drawnFromZoom);
}

std::string DescribeSky(const scene::Explanation& why) {
  if (!why.code || !(*why.code + why.dim > why.limits.draw))
    return scene::ToUtf8(Localize(HostText::kHiddenByDaylight, {}));
  return scene::ToUtf8(Localize(HostText::kHiddenBySky, {scene::MagnitudeOfCode(why.limits.draw - why.dim),
                                                         scene::MagnitudeOfCode(*why.code)}));
}

std::string DescribeOutside(const scene::Explanation& why, bool horizon) {
  const char* where = why.fromCentre > 90.0 ? "behind the view" : "outside the picture";
  if (!horizon) return FormatText("%s, %.1f\u00B0 from its centre", where, why.fromCentre);
  return FormatText(
      "%s, %.1f\u00B0 from its centre: to see it look at azimuth %.1f\u00B0, altitude %.1f\u00B0 (--look "
      "%.1f,%.1f)",
      where, why.fromCentre, why.standing.azimuth, why.standing.altitude, why.standing.azimuth,
      why.standing.altitude);
}

std::vector<std::string> ListReasons(const scene::Explanation& why, const scene::ShownView& view) {
  std::vector<std::string> reasons;
  if (why.obstacles & scene::kNoPlace) {
    reasons.push_back("nobody can tell where it is for this observer at this moment");
  }
  if (why.obstacles & scene::kKindOff) AddSwitches(why, reasons);
  if (why.obstacles & scene::kFiltered) {
    for (auto& reason : DescribeRejections(why.rejecting, why.kind, why.traits)) {
      reasons.push_back(std::move(reason));
    }
  }
  if (why.obstacles & scene::kTooFaint) reasons.push_back(DescribeFaintness(why, view.camera.GetZoom()));
  if (why.obstacles & scene::kSkyTooBright) reasons.push_back(DescribeSky(why));
  if (why.obstacles & scene::kBelowHorizon) {
    reasons.push_back(FormatText("below the horizon: altitude %.1f\u00B0", why.standing.altitude));
  }
  if (why.obstacles & scene::kBehindLand) {
    reasons.push_back(FormatText("behind the landscape: altitude %.1f\u00B0", why.standing.altitude));
  }
  if (why.obstacles & scene::kOutside) reasons.push_back(DescribeOutside(why, view.observer.horizon));
  if (why.obstacles & scene::kBesidePlanet) {
    reasons.push_back("at this zoom it falls together with its planet");
  }
  if (why.obstacles & scene::kFarSide) {
    reasons.push_back("on the far side of its body, or too near to the limb");
  }
  if (why.obstacles & scene::kInNight) reasons.push_back("it is night there");
  if (why.obstacles & scene::kTooSmall) {
    reasons.push_back("too small at this zoom to have its name");
  }
  if (why.obstacles == 0 && why.label == scene::LabelFate::kNone) {
    reasons.push_back(why.code ? "no memory was left for it" : "no free place for its name");
  }
  return reasons;
}

// What became of the label of an object that is drawn.
std::string DescribeLabel(const scene::Explanation& why) {
  switch (why.label) {
    case scene::LabelFate::kNameless:
      return "label: none, it has no name, letter or number of its own";
    case scene::LabelFate::kPlaced:
      return "label: " + std::string(why.name);
    case scene::LabelFate::kTooFaint:
      return FormatText("label hidden: names go to magnitude %.2f at this zoom; ",
                        scene::MagnitudeOfCode(why.limits.label)) +
             DescribeZoom(why.labelFromZoom);
    case scene::LabelFate::kOff:
      return "label hidden: the labels of the section " + scene::GetCodeText(why.kind) + " are switched off";
    default:
      return "label hidden: no free place beside it";
  }
}

std::vector<std::string> ListFacts(const scene::Explanation& why, const scene::ShownView& view) {
  if (why.obstacles & scene::kNoPlace) return {};
  std::vector<std::string> facts = {FormatText(
      view.observer.horizon ? "azimuth %.1f\u00B0, altitude %.1f\u00B0"
                            : "longitude %.1f\u00B0, latitude %.1f\u00B0 along the plane of the view",
      why.standing.azimuth, why.standing.altitude)};
  if (!why.IsDrawn()) return facts;
  facts.push_back(FormatText("pixel %.0f, %.0f from the upper left corner", why.pixel.x, why.pixel.y));
  if (!why.code) return facts;
  facts.push_back(DescribeMagnitude(why) + ": " + DescribeZoom(why.drawnFromZoom));
  facts.push_back(DescribeLabel(why));
  return facts;
}

}  // namespace

ExplanationLines DescribeExplanation(const scene::Explanation& explanation, const scene::ShownView& view) {
  return {ListReasons(explanation, view), ListFacts(explanation, view)};
}

std::string FormatExplanation(const std::string& title, const scene::Explanation& explanation,
                              const scene::ShownView& view) {
  const ExplanationLines lines = DescribeExplanation(explanation, view);
  std::string text = title + (explanation.IsDrawn() ? ": drawn\n" : ": not drawn\n");
  for (const auto& reason : lines.reasons) text += "- " + reason + "\n";
  for (const auto& fact : lines.facts) text += fact + "\n";
  return text;
}

}  // namespace skyview
