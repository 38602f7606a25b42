// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/catalogs/compass.h"
#include "scene/display/labels.h"
#include "scene/view/sky_region.h"

namespace scene {

// A mark on the horizon: where it stands and the direction of "down" there, a unit vector.
struct CompassMark {
  tPoint<double> place, down;
  bool main;  // north, east, south or west
};

// What of the horizon is drawn.
struct HorizonParts {
  bool ground, line, compass;  // the line along the edge of the ground only with the ground
};

// The ground, the haze above it and the compass along its edge, of one frame. Allocates at its construction
// only.
class SkyHorizon {
 public:
  SkyHorizon();

  // Takes the letters of the compass from the string table, as the construction does.
  void FetchTexts() { m_Letters = FetchCompassLetters(); }

  // Empties the picture, then fills in what is wanted. The letters are placed before the labels of what
  // stands in the sky; they stay valid until the next FetchTexts.
  void Compute(const ViewGeometry& geometry, const HorizonParts& wanted, LabelPlacer& labels);

  // `strength`: what the sky leaves of the haze and of the line along the ground, 0 to 1.
  void DrawHaze(double strength, DisplayList& list) const;
  void DrawGround(const Rgba& colour, double strength, DisplayList& list) const;
  void DrawCompass(DisplayList& list) const;

  const RegionPicture& GetGround() const { return m_Ground; }
  const std::vector<RegionPicture>& GetHaze() const { return m_Haze; }  // highest first
  const std::vector<CompassMark>& GetCompass() const { return m_Compass; }

 private:
  void AddGround(const ViewGeometry& geometry);
  void AddCompass(const ViewGeometry& geometry, LabelPlacer& labels);

  std::vector<Direction> m_AltitudeCircles;  // the horizon first, then those of the haze
  RegionPicture m_Ground;
  std::vector<RegionPicture> m_Haze;
  std::vector<CompassMark> m_Compass;
  CompassLetters m_Letters;
  bool m_WithLine = true;  // along the edge of the ground
};

}  // namespace scene
