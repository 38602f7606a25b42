// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/findings.h"

#include <algorithm>
#include <tuple>

#include "skydata/files/severity.h"
#include "utils/json.h"

namespace skydata {
namespace {

const char* NameSeverity(const StringsFinding& finding) {
  return NameOf(finding.isError ? Severity::kError : Severity::kWarning);
}

}  // namespace

void SortFindings(StringsFindings& findings) {
  std::stable_sort(findings.begin(), findings.end(), [](const StringsFinding& a, const StringsFinding& b) {
    return std::tie(a.file, a.line) < std::tie(b.file, b.line);
  });
}

std::string FormatFindings(const StringsFindings& findings) {
  std::string lines;
  for (const StringsFinding& finding : findings) {
    lines += finding.file + ":" + std::to_string(finding.line) + ": " + NameSeverity(finding) + ": " +
             finding.text + " [" + finding.code + "]\n";
  }
  return lines;
}

std::string FormatFindingsAsJson(const StringsFindings& findings) {
  std::vector<std::string> elements;
  for (const StringsFinding& finding : findings) {
    elements.push_back(JsonObject({{"file", JsonString(finding.file)},
                                   {"line", std::to_string(finding.line)},
                                   {"code", JsonString(finding.code)},
                                   {"severity", JsonString(NameSeverity(finding))},
                                   {"text", JsonString(finding.text)}}));
  }
  return JsonArray(elements);
}

}  // namespace skydata
