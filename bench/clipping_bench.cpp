// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Clipping one segment of the screen, against the two classics: by outcodes (Cohen and Sutherland, in W. M.
// Newman and R. F. Sproull, "Principles of interactive computer graphics", 1979) and by parameter intervals
// (Y.-D. Liang and B. A. Barsky, "A new concept and method for line clipping", 1984).
#include <utility>

#include <benchmark/benchmark.h>

#include "bench/different_inputs.h"
#include "common_interfaces/clipping.h"

namespace bench {
namespace {

constexpr tRect<int> kWindow{0, 0, 1281, 801};
constexpr int kRight = kWindow.right - 1, kBottom = kWindow.bottom - 1;

template <class T>
struct Segment {
  tPoint<T> p0, p1;
};

// Segments in and around the window, half of them as short as those of grids and outlines, half of any
// length.
template <class T>
const std::vector<Segment<T>>& Segments() {
  static const auto segments = MakeInputs(2, [](std::mt19937& random) {
    const int reach = random() % 2 == 0 ? 200 : 2000;
    const int x = Below(random, 2080) - 400, y = Below(random, 1600) - 400;
    const int dx = Below(random, 2 * reach + 1) - reach, dy = Below(random, 2 * reach + 1) - reach;
    return Segment<T>{{static_cast<T>(x), static_cast<T>(y)},
                      {static_cast<T>(x + dx), static_cast<T>(y + dy)}};
  });
  return segments;
}

// Clips copies of the segments, each where no other was just now.
template <class T, class Clip>
void Run(benchmark::State& state, Clip clip) {
  constexpr std::size_t kKept = 1024;
  std::vector<Segment<T>> kept(kKept);
  const auto& segments = Segments<T>();
  for (auto _ : state) {
    std::size_t place = 0;
    for (const Segment<T>& segment : segments) {
      Segment<T>& copy = kept[place++ % kKept];
      copy = segment;
      bool isVisible = clip(copy);
      benchmark::DoNotOptimize(isVisible);
      benchmark::ClobberMemory();
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<benchmark::IterationCount>(segments.size()));
}

template <class T>
unsigned Outcode(const tPoint<T>& p) {
  unsigned code = p.x < kWindow.left ? 1u : p.x > kRight ? 2u : 0u;
  code |= p.y < kWindow.top ? 4u : p.y > kBottom ? 8u : 0u;
  return code;
}

template <class T>
bool ClipByOutcodes(Segment<T>& s) {
  unsigned code0 = Outcode(s.p0), code1 = Outcode(s.p1);
  while ((code0 | code1) != 0) {
    if ((code0 & code1) != 0) return false;
    const unsigned code = code0 != 0 ? code0 : code1;
    const double x = s.p0.x, y = s.p0.y, dx = s.p1.x - x, dy = s.p1.y - y;
    tPoint<T> p;
    if (code & 8) {
      p = {static_cast<T>(x + dx * (kBottom - y) / dy), static_cast<T>(kBottom)};
    } else if (code & 4) {
      p = {static_cast<T>(x + dx * (kWindow.top - y) / dy), static_cast<T>(kWindow.top)};
    } else if (code & 2) {
      p = {static_cast<T>(kRight), static_cast<T>(y + dy * (kRight - x) / dx)};
    } else {
      p = {static_cast<T>(kWindow.left), static_cast<T>(y + dy * (kWindow.left - x) / dx)};
    }
    if (code == code0) {
      s.p0 = p;
      code0 = Outcode(p);
    } else {
      s.p1 = p;
      code1 = Outcode(p);
    }
  }
  return true;
}

// Narrows [from, to] to the part of start + t change between low and high; false when nothing is left.
bool Narrow(double start, double change, double low, double high, double& from, double& to) {
  if (change == 0.0) return start >= low && start <= high;
  double a = (low - start) / change, b = (high - start) / change;
  if (a > b) std::swap(a, b);
  if (a > from) from = a;
  if (b < to) to = b;
  return from < to;
}

template <class T>
bool ClipByIntervals(Segment<T>& s) {
  const double x = s.p0.x, y = s.p0.y, dx = s.p1.x - s.p0.x, dy = s.p1.y - s.p0.y;
  double from = 0.0, to = 1.0;
  if (!Narrow(x, dx, kWindow.left, kRight, from, to)) return false;
  if (!Narrow(y, dy, kWindow.top, kBottom, from, to)) return false;
  if (to < 1.0) s.p1 = {static_cast<T>(x + dx * to), static_cast<T>(y + dy * to)};
  if (from > 0.0) s.p0 = {static_cast<T>(x + dx * from), static_cast<T>(y + dy * from)};
  return true;
}

void ClipFixedPoint(benchmark::State& state) {
  Run<int>(state, [](Segment<int>& s) { return CommonInterfaces::line_in_rect(&s.p0, &s.p1, kWindow, 1.0); });
}
void ClipInteger(benchmark::State& state) {
  Run<int>(state, [](Segment<int>& s) { return CommonInterfaces::line_in_rect(&s.p0, &s.p1, kWindow, 0.0); });
}
void ClipDouble(benchmark::State& state) {
  Run<double>(state,
              [](Segment<double>& s) { return CommonInterfaces::line_in_rectD(&s.p0, &s.p1, kWindow); });
}
template <class T>
void ByOutcodes(benchmark::State& state) {
  Run<T>(state, ClipByOutcodes<T>);
}
template <class T>
void ByIntervals(benchmark::State& state) {
  Run<T>(state, ClipByIntervals<T>);
}
// Reading a segment and writing it.
template <class T>
void Copy(benchmark::State& state) {
  Run<T>(state, [](Segment<T>& s) { return s.p0.x < s.p1.x; });
}

BENCHMARK(ClipFixedPoint);
BENCHMARK(ByOutcodes<int>)->Name("ClipFixedPointPeerOutcodes");
BENCHMARK(ClipInteger);
BENCHMARK(ByOutcodes<int>)->Name("ClipIntegerPeerOutcodes");
BENCHMARK(ByIntervals<int>)->Name("ClipIntegerPeerIntervals");
BENCHMARK(Copy<int>)->Name("ClipIntegerLimit");
BENCHMARK(ClipDouble);
BENCHMARK(ByOutcodes<double>)->Name("ClipDoublePeerOutcodes");
BENCHMARK(ByIntervals<double>)->Name("ClipDoublePeerIntervals");
BENCHMARK(Copy<double>)->Name("ClipDoubleLimit");

}  // namespace
}  // namespace bench
