// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/progress_bar.h"

#include <algorithm>
#include <ostream>

namespace skydata {

ProgressBar::~ProgressBar() { Clear(); }

void ProgressBar::Show(const std::string& work, double share) {
  constexpr int kWidth = 40;
  const auto now = std::chrono::steady_clock::now();
  if (!m_Terminal || (m_Width > 0 && now - m_Last < std::chrono::milliseconds(100))) return;
  m_Last = now;
  share = std::clamp(share, 0.0, 1.0);
  const auto done = static_cast<std::size_t>(share * kWidth);
  const std::string line = "[" + std::string(done, '#') + std::string(kWidth - done, '.') + "] " +
                           std::to_string(static_cast<int>(share * 100.0)) + " % " + work;
  *m_Terminal << '\r' << line << std::string(m_Width > line.size() ? m_Width - line.size() : 0, ' ')
              << std::flush;
  m_Width = std::max(m_Width, line.size());
}

void ProgressBar::Clear() {
  if (m_Width > 0) *m_Terminal << '\r' << std::string(m_Width, ' ') << '\r' << std::flush;
  m_Width = 0;
}

}  // namespace skydata
