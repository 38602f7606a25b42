// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The catalog tables. Their reader stands in the host; what it prints is told here by "not a record" rules.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iterator>
#include <set>

#include "skydata/files/catalog_reader.h"
#include "skydata/lint/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

namespace fs = std::filesystem;

constexpr double kPi = 3.14159265358979323846;
constexpr double kDegreesPerTurn = 360.0;
constexpr double kLargeSize = 0.5;  // radians: no catalogued object is 29 degrees across

// What the values of a column of that name may be.
struct ColumnRange {
  const char* name;
  double least, most;
  double mostDegrees;  // up to which a value beyond looks like degrees; 0: it does not
};
constexpr ColumnRange kRanges[] = {
    {"RA", 0.0, 2.0 * kPi, kDegreesPerTurn},
    {"Dec", -kPi / 2.0, kPi / 2.0, 90.0},
    {"VisMagnitude", -30.0, 40.0, 0.0},
    {"AbsMagnitude", -30.0, 60.0, 0.0},
    {"LargestDimension", 0.0, kLargeSize, 1e9},
    {"SmallestDimension", 0.0, kLargeSize, 1e9},
    {"a", 1e-3, 1e6, 0.0},
    {"e", 0.0, 100.0, 0.0},
    {"i", 0.0, kPi, 180.0},
    {"om", -2.0 * kPi, 2.0 * kPi, kDegreesPerTurn},
    {"w", -2.0 * kPi, 2.0 * kPi, kDegreesPerTurn},
};

// Which catalog has which columns, and of what kind its objects are.
struct CatalogRule {
  const char* name;  // of the file, without ".txt"
  std::vector<const char*> columns;
  const char* kind;  // of the objects; "": that in the column Type; null: they are none
};
const CatalogRule* FindRule(const std::string& name) {
  static const CatalogRule kRules[] = {
      {"stars", {"Number", "RA", "Dec"}, "star"},
      {"deepsky", {"Type", "Number", "RA", "Dec"}, ""},
      {"constellations", {"Label", "RA", "Dec"}, nullptr},
      {"constellation_lines", {"Label", "Number", "RA", "Dec"}, nullptr},
      {"milkyway", {"Type", "Number", "RA", "Dec"}, nullptr},
      {"asteroids", {"Number", "JulianDate", "a", "e", "i", "om", "w", "M0", "n"}, "astr"},
      {"comets", {"Number", "JulianDate", "a", "e", "i", "om", "w", "M0", "n"}, "comt"}};
  const auto found = std::find_if(std::begin(kRules), std::end(kRules),
                                  [&name](const CatalogRule& rule) { return name == rule.name; });
  return found == std::end(kRules) ? nullptr : found;
}

std::string ToText(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.6g", value);
  return text;
}

class CatalogChecker {
 public:
  CatalogChecker(const CatalogData& data, const CatalogRule* rule, const LintRun& run, LintReport& report)
      : m_Data(data), m_Rule(rule), m_Run(run), m_Report(report) {}

  void Check() {
    if (!CheckHeader()) return;
    for (const CatalogRecord& record : m_Data.records) CheckRecord(record);
  }

 private:
  bool CheckHeader() {
    if (m_Data.headerLine == 0) {
      m_Report.Add(LintCode::kBadHeader, 0, 0, "the table has no header line");
      return false;
    }
    bool isGood = true;
    for (std::size_t i = 0; i < m_Data.columns.size(); ++i) {
      const CatalogColumn& column = m_Data.columns[i];
      if (!column.name.empty() && IsCatalogType(column.type)) continue;
      isGood = false;
      m_Report.Add(LintCode::kBadHeader, m_Data.headerLine, m_Data.headerCells[i].column,
                   "column '" + m_Data.headerCells[i].text + "' is not NAME:TYPE with a known type");
    }
    for (const char* const name : m_Rule ? m_Rule->columns : std::vector<const char*>()) {
      if (m_Data.FindColumn(name) >= 0) continue;
      m_Report.Add(LintCode::kMissingColumn, m_Data.headerLine, 0, std::string("there is no column ") + name);
    }
    return isGood;
  }

  void CheckRecord(const CatalogRecord& record) {
    const std::size_t wanted = m_Data.columns.size();
    const LintLine line = {record.line, std::string(static_cast<std::size_t>(record.end - 1), ' ')};
    HasFields(line, record.cells, static_cast<int>(wanted), static_cast<int>(wanted), m_Report);
    for (std::size_t i = 0; i < std::min(wanted, record.cells.size()); ++i) {
      CheckCell(m_Data.columns[i], record.line, record.cells[i]);
    }
    CheckSizes(record);
    CheckOrbit(m_Data, record, m_Report);
    CheckRequired(record);
    CheckNumber(record);
    CheckName(record);
    CheckLabel(record);
  }

  void CheckCell(const CatalogColumn& column, int line, const TextField& cell) {
    if (column.type == "text" || cell.text.empty()) return;
    const auto value = ParseCatalogNumber(column.type, cell.text);
    if (!value) {
      m_Report.Add(LintCode::kNotANumber, line, cell.column,
                   column.name + " '" + cell.text + "' is no number of the type " + column.type);
      return;
    }
    const auto range =
        std::find_if(std::begin(kRanges), std::end(kRanges),
                     [&column](const ColumnRange& known) { return column.name == known.name; });
    if (range == std::end(kRanges) || (*value >= range->least && *value <= range->most)) return;
    const bool isUnit = std::abs(*value) <= range->mostDegrees && (range->least < 0.0 || *value > 0.0);
    m_Report.Add(isUnit ? LintCode::kUnit : LintCode::kOutOfRange, line, cell.column,
                 column.name + " " + cell.text + " is not from " + ToText(range->least) + " to " +
                     ToText(range->most) + (isUnit ? ", wants radians" : ""));
  }

  void CheckSizes(const CatalogRecord& record) {
    const auto largest = m_Data.FindNumber(record, "LargestDimension"),
               smallest = m_Data.FindNumber(record, "SmallestDimension");
    if (!largest || !smallest || *smallest <= *largest) return;
    m_Report.Add(LintCode::kOutOfRange, record.line,
                 m_Data.FindCell(record, m_Data.FindColumn("SmallestDimension"))->column,
                 "SmallestDimension is above LargestDimension");
  }

  // An object without a number, a place or a label is of no use.
  void CheckRequired(const CatalogRecord& record) {
    for (const char* const name : m_Rule ? m_Rule->columns : std::vector<const char*>()) {
      const int column = m_Data.FindColumn(name);
      if (column < 0 || column >= static_cast<int>(record.cells.size())) continue;
      const TextField& cell = record.cells[static_cast<std::size_t>(column)];
      if (!cell.text.empty()) continue;
      m_Report.Add(LintCode::kEmptyName, record.line, cell.column, std::string(name) + " is empty");
    }
  }

  void CheckNumber(const CatalogRecord& record) {
    if (!m_Rule || !m_Rule->kind) return;
    const TextField* const type = m_Data.FindCell(record, m_Data.FindColumn("Type"));
    const TextField* const cell = m_Data.FindCell(record, m_Data.FindColumn("Number"));
    const std::string kind = *m_Rule->kind || !type ? m_Rule->kind : type->text;
    if (type && !*m_Rule->kind && !IsDeepskyKind(GetFOURCC(kind.c_str()))) {
      m_Report.Add(LintCode::kUnknownKind, record.line, type->column,
                   "'" + kind + "' is no kind of deep-sky object");
    }
    if (!cell) return;
    if (const int first = m_Numbers.Note(kind + " " + cell->text, record.line)) {
      m_Report.Add(LintCode::kDuplicate, record.line, cell->column,
                   kind + " " + cell->text + " stands in line " + std::to_string(first) + " already");
    }
  }

  // Objects are found by their names: none twice. Both halves of a constellation have one.
  void CheckName(const CatalogRecord& record) {
    const TextField* const cell = m_Data.FindCell(record, m_Data.FindColumn("ProperName"));
    if (!cell || !m_Rule || !m_Rule->kind) return;
    if (const int first = m_Names.Note(cell->text, record.line)) {
      m_Report.Add(LintCode::kDuplicate, record.line, cell->column,
                   "the name '" + cell->text + "' stands in line " + std::to_string(first) + " already");
    }
  }

  void CheckLabel(const CatalogRecord& record) {
    const TextField* const cell = m_Data.FindCell(record, m_Data.FindColumn("Label"));
    const auto labels = m_Run.labels.find("Label");
    if (!cell || !m_Rule || m_Rule->kind || labels == m_Run.labels.end()) return;
    if (std::find(labels->second.begin(), labels->second.end(), cell->text) != labels->second.end()) return;
    m_Report.Add(LintCode::kDanglingReference, record.line, cell->column,
                 "no catalog has a constellation '" + cell->text + "'");
  }

  const CatalogData& m_Data;
  const CatalogRule* m_Rule;
  const LintRun& m_Run;
  LintReport& m_Report;
  FirstLines<std::string> m_Numbers, m_Names;
};

void CollectCatalog(const LintFile& file, LintRun& run) {
  const CatalogData data = ReadCatalog(ReadPlainLines(file.bytes));
  const std::string name = fs::path(file.name).stem().string();
  const CatalogRule* const rule = FindRule(name);
  if (!rule) return;
  const int number = data.FindColumn("Number"), type = data.FindColumn("Type"),
            label = data.FindColumn("Label");
  const int designation = data.FindColumn("NGC_ICnumber");
  for (const CatalogRecord& record : data.records) {
    const TextField* const cell = data.FindCell(record, number);
    const TextField* const kind = data.FindCell(record, type);
    const std::string code = rule->kind && !*rule->kind && kind ? kind->text : rule->kind ? rule->kind : "";
    if (cell && code.size() == 4) run.objects.Add(GetFOURCC(code.c_str()), std::atoi(cell->text.c_str()));
    const TextField* const text = data.FindCell(record, label);
    if (text && name == "constellations") run.labels["Label"].push_back(text->text);
    const TextField* const other = data.FindCell(record, designation);
    const auto digits = other ? other->text.find_first_of("0123456789") : std::string::npos;
    if (digits != std::string::npos) run.objects.AddDesignation(std::atoi(other->text.c_str() + digits));
  }
}

// Lines of the form "kind TAB number", whatever else is wrong with them.
void CollectBodies(const LintFile& file, LintRun& run) {
  for (const LintLine& line : ReadPlainLines(file.bytes)) {
    const auto fields = SplitAtTabs(line);
    if (fields.size() > 2 && fields[0].text.size() == 4) {
      run.objects.Add(GetFOURCC(fields[0].text.c_str()), std::atoi(fields[1].text.c_str()));
    }
  }
}

}  // namespace

void LintCatalog(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  TextRules rules;
  rules.maxLine = 0;
  rules.mayBeginWithMark = false;
  const LintLines lines = ReadLintLines(file.bytes, rules, report);
  if (report.HasFindingAt(0)) return;  // empty
  const CatalogData data = ReadCatalog(lines);
  CatalogChecker(data, FindRule(fs::path(file.name).stem().string()), run, report).Check();
}

void CollectObjects(const LintFile& file, LintRun& run) {
  if (file.kind == DataKind::kCatalogTable) CollectCatalog(file, run);
  if (file.kind == DataKind::kPlanets) CollectBodies(file, run);
  if (file.kind == DataKind::kTwoLineElements) CollectSatellites(file, run);
}

}  // namespace skydata
