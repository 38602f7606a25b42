// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Which bodies one frame draws, as object_tests.h says it for what stands still.
#pragma once

#include <array>

#include "scene/body_model.h"
#include "scene/visibility/object_tests.h"

namespace scene {

// Everything is kept by reference. Makes no allocation.
class BodyTests {
 public:
  BodyTests(const BodyModel& model, const ViewGeometry& geometry, const ObserverFrame& observer,
            const ShownKinds& shown, const ObjectFilters& filters, const SkyLight& light);

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
  // Satellites are drawn whatever their magnitude, which nobody knows.
  bool HasMagnitude(int body) const;
  // Pixels from a moon at that place to the edge of the dot that stands for its planet; infinite where the
  // planet is seen as a disc, and for other bodies and our Moon.
  double FindDistanceToPlanet(int moon, const tPoint<double>& place) const;

 private:
  template <bool kFirst>
  unsigned Test(int body, ObjectPlace& place) const;
  bool IsAboveHorizon(const BodyState& state) const;
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
  ClassLimits m_StarLimits;
  std::array<Kind, 5> m_Kinds;
};

}  // namespace scene
