// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <memory>
#include <ostream>

#include "skydata/commands/command.h"
#include "skydata/commands/strings_options.h"
#include "skydata/files/source_error.h"
#include "skydata/files/whole_file.h"
#include "skydata/strings/check.h"

namespace skydata {
namespace {

struct Arguments {
  std::vector<std::string> files;
  std::string language;
  StringsEncoding encoding = StringsEncoding::kDetect;
  bool isJson = false;
};

void Append(const StringsFindings& more, StringsFindings& findings) {
  findings.insert(findings.end(), more.begin(), more.end());
}

int Check(const Arguments& arguments, std::ostream& output) {
  std::vector<StringsSource> sources;
  StringsFindings findings;
  for (const std::string& file : arguments.files) {
    try {
      sources.push_back(ReadStrings(file, arguments.language, arguments.encoding));
      Append(CheckStrings(sources.back()), findings);
    } catch (const SourceError& error) {
      findings.push_back(
          {file, 0, "unreadable", true, DescribeRefusal(error, "is missing or cannot be read")});
    }
  }
  Append(CompareStrings(sources), findings);
  SortFindings(findings);
  output << (arguments.isJson ? FormatFindingsAsJson(findings) : FormatFindings(findings));
  return findings.empty() ? kDone : kBadData;
}

}  // namespace

Action DeclareStringsCheck(ArgumentList& command) {
  const auto arguments = std::make_shared<Arguments>();
  command.Take("FILE", arguments->files, "string tables; several are compared with each other").Require();
  command.TakeFlag("--json", arguments->isJson, "one JSON array in place of lines");
  AddLanguageOption(command, arguments->language);
  AddEncodingOption(command, arguments->encoding);
  return [arguments](std::ostream& output, std::ostream&) { return Check(*arguments, output); };
}

}  // namespace skydata
