// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The system maps no files: the whole file is read, when it is opened.
#include <cstdlib>
#include <limits>
#include <memory>

#include "companions/utils/files/file_platform.h"
#include "companions/utils/files/mapped_file_platform.h"
#include "companions/utils/files/replace_file_platform.h"
#include "utils/file.h"

namespace utils_internal {
namespace {

constexpr char kUnreadable[] = "it cannot be read";

bool Refuse(const char* why, std::string& reason) {
  reason = why;
  return false;
}

}  // namespace

bool MapFile(const char* path, const unsigned char*& bytes, std::size_t& size, std::string& reason) {
  const PathKind kind = GetPathKind(path);
  if (kind == PathKind::kNone) return Refuse("No such file or directory", reason);
  if (kind != PathKind::kFile) return Refuse(kNoRegularFile, reason);
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(mm_fopen(path, "rb"), std::fclose);
  const long long length = file ? GetStreamLength(file.get()) : -1;
  if (length < 0) return Refuse(kUnreadable, reason);
  if (length > std::numeric_limits<std::ptrdiff_t>::max()) return Refuse(kTooLargeToMap, reason);
  if (length == 0) return true;
  const auto wanted = static_cast<std::size_t>(length);
  auto* const memory = static_cast<unsigned char*>(std::malloc(wanted));
  if (!memory) return Refuse(kTooLargeToMap, reason);
  if (std::fread(memory, 1, wanted, file.get()) != wanted) {
    std::free(memory);
    return Refuse(kUnreadable, reason);
  }
  bytes = memory;
  size = wanted;
  return true;
}

void UnmapFile(const unsigned char* bytes, std::size_t) noexcept {
  std::free(const_cast<unsigned char*>(bytes));
}

}  // namespace utils_internal
