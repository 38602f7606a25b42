// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What stands in the sky besides the objects of the catalogs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "scene/session/orbit_request.h"
#include "skyview/options/chart_group.h"
#include "skyview/options/command_line.h"
#include "skyview/options/option_group.h"
#include "skyview/options/settings_group.h"
#include "skyview/options/view_group.h"

namespace skyview {

using scene::FormatOrbits;
using scene::OrbitRequest;
using scene::ParseOrbits;

struct SatelliteOptions {
  std::optional<std::string> tle;  // file of two-line elements
};

// Day, twilight and moonlight as they are, or a black sky that hides nothing.
enum class SkyKind { kNatural, kNone };

std::optional<SkyKind> ParseSkyKind(std::string_view text);

struct ExtraOptions {
  bool showers = false;
  std::optional<OrbitRequest> orbits;
  unsigned framesOf = 0;  // a combination of ImageGroup
  std::optional<SkyKind> sky;
};

// All that a shown sky follows from.
struct SkyOptions {
  ViewOptions view;
  SettingsOptions settings;
  SatelliteOptions satellites;
  ExtraOptions extras;
  ChartOptions chart;
};

extern const OptionGroup<SatelliteOptions> kSatelliteGroup;
extern const OptionGroup<ExtraOptions> kExtraGroup;

// All groups of a shown sky, and what they want of each other.
void TakeSky(CommandLine& line, SkyOptions& sky);

}  // namespace skyview
