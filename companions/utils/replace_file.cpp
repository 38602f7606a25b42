// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/replace_file.h"

#include <cerrno>
#include <exception>
#include <system_error>

#include "companions/utils/file_platform.h"
#include "companions/utils/replace_file_platform.h"

using utils_internal::PathKind;

namespace {

constexpr char kNothingIsOpen[] = "it is not open";
constexpr char kNoMemory[] = "no memory";  // short enough to be kept without any

void SetReason(std::string& to, const char* reason) noexcept {
  try {
    to = reason;
  } catch (const std::exception&) {
    to = kNoMemory;
  }
}

}  // namespace

FileReplacement::FileReplacement() noexcept = default;
FileReplacement::~FileReplacement() { Discard(); }

bool FileReplacement::Open(const char* path) noexcept {
  Discard();
  m_Reason.clear();
  try {
    OpenNewFile(path ? path : "");
  } catch (const std::exception&) {
    Discard();
    return Fail(kNoMemory);
  }
  return m_File != nullptr;
}

void FileReplacement::OpenNewFile(const char* path) {
  m_Target = utils_internal::FollowLinks(path);
  const PathKind kind = utils_internal::GetPathKind(m_Target);
  if (m_Target.empty()) {
    m_Reason = *path ? "its links lead in a circle" : "it has no name";
  } else if (kind != PathKind::kNone && kind != PathKind::kFile) {
    m_Reason = "it is no regular file";
  } else if (utils_internal::IsWriteProtected(m_Target)) {
    m_Reason = "it is write-protected";
  } else {
    // A name that is not in m_NewPath is never removed: until the file is made it may be somebody else's.
    std::string newPath;
    m_File = utils_internal::CreateBeside(m_Target, newPath, m_Reason);
    if (m_File) m_NewPath.swap(newPath);
    m_Spoiled = false;
  }
}

bool FileReplacement::Write(std::string_view bytes) noexcept {
  if (!m_File) return Fail(kNothingIsOpen);
  return (std::fwrite(bytes.data(), 1, bytes.size(), m_File) == bytes.size() || FailByErrno()) && !m_Spoiled;
}

bool FileReplacement::Flush() noexcept {
  if (!m_File) return Fail(kNothingIsOpen);
  return (std::fflush(m_File) == 0 || FailByErrno()) && !m_Spoiled;
}

bool FileReplacement::Commit() noexcept {
  if (!m_File) return Fail(kNothingIsOpen);
  if (!utils_internal::FlushToDisk(m_File)) FailByErrno();
  std::FILE* const file = m_File;
  m_File = nullptr;
  if (std::fclose(file) != 0) FailByErrno();
  try {
    if (!m_Spoiled && utils_internal::MoveOver(m_NewPath, m_Target, m_Reason)) {
      m_NewPath.clear();
      return true;
    }
  } catch (const std::exception&) {
    Fail(kNoMemory);
  }
  Discard();
  return false;
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
  try {
    return Fail(std::generic_category().message(code).c_str());
  } catch (const std::exception&) {
    return Fail(kNoMemory);
  }
}

bool ReplaceFileContent(const char* path, std::string_view content, std::string& reason) noexcept {
  FileReplacement file;
  const bool replaced = file.Open(path) && file.Write(content) && file.Commit();
  if (!replaced) SetReason(reason, file.GetReason().c_str());
  return replaced;
}
