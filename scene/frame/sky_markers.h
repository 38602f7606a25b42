// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "common_interfaces/camera.h"
#include "scene/view/directions.h"
#include "skyview/options/motion_values.h"
#include "scene/view/observer_frame.h"

namespace skyview {

// Marked places of the sky. The camera's markers stand in the frame of its view matrix, which turns with the Earth; this
// keeps where they are on the sky.
class SkyMarkers {
 public:
  // Gives the marker to the camera. One of the same identifier is replaced; without one it gets the lowest free number
  // from 1 on.
  void Add(const SkyMark& mark, CommonInterfaces::Camera& camera);

  // Places the camera's markers for a frame: as a star without proper motion would be placed. The camera must be
  // prepared (PrepareObserver). A marker that was not added here keeps its place in the frame of the view. Allocates
  // nothing.
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

}  // namespace skyview
