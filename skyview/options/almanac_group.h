// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the pages and charts of an almanac are asked for.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "skyview/options/option_group.h"
#include "skyview/options/option_values.h"

namespace skyview {

// Charts stand upright, as pages do, unless --size says otherwise.
inline constexpr PictureSize kPageSize = {1200, 1600};

enum class Equipment { kEye, kBinoculars, kTelescope };

struct EquipmentOptions {
  std::optional<Equipment> equipment;
  std::optional<double> aperture;  // mm

  // Without --equipment that of the aperture: from 80 mm on a telescope, from 15 mm binoculars; without
  // either binoculars.
  Equipment GetEquipment() const;
  double GetAperture() const;  // mm
};

enum class TextFormat { kText, kCsv, kJson, kCalendar };

struct PageOptions {
  std::optional<TextFormat> format;
};

struct EventOptions {
  std::vector<std::string> kinds;  // as written between the commas
  std::optional<TextFormat> format;
  std::optional<std::string> out;
};

extern const OptionGroup<EquipmentOptions> kEquipmentGroup;
extern const OptionGroup<PageOptions> kPageGroup;
extern const OptionGroup<EventOptions> kEventGroup;

}  // namespace skyview
