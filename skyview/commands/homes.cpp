// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/homes.h"

#include "skyview/commands/command.h"
#include "skyview/commands/shown_sky.h"
#include "skyview/commands/start.h"
#include "skyview/options/stop.h"

namespace skyview {
namespace {

struct StoreOptions {
  RootOptions root;
  SkyOptions sky;
};

StoreOptions ParseStore(const Call& call) {
  StoreOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.Take(kRootGroup, options.root);
  TakeSky(line, options.sky);
  line.Parse(call.arguments);
  if (!options.root.work)
    throw Stop{kBadOption, call.command.name + std::string(": wants --work FOLDER, where homes are kept")};
  return options;
}

}  // namespace

std::string RunHomesShow(const Call& call) {
  const RootOptions root = ParseRoots(call);
  EnterRoots(root, call.programFolder);
  const PreparedView view({}, {}, std::nullopt, call.clock, call.diagnostics);
  return FormatHomes(view.camera);
}

std::string RunHomesStore(const Call& call) {
  StoreOptions options = ParseStore(call);
  SkyOptions& asked = options.sky;
  const auto session = Start(call, options.root, asked.view, asked.satellites, asked.extras, asked.chart);
  ShownSky sky(asked, session, call.clock, call.diagnostics);
  sky.ShowOrbits(0.0);
  sky.Compute();
  std::string error;
  Require(StoreHome(sky.GetCamera(), call.diagnostics, error), error);
  KeepSettings(asked.settings, sky.GetView());
  return sky.MakeReport();
}

}  // namespace skyview
