// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <iosfwd>
#include <string>

namespace skydata {

// One line on a terminal that shows how far a long work is, and goes when the object does. Without a stream
// it writes nothing.
class ProgressBar {
 public:
  explicit ProgressBar(std::ostream* terminal) : m_Terminal(terminal) {}
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  // share: 0 to 1. Cheap: it writes ten times a second at most.
  void Show(const std::string& work, double share);

 private:
  void Clear();

  std::ostream* m_Terminal;
  std::chrono::steady_clock::time_point m_Last;
  std::size_t m_Width = 0;  // of what stands there
};

}  // namespace skydata
