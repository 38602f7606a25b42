// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_articles.h"

#include <algorithm>
#include <string>

#include "catalogs/object_table.h"
#include "utils/bytes.h"
#include "utils/debug.h"
#include "utils/file.h"
#include "utils/path.h"
#include "utils/text.h"

namespace CommonInterfaces {

static constexpr int kNoArticle = -1;

struct ArticleTable {
  ObjectTable objects;
  // Behind one that says there is none: the article at position p follows at p + 1. Position -1 so needs no
  // question, which a processor would guess wrong as often as right.
  std::vector<int> articles = {kNoArticle};
};

namespace {

constexpr int kRecordSize = 12;
constexpr int kGalaxy = FourCC("gala");
constexpr int kMesh = FourCC("mesh");
constexpr int kGalaxyNumberMask = 0xFFFFFF;
constexpr int kGalaxyArticles = 0x3C000000;

struct Record {
  KindAndNumber object;
  int article;
};

// In the order of the file. A file that became shorter while it was read ends with its last whole record.
std::vector<Record> ReadRecords(MFile& file, int count) {
  std::vector<Record> records;
  records.reserve(static_cast<std::size_t>(count));
  unsigned char bytes[kRecordSize];
  while (count-- > 0 && file.Read(bytes, kRecordSize) == kRecordSize) {
    const int kind = static_cast<int>(LoadLE32(bytes)), number = static_cast<int>(LoadLE32(bytes + 4));
    records.push_back({{kind, number}, static_cast<int>(LoadLE32(bytes + 8))});
  }
  return records;
}

ArticleTable MakeTable(std::vector<Record> records) {
  // Stable: the first record of an object stays in front of its others.
  std::stable_sort(records.begin(), records.end(),
                   [](const Record& a, const Record& b) { return a.object < b.object; });
  std::vector<KindAndNumber> objects;
  ArticleTable table;
  objects.reserve(records.size());
  table.articles.reserve(records.size() + 1);
  for (const Record& record : records) {
    objects.push_back(record.object);
    table.articles.push_back(record.article);
  }
  table.objects = ObjectTable(objects);
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
  return m_Table->articles[static_cast<std::size_t>(m_Table->objects.Find(kind, number) + 1)];
}

}  // namespace CommonInterfaces
