// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Files of a data root as skydata looks into them: checked and shown. The first byte of the input chooses the
// file, the rest is its content.
#include <iterator>
#include <set>
#include <string>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "skydata/files/source_error.h"
#include "skydata/lint/lint.h"
#include "skydata/show/files.h"
#include "utils/debug.h"
#include "utils/path.h"

namespace {

using fuzz::Require;
using namespace skydata;

ShownTable ShowStrings(const std::string& bytes) {
  const auto* const data = reinterpret_cast<const std::uint8_t*>(bytes.data());
  return ShowShowers(fuzz::Scratch::Get().Write("show/en/qxstrings.txt", data, bytes.size()));
}

struct File {
  const char* name;
  ShownTable (*show)(const std::string& bytes);  // null: nothing shows it
};
constexpr File kFiles[] = {{"catalogs/stars.txt", ShowCatalog},
                           {"catalogs/cities.txt", ShowCatalog},
                           {"catalogs/comets.txt", ShowCatalog},
                           {"catalogs/nebula_outlines.txt", ShowCatalog},
                           {"catalogs/satellites.tle", ShowTwoLineElements},
                           {"catalogs/planets&moons/planets&moons.txt", ShowPlanets},
                           {"catalogs/comets/best_observation_time.ini", ShowObservationTimes},
                           {"catalogs/favourites.txt", ShowList},
                           {"catalogs/observationobjects.txt", ShowList},
                           {"gazetteers/moon_features.txt", ShowCatalog},
                           {"media/find/3d_flight_to_objects.txt", ShowFlightList},
                           {"media/skyobjects/constell_images/constell.dat", ShowImages},
                           {"media/skyobjects/dso_images/dsoimagestrue.txt", ShowDeepskyImages},
                           {"media/surface/panoramas.ini", ShowPanoramas},
                           {"media/time_interval.ini", ShowYearLimits},
                           {"filters.data", ShowSettings},
                           {"qxstrings.txt", ShowStrings},
                           {"home_params.ini", nullptr},
                           {"README.md", nullptr}};

void Check(const std::string& name) {
  const std::string root = fuzz::Scratch::Get().Path("lint");
  for (const LintFinding& finding : Lint(root)) {
    Require(!finding.file.empty() && !finding.code.empty() && finding.line >= 0 && finding.column >= 0,
            "a finding says where");
    Require(fuzz::IsOneLine(finding.text), "and what, in one line");
    Require(!FormatFindingsAsJson(root, {finding}).empty(), "and can be shown");
  }
  fuzz::Scratch::Get().Remove("lint/" + name);
}

void Show(const File& file, const std::string& bytes) {
  if (!file.show) return;
  const ShownTable table = file.show(bytes);
  Require(!FormatTable(table).empty() && !FormatTableAsJson(table).empty(), "a table can be printed");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const fuzz::Scratch& scratch = fuzz::Scratch::Get();
  fuzz::Input input(data, size);
  const File& file = kFiles[input.TakeBelow(static_cast<int>(std::size(kFiles)))];
  const std::string bytes = input.TakeRest();
  scratch.Write(std::string("lint/") + file.name, reinterpret_cast<const std::uint8_t*>(bytes.data()),
                bytes.size());
  Check(file.name);
  Show(file, bytes);
  return 0;
}
