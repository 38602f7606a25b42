// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "utils/path.h"

namespace test_support {

// A folder of its own for each test, empty at the start and removed at the end, with helpers for whole files.
class TempDir {
 public:
  TempDir() {
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    const std::string name =
        info ? std::string(info->test_suite_name()) + "." + info->name() : std::string("no-test");
    std::string safe = "ci-test-";
    for (char c : name) safe += c == '/' ? '_' : c;
    static int counter = 0;
    m_Path = std::filesystem::temp_directory_path() /
             (safe + "-" + std::to_string(ProcessTag()) + "-" + std::to_string(counter++));
    std::filesystem::remove_all(m_Path);
    std::filesystem::create_directories(m_Path);
  }
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(m_Path, ignored);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  std::string Path(std::string_view name = {}) const { return (m_Path / name).string(); }

  std::string Write(std::string_view name, std::string_view content) const {
    const auto path = m_Path / name;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
    return path.string();
  }

  std::string Read(std::string_view name) const {
    std::ifstream in(m_Path / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

 private:
  // Different programs that run at the same time must not share a folder.
  static unsigned long long ProcessTag() {
    static const auto tag =
        static_cast<unsigned long long>(std::chrono::system_clock::now().time_since_epoch().count());
    return tag;
  }
  std::filesystem::path m_Path;
};

// Points the logical paths at two folders of a TempDir, "data" and "work", while it lives.
class TempRoots {
 public:
  TempRoots() {
    std::filesystem::create_directories(dir.Path("data"));
    std::filesystem::create_directories(dir.Path("work"));
    ZentharPath::SetRoots(dir.Path("data").c_str(), dir.Path("work").c_str());
  }
  ~TempRoots() { ZentharPath::SetRoots(nullptr, nullptr); }

  TempDir dir;
};

}  // namespace test_support
