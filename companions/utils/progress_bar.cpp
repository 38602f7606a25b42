// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/progress_bar.h"

#include <algorithm>
#include <cmath>
#include <ostream>

#include "utils/messages.h"

ProgressBar::~ProgressBar() { Clear(); }

void ProgressBar::Show(const std::string& work, double share) {
  constexpr int kWidth = 40;
  const auto now = std::chrono::steady_clock::now();
  if (!m_Terminal || (m_Width > 0 && now - m_Last < std::chrono::milliseconds(100))) return;
  if (m_Width == 0) m_First = now;
  m_Last = now;
  share = std::clamp(share, 0.0, 1.0);
  const auto done = static_cast<std::size_t>(share * kWidth);
  const std::string left = FormatTimeLeft(std::chrono::duration<double>(now - m_First).count(), share);
  const std::string line = "[" + std::string(done, '#') + std::string(kWidth - done, '.') + "] " +
                           std::to_string(static_cast<int>(share * 100.0)) + " % " + work +
                           (left.empty() ? "" : ", ") + left;
  *m_Terminal << '\r' << line << std::string(m_Width > line.size() ? m_Width - line.size() : 0, ' ')
              << std::flush;
  m_Width = std::max(m_Width, line.size());
}

void ProgressBar::Clear() {
  if (m_Width > 0) *m_Terminal << '\r' << std::string(m_Width, ' ') << '\r' << std::flush;
  m_Width = 0;
}

std::string FormatTimeLeft(double seconds, double share) {
  constexpr double kLeastShare = 1e-3, kMost = 359999.0;  // 99:59:59
  if (!(seconds >= 1.0) || !(share >= kLeastShare)) return "";
  const int left = static_cast<int>(std::min(std::ceil(seconds * (1.0 / std::min(share, 1.0) - 1.0)), kMost));
  const int hours = left / 3600, minutes = left / 60 % 60;
  if (hours > 0) return FormatText("%d:%02d:%02d left", hours, minutes, left % 60);
  return FormatText("%d:%02d left", minutes, left % 60);
}
