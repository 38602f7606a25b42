// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The string table: loading its file and looking texts up, against a plain hash map filled from the same
// file.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/scratch_file.h"
#include "common_interfaces/string_table.h"
#include "utils/path.h"

namespace {

using CommonInterfaces::QX4Strings;

// Makes the table's file with that many entries and returns its path. Identifiers are 7 apart, in random
// order.
std::string MakeFile(int entries) {
  const std::string path = bench::ScratchPath("qxstrings.txt");
  std::vector<int> order(static_cast<unsigned>(entries));
  for (int i = 0; i < entries; ++i) order[static_cast<unsigned>(i)] = i;
  std::shuffle(order.begin(), order.end(), std::mt19937(3));
  std::ofstream out(path, std::ios::binary);
  for (int i : order) out << i * 7 << "\tText number " << i << " of the table\n";
  out.close();
  ZentharPath::SetRoots(bench::ScratchPath("").c_str(), nullptr);
  return path;
}

void Reload() {
  QX4Strings::StartLocaleUpdate();
  const QX4Strings load;
  QX4Strings::FinishLocaleUpdate();
}

using Table = std::unordered_map<unsigned, std::string>;

Table LoadPeer(const std::string& path) {
  const std::string content = bench::ReadWhole(path);
  Table table;
  for (std::size_t at = 0; at < content.size();) {
    const std::size_t end = content.find('\n', at), tab = content.find('\t', at);
    const auto identifier = static_cast<unsigned>(std::strtoul(content.c_str() + at, nullptr, 10));
    table[identifier] = content.substr(tab + 1, end - tab - 1);
    at = end + 1;
  }
  return table;
}

void StringsLoad(benchmark::State& state) {
  MakeFile(static_cast<int>(state.range(0)));
  for (auto _ : state) Reload();
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void StringsLoadPeer(benchmark::State& state) {
  const std::string path = MakeFile(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(LoadPeer(path).size());
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

std::vector<unsigned> MakeQuestions(int entries) {
  std::mt19937 random(4);
  std::vector<unsigned> identifiers(4096);
  for (unsigned& identifier : identifiers) {
    identifier = static_cast<unsigned>(random() % static_cast<unsigned>(entries)) * 7;
  }
  return identifiers;
}

void StringsLookUp(benchmark::State& state) {
  MakeFile(static_cast<int>(state.range(0)));
  Reload();
  const auto identifiers = MakeQuestions(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    for (unsigned identifier : identifiers) benchmark::DoNotOptimize(QX4Strings::GetString(identifier, true));
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(identifiers.size()));
}

void StringsLookUpPeer(benchmark::State& state) {
  const Table table = LoadPeer(MakeFile(static_cast<int>(state.range(0))));
  const auto identifiers = MakeQuestions(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    for (unsigned identifier : identifiers) benchmark::DoNotOptimize(table.find(identifier)->second.c_str());
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(identifiers.size()));
}

BENCHMARK(StringsLoad)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(StringsLoadPeer)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(StringsLookUp)->Arg(10000)->Arg(100000);
BENCHMARK(StringsLookUpPeer)->Arg(10000)->Arg(100000);

}  // namespace
