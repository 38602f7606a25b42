// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What tells the styles of a picture apart. The parts of a frame draw in the colours of the palette; the
// display list takes each of them through the ink that the style has for the layer and the shape. What
// colours alone cannot say are the rules.
#pragma once

#include "scene/display/display_list.h"
#include "scene/visibility/chart_style.h"

namespace scene {

enum class InkShape { kPoint, kGlow, kDisc, kLine, kArea, kText };
inline constexpr int kInkShapes = 6;

// What becomes of a colour.
struct Ink {
  enum class Way : unsigned char {
    kAsIs,
    kTone,   // this colour, as bright as the other one's brightest channel
    kFlat,   // this colour
    kDarker  // its hue, stronger and as dark as on paper
  };
  Way way = Way::kAsIs;
  Rgba colour = {};      // its own opacity means nothing
  float opacity = 1.0f;  // what the opacity is multiplied with
  float width = 1.0f;    // and what the width of a line is

  Rgba Apply(const Rgba& from) const;
};

struct StyleRules {
  bool nightSky = false;      // no day, twilight and moonlight
  bool landscape = true;      // else the ground is plain
  bool symbols = true;        // of deep-sky objects and asteroids
  bool caption = true;        // and what else is written over the picture
  bool border = false;        // a line around the picture
  bool ringedBodies = false;  // a ring around what moves, as stars have none
  bool starSigns = false;     // at every zoom (ShownKinds)
  bool solidStars = false;    // faint ones are small and not pale; brightest first, with a rim
  // Of the radii of stars: a factor, and the power that makes bright ones larger still.
  float starScale = 1.0f, starContrast = 1.0f;
  // Of the light around bright stars: its size in radii of the dot, the least radius that has it, in pixels
  // of the standard picture, and its opacity at the dot and in the middle of the way.
  float glareReach = 3.6f, glareFrom = 1.9f;
  double glareStrength = 0.55, glareMiddle = 0.20;

  // Of the dot of a star whose radius by its magnitude is that one; `unit`: a pixel of the standard picture.
  float GetStarRadius(float radius, float unit) const;
};

const StyleRules& GetStyleRules(ChartStyle style);

class InkTable {
 public:
  const Ink& Get(Layer layer, InkShape shape) const {
    return m_Inks[static_cast<int>(layer)][static_cast<int>(shape)];
  }
  void Set(Layer layer, InkShape shape, const Ink& ink) {
    m_Inks[static_cast<int>(layer)][static_cast<int>(shape)] = ink;
  }
  void SetLayer(Layer layer, const Ink& ink) {
    for (Ink& entry : m_Inks[static_cast<int>(layer)]) entry = ink;
  }
  void SetAll(const Ink& ink) {
    for (auto& row : m_Inks) {
      for (Ink& entry : row) entry = ink;
    }
  }

 private:
  static constexpr int kMostLayers = 32;
  Ink m_Inks[kMostLayers][kInkShapes];
};

// Null for a style that draws in the colours of the palette.
const InkTable* GetInks(ChartStyle style);

}  // namespace scene
