// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/value_cache.h"

#include <algorithm>

namespace CommonInterfaces {

// Stamps are short: before they come again, everything goes. Between two such moments there are so many
// changes that it costs each of them next to nothing.
void ValueCache::Clear(std::uint64_t changes, std::size_t fields) {
  std::size_t sets = 2;
  m_Shift = 63;
  for (; sets < fields / 2; sets *= 2) --m_Shift;
  m_Sets.assign(sets, Set());
  m_Base = changes - 1;
}

void ValueCache::Keep(std::uint64_t key, std::uint64_t changes, std::size_t fields, std::uint64_t value,
                      unsigned size) {
  const bool roomy = !m_Sets.empty() && m_Sets.size() >= fields / 2;
  if (!roomy || changes - m_Base > kLastStamp) Clear(changes, fields);
  const std::uint64_t stamp = changes - m_Base;
  const auto isStale = [stamp](std::uint64_t kept) { return (kept >> kSizeBits & kLastStamp) != stamp; };
  Set& set = m_Sets[Home(key)];
  // The place of a copy that is good no more; where there is none, the last one goes.
  const auto place = std::min<std::ptrdiff_t>(
      std::find_if(set.keys, set.keys + kWays, isStale) - set.keys, kWays - 1);
  set.keys[place] = (key << kStampBits | stamp) << kSizeBits | static_cast<unsigned>(std::countr_zero(size));
  set.values[place] = value;
}

}  // namespace CommonInterfaces
