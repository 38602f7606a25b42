// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Getting and setting values of the container, beside tables that hold values by section and name id.
// Creating and loading are in settings_load_bench.cpp, further peers in settings_keyfile_bench.cpp and
// settings_sqlite_bench.cpp.
#include "bench/settings_subjects.h"
#include "common_interfaces/settings_field.h"

namespace bench {
namespace {

// By section and name id.
void SettingsGet(benchmark::State& state) {
  SettingsData& settings = Container(state);
  RunOver(state, MakeQuestions(state), [&settings](const FieldKey& key) {
    unsigned char value[8];
    settings.GetAtField(key.section, key.nameId, true)->GetData(value);
    benchmark::DoNotOptimize(value);
    return value[0];
  });
}

// By name id alone, in the current section.
void SettingsGetById(benchmark::State& state) {
  SettingsData& settings = Container(state);
  settings.SetCurSection(MakeKey(0, PerSection(state)).section);
  RunOver(state, MakeQuestions(state), [&settings](const FieldKey& key) {
    unsigned char value[8];
    settings.GetField(key.nameId, value);
    benchmark::DoNotOptimize(value);
    return value[0];
  });
}

// What the peers do is the same for both.
void GetFromTable(benchmark::State& state) {
  const Table table = MakeTable(state);
  RunOver(state, MakeQuestions(state), [&table](const FieldKey& key) {
    unsigned char value[8];
    const Values& values = table.find(Join(key))->second;
    std::memcpy(value, values.data(), values.size());
    benchmark::DoNotOptimize(value);
    return value[0];
  });
}

// New values for each question, so that every setting changes something.
void SettingsSet(benchmark::State& state) {
  SettingsData& settings = Container(state);
  std::uint64_t value = 0;
  RunOver(state, MakeQuestions(state), [&](const FieldKey& key) {
    ++value;
    settings.SetFieldElement(key.section, key.nameId, &value, 0);
    return int{SettingsData::GetModifyFlag()};
  });
}

void SettingsSetById(benchmark::State& state) {
  SettingsData& settings = Container(state);
  settings.SetCurSection(MakeKey(0, PerSection(state)).section);
  std::uint64_t value = 0;
  RunOver(state, MakeQuestions(state), [&](const FieldKey& key) {
    ++value;
    settings.SetField(key.nameId, &value);
    return int{SettingsData::GetModifyFlag()};
  });
}

// Whether the value changed, as the container knows too.
bool Replace(Values& values, const void* in) {
  if (std::memcmp(values.data(), in, values.size()) == 0) return false;
  std::memcpy(values.data(), in, values.size());
  return true;
}

void SetInTable(benchmark::State& state) {
  Table table = MakeTable(state);
  std::uint64_t value = 0;
  RunOver(state, MakeQuestions(state), [&](const FieldKey& key) {
    ++value;
    return int{Replace(table.find(Join(key))->second, &value)};
  });
}

BENCHMARK(SettingsGet)->Apply(AllShapes);
BENCHMARK(GetFromTable)->Name("SettingsGetPeer")->Apply(AllShapes);
BENCHMARK(SettingsGetById)->Apply(OneSection);
BENCHMARK(GetFromTable)->Name("SettingsGetByIdPeer")->Apply(OneSection);
BENCHMARK(SettingsSet)->Apply(AllShapes);
BENCHMARK(SetInTable)->Name("SettingsSetPeer")->Apply(AllShapes);
BENCHMARK(SettingsSetById)->Apply(OneSection);
BENCHMARK(SetInTable)->Name("SettingsSetByIdPeer")->Apply(OneSection);

#if defined(BENCH_HAS_ABSEIL)

// No value is longer than this: it stands in the table itself.
struct ShortValue {
  unsigned char bytes[8];
  unsigned size;
};
using FlatTable = absl::flat_hash_map<std::uint64_t, ShortValue>;

FlatTable MakeFlatTable(const benchmark::State& state) {
  FlatTable table;
  for (const FieldKey& key : MakeKeys(state)) {
    const Values values = ToValues(key, key.field);
    ShortValue value{{}, static_cast<unsigned>(values.size())};
    std::memcpy(value.bytes, values.data(), values.size());
    table.emplace(Join(key), value);
  }
  return table;
}

// As many bytes as the value has, without a jump on how many these are.
void CopyShort(void* out, const ShortValue& value) {
  unsigned char rest[8];
  void* const places[] = {rest, out};
  std::memcpy(places[value.size >= 8], value.bytes, 8);
  std::memcpy(places[value.size >= 4], value.bytes, 4);
  std::memcpy(places[value.size >= 2], value.bytes, 2);
  std::memcpy(out, value.bytes, 1);
}

template <class Copy>
void GetFromFlatTable(benchmark::State& state, Copy copy) {
  const FlatTable table = MakeFlatTable(state);
  RunOver(state, MakeQuestions(state), [&](const FieldKey& key) {
    unsigned char value[8];
    copy(value, table.find(Join(key))->second);
    benchmark::DoNotOptimize(value);
    return value[0];
  });
}

void GetFromFlatHash(benchmark::State& state) { GetFromFlatTable(state, CopyShort); }
void GetFromFlatHashPlainly(benchmark::State& state) {
  GetFromFlatTable(state,
                   [](void* out, const ShortValue& value) { std::memcpy(out, value.bytes, value.size); });
}
// All eight bytes, whatever the value has of them.
void GetFromFlatHashBlindly(benchmark::State& state) {
  GetFromFlatTable(state, [](void* out, const ShortValue& value) { std::memcpy(out, value.bytes, 8); });
}

BENCHMARK(GetFromFlatHash)->Name("SettingsGetPeerFlatHash")->Apply(AllShapes);
BENCHMARK(GetFromFlatHash)->Name("SettingsGetByIdPeerFlatHash")->Apply(OneSection);
BENCHMARK(GetFromFlatHashPlainly)->Name("SettingsGetPeerFlatHashPlain")->Apply(AllShapes);
BENCHMARK(GetFromFlatHashPlainly)->Name("SettingsGetByIdPeerFlatHashPlain")->Apply(OneSection);
BENCHMARK(GetFromFlatHashBlindly)->Name("SettingsGetLimit")->Apply(AllShapes);
BENCHMARK(GetFromFlatHashBlindly)->Name("SettingsGetByIdLimit")->Apply(OneSection);

#endif

}  // namespace
}  // namespace bench
