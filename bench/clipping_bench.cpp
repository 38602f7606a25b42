// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Clipping one segment of the screen, against exact clipping by parameter intervals (Y.-D. Liang and B. A.
// Barsky, "A new concept and method for line clipping", 1984).
#include <random>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "common_interfaces/clipping.h"

namespace {

constexpr tRect<int> kWindow{0, 0, 1281, 801};

template <class T>
struct Segment {
  tPoint<T> p0, p1;
};

// Segments of some 200 pixels in and around the window, as grids and outlines have them.
template <class T>
std::vector<Segment<T>> MakeSegments() {
  std::mt19937 random(2);
  std::uniform_int_distribution<int> x(-400, 1680), y(-400, 1200), length(-200, 200);
  std::vector<Segment<T>> segments(1024);
  for (Segment<T>& s : segments) {
    const int x0 = x(random), y0 = y(random), x1 = x0 + length(random), y1 = y0 + length(random);
    s = {{static_cast<T>(x0), static_cast<T>(y0)}, {static_cast<T>(x1), static_cast<T>(y1)}};
  }
  return segments;
}

template <class T, class Clip>
void Run(benchmark::State& state, Clip clip) {
  const auto segments = MakeSegments<T>();
  for (auto _ : state) {
    for (Segment<T> s : segments) {
      benchmark::DoNotOptimize(clip(s));
      benchmark::DoNotOptimize(s);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(segments.size()));
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
bool ClipExactly(Segment<T>& s) {
  const double x = s.p0.x, y = s.p0.y, dx = s.p1.x - s.p0.x, dy = s.p1.y - s.p0.y;
  double from = 0.0, to = 1.0;
  if (!Narrow(x, dx, kWindow.left, kWindow.right - 1, from, to)) return false;
  if (!Narrow(y, dy, kWindow.top, kWindow.bottom - 1, from, to)) return false;
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
void ClipFixedPointPeer(benchmark::State& state) { Run<int>(state, ClipExactly<int>); }
void ClipIntegerPeer(benchmark::State& state) { Run<int>(state, ClipExactly<int>); }
void ClipDoublePeer(benchmark::State& state) { Run<double>(state, ClipExactly<double>); }

BENCHMARK(ClipFixedPoint);
BENCHMARK(ClipFixedPointPeer);
BENCHMARK(ClipInteger);
BENCHMARK(ClipIntegerPeer);
BENCHMARK(ClipDouble);
BENCHMARK(ClipDoublePeer);

}  // namespace
