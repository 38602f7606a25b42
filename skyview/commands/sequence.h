// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "paint/picture_file.h"
#include "skyview/commands/shown_sky.h"
#include "skyview/options/picture_group.h"

namespace skyview {

// Switches the orbits on: at once for a picture, over a second of the animation clock for a sequence. The
// clock has ten frames a second and stands at the first of them afterwards, a tenth of a second after the
// start.
void ShowOrbits(const SequenceOptions& options, ShownSky& sky);

// Draws the frames that the options ask for, if any, by the plays that the camera then describes, the first
// one where it stands, and writes pictures, contact sheet, animation and trails; a line on `terminal`, if
// there is one, says how far it is. Afterwards the plays are stopped and the camera
// stands at the last frame. Throws Stop at the first picture that cannot be written; those before it are
// there. `patterns`: their names.
void DrawSequence(const SequenceOptions& options, const std::vector<std::string>& patterns,
                  const SkyOptions& asked, ShownSky& sky, std::ostream* terminal);

// The sheet of paper of --page, nothing without.
std::optional<paint::Sheet> FindSheet(const ChartOptions& chart);

}  // namespace skyview
