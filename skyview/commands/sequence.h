// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/frame_maker.h"
#include "skyview/options/options.h"

namespace skyview {

// The animation clock at a frame of a sequence: ten frames a second, the first one a tenth of a second after the start.
void SetAnimationClock(int frame);

// Draws the frames that the options ask for (--play, --frames) by the plays that the camera then describes, the first
// one where it stands, and writes pictures and contact sheet. Afterwards the plays are stopped and the camera stands
// at the last frame. False, with one line in `error`, at the
// first picture that cannot be written; those before it are there.
bool DrawSequence(const Options& options, CommonInterfaces::Camera& camera, scene::FrameMaker& maker,
                  std::string& error);

}  // namespace skyview
