// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>

#include "scene/chart/curve_chart.h"
#include "scene/chart/light_curve.h"
#include "scene/view/earth_observer.h"
#include "skyview/commands/chart_files.h"
#include "skyview/commands/command.h"
#include "skyview/commands/prepared_view.h"
#include "skyview/commands/start.h"
#include "skyview/options/picture_group.h"
#include "skyview/options/stop.h"
#include "skyview/reports/host_texts.h"
#include "utils/messages.h"

namespace skyview {
namespace {

constexpr const char* kStarForm = "ID|NAME";

struct CurveOptions {
  RootOptions root;
  ViewOptions view;
  PictureOptions pictures;
  std::string star;
};

CurveOptions Parse(const Call& call) {
  CurveOptions options;
  const std::string command = call.command.name;
  CommandLine line(command, call.command.purpose);
  line.TakeName(kStarForm, "a variable star: an identifier such as 0x48780B23, or a name such as Algol",
                options.star);
  line.Take(kRootGroup, options.root);
  line.Take(kViewGroup, options.view);
  line.Take(kPictureGroup, options.pictures);
  line.Parse(call.arguments);
  if (!scene::FindVariableStar(options.star)) {
    throw Stop{kBadOption, command + " '" + options.star + "': wants " + kStarForm + ", one of " +
                               JoinNames(scene::ListVariableStars())};
  }
  RequirePicture(command, options.pictures);
  return options;
}

std::string Describe(const scene::LightCurve& curve) {
  const auto [least, most] = std::ranges::minmax_element(curve.points, {}, &tPoint<double>::y);
  return FormatText("%s: JD %.3f to %.3f, magnitude %.2f to %.2f\n", curve.title.c_str(), curve.first,
                    curve.last, least->y, most->y);
}

}  // namespace

std::string RunCurve(const Call& call) {
  CurveOptions options = Parse(call);
  const auto session = Start(call, options.root, options.view);
  const PreparedView view(options.view, {}, session, call.clock, call.diagnostics);
  const auto now = scene::GetMoment(view.camera);
  const scene::LightCurve curve =
      scene::MakeLightCurve(*scene::FindVariableStar(options.star), now.day + now.fraction);
  const PictureSize size = options.view.GetSize();
  scene::DisplayList chart;
  scene::DrawCurveChart(curve,
                        {scene::ToUtf8(Localize(HostText::kCurveDate, {})),
                         scene::ToUtf8(Localize(HostText::kCurveMagnitude, {}))},
                        size.width, size.height, chart);
  WriteChart(options.pictures, chart);
  return Describe(curve);
}

}  // namespace skyview
