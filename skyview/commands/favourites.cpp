// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/command.h"
#include "skyview/commands/object_finder.h"
#include "skyview/commands/prepared_view.h"
#include "skyview/commands/start.h"
#include "skyview/options/stop.h"
#include "skyview/session/favourite_list.h"

namespace skyview {
namespace {

void CheckWork(const RootOptions& root) {
  if (!root.work) throw Stop{kBadOption, "favourites: wants --work FOLDER, where the list is kept"};
}

RootOptions ParseShow(const Call& call) {
  RootOptions root = ParseRoots(call);
  CheckWork(root);
  return root;
}

struct ChangeOptions {
  RootOptions root;
  SatelliteOptions satellites;
  std::vector<std::string> names;
};

ChangeOptions ParseChange(const Call& call) {
  ChangeOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.TakeNames("NAME...", "objects, for example M42 \"alpha CMa\"", options.names);
  line.Take(kRootGroup, options.root);
  line.Take(kSatelliteGroup, options.satellites);
  line.Parse(call.arguments);
  CheckWork(options.root);
  return options;
}

// What adds to the list or removes from it.
using Change = bool (*)(const std::vector<std::string>& names, const scene::ObjectSearch& search,
                        const scene::SkyCatalogs& catalogs, std::string& error);

std::string RunChange(const Call& call, Change change) {
  const ChangeOptions options = ParseChange(call);
  EnterRoots(options.root, call.programFolder);
  const PreparedView view({}, {}, std::nullopt, call.clock, call.diagnostics);
  scene::SkyCatalogs catalogs;
  LoadCatalogs(options.satellites, view.camera, scene::CatalogUse::kQuestions, catalogs);
  std::string error;
  Require(change(options.names, scene::ObjectSearch(catalogs), catalogs, error), error);
  return FormatFavourites(ReadFavourites());
}

}  // namespace

std::string RunFavouritesShow(const Call& call) {
  const RootOptions root = ParseShow(call);
  EnterRoots(root, call.programFolder);
  return FormatFavourites(ReadFavourites());
}

std::string RunFavouritesAdd(const Call& call) { return RunChange(call, AddToFavourites); }

std::string RunFavouritesRemove(const Call& call) { return RunChange(call, RemoveFromFavourites); }

}  // namespace skyview
