// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/strings/check.h"

#include <algorithm>

#include "skydata/strings/rules.h"

namespace skydata {

int StringsReport::GetLastLine() const { return std::max(static_cast<int>(m_Source.lines.size()), 1); }

// A finding is one line: the ends of lines that it quotes stand there as the table writes them.
void StringsReport::Add(int line, const char* code, bool isError, const std::string& text) {
  std::string written;
  for (const char c : text) written += c == '\n' ? std::string("\\n") : std::string(1, c);
  m_Findings.push_back({m_Source.path, line, code, isError, written});
}

const StringsEntry* FindEntry(const StringsSource& source, unsigned identifier) {
  const auto place = std::find_if(source.entries.rbegin(), source.entries.rend(),
                                  [&](const StringsEntry& entry) { return entry.identifier == identifier; });
  return place == source.entries.rend() ? nullptr : &*place;
}

StringsFindings CheckStrings(const StringsSource& source) {
  StringsReport report(source);
  CheckLines(report);
  CheckTexts(report);
  CheckSet(report);
  CheckDates(report);
  CheckTransliteration(report);
  CheckShowers(report);
  StringsFindings findings = report.GetFindings();
  SortFindings(findings);
  return findings;
}

}  // namespace skydata
