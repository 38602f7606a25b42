// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "scene/catalogs/sky_catalogs.h"
#include "scene/display/labels.h"
#include "scene/frame/image_groups.h"
#include "scene/view/observer_frame.h"
#include "scene/view/sky_path.h"
#include "scene/visibility/object_tests.h"

namespace scene {

// A stretch of the outline of an image inside the window.
struct DrawnFrameLine {
  DrawnLine line;
  ImageGroup group;
};

// The outlines of the images that are laid onto the sky, in one frame of the picture: four arcs of great
// circles from corner to corner. What stands below the horizon is computed too; the ground covers it.
// Allocates in Load only.
class ImageFrames {
 public:
  // Takes the outlines of these groups from their catalogs, in place of those there were; 0 takes none.
  // Answers the group whose catalog is missing, if one is: there are then no outlines.
  std::optional<ImageGroup> Load(unsigned groups, const SkyCatalogs& catalogs);

  // Labels each outline beside one of its visible edges, the uppermost first, where there is room.
  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
               LabelPlacer& labels);

  void Draw(DisplayList& list) const;

  int GetCount() const { return static_cast<int>(m_Frames.size()); }
  const std::vector<DrawnFrameLine>& GetLines() const { return m_Lines; }

 private:
  struct Frame {
    ImageGroup group;
    std::string label;
    Direction centre;  // J2000
    double reach;      // radians from the centre to the farthest corner
    int first;         // of its points: a corner, and behind it the points of the four edges
    int edgeEnds[4];   // index behind the last point of each edge
  };
  // The stretch in the middle of what can be seen of an edge.
  struct Edge {
    DrawnLine middle;
    bool visible;
  };

  void Add(ImageGroup group, const std::string& label, const Direction (&corners)[4]);
  template <class Images>
  void AddCorners(ImageGroup group, const Images& images);
  void AddDeepsky(const SkyCatalogs& catalogs);
  bool AddGroup(ImageGroup group, const SkyCatalogs& catalogs);
  bool AddLines(const ViewGeometry& geometry, const ObserverFrame& observer, const ObjectTests& tests,
                const Frame& frame, Edge (&edges)[4]);
  static void PlaceLabel(const ViewGeometry& geometry, const ObserverFrame& observer, const Frame& frame,
                         const Edge (&edges)[4], LabelPlacer& labels);

  std::vector<Frame> m_Frames;
  std::vector<Direction> m_Points;  // J2000
  std::vector<DrawnFrameLine> m_Lines;
};

}  // namespace scene
