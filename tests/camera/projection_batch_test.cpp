// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Projections one at a time, many at a time and by every kind of vector instructions, against the formula
// written out with the products of the astronomy library: the same bits.
#include "camera/projection_batch.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "astro/vectors.h"
#include "camera/view_helpers.h"

namespace {

using CommonInterfaces::BatchProjection;
using CommonInterfaces::BatchRun;
using CommonInterfaces::Camera;
using CommonInterfaces::PictureMatrix;
using Pixel = tPoint<double>;

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

// Equal to the bit, so that 0 and -0 differ; of what is not a number, only that it is none.
bool IsSame(double a, double b) {
  return std::isnan(a) || std::isnan(b) ? std::isnan(a) && std::isnan(b) : std::memcmp(&a, &b, sizeof a) == 0;
}
bool IsSame(const Pixel& a, const Pixel& b) { return IsSame(a.x, b.x) && IsSame(a.y, b.y); }

Pixel ByTheFormula(const double* matrix, double scale, const Pixel& centre, const double* v) {
  double r[3];
  MV3prod(matrix, v, r);
  const double k = scale / (r[2] + 1.0);
  return {centre.x - r[0] * k, r[1] * k + centre.y};
}

// Directions one after the other: all over the sky, in front, close to what has no picture and exactly that,
// and vectors that are no directions.
std::vector<double> MakeVectors(std::mt19937& random, int count) {
  const double kOdd[] = {0.0,   -0.0,      1.0,        -1.0,  5e-324, 1e-310, 1e150,
                         1e308, kInfinite, -kInfinite, kNone, 1e-9,   -0.5};
  std::uniform_real_distribution<double> any(-1.0, 1.0);
  std::vector<double> vectors;
  for (int i = 0; i < count; ++i) {
    double v[3] = {any(random), any(random), any(random)};
    switch (random() % 4) {
      case 0:
        for (double& component : v) component = kOdd[random() % std::size(kOdd)];
        break;
      case 1:  // behind
        v[0] *= 1e-7;
        v[1] *= 1e-7;
        v[2] = -1.0 + (random() % 2 != 0 ? 0.0 : 1e-15);
        break;
      default: {
        const double length = Vmod(v, 3);
        for (double& component : v) component /= length;
      }
    }
    vectors.insert(vectors.end(), v, v + 3);
  }
  return vectors;
}

std::vector<double> MakeMatrix(std::mt19937& random) {
  std::uniform_real_distribution<double> any(-1.0, 1.0);
  std::vector<double> m(9);
  if (random() % 4 == 0) return {1, 0, 0, 0, 1, 0, 0, 0, 1};
  const double angles[3] = {3.0 * any(random), 1.5 * any(random), 3.0 * any(random)};
  Camera::InitCameraMatrix(angles, m.data());
  return m;
}

// Projects `count` of the vectors from `first` on and looks at every pixel, and at those before and behind.
void ExpectTheFormula(BatchRun run, const std::vector<double>& m, double scale, const Pixel& centre,
                      const std::vector<double>& vectors, int first, int count) {
  const Pixel untouched{-12345.0, 54321.0};
  std::vector<Pixel> pixels(vectors.size() / 3 + 2, untouched);
  run(BatchProjection{PictureMatrix(m.data()), scale, centre}, vectors.data() + 3 * first,
      pixels.data() + 1 + first, count);
  for (int i = 0; i < static_cast<int>(pixels.size()); ++i) {
    const int vector = i - 1;
    const bool isAsked = vector >= first && vector < first + count;
    const Pixel expected =
        isAsked ? ByTheFormula(m.data(), scale, centre, vectors.data() + 3 * vector) : untouched;
    ASSERT_TRUE(IsSame(pixels[static_cast<std::size_t>(i)], expected))
        << "vector " << vector << " of " << first << " to " << first + count << ": "
        << pixels[static_cast<std::size_t>(i)].x << ' ' << pixels[static_cast<std::size_t>(i)].y
        << " and not " << expected.x << ' ' << expected.y;
  }
}

TEST(ProjectionBatch, EveryWayGivesTheBitsOfTheFormulaForEveryCountUpTo40) {
  const std::vector<BatchRun> runs = CommonInterfaces::FindBatchRuns();
  ASSERT_FALSE(runs.empty());
  std::mt19937 random(20260404);
  for (const BatchRun run : runs) {
    for (int round = 0; round < 40; ++round) {
      const std::vector<double> m = MakeMatrix(random), vectors = MakeVectors(random, 44);
      const Pixel centre = round % 5 == 0 ? Pixel{0.0, 0.0} : Pixel{960.5, 540.0};
      for (int count = 0; count <= 40; ++count) {
        ExpectTheFormula(run, m, 0.25 + 1000.0 * round, centre, vectors, count % 4, count);
      }
    }
  }
}

TEST(ProjectionBatch, EveryWayGivesTheBitsOfTheFormulaForManyDirections) {
  std::mt19937 random(20260405);
  const std::vector<double> vectors = MakeVectors(random, 100000), m = MakeMatrix(random);
  for (const BatchRun run : CommonInterfaces::FindBatchRuns()) {
    ExpectTheFormula(run, m, 1234.5, {960.0, 540.0}, vectors, 0, 100000);
  }
}

TEST(ProjectionBatch, NothingHappensForNegativeCounts) {
  const std::vector<double> vectors(30, 0.5), identity = {1, 0, 0, 0, 1, 0, 0, 0, 1};
  for (const BatchRun run : CommonInterfaces::FindBatchRuns()) {
    for (const int count : {-1, -2, -7, -8, -9, -1000, std::numeric_limits<int>::min()}) {
      ExpectTheFormula(run, identity, 100.0, {1.0, 2.0}, vectors, 0, count);
    }
  }
}

// Rotations about two axes, so that the two matrices of a camera differ.
void LookSomewhere(Camera& camera, int seed) {
  const double angles[3] = {0.3 + seed, 0.2, 1.0};
  double reduction[9];
  Camera::InitCameraMatrix(angles, reduction);
  camera.SetWinRect({801 + 2 * seed, 600, 1280, 800});
  camera.SetZoom(0.7 + seed);
  camera.SetReductionMatrix(reduction);
  camera.SetRA_Dec({1.2 - seed, 0.4, 0.1, 0});
}

TEST(ProjectionBatch, ACameraGivesTheBitsOfItsSingleCalls) {
  std::mt19937 random(20260406);
  for (int seed = 0; seed < 20; ++seed) {
    Camera camera(1);
    LookSomewhere(camera, seed);
    const int count = static_cast<int>(random() % 100);
    const std::vector<double> vectors = MakeVectors(random, count);
    std::vector<Pixel> inView(static_cast<std::size_t>(count)), ofCatalog(inView.size());
    camera.BatchRA_Dec2PixD(vectors.data(), inView.data(), count);
    camera.BatchRA_Dec2K2PixD(vectors.data(), ofCatalog.data(), count);
    for (int i = 0; i < count; ++i) {
      Pixel single;
      camera.RA_Dec2PixD(vectors.data() + 3 * i, &single);
      ASSERT_TRUE(IsSame(inView[static_cast<std::size_t>(i)], single)) << i;
      camera.RA_Dec2K2PixD(vectors.data() + 3 * i, &single);
      ASSERT_TRUE(IsSame(ofCatalog[static_cast<std::size_t>(i)], single)) << i;
    }
    camera.BatchRA_Dec2PixD(nullptr, nullptr, 0);
    camera.BatchRA_Dec2K2PixD(nullptr, nullptr, 0);
  }
}

// The matrices that the camera projects by are those that its setters and assignment made.
TEST(ProjectionBatch, ACameraProjectsByTheFormulaWithItsMatrices) {
  std::mt19937 random(20260407);
  for (int seed = 0; seed < 20; ++seed) {
    Camera original(1), camera(2);
    LookSomewhere(original, seed);
    camera = original;
    const double viewAngles[3] = {1.2 - seed, 0.4, 0.1}, reductionAngles[3] = {0.3 + seed, 0.2, 1.0};
    double view[9], reduction[9], combo[9];
    Camera::InitCameraMatrix(viewAngles, view);
    Camera::InitCameraMatrix(reductionAngles, reduction);
    M3prod(view, reduction, combo);
    const double scale = std::hypot(640.0, 400.0) / std::tan(Camera::s_ZoomOneAngle / (2.0 * (0.7 + seed)));
    const Pixel centre{0.5 * (801 + 2 * seed), 300.0};
    const std::vector<double> vectors = MakeVectors(random, 200);
    for (int i = 0; i < 200; ++i) {
      const double* v = vectors.data() + 3 * i;
      Pixel pixel;
      camera.RA_Dec2PixD(v, &pixel);
      ASSERT_TRUE(IsSame(pixel, ByTheFormula(view, scale, centre, v))) << seed << ' ' << i;
      camera.RA_Dec2K2PixD(v, &pixel);
      ASSERT_TRUE(IsSame(pixel, ByTheFormula(combo, scale, centre, v))) << seed << ' ' << i;
    }
  }
}

// A centre plus a truncated offset in exact arithmetic, held at the ends of the integers.
int WholePixel(int centre, double offset) {
  if (std::isnan(offset)) return std::numeric_limits<int>::min();
  const long double sum = centre + std::trunc(static_cast<long double>(offset));
  if (sum <= std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
  if (sum >= std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  return static_cast<int>(sum);
}

// Offsets of all sizes: behind the observer they grow beyond the integers, in windows of any size.
TEST(ProjectionBatch, WholePixelsAreExactAndSaturate) {
  std::mt19937 random(20260408);
  int large = 0, saturated = 0;
  for (int round = 0; round < 200; ++round) {
    Camera camera(1);
    const int sizes[] = {1, 801, 1920, std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), -7};
    const int width = sizes[random() % std::size(sizes)], height = sizes[random() % std::size(sizes)];
    camera.SetWinRect({width, height, 1920, 1080});
    camera.SetZoom(1.0);
    camera.SetRA_Dec({0, 0, 0, 0});
    double matrix[9];
    const double angles[3] = {0, 0, 0};
    Camera::InitCameraMatrix(angles, matrix);
    const double scale = std::hypot(960.0, 540.0) / std::tan(Camera::s_ZoomOneAngle / 2.0);
    for (int i = 0; i < 1000; ++i) {
      // The offset is about scale * lateral / (1 + ahead).
      const double wanted = std::pow(10.0, static_cast<double>(random() % 130) / 10.0);
      const double v[3] = {1e-6 * scale / wanted - 1.0, random() % 2 != 0 ? 1e-6 : -1e-6, 1e-6};
      const Pixel offset = ByTheFormula(matrix, scale, {0.0, 0.0}, v);
      tPoint<int> whole;
      camera.RA_Dec2Pix(v, &whole);
      ASSERT_EQ(whole.x, WholePixel(width >> 1, offset.x)) << width << ' ' << offset.x;
      ASSERT_EQ(whole.y, WholePixel(height >> 1, offset.y)) << height << ' ' << offset.y;
      if (std::fabs(offset.x) > 1e8) ++large;
      if (std::fabs(offset.x) > 3e9) ++saturated;
    }
  }
  EXPECT_GT(large, 1000);
  EXPECT_GT(saturated, 1000);
}

}  // namespace
