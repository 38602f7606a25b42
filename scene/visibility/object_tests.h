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
#include <limits>

#include "scene/catalogs/landscape.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/view/observer_frame.h"
#include "scene/view/view_geometry.h"
#include "scene/view/window_reach.h"
#include "scene/visibility/class_limits.h"
#include "scene/visibility/object_filter.h"
#include "scene/visibility/obstacles.h"
#include "scene/visibility/shown_kinds.h"
#include "scene/visibility/sky_light.h"

namespace scene {

// Where an object stands. Whole once all tests were made; IsDrawn makes them all for what is drawn.
struct ObjectPlace {
  Direction apparent{};    // J2000
  tPoint<double> pixel{};  // y up
  double radius = 0.0;     // of a star's disc, pixels
  float dim = 0.0f;        // codes by which the sky makes it look fainter
};

// How far from the view axis a star may stand in its catalogue and yet be seen in the window.
struct StarReach {
  double angle;          // radians
  double cosine;         // -1 where there is no limit
  double margin;         // pixels outside the window where its disc may still reach in
  WindowReach window{};  // with all that
};

// A star of the catalogue of bright stars; StarTileRecord answers the same questions for one of a tile
// catalog.
struct CatalogStar {
  const StarCatalog& stars;
  int star;

  float GetCode() const { return stars.GetCode(star); }
  const Direction& GetDirection() const { return stars.GetDirection(star); }
  const Direction& GetMotion() const { return stars.GetMotion(star); }
};
inline ObjectTraits GetTraits(const CatalogStar& star) { return star.stars.GetTraits(star.star); }

// Where in the horizon frame an observer with a horizon sees what stands there on J2000 axes.
Direction SeenFromGround(const Direction& apparent, const ObserverFrame& observer);

// Everything is kept by reference. Makes no allocation.
class ObjectTests {
 public:
  ObjectTests(const SkyCatalogs& catalogs, const ViewGeometry& geometry, const ObserverFrame& observer,
              const ShownKinds& shown, const ObjectFilters& filters, const SkyLight& light,
              const Landscape& landscape);

  bool IsStarDrawn(int star, ObjectPlace& place) const {
    return TestStar<true>(CatalogStar{m_Stars, star}, m_StarReach, place) == 0;
  }
  // Of a star that moves no faster, and is no brighter, than the reach was made for.
  bool IsStarDrawn(const StarTileRecord& star, const StarReach& reach, ObjectPlace& place) const {
    return TestStar<true>(star, reach, place) == 0;
  }
  bool IsDeepskyDrawn(int object, ObjectPlace& place) const { return TestDeepsky<true>(object, place) == 0; }
  bool IsConstellationNamed(int constellation, ObjectPlace& place) const {
    return TestConstellation<true>(constellation, place) == 0;
  }
  // Whether its figure or its name is switched on and the place of the name lies in the window.
  bool IsConstellationShown(int constellation, ObjectPlace& place) const;
  // Whether the filters let a constellation pass; -1, one of no name, where there are none.
  bool PassesConstellationFilter(int constellation) const;
  // Whether its figure is drawn where it stands in the window.
  bool IsFigureDrawn(int constellation) const;

  // All obstacles, a combination of Obstacle.
  unsigned FindStarObstacles(int star, ObjectPlace& place) const {
    return TestStar<false>(CatalogStar{m_Stars, star}, m_StarReach, place);
  }
  unsigned FindStarObstacles(const StarTileRecord& star, ObjectPlace& place) const {
    return TestStar<false>(star, kNoReachLimit, place);
  }
  unsigned FindDeepskyObstacles(int object, ObjectPlace& place) const {
    return TestDeepsky<false>(object, place);
  }
  unsigned FindConstellationObstacles(int constellation, ObjectPlace& place) const {
    return TestConstellation<false>(constellation, place);
  }

  // For stars that move no faster than that, radians a year, and are no brighter than that magnitude code.
  StarReach GetStarReach(double maxMotion, float brightest) const;
  static constexpr StarReach kNoReachLimit = {kPi, -1.0, std::numeric_limits<double>::infinity()};

  bool AreStarsShown() const { return m_StarsShown; }
  bool IsAboveHorizon(const Direction& apparent) const;
  // Of what is seen at an altitude of that sine, where the view has a horizon.
  bool IsAboveHorizon(double sine) const { return !m_Shown.horizon || !m_Observer.horizon || sine >= 0.0; }
  // Of what stands above the horizon, by the obstacles found so far.
  bool IsBehindLand(unsigned obstacles, const Direction& apparent) const;
  // No star of a larger code is drawn.
  float GetFaintestStar() const { return m_FaintestStar; }
  const SkyLight& GetLight() const { return m_Light; }
  const ClassLimits& GetStarLimits() const { return m_StarLimits; }
  const ClassLimits& GetDeepskyLimits(int kind) const;  // of an unknown kind: those of "dsnv"
  float GetFaintestDeepskyCode() const;                 // up to which any kind is drawn
  unsigned GetSigns() const;                            // at stars, that the settings want, of StarMark
  ChartStyle GetStyle() const { return m_Shown.style; }
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

  template <bool kFirst, class Star>
  unsigned TestStar(const Star& star, const StarReach& reach, ObjectPlace& place) const;
  template <bool kFirst, class Star>
  unsigned TestStarPlace(const Star& star, const Direction& direction, double margin, Found<kFirst> found,
                         ObjectPlace& place) const;
  // Finds the pixel of an apparent direction; the sine of the altitude at which it is seen.
  double See(ObjectPlace& place) const;
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

  const SkyCatalogs& m_Catalogs;
  const ViewGeometry& m_Geometry;
  const ObserverFrame& m_Observer;
  const ShownKinds& m_Shown;
  const SkyLight& m_Light;
  const Landscape& m_Landscape;
  const StarCatalog& m_Stars;
  Direction m_Centre;  // the view axis, J2000
  bool m_StarsShown;
  ClassLimits m_StarLimits;
  float m_FaintestStar;
  const ObjectFilter& m_StarFilter;
  const ObjectFilter& m_ConstellationFilter;
  std::array<Deepsky, 4> m_Deepsky;
  StarReach m_StarReach;  // of the bright stars
  double m_DeepskyReach;  // the same of deep-sky objects, of their apparent direction: a cosine
};

// Costs least first: the direction in the catalogue needs no projection. Most stars of a frame end here, so
// that this part is worth inlining and the rest is not.
template <bool kFirst, class Star>
unsigned ObjectTests::TestStar(const Star& star, const StarReach& reach, ObjectPlace& place) const {
  Found<kFirst> found;
  if (found.EndsWith(!m_StarsShown, kKindOff)) return found.obstacles;
  if (found.EndsWith(star.GetCode() > m_StarLimits.draw, kTooFaint)) return found.obstacles;
  if (kFirst && star.GetCode() > m_FaintestStar) return kSkyTooBright;
  const Direction& direction = star.GetDirection();
  if (found.EndsWith(Dot(direction, m_Centre) < reach.cosine || !reach.window.MayHold(direction), kOutside))
    return found.obstacles;
  return TestStarPlace<kFirst>(star, direction, reach.margin, found, place);
}

}  // namespace scene
