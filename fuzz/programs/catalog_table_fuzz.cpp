// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A catalog table of any columns, read at once and when it is first asked for, and as skydata takes it apart.
#include <cmath>
#include <cstring>
#include <string>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "scene/catalogs/catalog_table.h"
#include "skydata/files/catalog_reader.h"
#include "utils/text.h"

namespace {

using fuzz::Require;

// Every cell of the two, by the columns of the header.
void Compare(scene::CatalogTable& table, scene::CatalogTable& deferred, const skydata::CatalogData& data) {
  for (int record = -1; record <= table.GetCount(); ++record) {
    table.Select(record);
    deferred.Select(record);
    for (const skydata::CatalogColumn& column : data.columns) {
      const int name = GetUniqueID(column.name.c_str());
      const bool hasField = table.GetField(name) != nullptr;
      Require(hasField == (deferred.GetField(name) != nullptr), "both have a field or none");
      Require(!hasField || (record >= 0 && record < table.GetCount()), "no record, no field");
      Require(table.GetFieldType(name) == deferred.GetFieldType(name), "of the same type");
      const std::string text = table.GetText(name);
      Require(text == deferred.GetText(name), "the same text");
      const double number = table.GetNumber(name, 0.25), other = deferred.GetNumber(name, 0.25);
      Require(number == other && std::isfinite(number), "the same number");
      Require(text.empty() || table.IsText(name), "a text stands in a column of texts");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string path = fuzz::Scratch::Get().Write("data/catalogs/table.txt", data, size);
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  scene::CatalogTable table, deferred;
  if (!table.Load(path.c_str())) {
    Require(fuzz::IsOneLine(table.GetError()) && table.GetError().find(path) == 0, "one line names the file");
    Require(table.GetCount() == 0, "a table that is refused is empty");
    return 0;
  }
  deferred.Defer(path.c_str());
  deferred.Select(0);
  Require(deferred.GetCount() == table.GetCount(), "the same records, later");
  const skydata::CatalogData lines = skydata::ReadCatalog(skydata::SplitPlainLines(bytes));
  Require(static_cast<std::size_t>(table.GetCount()) <= lines.records.size(),
          "a record is a line of the file");
  Compare(table, deferred, lines);
  return 0;
}
