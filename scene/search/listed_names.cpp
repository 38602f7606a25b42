// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The names that the search takes from lists beside the catalogs: constellations and asterisms in all
// languages, aliases, features of surfaces.
#include <algorithm>
#include <unordered_map>

#include "scene/catalogs/language.h"
#include "scene/catalogs/name_key.h"
#include "scene/search/body_name.h"
#include "scene/search/object_search.h"
#include "utils/locale.h"
#include "utils/numbers.h"
#include "utils/text.h"

namespace scene {
namespace {

// The object that the list calls "plnt 2" or "moon 301"; nothing for another.
std::optional<FoundObject> FindListedBody(const std::string& object, const SkyCatalogs& catalogs) {
  if (!object.starts_with("plnt ") && !object.starts_with("moon ")) return std::nullopt;
  const auto number = ParseNumber<int>(std::string_view(object).substr(5));
  if (!number) return std::nullopt;
  const int body = FindBody(catalogs.bodies, SSO_ID(GetFOURCC(object.substr(0, 4).c_str()), *number));
  return body < 0 ? std::nullopt : std::optional(FoundObject{ObjectGroup::kBody, body});
}

template <class List, class Is>
std::optional<FoundObject> FindEntry(const List& list, ObjectGroup group, Is is) {
  const auto found = std::find_if(list.begin(), list.end(), is);
  if (found == list.end()) return std::nullopt;
  return FoundObject{group, static_cast<int>(found - list.begin())};
}

// What the list calls "plnt 2", "cnst Ori", "astm BigDipper"; nothing for what has its name from a catalog.
std::optional<FoundObject> FindListedObject(const std::string& object, const SkyCatalogs& catalogs) {
  const std::string key = object.size() > 5 ? object.substr(5) : "";
  if (object.starts_with("cnst "))
    return FindEntry(catalogs.constellations, ObjectGroup::kConstellation,
                     [&key](const ConstellationName& known) { return known.abbreviation == key; });
  if (object.starts_with("astm "))
    return FindEntry(catalogs.asterisms.Get(), ObjectGroup::kAsterism,
                     [&key](const Asterism& known) { return known.key == key; });
  return FindListedBody(object, catalogs);
}

// Stars that are in the tile catalogs have no names but those of the list.
std::optional<FoundObject> FindListedTileStar(const std::string& key) {
  if (!key.starts_with("hip")) return std::nullopt;
  const auto number =
      ParseNumber<int>(std::string_view(key).substr(3), 1, kImportedNumbers - kHipparcosNumbers - 1);
  if (!number) return std::nullopt;
  return FoundObject{ObjectGroup::kTileStar, kHipparcosNumbers + *number};
}

// The name in the language of the texts, then the English one.
std::vector<const ListedName*> OrderByLanguage(const std::vector<const ListedName*>& entries) {
  std::vector<const ListedName*> ordered;
  for (const std::string& language : {std::string(GetSystemLocale()), std::string(kDefaultLanguage)}) {
    for (const ListedName* entry : entries) {
      const bool isNew = std::find(ordered.begin(), ordered.end(), entry) == ordered.end();
      if (entry->language == language && isNew) ordered.push_back(entry);
    }
  }
  return ordered;
}

}  // namespace

std::string GetBodyName(const SSO_ID& id, const SkyCatalogs& catalogs) {
  const int body = FindBody(catalogs.bodies, id);
  return body < 0 ? "" : GetBodyLabel(catalogs.bodies[static_cast<std::size_t>(body)]);
}

const ObjectSearch::ListedNames& ObjectSearch::GetListed() const {
  if (!m_Listed) m_Listed = ReadListed();
  return *m_Listed;
}

// Each name goes to the object that has the other one already.
ObjectSearch::ListedNames ObjectSearch::ReadListed() const {
  ListedNames listed;
  const auto& asterisms = m_Catalogs->asterisms.Get();
  for (int i = 0; i < static_cast<int>(asterisms.size()); ++i) {
    const Asterism& asterism = asterisms[static_cast<std::size_t>(i)];
    listed.shown.push_back({MakeNameKey(asterism.shown), asterism.shown, {ObjectGroup::kAsterism, i}});
    if (MakeNameKey(asterism.name) != listed.shown.back().key)
      listed.shown.push_back({MakeNameKey(asterism.name), asterism.name, {ObjectGroup::kAsterism, i}});
  }
  for (int i = 0; i < static_cast<int>(m_Catalogs->constellations.size()); ++i) {
    const std::string& genitive = m_Catalogs->constellations[static_cast<std::size_t>(i)].genitive;
    listed.further.push_back({MakeNameKey(genitive), genitive, {ObjectGroup::kConstellation, i}});
  }
  std::unordered_map<std::string, std::vector<const ListedName*>> byKey;
  for (const ListedName& entry : m_Catalogs->names.Get()) {
    const auto known = FindListedObject(entry.object, *m_Catalogs);
    if (known) {
      listed.further.push_back({MakeNameKey(entry.name), entry.name, *known});
    } else {
      byKey[MakeNameKey(entry.object)].push_back(&entry);
    }
  }
  for (auto& [key, entries] : byKey) {
    const auto found = FindKey(key);
    const auto object = found.empty() ? FindListedTileStar(key) : std::optional(found.front());
    if (!object) continue;
    for (const ListedName* entry :
         found.empty() ? OrderByLanguage(entries) : std::vector<const ListedName*>())
      listed.shown.push_back({MakeNameKey(entry->name), entry->name, *object});
    for (const ListedName* entry : entries)
      listed.further.push_back({MakeNameKey(entry->name), entry->name, *object});
  }
  return listed;
}

std::vector<FoundObject> ObjectSearch::FindListed(const std::string& key) const {
  std::vector<FoundObject> found;
  for (const auto* names : {&GetListed().shown, &GetListed().further}) {
    for (const Name& name : *names) {
      const bool isLost =
          name.object.group == ObjectGroup::kTileStar && !FindTileStar(*m_Catalogs, name.object.index);
      if (name.key != key || isLost) continue;
      if (std::find(found.begin(), found.end(), name.object) == found.end()) found.push_back(name.object);
    }
  }
  return found;
}

// The Moon comes first of all bodies.
std::vector<FoundObject> ObjectSearch::FindFeatures(const std::string& key) const {
  std::vector<FoundObject> found;
  for (const SSO_ID& body : Gazetteers::GetBodies()) {
    const auto& features = m_Catalogs->gazetteers.Get(body);
    const std::string names[] = {MakeNameKey(Gazetteers::FindName(body)),
                                 MakeNameKey(GetBodyName(body, *m_Catalogs))};
    for (int i = 0; i < static_cast<int>(features.size()); ++i) {
      const std::string feature = MakeNameKey(features[static_cast<std::size_t>(i)].name);
      if (!key.starts_with(feature)) continue;
      const std::string rest = key.substr(feature.size());
      if (rest.empty() || rest == names[0] || rest == names[1])
        found.push_back({ObjectGroup::kFeature, Gazetteers::MakeIndex(body, i)});
    }
    if (body.kind == FourCC("moon") && body.number == kMoonNumber && !found.empty()) break;
  }
  return found;
}

// Those with a letter behind the name of another crater are left out: nobody means them by mistake.
void ObjectSearch::AppendFeatureKeys(std::vector<Name>& names) const {
  for (const SSO_ID& body : Gazetteers::GetBodies()) {
    const auto& features = m_Catalogs->gazetteers.Get(body);
    for (int i = 0; i < static_cast<int>(features.size()); ++i) {
      const SurfaceFeature& feature = features[static_cast<std::size_t>(i)];
      if (feature.type == "Satellite feature") continue;
      names.push_back(
          {MakeNameKey(feature.name), feature.name, {ObjectGroup::kFeature, Gazetteers::MakeIndex(body, i)}});
    }
  }
}

}  // namespace scene
