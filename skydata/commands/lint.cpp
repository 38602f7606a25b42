// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/files/source_error.h"
#include "skydata/lint/lint.h"
#include "skydata/strings/show.h"

namespace skydata {
namespace {

struct Arguments {
  std::string root;
  bool isJson = false, isStrict = false;
};

int RunLint(const Arguments& arguments, std::ostream& output, std::ostream& errors) {
  std::filesystem::path root = arguments.root;
  try {
    if (root.empty()) root = FindDataRoot();
  } catch (const SourceError&) {
    errors << "there is no data root beside this program; ROOT names one\n";
    return kBadUsage;
  }
  if (!std::filesystem::is_directory(root)) {
    errors << root.string() << ": no such folder\n";
    return kBadUsage;
  }
  const LintFindings findings = Lint(root);
  const std::string name = root.generic_string();
  if (arguments.isJson) {
    output << FormatFindingsAsJson(name, findings);
  } else {
    for (const LintFinding& finding : findings) output << FormatFinding(name, finding);
  }
  const bool isBad = std::any_of(findings.begin(), findings.end(), [&arguments](const LintFinding& finding) {
    return arguments.isStrict || finding.severity == Severity::kError;
  });
  return isBad ? kBadData : kDone;
}

}  // namespace

Action DeclareLint(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.Take("ROOT", arguments->root, "data root or work area; else the data root beside this program");
  command.TakeFlag("--json", arguments->isJson, "one JSON array in place of lines");
  command.TakeFlag("--strict", arguments->isStrict, "exit code 1 for warnings too");
  return
      [arguments](std::ostream& output, std::ostream& errors) { return RunLint(*arguments, output, errors); };
}

}  // namespace skydata
