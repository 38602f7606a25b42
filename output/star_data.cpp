// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/star_data.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace CommonInterfaces {

namespace {

constexpr int kGeneralSubType = 3;
constexpr unsigned char kNoSpectralClass = 255;

// Filled while loading and read until the process ends; no lock.
std::map<int, unsigned char>& SubTypes() {
  static std::map<int, unsigned char> subTypes;
  return subTypes;
}

}  // namespace

unsigned char GetSpectrType(const char* spectrum) {
  if (spectrum == nullptr) return kNoSpectralClass;
  while (*spectrum != '\0' && (*spectrum < 'A' || *spectrum > 'Z')) ++spectrum;
  // Only this letter is tried: "Xp" is no class, although a later letter might be one.
  constexpr std::string_view kClasses = "OBAFGKMSRNC";
  const auto position = kClasses.find(*spectrum);
  if (position == std::string_view::npos) return kNoSpectralClass;
  // S, R, N and C are deliberately folded into M: they are drawn in its colour.
  return static_cast<unsigned char>(std::min<std::string_view::size_type>(position, 6));
}

void SetAddStarInfo(unsigned char subType, int starId) {
  const bool special = subType > 1;
  SubTypes().emplace(starId, special ? subType : static_cast<unsigned char>(kGeneralSubType));
}

int GetStarSubType(int starId) {
  const auto found = SubTypes().find(starId);
  return found == SubTypes().end() ? kGeneralSubType : found->second;
}

}  // namespace CommonInterfaces
