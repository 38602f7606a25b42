// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/whole_file.h"

#include <fstream>
#include <iterator>
#include <random>

#include "skydata/files/source_error.h"

namespace skydata {
namespace {

constexpr char kBlanks[] = " \t\r";
constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

std::string MakeUniqueName() {
  std::random_device random;
  return ".skydata-" + std::to_string(random()) + "-" + std::to_string(random()) + ".tmp";
}

}  // namespace

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw SourceError(path.string(), 0, "cannot be opened");
  try {
    return {std::istreambuf_iterator<char>(in), {}};
  } catch (const std::ios_base::failure&) {  // a folder
    throw SourceError(path.string(), 0, "cannot be read");
  }
}

std::vector<TextLine> SplitLines(const std::string& bytes) {
  std::vector<TextLine> lines;
  std::size_t begin = bytes.compare(0, 3, kByteOrderMark) == 0 ? 3 : 0;
  while (begin < bytes.size()) {
    const std::size_t end = std::min(bytes.find('\n', begin), bytes.size());
    std::string text = bytes.substr(begin, end - begin);
    text.erase(text.find_last_not_of(kBlanks) + 1);
    lines.push_back({static_cast<int>(lines.size()) + 1, std::move(text)});
    begin = end + 1;
  }
  return lines;
}

std::vector<TextLine> ReadLines(const std::filesystem::path& path) { return SplitLines(ReadFile(path)); }

void ReplaceFile(const std::filesystem::path& path, const std::string& bytes) {
  ReplaceFile(path, bytes, [](const std::filesystem::path&) {});
}

void ReplaceFile(const std::filesystem::path& path, const std::string& bytes,
                 const std::function<void(const std::filesystem::path& beside)>& finish) {
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  const ScratchFile beside(path.parent_path());
  std::ofstream out(beside.GetPath(), std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  out.close();
  if (!out) throw SourceError(path.string(), 0, "cannot be written");
  finish(beside.GetPath());
  std::filesystem::rename(beside.GetPath(), path, error);
  if (error) throw SourceError(path.string(), 0, "cannot be replaced: " + error.message());
}

ScratchFile::ScratchFile(const std::filesystem::path& folder) {
  do {
    m_Path = folder / MakeUniqueName();
  } while (std::filesystem::exists(m_Path));
}

ScratchFile::~ScratchFile() {
  std::error_code ignored;
  std::filesystem::remove(m_Path, ignored);
}

}  // namespace skydata
