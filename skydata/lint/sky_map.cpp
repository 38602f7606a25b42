// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/sky_map.h"

#include "skydata/lint/rules.h"

namespace skydata {

// Its reader takes a map whole or not at all.
void LintSkyMap(const LintFile& file, LintRun& run) {
  scene::SkyMap map;
  std::string reason;
  if (!map.Read(file.bytes, reason))
    LintReport(file.name, run.findings).Add(LintCode::kBadHeader, 0, 0, reason);
}

}  // namespace skydata
