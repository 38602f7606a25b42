// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/chart/chart_frame.h"

#include "scene/display/falling_gradient.h"
#include "scene/view/view_geometry.h"

namespace scene {

ChartFrame::ChartFrame(const ChartMargins& margins, const ChartRange& range, int width, int height,
                       DisplayList& list)
    : m_Range(range),
      m_List(list),
      m_Unit(GetPictureUnit(width, height)),
      m_Left(margins.left * m_Unit),
      m_Top(margins.top * m_Unit),
      m_Width(width - m_Left - margins.right * m_Unit),
      m_Height(height - m_Top - margins.bottom * m_Unit) {
  list.Begin(width, height, m_Unit);
}

double ChartFrame::X(double value) const {
  return m_Left + m_Width * (value - m_Range.firstX) / (m_Range.lastX - m_Range.firstX);
}

double ChartFrame::Y(double value) const {
  return m_Top + m_Height * (value - m_Range.firstY) / (m_Range.lastY - m_Range.firstY);
}

void ChartFrame::DrawGround() const {
  const Rgba colour = ToRgba(palette::kChartGround);
  AddFallingGradient(Layer::kBackground, 0.0f, 1.0f, colour, colour, colour, m_List);
}

void ChartFrame::DrawText(const std::string& text, double x, double y, double anchor, double size,
                          const Colour& colour) const {
  TextRecord record = {};
  record.x = static_cast<float>(x);
  record.y = static_cast<float>(y);
  record.anchor = static_cast<float>(anchor);
  record.size = static_cast<float>(size * m_Unit);
  record.colour = ToRgba(colour);
  m_List.AddText(Layer::kLabels, record, text);
}

void ChartFrame::DrawGridLine(double x0, double y0, double x1, double y1, const Colour& colour) const {
  PolylineRecord line = {};
  line.width = static_cast<float>(m_Unit);
  line.colour = ToRgba(colour);
  m_List.AddVertex(x0, y0);
  m_List.AddVertex(x1, y1);
  m_List.AddLine(Layer::kFigures, line);
}

void ChartFrame::DrawCurve(const Colour& colour, double width, double dash) const {
  PolylineRecord line = {};
  line.width = static_cast<float>(width * m_Unit);
  line.dash = static_cast<float>(dash * m_Unit);
  line.colour = ToRgba(colour);
  line.flags = kRoundJoins;
  m_List.AddLine(Layer::kOrbits, line);
}

}  // namespace scene
