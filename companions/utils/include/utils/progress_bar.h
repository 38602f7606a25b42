// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <iosfwd>
#include <string>

#include "utils/api.h"

// One line on a terminal that shows how far a long work is, and goes when the object does. Without a stream
// it writes nothing. One thread.
class UTILS_API ProgressBar {
 public:
  // Kept by reference; null: nobody watches.
  explicit ProgressBar(std::ostream* terminal) : m_Terminal(terminal) {}
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  // share: 0 to 1. Cheap: it writes ten times a second at most. From the second second on it says the time
  // that is left.
  void Show(const std::string& work, double share);

 private:
  void Clear();

  std::ostream* m_Terminal;
  std::chrono::steady_clock::time_point m_First, m_Last;
  std::size_t m_Width = 0;  // of what stands there
};

// "0:34 left", "2:05:00 left": what is left of a work of which a share, 0 to 1, took so many seconds, if the
// rest goes as fast; "" before a second has passed and before a thousandth is done.
UTILS_API std::string FormatTimeLeft(double seconds, double share);
