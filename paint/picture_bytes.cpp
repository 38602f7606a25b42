// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "paint/picture_file.h"
#include "utils/replace_file.h"

namespace paint {

bool WritePictureBytes(const std::string& path, const std::string& bytes, std::string& error) {
  std::string reason;
  if (ReplaceFileContent(path.c_str(), bytes, reason)) return true;
  error = path + ": cannot be written: " + reason;
  return false;
}

}  // namespace paint
