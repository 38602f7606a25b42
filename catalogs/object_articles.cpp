// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_articles.h"

#include <algorithm>
#include <string>

#include "catalogs/key_blocks.h"
#include "catalogs/object_key.h"
#include "utils/bytes.h"
#include "utils/debug.h"
#include "utils/file.h"
#include "utils/path.h"
#include "utils/text.h"

namespace CommonInterfaces {

struct ArticleTable {
  KeyBlocks<std::uint64_t> objects;
  std::vector<int> articles;  // at the same positions
};

namespace {

constexpr int kRecordSize = 12;
constexpr int kNoArticle = -1;
constexpr int kGalaxy = FourCC("gala");
constexpr int kMesh = FourCC("mesh");
constexpr int kGalaxyNumberMask = 0xFFFFFF;
constexpr int kGalaxyArticles = 0x3C000000;

struct Record {
  std::uint64_t object;
  int article;
};

// In the order of the file. A file that became shorter while it was read ends with its last whole record.
std::vector<Record> ReadRecords(MFile& file, int count) {
  std::vector<Record> records;
  records.reserve(static_cast<std::size_t>(count));
  unsigned char bytes[kRecordSize];
  while (count-- > 0 && file.Read(bytes, kRecordSize) == kRecordSize) {
    const int kind = static_cast<int>(LoadLE32(bytes)), number = static_cast<int>(LoadLE32(bytes + 4));
    records.push_back({ObjectKey(kind, number), static_cast<int>(LoadLE32(bytes + 8))});
  }
  return records;
}

ArticleTable MakeTable(std::vector<Record> records) {
  // Stable: the first record of an object stays in front of its others.
  std::stable_sort(records.begin(), records.end(),
                   [](const Record& a, const Record& b) { return a.object < b.object; });
  std::vector<std::uint64_t> objects;
  ArticleTable table;
  objects.reserve(records.size());
  table.articles.reserve(records.size());
  for (const Record& record : records) {
    objects.push_back(record.object);
    table.articles.push_back(record.article);
  }
  table.objects = KeyBlocks<std::uint64_t>(objects);
  return table;
}

ArticleTable LoadTable(const char* path) {
  const std::string resolved = ZentharPath::GetPath(path);
  MFile file;
  if (resolved.empty() || !file.Open(resolved.c_str(), MFile::kRead)) {
    PrintDebugString("File %s not found\n", path ? path : "");
    return {};
  }
  const int length = file.GetLength();
  if (length % kRecordSize != 0) {
    PrintDebugString("Bad file size of file %s \n", path);
    return {};
  }
  return MakeTable(ReadRecords(file, length / kRecordSize));
}

}  // namespace

ArticlesInformation::ArticlesInformation(const char* path)
    : m_Table(std::make_unique<const ArticleTable>(LoadTable(path))) {}

ArticlesInformation::~ArticlesInformation() = default;

int ArticlesInformation::GetArticleId(int kind, int number) const {
  if (kind == kMesh) return kNoArticle;
  if (kind == kGalaxy) number = (number & kGalaxyNumberMask) + kGalaxyArticles;
  const int position = m_Table->objects.Find(ObjectKey(kind, number));
  return position >= 0 ? m_Table->articles[static_cast<std::size_t>(position)] : kNoArticle;
}

}  // namespace CommonInterfaces
