// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>

#include "scene/catalogs/compass.h"
#include "scene/chart/picture_axes.h"
#include "scene/display/labels.h"
#include "scene/frame/sky_objects.h"
#include "scene/visibility/class_limits.h"

namespace scene {

// The angle that a scale bar stands for: the largest of 30, 20, 10, 5, 2, 1 of degrees, minutes and seconds
// of arc whose bar around the middle of the picture is at most that many pixels long.
struct ScaleBar {
  double length;  // pixels
  int count;
  const char* sign;  // of the unit: "°", "'", "\""
};
ScaleBar FindScaleBar(double scale, double most);

// The box in the lower right corner that says what a chart shows: magnitudes with the dots of their stars,
// the symbols of the deep-sky classes that occur, a scale, north and east. Allocates when it fetches its
// texts only.
class ChartLegend {
 public:
  static constexpr int kClasses = 6, kSigns = 3;      // of deep-sky objects, at stars
  static int FindClass(const DeepskyObject& object);  // 0 to kClasses - 1

  ChartLegend() { FetchTexts(); }
  void FetchTexts();

  // Keeps its place free. `foot`: what is taken below it, pixels.
  void Place(const ViewGeometry& geometry, double foot, LabelPlacer& labels);
  void Draw(const SkyObjects& objects, const SkyCatalogs& catalogs, const ClassLimits& stars,
            DisplayList& list) const;

 private:
  void DrawGround(double top, DisplayList& list) const;
  void DrawMagnitudes(double y, const ClassLimits& stars, DisplayList& list) const;
  double DrawSymbols(double y, const std::array<int, kClasses>& samples, const SkyObjects& objects,
                     DisplayList& list) const;
  void DrawSigns(double y, unsigned signs, DisplayList& list) const;
  void DrawScale(double y, DisplayList& list) const;
  void DrawArrows(double y, DisplayList& list) const;
  void DrawText(const std::string& text, double x, double y, double anchor, double size,
                DisplayList& list) const;

  std::string m_Magnitude, m_Names[kClasses], m_SignNames[kSigns];
  CompassLetters m_Letters{};
  PictureAxes m_Axes{};
  double m_Unit = 1.0, m_Scale = 1.0;
  double m_Left = 0.0, m_Bottom = 0.0;  // of the box, pixels, y down
};

}  // namespace scene
