// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "scene/chart/chart_frame.h"
#include "scene/display/text_extents.h"

namespace scene {

struct ChartPoint {
  double x, y;  // pixels
};

// Names beside the lines of a chart, none over another. Both arguments are kept by reference.
class ChartLabels {
 public:
  ChartLabels(const ChartFrame& chart, const TextExtents& extents) : m_Chart(chart), m_Extents(extents) {}

  // A line that names had better not cross.
  void AddObstacle(const ChartPoint& point) { m_Obstacles.push_back(point); }

  // Writes the name right or left of that point of the line, where there is room in the area of the chart
  // and fewest other lines are in the way, nearest to the middle; not at all where there is no room.
  void Place(const std::string& name, const std::vector<ChartPoint>& line, const Colour& colour);

 private:
  struct Box {
    double left, top, right, bottom;
  };
  bool IsFree(const Box& box) const;
  int CountObstacles(const Box& box) const;

  const ChartFrame& m_Chart;
  const TextExtents& m_Extents;
  std::vector<Box> m_Taken;
  std::vector<ChartPoint> m_Obstacles;
};

}  // namespace scene
