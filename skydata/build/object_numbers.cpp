// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/object_numbers.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "common_interfaces/settings_field.h"
#include "skydata/build/catalog_files.h"
#include "skydata/build/catalogs.h"
#include "skydata/files/whole_file.h"
#include "utils/text.h"

namespace skydata {
namespace {

// The cells of a table that a maker of this program made and checked: by record, and in it by column name.
class MadeTable {
 public:
  explicit MadeTable(const std::string& bytes) {
    for (const TextLine& line : SplitTrimmedLines(bytes)) {
      if (!line.text.empty() && line.text[0] != '#') m_Records.push_back(GetTokens(line.text.c_str(), "\t"));
    }
  }

  std::size_t GetCount() const { return m_Records.size() - 1; }
  std::string GetText(std::size_t record, const char* column) const {
    const auto& header = m_Records[0];
    const auto at =
        static_cast<std::size_t>(std::find(header.begin(), header.end(), column) - header.begin());
    const auto& cells = m_Records[record + 1];  // empty cells at the end of a line have been cut off
    return at < cells.size() ? cells[at] : std::string();
  }
  int GetInteger(std::size_t record, const char* column) const {
    return std::atoi(GetText(record, column).c_str());
  }

 private:
  std::vector<std::vector<std::string>> m_Records;
};

}  // namespace

ObjectNumbers::ObjectNumbers(const std::filesystem::path& source) {
  AddBodies(source);
  AddOrbits(source);
  AddStars(source);
  AddDeepsky(source);
  AddConstellations(source);
}

void ObjectNumbers::AddBodies(const std::filesystem::path& source) {
  for (const TextLine& line : SplitTrimmedLines(MakePlanetsAndMoons(source))) {
    const std::vector<std::string> fields = GetTokens(line.text.c_str(), "\t");
    m_Numbers[fields[0]][fields[1]] = std::atoi(fields[1].c_str());
  }
}

void ObjectNumbers::AddOrbits(const std::filesystem::path& source) {
  const std::pair<const char*, MadeTable> kinds[] = {{"astr", MadeTable(MakeAsteroidCatalog(source))},
                                                     {"comt", MadeTable(MakeCometCatalog(source))}};
  for (const auto& [kind, table] : kinds) {
    for (std::size_t i = 0; i < table.GetCount(); ++i)
      m_Numbers[kind][table.GetText(i, "Number:i32")] = table.GetInteger(i, "Number:i32");
  }
}

void ObjectNumbers::AddStars(const std::filesystem::path& source) {
  const MadeTable stars(MakeStarCatalog(source));
  for (std::size_t i = 0; i < stars.GetCount(); ++i) {
    const int number = stars.GetInteger(i, "Number:i32");
    m_Numbers["star"][std::to_string(number)] = number;
    if (std::strtod(stars.GetText(i, "Parallax:f32").c_str(), nullptr) > 0.0)
      m_StarsWithParallax.push_back(number);
  }
  std::sort(m_StarsWithParallax.begin(), m_StarsWithParallax.end());
}

void ObjectNumbers::AddDeepsky(const std::filesystem::path& source) {
  const MadeTable objects(MakeDeepskyCatalog(source));
  for (std::size_t i = 0; i < objects.GetCount(); ++i) {
    m_Numbers[objects.GetText(i, "Type:text")][objects.GetText(i, "MessierNumber:i32")] =
        objects.GetInteger(i, "Number:i32");
  }
}

void ObjectNumbers::AddConstellations(const std::filesystem::path& source) {
  const MadeTable constellations(MakeConstellationCatalog(source));
  for (std::size_t i = 0; i < constellations.GetCount(); ++i) {
    const std::string label = constellations.GetText(i, "Label:text");
    m_Numbers["cnst"][label] = GetUniqueID(label.c_str());
  }
}

bool ObjectNumbers::Has(const std::string& kind, const std::string& object) const {
  const auto objects = m_Numbers.find(kind);
  return objects != m_Numbers.end() && objects->second.count(object) > 0;
}

ObjectNumbers::Object ObjectNumbers::Resolve(const SourceTable& table, int row, int kindColumn,
                                             int objectColumn) const {
  const std::string &kind = table.GetText(row, kindColumn), &object = table.GetText(row, objectColumn);
  const auto objects = m_Numbers.find(kind);
  if (objects == m_Numbers.end()) table.Fail(row, kindColumn, "'" + kind + "' is no kind with numbers");
  const auto found = objects->second.find(object);
  if (found == objects->second.end())
    table.Fail(row, objectColumn, "no " + kind + " '" + object + "' is known");
  return {GetFOURCC(kind.c_str()), found->second};
}

}  // namespace skydata
