// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/star_input.h"

#include <fstream>

#include "skydata/files/source_error.h"
#include "skydata/stars/fits_file.h"
#include "skydata/stars/star_index_input.h"
#include "skydata/stars/star_table_input.h"

namespace skydata {

std::unique_ptr<StarInput> OpenStarInput(const std::filesystem::path& path) {
  std::error_code ignored;
  if (!std::filesystem::is_regular_file(path, ignored)) {
    const bool exists = std::filesystem::exists(path, ignored);
    throw SourceError(path.string(), 0, exists ? "is no regular file" : "no such file");
  }
  char first[10] = {};
  std::ifstream file(path, std::ios::binary);
  file.read(first, sizeof first);
  if (FitsFile::IsFits({first, static_cast<std::size_t>(file.gcount())}))
    return std::make_unique<StarIndexInput>(path);
  return std::make_unique<StarTableInput>(path);
}

}  // namespace skydata
