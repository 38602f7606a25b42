// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What moves in a frame: a hundred thousand bodies on their orbits, a thousand artificial satellites,
// Jupiter's moons.
#include <cmath>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "astro/moons.h"
#include "astro/satellite.h"
#include "astro/two_body.h"

namespace {

constexpr double kTurn = 6.283185307179586;
constexpr double kFrame = 1.0 / 86400.0;  // days between two frames: time flies

struct Orbit {
  OrbitalElements elements;
  OrbitPlane plane;
};

// Orbits as catalogs have them: mostly the asteroid belt, some comets.
std::vector<Orbit> MakeOrbits(int count) {
  std::mt19937 random(5);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  std::vector<Orbit> orbits(static_cast<std::size_t>(count));
  for (Orbit& orbit : orbits) {
    OrbitalElements& elements = orbit.elements;
    const bool isComet = unit(random) < 0.05;
    elements.e = isComet ? 0.8 + 0.1999 * unit(random) : 0.3 * unit(random);
    elements.a = isComet ? 1.0 / (1.0 - elements.e) : 2.1 + 1.2 * unit(random);
    elements.i = 0.3 * unit(random);
    elements.om = kTurn * unit(random);
    elements.w = kTurn * unit(random);
    elements.M0 = isComet ? unit(random) - 0.5 : kTurn * unit(random);
    elements.n = kGaussianConstant / (elements.a * std::sqrt(elements.a));
    elements.epoch = 2459800.5;
    orbit.plane = MakeOrbitPlane(elements);
  }
  return orbits;
}

// The textbook's way: Newton's method from E = M until it stands, then the place in the plane.
bool PlaceByNewton(const OrbitalElements& elements, const OrbitPlane& plane, double moment,
                   double position[3]) {
  const double mean = std::remainder(elements.M0 + elements.n * (moment - elements.epoch), kTurn);
  double angle = elements.e < 0.8 ? mean : std::copysign(0.5 * kTurn, mean);
  for (int k = 0; k < 50; ++k) {
    const double step = (angle - elements.e * std::sin(angle) - mean) / (1.0 - elements.e * std::cos(angle));
    angle -= step;
    if (std::fabs(step) < 1e-14) break;
  }
  const double x = elements.a * (std::cos(angle) - elements.e);
  const double y = elements.a * std::sqrt(1.0 - elements.e * elements.e) * std::sin(angle);
  for (int k = 0; k < 3; ++k) position[k] = x * plane.p[k] + y * plane.q[k];
  return true;
}

template <class Place>
void Advance(benchmark::State& state, Place place) {
  const std::vector<Orbit> orbits = MakeOrbits(static_cast<int>(state.range(0)));
  double moment = 2460000.5;
  for (auto _ : state) {
    for (const Orbit& orbit : orbits) {
      double position[3];
      benchmark::DoNotOptimize(place(orbit, moment, position));
      benchmark::DoNotOptimize(position);
    }
    moment += kFrame;
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void AdvanceOrbits(benchmark::State& state) {
  Advance(state, [](const Orbit& orbit, double moment, double position[3]) {
    return ComputeTwoBodyState(orbit.elements, orbit.plane, moment, position, nullptr);
  });
}
void AdvanceOrbitsPeer(benchmark::State& state) {
  Advance(state, [](const Orbit& orbit, double moment, double position[3]) {
    return PlaceByNewton(orbit.elements, orbit.plane, moment, position);
  });
}

// Verification sets of the report on the model: one near the Earth, one in a resonance of half a day.
const char* const kNear[] = {"1 06251U 62025E   06176.82412014  .00008885  00000-0  12808-3 0  3985",
                             "2 06251  58.0579  54.0425 0030035 139.1568 221.1854 15.56387291  6774"};
const char* const kDeep[] = {"1 08195U 75081A   06176.33215444  .00000099  00000-0  11873-3 0   813",
                             "2 08195  64.1586 279.0717 6877146 264.7651  20.2257  2.00491383225656"};

// That satellite at `count` places of its orbit.
std::vector<OrbitalElements> MakeSatellites(const char* const lines[2], int count) {
  OrbitalElements elements;
  int number = 0;
  std::string error;
  ParseTwoLineElements(lines[0], lines[1], elements, number, error);
  std::vector<OrbitalElements> satellites(static_cast<std::size_t>(count), elements);
  for (int k = 0; k < count; ++k) satellites[static_cast<std::size_t>(k)].M0 = kTurn * k / count;
  return satellites;
}

void AdvanceSatellites(benchmark::State& state, const char* const lines[2]) {
  std::vector<SatelliteModel> models;
  for (const OrbitalElements& elements : MakeSatellites(lines, static_cast<int>(state.range(0))))
    models.emplace_back(elements);
  double minutes = 3000.0;
  for (auto _ : state) {
    for (const SatelliteModel& model : models) {
      double position[3], velocity[3];
      benchmark::DoNotOptimize(model.GetState(minutes, position, velocity));
      benchmark::DoNotOptimize(position);
    }
    minutes += 1440.0 * kFrame;
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
void SatellitesNear(benchmark::State& state) { AdvanceSatellites(state, kNear); }
void SatellitesDeep(benchmark::State& state) { AdvanceSatellites(state, kDeep); }

// The same satellites, undisturbed.
void AdvanceUndisturbed(benchmark::State& state, const char* const lines[2]) {
  std::vector<Orbit> orbits;
  for (OrbitalElements elements : MakeSatellites(lines, static_cast<int>(state.range(0)))) {
    elements.n *= 1440.0;  // radians per day
    elements.a = 0.00005;  // au, some 7500 km
    orbits.push_back({elements, MakeOrbitPlane(elements)});
  }
  double moment = orbits.front().elements.epoch + 2.0;
  for (auto _ : state) {
    for (const Orbit& orbit : orbits) {
      double position[3], velocity[3];
      benchmark::DoNotOptimize(ComputeTwoBodyState(orbit.elements, orbit.plane, moment, position, velocity));
      benchmark::DoNotOptimize(position);
    }
    moment += kFrame;
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}
void SatellitesNearPeer(benchmark::State& state) { AdvanceUndisturbed(state, kNear); }
void SatellitesDeepPeer(benchmark::State& state) { AdvanceUndisturbed(state, kDeep); }

// All four, with velocities, as a frame wants them for the light time.
void JupiterMoons(benchmark::State& state) {
  double moment = 2460000.5;
  for (auto _ : state) {
    for (const int number : astro::GetMoonsOfPlanet(5)) {
      double position[3], velocity[3];
      benchmark::DoNotOptimize(
          astro::ComputeMoonOfPlanet(SSO_ID(astro::kMoonKind, number), moment, position, velocity));
      benchmark::DoNotOptimize(position);
    }
    moment += kFrame;
  }
  state.SetItemsProcessed(state.iterations());
}

// The sines alone of as many terms as the series of the four moons have.
void JupiterMoonsPeer(benchmark::State& state) {
  constexpr int kTerms = 476;
  std::mt19937 random(5);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  std::vector<double> phases, rates;
  for (int i = 0; i < kTerms; ++i) {
    phases.push_back(kTurn * unit(random));
    rates.push_back(20.0 * unit(random));
  }
  double days = 26718.0;
  for (auto _ : state) {
    double sum = 0.0;
    for (std::size_t i = 0; i < kTerms; ++i) sum += std::sin(phases[i] + rates[i] * days);
    benchmark::DoNotOptimize(sum);
    days += kFrame;
  }
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK(AdvanceOrbits)->Arg(100000);
BENCHMARK(AdvanceOrbitsPeer)->Arg(100000);
BENCHMARK(JupiterMoons);
BENCHMARK(JupiterMoonsPeer);
BENCHMARK(SatellitesNear)->Arg(1000);
BENCHMARK(SatellitesNearPeer)->Arg(1000);
BENCHMARK(SatellitesDeep)->Arg(1000);
BENCHMARK(SatellitesDeepPeer)->Arg(1000);

}  // namespace
