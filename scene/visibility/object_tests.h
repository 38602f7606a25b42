// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Which objects one frame draws. The frame asks for every object whether it is drawn, the explanation asks
// for one object what keeps it from being drawn; both get their answer from the same tests, in the same
// order.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>

#include "scene/class_limits.h"
#include "scene/object_filter.h"
#include "scene/observer_frame.h"
#include "scene/obstacles.h"
#include "scene/shown_kinds.h"
#include "scene/sky_catalogs.h"
#include "scene/view/view_geometry.h"
#include "scene/visibility/sky_light.h"

namespace scene {

// Where an object stands. Whole once all tests were made; IsDrawn makes them all for what is drawn.
struct ObjectPlace {
  Direction apparent{};    // J2000
  tPoint<double> pixel{};  // y up
  double radius = 0.0;     // of a star's disc, pixels
  float dim = 0.0f;        // codes by which the sky makes it look fainter
};

// Everything is kept by reference. Makes no allocation.
class ObjectTests {
 public:
  ObjectTests(const SkyCatalogs& catalogs, const ViewGeometry& geometry, const ObserverFrame& observer,
              const ShownKinds& shown, const ObjectFilters& filters, const SkyLight& light);

  bool IsStarDrawn(int star, ObjectPlace& place) const { return TestStar<true>(star, place) == 0; }
  bool IsDeepskyDrawn(int object, ObjectPlace& place) const { return TestDeepsky<true>(object, place) == 0; }
  bool IsConstellationNamed(int constellation, ObjectPlace& place) const {
    return TestConstellation<true>(constellation, place) == 0;
  }
  // Whether its figure or its name is switched on and the place of the name lies in the window.
  bool IsConstellationShown(int constellation, ObjectPlace& place) const;
  // Whether its figure is drawn where it stands in the window.
  bool IsFigureDrawn(int constellation) const;

  // All obstacles, a combination of Obstacle.
  unsigned FindStarObstacles(int star, ObjectPlace& place) const { return TestStar<false>(star, place); }
  unsigned FindDeepskyObstacles(int object, ObjectPlace& place) const {
    return TestDeepsky<false>(object, place);
  }
  unsigned FindConstellationObstacles(int constellation, ObjectPlace& place) const {
    return TestConstellation<false>(constellation, place);
  }

  bool IsAboveHorizon(const Direction& apparent) const;
  // No star of a larger code is drawn.
  float GetFaintestStar() const { return m_FaintestStar; }
  const SkyLight& GetLight() const { return m_Light; }
  const ClassLimits& GetStarLimits() const { return m_StarLimits; }
  const ClassLimits& GetDeepskyLimits(int kind) const;  // of an unknown kind: those of "dsnv"
  const LabelRules& GetLabels(int kind) const { return m_Shown.GetLabels(kind); }

 private:
  // The obstacles found so far; with kFirst the first one is enough.
  template <bool kFirst>
  struct Found {
    unsigned obstacles = 0;
    bool EndsWith(bool failed, Obstacle obstacle) {
      if (failed) obstacles |= obstacle;
      return kFirst && failed;
    }
  };

  template <bool kFirst>
  unsigned TestStar(int star, ObjectPlace& place) const;
  template <bool kFirst>
  unsigned TestStarPlace(int star, Found<kFirst> found, ObjectPlace& place) const;
  template <bool kFirst>
  unsigned TestDeepsky(int object, ObjectPlace& place) const;
  template <bool kFirst>
  unsigned TestConstellation(int constellation, ObjectPlace& place) const;

  struct Deepsky {
    int kind;
    ClassLimits limits;
    const ObjectFilter& filter;
  };
  const Deepsky& FindKind(int kind) const;
  static bool IsHidden(const ClassLimits& limits, float code, unsigned obstacles, const ObjectPlace& place);
  double StarRadius(float code) const;
  // Sine of the altitude; 1 where the view has no horizon.
  double GetSine(const Direction& apparent) const;

  const SkyCatalogs& m_Catalogs;
  const ViewGeometry& m_Geometry;
  const ObserverFrame& m_Observer;
  const ShownKinds& m_Shown;
  const SkyLight& m_Light;
  const StarCatalog& m_Stars;
  Direction m_Centre;  // the view axis, J2000
  bool m_StarsShown;
  ClassLimits m_StarLimits;
  float m_FaintestStar;
  const ObjectFilter& m_StarFilter;
  const ObjectFilter& m_ConstellationFilter;
  std::array<Deepsky, 4> m_Deepsky;
  double
      m_StarReach;  // cosines of the angles from the view axis, in the catalogue for stars, of the apparent
  double m_DeepskyReach;  // direction for deep-sky objects, beyond which nothing reaches into the window
};

// Costs least first: the direction in the catalogue needs no projection. Most stars of a frame end here, so
// that this part is worth inlining and the rest is not.
template <bool kFirst>
unsigned ObjectTests::TestStar(int star, ObjectPlace& place) const {
  Found<kFirst> found;
  if (found.EndsWith(!m_StarsShown, kKindOff)) return found.obstacles;
  if (found.EndsWith(m_Stars.GetCode(star) > m_StarLimits.draw, kTooFaint)) return found.obstacles;
  if (kFirst && m_Stars.GetCode(star) > m_FaintestStar) return kSkyTooBright;
  if (found.EndsWith(Dot(m_Stars.GetDirection(star), m_Centre) < m_StarReach, kOutside))
    return found.obstacles;
  return TestStarPlace<kFirst>(star, found, place);
}

}  // namespace scene
