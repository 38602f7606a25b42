// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/sky_group.h"

#include "scene/session/image_group_names.h"
#include "skyview/options/stop.h"

namespace skyview {
namespace {

constexpr OptionRow<SatelliteOptions> kSatelliteRows[] = {
    {{"--tle", "FILE", "draw the satellites of this file of two-line elements"},
     Times::kOnce,
     [](const std::string& text, SatelliteOptions& options) { return Put(ParseName(text), options.tle); }}};

bool ReadImageGroups(const std::string& text, ExtraOptions& extras) {
  const auto groups = scene::ParseImageGroups(text);
  extras.framesOf |= groups.value_or(0);
  return groups.has_value();
}

constexpr OptionRow<ExtraOptions> kExtraRows[] = {
    {{"--showers", "", "list the meteor showers active on the day of the view, and draw their radiants"},
     Times::kOnce,
     [](const std::string&, ExtraOptions& extras) { return extras.showers = true; }},
    {{"--orbits", "planets|moons|all|NAME[,NAME...]",
      "draw the orbits of planets, of moons, of all bodies, or of these"},
     Times::kOnce,
     [](const std::string& text, ExtraOptions& extras) { return Put(ParseOrbits(text), extras.orbits); }},
    {{"--frames-of", "constellations|deepsky|milkyway[,...]",
      "draw the outlines of these images of the sky; may be given again"},
     Times::kAgain,
     ReadImageGroups},
    {{"--sky", "natural|none", "day, twilight and moonlight, which hide what is faint, or a black sky"},
     Times::kOnce,
     [](const std::string& text, ExtraOptions& extras) { return Put(ParseSkyKind(text), extras.sky); }}};

// A page says how large the picture is.
void TakePageSize(SkyOptions& sky) {
  if (!sky.chart.page) return;
  if (sky.view.size) throw Stop{kBadOption, "--page: says the size, wants no --size beside it"};
  sky.view.size = sky.chart.page->GetSize();
}

}  // namespace

const OptionGroup<SatelliteOptions> kSatelliteGroup = {"Satellites", kSatelliteRows, nullptr};
const OptionGroup<ExtraOptions> kExtraGroup = {"What the sky shows besides", kExtraRows, nullptr};

std::optional<SkyKind> ParseSkyKind(std::string_view text) {
  if (text == "natural") return SkyKind::kNatural;
  if (text == "none") return SkyKind::kNone;
  return std::nullopt;
}

void TakeSky(CommandLine& line, SkyOptions& sky) {
  line.Take(kViewGroup, sky.view);
  line.Take(kSettingsGroup, sky.settings);
  line.Take(kSatelliteGroup, sky.satellites);
  line.Take(kExtraGroup, sky.extras);
  line.Take(kChartGroup, sky.chart);
  line.Check([&sky] { CheckSettings(sky.settings, sky.view); });
  line.Check([&sky] { TakePageSize(sky); });
}

}  // namespace skyview
