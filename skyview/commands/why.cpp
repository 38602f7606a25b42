// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/command.h"
#include "skyview/commands/shown_sky.h"
#include "skyview/commands/start.h"

namespace skyview {
namespace {

struct WhyOptions {
  RootOptions root;
  SkyOptions sky;
  std::string name;
};

WhyOptions Parse(const Call& call) {
  WhyOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.TakeName("NAME", "an object, for example M31 or \"alpha CMa\"", options.name);
  line.Take(kRootGroup, options.root);
  TakeSky(line, options.sky);
  line.Parse(call.arguments);
  return options;
}

}  // namespace

std::string RunWhy(const Call& call) {
  WhyOptions options = Parse(call);
  SkyOptions& asked = options.sky;
  const auto session = Start(call, options.root, asked.view, asked.satellites, asked.extras, asked.chart);
  ShownSky sky(asked, session, call.clock, call.diagnostics);
  sky.ShowOrbits(0.0);
  sky.Compute();
  const std::string explanation = sky.Explain(call.command.name, options.name);
  KeepSettings(asked.settings, sky.GetView());
  return explanation;
}

}  // namespace skyview
