// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <windows.h>

#include <io.h>

#include <atomic>
#include <cstdio>
#include <cwchar>

#include "companions/utils/file_platform.h"
#include "utils/file.h"

namespace utils_internal {
namespace {

// UTF-8 to the system's wide text; empty when it is not UTF-8.
std::wstring Widen(const std::string& text) {
  const int bytes = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), bytes, nullptr, 0);
  std::wstring wide(length > 0 ? static_cast<std::size_t>(length) : 0, L'\0');
  if (length > 0) {
    MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), bytes, wide.data(), length);
  }
  return wide;
}

std::string Narrow(const wchar_t* wide) {
  const int length = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
  if (length <= 1) return "";
  std::string text(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), length, nullptr, nullptr);
  text.pop_back();  // the terminator that was counted
  return text;
}

DWORD GetAttributes(const std::string& path) { return GetFileAttributesW(Widen(path).c_str()); }

}  // namespace

PathKind GetPathKind(const std::string& path) {
  const DWORD attributes = GetAttributes(path);
  if (attributes == INVALID_FILE_ATTRIBUTES) return PathKind::kNone;
  if (attributes & FILE_ATTRIBUTE_DIRECTORY) return PathKind::kFolder;
  return attributes & FILE_ATTRIBUTE_DEVICE ? PathKind::kOther : PathKind::kFile;
}

bool MakeFolder(const std::string& path) {
  return CreateDirectoryW(Widen(path).c_str(), nullptr) || GetPathKind(path) == PathKind::kFolder;
}

bool IsSeparator(char c) { return c == '/' || c == '\\'; }

// The system follows the whole chain itself, for what exists; a link that leads nowhere is taken as it is.
std::string FollowLinks(const std::string& path) {
  const DWORD attributes = GetAttributes(path);
  if (attributes == INVALID_FILE_ATTRIBUTES || !(attributes & FILE_ATTRIBUTE_REPARSE_POINT)) return path;
  const HANDLE handle =
      CreateFileW(Widen(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return path;
  wchar_t target[4096];
  const DWORD length = GetFinalPathNameByHandleW(handle, target, static_cast<DWORD>(std::size(target)), 0);
  CloseHandle(handle);
  return length > 0 && length < std::size(target) ? Narrow(target) : path;
}

long long GetStreamLength(std::FILE* file) { return _filelengthi64(_fileno(file)); }

bool IsWriteProtected(const std::string& path) {
  const DWORD attributes = GetAttributes(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY);
}

// The target's permissions are taken over by MoveOver.
std::FILE* CreateBeside(const std::string& target, std::string& path) {
  static std::atomic<unsigned> s_Counter{0};
  constexpr int kTries = 100;  // names left behind by a process of the same number are passed over
  for (int i = 0; i < kTries; ++i) {
    path = target + "." + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(s_Counter++) + ".tmp";
    const HANDLE handle = CreateFileW(Widen(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (handle != INVALID_HANDLE_VALUE) {
      CloseHandle(handle);
      return mm_fopen(path.c_str(), "wb");
    }
    if (GetLastError() != ERROR_FILE_EXISTS) return nullptr;
  }
  return nullptr;
}

bool FlushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool MoveOver(const std::string& path, const std::string& target) {
  const std::wstring from = Widen(path), to = Widen(target);
  const PathKind kind = GetPathKind(target);
  if (kind == PathKind::kFolder) return false;  // not every system of this interface refuses it by itself
  // The first call keeps the access rights of the target; file systems without rights refuse it.
  if (kind == PathKind::kFile &&
      ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)) {
    return true;
  }
  return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

void RemoveFile(const std::string& path) { DeleteFileW(Widen(path).c_str()); }

}  // namespace utils_internal

std::FILE* mm_fopen(const char* path, const char* mode) {
  if (!path || !mode) return nullptr;
  const std::wstring widePath = utils_internal::Widen(path);
  return widePath.empty() ? nullptr : _wfopen(widePath.c_str(), utils_internal::Widen(mode).c_str());
}
