// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/display/display_list.h"

#include "scene/display/style_rules.h"

namespace scene {
namespace {

void Apply(const Ink& ink, Rgba& colour) { colour = ink.Apply(colour); }

void Apply(const Ink& ink, Glow& glow) {
  Apply(ink, glow.colour);
  Apply(ink, glow.middleColour);
}

// The colours of a record on its layer.
void ApplyAll(const InkTable& inks, Layer layer, PointRecord& point) {
  Apply(inks.Get(layer, InkShape::kPoint), point.colour);
  Apply(inks.Get(layer, InkShape::kGlow), point.glow);
}

void ApplyAll(const InkTable& inks, Layer layer, DiscRecord& disc) {
  const Ink& ink = inks.Get(layer, InkShape::kDisc);
  Apply(ink, disc.lit);
  Apply(ink, disc.dark);
  Apply(inks.Get(layer, InkShape::kGlow), disc.glow);
}

// A map has colours of its own, which no ink reaches.
void ApplyAll(const InkTable& inks, Layer layer, GlobeRecord& globe) {
  const Ink& ink = inks.Get(layer, InkShape::kDisc);
  ApplyAll(inks, layer, globe.disc);
  Apply(ink, globe.air);
  if (ink.way != Ink::Way::kAsIs) globe.map = -1;
}

void ApplyAll(const InkTable& inks, Layer layer, ShadowRecord& shadow) {
  const Ink& ink = inks.Get(layer, InkShape::kDisc);
  for (Rgba* colour : {&shadow.inner, &shadow.middleColour, &shadow.outer}) Apply(ink, *colour);
}

void ApplyAll(const InkTable& inks, Layer layer, EllipseRecord& ellipse) {
  const Ink& ink = inks.Get(layer, InkShape::kLine);
  Apply(ink, ellipse.colour);
  ellipse.width *= ink.width;
}

void ApplyAll(const InkTable& inks, Layer layer, PolylineRecord& line) {
  const Ink& ink = inks.Get(layer, InkShape::kLine);
  Apply(ink, line.colour);
  line.width *= ink.width;
}

void ApplyAll(const InkTable& inks, Layer layer, GradientRecord& gradient) {
  const Ink& ink = inks.Get(layer, InkShape::kArea);
  for (Rgba* colour : {&gradient.colour, &gradient.middleColour, &gradient.endColour}) Apply(ink, *colour);
}

void ApplyAll(const InkTable& inks, Layer layer, PolygonRecord& area) {
  const Ink& ink = inks.Get(layer, InkShape::kArea);
  Apply(ink, area.colour);
  Apply(ink, area.edge);
}

void ApplyAll(const InkTable& inks, Layer layer, TextRecord& text) {
  Apply(inks.Get(layer, InkShape::kText), text.colour);
}

// Its colours stand in the list.
void ApplyAll(const InkTable&, Layer, MeshRecord&) {}

ObjectRef& GetObject(GlobeRecord& globe) { return globe.disc.object; }
template <class Record>
ObjectRef& GetObject(Record& record) {
  return record.object;
}

}  // namespace

// What style and sample make of a record.
template <class Record>
void DisplayList::Prepare(Layer& layer, Record& record) const {
  if (m_Inks) ApplyAll(*m_Inks, layer, record);
  if (!m_IsSample) return;
  layer = m_SampleLayer;
  GetObject(record) = {};
}

void DisplayList::SetStyle(ChartStyle style) {
  m_Style = style;
  m_Inks = GetInks(style);
}

// Of the colours that a mesh or the ring of a globe has taken.
void DisplayList::InkColours(Layer layer, int first) {
  const Ink& ink = m_Inks->Get(layer, InkShape::kArea);
  for (auto i = static_cast<std::size_t>(first); i < m_Colours.size(); ++i) Apply(ink, m_Colours[i]);
}

void DisplayList::Begin(int width, int height, double unit) {
  m_Width = width;
  m_Height = height;
  m_Unit = static_cast<float>(unit);
  m_OpenVertex = m_OpenRing = m_OpenColour = 0;
  m_Runs.clear();
  m_Points.clear();
  m_Discs.clear();
  m_Globes.clear();
  m_Shadows.clear();
  m_Polylines.clear();
  m_Ellipses.clear();
  m_Polygons.clear();
  m_Gradients.clear();
  m_Texts.clear();
  m_Meshes.clear();
  m_Rings.clear();
  m_Vertices.clear();
  m_TextBytes.clear();
  m_Colours.clear();
}

// Records of one type and layer that follow one another make one run. `count`: how many of the type there are
// now.
void DisplayList::Note(RecordType type, Layer layer, int count) {
  if (!m_Runs.empty() && m_Runs.back().type == type && m_Runs.back().layer == layer) {
    ++m_Runs.back().count;
  } else {
    m_Runs.push_back({type, layer, count - 1, 1});
  }
}

void DisplayList::AddVertex(double x, double y) {
  m_Vertices.push_back({static_cast<float>(x), static_cast<float>(y)});
}

void DisplayList::EndRing() {
  const int end = static_cast<int>(m_Vertices.size());
  m_Rings.push_back({m_OpenVertex, end - m_OpenVertex});
  m_OpenVertex = end;
}

void DisplayList::Add(Layer layer, PointRecord point) {
  Prepare(layer, point);
  m_Points.push_back(point);
  Note(RecordType::kPoint, layer, static_cast<int>(m_Points.size()));
}

void DisplayList::Add(Layer layer, DiscRecord disc) {
  Prepare(layer, disc);
  m_Discs.push_back(disc);
  Note(RecordType::kDisc, layer, static_cast<int>(m_Discs.size()));
}

void DisplayList::Add(Layer layer, GlobeRecord globe) {
  globe.firstRingColour = m_OpenColour;
  m_OpenColour = static_cast<int>(m_Colours.size());
  globe.ringColourCount = m_OpenColour - globe.firstRingColour;
  if (m_Inks) InkColours(layer, globe.firstRingColour);
  Prepare(layer, globe);
  m_Globes.push_back(globe);
  Note(RecordType::kGlobe, layer, static_cast<int>(m_Globes.size()));
}

void DisplayList::Add(Layer layer, ShadowRecord shadow) {
  Prepare(layer, shadow);
  m_Shadows.push_back(shadow);
  Note(RecordType::kShadow, layer, static_cast<int>(m_Shadows.size()));
}

void DisplayList::Add(Layer layer, EllipseRecord ellipse) {
  Prepare(layer, ellipse);
  m_Ellipses.push_back(ellipse);
  Note(RecordType::kEllipse, layer, static_cast<int>(m_Ellipses.size()));
}

void DisplayList::Add(Layer layer, GradientRecord gradient) {
  Prepare(layer, gradient);
  m_Gradients.push_back(gradient);
  Note(RecordType::kGradient, layer, static_cast<int>(m_Gradients.size()));
}

void DisplayList::AddLine(Layer layer, PolylineRecord line) {
  line.firstVertex = m_OpenVertex;
  m_OpenVertex = static_cast<int>(m_Vertices.size());
  line.vertexCount = m_OpenVertex - line.firstVertex;
  Prepare(layer, line);
  m_Polylines.push_back(line);
  Note(RecordType::kPolyline, layer, static_cast<int>(m_Polylines.size()));
}

void DisplayList::AddArea(Layer layer, PolygonRecord area) {
  if (m_OpenVertex < static_cast<int>(m_Vertices.size())) EndRing();
  area.firstRing = m_OpenRing;
  m_OpenRing = static_cast<int>(m_Rings.size());
  area.ringCount = m_OpenRing - area.firstRing;
  Prepare(layer, area);
  m_Polygons.push_back(area);
  Note(RecordType::kPolygon, layer, static_cast<int>(m_Polygons.size()));
}

void DisplayList::AddMesh(Layer layer, MeshRecord mesh) {
  const int end = static_cast<int>(m_Colours.size());
  mesh.firstColour = m_OpenColour;
  mesh.rows = mesh.columns > 0 ? (end - m_OpenColour) / mesh.columns : 0;
  m_OpenColour = end;
  if (m_Inks) InkColours(layer, mesh.firstColour);
  Prepare(layer, mesh);
  m_Meshes.push_back(mesh);
  Note(RecordType::kMesh, layer, static_cast<int>(m_Meshes.size()));
}

void DisplayList::AddText(Layer layer, TextRecord text, std::string_view utf8) {
  Prepare(layer, text);
  text.first = static_cast<int>(m_TextBytes.size());
  text.length = static_cast<int>(utf8.size());
  m_TextBytes.insert(m_TextBytes.end(), utf8.begin(), utf8.end());
  m_TextBytes.push_back('\0');
  m_Texts.push_back(text);
  Note(RecordType::kText, layer, static_cast<int>(m_Texts.size()));
}

void DisplayList::Reserve(const Capacity& capacity) {
  m_Points.reserve(capacity.points);
  m_Discs.reserve(capacity.discs);
  m_Globes.reserve(capacity.globes);
  m_Colours.reserve(capacity.colours);
  m_Shadows.reserve(capacity.shadows);
  m_Polylines.reserve(capacity.polylines);
  m_Ellipses.reserve(capacity.ellipses);
  m_Polygons.reserve(capacity.polygons);
  m_Gradients.reserve(capacity.gradients);
  m_Texts.reserve(capacity.texts);
  m_Meshes.reserve(capacity.meshes);
  m_Rings.reserve(capacity.rings);
  m_Vertices.reserve(capacity.vertices);
  m_TextBytes.reserve(capacity.textBytes);
  m_Runs.reserve(capacity.runs);
}

}  // namespace scene
