// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "paint/picture_file.h"
#include "utils/file.h"

namespace paint {
namespace {

bool WriteBytes(const std::string& path, const std::string& bytes) {
  std::FILE* file = mm_fopen(path.c_str(), "wb");
  if (!file) return false;
  const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  return std::fclose(file) == 0 && written;
}

}  // namespace

bool WritePictureBytes(const std::string& path, const std::string& bytes, std::string& error) {
  const std::string beside = path + ".part";
  std::error_code failure;
  if (WriteBytes(beside, bytes)) {
    std::filesystem::rename(beside, path, failure);
    if (!failure) return true;
  } else {
    failure = std::error_code(errno, std::generic_category());
  }
  error = path + ": cannot be written: " + failure.message();
  std::filesystem::remove(beside, failure);
  return false;
}

}  // namespace paint
