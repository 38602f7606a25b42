// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <limits>
#include <system_error>

#include "companions/utils/files/mapped_file_platform.h"
#include "companions/utils/files/replace_file_platform.h"

namespace utils_internal {
namespace {

// The file may be closed as soon as it is mapped.
class OpenFile {
 public:
  // Without waiting: opening a pipe would wait for its writer.
  explicit OpenFile(const char* path) : m_File(open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {}
  ~OpenFile() {
    if (m_File >= 0) close(m_File);
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  int Get() const { return m_File; }

 private:
  int m_File;
};

bool FailByErrno(std::string& reason) {
  if (errno == ENOMEM || errno == EOVERFLOW) {
    reason = kTooLargeToMap;
  } else {
    reason = std::generic_category().message(errno);
  }
  return false;
}

}  // namespace

bool MapFile(const char* path, const unsigned char*& bytes, std::size_t& size, std::string& reason) {
  const OpenFile file(path);
  struct stat info;
  if (file.Get() < 0 || fstat(file.Get(), &info) != 0) return FailByErrno(reason);
  if (!S_ISREG(info.st_mode)) {
    reason = kNoRegularFile;
    return false;
  }
  if (static_cast<unsigned long long>(info.st_size) > std::numeric_limits<std::size_t>::max()) {
    reason = kTooLargeToMap;
    return false;
  }
  if (info.st_size == 0) return true;
  void* const mapped =
      mmap(nullptr, static_cast<std::size_t>(info.st_size), PROT_READ, MAP_SHARED, file.Get(), 0);
  if (mapped == MAP_FAILED) return FailByErrno(reason);
  bytes = static_cast<const unsigned char*>(mapped);
  size = static_cast<std::size_t>(info.st_size);
  return true;
}

void UnmapFile(const unsigned char* bytes, std::size_t size) noexcept {
  if (bytes) munmap(const_cast<unsigned char*>(bytes), size);
}

}  // namespace utils_internal
