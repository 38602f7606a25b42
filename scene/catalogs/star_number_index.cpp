// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/star_number_index.h"

#include <algorithm>

#include "utils/bytes.h"

namespace scene::star_number_index {
namespace {

// Over which block it is, and its entries.
std::uint32_t GetCheck(std::uint32_t block, std::string_view entries) {
  unsigned char number[4];
  StoreLE32(number, block);
  return GetCrc32(entries, GetCrc32(star_tile_layout::ToText(number, sizeof number)));
}

}  // namespace

std::string MakeBlock(std::uint32_t block, const std::string& entries) {
  std::string bytes(kCheckSize, '\0');
  StoreLE32(bytes.data(), GetCheck(block, entries));
  return bytes + entries;
}

void AppendEntry(std::uint32_t number, std::uint32_t place, std::string& entries) {
  unsigned char entry[kEntrySize];
  StoreLE32(entry, number);
  StoreLE32(entry + 4, place);
  entries.append(reinterpret_cast<const char*>(entry), sizeof entry);
}

bool TakeBlock(const Index& index, std::uint64_t block, Entries& entries) {
  const unsigned char* const at = index.bytes + static_cast<std::size_t>(block * kBlockSize);
  entries.bytes = at + kCheckSize;
  entries.count = static_cast<std::size_t>(std::min<std::uint64_t>(index.stars - block * kEntries, kEntries));
  const auto bytes = star_tile_layout::ToText(entries.bytes, entries.count * kEntrySize);
  return GetCheck(static_cast<std::uint32_t>(block), bytes) == LoadLE32(at);
}

// First the last block that does not begin behind the number, then in it.
Answer Find(const Index& index, std::uint32_t number, std::uint32_t& place) {
  Entries entries{};
  std::uint64_t block = 0, endBlock = CountBlocks(index.stars);
  while (endBlock - block > 1) {
    const std::uint64_t middle = block + (endBlock - block) / 2;
    if (!TakeBlock(index, middle, entries)) return Answer::kDamaged;
    (entries.GetNumber(0) <= number ? block : endBlock) = middle;
  }
  if (block == endBlock) return Answer::kNone;
  if (!TakeBlock(index, block, entries)) return Answer::kDamaged;
  std::size_t begin = 0, end = entries.count;
  while (begin < end) {
    const std::size_t middle = (begin + end) / 2;
    (entries.GetNumber(middle) < number ? begin : end) =
        entries.GetNumber(middle) < number ? middle + 1 : middle;
  }
  if (begin == entries.count || entries.GetNumber(begin) != number) return Answer::kNone;
  place = entries.GetPlace(begin);
  return Answer::kFound;
}

}  // namespace scene::star_number_index
