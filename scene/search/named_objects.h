// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Objects as the lists of names know them, and catalogues by what people call them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "scene/catalogs/name_index.h"
#include "scene/search/object_search.h"

namespace scene {

inline constexpr unsigned kNamedGroupShift = 28;

inline std::uint32_t ToNamed(const FoundObject& object) {
  return static_cast<std::uint32_t>(object.group) << kNamedGroupShift |
         static_cast<std::uint32_t>(object.index);
}
inline FoundObject FromNamed(std::uint32_t object) {
  constexpr std::uint32_t kIndexMask = (1u << kNamedGroupShift) - 1;
  return {static_cast<ObjectGroup>(object >> kNamedGroupShift), static_cast<int>(object & kIndexMask)};
}
static_assert(static_cast<std::uint32_t>(ObjectGroup::kStar) == 0);
static_assert(static_cast<std::uint32_t>(ObjectGroup::kDeepsky) << kNamedGroupShift == kNamedDeepsky);

// A key that begins with the name of a catalogue, as the tables write its entries: "messier31" is "m31".
// Nothing for any other.
inline std::optional<std::string> FindCatalogueKey(const std::string& key) {
  constexpr struct {
    std::string_view name, entry;
  } kCatalogues[] = {{"messier", "m"},   {"barnard", "b"},   {"caldwell", "c"},   {"collinder", "cr"},
                     {"melotte", "mel"}, {"hickson", "hcg"}, {"sharpless", "sh2"}};
  for (const auto& [name, entry] : kCatalogues) {
    if (key.starts_with(name)) return std::string(entry) + key.substr(name.size());
  }
  return std::nullopt;
}

}  // namespace scene
