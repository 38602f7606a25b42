// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/whole_file.h"

#include <algorithm>
#include <memory>

#include "companions/utils/files/file_platform.h"
#include "utils/file.h"

namespace {

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

constexpr std::size_t kFirstPiece = 1u << 16;  // of what has no length, or changes it meanwhile
constexpr char kUnreadable[] = "cannot be read";

bool Refuse(const char* why, std::string& content, std::string& reason) {
  content = std::string();
  reason = why;
  return false;
}

bool EndReading(bool hasFailed, bool isBounded, std::string& content, std::string& reason) {
  if (hasFailed) return Refuse(kUnreadable, content, reason);
  if (!isBounded) return Refuse(kTooManyBytes, content, reason);
  return true;
}

// `read(bytes, count)` answers how many came; fewer at the end. Each time one byte more is asked for than is
// expected, so that the end shows without another reading.
template <class Read>
bool ReadPieces(std::size_t expected, std::string& content, Read read) {
  std::size_t size = 0;
  for (std::size_t room = expected + 1;; room = std::max(size, kFirstPiece)) {
    content.resize(std::min<std::size_t>(size + room, kMostFileBytes + 1u));
    const std::size_t wanted = content.size() - size, got = read(content.data() + size, wanted);
    size += got;
    if (got == wanted && size <= kMostFileBytes) continue;
    content.resize(size);
    return size <= kMostFileBytes;
  }
}

}  // namespace

bool IsBoundedFile(const char* path, std::string& reason) {
  using utils_internal::PathKind;
  const PathKind kind = path ? utils_internal::GetPathKind(path) : PathKind::kNone;
  if (kind == PathKind::kOther) {
    reason = "is no regular file";
    return false;
  }
  const File file(kind == PathKind::kFile ? mm_fopen(path, "rb") : nullptr, std::fclose);
  const long long length = file ? utils_internal::GetStreamLength(file.get()) : -1;
  if (length < 0 || length > static_cast<long long>(kMostFileBytes))
    reason = length < 0 ? kUnreadable : kTooManyBytes;
  return length >= 0 && length <= static_cast<long long>(kMostFileBytes);
}

bool ReadWholeFile(const char* path, std::string& content, std::string& reason) {
  const bool isFolder = path && utils_internal::GetPathKind(path) == utils_internal::PathKind::kFolder;
  const File file(isFolder ? nullptr : mm_fopen(path, "rb"), std::fclose);
  if (!file) return Refuse(kUnreadable, content, reason);
  const long long length = utils_internal::GetStreamLength(file.get());
  if (length > static_cast<long long>(kMostFileBytes)) return Refuse(kTooManyBytes, content, reason);
  const auto read = [&file](char* bytes, std::size_t count) {
    return std::fread(bytes, 1, count, file.get());
  };
  const bool isBounded =
      ReadPieces(length > 0 ? static_cast<std::size_t>(length) : kFirstPiece, content, read);
  return EndReading(std::ferror(file.get()) != 0, isBounded, content, reason);
}

bool ReadWholeStream(std::istream& stream, std::string& content, std::string& reason) {
  const auto read = [&stream](char* bytes, std::size_t count) {
    stream.read(bytes, static_cast<std::streamsize>(count));
    return static_cast<std::size_t>(stream.gcount());
  };
  const bool isBounded = ReadPieces(kFirstPiece, content, read);
  return EndReading(stream.bad(), isBounded, content, reason);
}
