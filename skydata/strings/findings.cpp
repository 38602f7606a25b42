// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/findings.h"

#include <algorithm>
#include <tuple>

#include "skydata/files/json.h"

namespace skydata {
namespace {

const char* GetSeverity(const StringsFinding& finding) { return finding.isError ? "error" : "warning"; }

}  // namespace

void SortFindings(StringsFindings& findings) {
  std::stable_sort(findings.begin(), findings.end(), [](const StringsFinding& a, const StringsFinding& b) {
    return std::tie(a.file, a.line) < std::tie(b.file, b.line);
  });
}

std::string FormatFindings(const StringsFindings& findings) {
  std::string lines;
  for (const StringsFinding& finding : findings) {
    lines += finding.file + ":" + std::to_string(finding.line) + ": " + GetSeverity(finding) + ": " +
             finding.text + " [" + finding.code + "]\n";
  }
  return lines;
}

std::string FormatFindingsAsJson(const StringsFindings& findings) {
  std::string json = "[";
  for (const StringsFinding& finding : findings) {
    json += json.size() > 1 ? ",\n " : "\n ";
    json += "{\"file\": " + JsonString(finding.file) + ", \"line\": " + std::to_string(finding.line) +
            ", \"code\": " + JsonString(finding.code) +
            ", \"severity\": " + JsonString(GetSeverity(finding)) +
            ", \"text\": " + JsonString(finding.text) + "}";
  }
  return json + (findings.empty() ? "]\n" : "\n]\n");
}

}  // namespace skydata
