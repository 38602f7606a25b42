// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/session/image_group_names.h"

#include <algorithm>
#include <cstddef>

namespace scene {
namespace {

struct GroupName {
  ImageGroup group;
  std::string_view name;
};
constexpr GroupName kGroupNames[] = {
    {kConstellationImages, "constellations"}, {kDeepskyImages, "deepsky"}, {kMilkyWayImages, "milkyway"}};

unsigned FindGroup(std::string_view name) {
  for (const auto& entry : kGroupNames) {
    if (entry.name == name) return entry.group;
  }
  return 0;
}

}  // namespace

std::optional<unsigned> ParseImageGroups(std::string_view text) {
  unsigned groups = 0;
  for (std::size_t begin = 0; begin <= text.size();) {
    const auto end = std::min(text.find(',', begin), text.size());
    const unsigned group = FindGroup(text.substr(begin, end - begin));
    if (group == 0 || (groups & group) != 0) return std::nullopt;
    groups |= group;
    begin = end + 1;
  }
  return groups;
}

std::string FormatImageGroups(unsigned groups) {
  std::string text;
  for (const auto& entry : kGroupNames) {
    if ((groups & entry.group) == 0) continue;
    if (!text.empty()) text += ",";
    text += entry.name;
  }
  return text;
}

}  // namespace scene
