// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/variable_stars.h"

#include <cmath>

#include "astro/constants.h"

namespace CommonInterfaces {

namespace {

enum class Shape { kCos, kSin, kEclipse };

// base + amplitude cos^2(pi phase) or sin^2(pi phase).
struct PeriodicStar {
  unsigned id;
  double epoch;   // Julian date
  double period;  // days
  double base;    // magnitudes
  double amplitude;
  Shape shape;
};

constexpr PeriodicStar kPeriodicStars[] = {
    {0x48780B23, 2451912.29, 2.86731, 2.11, 1.38, Shape::kEclipse},
    {0x4B710A52, 2451186.45, 12.9138, 3.25, 1.1, Shape::kCos},
    {0x52230A71, 2453148.0, 408.05, 3.3, 10.9, Shape::kSin},
    {0x45C70F9B, 2451181.69, 5.36634, 3.48, 1.0, Shape::kSin},
    {0x41EE0C46, 2451179.3, 0.5669, 7.06, 1.05, Shape::kSin},
    {0x44781255, 2452154.0, 333.8, 2.0, 8.1, Shape::kSin},
};

// The dip of the eclipsing star is deliberately drawn only where it is nearly at its deepest: outside that
// narrow range the star stays at its base, and the curve has a step.
constexpr double kEclipseFrom = 1.35;

double PeriodicMagnitude(const PeriodicStar& star, double jd) {
  // The absolute value is deliberate: the curve is symmetric about the epoch.
  const double cycles = std::abs(jd - star.epoch) / star.period;
  const double angle = astro::kPi * (cycles - std::floor(cycles));
  const double wave = star.shape == Shape::kSin ? std::sin(angle) : std::cos(angle);
  const double change = star.amplitude * (wave * wave);
  if (star.shape == Shape::kEclipse && !(change >= kEclipseFrom)) return star.base;
  return star.base + change;
}

constexpr unsigned kRecurrentNova = 0x447807F5;

double RecurrentNovaMagnitude(double jd) {
  constexpr double kCycle = 29000.0;  // days
  const double cycles = std::floor((jd - 2431839.5) / kCycle);
  const double outburst = kCycle * cycles + 2431860.5;
  if (jd <= outburst - 5.0 || jd >= outburst + 60.0) return 10.25;
  if (jd < outburst) return 2.0 + 1.76 * (outburst - jd);
  return 2.0 + 0.14666666666666667 * (jd - outburst);
}

// A steep rise to the peak, ten days or less of quick fading, then a slow decline.
struct Nova {
  unsigned id;
  double quietUntil, peak, slowAfter, quietFrom;  // Julian dates
  double quiet, brightest;                        // magnitudes
  double rise, fade;                              // magnitudes per day
  double slowBase, slowFade;                      // magnitude at the peak's date; magnitudes per day
};

constexpr Nova kNovaInCatalogue = {0x41A701C0, 2421751.5, 2421753.5, 2421763.5, 2422073.5, 11.76,
                                   -1.4,       6.58,      0.44,      3.0,       0.027375};
constexpr Nova kUserNova = {0x77C91FD3, 2442653.0, 2442655.0, 2442660.0, 2442975.0, 23.0,
                            1.69,       10.655,    0.662,     5.0,       0.05625};

double NovaMagnitude(const Nova& nova, double jd) {
  if (jd <= nova.quietUntil || jd >= nova.quietFrom) return nova.quiet;
  if (jd < nova.peak) return (nova.peak - jd) * nova.rise + nova.brightest;
  if (jd <= nova.slowAfter) return (jd - nova.peak) * nova.fade + nova.brightest;
  // Deliberately counted from the peak, not from the date at which the slow decline begins: the curve jumps
  // there.
  return (jd - nova.peak) * nova.slowFade + nova.slowBase;
}

struct Supernova {
  unsigned id;
  double start;      // Julian date
  double brightest;  // magnitudes
};

constexpr Supernova kSupernovae[] = {
    {0x2F5DC054, 2106219.0, -4.8}, {0x3C24553D, 2088606.0, -9.0}, {0x0DC3C508, 2295520.5, -4.0},
    {0x295848A3, 2307170.5, -2.8}, {0x46FA33D6, 2409751.0, 5.8},  {0x33703631, 2446831.0, 4.5},
};

double SupernovaMagnitude(const Supernova& star, double jd) {
  if (jd <= star.start || jd >= star.start + 340.0) return 16.0;
  const double peak = star.start + 20.0;
  if (jd < peak) return (peak - jd) * 0.8 + star.brightest;
  return (jd - peak) * 0.05 + star.brightest;
}

}  // namespace

bool GetVarStarMagnitude(double* mag, unsigned starId, double jd) {
  for (const PeriodicStar& star : kPeriodicStars) {
    if (star.id != starId) continue;
    *mag = PeriodicMagnitude(star, jd);
    return true;
  }
  if (starId == kRecurrentNova) {
    *mag = RecurrentNovaMagnitude(jd);
    return true;
  }
  if (starId != kNovaInCatalogue.id) return false;
  *mag = NovaMagnitude(kNovaInCatalogue, jd);
  return true;
}

bool GetVarUserStarMagnitude(double* mag, unsigned starId, double jd) {
  for (const Supernova& star : kSupernovae) {
    if (star.id != starId) continue;
    *mag = SupernovaMagnitude(star, jd);
    return true;
  }
  if (starId != kUserNova.id) return false;
  *mag = NovaMagnitude(kUserNova, jd);
  return true;
}

}  // namespace CommonInterfaces
