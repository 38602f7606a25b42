// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "astro/moon_phenomena.h"
#include "astro/object_id.h"
#include "companions/astro/events/state_track.h"

namespace astro_internal {

// From whom the lines start.
enum class Viewer { kEarth, kSun };

// A planet and one of its moons from a viewer: au, ICRS axes.
struct MoonLine {
  double planet[3];
  double moon[3];
  double other[3];  // from the planet towards the other of Earth and Sun, any length
};

// A spheroid about an axis.
struct Spheroid {
  double pole[3];            // unit vector, ICRS axes
  double equatorial, polar;  // radii, au
};

// The planet at a date (TT), `more` au larger all around. False where its rotation or shape is not known.
bool MakeSpheroid(const SSO_ID& planet, double date, double more, Spheroid& spheroid);

// Whether the moon is farther from the viewer than the planet.
bool IsBehind(const MoonLine& line);

// How far the line from the viewer to the moon passes the limb of the planet, in equatorial radii; negative:
// inside the disc. Of a moon before the planet the disc is what both the Earth and the Sun see of it: no
// transit over the dark side, no shadow behind the limb; and the measure inside is another one. Continuous,
// with one minimum where the moon passes.
double Clearance(const MoonLine& line, const Spheroid& planet);

// The spheroid as a ball: stretches a vector along the axis until the radii are equal.
void Stretch(const Spheroid& planet, double v[3]);

// A planet and a moon over some time.
class MoonLines {
 public:
  MoonLines(const SSO_ID& planet, const SSO_ID& moon);

  // The lines of the light that reaches the Earth at a date (TT): from the Earth itself, or on its way from
  // the Sun, past one of the two to the other. False outside the ranges.
  bool GetLine(double date, Viewer viewer, MoonLine& line);

 private:
  SSO_ID m_Moon;
  StateTrack m_Planet, m_Earth;
};

}  // namespace astro_internal
