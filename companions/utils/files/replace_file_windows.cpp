// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <windows.h>

#include <io.h>

#include <atomic>
#include <cstdio>
#include <iterator>
#include <mutex>
#include <system_error>

#include "companions/utils/files/file_platform.h"
#include "companions/utils/files/replace_file_platform.h"
#include "companions/utils/files/wide_text_windows.h"
#include "utils/contained_call.h"
#include "utils/file.h"

namespace utils_internal {
namespace {

std::string GetSystemReason(DWORD code) {
  std::string reason = std::system_category().message(static_cast<int>(code));
  reason.erase(reason.find_last_not_of(" \r\n") + 1);
  return reason;
}

// Another writer is about to replace the same target, or somebody reads it, for a moment.
bool IsInUse(DWORD code) {
  return code == ERROR_SHARING_VIOLATION || code == ERROR_ACCESS_DENIED || code == ERROR_LOCK_VIOLATION ||
         code == ERROR_UNABLE_TO_REMOVE_REPLACED;
}

bool MoveOverOnce(const std::wstring& from, const std::wstring& to, PathKind kind) {
  // The first call keeps the access rights of the target; file systems without rights refuse it.
  if (kind == PathKind::kFile &&
      ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)) {
    return true;
  }
  return MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

}  // namespace

// The system follows the whole chain itself, for what exists; a link that leads nowhere is taken as it is.
bool FollowLinks(const std::string& path, std::string& to, std::string& reason) {
  to = path;
  const DWORD attributes = GetFileAttributesW(Widen(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const DWORD code = GetLastError();
    if (IsAbsence(code)) return true;
    reason = GetSystemReason(code);
    return false;
  }
  if (!(attributes & FILE_ATTRIBUTE_REPARSE_POINT)) return true;
  const HANDLE handle =
      CreateFileW(Widen(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                  OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    const DWORD code = GetLastError();
    if (IsAbsence(code)) return true;
    reason = GetSystemReason(code);
    return false;
  }
  wchar_t target[4096];
  const DWORD length = GetFinalPathNameByHandleW(handle, target, static_cast<DWORD>(std::size(target)), 0);
  CloseHandle(handle);
  if (length == 0 || length >= std::size(target)) {
    reason = "the system does not tell where its link leads";
    return false;
  }
  to = Narrow(target);
  return true;
}

bool MayBeReplaced(const std::string& path, std::string& reason) {
  const DWORD attributes = GetFileAttributesW(Widen(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    const DWORD code = GetLastError();
    if (IsAbsence(code)) return true;
    reason = GetSystemReason(code);
  } else if (attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) {
    reason = kNoRegularFile;
  } else if (attributes & FILE_ATTRIBUTE_READONLY) {
    reason = kWriteProtected;
  }
  return reason.empty();
}

// The target's permissions are taken over by MoveOver.
std::FILE* CreateBeside(const std::string& target, std::string& path, std::string& reason) {
  static std::atomic<unsigned> s_Counter{0};  // any thread
  // Names left behind by a process of the same number are passed over.
  constexpr int kTries = 10000;
  DWORD code = ERROR_FILE_EXISTS;
  for (int i = 0; i < kTries && code == ERROR_FILE_EXISTS; ++i) {
    path = target + "." + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(s_Counter++) + ".tmp";
    const HANDLE handle = CreateFileW(Widen(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    code = GetLastError();
    if (handle == INVALID_HANDLE_VALUE) continue;
    CloseHandle(handle);
    if (std::FILE* const file = mm_fopen(path.c_str(), "wb")) return file;
    code = GetLastError();
    RemoveFile(path);
    break;
  }
  reason = GetSystemReason(code);
  return nullptr;
}

bool FlushToDisk(std::FILE* file) { return std::fflush(file) == 0 && _commit(_fileno(file)) == 0; }

bool MoveOver(const std::string& path, const std::string& target, std::string& reason) {
  constexpr int kTries = 100;
  constexpr DWORD kPause = 5;  // milliseconds
  const std::wstring from = Widen(path), to = Widen(target);
  // One after the other: not every system of this interface replaces a file in one step.
  static std::mutex s_Moving;  // any thread
  const std::lock_guard<std::mutex> alone(s_Moving);
  for (int i = 0; i < kTries; ++i) {
    const PathKind kind = GetPathKind(target);
    // Not every system of this interface refuses it by itself.
    if (kind == PathKind::kFolder) {
      reason = kNoRegularFile;
      return false;
    }
    if (MoveOverOnce(from, to, kind)) {
      reason.clear();
      return true;
    }
    const DWORD code = GetLastError();
    reason = GetSystemReason(code);
    if (!IsInUse(code)) return false;
    Sleep(kPause);
  }
  return false;
}

void RemoveFile(const std::string& path) noexcept {
  static_cast<void>(RunsThrough([&] { DeleteFileW(Widen(path).c_str()); }));  // no memory: the file stays
}

// One lock for all targets: it is held for as long as it takes to read a file of settings.
TargetLock::TargetLock(const std::string&) {
  constexpr DWORD kMostWait = 2000;  // milliseconds
  const HANDLE mutex = CreateMutexW(nullptr, FALSE, L"Local\\common_interfaces replaces a file");
  m_Handle = 0;
  if (!mutex) return;
  const DWORD answer = WaitForSingleObject(mutex, kMostWait);
  if (answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED) {
    m_Handle = reinterpret_cast<std::intptr_t>(mutex);
  } else {
    CloseHandle(mutex);
  }
}

TargetLock::~TargetLock() {
  const auto mutex = reinterpret_cast<HANDLE>(m_Handle);
  if (!mutex) return;
  ReleaseMutex(mutex);
  CloseHandle(mutex);
}

}  // namespace utils_internal
