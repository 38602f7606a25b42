// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace skydata {

// The text of a catalog table, made cell by cell from left to right. Form: docs/formats/catalog_tables.md.
class CatalogText {
 public:
  // `columns` are "Name:type"; `source` names the file that the table is made of.
  CatalogText(const std::string& source, const std::vector<std::string>& columns);

  // Numbers are written as the shortest text that gives the same number of that type back.
  void AddInteger(int value);
  void AddDouble(double value);
  void AddFloat(std::optional<double> value);            // rounded to the nearest float; none: an empty cell
  void AddAngle(double degrees);                         // as a double in radians
  void AddSmallAngle(std::optional<double> arcMinutes);  // as a float in radians; none: an empty cell
  void AddText(const std::string& text);
  void EndRecord();

  const std::string& GetBytes() const { return m_Bytes; }

 private:
  void BeginCell();

  std::string m_Bytes;
  bool m_IsFirstCell = true;
};

}  // namespace skydata
