// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <cstring>
#include <map>

#include "common_interfaces/text_formats.h"
#include "skydata/files/object_names.h"
#include "skydata/strings/check.h"
#include "skydata/strings/rules.h"
#include "utils/text.h"

namespace skydata {
namespace {

constexpr std::size_t kParentBody = 8;  // the field of a shower that is translated besides its name

using Owners = std::map<unsigned, const StringsSource*>;  // the first table that has the identifier

Owners FindOwners(const std::vector<StringsSource>& sources) {
  Owners owners;
  for (const StringsSource& source : sources)
    for (const StringsEntry& entry : source.entries) owners.emplace(entry.identifier, &source);
  return owners;
}

void CheckLacking(const Owners& owners, StringsReport& report) {
  for (const auto& [identifier, owner] : owners) {
    const auto* const use = CommonInterfaces::FindTextUse(identifier);
    if ((use && use->isRequired) || FindEntry(report.GetSource(), identifier)) continue;
    report.AddError(report.GetLastLine(), "untranslated",
                    NameIdentifier(identifier) + " is missing, " + owner->path + " has it");
  }
}

// The arguments that a text asks for, as in TextUse; of a text that is no format, "".
std::string FindArguments(const StringsSource& source, const StringsEntry& entry) {
  std::string arguments;
  for (auto at = entry.text.find('%'); at != std::string::npos; at = entry.text.find('%', at + 1)) {
    at = entry.text.find_first_not_of("+- #0123456789.l", at + 1);
    if (at == std::string::npos) break;
    const char letter = entry.text[at];
    if (std::strchr("diuxXo", letter)) arguments += 'd';
    if (std::strchr("eEfFgGaA", letter)) arguments += 'f';
    if (letter == 's' || letter == 'c') arguments += letter;
  }
  return FindFault(source, entry, arguments).empty() ? arguments : "";
}

void CompareFormats(const StringsSource& english, StringsReport& report) {
  for (const StringsEntry& entry : report.GetSource().entries) {
    const StringsEntry* const original =
        IsOfApplications(entry.identifier) ? FindEntry(english, entry.identifier) : nullptr;
    if (!original) continue;
    const std::string arguments = FindArguments(english, *original);
    if (arguments.empty()) continue;
    const std::string fault = FindFault(report.GetSource(), entry, arguments);
    if (!fault.empty())
      report.AddError(entry.line, "format", NameIdentifier(entry.identifier) + ": " + fault);
  }
}

void CompareShowers(const StringsSource& first, StringsReport& report) {
  for (const StringsEntry& entry : report.GetSource().entries) {
    const bool isShower = entry.identifier >= kFirstShower && entry.identifier <= kLastShower;
    const StringsEntry* const original = isShower ? FindEntry(first, entry.identifier) : nullptr;
    if (!original) continue;
    const auto fields = GetSubStrings(entry.text.c_str(), ';');
    const auto originals = GetSubStrings(original->text.c_str(), ';');
    for (std::size_t i = 1; i < std::min(fields.size(), originals.size()); ++i) {
      if (i == kParentBody || fields[i] == originals[i]) continue;
      report.AddError(entry.line, "shower",
                      NameIdentifier(entry.identifier) + ": field " + std::to_string(i + 1) + " is '" +
                          fields[i] + "', in " + first.path + " '" + originals[i] + "'");
    }
  }
}

}  // namespace

StringsFindings CompareStrings(const std::vector<StringsSource>& sources) {
  const Owners owners = FindOwners(sources);
  const auto english = std::find_if(sources.begin(), sources.end(),
                                    [](const StringsSource& source) { return source.language == "en"; });
  StringsFindings findings;
  for (const StringsSource& source : sources) {
    StringsReport report(source);
    CheckLacking(owners, report);
    if (english != sources.end()) CompareFormats(*english, report);
    CompareShowers(sources.front(), report);
    findings.insert(findings.end(), report.GetFindings().begin(), report.GetFindings().end());
  }
  SortFindings(findings);
  return findings;
}

}  // namespace skydata
