// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/incomplete_files.h"

#include <algorithm>

#include "utils/debug.h"
#include "utils/file_presence.h"

void IncompleteFiles::Add(const std::string& path) { m_Paths.push_back(path); }

void IncompleteFiles::Clear() { m_Paths.clear(); }

bool IncompleteFiles::Has(const std::string& path) const {
  return std::find(m_Paths.begin(), m_Paths.end(), path) != m_Paths.end();
}

bool IncompleteFiles::MayReplace(const std::string& path, const char* what) const {
  if (!Has(path)) return true;
  const FilePresence presence = GetFilePresence(path.c_str());
  if (presence == FilePresence::kAbsent || presence == FilePresence::kFolder) return true;
  PrintDebugString("File %s: %s not saved, because it could not be read whole\n", path.c_str(), what);
  return false;
}
