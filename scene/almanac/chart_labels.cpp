// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/almanac/chart_labels.h"

#include <algorithm>
#include <optional>

namespace scene {

bool ChartLabels::IsFree(const Box& box) const {
  if (box.left < m_Chart.GetLeft() || box.right > m_Chart.GetRight()) return false;
  if (box.top < m_Chart.GetTop() || box.bottom > m_Chart.GetBottom()) return false;
  return std::none_of(m_Taken.begin(), m_Taken.end(), [&box](const Box& taken) {
    return box.left < taken.right && taken.left < box.right && box.top < taken.bottom &&
           taken.top < box.bottom;
  });
}

int ChartLabels::CountObstacles(const Box& box) const {
  return static_cast<int>(
      std::count_if(m_Obstacles.begin(), m_Obstacles.end(), [&box](const ChartPoint& point) {
        return point.x > box.left && point.x < box.right && point.y > box.top && point.y < box.bottom;
      }));
}

void ChartLabels::Place(const std::string& name, const std::vector<ChartPoint>& line, const Colour& colour) {
  constexpr double kSize = 15.0, kGap = 8.0;
  constexpr int kStep = 4;  // points between two places that are tried
  const double unit = m_Chart.GetUnit(), size = kSize * unit, gap = kGap * unit;
  const double width = m_Extents.GetWidth(name.c_str(), size, 0);
  const int count = static_cast<int>(line.size()), middle = count / 2;
  struct Choice {
    Box box;
    int obstacles;
  };
  std::optional<Choice> best;
  for (int step = 0; step < count; step += kStep) {
    const int at = middle + (step % (2 * kStep) ? -(step + kStep) / 2 : step / 2);
    if (at < 0 || at >= count) continue;
    const ChartPoint& point = line[static_cast<std::size_t>(at)];
    for (const double left : {point.x + gap, point.x - gap - width}) {
      const Box box = {left, point.y - 0.8 * size, left + width, point.y + 0.5 * size};
      if (!IsFree(box)) continue;
      const int obstacles = CountObstacles(box);
      if (!best || obstacles < best->obstacles) best = {box, obstacles};
    }
  }
  if (!best) return;
  m_Chart.DrawText(name, best->box.left, best->box.bottom - 0.15 * size, 0.0, kSize, colour);
  m_Taken.push_back({best->box.left - gap, best->box.top, best->box.right + gap, best->box.bottom});
}

}  // namespace scene
