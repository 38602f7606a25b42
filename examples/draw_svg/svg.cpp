// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "svg.h"

#include <string>
#include <vector>

using namespace scene;

namespace {

// fill="rgb(1,2,3)" fill-opacity="0.5", or the same of the stroke or of a stop of a gradient.
std::string Colour(const char* use, const char* opacity, const Rgba& c) {
  return std::string(use) + "=\"rgb(" + std::to_string(c.red) + "," + std::to_string(c.green) + "," +
         std::to_string(c.blue) + ")\" " + opacity + "=\"" + std::to_string(c.alpha * 100 / 255) + "%\"";
}
std::string Fill(const Rgba& colour) { return Colour("fill", "fill-opacity", colour); }
std::string Stop(double offset, const Rgba& colour) {
  return "<stop offset=\"" + std::to_string(static_cast<int>(offset * 100.0)) + "%\" " +
         Colour("stop-color", "stop-opacity", colour) + "/>";
}

class SvgPainter {
 public:
  SvgPainter(const DisplayList& list, std::ostream& out) : m_List(list), m_Out(out) {}

  void Paint(const PointRecord& p) {
    m_Out << "<circle cx=\"" << p.x << "\" cy=\"" << p.y << "\" r=\"" << p.radius << "\" " << Fill(p.colour)
          << "/>\n";
  }
  void Paint(const DiscRecord& d) {
    m_Out << "<circle cx=\"" << d.x << "\" cy=\"" << d.y << "\" r=\"" << d.radius << "\" " << Fill(d.lit)
          << "/>\n";
  }
  void Paint(const GlobeRecord& g) { Paint(g.disc); }
  void Paint(const PolylineRecord& l) {
    m_Out << (l.flags & kClosedLine ? "<polygon" : "<polyline") << " fill=\"none\" ";
    Stroke(l.colour, l.width, l.dash);
    if (l.flags & kRoundCaps) m_Out << "stroke-linecap=\"round\" ";
    if (l.flags & kRoundJoins) m_Out << "stroke-linejoin=\"round\" ";
    m_Out << "points=\"";
    Vertices(l.firstVertex, l.vertexCount, " ");
    m_Out << "\"/>\n";
  }
  void Paint(const EllipseRecord& e) {
    m_Out << "<ellipse rx=\"" << e.semiMajor << "\" ry=\"" << e.semiMinor << "\" transform=\"translate("
          << e.x << " " << e.y << ") rotate(" << e.angle * 57.29578f << ")\" fill=\"none\" ";
    Stroke(e.colour, e.width, e.dash);
    m_Out << "/>\n";
  }
  void Paint(const PolygonRecord& a) {
    m_Out << "<path fill-rule=\"evenodd\" " << Fill(a.colour) << " d=\"";
    for (int r = a.firstRing; r < a.firstRing + a.ringCount; ++r) {
      m_Out << "M";
      Vertices(m_List.GetRings()[r].firstVertex, m_List.GetRings()[r].vertexCount, "L");
      m_Out << "z";
    }
    m_Out << "\"/>\n";
  }
  void Paint(const GradientRecord& g) {
    ++m_Gradients;
    m_Out << "<linearGradient id=\"g" << m_Gradients << "\" gradientUnits=\"userSpaceOnUse\" x1=\"" << g.x0
          << "\" y1=\"" << g.y0 << "\" x2=\"" << g.x1 << "\" y2=\"" << g.y1 << "\">" << Stop(0.0, g.colour)
          << Stop(g.middle, g.middleColour) << Stop(1.0, g.endColour)
          << "</linearGradient>\n<polygon fill=\"url(#g" << m_Gradients << ")\" points=\"";
    for (int i = 0; i < 4; ++i) m_Out << g.cornerX[i] << "," << g.cornerY[i] << " ";
    m_Out << "\"/>\n";
  }
  // Each stretch between nodes in one colour: a coarse likeness, but a small one.
  void Paint(const MeshRecord& m) {
    const float width = (m.right - m.left) / static_cast<float>(m.columns),
                height = (m.bottom - m.top) / static_cast<float>(m.rows);
    m_Out << "<g shape-rendering=\"crispEdges\">\n";
    for (int i = 0; i < m.columns * m.rows; ++i) {
      m_Out << "<rect x=\"" << m.left + width * static_cast<float>(i % m.columns) << "\" y=\""
            << m.top + height * static_cast<float>(i / m.columns) << "\" width=\"" << width + 0.5f
            << "\" height=\"" << height + 0.5f << "\" " << Fill(m_List.GetColours()[m.firstColour + i])
            << "/>\n";
    }
    m_Out << "</g>\n";
  }
  void Paint(const TextRecord& t) {
    const char* anchor = t.anchor == 0.0f ? "start" : t.anchor == 1.0f ? "end" : "middle";
    m_Out << "<text x=\"" << t.x << "\" y=\"" << t.y << "\" font-family=\"sans-serif\" font-size=\"" << t.size
          << "\" text-anchor=\"" << anchor << "\" " << (t.style & kItalicText ? "font-style=\"italic\" " : "")
          << (t.style & kBoldText ? "font-weight=\"bold\" " : "") << Fill(t.colour) << ">";
    for (const char* c = m_List.GetText(t); *c; ++c) {
      if (*c == '&' || *c == '<')
        m_Out << "&#" << static_cast<int>(*c) << ";";
      else
        m_Out << *c;
    }
    m_Out << "</text>\n";
  }

  template <class Record>
  void PaintRun(const std::vector<Record>& records, const Run& run) {
    for (int i = run.first; i < run.first + run.count; ++i) Paint(records[i]);
  }

 private:
  void Stroke(const Rgba& colour, float width, float dash) {
    m_Out << Colour("stroke", "stroke-opacity", colour) << " stroke-width=\"" << width << "\" ";
    if (dash > 0.0f) m_Out << "stroke-dasharray=\"" << dash << "\" ";
  }
  void Vertices(int first, int count, const char* between) {
    for (int i = first; i < first + count; ++i) {
      m_Out << (i > first ? between : "") << m_List.GetVertices()[i].x << "," << m_List.GetVertices()[i].y;
    }
  }

  const DisplayList& m_List;
  std::ostream& m_Out;
  int m_Gradients = 0;
};

}  // namespace

void WriteSvg(const DisplayList& list, std::ostream& out) {
  SvgPainter painter(list, out);
  out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << list.GetWidth() << "\" height=\""
      << list.GetHeight() << "\">\n";
  for (const Run& run : list.GetRuns()) {
    switch (run.type) {
      case RecordType::kPoint:
        painter.PaintRun(list.GetPoints(), run);
        break;
      case RecordType::kDisc:
        painter.PaintRun(list.GetDiscs(), run);
        break;
      case RecordType::kGlobe:
        painter.PaintRun(list.GetGlobes(), run);
        break;
      case RecordType::kShadow:
        break;
      case RecordType::kPolyline:
        painter.PaintRun(list.GetPolylines(), run);
        break;
      case RecordType::kEllipse:
        painter.PaintRun(list.GetEllipses(), run);
        break;
      case RecordType::kPolygon:
        painter.PaintRun(list.GetPolygons(), run);
        break;
      case RecordType::kGradient:
        painter.PaintRun(list.GetGradients(), run);
        break;
      case RecordType::kText:
        painter.PaintRun(list.GetTexts(), run);
        break;
      case RecordType::kMesh:
        painter.PaintRun(list.GetMeshes(), run);
        break;
    }
  }
  out << "</svg>\n";
}
