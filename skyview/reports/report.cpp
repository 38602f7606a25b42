// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/report.h"

#include <initializer_list>

#include "scene/visibility/class_limits.h"
#include "skyview/reports/body_texts.h"
#include "skyview/reports/host_texts.h"
#include "utils/text.h"

namespace skyview {
namespace {

using CommonInterfaces::Camera;

// The classes of objects, in the order of their names in the string table.
constexpr int kClasses[] = {FourCC("star"), FourCC("clst"), FourCC("gala"), FourCC("nebu"), FourCC("dsnv"),
                            FourCC("plnt"), FourCC("moon"), FourCC("astr"), FourCC("comt"), FourCC("scft")};

std::string Line(HostText text, std::initializer_list<CommonInterfaces::FormatArgument> arguments) {
  return scene::ToUtf8(Localize(text, arguments)) + "\n";
}

// A line for each class; in the sky of a frame when there is one.
std::string FormatLimits(const Camera& camera, const scene::SkyFrame* frame, HostText format,
                         const char* indent) {
  std::string lines;
  int text = static_cast<int>(HostText::kFirstClass);
  for (const int cls : kClasses) {
    const scene::ClassLimits ofZoom(camera, cls);
    const scene::ClassLimits limits = frame ? frame->GetDrawnLimits(ofZoom) : ofZoom;
    const std::string name = Localize(static_cast<HostText>(text++), {});
    lines +=
        indent + Line(format, {name.c_str(), scene::MagnitudeOfCode(limits.draw),
                               scene::MagnitudeOfCode(limits.full), scene::MagnitudeOfCode(limits.label)});
  }
  return lines;
}

}  // namespace

std::string MakeReport(const Camera& camera, const std::vector<std::string>& status,
                       const scene::SkyFrame& frame) {
  std::string report;
  for (const auto& text : status) report += text + "\n";
  report += FormatLimits(camera, &frame, HostText::kMagnitudeLimits, "");
  report += Line(HostText::kStarsDrawn, {static_cast<int>(frame.GetStars().size())});
  report += Line(HostText::kDeepskyDrawn, {static_cast<int>(frame.GetDeepsky().size())});
  report += DescribeBodies(frame);
  return report;
}

std::string MakeLimitsTable(Camera& camera) {
  const double own = camera.GetZoom();
  const auto list = [&camera](HostText heading) {
    return Line(heading, {camera.GetZoom()}) + FormatLimits(camera, nullptr, HostText::kLimitsOfClass, "  ");
  };
  std::string table = list(HostText::kZoomOfView);
  for (const double zoom : {0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 50.0, 100.0}) {
    camera.SetZoom(zoom);
    table += list(HostText::kZoom);
  }
  camera.SetZoom(own);
  return table;
}

}  // namespace skyview
