// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <sys/resource.h>

#include <csignal>

namespace test_support {

// Files of this process grow no further than `bytes` while it lives, as on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : m_OldHandler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_Old);
    const rlimit limit{bytes, m_Old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &m_Old);
    std::signal(SIGXFSZ, m_OldHandler);
  }

 private:
  rlimit m_Old;
  void (*m_OldHandler)(int);
};

}  // namespace test_support
