// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/lint/reader_watch.h"

#include <algorithm>
#include <set>

#include "utils/debug.h"

namespace skydata {
namespace {

// The lines that a finding is about. Readers complain in the order of the lines, so each search begins where
// the one before found its line.
class ToldLines {
 public:
  ToldLines(const TextLines& lines, const LintReport& report) {
    const std::set<int> numbers = report.GetLines();
    for (const TextLine& line : lines) {
      if (numbers.count(line.number)) m_Quotes.push_back(line.text.empty() ? "()" : line.text);
    }
  }

  bool Has(const std::string& message) {
    for (std::size_t i = 0; i < m_Quotes.size(); ++i) {
      const std::size_t at = (m_Next + i) % m_Quotes.size();
      if (message.find(m_Quotes[at]) == std::string::npos) continue;
      m_Next = at + 1;
      return true;
    }
    return false;
  }

 private:
  std::vector<std::string> m_Quotes;
  std::size_t m_Next = 0;
};

}  // namespace

ReaderWatch::ReaderWatch() {
  SetDebugSink(
      [](const char* text, void* self) { static_cast<ReaderWatch*>(self)->m_Messages.emplace_back(text); },
      this);
}

ReaderWatch::~ReaderWatch() { SetDebugSink(nullptr, nullptr); }

void AddMessages(const ReaderWatch& watch, const TextLines& lines, LintReport& report) {
  if (report.HasFindingAt(0) || (lines.empty() && report.HasFindings())) return;
  ToldLines told(lines, report);
  std::vector<std::string> untold;
  for (const std::string& message : watch.GetMessages()) {
    if (!told.Has(message)) untold.push_back(message);
  }
  for (std::string& message : untold) {
    std::replace(message.begin(), message.end(), '\n', ' ');
    message.erase(message.find_last_not_of(' ') + 1);
    report.Add(LintCode::kReaderMessage, 0, 0, "its reader says: " + message);
  }
}

}  // namespace skydata
