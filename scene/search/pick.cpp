// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/pick.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <span>

#include "scene/display/text_extents.h"

namespace scene {
namespace {

constexpr double kFar = std::numeric_limits<double>::infinity();

// Measures how far records are from one pixel.
class Probe {
 public:
  Probe(const DisplayList& list, double x, double y) : m_List(list), m_X(x), m_Y(y) {}

  double To(const PointRecord& point) const { return ToCircle(point.x, point.y, point.radius); }
  double To(const DiscRecord& disc) const { return ToCircle(disc.x, disc.y, disc.radius); }
  // The ring counts as the circle around it.
  double To(const GlobeRecord& globe) const {
    return ToCircle(globe.disc.x, globe.disc.y, globe.disc.radius * std::max(1.0f, globe.ringOuter));
  }
  double To(const ShadowRecord& shadow) const {
    return ToCircle(shadow.clipX, shadow.clipY, shadow.clipRadius);
  }
  double To(const PolylineRecord& line) const;
  double To(const EllipseRecord& ellipse) const;
  double To(const PolygonRecord& area) const;
  double To(const GradientRecord& gradient) const;
  double To(const TextRecord& text) const;
  double To(const MeshRecord& mesh) const;

 private:
  double ToCircle(double x, double y, double radius) const {
    return std::max(std::hypot(m_X - x, m_Y - y) - radius, 0.0);
  }
  double ToStretch(double ax, double ay, double bx, double by) const;
  double ToBox(double left, double top, double right, double bottom) const;
  // Whether the way to the right from the pixel crosses the stretch.
  bool Crosses(double ax, double ay, double bx, double by) const {
    return (ay > m_Y) != (by > m_Y) && m_X < ax + (m_Y - ay) * (bx - ax) / (by - ay);
  }
  std::span<const Vertex> GetVertices(int first, int count) const {
    return {m_List.GetVertices().data() + first, static_cast<std::size_t>(count)};
  }

  const DisplayList& m_List;
  double m_X, m_Y;
};

double Probe::ToStretch(double ax, double ay, double bx, double by) const {
  const double dx = bx - ax, dy = by - ay, length = dx * dx + dy * dy;
  const double t = length > 0.0 ? std::clamp(((m_X - ax) * dx + (m_Y - ay) * dy) / length, 0.0, 1.0) : 0.0;
  return std::hypot(m_X - ax - t * dx, m_Y - ay - t * dy);
}

double Probe::ToBox(double left, double top, double right, double bottom) const {
  return std::hypot(std::max({left - m_X, m_X - right, 0.0}), std::max({top - m_Y, m_Y - bottom, 0.0}));
}

double Probe::To(const PolylineRecord& line) const {
  const auto vertices = GetVertices(line.firstVertex, line.vertexCount);
  double nearest = kFar;
  for (std::size_t i = 1; i < vertices.size(); ++i) {
    nearest =
        std::min(nearest, ToStretch(vertices[i - 1].x, vertices[i - 1].y, vertices[i].x, vertices[i].y));
  }
  if ((line.flags & kClosedLine) && !vertices.empty()) {
    nearest =
        std::min(nearest, ToStretch(vertices.back().x, vertices.back().y, vertices[0].x, vertices[0].y));
  }
  return std::max(nearest - 0.5 * static_cast<double>(line.width), 0.0);
}

// Inside counts as hit; outside, the distance along the line to the centre, which is never less than the true
// one.
double Probe::To(const EllipseRecord& ellipse) const {
  const double dx = m_X - ellipse.x, dy = m_Y - ellipse.y;
  const double c = std::cos(ellipse.angle), s = std::sin(ellipse.angle);
  const double reach =
      std::hypot((dx * c + dy * s) / ellipse.semiMajor, (dy * c - dx * s) / ellipse.semiMinor);
  return reach <= 1.0 ? 0.0 : std::hypot(dx, dy) * (1.0 - 1.0 / reach);
}

double Probe::To(const PolygonRecord& area) const {
  bool inside = false;
  double nearest = kFar;
  for (int r = 0; r < area.ringCount; ++r) {
    const RingRecord& ring = m_List.GetRings()[static_cast<std::size_t>(area.firstRing + r)];
    const auto vertices = GetVertices(ring.firstVertex, ring.vertexCount);
    for (std::size_t i = 0; i < vertices.size(); ++i) {
      const Vertex &a = vertices[i], &b = vertices[(i + 1) % vertices.size()];
      if (Crosses(a.x, a.y, b.x, b.y)) inside = !inside;
      nearest = std::min(nearest, ToStretch(a.x, a.y, b.x, b.y));
    }
  }
  return inside ? 0.0 : nearest;
}

double Probe::To(const GradientRecord& gradient) const {
  bool inside = false;
  double nearest = kFar;
  for (int i = 0; i < 4; ++i) {
    const int j = (i + 1) % 4;
    const double ax = gradient.cornerX[i], ay = gradient.cornerY[i], bx = gradient.cornerX[j],
                 by = gradient.cornerY[j];
    if (Crosses(ax, ay, bx, by)) inside = !inside;
    nearest = std::min(nearest, ToStretch(ax, ay, bx, by));
  }
  return inside ? 0.0 : nearest;
}

double Probe::To(const TextRecord& text) const {
  constexpr double kAscent = 0.76, kDescent = 0.22;  // of the font size
  const double width = TextExtents().GetWidth(m_List.GetText(text), text.size, text.style);
  const double left = text.x - text.anchor * width;
  return ToBox(left, text.y - kAscent * text.size, left + width, text.y + kDescent * text.size);
}

double Probe::To(const MeshRecord& mesh) const { return ToBox(mesh.left, mesh.top, mesh.right, mesh.bottom); }

template <class Record>
ObjectRef GetObject(const Record& record) {
  return record.object;
}
ObjectRef GetObject(const GlobeRecord& globe) { return globe.disc.object; }

// Takes what is hit, from the last record of a run to its first.
class Picker {
 public:
  Picker(const DisplayList& list, double x, double y, double tolerance)
      : m_List(list), m_Probe(list, x, y), m_Tolerance(tolerance) {}

  void Visit(const Run& run) {
    switch (run.type) {
      case RecordType::kPoint:
        return Visit(run, m_List.GetPoints());
      case RecordType::kDisc:
        return Visit(run, m_List.GetDiscs());
      case RecordType::kGlobe:
        return Visit(run, m_List.GetGlobes());
      case RecordType::kShadow:
        return Visit(run, m_List.GetShadows());
      case RecordType::kPolyline:
        return Visit(run, m_List.GetPolylines());
      case RecordType::kEllipse:
        return Visit(run, m_List.GetEllipses());
      case RecordType::kPolygon:
        return Visit(run, m_List.GetPolygons());
      case RecordType::kGradient:
        return Visit(run, m_List.GetGradients());
      case RecordType::kText:
        return Visit(run, m_List.GetTexts());
      case RecordType::kMesh:
        return Visit(run, m_List.GetMeshes());
    }
  }

  std::vector<Hit> hits;

 private:
  template <class Record>
  void Visit(const Run& run, const std::vector<Record>& records) {
    for (int i = run.first + run.count - 1; i >= run.first; --i) {
      const Record& record = records[static_cast<std::size_t>(i)];
      const ObjectRef object = GetObject(record);
      if (object == ObjectRef{}) continue;
      const double distance = m_Probe.To(record);
      if (distance <= m_Tolerance) Take({object, run.layer, distance});
    }
  }
  void Take(const Hit& hit) {
    const auto known = std::find_if(hits.begin(), hits.end(),
                                    [&hit](const Hit& other) { return other.object == hit.object; });
    if (known == hits.end()) {
      hits.push_back(hit);
    } else if (hit.distance < known->distance) {
      *known = hit;
    }
  }

  const DisplayList& m_List;
  Probe m_Probe;
  double m_Tolerance;
};

}  // namespace

std::vector<Hit> PickObjects(const DisplayList& list, double x, double y, double tolerance) {
  Picker picker(list, x, y, tolerance);
  for (auto run = list.GetRuns().rbegin(); run != list.GetRuns().rend(); ++run) picker.Visit(*run);
  return picker.hits;
}

}  // namespace scene
