// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <vector>

#include "scene/catalogs/sky_catalogs.h"
#include "scene/display/labels.h"
#include "scene/view/sky_cap.h"
#include "scene/view/sky_path.h"
#include "scene/visibility/object_tests.h"

namespace scene {

struct FigureLine {
  DrawnLine line;
  ObjectRef object;
};

// What of a stroke from star to star lies in the window, appended to `lines`. The stroke leaves a gap at its
// stars; `points` are J2000.
void AddFigureStroke(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
                     std::span<const Direction> points, ObjectRef object, std::vector<FigureLine>& lines);
// `dash`: length of dashes, pixels, 0: none.
void DrawFigureLines(const std::vector<FigureLine>& lines, const Rgba& colour, double dash,
                     DisplayList& list);

// The constellations of one frame: the lines of their figures and their names. Allocates at its construction
// only; `catalogs` is kept by reference.
class SkyFigures {
 public:
  explicit SkyFigures(const SkyCatalogs& catalogs);

  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests);
  // Names take the room that other labels leave at their place or around it; that of the constellation
  // nearest to the middle of the picture chooses first and looks farther.
  void PlaceNames(const ViewGeometry& geometry, const ObjectTests& tests, NameForm form, LabelPlacer& labels);

  // `strength`: what the sky leaves of the lines, 0 to 1.
  void Draw(double strength, DisplayList& list) const;

  const std::vector<FigureLine>& GetLines() const { return m_Lines; }  // inside the window

 private:
  // The constellation whose name belongs nearest to the middle, -1: none is named.
  int FindMiddle(const ViewGeometry& geometry, const ObjectTests& tests) const;

  const SkyCatalogs& m_Catalogs;
  std::vector<SkyCap> m_Caps;  // of the strokes
  std::vector<FigureLine> m_Lines;
};

}  // namespace scene
