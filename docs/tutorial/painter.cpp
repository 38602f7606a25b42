// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Paints the sky with letters: tutorial_painter DATA_ROOT
#include <common_interfaces/common_interfaces.h>
#include <scene/scene.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

// A picture of characters; a cell of it is 16 x 32 pixels.
class Canvas {
 public:
  static constexpr int kColumns = 100, kRows = 32, kCellWidth = 16, kCellHeight = 32;

  void Put(double x, double y, char sign) {
    const auto column = static_cast<int>(std::floor(x / kCellWidth));
    const auto row = static_cast<int>(std::floor(y / kCellHeight));
    if (column >= 0 && column < kColumns && row >= 0 && row < kRows) m_Lines[row][column] = sign;
  }
  void Print() const {
    for (const std::string& line : m_Lines)
      std::printf("%s\n", line.substr(0, line.find_last_not_of(' ') + 1).c_str());
  }

 private:
  std::vector<std::string> m_Lines = std::vector<std::string>(kRows, std::string(kColumns, ' '));
};

// A dot for each half of a cell's width.
void PaintLine(const scene::DisplayList& list, const scene::PolylineRecord& line, Canvas& canvas) {
  for (int i = 1; i < line.vertexCount; ++i) {
    const scene::Vertex& from = list.GetVertices()[line.firstVertex + i - 1];
    const scene::Vertex& to = list.GetVertices()[line.firstVertex + i];
    const int steps = 1 + static_cast<int>(std::hypot(to.x - from.x, to.y - from.y) / 8.0f);
    for (int step = 0; step <= steps; ++step) {
      const float part = static_cast<float>(step) / static_cast<float>(steps);
      canvas.Put(from.x + part * (to.x - from.x), from.y + part * (to.y - from.y), '.');
    }
  }
}

// Faint stars would fill this picture.
void PaintPoint(const scene::PointRecord& point, Canvas& canvas) {
  constexpr char kSigns[] = " +*@";
  const int size = std::clamp(static_cast<int>(point.radius / 1.5f), 0, 3);
  if (size > 0) canvas.Put(point.x, point.y, kSigns[size]);
}

// A text is UTF-8 and this canvas is not.
void PaintText(const scene::TextRecord& text, std::string_view utf8, Canvas& canvas) {
  if (std::ranges::any_of(utf8, [](char c) { return static_cast<unsigned char>(c) > 126; })) return;
  const double left = text.x - text.anchor * static_cast<double>(utf8.size()) * Canvas::kCellWidth;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    canvas.Put(left + static_cast<double>(i * Canvas::kCellWidth), text.y, utf8[i]);
  }
}

// The runs of the list, one after the other: what comes later lies on top. Layers and kinds of records that a
// painter does not know it may pass over.
void Paint(const scene::DisplayList& list, Canvas& canvas) {
  using scene::Layer, scene::RecordType;
  for (const scene::Run& run : list.GetRuns()) {
    for (int i = run.first; i < run.first + run.count; ++i) {
      if (run.type == RecordType::kPolyline && run.layer == Layer::kFigures) {
        PaintLine(list, list.GetPolylines()[i], canvas);
      } else if (run.type == RecordType::kPoint && run.layer != Layer::kMilkyWay) {
        PaintPoint(list.GetPoints()[i], canvas);
      } else if (run.type == RecordType::kText) {
        const scene::TextRecord& text = list.GetTexts()[i];
        PaintText(text, {list.GetText(text), static_cast<std::size_t>(text.length)}, canvas);
      }
    }
  }
}

bool Draw(const char* data, std::string& error) {
  scene::SkyCatalogs catalogs;
  if (!scene::OpenDataRoot(data, "", "en", catalogs, error)) return false;
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  camera.ReadSelf("views:orion.data", 1);
  camera.SetWinRect({1600, 1024, 1600, 1024});
  scene::LookTo({165.0, 36.0}, camera);  // azimuth from north over east, and altitude, degrees

  scene::ShownKinds shown;  // switch off what would be too much
  shown.starLabels.shown = false;
  shown.clusters = shown.galaxies = shown.nebulae = shown.otherDeepsky = false;
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(camera, catalogs, shown, scene::ObjectFilters::None(), markers);
  maker.Prepare();
  maker.Compute();
  Canvas canvas;
  Paint(maker.GetFrame().GetDisplayList(), canvas);
  canvas.Print();
  return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 2) {
    std::fprintf(stderr, "usage: tutorial_painter DATA_ROOT\n");
    return 2;
  }
  std::string error;
  if (Draw(arguments[1], error)) return 0;
  std::fprintf(stderr, "tutorial_painter: %s\n", error.c_str());
  return 1;
}
