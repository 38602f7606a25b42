// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What every benchmark of a short operation shares: inputs that differ so much and are so many that neither
// the caches nor the branch predictor learn them, and one loop over them for subject, peers and limit alike.
#pragma once

#include <cstddef>
#include <random>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

namespace bench {

// A predictor learns a sequence of a few thousand; no benchmark of a short operation has fewer inputs than
// this.
inline constexpr std::size_t kInputs = 1 << 17;

// `count` inputs, each made by make(random). The same seed makes the same inputs for subject and peers.
template <class Make>
auto MakeInputs(unsigned seed, Make make, std::size_t count = kInputs) {
  std::mt19937 random(seed);
  std::vector<decltype(make(random))> inputs;
  inputs.reserve(count);
  for (std::size_t i = 0; i < count; ++i) inputs.push_back(make(random));
  return inputs;
}

// A number from 0 to limit - 1.
inline int Below(std::mt19937& random, int limit) {
  return std::uniform_int_distribution<int>(0, limit - 1)(random);
}

inline double Between(std::mt19937& random, double low, double high) {
  return std::uniform_real_distribution<double>(low, high)(random);
}

// Does the work for each of the inputs, again and again; one item is one input. What `work` returns is stored
// in an array, as programs do.
template <class Inputs, class Work>
void RunOver(benchmark::State& state, const Inputs& inputs, Work work) {
  constexpr std::size_t kKept = 1024;
  std::vector<decltype(work(*inputs.begin()))> results(kKept);
  auto* kept = results.data();
  benchmark::DoNotOptimize(kept);
  for (auto _ : state) {
    std::size_t place = 0;
    for (const auto& input : inputs) {
      kept[place++ % kKept] = work(input);
      benchmark::ClobberMemory();
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<benchmark::IterationCount>(inputs.size()));
}

}  // namespace bench
