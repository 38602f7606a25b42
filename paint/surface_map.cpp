// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/surface_map.h"

#include <cstdio>
// The library's header wants the one above first.
#include <jpeglib.h>

#include <algorithm>
#include <cmath>
#include <csetjmp>
#include <map>
#include <memory>
#include <numbers>

#include "utils/debug.h"

namespace paint {
namespace {

constexpr unsigned kMostWidth = 8192, kMostHeight = 4096;

// The library leaves through here when a file is damaged.
struct ErrorExit {
  jpeg_error_mgr manager;
  std::jmp_buf jump;
};

void LeaveDecoder(j_common_ptr decoder) { std::longjmp(reinterpret_cast<ErrorExit*>(decoder->err)->jump, 1); }
// A warning, which says that data are damaged, has a level below 0.
void LeaveIfDamaged(j_common_ptr decoder, int level) {
  if (level < 0) LeaveDecoder(decoder);
}

// Nothing with a destructor may begin between setjmp and what leaves.
bool Decode(std::FILE* file, std::vector<unsigned char>& pixels, int& width, int& height) {
  jpeg_decompress_struct decoder;
  ErrorExit exit;
  decoder.err = jpeg_std_error(&exit.manager);
  exit.manager.error_exit = LeaveDecoder;
  exit.manager.emit_message = LeaveIfDamaged;
  jpeg_create_decompress(&decoder);
  if (setjmp(exit.jump)) {
    jpeg_destroy_decompress(&decoder);
    return false;
  }
  jpeg_stdio_src(&decoder, file);
  jpeg_read_header(&decoder, TRUE);
  const bool fits = decoder.image_width <= kMostWidth && decoder.image_height <= kMostHeight;
  if (fits) {
    decoder.out_color_space = JCS_RGB;
    jpeg_start_decompress(&decoder);
    width = static_cast<int>(decoder.output_width);
    height = static_cast<int>(decoder.output_height);
    pixels.resize(std::size_t{3} * decoder.output_width * decoder.output_height);
    while (decoder.output_scanline < decoder.output_height) {
      JSAMPROW row = pixels.data() + std::size_t{3} * decoder.output_width * decoder.output_scanline;
      jpeg_read_scanlines(&decoder, &row, 1);
    }
    jpeg_finish_decompress(&decoder);
  }
  jpeg_destroy_decompress(&decoder);
  return fits;
}

}  // namespace

bool SurfaceMap::Load(const std::string& path) {
  m_Levels.clear();
  Level level = {};
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
  if (!file || !Decode(file.get(), level.pixels, level.width, level.height)) {
    PrintDebugString("%s: is no picture that can be read, its body is drawn plain\n", path.c_str());
    return false;
  }
  m_Levels.push_back(std::move(level));
  while (m_Levels.back().width > 8 && m_Levels.back().height > 4) m_Levels.push_back(Halve(m_Levels.back()));
  return true;
}

SurfaceMap::Level SurfaceMap::Halve(const Level& level) {
  Level half = {level.width / 2, level.height / 2, {}};
  for (int y = 0; y < half.height; ++y) {
    for (int x = 0; x < 3 * half.width; ++x) {
      const int from = 2 * (x / 3) * 3 + x % 3;
      const unsigned char* const upper = level.pixels.data() + std::size_t{6} * y * level.width + from;
      const unsigned char* const lower = upper + std::size_t{3} * level.width;
      half.pixels.push_back(static_cast<unsigned char>((upper[0] + upper[3] + lower[0] + lower[3] + 2) / 4));
    }
  }
  return half;
}

// Around in longitude; beyond the poles the row at the pole goes on.
MapColour SurfaceMap::Sample(const Level& level, double x, double y) const {
  const double left = std::floor(x), top = std::floor(y);
  const auto column = [&level](double at) {
    const int i = static_cast<int>(at) % level.width;
    return i < 0 ? i + level.width : i;
  };
  const auto row = [&level](double at) { return std::clamp(static_cast<int>(at), 0, level.height - 1); };
  const auto pixel = [&level](int i, int j) {
    return level.pixels.data() + std::size_t{3} * (static_cast<std::size_t>(j) * level.width + i);
  };
  const int x0 = column(left), x1 = column(left + 1.0), y0 = row(top), y1 = row(top + 1.0);
  const unsigned char *const a = pixel(x0, y0), *const b = pixel(x1, y0), *const c = pixel(x0, y1),
                             *const d = pixel(x1, y1);
  const auto u = static_cast<float>(x - left), v = static_cast<float>(y - top);
  const auto mix = [&](int i) {
    return (1 - v) * ((1 - u) * a[i] + u * b[i]) + v * ((1 - u) * c[i] + u * d[i]);
  };
  return {mix(0), mix(1), mix(2)};
}

MapColour SurfaceMap::GetColour(double longitude, double latitude, double perRadian) const {
  constexpr double kTurn = 2.0 * std::numbers::pi;
  std::size_t level = 0;
  while (level + 1 < m_Levels.size() && m_Levels[level].width > 1.5 * kTurn * perRadian) ++level;
  const Level& map = m_Levels[level];
  const double turns = longitude / kTurn + 0.5;
  return Sample(map, (turns - std::floor(turns)) * map.width - 0.5,
                (0.5 - latitude / std::numbers::pi) * map.height - 0.5);
}

const SurfaceMap* FindSurfaceMap(const std::string& path) {
  static std::map<std::string, std::unique_ptr<SurfaceMap>> maps;
  auto known = maps.find(path);
  if (known == maps.end()) {
    auto map = std::make_unique<SurfaceMap>();
    if (!map->Load(path)) map = nullptr;
    known = maps.emplace(path, std::move(map)).first;
  }
  return known->second.get();
}

}  // namespace paint
