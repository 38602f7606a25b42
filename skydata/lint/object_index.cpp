// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/object_index.h"

#include <algorithm>
#include <iterator>

#include "utils/text.h"

namespace skydata {
namespace {

constexpr int kDeepskyKinds[] = {FourCC("gala"), FourCC("nebu"), FourCC("clst"), FourCC("dsnv")};

}  // namespace

bool IsDeepskyKind(int kind) {
  return std::find(std::begin(kDeepskyKinds), std::end(kDeepskyKinds), kind) != std::end(kDeepskyKinds);
}

void ObjectIndex::Add(int kind, int number) {
  m_Numbers[kind].insert(number);
  m_LowNumbers[kind].insert(number & kLowNumberBits);
}

bool ObjectIndex::HasLowNumber(int kind, int number) const {
  const auto found = m_LowNumbers.find(kind);
  return found != m_LowNumbers.end() && found->second.count(number & kLowNumberBits) > 0;
}

bool ObjectIndex::IsMissing(int kind, int number) const {
  const auto found = m_Numbers.find(kind);
  if (found == m_Numbers.end() || found->second.count(number)) return false;
  const int top = number & ~kLowNumberBits;
  return !(IsDeepskyKind(kind) && (top == 0 || top == kGalaxyArticle) && HasLowNumber(kind, number));
}

bool ObjectIndex::IsPictureMissing(int number) const {
  bool isKnown = m_Designations.count(number) > 0, hasCatalog = isKnown;
  for (const int kind : kDeepskyKinds) {
    hasCatalog = hasCatalog || m_Numbers.count(kind) > 0;
    isKnown = isKnown || HasLowNumber(kind, number);
  }
  return hasCatalog && !isKnown;
}

}  // namespace skydata
