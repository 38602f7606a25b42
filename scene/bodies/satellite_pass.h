// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "astro/satellite_pass.h"
#include "scene/bodies/body_model.h"
#include "scene/display/labels.h"
#include "scene/view/view_geometry.h"

namespace scene {

// A stretch of the path of a satellite over the sky, pixels, y up.
struct DrawnPassLine {
  tPoint<double> from, to;
  bool sunlit;  // else the satellite is in the Earth's shadow there
  ObjectRef satellite;
};

// Where it is at a full minute, with the clock time beside it.
struct DrawnPassMark {
  tPoint<double> place;
  char text[8];
  ObjectRef satellite;
};

// The paths of satellites over the horizon of a place: where each stands at which minute, ten minutes before
// and after the moment, for satellites with long periods up to an hour. When there are at most three
// satellites all have their paths, otherwise the one that stands nearest to the centre of the view. Nothing
// is allocated after the construction.
class SatellitePasses {
 public:
  explicit SatellitePasses(const BodyModel& model);

  // Only while the view counts from the horizon. `localOffset`: local time minus Universal Time, days.
  void Compute(const ViewGeometry& geometry, const EarthPlace& place, double localOffset,
               LabelPlacer& labels);
  void Clear();
  // Fainter where the satellite is in the Earth's shadow and not seen.
  void Draw(DisplayList& list) const;

  const std::vector<DrawnPassLine>& GetLines() const { return m_Lines; }
  const std::vector<DrawnPassMark>& GetMarks() const { return m_Marks; }

  // Of a satellite at the model's moment.
  bool IsSunlitNow(int body) const;

 private:
  struct Satellite {
    int body;
    ObjectRef object;
    double epoch;   // Julian date, Universal Time
    double period;  // days
    SatelliteModel model;
  };
  void AddPath(const ViewGeometry& geometry, const EarthPlace& place, double localOffset,
               const Satellite& satellite);
  const Satellite* FindNearest(const ViewGeometry& geometry) const;

  const BodyModel& m_Model;
  std::vector<Satellite> m_Satellites;
  std::vector<DrawnPassLine> m_Lines;
  std::vector<DrawnPassMark> m_Marks;
};

}  // namespace scene
