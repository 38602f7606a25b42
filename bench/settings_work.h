// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The work that the settings container and its peers do: fields of one 32-bit number each, in sections, found
// by section and name id.
#pragma once

#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "common_interfaces/field_data.h"
#include "utils/text.h"

namespace bench {

struct FieldKey {
  unsigned section;
  int nameId;
  std::string sectionText, name;  // for peers that know fields by texts
};

inline FieldKey MakeKey(int field, int perSection) {
  const auto section = 0x73000000u + static_cast<unsigned>(field / perSection);
  std::string name = "Field" + std::to_string(field);
  const int nameId = GetUniqueID(name.c_str());
  return {section, nameId, std::to_string(section), std::move(name)};
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
  std::mt19937 random(5);
  std::vector<FieldKey> keys;
  for (int i = 0; i < 512; ++i)
    keys.push_back(
        MakeKey(static_cast<int>(random() % static_cast<unsigned>(FieldCount(state))), PerSection(state)));
  return keys;
}

inline std::vector<unsigned char> MakeRecord(const FieldKey& key, int value) {
  CommonInterfaces::FieldData header{};
  header.section = key.section;
  header.nameId = key.nameId;
  header.type = CommonInterfaces::kFieldInt32;
  header.size = 1;
  header.compareStatus = 1;
  header.querySection = CommonInterfaces::kOwnQuerySection;
  std::vector<unsigned char> record(CommonInterfaces::kFieldHeaderSize + sizeof value);
  std::memcpy(record.data(), &header, CommonInterfaces::kFieldHeaderSize);
  std::memcpy(record.data() + CommonInterfaces::kFieldHeaderSize, &value, sizeof value);
  return record;
}

inline void CountQuestions(benchmark::State& state) { state.SetItemsProcessed(state.iterations() * 512); }
inline void CountFields(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

// 200 and 20,000 fields in sections of 100, and 20,000 in one.
inline void AllShapes(benchmark::internal::Benchmark* benchmark) {
  benchmark->Args({200, 100})->Args({20000, 100})->Args({20000, 20000});
}
inline void Loads(benchmark::internal::Benchmark* benchmark) {
  benchmark->Args({200, 100})->Args({20000, 100})->Unit(benchmark::kMicrosecond);
}

}  // namespace bench
