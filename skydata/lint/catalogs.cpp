// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The catalog tables. Their reader stands in the host; what it prints is told here by "not a record" rules.
#include <algorithm>
#include <cmath>
#include <cstdio>

#include "skydata/files/catalog_reader.h"
#include "skydata/lint/catalog_rules.h"
#include "skydata/lint/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

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
    const TextLine line = {record.line, std::string(static_cast<std::size_t>(record.end - 1), ' ')};
    HasFields(line, record.cells, static_cast<int>(wanted), static_cast<int>(wanted), m_Report);
    for (std::size_t i = 0; i < std::min(wanted, record.cells.size()); ++i) {
      CheckCell(m_Data.columns[i], record.line, record.cells[i]);
    }
    CheckSizes(record);
    CheckOrbit(m_Data, record, m_Report);
    CheckRequired(record);
    CheckNumber(record);
    CheckName(record);
    for (const char* const column : {"Label", "OtherLabel"}) CheckLabel(record, column);
  }

  void CheckCell(const CatalogColumn& column, int line, const TextField& cell) {
    if (column.type == "text" || cell.text.empty()) return;
    const auto value = ParseCatalogNumber(column.type, cell.text);
    if (!value) {
      m_Report.Add(LintCode::kNotANumber, line, cell.column,
                   column.name + " '" + cell.text + "' is no number of the type " + column.type);
      return;
    }
    const ColumnRange* const range = FindRange(column.name);
    if (!range || (*value >= range->least && *value <= range->most)) return;
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

  void CheckLabel(const CatalogRecord& record, const char* column) {
    const TextField* const cell = m_Data.FindCell(record, m_Data.FindColumn(column));
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

}  // namespace

void LintCatalog(const LintFile& file, LintRun& run) {
  LintReport report(file.name, run.findings);
  TextRules rules;
  rules.maxLine = 0;
  rules.mayBeginWithMark = false;
  const TextLines lines = ReadLintLines(file.bytes, rules, report);
  if (report.HasFindingAt(0)) return;  // empty
  const CatalogData data = ReadCatalog(lines);
  CatalogChecker(data, FindCatalogRule(file.name), run, report).Check();
}

}  // namespace skydata
