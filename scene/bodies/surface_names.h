// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "astro/physical_ephemeris.h"
#include "scene/bodies/body_marks.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/display/labels.h"

namespace scene {

// Where a feature of a surface stands in the picture. Pixels, y up.
struct SurfacePlace {
  Direction apparent{};  // J2000
  tPoint<double> pixel{};
  double cosine = 0.0;  // of the angle between the ground's normal and the way to the observer
  double radius = 0.0;  // half its extent, not foreshortened
};

// One body whose surface is seen, in one frame. Keeps the references; makes no allocation.
class SurfaceView {
 public:
  SurfaceView(const ViewGeometry& geometry, const BodyState& state, const astro::PhysicalEphemeris& surface);

  SurfacePlace Find(const SurfaceFeature& feature) const;
  // What keeps a feature that stands there from being named: of Obstacle kFarSide, kInNight, kTooSmall
  // and kOutside.
  unsigned FindObstacles(const SurfaceFeature& feature, const SurfacePlace& place) const;
  bool IsLargeEnough(const SurfaceFeature& feature) const;

 private:
  const ViewGeometry& m_Geometry;
  const BodyState& m_State;
  const astro::PhysicalEphemeris& m_Surface;
  double m_PixelsPerKm;
  double m_ToObserver[3], m_ToSun[3];  // on the body's axes; the first a unit vector
};

// The names on the discs of bodies that are large in the picture: the largest features first, more of them
// the larger the disc, where they are seen by day, above the horizon. Gazetteers are read when a disc is
// large for the first time; the list of marks has room for all labels.
class SurfaceNames {
 public:
  explicit SurfaceNames(const Gazetteers& gazetteers);

  void Clear() { m_Marks.clear(); }
  // To be called before anything keeps labels off the discs.
  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const BodyModel& model,
               const std::vector<DrawnBody>& bodies, const ShownKinds& shown, LabelPlacer& labels);
  // The outlines of craters that are named.
  void Draw(DisplayList& list) const;

 private:
  // A named crater, as its outline is seen. Pixels, y up.
  struct Mark {
    SurfacePlace place;
    double angle;  // of the larger axis, radians from the right upwards
    ObjectRef object;
  };
  void AddBody(const SurfaceView& view, const SSO_ID& id, const DrawnBody& drawn, double leastSine,
               const double zenith[3], LabelPlacer& labels);

  const Gazetteers& m_Gazetteers;
  std::vector<Mark> m_Marks;
  double m_Unit = 1.0;
};

}  // namespace scene
