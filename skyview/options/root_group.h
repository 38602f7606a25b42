// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "scene/catalogs/language.h"
#include "skyview/options/option_group.h"

namespace skyview {

// Where data lies and which language is spoken. What was not given stays empty, here as in the other groups.
struct RootOptions {
  std::optional<std::string> data;  // folder of the data root
  std::optional<std::string> work;  // folder of the work area
  std::optional<std::string> language;

  std::string GetLanguage() const { return language.value_or(scene::kDefaultLanguage); }
};

extern const OptionGroup<RootOptions> kRootGroup;

}  // namespace skyview
