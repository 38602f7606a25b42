// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/reasons.h"

#include <cmath>

#include "scene/visibility/zoom_range.h"
#include "scene/words/words.h"
#include "utils/text.h"

namespace scene {
namespace {

void AddSwitches(const Explanation& why, std::vector<Reason>& reasons) {
  const std::string section = GetCodeText(static_cast<int>(why.state.section));
  const auto add = [&reasons](const std::string& text, const std::string& fix) {
    reasons.push_back({kKindOff, text, fix});
  };
  if (!why.state.sectionOn) add(Say(Word::kSectionOff, {section.c_str()}), section + ":on");
  if (why.kind == FourCC("astm") && why.state.sectionOn) {
    add(Say(Word::kAsterismsOff), "cnst.PatternsVisible=3");
  } else if (why.state.switchName && !why.state.switchOn) {
    const std::string name = section + "." + why.state.switchName;
    add(Say(Word::kKindOff, {name.c_str()}), name + "=1");
  }
  if (!why.state.switchName) add(Say(Word::kNeverDrawn, {section.c_str()}), "");
}

void AddRejections(const Explanation& why, std::vector<Reason>& reasons) {
  const std::string section = GetCodeText(why.kind);
  for (const auto& rule : why.rejecting) {
    if (rule.quantity == Quantity::kNumber) {
      reasons.push_back({kFiltered, Say(Word::kNoFavourite, {section.c_str()}), "", &rule});
      continue;
    }
    const std::string field = section + "." + GetFieldTitle(rule.nameId);
    reasons.push_back({kFiltered, Say(Word::kFilterRejects, {field.c_str()}), field + ":off", &rule});
  }
}

std::string DescribeZoom(const std::optional<double>& zoom) {
  if (!zoom) return Localize(Word::kAtNoZoom, {});
  return *zoom <= kMinZoom ? Localize(Word::kAtEveryZoom, {}) : Localize(Word::kFromZoom, {*zoom});
}

// The magnitude of an object, or what stands for it.
std::string DescribeMagnitude(const Explanation& why) {
  const Word word = why.kind == FourCC("scft")    ? Word::kTakenForMagnitude
                    : std::isnan(why.traits.code) ? Word::kShownAsMagnitude
                                                  : Word::kMagnitudeIs;
  return Localize(word, {MagnitudeOfCode(*why.code)});
}

std::string DescribeFaintness(const Explanation& why, double zoom) {
  return Say(Word::kTooFaint, {zoom, MagnitudeOfCode(why.limits.draw), DescribeMagnitude(why).c_str(),
                               DescribeZoom(why.drawnFromZoom).c_str()});
}

std::string DescribeSky(const Explanation& why) {
  if (!why.code || !(*why.code + why.dim > why.limits.draw)) return Say(Word::kHiddenByDaylight);
  return Say(Word::kHiddenBySky, {MagnitudeOfCode(why.limits.draw - why.dim), MagnitudeOfCode(*why.code)});
}

std::string DescribeOutside(const Explanation& why, bool horizon) {
  const std::string text =
      Say(why.fromCentre > 90.0 ? Word::kBehindView : Word::kOutsidePicture, {why.fromCentre});
  if (!horizon) return text;
  return text + ": " + Say(Word::kLookThere, {why.standing.azimuth, why.standing.altitude});
}

}  // namespace

std::vector<Reason> ListReasons(const Explanation& why, double zoom, bool horizon) {
  std::vector<Reason> reasons;
  const auto add = [&](unsigned obstacle, const std::string& text) {
    if (obstacle == 0 || (why.obstacles & obstacle) != 0) reasons.push_back({obstacle, text, ""});
  };
  add(kNoPlace, Say(Word::kNoPlace));
  if (why.obstacles & kKindOff) AddSwitches(why, reasons);
  if (why.obstacles & kFiltered) AddRejections(why, reasons);
  if (why.obstacles & kTooFaint) add(kTooFaint, DescribeFaintness(why, zoom));
  if (why.obstacles & kSkyTooBright) add(kSkyTooBright, DescribeSky(why));
  add(kBelowHorizon, Say(Word::kBelowHorizon, {why.standing.altitude}));
  add(kBehindLand, Say(Word::kBehindLand, {why.standing.altitude}));
  if (why.obstacles & kOutside) add(kOutside, DescribeOutside(why, horizon));
  add(kBesidePlanet, Say(Word::kBesidePlanet));
  add(kFarSide, Say(Word::kFarSide));
  add(kInNight, Say(Word::kInNight));
  add(kTooSmall, Say(Word::kTooSmall));
  if (why.obstacles == 0 && why.label == LabelFate::kNone)
    add(0, Say(why.code ? Word::kNoMemory : Word::kNoRoomForName));
  return reasons;
}

std::string GetDrawnText() { return Say(Word::kDrawn); }

std::string DescribeZoomOfDrawing(const Explanation& why) {
  return ToUtf8(DescribeMagnitude(why) + ": " + DescribeZoom(why.drawnFromZoom));
}

std::string DescribeLabel(const Explanation& why) {
  switch (why.label) {
    case LabelFate::kNameless:
      return Say(Word::kLabelNone);
    case LabelFate::kPlaced:
      return Say(Word::kLabelIs) + ": " + why.name;
    case LabelFate::kTooFaint:
      return Say(Word::kLabelTooFaint,
                 {MagnitudeOfCode(why.limits.label), DescribeZoom(why.labelFromZoom).c_str()});
    case LabelFate::kOff:
      return Say(Word::kLabelOff, {GetCodeText(why.kind).c_str()});
    default:
      return Say(Word::kLabelNoRoom);
  }
}

}  // namespace scene
