// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/deepsky_symbols.h"

#include <algorithm>
#include <cmath>

#include "utils/text.h"

namespace scene {
namespace {

// Sub-types, as files keep them.
enum SubType : unsigned { kPlanetary = 32, kDark = 35, kWithCluster = 36, kGlobular = 41, kDoubleStar = 44 };

constexpr float kDot = 1.6f, kDash = 3.0f;  // widths of a line
// Of a symbol with rays, parts of its radius: the ring, where they begin, and where they end.
constexpr float kInner = 0.6f, kOuter = 1.4f;

// A line between two points, given as parts of the larger half-axis along and across the symbol's upright.
void AddStroke(const DeepskySymbol& symbol, float x0, float y0, float x1, float y1, DisplayList& list) {
  const float r = symbol.major;
  list.AddVertex(symbol.x + x0 * r, symbol.y + y0 * r);
  list.AddVertex(symbol.x + x1 * r, symbol.y + y1 * r);
  list.AddLine(Layer::kDeepsky, PolylineRecord{0, 0, symbol.width, 0.0f, symbol.colour, 0, symbol.object});
}

void AddBox(const DeepskySymbol& symbol, float dash, DisplayList& list) {
  constexpr int kCorners[][2] = {{-1, -1}, {1, -1}, {1, 1}, {-1, 1}};
  const float c = std::cos(symbol.angle), s = std::sin(symbol.angle);
  for (const auto& [along, across] : kCorners) {
    const float a = static_cast<float>(along) * symbol.major, b = static_cast<float>(across) * symbol.minor;
    list.AddVertex(symbol.x + a * c - b * s, symbol.y + a * s + b * c);
  }
  list.AddLine(Layer::kDeepsky,
               PolylineRecord{0, 0, symbol.width, dash, symbol.colour, kClosedLine, symbol.object});
}

void AddDiamond(const DeepskySymbol& symbol, DisplayList& list) {
  constexpr int kCorners[][2] = {{-1, 0}, {0, -1}, {1, 0}, {0, 1}};
  for (const auto& [right, down] : kCorners) {
    list.AddVertex(symbol.x + static_cast<float>(right) * symbol.major,
                   symbol.y + static_cast<float>(down) * symbol.major);
  }
  list.AddLine(Layer::kDeepsky,
               PolylineRecord{0, 0, symbol.width, 0.0f, symbol.colour, kClosedLine, symbol.object});
}

void AddRing(const DeepskySymbol& symbol, float radius, float dash, DisplayList& list) {
  list.Add(Layer::kDeepsky, EllipseRecord{symbol.x, symbol.y, radius, radius, 0.0f, symbol.width, dash,
                                          symbol.colour, symbol.object});
}

void AddEllipse(const DeepskySymbol& symbol, float minor, DisplayList& list) {
  list.Add(Layer::kDeepsky, EllipseRecord{symbol.x, symbol.y, symbol.major, minor, symbol.angle, symbol.width,
                                          0.0f, symbol.colour, symbol.object});
}

}  // namespace

DeepskySign FindDeepskySign(int kind, int number) {
  const unsigned subType = static_cast<unsigned>(number) >> 24;
  if (kind == FourCC("gala")) return DeepskySign::kGalaxy;
  if (kind == FourCC("clst")) {
    return subType == kGlobular     ? DeepskySign::kGlobularCluster
           : subType == kDoubleStar ? DeepskySign::kOther
                                    : DeepskySign::kOpenCluster;
  }
  if (kind != FourCC("nebu")) return DeepskySign::kOther;
  return subType == kPlanetary     ? DeepskySign::kPlanetaryNebula
         : subType == kDark        ? DeepskySign::kDarkNebula
         : subType == kWithCluster ? DeepskySign::kClusterInNebula
                                   : DeepskySign::kBrightNebula;
}

void AddSymbolRings(const DeepskySymbol& symbol, DisplayList& list) {
  constexpr float kRoundest = 0.75f;  // of a galaxy seen face on: no circle
  switch (symbol.sign) {
    case DeepskySign::kGalaxy:
      AddEllipse(symbol, std::min(symbol.minor, kRoundest * symbol.major), list);
      break;
    case DeepskySign::kOpenCluster:
      AddRing(symbol, symbol.major, kDot * symbol.width, list);
      break;
    case DeepskySign::kClusterInNebula:
      AddRing(symbol, kInner * symbol.major, kDot * symbol.width, list);
      break;
    case DeepskySign::kGlobularCluster:
      AddRing(symbol, symbol.major, 0.0f, list);
      break;
    case DeepskySign::kPlanetaryNebula:
      AddRing(symbol, kInner * symbol.major, 0.0f, list);
      break;
    default:
      break;
  }
}

void AddSymbolLines(const DeepskySymbol& symbol, DisplayList& list) {
  switch (symbol.sign) {
    case DeepskySign::kGlobularCluster:
      AddStroke(symbol, -1.0f, 0.0f, 1.0f, 0.0f, list);
      AddStroke(symbol, 0.0f, -1.0f, 0.0f, 1.0f, list);
      break;
    case DeepskySign::kPlanetaryNebula:
      AddStroke(symbol, kInner, 0.0f, kOuter, 0.0f, list);
      AddStroke(symbol, 0.0f, kInner, 0.0f, kOuter, list);
      AddStroke(symbol, -kInner, 0.0f, -kOuter, 0.0f, list);
      AddStroke(symbol, 0.0f, -kInner, 0.0f, -kOuter, list);
      break;
    case DeepskySign::kBrightNebula:
    case DeepskySign::kClusterInNebula:
      AddBox(symbol, 0.0f, list);
      break;
    case DeepskySign::kDarkNebula:
      AddBox(symbol, kDash * symbol.width, list);
      break;
    case DeepskySign::kOther:
      AddDiamond(symbol, list);
      break;
    default:
      break;
  }
}

}  // namespace scene
