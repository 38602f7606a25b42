// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The settings container and its peers among the tables, filled with the fields of settings_work.h.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <unordered_map>
#include <utility>

#include "bench/settings_work.h"
#include "common_interfaces/settings_data.h"

#if defined(BENCH_HAS_ABSEIL)
#include <absl/container/flat_hash_map.h>
#endif

namespace bench {

using CommonInterfaces::FieldData;
using CommonInterfaces::SettingsData;

inline constexpr unsigned kOwner = 7;

// Adds the fields section by section, or one to each section in turn: then nearly all go into the middle.
inline void Fill(SettingsData& settings, const std::vector<FieldKey>& keys, int perSection, bool inTurn) {
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
inline SettingsData& Container(const benchmark::State& state) {
  static std::map<std::pair<int, int>, std::unique_ptr<SettingsData>> s_Made;
  auto& made = s_Made[{FieldCount(state), PerSection(state)}];
  if (made == nullptr) {
    made = std::make_unique<SettingsData>(SettingsData::kDefaultsTag, kOwner, "absent.data");
    Fill(*made, MakeKeys(state), PerSection(state), false);
  }
  return *made;
}

inline std::uint64_t Join(const FieldKey& key) {
  return std::uint64_t{key.section} << 32 | static_cast<unsigned>(key.nameId);
}

// Values of any length, as fields have them.
using Values = std::vector<unsigned char>;
using Table = std::unordered_map<std::uint64_t, Values>;

inline Values ToValues(const FieldKey& key, int value) {
  const auto record = MakeRecord(key, value);
  return {record.begin() + CommonInterfaces::kFieldHeaderSize, record.end()};
}

inline Table MakeTable(const benchmark::State& state) {
  Table table;
  for (const FieldKey& key : MakeKeys(state)) table.emplace(Join(key), ToValues(key, key.field));
  return table;
}

}  // namespace bench
