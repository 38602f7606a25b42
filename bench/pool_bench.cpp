// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A frame's records: the pool against the general heap.
#include <new>
#include <vector>

#include <benchmark/benchmark.h>

#include "common_interfaces/object_outputs.h"
#include "common_interfaces/output_pool.h"

namespace {

constexpr unsigned kRecordSize = sizeof(CommonInterfaces::StarOutput);

void PoolGet(benchmark::State& state) {
  const auto records = static_cast<unsigned>(state.range(0));
  CommonInterfaces::OutputPool pool(1 << 20, 16);
  for (auto _ : state) {
    pool.clear(false);
    for (unsigned i = 0; i < records; ++i) benchmark::DoNotOptimize(pool.getMem(kRecordSize));
  }
  state.SetItemsProcessed(state.iterations() * records);
}

void PoolGetPeer(benchmark::State& state) {
  const auto records = static_cast<unsigned>(state.range(0));
  std::vector<void*> frame(records);
  for (auto _ : state) {
    for (void*& record : frame) benchmark::DoNotOptimize(record = ::operator new(kRecordSize));
    for (void* record : frame) ::operator delete(record);
  }
  state.SetItemsProcessed(state.iterations() * records);
}

BENCHMARK(PoolGet)->Arg(1000)->Arg(50000);
BENCHMARK(PoolGetPeer)->Arg(1000)->Arg(50000);

}  // namespace
