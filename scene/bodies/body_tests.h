// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Which bodies one frame draws, as object_tests.h says it for what stands still.
#pragma once

#include <array>

#include "scene/bodies/body_model.h"
#include "scene/visibility/object_tests.h"

namespace scene {

// Whether an orbit is one of the main belt of asteroids: between the resonances 4:1 and 2:1 with Jupiter
// (semi-major axis 2.065 to 3.278 au), and never as near to the Sun as Mars comes.
bool IsOfMainBelt(const OrbitalElements& elements);

// Everything is kept by reference. Makes no allocation.
class BodyTests {
 public:
  BodyTests(const BodyModel& model, const ViewGeometry& geometry, const ObserverFrame& observer,
            const ShownKinds& shown, const ObjectFilters& filters, const SkyLight& light,
            const Landscape& landscape);

  // On true the place is whole; its radius is that of the disc or symbol.
  bool IsDrawn(int body, ObjectPlace& place) const { return Test<true>(body, place) == 0; }
  // All obstacles, a combination of Obstacle.
  unsigned FindObstacles(int body, ObjectPlace& place) const { return Test<false>(body, place); }

  const ClassLimits& GetLimits(int kind) const;  // "plnt", "moon", "astr", "comt", "scft"
  // The radius of a body's disc at its true size, pixels.
  double GetTrueRadius(const BodyState& state) const;
  // The radius of the dot that stands for a body whose disc is smaller, pixels: as large as a star of its
  // magnitude (GetDotRadius), but never larger than a bright planet's; the Sun's and the Moon's are always
  // large enough to show what they are. `dim`: codes by which the sky makes it look fainter.
  double GetSymbolRadius(int body, float dim) const;
  // Nobody knows how bright a satellite is: no sky hides it, and its dot is always the same.
  bool HasMagnitude(int body) const;
  // What the limits of the zoom are compared with: the magnitude code, of satellites one by their distance.
  float GetLimitCode(int body) const;
  // The code by which a body is drawn that the sky makes fainter by `dim` codes; of an asteroid of a group
  // that is shown (ShownKinds) never beyond the limit.
  float GetDrawnCode(int body, float dim) const;
  // Whether the magnitude lets a body have its name.
  bool IsLabelled(int body) const;
  // Pixels from a moon at that place to the edge of the dot that stands for its planet; infinite where the
  // planet is seen as a disc, and for other bodies and our Moon.
  double FindDistanceToPlanet(int moon, const tPoint<double>& place) const;

 private:
  template <bool kFirst>
  unsigned Test(int body, ObjectPlace& place) const;
  bool IsAboveHorizon(const BodyState& state) const;
  bool IsBehindLand(const BodyState& state) const;
  // Whether it is an asteroid of a group that is shown however faint its members are.
  bool IsOfShownGroup(const SkyBody& body) const;
  bool IsHiddenBySky(int body, float dim) const;
  // Sine of the altitude; 1 where the view has no horizon.
  double GetSine(const BodyState& state) const;
  // By how many codes the sky makes a body at that pixel look fainter.
  float FindDim(int body, const tPoint<double>& pixel) const;

  struct Kind {
    int kind;
    ClassLimits limits;
    const ObjectFilter& filter;
  };
  const Kind& FindKind(int kind) const;

  const BodyModel& m_Model;
  const ViewGeometry& m_Geometry;
  const ObserverFrame& m_Observer;
  const ShownKinds& m_Shown;
  const SkyLight& m_Light;
  const Landscape& m_Landscape;
  ClassLimits m_StarLimits;
  std::array<Kind, 5> m_Kinds;
};

}  // namespace scene
