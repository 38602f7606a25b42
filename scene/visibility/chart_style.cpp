// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/chart_style.h"

#include "scene/visibility/shown_kinds.h"

namespace scene {

void SetChartStyle(ChartStyle style, ShownKinds& shown) {
  shown.style = style;
  if (style != ChartStyle::kPhoto) return;
  shown.figures = shown.constellationNames = shown.boundaries = shown.horizonLine = shown.compass = false;
  shown.lines = {};
  for (LabelRules* rules : {&shown.starLabels, &shown.clusterLabels, &shown.galaxyLabels, &shown.nebulaLabels,
                            &shown.otherDeepskyLabels, &shown.planetLabels, &shown.moonLabels,
                            &shown.asteroidLabels, &shown.cometLabels, &shown.spacecraftLabels}) {
    rules->shown = false;
  }
}

}  // namespace scene
