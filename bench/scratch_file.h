// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

namespace bench {

// A folder of this process for the files that a benchmark reads, removed at the end of the process.
inline std::string ScratchPath(const std::string& name) {
  struct Folder {
    std::filesystem::path path =
        std::filesystem::temp_directory_path() /
        ("ci-bench-" +
         std::to_string(std::filesystem::file_time_type::clock::now().time_since_epoch().count()));
    Folder() { std::filesystem::create_directories(path); }
    ~Folder() {
      std::error_code ignored;
      std::filesystem::remove_all(path, ignored);
    }
  };
  static const Folder folder;
  return (folder.path / name).string();
}

// The whole file in one read.
inline std::string ReadWhole(const std::string& path) {
  std::string content;
  std::FILE* file = std::fopen(path.c_str(), "rb");
  if (file == nullptr) return content;
  std::fseek(file, 0, SEEK_END);
  content.resize(static_cast<std::size_t>(std::ftell(file)));
  std::rewind(file);
  content.resize(std::fread(content.data(), 1, content.size(), file));
  std::fclose(file);
  return content;
}

}  // namespace bench
