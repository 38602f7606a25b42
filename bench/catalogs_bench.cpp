// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Look-ups in the tables of the object search, beside a plain bisection of the same table and hash tables.
// Half of the objects asked for are there; as many different ones are asked for as there are.
#include <algorithm>
#include <cstdint>
#include <fstream>
#include <random>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/different_inputs.h"
#include "bench/scratch_file.h"
#include "common_interfaces/flight_objects.h"
#include "common_interfaces/object_articles.h"
#include "utils/bytes.h"
#include "utils/text.h"

#if defined(BENCH_HAS_ABSEIL)
#include <absl/container/flat_hash_map.h>
#include <absl/container/flat_hash_set.h>
#endif

namespace bench {
namespace {

constexpr int kKind = FourCC("star");

struct Article {
  int kind, number, article;
};
bool operator<(const Article& a, const Article& b) {
  return a.kind != b.kind ? a.kind < b.kind : a.number < b.number;
}

// In ascending order, with gaps of different sizes, the way catalogs number what is left of them.
std::vector<int> MakeNumbers(int count) {
  std::mt19937 random(3);
  std::vector<int> numbers;
  int number = 0;
  for (int i = 0; i < count; ++i) numbers.push_back(number += 1 + Below(random, 3));
  return numbers;
}

// Half of them from the table, half from the gaps in it and from beyond it.
std::vector<int> MakeQuestions(int count) {
  const std::vector<int> numbers = MakeNumbers(count);
  const auto make = [&numbers](std::mt19937& random) {
    if (random() % 2 == 0) return numbers[random() % numbers.size()];
    return Below(random, numbers.back() + 1000);
  };
  return MakeInputs(1, make, std::max(kInputs, numbers.size()));
}

std::string Words(const std::vector<int>& values) {
  std::string bytes;
  unsigned char raw[4];
  for (const int value : values) {
    StoreLE32(raw, static_cast<unsigned>(value));
    bytes.append(reinterpret_cast<const char*>(raw), sizeof raw);
  }
  return bytes;
}

std::vector<Article> MakeArticles(int count) {
  std::vector<Article> articles;
  for (const int number : MakeNumbers(count)) articles.push_back({kKind, number, number / 2 + 7});
  return articles;
}

std::string WriteFile(const char* name, const std::string& content) {
  const std::string path = bench::ScratchPath(name);
  std::ofstream(path, std::ios::binary) << content;
  return path;
}

template <class Ask>
void AskAll(benchmark::State& state, Ask ask) {
  RunOver(state, MakeQuestions(static_cast<int>(state.range(0))), ask);
}

void ArticleLookUp(benchmark::State& state) {
  std::vector<int> words;
  for (const Article& article : MakeArticles(static_cast<int>(state.range(0)))) {
    words.insert(words.end(), {article.kind, article.number, article.article});
  }
  const CommonInterfaces::ArticlesInformation articles(WriteFile("articles.bin", Words(words)).c_str());
  AskAll(state, [&articles](int number) { return articles.GetArticleId(kKind, number); });
}

void ArticleLookUpPeer(benchmark::State& state) {
  const std::vector<Article> articles = MakeArticles(static_cast<int>(state.range(0)));
  AskAll(state, [&articles](int number) {
    const auto found = std::lower_bound(articles.begin(), articles.end(), Article{kKind, number, 0});
    return found != articles.end() && found->kind == kKind && found->number == number ? found->article : -1;
  });
}

template <class Map>
void ArticlesInMap(benchmark::State& state) {
  Map articles;
  const std::uint64_t kind = static_cast<std::uint64_t>(kKind) << 32;
  for (const Article& article : MakeArticles(static_cast<int>(state.range(0)))) {
    articles.emplace(kind | static_cast<unsigned>(article.number), article.article);
  }
  AskAll(state, [&articles, kind](int number) {
    const auto found = articles.find(kind | static_cast<unsigned>(number));
    return found != articles.end() ? found->second : -1;
  });
}

void DistanceLookUp(benchmark::State& state) {
  const std::vector<int> numbers = MakeNumbers(static_cast<int>(state.range(0)));
  const std::string table = Words({kKind, static_cast<int>(numbers.size())}) + Words(numbers);
  CommonInterfaces::General3DFlightObjectsList list(WriteFile("distances.bin", table).c_str());
  AskAll(state, [&list](int number) { return int{list.objectInList(kKind, number)}; });
}

void DistanceLookUpPeer(benchmark::State& state) {
  const std::vector<int> numbers = MakeNumbers(static_cast<int>(state.range(0)));
  AskAll(state, [&numbers](int number) {
    const auto found = std::lower_bound(numbers.begin(), numbers.end(), number);
    return int{found != numbers.end() && *found == number};
  });
}

template <class Set>
void NumbersInSet(benchmark::State& state) {
  const std::vector<int> numbers = MakeNumbers(static_cast<int>(state.range(0)));
  const Set set(numbers.begin(), numbers.end());
  AskAll(state, [&set](int number) { return int{set.count(number) != 0}; });
}

// One access to a table of as many bytes as the smallest hash of the numbers would take.
void OneAccess(benchmark::State& state) {
  const std::vector<int> table(static_cast<std::size_t>(2 * state.range(0)), 1);
  AskAll(state, [&table](int number) {
    return table[static_cast<unsigned>(number) * std::uint64_t{2654435769u} % (1ull << 32) * table.size() >>
                 32];
  });
}

void Counts(benchmark::internal::Benchmark* benchmark) { benchmark->Arg(1000)->Arg(1000000); }
BENCHMARK(ArticleLookUp)->Apply(Counts);
BENCHMARK(ArticleLookUpPeer)->Apply(Counts);
BENCHMARK(ArticlesInMap<std::unordered_map<std::uint64_t, int>>)
    ->Name("ArticleLookUpPeerHash")
    ->Apply(Counts);
BENCHMARK(OneAccess)->Name("ArticleLookUpLimit")->Apply(Counts);
BENCHMARK(DistanceLookUp)->Apply(Counts);
BENCHMARK(DistanceLookUpPeer)->Apply(Counts);
BENCHMARK(NumbersInSet<std::unordered_set<int>>)->Name("DistanceLookUpPeerHash")->Apply(Counts);
BENCHMARK(OneAccess)->Name("DistanceLookUpLimit")->Apply(Counts);
#if defined(BENCH_HAS_ABSEIL)
BENCHMARK(ArticlesInMap<absl::flat_hash_map<std::uint64_t, int>>)
    ->Name("ArticleLookUpPeerFlatHash")
    ->Apply(Counts);
BENCHMARK(NumbersInSet<absl::flat_hash_set<int>>)->Name("DistanceLookUpPeerFlatHash")->Apply(Counts);
#endif

}  // namespace
}  // namespace bench
