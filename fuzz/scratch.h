// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

namespace fuzz {

// Ends the program when a promise of the code under test is broken; kept in optimised builds.
void Require(bool promise, const char* what);

// A folder of this process with a data root and a work area, which the logical paths point at; removed at the
// end of the process. While it lives every diagnostic text is checked to end in a line feed, and swallowed.
class Scratch {
 public:
  static Scratch& Get();
  ~Scratch();
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  // The resolved path of the file, which then holds the bytes and nothing else. `name` counts from the
  // folder: "data/..." or "work/...".
  std::string Write(const std::string& name, const std::uint8_t* data, std::size_t size) const;
  void Remove(const std::string& name) const;
  std::string Path(const std::string& name) const;

 private:
  Scratch();
  std::filesystem::path m_Folder;
};

}  // namespace fuzz
