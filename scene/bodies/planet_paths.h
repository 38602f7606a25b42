// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/bodies/body_model.h"
#include "scene/display/display_list.h"
#include "scene/display/sky_colours.h"
#include "scene/view/observer_frame.h"
#include "scene/view/sky_path.h"

namespace scene {

// Which paths are drawn.
struct WantedPaths {
  bool celestial = false;  // among the stars, of planets: from 120 days before to 120 days after the moment
  bool local = false;      // over the horizon, of the Sun too: 12 hours to both sides
  bool hideBelowHorizon = false;
};

// The paths of planets across the picture. Their points are found once for each stretch of days or minutes:
// the frames of a sequence share them. Allocates when paths are wanted for the first time.
class PlanetPaths {
 public:
  explicit PlanetPaths(const BodyModel& model) : m_Model(model) {}

  void Compute(const ViewGeometry& geometry, const ObserverFrame& observer, const EarthPlace& place,
               const WantedPaths& wanted);
  void Clear() { m_Lines.clear(); }
  void Draw(const SkyColours& sky, DisplayList& list) const;

 private:
  static constexpr int kEachWay = 40;
  static constexpr std::size_t kPoints = 2 * kEachWay + 1;
  enum Kind { kCelestial, kLocal };

  // Where bodies stand at even steps of time: on J2000 axes, or over the horizon.
  struct Track {
    double step = 0.0;  // days
    long long first = 0;
    EarthPlace place;
    std::vector<Direction> points;  // kPoints of each body
    std::vector<char> known;        // whether a body has all of them
  };
  struct Line {
    DrawnLine stretch;
    ObjectRef body;
    bool local;
  };

  void Find(Kind kind, const EarthPlace& place, Track& track);
  void Add(Kind kind, const Track& track, const ViewGeometry& geometry, const ObserverFrame& observer,
           bool hideBelowHorizon);
  bool IsWanted(Kind kind, std::size_t body) const;

  const BodyModel& m_Model;
  CQXSolSys m_Moments;  // at the moments of the points
  Track m_Celestial, m_Local;
  std::vector<Line> m_Lines;
};

}  // namespace scene
