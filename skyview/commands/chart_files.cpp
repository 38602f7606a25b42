// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/chart_files.h"

#include "paint/picture_file.h"
#include "skyview/commands/start.h"
#include "skyview/options/stop.h"

namespace skyview {

void RequirePicture(const std::string& command, const PictureOptions& pictures) {
  if (pictures.out.empty())
    throw Stop{kBadOption, command + ": wants --out FILE.svg, FILE.png or FILE.pdf beside it"};
}

void WriteChart(const PictureOptions& pictures, const scene::DisplayList& chart) {
  std::string error;
  for (const auto& name : pictures.out) Require(paint::WritePicture(chart, name, error), error);
}

}  // namespace skyview
