// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A frame's records, each touched as whoever draws touches it: the pool against a reused buffer of the
// standard library, against the general heap, and against an array that is merely walked. A hundred thousand
// records of one size, or of both in random order.
#include <memory_resource>
#include <new>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/different_inputs.h"
#include "common_interfaces/output_pool.h"

namespace bench {
namespace {

constexpr std::size_t kBlock = 1 << 20, kBlocks = 16;

// The sizes of the records, by the benchmark's argument; 0 mixes them.
std::vector<unsigned> MakeSizes(const benchmark::State& state) {
  const auto size = static_cast<unsigned>(state.range(0));
  return MakeInputs(2, [size](std::mt19937& random) { return size != 0 ? size : random() % 2 ? 56u : 96u; });
}

// What a constructor writes first and last.
void Touch(void* record, unsigned size) {
  auto* words = static_cast<unsigned*>(record);
  words[0] = size;
  words[size / sizeof(unsigned) - 1] = size;
}

// begin() before each frame, get(size) for each record of it.
template <class Begin, class Get>
void RunFrames(benchmark::State& state, Begin begin, Get get) {
  const std::vector<unsigned> sizes = MakeSizes(state);
  for (auto _ : state) {
    begin();
    for (const unsigned size : sizes) {
      void* record = get(size);
      Touch(record, size);
      benchmark::DoNotOptimize(record);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<benchmark::IterationCount>(sizes.size()));
}

void PoolGet(benchmark::State& state) {
  CommonInterfaces::OutputPool pool(kBlock, kBlocks);
  RunFrames(
      state, [&pool] { pool.clear(false); }, [&pool](unsigned size) { return pool.getMem(size); });
}

// One buffer as large as all blocks together, used from its start again in every frame.
void PoolGetPeerMonotonic(benchmark::State& state) {
  std::vector<std::byte> buffer(kBlock * kBlocks);
  std::pmr::monotonic_buffer_resource resource(buffer.data(), buffer.size(),
                                               std::pmr::null_memory_resource());
  RunFrames(
      state, [&resource] { resource.release(); },
      [&resource](unsigned size) { return resource.allocate(size, 8); });
}

void PoolGetPeerHeap(benchmark::State& state) {
  std::vector<void*> frame;
  RunFrames(
      state,
      [&frame] {
        for (void* record : frame) ::operator delete(record);
        frame.clear();
      },
      [&frame](unsigned size) { return frame.emplace_back(::operator new(size)); });
  for (void* record : frame) ::operator delete(record);
}

// An address that grows: what the memory itself costs.
void PoolGetLimit(benchmark::State& state) {
  std::vector<std::byte> buffer(kBlock * kBlocks);
  std::byte* next = nullptr;
  RunFrames(
      state, [&] { next = buffer.data(); },
      [&next](unsigned size) {
        std::byte* const record = next;
        next += size;
        return static_cast<void*>(record);
      });
}

void Sizes(benchmark::internal::Benchmark* benchmark) { benchmark->Arg(56)->Arg(96)->Arg(0); }
BENCHMARK(PoolGet)->Apply(Sizes);
BENCHMARK(PoolGetPeerMonotonic)->Apply(Sizes);
BENCHMARK(PoolGetPeerHeap)->Apply(Sizes);
BENCHMARK(PoolGetLimit)->Apply(Sizes);

}  // namespace
}  // namespace bench
