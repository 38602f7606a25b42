// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/region_drawing.h"

namespace scene {
namespace {

// The vertices of one ring, from point `begin` to before `end`.
void AddRing(const RegionPicture& region, int begin, int end, double leastStep, DisplayList& list) {
  tPoint<double> last{};
  for (int i = begin; i < end; ++i) {
    const auto& p = region.points[static_cast<std::size_t>(i)];
    const double dx = p.x - last.x, dy = p.y - last.y;
    if (i > begin && dx * dx + dy * dy < leastStep * leastStep) continue;
    list.AddVertex(p.x, list.GetHeight() - p.y);
    last = p;
  }
}

}  // namespace

void AddRegion(const RegionPicture& region, double leastStep, DisplayList& list) {
  int begin = 0;
  for (const int end : region.ringEnds) {
    AddRing(region, begin, end, leastStep, list);
    list.EndRing();
    begin = end;
  }
  if (!region.holdsOutside) return;
  const double beyond = 2.0 * region.rim, x = list.GetWidth() * 0.5, y = list.GetHeight() * 0.5;
  list.AddVertex(x - beyond, y - beyond);
  list.AddVertex(x + beyond, y - beyond);
  list.AddVertex(x + beyond, y + beyond);
  list.AddVertex(x - beyond, y + beyond);
  list.EndRing();
}

void AddOutlines(const RegionPicture& region, double leastStep, Layer layer, const PolylineRecord& style,
                 DisplayList& list) {
  int begin = 0;
  for (const int end : region.ringEnds) {
    AddRing(region, begin, end, leastStep, list);
    PolylineRecord line = style;
    line.flags |= kClosedLine;
    list.AddLine(layer, line);
    begin = end;
  }
}

}  // namespace scene
