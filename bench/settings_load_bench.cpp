// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Making the fields of a container and loading them from a file, beside tables of their records.
#include <cstdio>

#include "bench/scratch_file.h"
#include "bench/settings_subjects.h"
#include "common_interfaces/settings_field.h"
#include "utils/bytes.h"
#include "utils/path.h"

namespace bench {
namespace {

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
    std::uint64_t value = 0;
    settings.GetAtField(key.section, key.nameId, true)->GetData(&value);
    benchmark::DoNotOptimize(value);
  }
  CountFields(state);
}

// How many bytes the records of a block take, with their lengths.
std::size_t RecordsSize(const benchmark::State& state) {
  std::size_t size = 0;
  for (const FieldKey& key : MakeKeys(state)) size += 4 + MakeRecord(key, 0).size();
  return size;
}

// The records of the last block, which end the file: each is checked against what is left and handed to
// add(key, bytes, size).
template <class Add>
void ForEachRecord(const std::string& file, std::size_t recordsSize, Add add) {
  const auto* bytes = reinterpret_cast<const unsigned char*>(file.data());
  std::size_t place = file.size() - recordsSize;
  while (file.size() - place >= 24) {
    const unsigned length = LoadLE32(bytes + place);
    const unsigned char* record = bytes + place + 4;
    if (length < 20 || length > file.size() - place - 4) break;
    add(std::uint64_t{LoadLE32(record)} << 32 | LoadLE32(record + 4), record, length);
    place += 4 + length;
  }
}

// Records of their own.
void LoadIntoTable(benchmark::State& state, bool own) {
  const std::string path = MakeFile(state, own);
  const std::size_t size = RecordsSize(state);
  for (auto _ : state) {
    const std::string file = ReadWhole(path);
    Table table;
    ForEachRecord(file, size, [&table](std::uint64_t key, const unsigned char* record, unsigned length) {
      table.try_emplace(key, record, record + length);
    });
    benchmark::DoNotOptimize(table.size());
  }
  CountFields(state);
}

void SettingsLoad(benchmark::State& state) { Load(state, false); }
void SettingsLoadPeer(benchmark::State& state) { LoadIntoTable(state, false); }
void SettingsLoadOwn(benchmark::State& state) { Load(state, true); }
void SettingsLoadOwnPeer(benchmark::State& state) { LoadIntoTable(state, true); }
// The bytes alone.
void SettingsLoadLimit(benchmark::State& state) {
  const std::string path = MakeFile(state, false);
  for (auto _ : state) benchmark::DoNotOptimize(ReadWhole(path).size());
  CountFields(state);
}

BENCHMARK(SettingsCreate)->Apply(Loads);
BENCHMARK(SettingsCreatePeer)->Apply(Loads);
BENCHMARK(SettingsLoad)->Apply(Loads);
BENCHMARK(SettingsLoadPeer)->Apply(Loads);
BENCHMARK(SettingsLoadLimit)->Apply(Loads);
BENCHMARK(SettingsLoadOwn)->Apply(Loads);
BENCHMARK(SettingsLoadOwnPeer)->Apply(Loads);

#if defined(BENCH_HAS_ABSEIL)
// Records that stay among the bytes of the file.
void SettingsLoadPeerFlatHash(benchmark::State& state) {
  const std::string path = MakeFile(state, false);
  const std::size_t size = RecordsSize(state);
  for (auto _ : state) {
    const std::string file = ReadWhole(path);
    absl::flat_hash_map<std::uint64_t, const unsigned char*> table;
    ForEachRecord(file, size, [&table](std::uint64_t key, const unsigned char* record, unsigned) {
      table.try_emplace(key, record);
    });
    benchmark::DoNotOptimize(table.size());
  }
  CountFields(state);
}
BENCHMARK(SettingsLoadPeerFlatHash)->Apply(Loads);
#endif

}  // namespace
}  // namespace bench
