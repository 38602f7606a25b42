// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/healpix.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "astro/vectors.h"

namespace astro {
namespace {

// The sphere unfolded onto a plane (Calabretta & Roukema 2007, MNRAS 381, 865): x counts quarter turns of
// longitude, y runs from -1 to 1. Between the latitudes of sine +-2/3 y is proportional to the sine; towards
// a pole every quarter narrows to a point, as `width` goes from 1 to 0. The twelve cells of order 0 are
// squares of this plane that stand on a corner.
struct PlanePoint {
  double x, y;
};

constexpr int kNorth = 0, kEquator = 1, kSouth = 2;  // rows of four cells of order 0

// Where the square stands: the middle of cell `column` of a row.
double GetMiddleX(int row, int column) { return row == kEquator ? column : column + 0.5; }
double GetMiddleY(int row) { return 0.5 * (kEquator - row); }

// The even bits of the result are those of the argument.
std::uint32_t SpreadBits(std::uint32_t bits) {
  bits = (bits | bits << 8) & 0x00FF00FFu;
  bits = (bits | bits << 4) & 0x0F0F0F0Fu;
  bits = (bits | bits << 2) & 0x33333333u;
  return (bits | bits << 1) & 0x55555555u;
}

std::uint32_t GatherBits(std::uint32_t bits) {
  bits &= 0x55555555u;
  bits = (bits | bits >> 1) & 0x33333333u;
  bits = (bits | bits >> 2) & 0x0F0F0F0Fu;
  bits = (bits | bits >> 4) & 0x00FF00FFu;
  return (bits | bits >> 8) & 0x0000FFFFu;
}

std::uint32_t GetStep(double share, int order) {
  const auto steps = static_cast<double>(1u << order);
  return static_cast<std::uint32_t>(std::clamp(std::floor(share * steps), 0.0, steps - 1.0));
}

// The cell at the plane's point within a square: `x` and `y` count from its middle.
std::uint32_t GetCellInSquare(int order, int row, int column, double x, double y) {
  const std::uint32_t east = GetStep(0.5 + y + x, order), west = GetStep(0.5 + y - x, order);
  const auto square = static_cast<std::uint32_t>(4 * row + column);
  return square << 2 * order | SpreadBits(east) | SpreadBits(west) << 1;
}

// A point of a square: the shares 0 to 1 of its two sides that begin in the south, towards east and west.
void GetPointInSquare(int row, int column, double east, double west, double direction[3]) {
  const double dx = 0.5 * (east - west), y = GetMiddleY(row) + 0.5 * (east + west - 1.0);
  double x = GetMiddleX(row, column) + dx, z = 4.0 / 3.0 * y, r = 0.0;
  if (std::fabs(y) <= 0.5) {
    r = std::sqrt((1.0 - z) * (1.0 + z));
  } else {
    const double width = 2.0 * (1.0 - std::fabs(y)), depth = width * width / 3.0;
    z = std::copysign(1.0 - depth, y);
    r = std::sqrt(depth * (2.0 - depth));
    x = GetMiddleX(row, column) + (width > 0.0 ? dx / width : 0.0);
  }
  direction[0] = r * std::cos(0.5 * kPi * x);
  direction[1] = r * std::sin(0.5 * kPi * x);
  direction[2] = z;
}

// A point of a cell, from its south corner.
void GetPointInCell(int order, std::uint32_t cell, double east, double west, double direction[3]) {
  const auto square = static_cast<int>(cell >> 2 * order);
  const double scale = 1.0 / (1u << order);
  const std::uint32_t inside = cell & ((1u << 2 * order) - 1u);
  GetPointInSquare(square / 4, square % 4, (GatherBits(inside) + east) * scale,
                   (GatherBits(inside >> 1) + west) * scale, direction);
}

// The farthest that a corner is from its centre in a grid of the order, in that of the cells at the corners
// between the equatorial belt and the caps (Gorski et al., section 5.2).
double MakeRadius(int order) {
  const double cells = 1u << order;
  const double middle[3] = {std::sqrt(5.0) / 3.0 * std::cos(0.25 * kPi / cells),
                            std::sqrt(5.0) / 3.0 * std::sin(0.25 * kPi / cells), 2.0 / 3.0};
  const double depth = (1.0 - 1.0 / cells) * (1.0 - 1.0 / cells) / 3.0;
  const double corner[3] = {std::sqrt(depth * (2.0 - depth)), 0.0, 1.0 - depth};
  constexpr double kRounding = 1e-12;
  return VectorsAngle(middle, corner) + kRounding;
}

struct Radii {
  Radii() {
    for (int order = 0; order <= kMaxHealpixOrder; ++order) radius[order] = MakeRadius(order);
  }
  double radius[kMaxHealpixOrder + 1];
};

double CosineUpTo(double angle) { return angle >= kPi ? -2.0 : std::cos(angle); }

// One walk down the tree of cells.
class ConeWalk {
 public:
  ConeWalk(int order, const double axis[3], double angle, HealpixRangeVisitor visit, void* context)
      : m_Order(order), m_Axis(axis), m_Visit(visit), m_Context(context) {
    constexpr double kRounding = 1e-15;  // of a cosine
    for (int level = 0; level <= order; ++level) {
      const double radius = GetHealpixRadius(level);
      m_Touched[level] = CosineUpTo(angle + radius) - kRounding;
      m_Inside[level] = angle > radius ? CosineUpTo(angle - radius) + kRounding : 2.0;
    }
  }

  void Visit() {
    for (std::uint32_t cell = 0; cell < 12; ++cell) Visit(0, cell);
    Flush();
  }

 private:
  void Visit(int level, std::uint32_t cell) {
    double centre[3];
    GetHealpixCentre(level, cell, centre);
    const double cosine = Dot(centre, m_Axis);
    if (cosine < m_Touched[level]) return;
    if (level == m_Order || cosine >= m_Inside[level]) {
      const int below = 2 * (m_Order - level);
      Append(cell << below, (cell << below) + ((1u << below) - 1u));
      return;
    }
    for (std::uint32_t child = 0; child < 4; ++child) Visit(level + 1, 4 * cell + child);
  }

  // Cells come in rising order: neighbours become one range.
  void Append(std::uint32_t first, std::uint32_t last) {
    if (m_HasRange && first == m_Last + 1) {
      m_Last = last;
      return;
    }
    Flush();
    m_First = first;
    m_Last = last;
    m_HasRange = true;
  }

  void Flush() {
    if (m_HasRange) m_Visit(m_Context, m_First, m_Last);
    m_HasRange = false;
  }

  int m_Order;
  const double* m_Axis;
  HealpixRangeVisitor m_Visit;
  void* m_Context;
  // Cosines, level by level: from the first on a cell is touched, from the second on it lies inside.
  double m_Touched[kMaxHealpixOrder + 1], m_Inside[kMaxHealpixOrder + 1];
  bool m_HasRange = false;
  std::uint32_t m_First = 0, m_Last = 0;
};

}  // namespace

std::uint32_t GetHealpixCell(int order, const double direction[3]) {
  const double z = direction[2], height = std::fabs(z);
  double x = std::atan2(direction[1], direction[0]) / (0.5 * kPi);  // quarter turns
  if (x < 0.0) x += 4.0;
  if (height > 2.0 / 3.0) {
    const int column = std::min(static_cast<int>(x), 3);
    const double away = direction[0] * direction[0] + direction[1] * direction[1];
    const double width = std::sqrt(3.0 * away / (1.0 + height));  // sqrt(3 (1 - |z|)), exact at the pole
    const double y = 0.5 - 0.5 * width;                           // from the middle of the square
    const double dx = (x - column - 0.5) * width;
    return z > 0.0 ? GetCellInSquare(order, kNorth, column, dx, y)
                   : GetCellInSquare(order, kSouth, column, dx, -y);
  }
  // Squares are a lattice in the sum and the difference of x and y.
  const double y = 0.75 * z;
  const int sum = static_cast<int>(std::floor(x + y + 0.5));
  const int difference = static_cast<int>(std::floor(x - y + 0.5));
  const int row = kEquator - std::clamp(sum - difference, -1, 1);  // rounding may find a fourth row
  const int column = (row == kNorth ? difference : sum) & 3;
  double dx = x - GetMiddleX(row, column);
  if (dx > 2.0) dx -= 4.0;
  return GetCellInSquare(order, row, column, dx, y - GetMiddleY(row));
}

void GetHealpixCentre(int order, std::uint32_t cell, double direction[3]) {
  GetPointInCell(order, cell, 0.5, 0.5, direction);
}

void GetHealpixCorners(int order, std::uint32_t cell, double corners[4][3]) {
  GetPointInCell(order, cell, 1.0, 1.0, corners[0]);
  GetPointInCell(order, cell, 0.0, 1.0, corners[1]);
  GetPointInCell(order, cell, 0.0, 0.0, corners[2]);
  GetPointInCell(order, cell, 1.0, 0.0, corners[3]);
}

double GetHealpixRadius(int order) {
  static const Radii s_Radii;  // never changes
  return s_Radii.radius[order];
}

void VisitHealpixCone(int order, const double axis[3], double angle, HealpixRangeVisitor visit,
                      void* context) {
  if (angle < 0.0) return;
  if (!(angle < kPi)) return visit(context, 0, GetHealpixCellCount(order) - 1);
  ConeWalk(order, axis, angle, visit, context).Visit();
}

}  // namespace astro
