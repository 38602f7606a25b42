// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The settings container: getting, setting and loading. The first argument is the number of fields, the second how
// many of them a section has; look-ups walk the sections and then the fields of one section.
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/scratch_file.h"
#include "common_interfaces/field_data.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "utils/path.h"
#include "utils/text.h"

namespace {

using CommonInterfaces::FieldData;
using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

constexpr unsigned kOwner = 7;

struct Key {
  unsigned section;
  int nameId;
};

Key MakeKey(int field, int perSection) {
  const std::string name = "Field" + std::to_string(field);
  return {0x73000000u + static_cast<unsigned>(field / perSection), GetUniqueID(name.c_str())};
}

// One int field.
std::vector<unsigned char> MakeRecord(const Key& key, int value) {
  FieldData header{};
  header.section = key.section;
  header.nameId = key.nameId;
  header.type = 4;
  header.size = 1;
  header.compareStatus = 1;
  header.querySection = CommonInterfaces::kOwnQuerySection;
  std::vector<unsigned char> record(CommonInterfaces::kFieldHeaderSize + sizeof value);
  std::memcpy(record.data(), &header, CommonInterfaces::kFieldHeaderSize);
  std::memcpy(record.data() + CommonInterfaces::kFieldHeaderSize, &value, sizeof value);
  return record;
}

// A container of that shape, made once: adding 20,000 fields takes longer than most measurements.
SettingsData& Container(int fields, int perSection) {
  static std::map<std::pair<int, int>, std::unique_ptr<SettingsData>> s_Made;
  auto& made = s_Made[{fields, perSection}];
  if (made == nullptr) {
    made = std::make_unique<SettingsData>(SettingsData::kDefaultsTag, kOwner, "absent.data");
    made->Reserve(fields);
    for (int i = 0; i < fields; ++i) {
      const auto record = MakeRecord(MakeKey(i, perSection), i);
      made->CreateField(reinterpret_cast<const FieldData*>(record.data()), static_cast<int>(record.size()),
                        true);
    }
  }
  return *made;
}

std::vector<Key> MakeQuestions(const benchmark::State& state) {
  const int fields = static_cast<int>(state.range(0)), perSection = static_cast<int>(state.range(1));
  std::mt19937 random(5);
  std::vector<Key> keys;
  for (int i = 0; i < 512; ++i) {
    keys.push_back(MakeKey(static_cast<int>(random() % static_cast<unsigned>(fields)), perSection));
  }
  return keys;
}

unsigned long long Join(const Key& key) {
  return static_cast<unsigned long long>(key.section) << 32 | static_cast<unsigned>(key.nameId);
}

using Table = std::unordered_map<unsigned long long, int>;

Table MakeTable(const benchmark::State& state) {
  Table table;
  for (int i = 0; i < state.range(0); ++i) table[Join(MakeKey(i, static_cast<int>(state.range(1))))] = i;
  return table;
}

void SettingsGet(benchmark::State& state) {
  SettingsData& settings = Container(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  const auto keys = MakeQuestions(state);
  for (auto _ : state) {
    for (const Key& key : keys) {
      int value = 0;
      settings.GetAtField(key.section, key.nameId, true)->GetElement(&value, 0);
      benchmark::DoNotOptimize(value);
    }
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(keys.size()));
}

void SettingsGetPeer(benchmark::State& state) {
  const Table table = MakeTable(state);
  const auto keys = MakeQuestions(state);
  for (auto _ : state) {
    for (const Key& key : keys) benchmark::DoNotOptimize(table.find(Join(key))->second);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(keys.size()));
}

void SettingsSet(benchmark::State& state) {
  SettingsData& settings = Container(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  const auto keys = MakeQuestions(state);
  int value = 0;
  for (auto _ : state) {
    ++value;
    for (const Key& key : keys) settings.SetFieldElement(key.section, key.nameId, &value, 0);
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(keys.size()));
}

void SettingsSetPeer(benchmark::State& state) {
  Table table = MakeTable(state);
  const auto keys = MakeQuestions(state);
  int value = 0;
  for (auto _ : state) {
    ++value;
    for (const Key& key : keys) table.find(Join(key))->second = value;
    benchmark::ClobberMemory();
  }
  state.SetItemsProcessed(state.iterations() * static_cast<long>(keys.size()));
}

// A file with a block of defaults; with `own` also one of the container's own, which is merged into it.
std::string MakeFile(const benchmark::State& state, bool own) {
  const std::string path = bench::ScratchPath(own ? "own.data" : "defaults.data");
  ZentharPath::SetRoots(nullptr, bench::ScratchPath("").c_str());
  std::remove(path.c_str());
  SettingsData& settings = Container(static_cast<int>(state.range(0)), static_cast<int>(state.range(1)));
  settings.Write(path.c_str());
  if (own) {
    settings.SetID(1);
    settings.Write(path.c_str());
    settings.SetID(SettingsData::kDefaultsTag);
  }
  return path;
}

void Load(benchmark::State& state, bool own) {
  const std::string path = MakeFile(state, own);
  SettingsData settings(1, kOwner, path.c_str());
  for (auto _ : state) {
    if (!settings.Read(own ? path.c_str() : nullptr)) state.SkipWithError("the settings file cannot be read");
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void LoadPeer(benchmark::State& state, bool own) {
  const std::string path = MakeFile(state, own);
  for (auto _ : state) benchmark::DoNotOptimize(bench::ReadWhole(path).size());
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void SettingsLoadDefaults(benchmark::State& state) { Load(state, false); }
void SettingsLoadDefaultsPeer(benchmark::State& state) { LoadPeer(state, false); }
void SettingsLoadOwn(benchmark::State& state) { Load(state, true); }
void SettingsLoadOwnPeer(benchmark::State& state) { LoadPeer(state, true); }

void Shapes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Args({200, 100})->Args({20000, 100})->Args({20000, 20000});
}

BENCHMARK(SettingsGet)->Apply(Shapes);
BENCHMARK(SettingsGetPeer)->Apply(Shapes);
BENCHMARK(SettingsSet)->Apply(Shapes);
BENCHMARK(SettingsSetPeer)->Apply(Shapes);
BENCHMARK(SettingsLoadDefaults)->Args({20000, 100})->Unit(benchmark::kMillisecond);
BENCHMARK(SettingsLoadDefaultsPeer)->Args({20000, 100})->Unit(benchmark::kMillisecond);
BENCHMARK(SettingsLoadOwn)->Args({20000, 100})->Unit(benchmark::kMillisecond);
BENCHMARK(SettingsLoadOwnPeer)->Args({20000, 100})->Unit(benchmark::kMillisecond);

}  // namespace
