// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "tools/reader_watch.h"

#include <algorithm>

#include "utils/debug.h"

namespace skydata {
namespace {

bool IsTold(const std::string& message, const LintLines& lines, const LintReport& report) {
  if (report.HasFindingAt(0)) return true;
  if (lines.empty()) return report.HasFindings();
  return std::any_of(lines.begin(), lines.end(), [&](const LintLine& line) {
    const std::string quoted = line.text.empty() ? "()" : line.text;
    return report.HasFindingAt(line.number) && message.find(quoted) != std::string::npos;
  });
}

}  // namespace

ReaderWatch::ReaderWatch() {
  SetDebugSink(
      [](const char* text, void* self) { static_cast<ReaderWatch*>(self)->m_Messages.emplace_back(text); },
      this);
}

ReaderWatch::~ReaderWatch() { SetDebugSink(nullptr, nullptr); }

void AddMessages(const ReaderWatch& watch, const LintLines& lines, LintReport& report) {
  std::vector<std::string> untold;
  for (const std::string& message : watch.GetMessages()) {
    if (!IsTold(message, lines, report)) untold.push_back(message);
  }
  for (std::string& message : untold) {
    std::replace(message.begin(), message.end(), '\n', ' ');
    message.erase(message.find_last_not_of(' ') + 1);
    report.Add(LintCode::kReaderMessage, 0, 0, "its reader says: " + message);
  }
}

}  // namespace skydata
