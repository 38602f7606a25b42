// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/mapped_file.h"

#include <utility>

#include "companions/utils/files/mapped_file_platform.h"

MappedFile::~MappedFile() { Close(); }

MappedFile::MappedFile(MappedFile&& other) noexcept
    : m_Bytes(std::exchange(other.m_Bytes, nullptr)), m_Size(std::exchange(other.m_Size, 0)) {}

MappedFile& MappedFile::operator=(MappedFile&& other) noexcept {
  std::swap(m_Bytes, other.m_Bytes);
  std::swap(m_Size, other.m_Size);
  return *this;
}

bool MappedFile::Open(const char* path, std::string& reason) {
  Close();
  return utils_internal::MapFile(path ? path : "", m_Bytes, m_Size, reason);
}

void MappedFile::Close() noexcept {
  utils_internal::UnmapFile(std::exchange(m_Bytes, nullptr), std::exchange(m_Size, 0));
}
