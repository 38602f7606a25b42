// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/showers.h"
#include "scene/view/base_plane.h"
#include "skyview/almanac/night_report.h"
#include "skyview/commands/command.h"
#include "skyview/commands/object_finder.h"
#include "skyview/commands/prepared_view.h"
#include "skyview/commands/start.h"
#include "skyview/options/almanac_group.h"

namespace skyview {
namespace {

struct TonightOptions {
  RootOptions root;
  ViewOptions view;
  SatelliteOptions satellites;
  EquipmentOptions equipment;
  PageOptions page;
};

TonightOptions Parse(const Call& call) {
  TonightOptions options;
  CommandLine line(call.command.name, call.command.purpose);
  line.Take(kRootGroup, options.root);
  line.Take(kViewGroup, options.view);
  line.Take(kSatelliteGroup, options.satellites);
  line.Take(kEquipmentGroup, options.equipment);
  line.Take(kPageGroup, options.page);
  line.Parse(call.arguments);
  return options;
}

// A written date without a time of day means the night that begins on it.
scene::SkyMoment FindNow(const ViewOptions& view, const CommonInterfaces::Camera& camera) {
  constexpr double kEvening = 0.75;  // days: while the night that began is on, or the next one comes
  const scene::SkyMoment moment = scene::GetMoment(camera);
  const bool dateAlone = view.time && view.timeText.find_first_of("T ") == std::string::npos;
  return dateAlone ? scene::Later(moment, kEvening) : moment;
}

}  // namespace

std::string RunTonight(const Call& call) {
  TonightOptions options = Parse(call);
  const auto session = Start(call, options.root, options.view, options.satellites);
  const PreparedView view(options.view, {}, session, call.clock, call.diagnostics);
  const std::string name = call.command.name;
  Require(scene::IsNearSurface(view.camera),
          name + ": wants an observer near the Earth's surface (moving type 0 or 1)");
  scene::SkyCatalogs catalogs;
  LoadCatalogs(options.satellites, view.camera, scene::CatalogUse::kQuestions, catalogs);
  const auto showers = scene::LoadShowers();
  const auto report = MakeNightReport(FindNow(options.view, view.camera), scene::GetPlace(view.camera),
                                      options.equipment, catalogs);
  Require(report.has_value(), name + ": nobody can tell where the Sun is at that moment");
  const LocalClock clock(view.camera);
  return options.page.format == TextFormat::kJson ? FormatNightAsJson(*report, catalogs, showers, clock)
                                                  : FormatNight(*report, catalogs, showers, clock);
}

}  // namespace skyview
