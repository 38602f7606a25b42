// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace paint {

// Red, green, blue, 0 to 255 each.
struct MapColour {
  float red, green, blue;
};

// The map of a body's surface: plate carree, north up, longitude 0 in the middle, east to the right; in steps
// of half the size, so that a small disc takes the mean of what a pixel covers.
class SurfaceMap {
 public:
  // Reads a JPEG file of at most 8192 x 4096 pixels. False, with one diagnostic line, when it is none.
  bool Load(const std::string& path);

  // Between the pixels. Longitude and latitude in radians, any longitude; `perRadian`: how many pixels of the
  // picture a radian of the surface takes.
  MapColour GetColour(double longitude, double latitude, double perRadian) const;

 private:
  struct Level {
    int width, height;
    std::vector<unsigned char> pixels;  // three bytes each
  };
  static Level Halve(const Level& level);
  MapColour Sample(const Level& level, double x, double y) const;

  std::vector<Level> m_Levels;  // the largest first
};

// The map at a resolved path, read once; null when it cannot be. One thread at a time.
const SurfaceMap* FindSurfaceMap(const std::string& path);

}  // namespace paint
