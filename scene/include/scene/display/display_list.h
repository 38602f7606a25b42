// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What a frame shows, ready to be painted: flat arrays of records in the order in which they are painted. A
// painter needs nothing else.
//
// Coordinates and lengths are pixels, x from the left and y from the top edge of the picture downwards;
// angles are radians. A record is made of 32-bit words (little-endian in memory on every target), has no
// padding and may be copied as bytes: docs/formats/display_list.md has the layouts, for readers in other
// languages.
#pragma once

#include <bit>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "scene/api.h"
#include "scene/visibility/chart_style.h"

namespace scene {

// Red, green, blue and opacity, 0 to 255 each, in this order of bytes. Not multiplied with the opacity.
struct Rgba {
  unsigned char red, green, blue, alpha;
  bool operator==(const Rgba&) const = default;
};

// The object that a record stands for: four-character code and number, as lists of favourites know it; 0, 0:
// none.
struct ObjectRef {
  int kind, number;
  bool operator==(const ObjectRef&) const = default;
};

// What lies together, in the order of painting: what is painted first lies lowest. Readers keep the numbers:
// frozen, so that a layer that came later has a number out of the order.
enum class Layer : int {
  kBackground = 0,
  kMilkyWay = 1,
  kHaze = 2,
  kSkyLines = 16,  // grids, circles and poles
  kFigures = 3,
  kImageFrames = 4,
  kOrbits = 5,
  kDeepsky = 6,
  kStars = 7,
  kBodies = 8,
  kGround = 9,
  kRadiants = 10,
  kFavourites = 11,
  kCaptionGround = 12,
  kCompass = 13,
  kMarkers = 14,
  kLabels = 15,
  kChart = 20  // legend, scale and circles of finders; painted last
};

// The arrays. Frozen.
enum class RecordType : int {
  kPoint = 0,
  kDisc = 1,
  kShadow = 2,
  kPolyline = 3,
  kEllipse = 4,
  kPolygon = 5,
  kGradient = 6,
  kText = 7,
  kMesh = 8,
  kGlobe = 9
};

// Light around a round thing: a radial gradient from `innerRadius` (colour) over `middle` of the way
// (middleColour) to `radius`, where it has faded. Painted under the thing itself. No glow: radius 0.
struct Glow {
  float innerRadius, radius, middle;
  Rgba colour, middleColour;
};

// A filled circle: a star, or a body that is too small for a disc.
struct PointRecord {
  float x, y, radius;
  Rgba colour;
  Glow glow;
  ObjectRef object;
};

// A body with a phase: a circle in the dark colour, and on it in the lit one the side of the Sun.
struct DiscRecord {
  float x, y, radius;
  float sunX, sunY;  // unit vector from the middle of the disc to that of its bright limb
  float cosPhase;    // cosine of the phase angle: 1 wholly lit, -1 wholly dark
  Rgba lit, dark;
  Glow glow;
  ObjectRef object;
};

// A body whose surface is seen: what the disc says, for painters without maps, and the rest for the others.
// docs/formats/display_list.md says how a pixel of it gets its colour.
struct GlobeRecord {
  DiscRecord disc;  // its radius is that of the equator
  // From the picture's axes (x right, y down, z towards the viewer) to the body's (z the north pole, x
  // longitude 0). No rotation where air squeezes the picture: a way in it is longer on the body then.
  float toBody[9];
  float flattening;            // what the axis is shorter than the equator's, as a part of it
  float limbDarkening;         // 0: as bright at the limb as in the middle, 1: dark there
  float ringInner, ringOuter;  // radii of a ring about the equator, units of the equator's; 0: no ring
  int firstRingColour, ringColourCount;  // of the colours, from the inner to the outer radius
  int map;                               // index of the map of its surface, -1: the colour of the disc
  Rgba air;  // of the sky before it, whose light comes to that of the surface; opacity has no meaning
};

// A shadow that falls on a disc: a radial gradient with three colours, from `innerRadius` over `middle` of
// the way to `outerRadius`, in the circle of that radius, where this lies on the disc (clip...). Inside
// `innerRadius` the first colour goes on.
struct ShadowRecord {
  float x, y, innerRadius, outerRadius, middle;
  float clipX, clipY, clipRadius;
  Rgba inner, middleColour, outer;
  ObjectRef object;
};

// Bits of PolylineRecord::flags and EllipseRecord::flags.
enum LineFlag : unsigned { kClosedLine = 1, kRoundCaps = 2, kRoundJoins = 4 };

// A line from vertex to vertex. Neighbours in the array that differ in nothing but their vertices and object
// are stroked together, so that nothing darkens where they meet.
struct PolylineRecord {
  int firstVertex, vertexCount;
  float width;
  float dash;  // length of dashes and of the gaps between them; 0: none
  Rgba colour;
  unsigned flags;  // of LineFlag
  ObjectRef object;
};

// The outline of an ellipse.
struct EllipseRecord {
  float x, y, semiMajor, semiMinor;
  float angle;  // of the major axis, from the x axis towards the y axis
  float width, dash;
  Rgba colour;
  ObjectRef object;
};

// An area bounded by closed rings, filled by the even-odd rule. With `softness` its edge fades outwards:
// outside the area the rings are stroked in the colour `edge`, with round joins, four times one over the
// other, 9, 21, 36 and 56 times `softness` / 2 pixels wide; the half of each width lies outside.
struct PolygonRecord {
  int firstRing, ringCount;
  Rgba colour, edge;
  float softness;
  ObjectRef object;
};

// A ring of a polygon, the last vertex joined to the first.
struct RingRecord {
  int firstVertex, vertexCount;
};

// A convex area of four corners, filled with a linear gradient: the first colour at (x0, y0), the second at
// `middle` of the way, the third at (x1, y1).
struct GradientRecord {
  float cornerX[4], cornerY[4];
  float x0, y0, x1, y1, middle;
  Rgba colour, middleColour, endColour;
  ObjectRef object;
};

// An area of colours that blend into each other: `columns` x `rows` nodes, evenly spread over the rectangle,
// the outermost on its edges, row by row from the upper left one on. Between four nodes each channel is
// interpolated linearly along x and along y.
struct MeshRecord {
  float left, top, right, bottom;
  int columns, rows;  // 2 or more each
  int firstColour;    // in the array of colours
  ObjectRef object;
};

// Bits of TextRecord::style.
enum TextStyle : unsigned { kItalicText = 1, kBoldText = 2 };

// A line of sans-serif text.
struct TextRecord {
  float x, y;      // of a point of the baseline
  float anchor;    // which part of the text's width lies left of the point: 0, 0.5 or 1
  float size;      // of the font
  int first;       // of its bytes in the buffer of texts, UTF-8
  int length;      // bytes; a zero stands behind them
  unsigned style;  // of TextStyle
  Rgba colour;
  ObjectRef object;
};

// A corner of a line or an area, pixels.
struct Vertex {
  float x, y;
};

// `count` records of one array from `first` on. Painting the runs one after the other paints the picture.
struct Run {
  RecordType type;
  Layer layer;
  int first, count;
};

static_assert(std::endian::native == std::endian::little, "records are read as bytes elsewhere");
static_assert(sizeof(Rgba) == 4 && sizeof(ObjectRef) == 8 && sizeof(Glow) == 20 && sizeof(Vertex) == 8);
static_assert(sizeof(PointRecord) == 44 && sizeof(DiscRecord) == 60 && sizeof(ShadowRecord) == 52);
static_assert(sizeof(GlobeRecord) == 128);
static_assert(sizeof(PolylineRecord) == 32 && sizeof(EllipseRecord) == 40 && sizeof(PolygonRecord) == 28);
static_assert(sizeof(RingRecord) == 8 && sizeof(GradientRecord) == 72 && sizeof(TextRecord) == 40);
static_assert(sizeof(MeshRecord) == 36);
static_assert(sizeof(Run) == 16);

class InkTable;

// Made by SkyFrame (sky_frame.h), read by painters. The arrays keep their memory from frame to frame, and
// pointers into them hold until the next frame is computed. One thread.
class SCENE_API DisplayList {
 public:
  int GetWidth() const { return m_Width; }
  int GetHeight() const { return m_Height; }
  // What one pixel of the standard picture of 1600 x 1000 is in this one: lines and texts grow with it.
  float GetUnit() const { return m_Unit; }

  const std::vector<Run>& GetRuns() const { return m_Runs; }
  const std::vector<PointRecord>& GetPoints() const { return m_Points; }
  const std::vector<DiscRecord>& GetDiscs() const { return m_Discs; }
  const std::vector<GlobeRecord>& GetGlobes() const { return m_Globes; }
  const std::vector<ShadowRecord>& GetShadows() const { return m_Shadows; }
  const std::vector<PolylineRecord>& GetPolylines() const { return m_Polylines; }
  const std::vector<EllipseRecord>& GetEllipses() const { return m_Ellipses; }
  const std::vector<PolygonRecord>& GetPolygons() const { return m_Polygons; }
  const std::vector<GradientRecord>& GetGradients() const { return m_Gradients; }
  const std::vector<TextRecord>& GetTexts() const { return m_Texts; }
  const std::vector<MeshRecord>& GetMeshes() const { return m_Meshes; }
  const std::vector<RingRecord>& GetRings() const { return m_Rings; }
  const std::vector<Vertex>& GetVertices() const { return m_Vertices; }
  const std::vector<char>& GetTextBytes() const { return m_TextBytes; }
  const std::vector<Rgba>& GetColours() const { return m_Colours; }
  // Resolved paths of the maps of surfaces, plate carree JPEG, north up, longitude 0 in the middle, east to
  // the right; the same for all frames.
  const std::vector<std::string>& GetMaps() const { return m_Maps; }
  const char* GetText(const TextRecord& text) const { return m_TextBytes.data() + text.first; }

  void SetMaps(std::vector<std::string> maps) { m_Maps = std::move(maps); }
  // Empties the list, but for the maps, for a picture of that size.
  void Begin(int width, int height, double unit);
  // The style in whose colours the records that follow are drawn, until the next one is set.
  void SetStyle(ChartStyle style);
  ChartStyle GetStyle() const { return m_Style; }

  // The records until EndSample show how things are drawn: they are drawn as they are on their own layers,
  // but lie on that one and name no object.
  void BeginSample(Layer layer) { m_SampleLayer = layer, m_IsSample = true; }
  void EndSample() { m_IsSample = false; }

  // Each appends one record. Lines and areas take the vertices, and areas the rings, that were added since
  // the record before; vertices without a ring stand for one. A mesh takes the colours added since the
  // record that took some before, one for each node, of `columns` a row; a globe takes them as those of its
  // ring.
  void AddVertex(double x, double y);
  void EndRing();
  void AddColour(Rgba colour) { m_Colours.push_back(colour); }
  void Add(Layer layer, PointRecord point);
  void Add(Layer layer, DiscRecord disc);
  void Add(Layer layer, GlobeRecord globe);
  void Add(Layer layer, ShadowRecord shadow);
  void Add(Layer layer, EllipseRecord ellipse);
  void Add(Layer layer, GradientRecord gradient);
  void AddLine(Layer layer, PolylineRecord line);
  void AddArea(Layer layer, PolygonRecord area);
  void AddMesh(Layer layer, MeshRecord mesh);
  void AddText(Layer layer, TextRecord text, std::string_view utf8);

  // Room for so many records, so that frames up to that size allocate nothing.
  struct Capacity {
    std::size_t points = 0, discs = 0, shadows = 0, polylines = 0, ellipses = 0, polygons = 0, gradients = 0,
                texts = 0, meshes = 0, rings = 0, vertices = 0, textBytes = 0, runs = 0, globes = 0,
                colours = 0;
  };
  void Reserve(const Capacity& capacity);

 private:
  void Note(RecordType type, Layer layer, int count);
  template <class Record>
  void Prepare(Layer& layer, Record& record) const;
  void InkColours(Layer layer, int first);

  int m_Width = 0, m_Height = 0;
  float m_Unit = 1.0f;
  ChartStyle m_Style = ChartStyle::kScreen;
  const InkTable* m_Inks = nullptr;  // of the style, null: colours as they are
  Layer m_SampleLayer = Layer::kChart;
  bool m_IsSample = false;
  int m_OpenVertex = 0, m_OpenRing = 0, m_OpenColour = 0;  // the first that belong to no record yet
  std::vector<Run> m_Runs;
  std::vector<PointRecord> m_Points;
  std::vector<DiscRecord> m_Discs;
  std::vector<GlobeRecord> m_Globes;
  std::vector<ShadowRecord> m_Shadows;
  std::vector<PolylineRecord> m_Polylines;
  std::vector<EllipseRecord> m_Ellipses;
  std::vector<PolygonRecord> m_Polygons;
  std::vector<GradientRecord> m_Gradients;
  std::vector<TextRecord> m_Texts;
  std::vector<MeshRecord> m_Meshes;
  std::vector<RingRecord> m_Rings;
  std::vector<Vertex> m_Vertices;
  std::vector<char> m_TextBytes;
  std::vector<Rgba> m_Colours;
  std::vector<std::string> m_Maps;
};

}  // namespace scene
