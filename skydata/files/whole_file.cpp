// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/whole_file.h"

#include <random>

#include "utils/replace_file.h"
#include "utils/whole_file.h"

namespace skydata {
namespace {

std::string MakeUniqueName() {
  std::random_device random;
  return ".skydata-" + std::to_string(random()) + "-" + std::to_string(random()) + ".tmp";
}

std::string ToUtf8(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::filesystem::path FromUtf8(const std::string& path) { return std::u8string(path.begin(), path.end()); }

}  // namespace

std::string ReadFile(const std::filesystem::path& path) {
  std::error_code ignored;
  if (!std::filesystem::exists(path, ignored)) throw SourceError(path.string(), 0, "cannot be opened");
  std::string bytes, reason;
  if (!ReadWholeFile(ToUtf8(path).c_str(), bytes, reason)) throw SourceError(path.string(), 0, reason);
  return bytes;
}

std::string DescribeRefusal(const SourceError& refusal, const std::string& otherwise) {
  return "the file " + (refusal.GetMessage() == kTooManyBytes ? refusal.GetMessage() : otherwise);
}

TextLines ReadLines(const std::filesystem::path& path) { return SplitTrimmedLines(ReadFile(path)); }

void ReplaceFile(const std::filesystem::path& path, const std::string& bytes) {
  ReplaceFile(path, bytes, [](const std::filesystem::path&) {});
}

void ReplaceFile(const std::filesystem::path& path, const std::string& bytes,
                 const std::function<void(const std::filesystem::path& beside)>& finish) {
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  FileReplacement file;
  const auto refuse = [&] { throw SourceError(path.string(), 0, "cannot be replaced: " + file.GetReason()); };
  if (!file.Open(ToUtf8(path).c_str()) && std::filesystem::exists(path, error)) refuse();
  if (!file.Write(bytes) || !file.Flush()) throw SourceError(path.string(), 0, "cannot be written");
  finish(FromUtf8(file.GetNewPath()));
  if (!file.Commit()) refuse();
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
