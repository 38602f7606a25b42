// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "scene/display/labels.h"
#include "scene/frame/grid_systems.h"
#include "scene/visibility/object_tests.h"
#include "scene/visibility/shown_kinds.h"

namespace scene {

// The grids of one frame, its circles (equators, ecliptic, meridian) and points (poles, equinoxes), with
// their labels. Lines stand about 110 pixels apart whatever the zoom; each is labelled where it leaves the
// window, and one that stays inside where it begins. Meridians other than the four main ones end a step
// before the poles.
//
// Vertices lie on their line, as far apart as ArcWalk takes them. Allocates at its
// construction and in FetchTexts only, unless more lines are asked for than a picture can hold.
class SkyGrids {
 public:
  SkyGrids();

  // Takes the names of circles and points from the string table, in the language that is now in use.
  void FetchTexts();

  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const SkyLines& wanted,
               const ObjectTests& tests, LabelPlacer& labels);
  void Draw(const SkyColours& sky, DisplayList& list) const;

 private:
  enum Name {
    kNorthCelestialPole,
    kSouthCelestialPole,
    kVernalEquinox,
    kSummerSolstice,
    kAutumnalEquinox,
    kWinterSolstice,
    kNorthEclipticPole,
    kSouthEclipticPole,
    kNorthGalacticPole,
    kSouthGalacticPole,
    kGalacticCentre,
    kZenith,
    kNadir,
    kEquator,
    kEquatorJ2000,
    kEcliptic,
    kGalacticEquator,
    kMeridian,
    kPrimeVertical,
    kPrecessionCircle,
    kNameCount
  };

  // What one frame draws with.
  struct Context {
    const ViewGeometry& geometry;
    const ObserverFrame& observer;
    const ObjectTests& tests;
    LabelPlacer& labels;
  };
  struct Chain {
    int first, count;  // vertices
    Rgba colour;
    float width;  // pixels of a picture of 1600 x 1000
  };
  struct Stroke {
    Rgba colour;
    float width;
    const char* label;  // null: none
  };
  class Pen;

  void AddSystem(const Context& context, GridSystemId id, bool grid, const char* equator);
  void AddGrid(const Context& context, const GridSystem& system, bool withEquator);
  void AddParallel(const Context& context, const GridSystem& system, double latitude, double middle,
                   double half, const Stroke& stroke);
  void AddMeridian(const Context& context, const GridSystem& system, double longitude, double from, double to,
                   const Stroke& stroke);
  // A great circle through two coordinates that stand a right angle apart.
  void AddCircle(const Context& context, const GridSystem& system, const Direction& start,
                 const Direction& quarter, const Stroke& stroke);
  void AddArc(const Context& context, const GridSystem& system, const SkyArc& arc, const Stroke& stroke);
  void AddPrecessionCircles(const Context& context);
  void AddPoint(const Context& context, const GridSystem& system, const Direction& coordinates, Name name);
  void AddPoints(const Context& context, unsigned choice);
  const char* Keep(const GridText& text);

  std::array<std::string, kNameCount> m_Names;
  std::vector<GridText> m_Texts;  // of the frame; its labels point into it
  std::vector<tPoint<double>> m_Vertices;
  std::vector<Chain> m_Chains;
};

}  // namespace scene
