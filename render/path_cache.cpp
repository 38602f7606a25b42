// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <utility>

#include "common_interfaces/path_line.h"
#include "common_interfaces/render_settings.h"
#include "utils/debug.h"
#include "utils/one_thread.h"

namespace CommonInterfaces {

std::map<int, PathLine*> RenderSettings::s_PathLineCache;

namespace {

// Defined behind the cache and therefore destroyed before it: what is cached then goes with the process.
struct CacheOwner {
  ~CacheOwner() {
    for (const auto& [key, path] : RenderSettings::s_PathLineCache) delete path;
    RenderSettings::s_PathLineCache.clear();
  }
} g_CacheOwner;

// Anybody may have changed the cache, which is public: an entry may be null.
bool IsPathOf(const PathLine* path, const SSO_ID& object, const SSO_ID& reference, int kind) {
  return path != nullptr && path->m_Object == object && path->m_Reference == reference &&
         path->m_Kind == kind;
}

}  // namespace

PathLine* RenderSettings::takePathFromCache(const SSO_ID& object, const SSO_ID* reference, int kind) {
  const ChangesObject use(&s_PathLineCache, "RenderSettings::s_PathLineCache");
  if (reference == nullptr) {
    PrintDebugString("Path cache: no reference object given\n");
    return nullptr;
  }
  for (auto entry = s_PathLineCache.begin(); entry != s_PathLineCache.end(); ++entry) {
    PathLine* path = entry->second;
    if (!IsPathOf(path, object, *reference, kind)) continue;
    s_PathLineCache.erase(entry);
    return path;
  }
  return nullptr;
}

void RenderSettings::movePathToCache(PathLine* path) {
  const ChangesObject use(&s_PathLineCache, "RenderSettings::s_PathLineCache");
  if (path == nullptr) return;
  std::map<int, PathLine*> room = {{0, path}};  // before anything changes
  // A path that is handed over twice finds itself.
  std::erase_if(s_PathLineCache, [path](const auto& entry) { return entry.second == path; });
  delete takePathFromCache(path->m_Object, &path->m_Reference, path->m_Kind);

  const int key = static_cast<int>(s_PathLineCache.size()) + 1;
  auto node = room.extract(room.begin());
  node.key() = key;
  const auto [place, isNew, rest] = s_PathLineCache.insert(std::move(node));
  if (isNew) return;
  // The cache counts its entries, not its keys: a path that stands under this key has no owner any more.
  delete place->second;
  place->second = path;
}

}  // namespace CommonInterfaces
