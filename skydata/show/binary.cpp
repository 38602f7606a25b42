// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/binary_tables.h"
#include "skydata/files/object_names.h"
#include "skydata/settings/reader/file_reader.h"
#include "skydata/settings/text/format.h"
#include "skydata/show/files.h"

namespace skydata {
namespace {

constexpr double kDegreesPerHour = 15.0;

}  // namespace

ShownTable ShowArticles(const std::string& bytes) {
  ShownTable table;
  table.columns = {"kind", "number", "article"};
  for (const ArticleRecord& record : DecodeArticles(bytes)) {
    table.rows.push_back({NameKind(record.kind), record.number, record.article});
  }
  table.unreadable = bytes.size() % kArticleSize == 0 ? 0 : 1;
  return table;
}

ShownTable ShowDistances(const std::string& bytes) {
  ShownTable table;
  table.columns = {"group", "kind", "number"};
  const DistanceTable groups = DecodeDistances(bytes);
  int group = 0;
  for (const DistanceNumbers& numbers : groups.groups) {
    ++group;
    for (const int number : numbers.numbers) table.rows.push_back({group, NameKind(numbers.kind), number});
    if (numbers.numbers.size() < numbers.count) table.unreadable = 1;
  }
  if (groups.restSize > 0) table.unreadable = 1;
  return table;
}

ShownTable ShowImages(const std::string& bytes) {
  ShownTable table;
  table.columns = {"id"};
  for (const char* corner : {"1", "2", "3", "4"}) {
    table.columns.push_back(std::string("RA") + corner + " [h]");
    table.columns.push_back(std::string("Dec") + corner + " [deg]");
  }
  const ImageList list = DecodeImages(bytes);
  for (const ImageRecord& image : list.images) {
    std::vector<ShownCell> row = {image.id};
    for (std::size_t i = 0; i < image.corners.size(); ++i) {
      const double degrees = image.corners[i] / kImageUnitsPerDegree;
      row.push_back(i % 2 == 0 ? ShownCell::Real(degrees / kDegreesPerHour, 5) : ShownCell::Real(degrees, 4));
    }
    table.rows.push_back(std::move(row));
  }
  table.unreadable = list.count - static_cast<int>(list.images.size());
  if (!list.hasCount || (list.restSize > 0 && table.unreadable == 0)) ++table.unreadable;
  return table;
}

ShownTable ShowSettings(const std::string& bytes) {
  ShownTable table;
  table.columns = {"block", "section", "field", "content"};
  const FieldNames names;
  const SettingsFile file = ReadSettingsFile(bytes, names);
  for (const FileBlock& block : file.blocks) {
    for (const FileField& field : block.fields) {
      table.rows.push_back({FormatWord(block.owner) + " " + FormatWord(block.id), FormatWord(field.section),
                            field.text.name, FormatFieldContent(field.text)});
    }
  }
  table.unreadable = static_cast<int>(file.damage.size());
  return table;
}

}  // namespace skydata
