// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/display/display_list.h"

namespace scene {

// What printed atlases draw for an object.
enum class DeepskySign {
  kGalaxy,           // an ellipse
  kOpenCluster,      // a dotted ring
  kGlobularCluster,  // a ring with a cross in it
  kPlanetaryNebula,  // a ring with four rays
  kBrightNebula,     // a box
  kDarkNebula,       // a dashed box
  kClusterInNebula,  // a dotted ring in a box
  kOther             // a diamond: double stars, novae, what nobody has made out
};

// By four-character code and number, whose top byte is the sub-type.
DeepskySign FindDeepskySign(int kind, int number);

// A symbol in pixels, y downwards. Ellipses and boxes lie along `angle`, from the x axis downwards.
struct DeepskySymbol {
  DeepskySign sign;
  float x, y;
  float major, minor;  // half-axes; rings and diamonds have the larger one as their radius
  float angle;
  float width;  // of the lines
  Rgba colour;
  ObjectRef object;
};

// The rings of a symbol, and its lines: apart, so that those of many symbols lie in few runs.
void AddSymbolRings(const DeepskySymbol& symbol, DisplayList& list);
void AddSymbolLines(const DeepskySymbol& symbol, DisplayList& list);

// No symbol has more lines, or vertices of lines.
inline constexpr int kMostSymbolLines = 4, kMostSymbolVertices = 8;

}  // namespace scene
