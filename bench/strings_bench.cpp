// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The string table: loading its file and looking texts up, against a sorted vector and hash maps made from
// the same file, read whole.
#include <algorithm>
#include <cstring>
#include <fstream>
#include <string>
#include <unordered_map>
#include <utility>

#include <benchmark/benchmark.h>

#include "bench/different_inputs.h"
#include "bench/scratch_file.h"
#include "common_interfaces/string_table.h"
#include "utils/path.h"

#if defined(BENCH_HAS_ABSEIL)
#include <absl/container/flat_hash_map.h>
#endif

namespace bench {
namespace {

using CommonInterfaces::QX4Strings;

// Identifiers in ascending order, with gaps.
std::vector<unsigned> MakeIdentifiers(const benchmark::State& state) {
  unsigned identifier = 0;
  return MakeInputs(
      3,
      [&identifier](std::mt19937& random) {
        return identifier += 1 + static_cast<unsigned>(Below(random, 13));
      },
      static_cast<std::size_t>(state.range(0)));
}

// Makes the table's file and returns its path: texts of 1 to 60 characters, one in twenty with an escape, one
// in ten with a translator's note, in random order.
std::string MakeFile(const benchmark::State& state) {
  const std::string path = ScratchPath("qxstrings.txt");
  std::vector<unsigned> identifiers = MakeIdentifiers(state);
  std::mt19937 random(4);
  std::shuffle(identifiers.begin(), identifiers.end(), random);
  std::ofstream out(path, std::ios::binary);
  for (const unsigned identifier : identifiers) {
    std::string text;
    for (int length = 1 + Below(random, 60); length > 0; --length)
      text += static_cast<char>(
          Below(random, 6) == 0 && length > 1 && !text.empty() ? ' ' : 'a' + Below(random, 26));
    if (Below(random, 20) == 0) text += "\\n";
    if (Below(random, 10) == 0) text += "\ta note";
    out << identifier << '\t' << text << '\n';
  }
  out.close();
  ZentharPath::SetRoots(ScratchPath("").c_str(), nullptr);
  return path;
}

void Reload() {
  QX4Strings::StartLocaleUpdate();
  const QX4Strings load;
  QX4Strings::FinishLocaleUpdate();
}

// Cuts the file up in place and hands each identifier with its text to add(identifier, text). The peers
// resolve no escapes, trim nothing and look for no duplicates.
template <class Add>
void ForEachText(std::string& file, Add add) {
  char* at = file.data();
  char* const end = at + file.size();
  while (at < end) {
    char* const lineEnd = static_cast<char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
    unsigned identifier = 0;
    for (; *at != '\t'; ++at) identifier = 10 * identifier + static_cast<unsigned>(*at - '0');
    char* const text = ++at;
    auto* const note = static_cast<char*>(std::memchr(text, '\t', static_cast<std::size_t>(lineEnd - text)));
    *(note ? note : lineEnd) = '\0';
    add(identifier, text);
    at = lineEnd + 1;
  }
}

struct Sorted {
  std::string file;
  std::vector<std::pair<unsigned, const char*>> texts;

  explicit Sorted(const std::string& path) : file(ReadWhole(path)) {
    ForEachText(file,
                [this](unsigned identifier, const char* text) { texts.emplace_back(identifier, text); });
    std::sort(texts.begin(), texts.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  }
  const char* Find(unsigned identifier) const {
    const auto less = [](const auto& entry, unsigned wanted) { return entry.first < wanted; };
    return std::lower_bound(texts.begin(), texts.end(), identifier, less)->second;
  }
};

template <class Map>
struct Hashed {
  std::string file;
  Map texts;

  explicit Hashed(const std::string& path) : file(ReadWhole(path)) {
    ForEachText(file, [this](unsigned identifier, const char* text) { texts[identifier] = text; });
  }
  const char* Find(unsigned identifier) const { return texts.find(identifier)->second; }
};
using InUnorderedMap = Hashed<std::unordered_map<unsigned, const char*>>;

void StringsLoad(benchmark::State& state) {
  MakeFile(state);
  for (auto _ : state) Reload();
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

template <class Table>
void LoadInto(benchmark::State& state) {
  const std::string path = MakeFile(state);
  for (auto _ : state) benchmark::DoNotOptimize(Table(path).texts.size());
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void StringsLoadLimit(benchmark::State& state) {
  const std::string path = MakeFile(state);
  for (auto _ : state) benchmark::DoNotOptimize(ReadWhole(path).size());
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

std::vector<unsigned> MakeQuestions(const benchmark::State& state) {
  const std::vector<unsigned> identifiers = MakeIdentifiers(state);
  return MakeInputs(
      5, [&identifiers](std::mt19937& random) { return identifiers[random() % identifiers.size()]; });
}

void StringsLookUp(benchmark::State& state) {
  MakeFile(state);
  Reload();
  RunOver(state, MakeQuestions(state),
          [](unsigned identifier) { return QX4Strings::GetString(identifier, true); });
}

template <class Table>
void LookUpIn(benchmark::State& state) {
  const Table table(MakeFile(state));
  RunOver(state, MakeQuestions(state), [&table](unsigned identifier) { return table.Find(identifier); });
}

void Sizes(benchmark::internal::Benchmark* benchmark) { benchmark->Arg(1000)->Arg(10000)->Arg(100000); }
void LoadSizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}
BENCHMARK(StringsLoad)->Apply(LoadSizes);
BENCHMARK(LoadInto<Sorted>)->Name("StringsLoadPeerSorted")->Apply(LoadSizes);
BENCHMARK(LoadInto<InUnorderedMap>)->Name("StringsLoadPeerHash")->Apply(LoadSizes);
BENCHMARK(StringsLoadLimit)->Apply(LoadSizes);
BENCHMARK(StringsLookUp)->Apply(Sizes);
BENCHMARK(LookUpIn<Sorted>)->Name("StringsLookUpPeerSorted")->Apply(Sizes);
BENCHMARK(LookUpIn<InUnorderedMap>)->Name("StringsLookUpPeerHash")->Apply(Sizes);
#if defined(BENCH_HAS_ABSEIL)
using InFlatMap = Hashed<absl::flat_hash_map<unsigned, const char*>>;
BENCHMARK(LoadInto<InFlatMap>)->Name("StringsLoadPeerFlatHash")->Apply(LoadSizes);
BENCHMARK(LookUpIn<InFlatMap>)->Name("StringsLookUpPeerFlatHash")->Apply(Sizes);
#endif

}  // namespace
}  // namespace bench
