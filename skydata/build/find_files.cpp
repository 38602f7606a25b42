// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What the search for objects looks up: articles, known distances, objects to fly to.
#include <algorithm>
#include <map>
#include <set>

#include "skydata/build/byte_text.h"
#include "skydata/build/catalog_files.h"
#include "skydata/build/object_numbers.h"
#include "utils/text.h"

namespace skydata {
namespace {

using ObjectKey = std::pair<int, int>;  // kind and number, compared as the library does

constexpr int kLastArticle = 0x7FFFFFFE;
constexpr double kNearest = 1.0;  // parsec
constexpr double kFarthest = 1e10;
// Articles of galaxies are filed under a number of their own.
constexpr int kNumberBits = 0xFFFFFF;
constexpr int kGalaxyArticles = 0x3C000000;

ObjectKey ReadKey(const ObjectNumbers& numbers, const SourceTable& table, int row) {
  const ObjectNumbers::Object object = numbers.Resolve(table, row, 0, 1);
  return {object.kind, object.number};
}

template <class Keys>
void CheckNew(const SourceTable& table, int row, const Keys& keys, const ObjectKey& key) {
  if (keys.count(key) != 0)
    table.Fail(row, 1, table.GetText(row, 0) + " " + table.GetText(row, 1) + " stands above already");
}

void CheckText(const SourceTable& table, int row, int column) {
  if (table.GetText(row, column).empty()) table.Fail(row, column, "must not be empty");
}

}  // namespace

std::string MakeArticles(const std::filesystem::path& source) {
  const SourceTable table(source / "find" / "articles.tsv", {"Kind", "Object", "Article", "Title"});
  const ObjectNumbers numbers(source);
  std::map<ObjectKey, int> articles;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    ObjectKey key = ReadKey(numbers, table, row);
    if (table.GetText(row, 0) == "gala") key.second = (key.second & kNumberBits) + kGalaxyArticles;
    CheckNew(table, row, articles, key);
    articles[key] = table.GetInteger(row, 2, 0, kLastArticle);
    CheckText(table, row, 3);
  }
  std::string bytes;
  for (const auto& [key, article] : articles) {
    AppendLE32(bytes, key.first);
    AppendLE32(bytes, key.second);
    AppendLE32(bytes, article);
  }
  return bytes;
}

std::string MakeDistances(const std::filesystem::path& source) {
  const SourceTable table(source / "find" / "distances.tsv",
                          {"Kind", "Object", "Name", "Distance_pc", "Reference"});
  const ObjectNumbers numbers(source);
  std::set<ObjectKey> known;
  for (const int star : numbers.GetStarsWithParallax()) known.emplace(GetFOURCC("star"), star);
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const ObjectKey key = ReadKey(numbers, table, row);
    CheckNew(table, row, known, key);
    table.GetNumber(row, 3, kNearest, kFarthest);
    CheckText(table, row, 4);
    known.insert(key);
  }
  std::string bytes;
  for (auto group = known.begin(); group != known.end();) {
    const int kind = group->first;
    const auto end =
        std::find_if(group, known.end(), [kind](const ObjectKey& key) { return key.first != kind; });
    AppendLE32(bytes, kind);
    AppendLE32(bytes, static_cast<int>(std::distance(group, end)));
    for (; group != end; ++group) AppendLE32(bytes, group->second);
  }
  return bytes;
}

std::string MakeFlightObjects(const std::filesystem::path& source) {
  const SourceTable table(source / "find" / "flight_objects.tsv", {"Kind", "Object", "Name"});
  const ObjectNumbers numbers(source);
  std::set<ObjectKey> keys;
  std::string bytes;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const ObjectKey key = ReadKey(numbers, table, row);
    if (table.GetText(row, 0) == "star")
      table.Fail(row, 0, "stars can always be flown to and are never looked up");
    CheckNew(table, row, keys, key);
    keys.insert(key);
    bytes += table.GetText(row, 0) + '\t' + std::to_string(key.second) + '\n';
  }
  return bytes;
}

}  // namespace skydata
