// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The work that the settings container and its peers do: fields of one number each, of all eight types, in
// sections, found by section and name id.
#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/different_inputs.h"
#include "common_interfaces/field_data.h"
#include "utils/text.h"

namespace bench {

struct FieldKey {
  unsigned section;
  int nameId;
  int field;  // counted from 0
};

inline std::string NameOf(int field) { return "Field" + std::to_string(field); }

inline FieldKey MakeKey(int field, int perSection) {
  return {0x73000000u + static_cast<unsigned>(field / perSection), GetUniqueID(NameOf(field).c_str()), field};
}

// The arguments of every subject: how many fields, and how many of them a section has.
inline int FieldCount(const benchmark::State& state) { return static_cast<int>(state.range(0)); }
inline int PerSection(const benchmark::State& state) { return static_cast<int>(state.range(1)); }

inline std::vector<FieldKey> MakeKeys(const benchmark::State& state) {
  std::vector<FieldKey> keys;
  for (int i = 0; i < FieldCount(state); ++i) keys.push_back(MakeKey(i, PerSection(state)));
  return keys;
}

// Fields to ask for, drawn from all.
inline std::vector<FieldKey> MakeQuestions(const benchmark::State& state) {
  const auto keys = MakeKeys(state);
  return MakeInputs(5, [&keys](std::mt19937& random) { return keys[random() % keys.size()]; });
}

// Type codes 0 to 7 in an order that nobody sees through; the same field has always the same.
inline unsigned TypeOf(int field) { return static_cast<unsigned>(field) * 2654435761u >> 29; }
inline unsigned WidthOf(int field) { return CommonInterfaces::FieldElementWidth(TypeOf(field)); }

inline std::vector<unsigned char> MakeRecord(const FieldKey& key, int value) {
  CommonInterfaces::FieldData header{};
  header.section = key.section;
  header.nameId = key.nameId;
  header.type = static_cast<unsigned char>(TypeOf(key.field));
  header.size = 1;
  header.compareStatus = 1;
  header.querySection = CommonInterfaces::kOwnQuerySection;
  const unsigned width = WidthOf(key.field);
  std::vector<unsigned char> record(CommonInterfaces::kFieldHeaderSize + width);
  std::memcpy(record.data(), &header, CommonInterfaces::kFieldHeaderSize);
  std::memcpy(record.data() + CommonInterfaces::kFieldHeaderSize, &value, std::min(width, 4u));
  return record;
}

inline void CountFields(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

// 200 and 20,000 fields in sections of 100, and 20,000 in one.
inline void AllShapes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Args({200, 100})->Args({20000, 100})->Args({20000, 20000});
}
// The same in one section: what is found by name id alone.
inline void OneSection(benchmark::internal::Benchmark* benchmark) {
  benchmark->Args({200, 200})->Args({20000, 20000});
}
inline void Loads(benchmark::internal::Benchmark* benchmark) {
  benchmark->Args({200, 100})->Args({20000, 100})->Unit(benchmark::kMicrosecond);
}

}  // namespace bench
