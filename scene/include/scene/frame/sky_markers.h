// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "common_interfaces/camera.h"
#include "scene/api.h"
#include "scene/view/directions.h"
#include "scene/view/observer_frame.h"

namespace scene {

// A marked place of the sky, J2000.
struct SkyMark {
  double ra = 0.0;        // degrees, 0 to 360
  double dec = 0.0;       // degrees, -90 to 90
  std::optional<int> id;  // 0 to 2147483647; a free one when not given
};

// Marked places of the sky. The camera's markers stand in the frame of its view matrix, which turns with the
// Earth; this keeps where they are on the sky.
class SCENE_API SkyMarkers {
 public:
  // Gives the marker to the camera. One of the same identifier is replaced; without one it gets the lowest
  // free number from 1 on.
  void Add(const SkyMark& mark, CommonInterfaces::Camera& camera);

  // Places the camera's markers for a frame: as a star without proper motion would be placed. The camera must
  // be prepared (PrepareObserver). A marker that was not added here keeps its place in the frame of the view.
  // Allocates nothing.
  void Update(const ObserverFrame& observer, CommonInterfaces::Camera& camera) const;

  // What was added, each with its identifier, in the order of the camera's list.
  std::vector<SkyMark> GetMarks() const;

 private:
  struct Mark {
    int id;
    SkyMark mark;
    Direction direction;  // J2000
  };
  const Mark* Find(int id) const;
  std::vector<Mark> m_Marks;
};

}  // namespace scene
