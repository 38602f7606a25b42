// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <windows.h>

#include <io.h>

#include <cstdio>
#include <filesystem>

#include "companions/utils/files/file_platform.h"
#include "companions/utils/files/wide_text_windows.h"
#include "utils/file.h"

namespace utils_internal {

PathKind GetPathKind(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(Widen(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES)
    return IsAbsence(GetLastError()) ? PathKind::kNone : PathKind::kUnknown;
  if (attributes & FILE_ATTRIBUTE_DIRECTORY) return PathKind::kFolder;
  return attributes & FILE_ATTRIBUTE_DEVICE ? PathKind::kOther : PathKind::kFile;
}

std::vector<std::string> ListNames(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code failure;
  const std::filesystem::directory_iterator end;
  for (std::filesystem::directory_iterator entry(Widen(folder), failure); !failure && entry != end;
       entry.increment(failure)) {
    names.push_back(Narrow(entry->path().filename().c_str()));
  }
  return names;
}

std::string MakeAbsolute(const std::string& path) {
  std::error_code failure;
  const auto absolute = std::filesystem::absolute(Widen(path), failure);
  return failure ? path : Narrow(absolute.c_str());
}

std::string FindTemporaryFolder() {
  std::error_code failure;
  return Narrow(std::filesystem::temp_directory_path(failure).c_str());
}

bool MakeEmptyFile(const std::string& path) {
  const HANDLE handle = CreateFileW(Widen(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
  return handle != INVALID_HANDLE_VALUE && CloseHandle(handle);
}

bool MakeFolder(const std::string& path) {
  return CreateDirectoryW(Widen(path).c_str(), nullptr) || GetPathKind(path) == PathKind::kFolder;
}

bool IsSeparator(char c) { return c == '/' || c == '\\'; }

long long GetStreamLength(std::FILE* file) { return _filelengthi64(_fileno(file)); }

}  // namespace utils_internal

std::FILE* mm_fopen(const char* path, const char* mode) {
  if (!path || !mode) return nullptr;
  const std::wstring widePath = utils_internal::Widen(path);
  return widePath.empty() ? nullptr : _wfopen(widePath.c_str(), utils_internal::Widen(mode).c_str());
}
