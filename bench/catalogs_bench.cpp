// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Look-ups in the tables of the object search, beside a plain bisection of the same table and a hash table.
// Half of the objects asked for are there.
#include <algorithm>
#include <cstdint>
#include <fstream>
#include <random>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/scratch_file.h"
#include "common_interfaces/flight_objects.h"
#include "common_interfaces/object_articles.h"
#include "utils/bytes.h"
#include "utils/text.h"

namespace {

constexpr int kKind = FourCC("star");
constexpr int kQuestions = 1 << 16;  // more than the caches and the branch predictor keep in mind

struct Article {
  int kind, number, article;
};
bool operator<(const Article& a, const Article& b) {
  return a.kind != b.kind ? a.kind < b.kind : a.number < b.number;
}

std::vector<int> MakeNumbers(int count) {
  std::vector<int> numbers;
  for (int i = 0; i < count; ++i) numbers.push_back(i * 2);
  return numbers;
}

std::vector<int> MakeQuestions(int count) {
  std::mt19937 random(1);
  std::uniform_int_distribution<int> any(0, count * 2 - 1);
  std::vector<int> questions;
  for (int i = 0; i < kQuestions; ++i) questions.push_back(any(random));
  return questions;
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
  for (const int number : MakeNumbers(count)) articles.push_back({kKind, number, number / 2});
  return articles;
}

std::string WriteFile(const char* name, const std::string& content) {
  const std::string path = bench::ScratchPath(name);
  std::ofstream(path, std::ios::binary) << content;
  return path;
}

// Asks all questions again and again.
template <class Ask>
void AskAll(benchmark::State& state, Ask ask) {
  const std::vector<int> questions = MakeQuestions(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    for (const int number : questions) benchmark::DoNotOptimize(ask(number));
  }
  state.SetItemsProcessed(state.iterations() * kQuestions);
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

void ArticleLookUpPeerHash(benchmark::State& state) {
  std::unordered_map<std::uint64_t, int> articles;
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
  AskAll(state, [&list](int number) { return list.objectInList(kKind, number); });
}

void DistanceLookUpPeer(benchmark::State& state) {
  const std::vector<int> numbers = MakeNumbers(static_cast<int>(state.range(0)));
  AskAll(state, [&numbers](int number) {
    const auto found = std::lower_bound(numbers.begin(), numbers.end(), number);
    return found != numbers.end() && *found == number;
  });
}

void DistanceLookUpPeerHash(benchmark::State& state) {
  const std::vector<int> numbers = MakeNumbers(static_cast<int>(state.range(0)));
  const std::unordered_set<int> set(numbers.begin(), numbers.end());
  AskAll(state, [&set](int number) { return set.count(number) != 0; });
}

BENCHMARK(ArticleLookUp)->Arg(1000)->Arg(1000000);
BENCHMARK(ArticleLookUpPeer)->Arg(1000)->Arg(1000000);
BENCHMARK(ArticleLookUpPeerHash)->Arg(1000)->Arg(1000000);
BENCHMARK(DistanceLookUp)->Arg(1000)->Arg(1000000);
BENCHMARK(DistanceLookUpPeer)->Arg(1000)->Arg(1000000);
BENCHMARK(DistanceLookUpPeerHash)->Arg(1000)->Arg(1000000);

}  // namespace
