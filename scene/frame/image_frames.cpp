// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/frame/image_frames.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "astro/vectors.h"
#include "common_interfaces/sky_images.h"
#include "scene/display/palette.h"
#include "scene/view/arcs.h"
#include "utils/path.h"

namespace scene {
namespace {

using CommonInterfaces::CSTLImages;
using CommonInterfaces::DSOImageDesc;
using CommonInterfaces::DSOImages;
using CommonInterfaces::MWayImages;

constexpr double kStep = 2.0 * kRadiansPerDegree;  // between neighbouring points of an edge
constexpr double kFont = 11.0;                     // pixels

const Colour& GetColour(ImageGroup group) {
  switch (group) {
    case kConstellationImages:
      return palette::kConstellationImage;
    case kDeepskyImages:
      return palette::kDeepskyImage;
    default:
      return palette::kMilkyWayImage;
  }
}

// The identifier's bytes, which are letters in the shipped catalogs, without the blanks behind them.
std::string GetLabel(unsigned id) {
  char bytes[sizeof id];
  std::memcpy(bytes, &id, sizeof id);
  std::string label;
  for (const char c : bytes) label.push_back(c > ' ' && c < 0x7F ? c : ' ');
  label.erase(label.find_last_not_of(' ') + 1);
  return label;
}

// The catalog's label of the object, or its number, and the letter of the part.
std::string GetLabel(const DSOImageDesc& image, const SkyCatalogs& catalogs) {
  constexpr unsigned kNumberBits = 0xFFFFFF, kLetterShift = 28, kLetters = 7;
  const unsigned number = image.number & kNumberBits;
  const unsigned letter = image.number >> kLetterShift & kLetters;
  std::string label = std::to_string(number);
  for (const auto& object : catalogs.deepsky) {
    // The catalog's top byte is the sub-type.
    if ((static_cast<unsigned>(object.number) & kNumberBits) == number) label = object.label;
  }
  return letter == 0 ? label : label + static_cast<char>('A' + letter - 1);
}

double LengthOf(const DrawnLine& line) {
  return std::hypot(line.to.x - line.from.x, line.to.y - line.from.y);
}

tPoint<double> MiddleOf(const DrawnLine& line) {
  return {0.5 * (line.from.x + line.to.x), 0.5 * (line.from.y + line.to.y)};
}

// Beside the edge, away from the centre of the outline; on the side of the centre where there is no room.
bool PlaceBesideEdge(const char* text, const DrawnLine& edge, const tPoint<double>& centre, double size,
                     LabelPlacer& labels) {
  constexpr double kGap = 2.5;  // pixels
  const double length = LengthOf(edge);
  if (!(length > 0.0)) return false;
  const tPoint<double> middle = MiddleOf(edge);
  tPoint<double> out = {(edge.to.y - edge.from.y) / length, (edge.from.x - edge.to.x) / length};
  if (out.x * (middle.x - centre.x) + out.y * (middle.y - centre.y) < 0.0) out = {-out.x, -out.y};
  // How far the box of the text reaches along that direction.
  const double reach =
      0.5 * (std::fabs(out.x) * TextExtents().GetWidth(text, size, 0) + std::fabs(out.y) * size) + kGap;
  for (const double side : {reach, -reach}) {
    const tPoint<double> place = {middle.x + side * out.x, middle.y + side * out.y};
    if (labels.PlaceCentred(text, place, size, LabelKind::kImageFrame) >= 0) return true;
  }
  return false;
}

}  // namespace

const char* GetImageCatalogName(ImageGroup group) {
  switch (group) {
    case kConstellationImages:
      return "media:skyobjects:constell_images:constell.dat";
    case kDeepskyImages:
      return "media:skyobjects:dso_images:dsoimagestrue.txt";
    default:
      return "media:skyobjects:mway_images:mway.dat";
  }
}

void ImageFrames::Add(ImageGroup group, const std::string& label, const Direction (&corners)[4]) {
  Frame frame = {group, label, {}, 0.0, static_cast<int>(m_Points.size()), {}};
  for (const auto& corner : corners) {
    for (int i = 0; i < 3; ++i) frame.centre.v[i] += corner.v[i];
  }
  frame.centre = Normalised(frame.centre);
  m_Points.push_back(corners[0]);
  for (int edge = 0; edge < 4; ++edge) {
    frame.reach = std::max(frame.reach, VectorsAngle(frame.centre.v, corners[edge].v));
    AppendArc(corners[edge], corners[(edge + 1) % 4], kStep, m_Points);
    frame.edgeEnds[edge] = static_cast<int>(m_Points.size());
  }
  m_Frames.push_back(std::move(frame));
}

template <class Images>
void ImageFrames::AddCorners(ImageGroup group, const Images& images) {
  for (auto image = images.GetBegin(); image != images.GetEnd(); ++image) {
    Direction corners[4];
    for (int i = 0; i < 4; ++i) corners[i] = MakeDirection((*image)->corners[i].ra, (*image)->corners[i].dec);
    Add(group, GetLabel((*image)->id), corners);
  }
}

void ImageFrames::AddDeepsky(const SkyCatalogs& catalogs) {
  DSOImages images;
  for (const DSOImageDesc* image = images.GetFirst(); image; image = images.GetNext()) {
    const double halfHeight = image->aspectRatio > 0.0 ? image->size / image->aspectRatio : image->size;
    double flat[12];
    DSOImages::CalcCorners(image->direction, static_cast<float>(image->rotation * kRadiansPerDegree),
                           image->size, static_cast<float>(halfHeight), flat);
    Direction corners[4];
    for (int i = 0; i < 4; ++i) std::copy_n(flat + 3 * i, 3, corners[i].v);
    Add(kDeepskyImages, GetLabel(*image, catalogs), corners);
  }
}

bool ImageFrames::AddGroup(ImageGroup group, const SkyCatalogs& catalogs) {
  if (ZentharPath::GetPath(GetImageCatalogName(group)).empty()) return false;
  if (group == kConstellationImages) {
    AddCorners(group, CSTLImages());
  } else if (group == kDeepskyImages) {
    AddDeepsky(catalogs);
  } else {
    AddCorners(group, MWayImages());
  }
  return true;
}

std::optional<ImageGroup> ImageFrames::Load(unsigned groups, const SkyCatalogs& catalogs) {
  m_Frames.clear();
  m_Points.clear();
  m_Lines.clear();
  for (const ImageGroup group : kImageGroups) {
    if ((groups & group) == 0 || AddGroup(group, catalogs)) continue;
    m_Frames.clear();
    return group;
  }
  m_Lines.reserve(m_Points.size());
  return std::nullopt;
}

void ImageFrames::Compute(const ViewGeometry& geometry, const ObserverFrame& observer,
                          const ObjectTests& tests, LabelPlacer& labels) {
  constexpr double kMargin = 0.001;  // radians; covers the aberration
  m_Lines.clear();
  for (const auto& frame : m_Frames) {
    const double away = VectorsAngle(frame.centre.v, geometry.centreJ2000.v);
    if (away > geometry.cornerAngle + frame.reach + kMargin) continue;
    Edge edges[4] = {};
    if (AddLines(geometry, observer, tests, frame, edges))
      PlaceLabel(geometry, observer, frame, edges, labels);
  }
}

// True when anything is visible.
bool ImageFrames::AddLines(const ViewGeometry& geometry, const ObserverFrame& observer,
                           const ObjectTests& tests, const Frame& frame, Edge (&edges)[4]) {
  const std::size_t before = m_Lines.size();
  SkyPath path(geometry);
  DrawnLine line;
  path.GoTo(ApparentDirection(m_Points[frame.first], observer), line);
  int point = frame.first + 1;
  for (int edge = 0; edge < 4; ++edge) {
    std::size_t first = 0, count = 0;  // of the stretches above the horizon, which follow one another
    for (; point < frame.edgeEnds[edge]; ++point) {
      const Direction apparent = ApparentDirection(m_Points[point], observer);
      if (!path.GoTo(apparent, line) || !path.Clip(line)) continue;
      m_Lines.push_back({line, frame.group});
      if (!tests.IsAboveHorizon(apparent)) continue;
      if (count++ == 0) first = m_Lines.size() - 1;
    }
    edges[edge].visible = count > 0;
    if (count > 0) edges[edge].middle = m_Lines[first + count / 2].line;
  }
  return m_Lines.size() > before;
}

void ImageFrames::PlaceLabel(const ViewGeometry& geometry, const ObserverFrame& observer, const Frame& frame,
                             const Edge (&edges)[4], LabelPlacer& labels) {
  constexpr double kLeastReach = 5.0;  // pixels; a smaller outline is a dot that its label would hide
  if (geometry.camera.VisRad2PixD(std::min(frame.reach, 0.3)) < kLeastReach * geometry.unit) return;
  int order[4] = {0, 1, 2, 3};
  std::sort(order, order + 4,
            [&edges](int a, int b) { return MiddleOf(edges[a].middle).y > MiddleOf(edges[b].middle).y; });
  const auto centre = geometry.Project(ApparentDirection(frame.centre, observer), SkyFrameOf::kJ2000);
  for (const int edge : order) {
    if (edges[edge].visible &&
        PlaceBesideEdge(frame.label.c_str(), edges[edge].middle, centre, kFont * geometry.unit, labels)) {
      return;
    }
  }
}

void ImageFrames::Draw(DisplayList& list) const {
  for (const ImageGroup group : kImageGroups) {
    PolylineRecord line = {};
    line.width = 1.1f * list.GetUnit();
    line.colour = ToRgba(GetColour(group));
    line.flags = kRoundCaps;
    for (const auto& drawn : m_Lines) {
      if (drawn.group != group) continue;
      list.AddVertex(drawn.line.from.x, list.GetHeight() - drawn.line.from.y);
      list.AddVertex(drawn.line.to.x, list.GetHeight() - drawn.line.to.y);
      list.AddLine(Layer::kImageFrames, line);
    }
  }
}

}  // namespace scene
