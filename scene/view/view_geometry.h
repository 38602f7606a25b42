// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "common_interfaces/camera.h"
#include "scene/view/air.h"
#include "scene/view/directions.h"
#include "scene/view/observer_frame.h"
#include "scene/view/sky_cap.h"

namespace scene {

// What one pixel of the standard picture of 1600 x 1000 is in a picture of that size.
double GetPictureUnit(int width, int height);

// Which frame directions are given in: the catalogue's, where things stand, or the one that the view angles
// count in, where they are seen.
enum class SkyFrameOf { kJ2000, kHorizon };

// Where a direction is seen.
struct SeenPlace {
  tPoint<double> pixel;
  double sine;  // of the altitude; 1 in a view without a horizon
};

// The figures of the camera's projection that every drawn thing asks for, taken once a frame. Pixels count
// from the left and from the bottom upwards. The projection is stereographic: the angle theta from the view
// axis lies scale * tan(theta / 2) pixels from the centre.
struct ViewGeometry {
  // Of a picture without air.
  explicit ViewGeometry(const CommonInterfaces::Camera& camera);
  // Directions on J2000 axes are lifted where the observer's air does. The observer is kept by reference.
  ViewGeometry(const CommonInterfaces::Camera& camera, const ObserverFrame& observer);

  tPoint<double> Project(const Direction& direction, SkyFrameOf frame) const {
    tPoint<double> p;
    if (air && frame == SkyFrameOf::kJ2000) {
      camera.RA_Dec2PixD(SeenDirection(direction, *air).v, &p);
    } else if (frame == SkyFrameOf::kJ2000) {
      camera.RA_Dec2K2PixD(direction.v, &p);
    } else {
      camera.RA_Dec2PixD(direction.v, &p);
    }
    return p;
  }
  // The pixel of an apparent direction on J2000 axes, and how high it is seen by that observer.
  SeenPlace See(const Direction& apparent, const ObserverFrame& observer) const {
    if (!air) return {Project(apparent, SkyFrameOf::kJ2000), SeenSine(apparent, observer)};
    const Direction seen = SeenDirection(apparent, observer);
    SeenPlace place = {{}, seen.v[2]};
    camera.RA_Dec2PixD(seen.v, &place.pixel);
    return place;
  }
  // Of many: as many pixels as there are directions.
  void Project(std::span<const Direction> directions, SkyFrameOf frame, tPoint<double>* pixels) const;
  // Where in the horizon frame that is seen which stands there in the horizon frame.
  Direction Seen(const Direction& standing) const { return air ? Lifted(standing) : standing; }
  // Whether the pixel lies in the window, or at most `margin` pixels outside. False for coordinates that are
  // not finite.
  bool IsInside(const tPoint<double>& p, double margin) const {
    return p.x >= -margin && p.x <= width + margin && p.y >= -margin && p.y <= height + margin;
  }
  // Whether a point in a cap on J2000 axes, moved by aberration, or a straight stretch between two of them
  // can lie in the window.
  bool MayReach(const SkyCap& cap) const;
  // The angles across the picture's width and height through its centre, radians.
  double GetWidthAngle() const;
  double GetHeightAngle() const;

  const CommonInterfaces::Camera& camera;
  int width, height;
  double unit;                    // GetPictureUnit of the window
  double halfDiagonal;            // pixels from the centre to a corner
  double scale;                   // pixels, see above
  double cornerAngle;             // radians from the view axis to a corner, at most, before the air lifts
  double reachSine, reachCosine;  // of an angle a little wider, for what aberration moves
  Direction centreJ2000;          // where on J2000 axes stands what is seen along the view axis
  Direction centreHorizon;        // the view axis in the horizon frame
  const ObserverFrame* air;       // whose air lifts; null: none does

 private:
  void ProjectLifted(std::span<const Direction> directions, tPoint<double>* pixels) const;
};

}  // namespace scene
