// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/file_replacement.h"

#include "companions/utils/file_platform.h"

namespace utils_internal {

std::unique_ptr<FileReplacement> FileReplacement::Create(const std::string& path) {
  std::string target = FollowLinks(path);
  if (target.empty() || IsWriteProtected(target)) return nullptr;
  const PathKind kind = GetPathKind(target);
  if (kind != PathKind::kNone && kind != PathKind::kFile) return nullptr;
  std::unique_ptr<FileReplacement> replacement(new FileReplacement(path, std::move(target)));
  replacement->m_File = CreateBeside(replacement->m_Target, replacement->m_NewPath);
  return replacement->m_File ? std::move(replacement) : nullptr;
}

FileReplacement::~FileReplacement() {
  if (!m_File) return;
  std::fclose(m_File);
  GiveUp();
}

bool FileReplacement::WriteFormatted(const char* format, std::va_list arguments) {
  if (std::vfprintf(m_File, format, arguments) < 0) m_Failed = true;
  return !m_Failed;
}

bool FileReplacement::Commit() {
  if (!FlushToDisk(m_File)) m_Failed = true;
  if (std::fclose(m_File) != 0) m_Failed = true;
  m_File = nullptr;
  if (!m_Failed && MoveOver(m_NewPath, m_Target)) return true;
  GiveUp();
  return false;
}

void FileReplacement::GiveUp() {
  m_File = nullptr;
  RemoveFile(m_NewPath);
  PrintDebugString("File %s could not be written and is left as it was\n", m_Path.c_str());
}

}  // namespace utils_internal
