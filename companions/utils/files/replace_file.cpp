// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/replace_file.h"

#include <cerrno>
#include <system_error>

#include "companions/utils/files/replace_file_platform.h"
#include "utils/contained_call.h"
#include "utils/file.h"
#include "utils/file_presence.h"

namespace {

constexpr char kNothingIsOpen[] = "it is not open";
constexpr char kNoMemory[] = "no memory";  // short enough to be kept without any

void SetReason(std::string& to, const char* reason) noexcept {
  if (!RunsThrough([&] { to = reason; })) to = kNoMemory;
}

// Whether the file holds exactly these bytes; null: whether there is none. What cannot be read is another
// one.
bool HoldsStill(const std::string& path, const std::string_view* expected) {
  MFile file;
  if (!expected) return GetFilePresence(path.c_str()) == FilePresence::kAbsent;
  if (!file.Open(path.c_str(), MFile::kRead)) return false;
  std::string_view rest = *expected;
  char block[16384];
  for (;;) {
    const unsigned size = file.Read(block, sizeof block);
    if (rest.substr(0, size) != std::string_view(block, size)) return false;
    rest.remove_prefix(size);
    if (size == 0) return rest.empty() && !file.HasReadFailed();
  }
}

}  // namespace

FileReplacement::FileReplacement() noexcept = default;
FileReplacement::~FileReplacement() { Discard(); }

bool FileReplacement::Open(const char* path) noexcept {
  Discard();
  m_Reason.clear();
  if (RunsThrough([&] { OpenNewFile(path ? path : ""); })) return m_File != nullptr;
  Discard();
  return Fail(kNoMemory);
}

void FileReplacement::OpenNewFile(const char* path) {
  if (!*path) {
    m_Reason = "it has no name";
    return;
  }
  if (!utils_internal::FollowLinks(path, m_Target, m_Reason)) return;
  if (!utils_internal::MayBeReplaced(m_Target, m_Reason)) return;
  // A name that is not in m_NewPath is never removed: until the file is made it may be somebody else's.
  std::string newPath;
  m_File = utils_internal::CreateBeside(m_Target, newPath, m_Reason);
  if (m_File) m_NewPath.swap(newPath);
  m_Spoiled = false;
}

bool FileReplacement::Write(std::string_view bytes) noexcept {
  if (!m_File) return Fail(kNothingIsOpen);
  if (bytes.empty()) return !m_Spoiled;  // the address of nothing may be null
  if (std::fwrite(bytes.data(), 1, bytes.size(), m_File) != bytes.size()) return FailByErrno();
  return !m_Spoiled;
}

bool FileReplacement::Flush() noexcept {
  if (!m_File) return Fail(kNothingIsOpen);
  if (std::fflush(m_File) != 0) return FailByErrno();
  return !m_Spoiled;
}

bool FileReplacement::Commit() noexcept {
  if (!FinishNewFile()) return false;
  return MoveIntoPlace();
}

bool FileReplacement::CommitOver(const std::string_view* expected) noexcept {
  m_Overtaken = false;
  if (!FinishNewFile()) return false;
  bool isReplaced = false;
  const bool ran = RunsThrough([&] {
    // From the look at the target to its replacement nobody else may replace it.
    const utils_internal::TargetLock lock(m_Target);
    m_Overtaken = !HoldsStill(m_Target, expected);
    if (m_Overtaken) {
      Fail("somebody else has changed it meanwhile");
    } else {
      isReplaced = MoveIntoPlace();
    }
  });
  if (!ran) Fail(kNoMemory);
  if (!isReplaced) Discard();
  return isReplaced;
}

bool FileReplacement::FinishNewFile() noexcept {
  if (!m_File) return Fail(kNothingIsOpen);
  if (!utils_internal::FlushToDisk(m_File)) FailByErrno();
  std::FILE* const file = m_File;
  m_File = nullptr;
  if (std::fclose(file) != 0) FailByErrno();
  if (m_Spoiled) Discard();
  return !m_Spoiled;
}

bool FileReplacement::MoveIntoPlace() noexcept {
  bool isMoved = false;
  if (!RunsThrough([&] { isMoved = utils_internal::MoveOver(m_NewPath, m_Target, m_Reason); })) {
    Fail(kNoMemory);
  }
  if (isMoved) m_NewPath.clear();
  Discard();
  return isMoved;
}

void FileReplacement::Discard() noexcept {
  if (m_File) std::fclose(m_File);
  m_File = nullptr;
  if (!m_NewPath.empty()) utils_internal::RemoveFile(m_NewPath);
  m_NewPath.clear();
}

// The first reason is the one that counts: what fails later fails because of it.
bool FileReplacement::Fail(const char* reason) noexcept {
  m_Spoiled = true;
  if (m_Reason.empty()) SetReason(m_Reason, reason);
  return false;
}

bool FileReplacement::FailByErrno() noexcept {
  const int code = errno;
  if (!RunsThrough([&] { Fail(std::generic_category().message(code).c_str()); })) Fail(kNoMemory);
  return false;
}

bool ReplaceFileContent(const char* path, std::string_view content, std::string& reason) noexcept {
  FileReplacement file;
  const bool replaced = file.Open(path) && file.Write(content) && file.Commit();
  if (!replaced) SetReason(reason, file.GetReason().c_str());
  return replaced;
}
