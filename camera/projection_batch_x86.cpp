// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Two directions at a time with SSE2, which every target has, or four with AVX2, which is asked for at run
// time. Multiplications and additions stay apart (no FMA), so the pixels are those of single calls to the
// bit.
//
#include <immintrin.h>

#include "camera/projection_batch.h"

#define CI_AVX2 __attribute__((target("avx2")))
#define CI_AVX512 __attribute__((target("avx512f")))

namespace CommonInterfaces {

namespace {

// Directions stand in memory as x y z x y z, pixels as x y x y. Each of these structures loads as many
// directions as its registers have lanes, into a register for each component, and stores as many pixels.

// By pairs of neighbours: xy zx yz.
struct Two {
  using Real = __m128d;
  static constexpr int kCount = 2;

  static void Load(const double* v, Real& x, Real& y, Real& z) {
    const Real xy = _mm_loadu_pd(v), zx = _mm_loadu_pd(v + 2), yz = _mm_loadu_pd(v + 4);
    x = _mm_shuffle_pd(xy, zx, 0b10);
    y = _mm_shuffle_pd(xy, yz, 0b01);
    z = _mm_shuffle_pd(zx, yz, 0b10);
  }
  static void Store(const Real& x, const Real& y, tPoint<double>* p) {
    _mm_storeu_pd(&p[0].x, _mm_unpacklo_pd(x, y));
    _mm_storeu_pd(&p[1].x, _mm_unpackhi_pd(x, y));
  }
};

// The same pairs of directions 0, 1 and 2, 3 side by side.
struct Four {
  using Real = __m256d;
  static constexpr int kCount = 4;

  CI_AVX2 static void LoadPairs(const double* v, Real& pairs) {
    pairs = _mm256_insertf128_pd(_mm256_castpd128_pd256(_mm_loadu_pd(v)), _mm_loadu_pd(v + 6), 1);
  }
  CI_AVX2 static void Load(const double* v, Real& x, Real& y, Real& z) {
    Real xy, zx, yz;
    LoadPairs(v, xy);
    LoadPairs(v + 2, zx);
    LoadPairs(v + 4, yz);
    x = _mm256_shuffle_pd(xy, zx, 0b1010);
    y = _mm256_shuffle_pd(xy, yz, 0b0101);
    z = _mm256_shuffle_pd(zx, yz, 0b1010);
  }
  CI_AVX2 static void Store(const Real& x, const Real& y, tPoint<double>* p) {
    const Real even = _mm256_unpacklo_pd(x, y), odd = _mm256_unpackhi_pd(x, y);
    _mm256_storeu_pd(&p[0].x, _mm256_permute2f128_pd(even, odd, 0x20));
    _mm256_storeu_pd(&p[2].x, _mm256_permute2f128_pd(even, odd, 0x31));
  }
};

// Each component is picked out of the first two registers, then what is left of it out of the third. A number
// below 8 picks from the one register, from 8 on from the other.
struct Eight {
  using Real = __m512d;
  static constexpr int kCount = 8;

  CI_AVX512 static void Load(const double* v, Real& x, Real& y, Real& z) {
    const Real a = _mm512_loadu_pd(v), b = _mm512_loadu_pd(v + 8), c = _mm512_loadu_pd(v + 16);
    x = _mm512_permutex2var_pd(a, _mm512_setr_epi64(0, 3, 6, 9, 12, 15, 0, 0), b);
    y = _mm512_permutex2var_pd(a, _mm512_setr_epi64(1, 4, 7, 10, 13, 0, 0, 0), b);
    z = _mm512_permutex2var_pd(a, _mm512_setr_epi64(2, 5, 8, 11, 14, 0, 0, 0), b);
    x = _mm512_permutex2var_pd(x, _mm512_setr_epi64(0, 1, 2, 3, 4, 5, 10, 13), c);
    y = _mm512_permutex2var_pd(y, _mm512_setr_epi64(0, 1, 2, 3, 4, 8, 11, 14), c);
    z = _mm512_permutex2var_pd(z, _mm512_setr_epi64(0, 1, 2, 3, 4, 9, 12, 15), c);
  }
  CI_AVX512 static void Store(const Real& x, const Real& y, tPoint<double>* p) {
    _mm512_storeu_pd(&p[0].x, _mm512_permutex2var_pd(x, _mm512_setr_epi64(0, 8, 1, 9, 2, 10, 3, 11), y));
    _mm512_storeu_pd(&p[4].x, _mm512_permutex2var_pd(x, _mm512_setr_epi64(4, 12, 5, 13, 6, 14, 7, 15), y));
  }
};

template <class Lanes>
[[gnu::always_inline]] inline void Run(const BatchProjection& given, const double* v, tPoint<double>* p,
                                       int count) {
  const BatchProjection projection = given;
  for (; count >= Lanes::kCount; count -= Lanes::kCount, v += 3 * Lanes::kCount, p += Lanes::kCount) {
    typename Lanes::Real x, y, z, left, up;
    Lanes::Load(v, x, y, z);
    Project(projection.matrix, projection.scale, x, y, z, left, up);
    Lanes::Store(projection.centre.x - left, up + projection.centre.y, p);
  }
  ProjectEach(projection, v, p, count);
}

void RunWithSse2(const BatchProjection& projection, const double* v, tPoint<double>* p, int count) {
  Run<Two>(projection, v, p, count);
}

CI_AVX2 void RunWithAvx2(const BatchProjection& projection, const double* v, tPoint<double>* p, int count) {
  Run<Four>(projection, v, p, count);
}

CI_AVX512 void RunWithAvx512(const BatchProjection& projection, const double* v, tPoint<double>* p,
                             int count) {
  Run<Eight>(projection, v, p, count);
}

}  // namespace

std::vector<BatchRun> FindBatchRuns() {
  std::vector<BatchRun> runs;
  if (__builtin_cpu_supports("avx512f")) runs.push_back(RunWithAvx512);
  if (__builtin_cpu_supports("avx2")) runs.push_back(RunWithAvx2);
  runs.push_back(RunWithSse2);
  return runs;
}

}  // namespace CommonInterfaces
