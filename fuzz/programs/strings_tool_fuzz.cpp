// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// String tables as skydata checks and converts them. A table without an error is written as the library reads
// it; the language that nobody speaks passes the same check.
#include <algorithm>
#include <string>

#include "fuzz/input.h"
#include "fuzz/scratch.h"
#include "skydata/files/source_error.h"
#include "skydata/strings/check.h"
#include "skydata/strings/pseudo.h"
#include "skydata/strings/source.h"
#include "skydata/strings/table.h"

namespace {

using fuzz::Require;
using namespace skydata;

std::string Write(const char* name, const std::string& bytes) {
  return fuzz::Scratch::Get().Write(name, reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

bool HasErrors(const StringsFindings& findings) {
  return std::any_of(findings.begin(), findings.end(), [](const StringsFinding& f) { return f.isError; });
}

StringsFindings Check(const StringsSource& source) {
  const StringsFindings findings = CheckStrings(source);
  for (const StringsFinding& finding : findings) {
    Require(fuzz::IsOneLine(finding.text), "a finding is one line");
    Require(finding.line >= 1 && finding.line <= std::max<int>(1, static_cast<int>(source.lines.size())),
            "and stands in the table");
  }
  Require(!FormatFindingsAsJson(findings).empty(), "findings can be shown");
  return findings;
}

void Look(const std::string& path) {
  const StringsSource source = ReadStrings(path);
  const bool isSound = !HasErrors(Check(source));
  CompareStrings({source, source});
  try {
    MakeStringTable(source);
    Require(isSound, "a table with an error is not made");
  } catch (const SourceError&) {
    Require(!isSound, "a table without an error is made");
  }
  const std::string made = Write("data/pseudo/qxstrings.txt", MakePseudoLanguage(source));
  const StringsSource pseudo = ReadStrings(made, source.language);
  Require(pseudo.entries.size() == source.entries.size(), "a made-up language has the same entries");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  for (const char* name : {"data/languages/en/qxstrings.txt", "data/languages/ru/qxstrings.txt"})
    Look(Write(name, bytes));
  return 0;
}
