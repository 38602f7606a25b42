// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include <gtest/gtest.h>

#include "support/debug_capture.h"
#include "support/fault_injection_linux.h"
#include "support/temp_dir.h"

namespace test_support {

// The files below a folder, with their content. A list that is empty is as good as none; a part file is not.
inline std::map<std::string, std::string> ReadAll(const TempDir& dir) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(dir.Path())) {
    const auto name = std::filesystem::relative(entry.path(), dir.Path());
    if (entry.is_regular_file() && (entry.file_size() > 0 || name.extension() == ".tmp"))
      files[name.string()] = dir.Read(name.string());
  }
  return files;
}

// Makes a folder with `prepare(roots)` and then runs `save(roots)` once for each call to the system that it
// makes, of which that one fails. What it answers must be true: the folder is then as it is when nothing
// fails, or as it was, and holds nothing else. `save` must make a difference.
template <class Prepare, class Save>
void FailEveryCall(Prepare prepare, Save save) {
  constexpr int kMostCalls = 2000;
  std::map<std::string, std::string> before, after;
  {
    const TempRoots roots;
    prepare(roots);
    before = ReadAll(roots.dir);
    ASSERT_TRUE(save(roots));
    after = ReadAll(roots.dir);
    ASSERT_NE(before, after);
  }
  int refused = 0;
  for (int i = 0;; ++i) {
    ASSERT_LT(i, kMostCalls);
    const TempRoots roots;
    prepare(roots);
    const DebugCapture debug;
    FaultInjection fault(i);
    const bool saved = save(roots);
    fault.Stop();
    SCOPED_TRACE(fault.GetCall() + ", call " + std::to_string(i));
    EXPECT_EQ(ReadAll(roots.dir), saved ? after : before);
    refused += saved ? 0 : 1;
    if (!fault.GetCall().empty()) continue;
    EXPECT_TRUE(saved) << "when nothing fails";
    break;
  }
  EXPECT_GT(refused, 5) << "failures that save answered with false";
}

}  // namespace test_support
