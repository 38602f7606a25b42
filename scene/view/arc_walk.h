// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "scene/view/view_geometry.h"

namespace scene {

// Between two right-angled axes of a system of coordinates and what is seen in the frame of the view angles.
struct SightOfSystem {
  double turn[9];                     // from the system's axes to those of the view angles
  bool aberration;                    // moves its directions
  double velocity[3];                 // of the observer, axes of the view angles, units of the speed of light
  double inverseLorentzFactor = 1.0;  // of the velocity
  bool lifted;                        // by the air
};

// A part of a circle on the sphere: middle + cos(t) first + sin(t) second, unit vectors for t from `from` to
// `to`, at most a turn, radians. The middle is where the circle's axis meets its plane; first and second are
// as long as the sine of its radius and stand at right angles to each other and to the middle.
struct SkyArc {
  Direction middle, first, second;
  double from, to;
};

// Walks along the picture of such an arc, from vertex to vertex as far as the window shows it. A straight
// stretch leaves the arc by no more than about kSagitta, so that what is straight in the picture takes few
// steps; where the air bends lines, near the horizon, stretches are short whatever they look like. Parts
// outside the window are leapt over. Makes no allocation; geometry and sight are kept by reference.
class ArcWalk {
 public:
  // Pixels of a picture of 1600 x 1000.
  static constexpr double kSagitta = 0.005, kLongest = 32.0, kLongestInAir = 8.0;

  ArcWalk(const ViewGeometry& geometry, const SightOfSystem& sight, const SkyArc& arc);

  // Goes on to the next vertex, the first one for the first time; false behind the last one.
  bool Next();

  const tPoint<double>& GetPixel() const { return m_Pixel; }  // y up
  // The sine of the altitude at which the vertex is seen, where the view angles have a horizon.
  double GetSine() const { return m_Sine; }
  // Whether the straight stretch from the last vertex to this one belongs to the picture.
  bool IsJoined() const { return m_Joined; }

 private:
  Direction See() const;
  void Turn(double wanted);
  double FindStep(const Direction& seen);

  const ViewGeometry& m_Geometry;
  const SightOfSystem& m_Sight;
  Direction m_Middle, m_First, m_Second;  // axes of the view angles
  double m_To, m_Next;                    // of t: the last one, and the one that comes
  double m_CosineOfNext, m_SineOfNext;    // of that
  double m_Radius;                        // the sine of the circle's
  double m_Stretch, m_StretchInAir;       // pixels from vertex to vertex
  double m_Corner;                        // 1 + cosine of the angle to the window's corners
  tPoint<double> m_Half, m_Slope;         // see FindStep
  tPoint<double> m_Pixel{};
  double m_Sine = 0.0;
  bool m_Joined = false, m_NextJoined = false, m_Ended = false;
};

}  // namespace scene
