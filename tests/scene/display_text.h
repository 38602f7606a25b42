// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <string>
#include <vector>

#include "scene/display/display_list.h"
#include "scene/visibility/object_filter.h"
#include "utils/messages.h"

namespace host_test {

// A display list as lines of text: each run with its layer, and under it its records. Places are given to a
// tenth of a pixel, so that the last bits of a computation do not show.
class DisplayText {
 public:
  explicit DisplayText(const scene::DisplayList& list) : m_List(list) {
    m_Text += FormatText("picture %d x %d, unit %.2f\n", list.GetWidth(), list.GetHeight(),
                         Round(list.GetUnit(), 2));
    for (const scene::Run& run : list.GetRuns()) AddRun(run);
  }
  const std::string& Get() const { return m_Text; }

 private:
  // No "-0.0".
  static double Round(float value, int digits = 1) {
    const double scale = std::pow(10.0, digits);
    return std::round(static_cast<double>(value) * scale) / scale + 0.0;
  }
  void Number(float value) { m_Text += FormatText(" %.1f", Round(value)); }
  void Colour(const scene::Rgba& colour) {
    m_Text += FormatText(" #%02x%02x%02x%02x", unsigned{colour.red}, unsigned{colour.green},
                         unsigned{colour.blue}, unsigned{colour.alpha});
  }
  void GlowOf(const scene::Glow& glow) {
    if (!(glow.radius > 0.0f)) return;
    m_Text += " glow";
    for (const float value : {glow.innerRadius, glow.radius}) Number(value);
    m_Text += FormatText(" %.2f", Round(glow.middle, 2));
    Colour(glow.colour);
    Colour(glow.middleColour);
  }
  void Object(const scene::ObjectRef& object) {
    if (object != scene::ObjectRef{})
      m_Text += FormatText(" (%s %d)", scene::GetCodeText(object.kind).c_str(), object.number);
    m_Text += "\n";
  }
  // Eight in a line.
  void Vertices(int first, int count) {
    for (int i = 0; i < count; ++i) {
      if (i > 0 && i % 8 == 0) m_Text += "\n     ";
      const scene::Vertex& vertex = m_List.GetVertices()[static_cast<std::size_t>(first + i)];
      m_Text += FormatText(" %.1f,%.1f", Round(vertex.x), Round(vertex.y));
    }
  }

  void Add(const scene::PointRecord& point) {
    for (const float value : {point.x, point.y, point.radius}) Number(value);
    Colour(point.colour);
    GlowOf(point.glow);
    Object(point.object);
  }
  void Add(const scene::DiscRecord& disc) {
    for (const float value : {disc.x, disc.y, disc.radius}) Number(value);
    m_Text += FormatText(" sun %.2f,%.2f phase %.2f", Round(disc.sunX, 2), Round(disc.sunY, 2),
                         Round(disc.cosPhase, 2));
    Colour(disc.lit);
    Colour(disc.dark);
    GlowOf(disc.glow);
    Object(disc.object);
  }
  void Add(const scene::GlobeRecord& globe) {
    m_Text += " body";
    for (const float value : globe.toBody) m_Text += FormatText(" %.3f", Round(value, 3));
    m_Text += FormatText(" flat %.3f limb %.2f map %d ring %.2f %.2f with %d colours,",
                         Round(globe.flattening, 3), Round(globe.limbDarkening, 2), globe.map,
                         Round(globe.ringInner, 2), Round(globe.ringOuter, 2), globe.ringColourCount);
    m_Text += " air";
    Colour(globe.air);
    Add(globe.disc);
  }
  void Add(const scene::ShadowRecord& shadow) {
    for (const float value : {shadow.x, shadow.y, shadow.innerRadius, shadow.outerRadius}) Number(value);
    m_Text += FormatText(" %.2f on", Round(shadow.middle, 2));
    for (const float value : {shadow.clipX, shadow.clipY, shadow.clipRadius}) Number(value);
    for (const scene::Rgba& colour : {shadow.inner, shadow.middleColour, shadow.outer}) Colour(colour);
    Object(shadow.object);
  }
  void Add(const scene::PolylineRecord& line) {
    for (const float value : {line.width, line.dash}) Number(value);
    Colour(line.colour);
    m_Text += FormatText(" flags %u:", line.flags);
    Vertices(line.firstVertex, line.vertexCount);
    Object(line.object);
  }
  void Add(const scene::EllipseRecord& ellipse) {
    for (const float value : {ellipse.x, ellipse.y, ellipse.semiMajor, ellipse.semiMinor}) Number(value);
    m_Text += FormatText(" angle %.2f", Round(ellipse.angle, 2));
    for (const float value : {ellipse.width, ellipse.dash}) Number(value);
    Colour(ellipse.colour);
    Object(ellipse.object);
  }
  void Add(const scene::PolygonRecord& area) {
    Colour(area.colour);
    if (area.softness > 0.0f) {
      m_Text += " soft";
      Number(area.softness);
      Colour(area.edge);
    }
    Object(area.object);
    for (int i = 0; i < area.ringCount; ++i) {
      const scene::RingRecord& ring = m_List.GetRings()[static_cast<std::size_t>(area.firstRing + i)];
      m_Text += "    ring:";
      Vertices(ring.firstVertex, ring.vertexCount);
      m_Text += "\n";
    }
  }
  void Add(const scene::GradientRecord& gradient) {
    for (int i = 0; i < 4; ++i)
      m_Text += FormatText(" %.1f,%.1f", Round(gradient.cornerX[i]), Round(gradient.cornerY[i]));
    m_Text += " from";
    for (const float value : {gradient.x0, gradient.y0, gradient.x1, gradient.y1}) Number(value);
    m_Text += FormatText(" %.2f", Round(gradient.middle, 2));
    for (const scene::Rgba& colour : {gradient.colour, gradient.middleColour, gradient.endColour})
      Colour(colour);
    Object(gradient.object);
  }
  // The colours of a mesh, a line for each row; of a fine one every eighth of both.
  void Add(const scene::MeshRecord& mesh) {
    for (const float value : {mesh.left, mesh.top, mesh.right, mesh.bottom}) Number(value);
    m_Text += FormatText(" nodes %d x %d", mesh.columns, mesh.rows);
    Object(mesh.object);
    const int step = mesh.columns * mesh.rows > 256 ? 8 : 1;
    for (int row = 0; row < mesh.rows; row += step) {
      m_Text += "   ";
      for (int column = 0; column < mesh.columns; column += step)
        Colour(m_List.GetColours()[static_cast<std::size_t>(mesh.firstColour + row * mesh.columns + column)]);
      m_Text += "\n";
    }
  }
  void Add(const scene::TextRecord& text) {
    for (const float value : {text.x, text.y, text.anchor, text.size}) Number(value);
    m_Text += FormatText(" style %u", text.style);
    Colour(text.colour);
    m_Text += " \"" + std::string(m_List.GetText(text)) + "\"";
    Object(text.object);
  }

  template <class Record>
  void AddRecords(const char* title, const scene::Run& run, const std::vector<Record>& records) {
    m_Text += FormatText("layer %d, %s\n", static_cast<int>(run.layer), title);
    for (int i = run.first; i < run.first + run.count; ++i) {
      m_Text += " ";
      Add(records[static_cast<std::size_t>(i)]);
    }
  }
  void AddRun(const scene::Run& run) {
    switch (run.type) {
      case scene::RecordType::kPoint:
        return AddRecords("points", run, m_List.GetPoints());
      case scene::RecordType::kDisc:
        return AddRecords("discs", run, m_List.GetDiscs());
      case scene::RecordType::kGlobe:
        return AddRecords("globes", run, m_List.GetGlobes());
      case scene::RecordType::kShadow:
        return AddRecords("shadows", run, m_List.GetShadows());
      case scene::RecordType::kPolyline:
        return AddRecords("lines", run, m_List.GetPolylines());
      case scene::RecordType::kEllipse:
        return AddRecords("ellipses", run, m_List.GetEllipses());
      case scene::RecordType::kPolygon:
        return AddRecords("areas", run, m_List.GetPolygons());
      case scene::RecordType::kGradient:
        return AddRecords("gradients", run, m_List.GetGradients());
      case scene::RecordType::kText:
        return AddRecords("texts", run, m_List.GetTexts());
      case scene::RecordType::kMesh:
        return AddRecords("meshes", run, m_List.GetMeshes());
    }
  }

  const scene::DisplayList& m_List;
  std::string m_Text;
};

}  // namespace host_test
