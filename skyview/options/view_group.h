// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "skyview/options/motion_values.h"
#include "skyview/options/option_group.h"
#include "skyview/options/option_values.h"

namespace skyview {

// Which view is restored, and what is laid over it.
struct ViewOptions {
  std::optional<ViewFile> view;
  std::optional<std::string> session;  // file to restore from
  bool home = false;                   // go to the home on the Earth
  std::optional<MovingType> movingType;
  std::optional<WrittenTime> time;
  std::optional<ClockTime> clockTime;  // or that; never both
  std::string timeText;                // --time as written, for messages
  std::optional<std::string> zone;
  std::optional<Place> place;
  std::optional<std::string> city;  // or that, which FindCity (session/city.h) makes a place of; never both
  std::optional<Look> look;
  std::optional<Aim> aim;  // or that; never both
  std::optional<double> zoom;
  std::optional<double> field;  // or that, or that of `aim`: degrees across the picture; never two of them
  std::optional<PictureSize> size;
  std::vector<scene::SkyMark> markers;

  PictureSize GetSize() const { return size.value_or(PictureSize{}); }
};

extern const OptionGroup<ViewOptions> kViewGroup;

}  // namespace skyview
