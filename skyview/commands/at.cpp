// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/command.h"
#include "skyview/commands/shown_sky.h"
#include "skyview/commands/start.h"
#include "skyview/options/stop.h"

namespace skyview {
namespace {

constexpr double kTolerance = 3.0;  // pixels beside what is painted
constexpr const char* kPurpose = "X,Y: pixels to the right and down from the picture's upper left corner";

struct AtOptions {
  RootOptions root;
  SkyOptions sky;
  std::string text;
  Pixel pixel;
};

AtOptions Parse(const Call& call) {
  AtOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.TakeName("PIXEL", kPurpose, options.text);
  line.Take(kRootGroup, options.root);
  TakeSky(line, options.sky);
  line.Parse(call.arguments);
  if (!Put(ParsePixel(options.text), options.pixel))
    ThrowBadValue({call.command.name, "PIXEL", kPurpose}, options.text);
  return options;
}

// The size may be that of a session.
void CheckInside(const AtOptions& options, const char* command) {
  const PictureSize size = options.sky.view.GetSize();
  if (options.pixel.x < size.width && options.pixel.y < size.height) return;
  throw Stop{kBadOption, std::string(command) + " '" + options.text + "': wants a pixel of the picture, " +
                             std::to_string(size.width) + "x" + std::to_string(size.height)};
}

}  // namespace

std::string RunAt(const Call& call) {
  AtOptions options = Parse(call);
  SkyOptions& asked = options.sky;
  const auto session = Start(call, options.root, asked.view, asked.satellites, asked.extras, asked.chart);
  CheckInside(options, call.command.name);
  ShownSky sky(asked, session, call.clock, call.diagnostics);
  sky.ShowOrbits(0.0);
  sky.Compute();
  const std::string answer = sky.DescribeAt(options.pixel.x, options.pixel.y, kTolerance);
  KeepSettings(asked.settings, sky.GetView());
  return answer;
}

}  // namespace skyview
