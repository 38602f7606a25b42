// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/gazetteers.h"

#include "astro/constants.h"
#include "utils/debug.h"
#include "utils/text.h"

namespace CommonInterfaces {

std::string GetGazetteersFileName(const SSO_ID& body) {
  static constexpr struct {
    int kind, number;
    const char* file;
  } kGazetteers[] = {{astro::kPlanetKind, 1, "gazetteers/mercury_features.txt"},
                     {astro::kPlanetKind, 2, "gazetteers/venus_features.txt"},
                     {astro::kPlanetKind, 4, "gazetteers/mars_features.txt"},
                     {astro::kMoonKind, astro::kMoonNumber, "gazetteers/moon_features.txt"}};
  for (const auto& gazetteer : kGazetteers) {
    if (gazetteer.kind == body.kind && gazetteer.number == body.number) return gazetteer.file;
  }
  PrintDebugString("Object (%d, %d) hasn't gazetteers\n", body.kind, body.number);
  return "";
}

}  // namespace CommonInterfaces
