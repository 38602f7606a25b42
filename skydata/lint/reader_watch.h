// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "skydata/files/text_lines.h"
#include "skydata/lint/findings.h"

namespace skydata {

// Catches what the library prints while it lives; afterwards diagnostics go to standard error again. One at a
// time.
class ReaderWatch {
 public:
  ReaderWatch();
  ~ReaderWatch();
  ReaderWatch(const ReaderWatch&) = delete;
  ReaderWatch& operator=(const ReaderWatch&) = delete;

  const std::vector<std::string>& GetMessages() const { return m_Messages; }

 private:
  std::vector<std::string> m_Messages;
};

// Whatever a reader prints about a file must be told by a finding too: adds a finding for each message that
// is not. A message is told when a finding is about the whole file, or about a line whose text the message
// quotes; where a reader quotes no lines (`lines` empty), when there is any finding.
void AddMessages(const ReaderWatch& watch, const TextLines& lines, LintReport& report);

}  // namespace skydata
