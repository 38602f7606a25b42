// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/command.h"
#include "skyview/commands/object_finder.h"
#include "skyview/commands/prepared_view.h"
#include "skyview/commands/start.h"
#include "skyview/reports/report.h"

namespace skyview {
namespace {

struct LimitsOptions {
  RootOptions root;
  ViewOptions view;
  SettingsOptions settings;
};

LimitsOptions Parse(const Call& call) {
  LimitsOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.Take(kRootGroup, options.root);
  line.Take(kViewGroup, options.view);
  line.Take(kSettingsGroup, options.settings);
  line.Check([&options] { CheckSettings(options.settings, options.view); });
  line.Parse(call.arguments);
  return options;
}

// The limits are those of every catalog; only the names of --favourite want some.
void AddFavourites(const SettingsOptions& options, PreparedView& view) {
  if (options.favourites.empty()) return;
  scene::SkyCatalogs catalogs;
  LoadCatalogs({}, view.camera, scene::CatalogUse::kQuestions, catalogs);
  ObjectFinder finder(catalogs);
  AddFavourites(options, catalogs, finder, view.settings);
}

}  // namespace

std::string RunLimits(const Call& call) {
  LimitsOptions options = Parse(call);
  const auto session = Start(call, options.root, options.view);
  PreparedView view(options.view, options.settings, session, call.clock, call.diagnostics);
  AddFavourites(options.settings, view);
  KeepSettings(options.settings, view);
  return MakeLimitsTable(view.camera);
}

}  // namespace skyview
