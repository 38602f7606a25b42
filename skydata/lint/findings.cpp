// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/findings.h"

#include <algorithm>
#include <tuple>

#include "utils/json.h"

namespace skydata {
namespace {

std::string JoinRoot(const std::string& root, const std::string& file) {
  return root.empty() || root.back() == '/' ? root + file : root + '/' + file;
}

template <class Test>
bool Any(const LintFindings& findings, const std::string& file, Test test) {
  return std::any_of(findings.begin(), findings.end(),
                     [&](const LintFinding& finding) { return finding.file == file && test(finding); });
}

}  // namespace

const std::vector<LintKind>& GetLintKinds() {
  using enum Severity;
  static const std::vector<LintKind> kKinds = {
      {"unreadable", kError},
      {"unknown-file", kWarning},
      {"empty-file", kError},
      {"byte-order-mark", kWarning},
      {"cr-lf", kWarning},
      {"no-last-line-end", kWarning},
      {"long-line", kError},
      {"zero-byte", kError},
      {"encoding", kError},
      {"too-few-fields", kError},
      {"too-many-fields", kWarning},
      {"not-a-number", kError},
      {"number-rest", kWarning},
      {"out-of-range", kError},
      {"unit", kError},
      {"bad-code", kError},
      {"unknown-kind", kWarning},
      {"empty-name", kError},
      {"long-name", kError},
      {"angle-mark", kError},
      {"bad-date", kError},
      {"duplicate", kError},
      {"gap", kError},
      {"unsorted", kError},
      {"never-found", kWarning},
      {"dangling-reference", kError},
      {"missing-file", kError},
      {"missing-gazetteer", kWarning},
      {"flat-image", kWarning},
      {"file-size", kError},
      {"count", kError},
      {"trailing-bytes", kError},
      {"bad-header", kError},
      {"missing-column", kError},
      {"two-line-elements", kError},
      {"damaged-cell", kError},
      {"outdated", kWarning},
      {"year-limits", kError},
      {"reader-message", kError},
      {"reader-differs", kError},
  };
  return kKinds;
}

const LintKind& KindOf(LintCode code) { return GetLintKinds().at(static_cast<std::size_t>(code)); }

void SortFindings(LintFindings& findings) {
  std::stable_sort(findings.begin(), findings.end(), [](const LintFinding& a, const LintFinding& b) {
    return std::tie(a.file, a.line, a.column) < std::tie(b.file, b.line, b.column);
  });
}

std::string FormatFinding(const std::string& root, const LintFinding& finding) {
  return JoinRoot(root, finding.file) + ":" + std::to_string(finding.line) + ":" +
         std::to_string(finding.column) + ": " + NameOf(finding.severity) + ": " + finding.code + ": " +
         finding.text + "\n";
}

std::string FormatFindingsAsJson(const std::string& root, const LintFindings& findings) {
  std::vector<std::string> elements;
  for (const LintFinding& finding : findings) {
    elements.push_back(JsonObject({{"file", JsonString(JoinRoot(root, finding.file))},
                                   {"line", std::to_string(finding.line)},
                                   {"column", std::to_string(finding.column)},
                                   {"severity", JsonString(NameOf(finding.severity))},
                                   {"code", JsonString(finding.code)},
                                   {"text", JsonString(finding.text)}}));
  }
  return JsonArray(elements);
}

void LintReport::Add(LintCode code, int line, int column, const std::string& text) {
  Add(KindOf(code).severity, KindOf(code).code, line, column, text);
}

void LintReport::Add(Severity severity, const char* code, int line, int column, const std::string& text) {
  m_Findings.push_back({m_File, line, column, severity, code, text});
}

bool LintReport::HasFindings() const {
  return Any(m_Findings, m_File, [](const LintFinding&) { return true; });
}

bool LintReport::HasErrors() const {
  return Any(m_Findings, m_File,
             [](const LintFinding& finding) { return finding.severity == Severity::kError; });
}

std::set<int> LintReport::GetLines() const {
  std::set<int> lines;
  for (const LintFinding& finding : m_Findings) {
    if (finding.file == m_File) lines.insert(finding.line);
  }
  return lines;
}

bool LintReport::HasFindingAt(int line) const {
  return Any(m_Findings, m_File, [line](const LintFinding& finding) { return finding.line == line; });
}

}  // namespace skydata
