// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "scene/chart/finder.h"
#include "scene/chart/picture_axes.h"
#include "scene/display/labels.h"

namespace scene {

// The fields of instruments around the middle of the picture. The projection shows a circle around the middle
// as one: the field of radius r reaches scale * tan(r / 2) pixels far. A sensor is flat, its sides are great
// circles.
class FinderMarks {
 public:
  // Allocates.
  void SetFinders(std::vector<Finder> finders) {
    m_Finders = std::move(finders);
    m_Labels.resize(m_Finders.size());
  }

  // Keeps room for the labels.
  void Compute(const ViewGeometry& geometry, LabelPlacer& labels);
  void Draw(DisplayList& list) const;

 private:
  double GetRadius(double fromCentre) const { return m_Scale * std::tan(0.5 * fromCentre); }
  // The upper or the lower end of a field, where its label stands.
  double FindEnd(const Finder& finder, bool upper) const;
  void PlaceLabel(std::size_t index);
  tPoint<double> FindSensorPoint(const Finder& finder, double across, double up) const;
  void DrawSensor(const Finder& finder, DisplayList& list) const;

  std::vector<Finder> m_Finders;
  std::vector<double> m_Labels;  // their baselines; not a number: no room between the others
  double m_Scale = 1.0, m_Font = 12.0;
  tPoint<double> m_Middle{};  // y down, as all pixels here
  PictureAxes m_Axes{};
};

}  // namespace scene
