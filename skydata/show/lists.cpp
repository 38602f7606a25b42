// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Files whose lines are fields between tabs.
#include <cstdio>
#include <cstdlib>

#include "skydata/files/object_names.h"
#include "skydata/files/text_lines.h"
#include "skydata/show/files.h"
#include "utils/text.h"

namespace skydata {
namespace {

bool TakeInteger(const TextField& field, int& number) {
  return std::sscanf(field.text.c_str(), "%d", &number) == 1;
}

bool TakeKind(const TextField& field, int& kind) {
  if (TakeInteger(field, kind)) return true;
  kind = GetFOURCC(field.text.c_str());
  return kind != -1;
}

// Calls `add` for the fields of each line; counts the lines that are too short or that it refuses.
template <class Add>
ShownTable ShowLines(const std::string& bytes, std::vector<std::string> columns, std::size_t least, Add add) {
  ShownTable table;
  table.columns = std::move(columns);
  for (const TextLine& line : SplitPlainLines(bytes)) {
    const auto fields = SplitAtTabs(line);
    if (IsBlankText(line.text)) continue;
    if (fields.size() < least || !add(fields, table)) ++table.unreadable;
  }
  return table;
}

std::string TextOf(const std::vector<TextField>& fields, std::size_t index) {
  return index < fields.size() ? fields[index].text : "";
}

}  // namespace

ShownTable ShowPlanets(const std::string& bytes) {
  return ShowLines(bytes, {"kind", "number", "name", "flag"}, 3, [](const auto& fields, ShownTable& table) {
    int number = 0, flag = fields[0].text == "plnt" ? 1 : 0;
    if (fields[0].text.size() != 4 || !TakeInteger(fields[1], number)) return false;
    if (fields.size() > 3 && !TakeInteger(fields[3], flag)) return false;
    table.rows.push_back({fields[0].text, number, fields[2].text, flag});
    return true;
  });
}

ShownTable ShowList(const std::string& bytes) {
  return ShowLines(bytes, {"kind", "number", "name", "fourth"}, 3, [](const auto& fields, ShownTable& table) {
    int kind = 0, number = 0;
    if (!TakeInteger(fields[1], kind) || !TakeInteger(fields[2], number)) return false;
    table.rows.push_back({NameKind(kind), number, fields[0].text, TextOf(fields, 3)});
    return true;
  });
}

ShownTable ShowFlightList(const std::string& bytes) {
  return ShowLines(bytes, {"kind", "number", "note"}, 2, [](const auto& fields, ShownTable& table) {
    int kind = 0, number = 0;
    if (!TakeKind(fields[0], kind) || !TakeInteger(fields[1], number)) return false;
    table.rows.push_back({NameKind(kind), number, TextOf(fields, 2)});
    return true;
  });
}

ShownTable ShowPanoramas(const std::string& bytes) {
  const std::vector<std::string> columns = {
      "kind", "number", "file", "default", "id", "title", "left azimuth [deg]"};
  return ShowLines(bytes, columns, 7, [](const auto& fields, ShownTable& table) {
    int number = 0;
    if (GetFOURCC(fields[0].text.c_str()) == -1 || !TakeInteger(fields[1], number)) return false;
    table.rows.push_back({fields[0].text, number, fields[2].text,
                          std::atoi(fields[3].text.c_str()) > 0 ? 1 : 0, std::atoi(fields[4].text.c_str()),
                          fields[5].text, std::atoi(fields[6].text.c_str())});
    return true;
  });
}

ShownTable ShowObservationTimes(const std::string& bytes) {
  const std::vector<std::string> columns = {"kind", "number", "year", "month", "day", "hour [UT]"};
  return ShowLines(bytes, columns, 3, [](const auto& fields, ShownTable& table) {
    int kind = 0, number = 0, day = 0, month = 0, year = 0;
    float hour = 0.0f;
    if (!TakeKind(fields[0], kind) || !TakeInteger(fields[1], number)) return false;
    if (std::sscanf(fields[2].text.c_str(), "%d/%d/%d %f", &day, &month, &year, &hour) != 4) return false;
    table.rows.push_back({NameKind(kind), number, year == -1 ? ShownCell("every") : ShownCell(year), month,
                          day, ShownCell::Real(hour, 2)});
    return true;
  });
}

ShownTable ShowYearLimits(const std::string& bytes) {
  ShownTable table;
  table.columns = {"limit", "year"};
  const TextLines lines = SplitPlainLines(bytes);
  for (std::size_t i = 0; i < 2; ++i) {
    int year = 0;
    if (i < lines.size() && TakeInteger({lines[i].text, 1}, year)) {
      table.rows.push_back({i == 0 ? "first" : "last", year == -1 ? ShownCell("none") : ShownCell(year)});
    } else {
      ++table.unreadable;
    }
  }
  return table;
}

}  // namespace skydata
