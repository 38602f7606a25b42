// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The rules behind check.h, a source for each group.
#pragma once

#include <string>

#include "skydata/strings/findings.h"
#include "skydata/strings/source.h"

namespace skydata {

// Collects what is wrong with one table.
class StringsReport {
 public:
  explicit StringsReport(const StringsSource& source) : m_Source(source) {}

  const StringsSource& GetSource() const { return m_Source; }
  void AddError(int line, const char* code, const std::string& text) { Add(line, code, true, text); }
  void AddWarning(int line, const char* code, const std::string& text) { Add(line, code, false, text); }
  // Where what the table lacks is reported: its last line.
  int GetLastLine() const;
  const StringsFindings& GetFindings() const { return m_Findings; }

 private:
  void Add(int line, const char* code, bool isError, const std::string& text);

  const StringsSource& m_Source;
  StringsFindings m_Findings;
};

// The entry that the library shows for an identifier, the last one; null when there is none.
const StringsEntry* FindEntry(const StringsSource& source, unsigned identifier);

// Meteor showers: identifiers from kFirstShower on, without a gap.
inline constexpr unsigned kFirstShower = 6101, kLastShower = 7199;

void CheckLines(StringsReport& report);            // encoding, length, lines that are no entry
void CheckTexts(StringsReport& report);            // escapes, blanks, lengths, formats
void CheckSet(StringsReport& report);              // missing, double and unused identifiers
void CheckDates(StringsReport& report);            // texts 40830 and 20560
void CheckTransliteration(StringsReport& report);  // texts 14000 to 14003
void CheckShowers(StringsReport& report);

// What keeps the text of an entry from being formatted with these arguments (written as in TextUse), "" when
// it fits.
std::string FindFault(const StringsSource& source, const StringsEntry& entry, const std::string& arguments);

}  // namespace skydata
