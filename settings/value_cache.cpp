// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/value_cache.h"

#include <algorithm>

namespace CommonInterfaces {

// Stamps are short: before they come again, everything goes. Between two such moments there are so many
// changes that it costs each of them next to nothing.
void ValueCache::Clear(std::uint64_t changes, std::size_t fields) {
  std::size_t sets = 2;
  int shift = 63;
  for (; sets < fields / 2; sets *= 2) --shift;
  m_Sets.assign(sets, Set());
  m_Shift = shift;
  m_Base = changes - 1;
}

void ValueCache::Keep(std::uint64_t key, std::uint64_t changes, std::size_t fields, std::uint64_t value,
                      unsigned size) {
  const bool roomy = !m_Sets.empty() && m_Sets.size() >= fields / 2;
  if (!roomy || changes - m_Base > kLastStamp) Clear(changes, fields);
  const std::uint64_t stamp = changes - m_Base, keyAndStamp = key << kStampBits | stamp;
  Set& set = m_Sets[Home(key)];
  std::uint64_t* const end = set.keys + kWays;
  // In the place of the same key, else of a copy that is good no more, else of the last one.
  std::uint64_t* place = std::find_if(
      set.keys, end, [keyAndStamp](std::uint64_t kept) { return kept >> kSizeBits == keyAndStamp; });
  if (place == end) {
    place = std::find_if(set.keys, end - 1,
                         [stamp](std::uint64_t kept) { return (kept >> kSizeBits & kLastStamp) != stamp; });
  }
  *place = keyAndStamp << kSizeBits | static_cast<unsigned>(std::countr_zero(size));
  set.values[place - set.keys] = value;
}

}  // namespace CommonInterfaces
