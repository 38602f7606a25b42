// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <windows.h>

#include <limits>
#include <system_error>

#include "companions/utils/files/mapped_file_platform.h"
#include "companions/utils/files/replace_file_platform.h"
#include "companions/utils/files/wide_text_windows.h"

namespace utils_internal {
namespace {

// Both handles may be closed as soon as the file is mapped.
class Handle {
 public:
  explicit Handle(HANDLE handle) : m_Handle(handle) {}
  ~Handle() {
    if (IsOpen()) CloseHandle(m_Handle);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  bool IsOpen() const { return m_Handle && m_Handle != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return m_Handle; }

 private:
  HANDLE m_Handle;
};

bool FailByLastError(std::string& reason) {
  const DWORD code = GetLastError();
  reason = code == ERROR_NOT_ENOUGH_MEMORY ? kTooLargeToMap
                                           : std::system_category().message(static_cast<int>(code));
  while (!reason.empty() && (reason.back() == '\n' || reason.back() == '\r')) reason.pop_back();
  return false;
}

}  // namespace

bool MapFile(const char* path, const unsigned char*& bytes, std::size_t& size, std::string& reason) {
  const Handle file(CreateFileW(Widen(path).c_str(), GENERIC_READ,
                                FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
  LARGE_INTEGER length;
  if (!file.IsOpen()) return FailByLastError(reason);
  if (GetFileType(file.Get()) != FILE_TYPE_DISK) {
    reason = kNoRegularFile;
    return false;
  }
  if (!GetFileSizeEx(file.Get(), &length)) return FailByLastError(reason);
  if (static_cast<unsigned long long>(length.QuadPart) > std::numeric_limits<std::size_t>::max()) {
    reason = kTooLargeToMap;
    return false;
  }
  if (length.QuadPart == 0) return true;
  const Handle mapping(CreateFileMappingW(file.Get(), nullptr, PAGE_READONLY, 0, 0, nullptr));
  if (!mapping.IsOpen()) return FailByLastError(reason);
  const void* const mapped = MapViewOfFile(mapping.Get(), FILE_MAP_READ, 0, 0, 0);
  if (!mapped) return FailByLastError(reason);
  bytes = static_cast<const unsigned char*>(mapped);
  size = static_cast<std::size_t>(length.QuadPart);
  return true;
}

void UnmapFile(const unsigned char* bytes, std::size_t) noexcept {
  if (bytes) UnmapViewOfFile(bytes);
}

}  // namespace utils_internal
