// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/session/chart_options.h"
#include "skyview/options/option_group.h"

namespace skyview {

using scene::ChartOptions;

extern const OptionGroup<ChartOptions> kChartGroup;

}  // namespace skyview
