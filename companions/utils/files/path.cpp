// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "utils/path.h"

#include <cctype>
#include <string_view>

#include "companions/utils/files/file_platform.h"

namespace {

constexpr std::size_t kMaxPathLength = 4095;  // no system opens a longer one

using utils_internal::GetPathKind;
using utils_internal::IsSeparator;
using utils_internal::MakeFolder;
using utils_internal::PathKind;

// Made on first use, so that static initialisers of other libraries find it whatever the order of loading.
struct Roots {
  std::string data, work, language;
};
Roots& GetRoots() {
  static Roots s_Roots;
  return s_Roots;
}

// A file of which the system does not tell whether it is there counts as there: nobody may pass by it, to a
// file of another root, or to none.
bool MayExist(const std::string& path) { return GetPathKind(path) != PathKind::kNone; }

bool IsSlash(char c) { return c == '/' || c == '\\'; }

// Of a path that is not empty.
bool IsAbsolute(std::string_view path) {
  if (IsSlash(path[0])) return true;
  return path.size() >= 3 && std::isalpha(static_cast<unsigned char>(path[0])) && path[1] == ':' &&
         IsSlash(path[2]);
}

// The pieces of a logical name, each behind a '/', to be put behind a root. "" when the name names nothing or
// would leave its root.
std::string GetRelativePath(std::string_view logical) {
  std::string relative;
  while (!logical.empty()) {
    const std::size_t end = logical.find_first_of(":\\/");
    const std::string_view piece = logical.substr(0, end);
    if (piece == "..") return "";
    if (!piece.empty() && piece != ".") relative.append("/").append(piece);
    logical.remove_prefix(end == std::string_view::npos ? logical.size() : end + 1);
  }
  return relative;
}

std::string BelowRoot(const std::string& root, const std::string& relative) {
  return root.empty() || relative.empty() ? "" : root + relative;
}

// The folder that `path` lies in; "" when the path shows none.
std::string ParentOf(const std::string& path) {
  std::size_t end = path.size();
  while (end > 0 && !IsSeparator(path[end - 1])) --end;
  while (end > 1 && IsSeparator(path[end - 1])) --end;
  return path.substr(0, end);
}

// The folders that lead to `path`.
bool MakeFoldersAbove(const std::string& path) {
  const std::string folder = ParentOf(path);
  if (folder.empty() || GetPathKind(folder) == PathKind::kFolder) return true;
  // What fails at the beginning may be no more than the name of a drive or a server.
  bool reached = false;
  for (std::size_t i = 1; i < folder.size(); ++i) {
    if (!IsSeparator(folder[i])) continue;
    const bool made = MakeFolder(folder.substr(0, i));
    if (reached && !made) return false;
    reached = made;
  }
  return MakeFolder(folder);
}

std::string CopyRoot(const char* root) {
  std::string copy = root ? root : "";
  // The root folder of a system is the one name that keeps its separator, as "/." so that "/name" can follow.
  while (copy.size() > 1 && IsSeparator(copy.back())) copy.pop_back();
  if (copy == "/") copy += '.';
  return copy;
}

}  // namespace

void ZentharPath::SetRoots(const char* dataRoot, const char* workRoot) {
  GetRoots() = {CopyRoot(dataRoot), CopyRoot(workRoot), ""};
}

void ZentharPath::SetLanguageRoot(const char* folder) { GetRoots().language = CopyRoot(folder); }

std::string ZentharPath::GetPath(const char* logicalPath) {
  if (!logicalPath || !*logicalPath) return "";
  if (IsAbsolute(logicalPath)) return MayExist(logicalPath) ? logicalPath : "";
  const std::string relative = GetRelativePath(logicalPath);
  for (const std::string* root : {&GetRoots().work, &GetRoots().language, &GetRoots().data}) {
    std::string path = BelowRoot(*root, relative);
    if (!path.empty() && MayExist(path)) return path;
  }
  return "";
}

std::string ZentharPath::GetWorkPath(const char* logicalPath, bool mustExist, bool create) {
  if (!logicalPath || !*logicalPath) return "";
  const std::string path =
      IsAbsolute(logicalPath) ? logicalPath : BelowRoot(GetRoots().work, GetRelativePath(logicalPath));
  if (path.empty() || path.size() > kMaxPathLength || (mustExist && !MayExist(path))) return "";
  if (create && !MakeFoldersAbove(path)) return "";
  return path;
}
