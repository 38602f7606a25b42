// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "fuzz/scratch.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "utils/debug.h"
#include "utils/file.h"
#include "utils/path.h"

namespace fuzz {

namespace {

void CheckDiagnostic(const char* text, void*) {
  const std::size_t length = std::strlen(text);
  Require(length != 0 && text[length - 1] == '\n', "a diagnostic ends in a line feed");
}

}  // namespace

void Require(bool promise, const char* what) {
  if (promise) return;
  std::fprintf(stderr, "Broken promise: %s\n", what);
  std::abort();
}

Scratch& Scratch::Get() {
  static Scratch scratch;
  return scratch;
}

Scratch::Scratch() {
  // In memory where the system offers it: renaming over a file may wait for the disk, thousands of times
  // here.
  std::error_code ignored;
  const std::filesystem::path memory = "/dev/shm";
  const auto parent =
      std::filesystem::is_directory(memory, ignored) ? memory : std::filesystem::temp_directory_path();
  // Programs that run at the same time must not share a folder.
  const auto tag = std::chrono::high_resolution_clock::now().time_since_epoch().count();
  m_Folder = parent / ("ci-fuzz-" + std::to_string(tag));
  std::filesystem::create_directories(m_Folder / "data");
  std::filesystem::create_directories(m_Folder / "work");
  ZentharPath::SetRoots(Path("data").c_str(), Path("work").c_str());
  SetDebugSink(CheckDiagnostic, nullptr);
}

Scratch::~Scratch() {
  SetDebugSink(nullptr, nullptr);
  ZentharPath::SetRoots(nullptr, nullptr);
  std::error_code ignored;
  std::filesystem::remove_all(m_Folder, ignored);
}

std::string Scratch::Write(const std::string& name, const std::uint8_t* data, std::size_t size) const {
  const std::string path = Path(name);
  std::FILE* file = mm_fopen(path.c_str(), "wb");
  if (file == nullptr) {  // the first file of its folder
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    file = mm_fopen(path.c_str(), "wb");
  }
  Require(file != nullptr, "the scratch file can be made");
  Require(size == 0 || std::fwrite(data, 1, size, file) == size, "the scratch file can be written");
  std::fclose(file);
  return path;
}

void Scratch::Remove(const std::string& name) const {
  std::error_code ignored;
  std::filesystem::remove(m_Folder / name, ignored);
}

std::string Scratch::Path(const std::string& name) const { return (m_Folder / name).string(); }

}  // namespace fuzz
