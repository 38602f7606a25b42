// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/data_root.h"

#include <filesystem>

#include "scene/catalogs/language.h"
#include "utils/file_presence.h"
#include "utils/path.h"

namespace scene {
namespace {

namespace fs = std::filesystem;

constexpr const char* kTextFile = "qxstrings.txt";  // what makes a folder a data root

bool IsDataRoot(const fs::path& folder) { return IsRegularFile((folder / kTextFile).string().c_str()); }

}  // namespace

bool FindDataRoot(const std::string& programFolder, std::string& root, std::string& error) {
  const fs::path prefix = fs::path(programFolder).parent_path();
  const fs::path installed = prefix / "share" / "common_interfaces" / "data", built = prefix / "data";
  for (const auto& folder : {installed, built}) {
    if (IsDataRoot(folder)) {
      root = folder.string();
      return true;
    }
  }
  error = (installed / kTextFile).string() + ": not found, nor " + (built / kTextFile).string();
  return false;
}

bool SetSkyRoots(const std::string& data, const std::string& work, std::string& error) {
  if (!IsDataRoot(data)) {
    error = (fs::path(data) / kTextFile).string() + ": not found, so the folder is no data root";
    return false;
  }
  ZentharPath::SetRoots(GetAbsolutePath(data.c_str()).c_str(),
                        work.empty() ? "" : GetAbsolutePath(work.c_str()).c_str());
  return true;
}

bool OpenDataRoot(const std::string& data, const std::string& work, const std::string& language,
                  SkyCatalogs& catalogs, std::string& error) {
  if (!SetSkyRoots(data, work, error)) return false;
  const auto fetchNothing = [] {};  // nobody has taken a text yet
  if (!SwitchLanguage(data, language, fetchNothing, error)) {
    error = "language '" + language + "': " + error;
    return false;
  }
  return LoadSkyCatalogs(catalogs, error);
}

}  // namespace scene
