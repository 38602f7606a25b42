// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/reader/findings.h"

#include <algorithm>
#include <iterator>

#include "utils/json.h"

namespace skydata {

const FindingKind& KindOf(FindingCode code) {
  using enum Severity;
  // In the order of FindingCode.
  static constexpr FindingKind kKinds[] = {
      {"unreadable", kError, true},         {"empty-file", kError, true},
      {"header-cut", kError, true},         {"no-header", kWarning, false},
      {"no-block", kError, true},           {"stray-bytes", kWarning, true},
      {"block-cut", kError, true},          {"section-count", kError, true},
      {"field-count", kError, true},        {"fields-missing", kError, true},
      {"record-length", kError, true},      {"record-cut", kError, true},
      {"old-layout", kWarning, true},       {"duplicate-block", kWarning, false},
      {"hidden-block", kError, false},      {"duplicate-section", kWarning, true},
      {"section-run", kWarning, true},      {"run-overlap", kWarning, true},
      {"run-order", kWarning, true},        {"empty-run", kInfo, true},
      {"field-outside", kWarning, true},    {"field-section", kWarning, true},
      {"duplicate-field", kWarning, false}, {"repeated-object", kInfo, false},
      {"unknown-type", kWarning, false},    {"values-missing", kWarning, false},
      {"values-extra", kWarning, false},    {"bad-name-id", kWarning, false},
      {"unknown-name", kInfo, false},       {"own-mismatch", kWarning, false},
      {"no-default", kInfo, false},
  };
  static_assert(std::size(kKinds) == static_cast<std::size_t>(FindingCode::kNoDefault) + 1);
  return kKinds[static_cast<std::size_t>(code)];
}

std::string FormatFinding(const std::string& file, const Finding& finding) {
  const FindingKind& kind = KindOf(finding.code);
  return file + ":" + std::to_string(finding.offset) + ": " + NameOf(kind.severity) + ": " + finding.text +
         " [" + kind.code + "]";
}

std::string FormatFindingAsJson(const std::string& file, const Finding& finding) {
  const FindingKind& kind = KindOf(finding.code);
  return JsonObject({{"file", JsonString(file)},
                     {"offset", std::to_string(finding.offset)},
                     {"code", JsonString(kind.code)},
                     {"severity", JsonString(NameOf(kind.severity))},
                     {"text", JsonString(finding.text)}});
}

void SortFindings(std::vector<Finding>& findings) {
  std::stable_sort(findings.begin(), findings.end(),
                   [](const Finding& a, const Finding& b) { return a.offset < b.offset; });
}

}  // namespace skydata
