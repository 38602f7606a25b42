// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/explanation.h"

#include "scene/words/reasons.h"
#include "skyview/reports/filter_text.h"
#include "utils/messages.h"

namespace skyview {
namespace {

// With the options that change it.
std::vector<std::string> ListReasons(const scene::Explanation& why, const scene::ShownView& view) {
  std::vector<std::string> lines;
  for (const auto& reason : scene::ListReasons(why, view.camera.GetZoom(), view.observer.horizon)) {
    std::string line = reason.text;
    if (reason.rule) line += DescribeRule(*reason.rule, why.kind, why.traits);
    if (!reason.fix.empty()) line += " (--set " + reason.fix + ")";
    if (reason.obstacle == scene::kOutside && view.observer.horizon) {
      line += FormatText(" (--look %.1f,%.1f)", why.standing.azimuth, why.standing.altitude);
    }
    lines.push_back(std::move(line));
  }
  return lines;
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
  facts.push_back(scene::DescribeZoomOfDrawing(why));
  facts.push_back(scene::DescribeLabel(why));
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
