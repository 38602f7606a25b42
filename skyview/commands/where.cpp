// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/where.h"

#include "skyview/commands/command.h"
#include "skyview/commands/object_finder.h"
#include "skyview/commands/prepared_view.h"
#include "skyview/commands/start.h"
#include "skyview/session/choice.h"

namespace skyview {
namespace {

struct WhereOptions {
  RootOptions root;
  ViewOptions view;
  SatelliteOptions satellites;
  std::string name;
};

WhereOptions Parse(const Call& call) {
  WhereOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.TakeName("NAME", "an object, for example Jupiter", options.name);
  line.Take(kRootGroup, options.root);
  line.Take(kViewGroup, options.view);
  line.Take(kSatelliteGroup, options.satellites);
  line.Parse(call.arguments);
  return options;
}

}  // namespace

std::string RunWhere(const Call& call) {
  WhereOptions options = Parse(call);
  const auto session = Start(call, options.root, options.view, options.satellites);
  PreparedView view(options.view, {}, session, call.clock, call.diagnostics);
  scene::SkyCatalogs catalogs;
  LoadCatalogs(options.satellites, view.camera, scene::CatalogUse::kQuestions, catalogs);
  ObjectFinder finder(catalogs);
  const scene::FoundObject object = finder.Find(call.command.name, options.name);
  std::string text, error;
  const bool known =
      DescribeWhere(object, finder.GetSearch().GetTitle(object), catalogs, view.camera, text, error);
  Require(known, call.command.name + (" " + error));
  return DescribeChoice(options.view, view.camera) + text;
}

}  // namespace skyview
