// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "utils/api.h"

// The files that an object was loaded from and that it does not hold whole, because they could not be read or
// only in part: what would be saved over them is less than they have. Paths are compared as they are written.
// A value; one thread at a time.
class UTILS_API IncompleteFiles {
 public:
  void Add(const std::string& path);
  void Clear();
  bool IsEmpty() const { return m_Paths.empty(); }
  bool Has(const std::string& path) const;

  // False, with one line that names the file and `what` is not saved (for example "homes"), for a file that
  // was added and is still there. One that has gone has nothing to lose, and a folder is never replaced.
  bool MayReplace(const std::string& path, const char* what) const;

 private:
  std::vector<std::string> m_Paths;
};
