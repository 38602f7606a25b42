// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>
#include <string>

namespace skydata {

// What is wrong with a source file, as one line: "file:line: message", or "file: message" where no line is to
// blame.
class SourceError : public std::runtime_error {
 public:
  SourceError(const std::string& file, int line, const std::string& message)
      : std::runtime_error(file + (line > 0 ? ":" + std::to_string(line) : "") + ": " + message),
        m_Line(line),
        m_Message(message) {}

  int GetLine() const { return m_Line; }  // 0: none
  const std::string& GetMessage() const { return m_Message; }

 private:
  int m_Line;
  std::string m_Message;
};

}  // namespace skydata
