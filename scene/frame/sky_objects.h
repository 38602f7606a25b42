// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <vector>

#include "common_interfaces/output_pool.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/display/label_order.h"
#include "scene/display/labels.h"
#include "scene/display/style_rules.h"
#include "scene/frame/nebula_clouds.h"
#include "scene/frame/tile_stars.h"
#include "scene/visibility/class_limits.h"
#include "scene/visibility/drawn_objects.h"
#include "scene/visibility/object_tests.h"

namespace scene {

// Radius of a deep-sky object's symbol, pixels: along its larger axis, true to scale where it can be seen and
// ends somewhere. Smaller ones get smaller symbols towards the limit of their class.
double GetSymbolRadius(const DeepskyObject& object, const ViewGeometry& geometry, const ClassLimits& limits);

// The stars and deep-sky objects of one frame and their records.
//
// The lists have room for the whole catalogs (TileStars: as many as are shown) from the start and the pool
// keeps its blocks, so that nothing is allocated but the pool's blocks, each when the first frame needs it.
// The records are valid until the next Compute. `catalogs` is kept by reference.
class SkyObjects {
 public:
  explicit SkyObjects(const SkyCatalogs& catalogs);

  void Compute(const ViewGeometry& geometry, const ObjectTests& tests);
  // Labels what Compute has found.
  void PlaceLabels(const ViewGeometry& geometry, const ObjectTests& tests, LabelPlacer& labels);

  // The symbols of deep-sky objects (scene/display/deepsky_symbols.h), which lie as the objects do. A nebula
  // whose outline has its form already has none. `strength`: what the sky leaves of symbols, 0 to 1.
  void DrawDeepsky(const NebulaClouds& clouds, double strength, DisplayList& list) const;
  // The symbol of a deep-sky object of the catalog, of that radius around a pixel, y down.
  void DrawSample(int object, double x, double y, double radius, DisplayList& list) const;
  // The signs of that StarMark at the dot of a star of that radius around a pixel, y down.
  static void DrawSignSample(unsigned mark, double x, double y, double radius, DisplayList& list);
  // Signs (display/star_signs.h), over them discs in the colour of the spectral class, bright ones with a
  // soft shine; the faintest first, so that a bright star lies over its neighbours. Solid ones
  // (style_rules.h) the other way round, each with a rim: none hides another.
  void DrawStars(DisplayList& list) const;

  const std::vector<DrawnStar>& GetStars() const { return m_Stars; }
  const std::vector<DrawnDeepsky>& GetDeepsky() const { return m_Deepsky; }
  unsigned GetSigns() const { return m_Signs; }  // which occur, of StarMark
  std::size_t GetMostSigns() const { return m_Signed.capacity(); }
  bool IsPoolExhausted() const { return m_PoolExhausted; }
  const TileStars& GetTileStars() const { return m_TileStars; }

 private:
  // A star with signs: where in the list of stars it stands, its marks and the angle of its bar.
  struct SignedStar {
    std::size_t drawn;
    unsigned marks;
    float angle;
  };
  void AddSigns(const ViewGeometry& geometry, const ObjectPlace& place, int star);
  void DrawSigns(DisplayList& list) const;
  void AddStars(const ViewGeometry& geometry, const ObjectTests& tests);
  void AddBrightStar(const ViewGeometry& geometry, const ObjectTests& tests, const ObjectPlace& place,
                     int star);
  void AddTileStar(const ViewGeometry& geometry, const PlacedTileStar& placed, const ClassLimits& limits);
  CommonInterfaces::StarOutput* MakeStarOutput(const ViewGeometry& geometry, const tPoint<double>& pixel,
                                               double radius);
  void AddDeepsky(const ViewGeometry& geometry, const ObjectTests& tests);
  void AddDeepskyObject(const ViewGeometry& geometry, const ObjectPlace& place, int object,
                        const ClassLimits& limits);
  // Keeps the labels of others off large discs.
  void KeepNotableClear(const ViewGeometry& geometry, const StyleRules& style, LabelPlacer& labels) const;
  // The stars that want a label, by index.
  const std::vector<LabelTurn>& FindStarTurns(const ViewGeometry& geometry, const ObjectTests& tests);
  bool HasSign(std::size_t drawn) const;
  void LabelStars(const ViewGeometry& geometry, const ObjectTests& tests, LabelPlacer& labels);
  const char* MakeStarLabel(int star, const LabelRules& rules);
  void LabelDeepsky(const ViewGeometry& geometry, const ObjectTests& tests, LabelPlacer& labels);
  void LabelDeepskyObject(const ViewGeometry& geometry, const ObjectTests& tests, const DrawnDeepsky& drawn,
                          LabelPlacer& labels);

  const SkyCatalogs& m_Catalogs;
  TileStars m_TileStars;
  CommonInterfaces::OutputPool m_Pool;
  bool m_PoolExhausted = false;
  unsigned m_Number = 0;  // of the frame
  std::vector<DrawnStar> m_Stars;
  std::vector<DrawnDeepsky> m_Deepsky;
  unsigned m_Wanted = 0, m_Signs = 0;              // signs, of StarMark: which may be drawn, which are
  std::vector<SignedStar> m_Signed;                // in the order of the stars
  std::vector<LabelTurn> m_Turns;                  // of the labels, of stars and then of deep-sky objects
  std::vector<std::array<char, 64>> m_StarLabels;  // with magnitudes; the labels of the frame point into it
};

}  // namespace scene
