// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "skydata/files/source_error.h"
#include "skydata/files/text_lines.h"

namespace skydata {

// The whole file. Throws SourceError when it cannot be read and when it is longer than utils/whole_file.h
// allows.
std::string ReadFile(const std::filesystem::path& path);

// What a check says of a file that ReadFile refused: that it is too long, or "the file " and `otherwise`.
std::string DescribeRefusal(const SourceError& refusal, const std::string& otherwise);

// The lines of a text file, each without the blanks at its end. Throws SourceError when it cannot be read.
TextLines ReadLines(const std::filesystem::path& path);

// Gives `path` these bytes, whole or not at all, in the way of utils/replace_file.h; makes the folders that
// lead to it. Throws SourceError when that fails: what stood there before then still does.
void ReplaceFile(const std::filesystem::path& path, const std::string& bytes);

// The same, with a last look at the new file before it takes its place: whatever `finish` throws keeps it
// from that.
void ReplaceFile(const std::filesystem::path& path, const std::string& bytes,
                 const std::function<void(const std::filesystem::path& beside)>& finish);

// A name in `folder` that no file has, for a file that this object removes when it goes.
class ScratchFile {
 public:
  explicit ScratchFile(const std::filesystem::path& folder);
  ~ScratchFile();
  ScratchFile(const ScratchFile&) = delete;
  ScratchFile& operator=(const ScratchFile&) = delete;

  const std::filesystem::path& GetPath() const { return m_Path; }

 private:
  std::filesystem::path m_Path;
};

}  // namespace skydata
