// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What is drawn to files and what else is kept of a sky.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "skyview/options/motion_values.h"
#include "skyview/options/option_group.h"
#include "skyview/options/option_values.h"

namespace skyview {

struct PictureOptions {
  std::vector<std::string> out;  // at most two, each another; of a sequence patterns (FrameNames)
};

struct SequenceOptions {
  std::optional<PlayRequest> play;
  std::optional<int> frames;                                   // with `play`
  std::optional<std::string> contactSheet, animation, trails;  // PNG files
};

struct KeepOptions {
  std::optional<ViewFile> saveView;
  std::optional<std::string> saveSession;
};

extern const OptionGroup<PictureOptions> kPictureGroup;
extern const OptionGroup<SequenceOptions> kSequenceGroup;
extern const OptionGroup<KeepOptions> kKeepGroup;

// Throws Stop when a sequence lacks names for its pictures, or has names that are no patterns.
void CheckSequence(const SequenceOptions& sequence, const PictureOptions& pictures);

}  // namespace skyview
