// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Prepared catalogs: that they can be read, and whether they are those of the tables beside them.
#include "scene/catalogs/prepared_sky.h"
#include "skydata/lint/rules.h"

namespace skydata {

void LintPreparedSky(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  scene::PreparedSkySummary summary;
  std::string error;
  if (!scene::InspectPreparedSky(file.path.c_str(), summary, error)) {
    report.Add(LintCode::kBadHeader, 0, 0, error + ": the tables are read instead");
    return;
  }
  const std::string place = scene::GetPreparedName(summary.part);
  if (file.name != FindPlace(place.substr(place.find(':') + 1))) {
    report.Add(LintCode::kBadHeader, 0, 0,
               "the prepared catalogs are those of " + place + ": the tables are read instead");
  }
  for (const std::string& text : summary.changedTexts) {
    report.Add(LintCode::kOutdated, 0, 0,
               "made of another " + text + " than is there: the tables are read instead");
  }
}

}  // namespace skydata
