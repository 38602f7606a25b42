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

void AddRings(const RegionPicture& region, int first, int count, double leastStep, DisplayList& list) {
  for (int ring = first; ring < first + count; ++ring) {
    const auto i = static_cast<std::size_t>(ring);
    AddRing(region, ring == 0 ? 0 : region.ringEnds[i - 1], region.ringEnds[i], leastStep, list);
    list.EndRing();
  }
}

void AddRegion(const RegionPicture& region, double leastStep, DisplayList& list) {
  AddRings(region, 0, static_cast<int>(region.ringEnds.size()), leastStep, list);
  if (!region.holdsOutside) return;
  const double beyond = 2.0 * region.rim, x = list.GetWidth() * 0.5, y = list.GetHeight() * 0.5;
  list.AddVertex(x - beyond, y - beyond);
  list.AddVertex(x + beyond, y - beyond);
  list.AddVertex(x + beyond, y + beyond);
  list.AddVertex(x - beyond, y + beyond);
  list.EndRing();
}

void SetSoftColour(const Colour& edge, float softness, PolygonRecord& area) {
  constexpr double kBands = 4.0;  // of a soft edge
  Colour inside = edge;
  inside.opacity = 1.0 - std::pow(1.0 - edge.opacity, kBands + 1.0);
  area.colour = ToFaintRgba(inside);
  area.edge = ToFaintRgba(edge);
  area.softness = softness;
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
