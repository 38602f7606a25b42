// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The colours of a frame, and how they become those of records.
#pragma once

#include <algorithm>
#include <cmath>

#include "scene/display/display_list.h"

namespace scene {

// 0 to 1 each.
struct Colour {
  double red, green, blue, opacity;
};

inline Rgba ToRgba(const Colour& colour, double strength = 1.0) {
  const auto byte = [](double v) {
    return static_cast<unsigned char>(std::lround(255.0 * std::clamp(v, 0.0, 1.0)));
  };
  return {byte(colour.red), byte(colour.green), byte(colour.blue), byte(colour.opacity * strength)};
}

// For layers so faint that steps of an eighth bit of opacity would show: the next stronger opacity, and a
// colour as much darker. On a dark ground that is the same light.
inline Rgba ToFaintRgba(const Colour& colour) {
  const double opacity = std::ceil(255.0 * colour.opacity) / 255.0, factor = colour.opacity / opacity;
  return ToRgba({colour.red * factor, colour.green * factor, colour.blue * factor, opacity});
}

inline Colour Scaled(const Colour& colour, double factor, double opacity) {
  return {colour.red * factor, colour.green * factor, colour.blue * factor, opacity};
}

namespace palette {

inline constexpr Colour kSkyTop = {0.016, 0.024, 0.055, 1.0}, kSkyFoot = {0.030, 0.047, 0.098, 1.0};
// At even steps of its brightness, the first where it has none.
inline constexpr Colour kMilkyWay[] = {{0.58, 0.66, 0.92, 0.00}, {0.64, 0.71, 0.93, 0.08},
                                       {0.71, 0.76, 0.93, 0.17}, {0.80, 0.81, 0.91, 0.27},
                                       {0.88, 0.85, 0.87, 0.37}, {0.96, 0.90, 0.83, 0.48}};
inline constexpr Colour kHaze = {0.33, 0.47, 0.60, 0.022};
inline constexpr Colour kGround = {0.034, 0.044, 0.048, 1.0}, kGroundEdge = {0.42, 0.58, 0.62, 0.75};
inline constexpr Colour kFigure = {0.42, 0.53, 0.72, 0.45};
// Outlines and names on the discs of bodies, which may be bright and dark.
inline constexpr Colour kCrater = {1.00, 0.85, 0.45, 0.45}, kCraterName = {1.00, 0.94, 0.72, 1.0},
                        kRegionName = {0.78, 0.95, 1.00, 1.0};
// Asterisms beside the figures of constellations.
inline constexpr Colour kAsterism = {0.86, 0.72, 0.46, 0.70};
inline constexpr Colour kEquatorialGrid = {0.36, 0.55, 0.90, 0.34}, kJ2000Grid = {0.30, 0.62, 0.72, 0.30},
                        kEclipticGrid = {0.92, 0.74, 0.32, 0.30}, kGalacticGrid = {0.76, 0.52, 0.90, 0.30},
                        kHorizontalGrid = {0.44, 0.78, 0.50, 0.30};
inline constexpr double kCircleStrength = 2.2;  // equators and other circles, against the lines of their grid
inline constexpr Colour kBoundary = {0.62, 0.55, 0.42, 0.55};
inline constexpr Colour kConstellationImage = {0.45, 0.66, 0.90, 0.75},
                        kDeepskyImage = {0.90, 0.91, 0.94, 0.75}, kMilkyWayImage = {0.80, 0.72, 0.92, 0.75};

// By GetSpectrType, O to M: the tints of stars as the eye has them, a little stronger than life. The last one
// is for stars of no class.
inline constexpr Colour kStars[] = {{0.62, 0.71, 1.00, 1.0}, {0.68, 0.77, 1.00, 1.0}, {0.81, 0.87, 1.00, 1.0},
                                    {0.98, 0.98, 1.00, 1.0}, {1.00, 0.95, 0.84, 1.0}, {1.00, 0.83, 0.63, 1.0},
                                    {1.00, 0.70, 0.47, 1.0}, {0.93, 0.94, 1.00, 1.0}};
inline constexpr unsigned kSpectralClasses = 7;
inline constexpr Colour kStarSign = {0.72, 0.78, 0.90, 0.75};

inline constexpr Colour kGalaxy = {0.93, 0.60, 0.66, 0.9}, kCluster = {0.90, 0.80, 0.47, 0.9},
                        kNebula = {0.47, 0.83, 0.70, 0.9}, kOtherDeepsky = {0.75, 0.67, 0.92, 0.9};
// The levels of an outline, the next one within the one before; of their soft edges as of the Milky Way's.
inline constexpr Colour kNebulaLevels[] = {
    {0.47, 0.83, 0.70, 0.016}, {0.55, 0.88, 0.76, 0.018}, {0.75, 0.96, 0.88, 0.026}};

inline constexpr Colour kCorona = {0.93, 0.95, 1.00, 1.0};
inline constexpr Colour kSun = {1.00, 0.93, 0.72, 1.0}, kMoon = {0.93, 0.92, 0.88, 1.0};
// Mercury to Pluto, as the eye has them.
inline constexpr Colour kPlanets[] = {
    {0.84, 0.78, 0.70, 1.0}, {1.00, 0.95, 0.80, 1.0}, {0.60, 0.75, 1.00, 1.0},
    {1.00, 0.62, 0.42, 1.0}, {0.98, 0.89, 0.74, 1.0}, {0.96, 0.86, 0.60, 1.0},
    {0.68, 0.90, 0.93, 1.0}, {0.55, 0.68, 1.00, 1.0}, {0.86, 0.80, 0.74, 1.0}};
inline constexpr Colour kAsteroid = {0.80, 0.76, 0.66, 1.0}, kComet = {0.70, 0.92, 0.86, 1.0},
                        kSatellite = {0.62, 0.90, 0.96, 1.0};
// Sunlight that the Earth's atmosphere bends into its shadow.
inline constexpr Colour kUmbra = {0.42, 0.13, 0.07, 1.0};
inline constexpr Colour kPlanetOrbit = {0.90, 0.70, 0.42, 0.62}, kMoonOrbit = {0.85, 0.85, 0.80, 0.60},
                        kCometOrbit = {0.50, 0.85, 0.78, 0.50}, kSatelliteOrbit = {0.55, 0.80, 0.92, 0.50},
                        kAsteroidOrbit = {0.70, 0.66, 0.55, 0.45};

inline constexpr Colour kMark = {0.56, 0.93, 0.62, 0.95};     // of the user's markers
inline constexpr Colour kAccent = {0.96, 0.60, 0.28, 1.0};    // of the compass points
inline constexpr Colour kRadiant = {1.00, 0.72, 0.62, 0.95};  // of meteor showers
inline constexpr Colour kFavourite = {1.00, 0.82, 0.25, 1.0}, kFavouriteEdge = {0.02, 0.03, 0.06, 0.9};

inline constexpr Colour kFinder = {1.00, 0.50, 0.42, 0.9};  // fields of instruments
inline constexpr Colour kLegendText = {0.80, 0.85, 0.92, 0.95}, kLegendEdge = {0.50, 0.56, 0.66, 0.70},
                        kLegendGround = {0.01, 0.015, 0.03, 0.9};

// Under the caption, so that it can be read whatever lies behind it; with the opacities above, at and below
// the text.
inline constexpr Colour kCaptionGround = {0.01, 0.015, 0.03, 1.0};

}  // namespace palette
}  // namespace scene
