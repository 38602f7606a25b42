// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <vector>

#include "paint/records.h"

namespace paint {
namespace {

// Where a pixel stands between two nodes: the first of them, and the part of the way to the next.
struct Between {
  int node;
  float part;
};

Between FindNodes(int pixel, int pixels, int nodes) {
  const float at =
      (static_cast<float>(pixel) + 0.5f) / static_cast<float>(pixels) * static_cast<float>(nodes - 1);
  const int node = std::clamp(static_cast<int>(at), 0, nodes - 2);
  return {node, at - static_cast<float>(node)};
}

// Of all pixels of a row, or of a column.
std::vector<Between> FindAllNodes(int pixels, int nodes) {
  std::vector<Between> all;
  all.reserve(static_cast<std::size_t>(pixels));
  for (int pixel = 0; pixel < pixels; ++pixel) all.push_back(FindNodes(pixel, pixels, nodes));
  return all;
}

// What is added before a value is cut off to a whole number: in each square of eight pixels every 64th
// between 0 and 1 once, neighbours far apart, so that slow gradients show no steps (Bayer 1973). The pattern
// follows from the bits of x ^ y and y, the lowest first.
constexpr float MakeThreshold(int x, int y) {
  int order = 0;
  for (int bit = 0; bit < 3; ++bit) {
    order = order << 2 | ((x ^ y) >> bit & 1) << 1 | (y >> bit & 1);
  }
  return (static_cast<float>(order) + 0.5f) / 64.0f;
}

using Thresholds = std::array<std::array<float, 8>, 8>;

constexpr Thresholds MakeThresholds() {
  Thresholds thresholds{};
  for (std::size_t y = 0; y < 8; ++y) {
    for (std::size_t x = 0; x < 8; ++x)
      thresholds[y][x] = MakeThreshold(static_cast<int>(x), static_cast<int>(y));
  }
  return thresholds;
}

constexpr Thresholds kThresholds = MakeThresholds();

using Channels = std::array<float, 4>;

Channels Mix(const Channels& a, const Channels& b, float part) {
  Channels mixed;
  for (std::size_t i = 0; i < mixed.size(); ++i) mixed[i] = a[i] + (b[i] - a[i]) * part;
  return mixed;
}

Channels Subtract(const Channels& a, const Channels& b) {
  Channels difference;
  for (std::size_t i = 0; i < difference.size(); ++i) difference[i] = a[i] - b[i];
  return difference;
}

// The mesh as the pixels of an image of some size.
class MeshPixels {
 public:
  MeshPixels(const scene::DisplayList& list, const scene::MeshRecord& mesh, int width, int height)
      : m_List(list),
        m_Mesh(mesh),
        m_Height(height),
        m_Across(FindAllNodes(width, mesh.columns)),
        m_Line(static_cast<std::size_t>(mesh.columns)) {}

  void FillRow(int y, unsigned char* row) {
    MixNodes(FindNodes(y, m_Height, m_Mesh.rows));
    const auto& thresholds = kThresholds[static_cast<std::size_t>(y & 7)];
    for (std::size_t x = 0; x < m_Across.size();) {
      const int node = m_Across[x].node;
      const Channels from = m_Line[static_cast<std::size_t>(node)],
                     way = Subtract(m_Line[static_cast<std::size_t>(node) + 1], from);
      for (; x < m_Across.size() && m_Across[x].node == node; ++x) {
        const std::uint32_t word = MakeWord(from, way, m_Across[x].part, thresholds[x & 7]);
        std::memcpy(row + 4 * x, &word, sizeof word);
      }
    }
  }

 private:
  // The nodes of a line between two rows.
  void MixNodes(const Between& down) {
    for (int column = 0; column < m_Mesh.columns; ++column) {
      m_Line[static_cast<std::size_t>(column)] =
          Mix(GetNode(column, down.node), GetNode(column, down.node + 1), down.part);
    }
  }
  Channels GetNode(int column, int row) const {
    const auto index = static_cast<std::size_t>(m_Mesh.firstColour + row * m_Mesh.columns + column);
    const scene::Rgba& colour = m_List.GetColours()[index];
    return {static_cast<float>(colour.blue), static_cast<float>(colour.green), static_cast<float>(colour.red),
            static_cast<float>(colour.alpha)};
  }
  // Opacity in the highest byte, the colours multiplied with it. A threshold is less than 1, so that no
  // channel is more than 255.
  static std::uint32_t MakeWord(const Channels& from, const Channels& way, float part, float threshold) {
    const float alpha = from[3] + way[3] * part, opacity = alpha * (1.0f / 255.0f);
    const auto whole = [threshold](float value) {
      return static_cast<std::uint32_t>(static_cast<std::int32_t>(value + threshold));
    };
    return whole(alpha) << 24 | whole((from[2] + way[2] * part) * opacity) << 16 |
           whole((from[1] + way[1] * part) * opacity) << 8 | whole((from[0] + way[0] * part) * opacity);
  }

  const scene::DisplayList& m_List;
  const scene::MeshRecord& m_Mesh;
  int m_Height;
  std::vector<Between> m_Across;
  std::vector<Channels> m_Line;
};

// Pictures of pixels get a value for each of them; others a coarser image, which viewers make smooth.
double GetImageScale(cairo_t* context) {
  constexpr double kCoarse = 0.125;
  return WritesPaths(context) ? kCoarse : 1.0;
}

}  // namespace

void PaintMesh(const scene::DisplayList& list, const scene::MeshRecord& mesh, cairo_t* context) {
  const double width = static_cast<double>(mesh.right - mesh.left),
               height = static_cast<double>(mesh.bottom - mesh.top);
  if (mesh.columns < 2 || mesh.rows < 2 || !(width > 0.0) || !(height > 0.0)) return;
  const double scale = GetImageScale(context);
  const int columns = std::max(1, static_cast<int>(std::lround(width * scale))),
            rows = std::max(1, static_cast<int>(std::lround(height * scale)));
  cairo_surface_t* image = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, columns, rows);
  if (cairo_surface_status(image) == CAIRO_STATUS_SUCCESS) {
    MeshPixels pixels(list, mesh, columns, rows);
    unsigned char* const data = cairo_image_surface_get_data(image);
    for (int y = 0; y < rows; ++y) pixels.FillRow(y, data + y * cairo_image_surface_get_stride(image));
    cairo_surface_mark_dirty(image);
  }
  cairo_save(context);
  cairo_translate(context, mesh.left, mesh.top);
  cairo_scale(context, width / columns, height / rows);
  cairo_set_source_surface(context, image, 0.0, 0.0);
  cairo_rectangle(context, 0.0, 0.0, columns, rows);
  cairo_fill(context);
  cairo_restore(context);
  cairo_surface_destroy(image);
}

}  // namespace paint
