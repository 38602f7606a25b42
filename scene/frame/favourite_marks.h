// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "astro/object_id.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/display/labels.h"
#include "scene/visibility/object_tests.h"

namespace scene {

// The marks beside the favourites that are drawn in one frame: small stars of five points, which nothing else
// in a picture is. A constellation has its mark above the place of its name, or below it where the picture
// ends. Allocates when objects are set only; `catalogs` is kept by reference.
class FavouriteMarks {
 public:
  explicit FavouriteMarks(const SkyCatalogs& catalogs) : m_Catalogs(catalogs) {}

  // The objects to be marked, by kind and number; those that the catalogs lack are passed over.
  void SetObjects(const std::vector<SSO_ID>& objects);

  // Keeps labels away from the marks.
  void Compute(const ViewGeometry& geometry, const ObjectTests& tests, LabelPlacer& labels);

  // Stars of five points with a dark edge, legible on any ground.
  void Draw(DisplayList& list) const;

  struct Mark {
    tPoint<double> place;  // of its centre, pixels, y up
    ObjectRef object;
  };
  const std::vector<Mark>& GetMarks() const { return m_Marks; }

  // From the centre of a mark to its points, pixels: never so small that it looks like a dot.
  static double GetRadius(double unit);

 private:
  // False where the mark would not lie wholly in the window.
  bool Add(const ViewGeometry& geometry, const tPoint<double>& place, ObjectRef object, LabelPlacer& labels);
  void AddBeside(const ViewGeometry& geometry, const tPoint<double>& p, double radius, ObjectRef object,
                 LabelPlacer& labels);

  const SkyCatalogs& m_Catalogs;
  std::vector<int> m_Stars, m_Deepsky, m_Constellations;  // indices in the catalogs
  std::vector<StarTileRecord> m_TileStars;
  std::vector<Mark> m_Marks;
};

}  // namespace scene
