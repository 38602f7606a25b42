// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/sky_map.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

#include "utils/bytes.h"
#include "utils/checksum.h"
#include "utils/whole_file.h"

namespace scene {
namespace {

// The header: offsets of its numbers, then the origin up to its end.
constexpr std::string_view kMagic = "SKYLIGHT";
constexpr std::uint32_t kVersion = 1;
constexpr std::size_t kVersionAt = 8, kHeaderSizeAt = 12, kCheckAt = 16, kSideAt = 20, kOriginAt = 24;
constexpr std::size_t kMostOrigin = 65536;

// The sum over a file, whose own place counts as zeros.
std::uint32_t GetCheck(std::string_view bytes) {
  const std::uint32_t before = GetCrc32({"\0\0\0\0", 4}, GetCrc32(bytes.substr(0, kCheckAt)));
  return GetCrc32(bytes.substr(kCheckAt + 4), before);
}

double WithSignOf(double value, double sign) { return sign < 0.0 ? -value : value; }

// Folds what lies beyond the equator, or beyond an edge of the square, over.
void Fold(double& x, double& y) {
  const double folded = WithSignOf(1.0 - std::fabs(y), x);
  y = WithSignOf(1.0 - std::fabs(x), y);
  x = folded;
}

// What the cells before, at and behind a place have to say about it: `part` of a cell from the first edge of
// the middle one.
std::array<float, 3> GetWeights(float part) {
  const float left = 1.0f - part, aside = part - 0.5f;
  return {0.5f * left * left, 0.75f - aside * aside, 0.5f * part * part};
}

}  // namespace

bool SkyMap::Load(const char* path, std::string& error) {
  std::string bytes, reason;
  if (ReadWholeFile(path, bytes, reason) && Read(bytes, reason)) return true;
  error = std::string(path) + ": " + reason;
  return false;
}

bool SkyMap::Read(std::string_view bytes, std::string& reason) {
  const auto fail = [&reason](const char* text) {
    reason = text;
    return false;
  };
  const char* const header = bytes.data();
  if (bytes.size() < kOriginAt || bytes.substr(0, kMagic.size()) != kMagic)
    return fail("it is no map of the sky");
  if (LoadLE32(header + kVersionAt) != kVersion) return fail("it is a map of the sky of another version");
  const std::size_t size = LoadLE32(header + kHeaderSizeAt), side = LoadLE32(header + kSideAt);
  if (size < kOriginAt || size - kOriginAt > kMostOrigin || side < kLeastSide || side > kMostSide ||
      side % 2 != 0) {
    return fail("the header of the map is damaged");
  }
  if (bytes.size() != size + side * side) return fail("the map is not as long as it says");
  if (GetCheck(bytes) != LoadLE32(header + kCheckAt)) return fail("the map is damaged: its sum is wrong");
  m_Side = static_cast<int>(side);
  m_Origin = bytes.substr(kOriginAt, size - kOriginAt);
  m_Cells.resize((side + 2) * (side + 2));
  for (int row = 0; row < m_Side; ++row)
    std::memcpy(&m_Cells[Index(0, row)], header + size + static_cast<std::size_t>(row) * side, side);
  FillBorder();
  return true;
}

// Beyond an edge the square goes on with itself, turned by half a turn about the middle of that edge.
void SkyMap::FillBorder() {
  const int last = m_Side - 1;
  for (int i = 0; i <= last; ++i) {
    m_Cells[Index(i, -1)] = GetCell(last - i, 0);
    m_Cells[Index(i, m_Side)] = GetCell(last - i, last);
    m_Cells[Index(-1, i)] = GetCell(0, last - i);
    m_Cells[Index(m_Side, i)] = GetCell(last, last - i);
  }
  m_Cells[Index(-1, -1)] = GetCell(last, last);
  m_Cells[Index(m_Side, m_Side)] = GetCell(0, 0);
  m_Cells[Index(-1, m_Side)] = GetCell(last, 0);
  m_Cells[Index(m_Side, -1)] = GetCell(0, last);
}

float SkyMap::Find(const Direction& direction) const {
  const double* v = direction.v;
  const double sum = std::fabs(v[0]) + std::fabs(v[1]) + std::fabs(v[2]);
  if (IsEmpty() || !(sum > 0.0) || std::isinf(sum)) return 0.0f;
  const double part = 1.0 / sum;
  double x = v[0] * part, y = v[1] * part;
  if (v[2] < 0.0) Fold(x, y);
  const auto place = [this](double along) { return static_cast<float>((0.5 * along + 0.5) * m_Side); };
  const float right = place(x), down = place(y);
  const int column = std::clamp(static_cast<int>(right), 0, m_Side - 1),
            row = std::clamp(static_cast<int>(down), 0, m_Side - 1);
  const unsigned char* cells = &m_Cells[Index(column - 1, row - 1)];
  const int next = m_Side + 2;
  const auto light = [cells](int i) { return cells[i] | cells[i + 1] | cells[i + 2]; };
  if ((light(0) | light(next) | light(2 * next)) == 0) return 0.0f;  // two thirds of the sky
  const auto across = GetWeights(right - static_cast<float>(column)),
             along = GetWeights(down - static_cast<float>(row));
  float found = 0.0f;
  for (const float weight : along) {
    found += weight * (across[0] * cells[0] + across[1] * cells[1] + across[2] * cells[2]);
    cells += next;
  }
  return found;
}

Direction SkyMap::GetCellDirection(int side, int column, int row) {
  double x = (2.0 * column + 1.0) / side - 1.0, y = (2.0 * row + 1.0) / side - 1.0;
  const double z = 1.0 - std::fabs(x) - std::fabs(y);
  if (z < 0.0) Fold(x, y);
  return Normalised({{x, y, z}});
}

std::string MakeSkyMap(int side, std::string_view cells, std::string_view origin) {
  std::string bytes(kOriginAt, '\0');
  const std::size_t size = kOriginAt + origin.size();
  kMagic.copy(bytes.data(), kMagic.size());
  StoreLE32(&bytes[kVersionAt], kVersion);
  StoreLE32(&bytes[kHeaderSizeAt], static_cast<std::uint32_t>(size));
  StoreLE32(&bytes[kSideAt], static_cast<std::uint32_t>(side));
  bytes += origin;
  bytes += cells;
  StoreLE32(&bytes[kCheckAt], GetCheck(bytes));
  return bytes;
}

}  // namespace scene
