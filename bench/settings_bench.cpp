// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The settings container beside a std::unordered_map that holds values of any length, as fields do. Further
// peers are in settings_keyfile_bench.cpp and settings_sqlite_bench.cpp.
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <unordered_map>
#include <utility>

#include "bench/scratch_file.h"
#include "bench/settings_work.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "utils/bytes.h"
#include "utils/path.h"

namespace bench {
namespace {

using CommonInterfaces::FieldData;
using CommonInterfaces::SettingsData;

constexpr unsigned kOwner = 7;

// Adds the fields section by section, or one to each section in turn: then nearly all go into the middle.
void Fill(SettingsData& settings, const std::vector<FieldKey>& keys, int perSection, bool inTurn) {
  const int count = static_cast<int>(keys.size());
  const int step = inTurn ? perSection : 1;
  for (int start = 0; start < step; ++start) {
    for (int i = start; i < count; i += step) {
      const auto record = MakeRecord(keys[static_cast<std::size_t>(i)], i);
      settings.CreateField(reinterpret_cast<const FieldData*>(record.data()), static_cast<int>(record.size()),
                           true);
    }
  }
}

// A container of that shape, made once.
SettingsData& Container(const benchmark::State& state) {
  static std::map<std::pair<int, int>, std::unique_ptr<SettingsData>> s_Made;
  auto& made = s_Made[{FieldCount(state), PerSection(state)}];
  if (made == nullptr) {
    made = std::make_unique<SettingsData>(SettingsData::kDefaultsTag, kOwner, "absent.data");
    Fill(*made, MakeKeys(state), PerSection(state), false);
  }
  return *made;
}

using Values = std::vector<unsigned char>;
using Table = std::unordered_map<std::uint64_t, Values>;

std::uint64_t Join(const FieldKey& key) {
  return std::uint64_t{key.section} << 32 | static_cast<unsigned>(key.nameId);
}

Values ToValues(int value) {
  Values bytes(sizeof value);
  std::memcpy(bytes.data(), &value, sizeof value);
  return bytes;
}

Table MakeTable(const benchmark::State& state) {
  Table table;
  int value = 0;
  for (const FieldKey& key : MakeKeys(state)) table.emplace(Join(key), ToValues(value++));
  return table;
}

// Whether the value changed, as the container knows too.
bool Replace(Values& values, const void* in) {
  if (std::memcmp(values.data(), in, values.size()) == 0) return false;
  std::memcpy(values.data(), in, values.size());
  return true;
}

// By section and name id.
void SettingsGet(benchmark::State& state) {
  SettingsData& settings = Container(state);
  const auto keys = MakeQuestions(state);
  for (auto _ : state) {
    for (const FieldKey& key : keys) {
      int value = 0;
      settings.GetAtField(key.section, key.nameId, true)->GetData(&value);
      benchmark::DoNotOptimize(value);
    }
  }
  CountQuestions(state);
}

// What the peers do with the questions, whichever they are.
void GetFromTable(benchmark::State& state, const std::vector<FieldKey>& keys) {
  const Table table = MakeTable(state);
  for (auto _ : state) {
    for (const FieldKey& key : keys) {
      int value = 0;
      const Values& values = table.find(Join(key))->second;
      std::memcpy(&value, values.data(), values.size());
      benchmark::DoNotOptimize(value);
    }
  }
  CountQuestions(state);
}

void SetInTable(benchmark::State& state, const std::vector<FieldKey>& keys) {
  Table table = MakeTable(state);
  int value = 0;
  bool modified = false;
  for (auto _ : state) {
    ++value;
    for (const FieldKey& key : keys) {
      modified = Replace(table.find(Join(key))->second, &value);
      benchmark::DoNotOptimize(modified);
    }
  }
  CountQuestions(state);
}

void SettingsGetPeer(benchmark::State& state) { GetFromTable(state, MakeQuestions(state)); }

void SettingsSet(benchmark::State& state) {
  SettingsData& settings = Container(state);
  const auto keys = MakeQuestions(state);
  int value = 0;
  for (auto _ : state) {
    ++value;
    for (const FieldKey& key : keys) settings.SetFieldElement(key.section, key.nameId, &value, 0);
  }
  CountQuestions(state);
}

void SettingsSetPeer(benchmark::State& state) { SetInTable(state, MakeQuestions(state)); }

// By name id alone, in the current section.
std::vector<FieldKey> QuestionsOfOneSection(const benchmark::State& state, SettingsData& settings) {
  auto keys = MakeQuestions(state);
  settings.SetCurSection(keys.front().section);
  const auto in = static_cast<int>(keys.front().section - 0x73000000u) * PerSection(state);
  std::mt19937 random(6);
  for (FieldKey& key : keys)
    key = MakeKey(in + static_cast<int>(random() % static_cast<unsigned>(PerSection(state))),
                  PerSection(state));
  return keys;
}

void SettingsGetById(benchmark::State& state) {
  SettingsData& settings = Container(state);
  const auto keys = QuestionsOfOneSection(state, settings);
  for (auto _ : state) {
    for (const FieldKey& key : keys) {
      int value = 0;
      settings.GetField(key.nameId, &value);
      benchmark::DoNotOptimize(value);
    }
  }
  CountQuestions(state);
}

void SettingsGetByIdPeer(benchmark::State& state) {
  GetFromTable(state, QuestionsOfOneSection(state, Container(state)));
}

void SettingsSetById(benchmark::State& state) {
  SettingsData& settings = Container(state);
  const auto keys = QuestionsOfOneSection(state, settings);
  int value = 0;
  for (auto _ : state) {
    ++value;
    for (const FieldKey& key : keys) settings.SetField(key.nameId, &value);
  }
  CountQuestions(state);
}

void SettingsSetByIdPeer(benchmark::State& state) {
  SetInTable(state, QuestionsOfOneSection(state, Container(state)));
}

// Making all fields, one to each section in turn.
void SettingsCreate(benchmark::State& state) {
  const auto keys = MakeKeys(state);
  for (auto _ : state) {
    SettingsData settings(1, kOwner, "absent.data");
    Fill(settings, keys, PerSection(state), true);
    benchmark::DoNotOptimize(settings.GetFieldAt(0));
  }
  CountFields(state);
}

void SettingsCreatePeer(benchmark::State& state) {
  const auto keys = MakeKeys(state);
  for (auto _ : state) {
    Table table;
    for (const FieldKey& key : keys) {
      const auto record = MakeRecord(key, 1);
      table.try_emplace(Join(key), record.begin(), record.end());
    }
    benchmark::DoNotOptimize(table.size());
  }
  CountFields(state);
}

// A file with a block of defaults; with `own` also one of the container's own, which is merged into it.
std::string MakeFile(const benchmark::State& state, bool own) {
  const std::string path = ScratchPath(own ? "own.data" : "defaults.data");
  ZentharPath::SetRoots(nullptr, ScratchPath("").c_str());
  std::remove(path.c_str());
  SettingsData& settings = Container(state);
  settings.Write(path.c_str());
  if (own) {
    settings.SetID(1);
    settings.Write(path.c_str());
    settings.SetID(SettingsData::kDefaultsTag);
  }
  return path;
}

// Into a new container, until its first value is there.
void Load(benchmark::State& state, bool own) {
  const std::string path = MakeFile(state, own);
  const FieldKey key = MakeKey(1, PerSection(state));
  for (auto _ : state) {
    SettingsData settings(1, kOwner, path.c_str());
    if (!settings.Read(own ? path.c_str() : nullptr)) state.SkipWithError("the settings file cannot be read");
    int value = 0;
    settings.GetAtField(key.section, key.nameId, true)->GetData(&value);
    benchmark::DoNotOptimize(value);
  }
  CountFields(state);
}

// The last block of the file, each field checked against what is left, into a table.
void LoadPeer(benchmark::State& state, bool own) {
  const std::string path = MakeFile(state, own);
  const std::size_t fieldSize = 4 + MakeRecord(MakeKey(0, 1), 0).size();
  for (auto _ : state) {
    const std::string file = ReadWhole(path);
    const auto* bytes = reinterpret_cast<const unsigned char*>(file.data());
    Table table;
    std::size_t place = file.size() - static_cast<std::size_t>(state.range(0)) * fieldSize;
    while (file.size() - place >= fieldSize) {
      const unsigned length = LoadLE32(bytes + place);
      const unsigned char* record = bytes + place + 4;
      if (length > file.size() - place - 4) break;
      table.try_emplace(std::uint64_t{LoadLE32(record)} << 32 | LoadLE32(record + 4), record,
                        record + length);
      place += 4 + length;
    }
    benchmark::DoNotOptimize(table.size());
  }
  CountFields(state);
}

void SettingsLoad(benchmark::State& state) { Load(state, false); }
void SettingsLoadPeer(benchmark::State& state) { LoadPeer(state, false); }
void SettingsLoadOwn(benchmark::State& state) { Load(state, true); }
void SettingsLoadOwnPeer(benchmark::State& state) { LoadPeer(state, true); }

BENCHMARK(SettingsGet)->Apply(AllShapes);
BENCHMARK(SettingsGetPeer)->Apply(AllShapes);
BENCHMARK(SettingsGetById)->Apply(AllShapes);
BENCHMARK(SettingsGetByIdPeer)->Apply(AllShapes);
BENCHMARK(SettingsSet)->Apply(AllShapes);
BENCHMARK(SettingsSetPeer)->Apply(AllShapes);
BENCHMARK(SettingsSetById)->Apply(AllShapes);
BENCHMARK(SettingsSetByIdPeer)->Apply(AllShapes);
BENCHMARK(SettingsCreate)->Apply(Loads);
BENCHMARK(SettingsCreatePeer)->Apply(Loads);
BENCHMARK(SettingsLoad)->Apply(Loads);
BENCHMARK(SettingsLoadPeer)->Apply(Loads);
BENCHMARK(SettingsLoadOwn)->Apply(Loads);
BENCHMARK(SettingsLoadOwnPeer)->Apply(Loads);

}  // namespace
}  // namespace bench
