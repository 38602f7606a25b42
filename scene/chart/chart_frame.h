// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "scene/display/display_list.h"
#include "scene/display/palette.h"

namespace scene {

namespace palette {
inline constexpr Colour kChartGround = {0.020, 0.030, 0.066, 1.0}, kChartGrid = {0.42, 0.53, 0.72, 0.25},
                        kChartText = {0.80, 0.85, 0.92, 0.95};
}  // namespace palette

// What stays free around the area of a chart, in units of the picture (DisplayList::GetUnit).
struct ChartMargins {
  double left, top, right, bottom;
};

// The values at the edges of the area: x from left to right, y from top to bottom.
struct ChartRange {
  double firstX, lastX, firstY, lastY;
};

// From the values of a chart to pixels, and what all charts draw. The list is begun anew and kept by
// reference.
class ChartFrame {
 public:
  ChartFrame(const ChartMargins& margins, const ChartRange& range, int width, int height, DisplayList& list);

  double X(double value) const;
  double Y(double value) const;
  double GetLeft() const { return m_Left; }
  double GetTop() const { return m_Top; }
  double GetRight() const { return m_Left + m_Width; }
  double GetBottom() const { return m_Top + m_Height; }
  double GetMiddle() const { return m_Left + 0.5 * m_Width; }
  double GetUnit() const { return m_Unit; }
  DisplayList& GetList() const { return m_List; }

  // The whole picture.
  void DrawGround() const;
  // `anchor` as in TextRecord; `size` of the font in units.
  void DrawText(const std::string& text, double x, double y, double anchor, double size,
                const Colour& colour = palette::kChartText) const;
  // A line of the grid, a unit wide.
  void DrawGridLine(double x0, double y0, double x1, double y1,
                    const Colour& colour = palette::kChartGrid) const;
  // The vertices that were added to the list, as a curve; `width` and `dash` in units, no dash: 0.
  void DrawCurve(const Colour& colour, double width, double dash = 0.0) const;

 private:
  ChartRange m_Range;
  DisplayList& m_List;
  double m_Unit, m_Left, m_Top, m_Width, m_Height;
};

}  // namespace scene
