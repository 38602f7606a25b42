// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/binary_tables.h"

#include <algorithm>

#include "utils/bytes.h"

namespace skydata {
namespace {

constexpr std::size_t kWordSize = 4;
constexpr std::size_t kGroupHeadSize = 8;
constexpr std::size_t kImageCountSize = 2;
constexpr std::size_t kImageSize = 36;

int LoadWord(const char* from) { return static_cast<int>(LoadLE32(from)); }

DistanceNumbers DecodeGroup(const std::string& bytes, std::size_t& at) {
  DistanceNumbers group;
  group.kind = LoadWord(bytes.data() + at);
  group.count = LoadLE32(bytes.data() + at + kWordSize);
  at += kGroupHeadSize;
  const std::size_t there = std::min<std::size_t>(group.count, (bytes.size() - at) / kWordSize);
  for (std::size_t i = 0; i < there; ++i, at += kWordSize)
    group.numbers.push_back(LoadWord(bytes.data() + at));
  return group;
}

ImageRecord DecodeImage(const char* from) {
  ImageRecord image;
  image.id.assign(from, kWordSize);
  for (std::size_t i = 0; i < image.corners.size(); ++i) {
    image.corners[i] = static_cast<int>(LoadBE32(from + kWordSize * (i + 1)));
  }
  return image;
}

}  // namespace

std::vector<ArticleRecord> DecodeArticles(const std::string& bytes) {
  std::vector<ArticleRecord> records;
  for (std::size_t at = 0; at + kArticleSize <= bytes.size(); at += kArticleSize) {
    const char* const from = bytes.data() + at;
    records.push_back({LoadWord(from), LoadWord(from + kWordSize), LoadWord(from + 2 * kWordSize)});
  }
  return records;
}

DistanceTable DecodeDistances(const std::string& bytes) {
  DistanceTable table;
  std::size_t at = 0;
  while (at + kGroupHeadSize <= bytes.size()) {
    table.groups.push_back(DecodeGroup(bytes, at));
    if (table.groups.back().numbers.size() < table.groups.back().count) break;
  }
  table.restSize = static_cast<int>(bytes.size() - at);
  return table;
}

ImageList DecodeImages(const std::string& bytes) {
  ImageList list;
  list.hasCount = bytes.size() >= kImageCountSize;
  if (!list.hasCount) return list;
  list.count = static_cast<unsigned char>(bytes[0]) << 8 | static_cast<unsigned char>(bytes[1]);
  std::size_t at = kImageCountSize;
  for (int i = 0; i < list.count && at + kImageSize <= bytes.size(); ++i, at += kImageSize) {
    list.images.push_back(DecodeImage(bytes.data() + at));
  }
  list.restSize = static_cast<int>(bytes.size() - at);
  return list;
}

}  // namespace skydata
