// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/galactic_image.h"

#include <algorithm>
#include <cmath>

#include "scene/view/base_plane.h"

namespace skydata {
namespace {

constexpr double kCellsPerDegree = GalacticImage::kColumns / 360.0;

// In cells: from longitude 0 eastwards, from the north pole on.
struct Place {
  double column, row;
};

Place FindPlace(const scene::Direction& j2000) {
  static const auto axes = [] {
    std::vector<double> m(9);
    scene::PlaneMatrix(scene::kGalacticPlane, m.data());
    return m;
  }();
  double v[3];
  for (std::size_t i = 0; i < 3; ++i)
    v[i] = axes[3 * i] * j2000.v[0] + axes[3 * i + 1] * j2000.v[1] + axes[3 * i + 2] * j2000.v[2];
  const double lon = std::atan2(v[1], v[0]), lat = std::atan2(v[2], std::hypot(v[0], v[1]));
  const double column = lon / scene::kRadiansPerDegree * kCellsPerDegree;
  return {column < 0.0 ? column + GalacticImage::kColumns : column,
          (90.0 - lat / scene::kRadiansPerDegree) * kCellsPerDegree};
}

// The mean of each value and `radius` others to both sides, `count` values in a circle.
void BlurCircle(std::vector<float>& values, int count, int radius, std::vector<float>& scratch) {
  const int width = 2 * radius + 1;
  const auto at = [&](int i) { return values[static_cast<std::size_t>((i + count) % count)]; };
  double sum = 0.0;
  for (int i = -radius; i <= radius; ++i) sum += static_cast<double>(at(i));
  for (int i = 0; i < count; ++i) {
    scratch[static_cast<std::size_t>(i)] = static_cast<float>(sum / width);
    sum += static_cast<double>(at(i + radius + 1)) - static_cast<double>(at(i - radius));
  }
  values.swap(scratch);
}

// A box is as wide as a bell when three in a row have its standard deviation.
int FindRadius(double deviation, int count) {
  const auto radius =
      static_cast<int>(std::lround(0.5 * (std::sqrt(4.0 * deviation * deviation + 1.0) - 1.0)));
  return std::min(radius, (count - 1) / 2);
}

void BlurThrice(std::vector<float>& values, int count, double deviation, std::vector<float>& scratch) {
  const int radius = FindRadius(deviation, count);
  for (int pass = 0; pass < 3; ++pass) BlurCircle(values, count, radius, scratch);
}

}  // namespace

// The rows at which outlines pass the middle of a column turn inside and outside.
void GalacticImage::AddRegion(const std::vector<std::vector<scene::Direction>>& rings) {
  std::vector<std::vector<double>> crossings(kColumns);
  for (const auto& ring : rings) {
    Place last = FindPlace(ring.back());
    for (const scene::Direction& point : ring) {
      const Place next = FindPlace(point);
      const double step = std::remainder(next.column - last.column, kColumns);
      const double from = last.column - 0.5, to = from + step;
      for (int i = static_cast<int>(std::ceil(std::min(from, to))); i < std::max(from, to); ++i) {
        const double part = (i - from) / step;
        crossings[static_cast<std::size_t>((i + kColumns) % kColumns)].push_back(
            last.row + part * (next.row - last.row));
      }
      last = next;
    }
  }
  for (int column = 0; column < kColumns; ++column) {
    auto& rows = crossings[static_cast<std::size_t>(column)];
    std::sort(rows.begin(), rows.end());
    for (std::size_t i = 0; i + 1 < rows.size(); i += 2) {
      for (int row = static_cast<int>(rows[i]); row < kRows && row < rows[i + 1]; ++row)
        At(column, row) +=
            static_cast<float>(std::min(row + 1.0, rows[i + 1]) - std::max<double>(row, rows[i]));
    }
  }
}

void GalacticImage::Blur(double degrees) {
  const double deviation = degrees * kCellsPerDegree;
  std::vector<float> line(kColumns), scratch(kColumns);
  for (int row = 0; row < kRows; ++row) {
    const double aside = std::sin((row + 0.5) / kRows * scene::kPi);  // of the distance from the pole
    std::copy_n(&At(0, row), kColumns, line.begin());
    BlurThrice(line, kColumns, deviation / aside, scratch);
    std::copy_n(line.begin(), kColumns, &At(0, row));
  }
  // Along a meridian to the other pole and back on the other side.
  line.resize(2 * kRows);
  scratch.resize(2 * kRows);
  for (int column = 0; column < kColumns / 2; ++column) {
    for (int row = 0; row < kRows; ++row) {
      line[static_cast<std::size_t>(row)] = At(column, row);
      line[static_cast<std::size_t>(2 * kRows - 1 - row)] = At(column + kColumns / 2, row);
    }
    BlurThrice(line, 2 * kRows, deviation, scratch);
    for (int row = 0; row < kRows; ++row) {
      At(column, row) = line[static_cast<std::size_t>(row)];
      At(column + kColumns / 2, row) = line[static_cast<std::size_t>(2 * kRows - 1 - row)];
    }
  }
}

void GalacticImage::Add(const GalacticImage& image, float factor) {
  for (std::size_t i = 0; i < m_Values.size(); ++i) m_Values[i] += factor * image.m_Values[i];
}

float GalacticImage::Find(const scene::Direction& j2000) const {
  const Place place = FindPlace(j2000);
  const double x = place.column - 0.5, y = std::clamp(place.row - 0.5, 0.0, kRows - 1.0);
  const int left = static_cast<int>(std::floor(x)), top = std::min(static_cast<int>(y), kRows - 2);
  const auto across = static_cast<float>(x - left), down = static_cast<float>(y - top);
  const auto mix = [&](int row) {
    const float a = At((left + kColumns) % kColumns, row), b = At((left + 1 + kColumns) % kColumns, row);
    return a + (b - a) * across;
  };
  return mix(top) + (mix(top + 1) - mix(top)) * down;
}

}  // namespace skydata
