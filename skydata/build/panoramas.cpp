// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <map>
#include <set>

#include "skydata/build/catalog_files.h"
#include "skydata/build/object_numbers.h"

namespace skydata {
namespace {

enum PanoramaColumn { kKind, kNumber, kFile, kDefault, kIdentifier, kTitle, kLeftAzimuth };

const std::vector<std::string> kColumns = {"Kind",       "Number", "File",           "Default",
                                           "Identifier", "Title",  "LeftAzimuth_deg"};

constexpr int kLastIdentifier = 0xFFFE;    // 0xFFFF: not given
constexpr std::size_t kLongestLine = 255;  // what the reader's buffer holds

// A name that means the same on every system, and a picture that stands beside the table.
void CheckPicture(const SourceTable& table, int row, const std::filesystem::path& folder) {
  const std::string& name = table.GetText(row, kFile);
  const auto isGood = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == '-' || c == '.';
  };
  if (name.empty() || name[0] == '.' || !std::all_of(name.begin(), name.end(), isGood))
    table.Fail(row, kFile, "'" + name + "' has other characters than a-z, 0-9, _, - and . inside");
  if (std::filesystem::path(name).extension() != ".svg") table.Fail(row, kFile, "'" + name + "' is no .svg");
  if (!std::filesystem::is_regular_file(folder / name))
    table.Fail(row, kFile, "no picture '" + name + "' beside the table");
}

std::string MakeLine(const SourceTable& table, int row) {
  std::string line =
      table.GetText(row, kKind) + '\t' + table.GetText(row, kNumber) + '\t' + table.GetText(row, kFile) +
      '\t' + std::to_string(table.GetInteger(row, kDefault, 0, 1)) + '\t' +
      std::to_string(table.GetInteger(row, kIdentifier, 0, kLastIdentifier)) + '\t' +
      table.GetText(row, kTitle) + '\t' + std::to_string(table.GetInteger(row, kLeftAzimuth, 0, 359));
  if (line.size() > kLongestLine) table.Fail(row, kTitle, "makes the line longer than 255 bytes");
  return line + '\n';
}

}  // namespace

std::string MakePanoramas(const std::filesystem::path& source) {
  const std::filesystem::path folder = source / "surface";
  const SourceTable table(folder / "panoramas.tsv", kColumns);
  const ObjectNumbers numbers(source);
  std::map<std::pair<int, int>, int> defaults;  // how many each body has
  std::set<int> identifiers;
  std::string bytes;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const ObjectNumbers::Object body = numbers.Resolve(table, row, kKind, kNumber);
    CheckPicture(table, row, folder);
    bytes += MakeLine(table, row);
    if (!identifiers.insert(table.GetInteger(row, kIdentifier, 0, kLastIdentifier)).second)
      table.Fail(row, kIdentifier, table.GetText(row, kIdentifier) + " stands above already");
    int& count = defaults[{body.kind, body.number}];
    if (table.GetInteger(row, kDefault, 0, 1) == 1 && ++count > 1)
      table.Fail(row, kDefault, "the body has a default above already");
  }
  return bytes;
}

}  // namespace skydata
