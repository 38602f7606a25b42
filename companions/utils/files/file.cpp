// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/file.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <vector>

#include "companions/utils/files/file_platform.h"
#include "utils/file_presence.h"

namespace {

using utils_internal::GetStreamLength;

constexpr std::size_t kSearchBlock = 16384;

// Finds one key in a stream of blocks with the prefix table of Knuth, Morris and Pratt (1977): no byte is
// looked at twice, so a match may begin in any earlier block, and inside an attempt that failed.
class KeyMatcher {
 public:
  KeyMatcher(const unsigned char* key, unsigned size) : m_Key(key), m_Fallback(size), m_Matched(0) {
    for (unsigned i = 1, matched = 0; i < size; ++i) {
      while (matched > 0 && key[i] != key[matched]) matched = m_Fallback[matched - 1];
      if (key[i] == key[matched]) ++matched;
      m_Fallback[i] = matched;
    }
  }

  // Bytes of the block up to and with the end of the first match; 0 when the block completes none.
  unsigned Feed(const unsigned char* block, std::size_t size) {
    for (std::size_t i = 0; i < size; ++i) {
      if (m_Matched == 0) {
        const void* first = std::memchr(block + i, m_Key[0], size - i);
        if (!first) return 0;
        i = static_cast<std::size_t>(static_cast<const unsigned char*>(first) - block);
      }
      while (m_Matched > 0 && block[i] != m_Key[m_Matched]) m_Matched = m_Fallback[m_Matched - 1];
      if (block[i] == m_Key[m_Matched]) ++m_Matched;
      if (m_Matched == m_Fallback.size()) return static_cast<unsigned>(i + 1);
    }
    return 0;
  }

 private:
  const unsigned char* m_Key;
  // After i + 1 matched bytes: how many still match when the next one does not.
  std::vector<unsigned> m_Fallback;
  unsigned m_Matched;
};

// Opens for reading and writing, with what the file holds. A missing file is made by a separate call that
// never shortens one: the file may have come into being meanwhile, or the first call may have failed for
// another reason.
std::FILE* OpenKeeping(const char* path) {
  if (std::FILE* file = mm_fopen(path, "r+b")) return file;
  std::FILE* created = mm_fopen(path, "ab");
  if (!created) return nullptr;
  std::fclose(created);
  return mm_fopen(path, "r+b");
}

}  // namespace

MFile::MFile() = default;
MFile::~MFile() { Close(); }

bool MFile::Open(const char* path, int mode) {
  Close();
  if (!path || !*path || (mode != kRead && mode != kWrite)) return false;
  if (utils_internal::GetPathKind(path) == utils_internal::PathKind::kFolder) return false;
  m_File.reset(mode == kRead ? mm_fopen(path, "rb") : OpenKeeping(path));
  if (!m_File) return false;
  const long long length = GetStreamLength(m_File.get());
  if (length < 0 || length > INT_MAX) {
    m_File.reset();
    return false;
  }
  m_Path = path;
  m_Position = 0;
  m_Moved = false;
  m_Operation = Operation::kNone;
  m_WriteFailed = false;
  m_ReadFailed = false;
  return true;
}

bool MFile::Close() {
  if (!m_File) return true;
  const bool closed = std::fclose(m_File.release()) == 0;
  if (closed && !m_WriteFailed) return true;
  PrintDebugString("Not everything could be written to %s\n", m_Path.c_str());
  return false;
}

// Moves the stream to the position, which C streams also want between reading and writing.
bool MFile::Prepare(Operation next) {
  if (!m_File) return false;
  if (m_Operation == next && !m_Moved) return true;
  if (std::fseek(m_File.get(), m_Position, SEEK_SET) != 0) {
    if (m_Operation == Operation::kWrite) m_WriteFailed = true;  // what was held back went out with this call
    if (next == Operation::kRead) m_ReadFailed = true;
    return false;
  }
  m_Operation = next;
  m_Moved = false;
  return true;
}

unsigned MFile::Read(void* out, unsigned size) {
  if (!out || !Prepare(Operation::kRead)) return 0;
  const unsigned room = static_cast<unsigned>(INT_MAX - m_Position);
  const auto count = static_cast<unsigned>(std::fread(out, 1, std::min(size, room), m_File.get()));
  m_Position += static_cast<int>(count);
  if (count < size && std::ferror(m_File.get()) != 0) m_ReadFailed = true;
  return count;
}

unsigned MFile::Write(const void* in, unsigned size) {
  if (!in || !Prepare(Operation::kWrite)) return 0;
  const unsigned room = static_cast<unsigned>(INT_MAX - m_Position);
  const auto count = static_cast<unsigned>(std::fwrite(in, 1, std::min(size, room), m_File.get()));
  m_Position += static_cast<int>(count);
  if (count < size) m_WriteFailed = true;
  return count;
}

bool MFile::Seek(int origin, int offset) {
  if (!m_File || origin < 0 || origin > 2) return false;
  const int base = origin == 0 ? 0 : origin == 1 ? m_Position : GetLength();
  const long long place = static_cast<long long>(base) + offset;
  if (base < 0 || place < 0 || place > INT_MAX) return false;
  if (place != m_Position) m_Moved = true;
  m_Position = static_cast<int>(place);
  return true;
}

int MFile::Tell() const { return m_File ? m_Position : -1; }

int MFile::GetLength() const {
  if (!m_File) return -1;
  if (m_Operation == Operation::kWrite && std::fflush(m_File.get()) != 0) m_WriteFailed = true;
  const long long length = GetStreamLength(m_File.get());
  if (length < 0) m_ReadFailed = true;
  return static_cast<int>(std::clamp<long long>(length, -1, INT_MAX));
}

int MFile::GetLength(const char* path) {
  MFile file;
  return file.Open(path, kRead) ? file.GetLength() : 0;
}

bool MFile::Search(const void* key, unsigned keySize) {
  if (!m_File || (!key && keySize > 0)) return false;
  if (keySize == 0) return true;
  const int start = m_Position;
  // Also the bound of what the matcher's table may take.
  if (static_cast<long long>(GetLength()) - start < keySize) return false;
  KeyMatcher matcher(static_cast<const unsigned char*>(key), keySize);
  std::vector<unsigned char> block(kSearchBlock);
  for (;;) {
    const int blockStart = m_Position;
    const unsigned count = Read(block.data(), kSearchBlock);
    if (count == 0) break;
    if (const unsigned end = matcher.Feed(block.data(), count)) {
      return Seek(0, blockStart + static_cast<int>(end));
    }
  }
  Seek(0, start);
  return false;
}

FilePresence GetFilePresence(const char* path) {
  using utils_internal::PathKind;
  if (!path || !*path) return FilePresence::kAbsent;
  const PathKind kind = utils_internal::GetPathKind(path);
  if (kind == PathKind::kNone) return FilePresence::kAbsent;
  if (kind == PathKind::kFolder) return FilePresence::kFolder;
  return kind == PathKind::kUnknown ? FilePresence::kUnknown : FilePresence::kPresent;
}

bool IsRegularFile(const char* path) {
  return path && utils_internal::GetPathKind(path) == utils_internal::PathKind::kFile;
}

std::vector<std::string> ListFolder(const char* path) {
  if (!path || !*path) return {};
  std::vector<std::string> names = utils_internal::ListNames(path);
  std::erase_if(names, [](const std::string& name) { return name == "." || name == ".."; });
  return names;
}

std::string GetAbsolutePath(const char* path) {
  return utils_internal::MakeAbsolute(path && *path ? path : ".");
}

std::string GetTemporaryFolder() {
  const std::string folder = utils_internal::FindTemporaryFolder();
  return utils_internal::GetPathKind(folder) == utils_internal::PathKind::kFolder ? folder : std::string();
}

bool CreateEmptyFile(const char* path) { return path && *path && utils_internal::MakeEmptyFile(path); }
