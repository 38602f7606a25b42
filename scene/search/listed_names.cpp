// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The names that the search takes from lists beside the catalogs: constellations and asterisms in all
// languages, aliases, features of surfaces.
#include <algorithm>
#include <charconv>
#include <unordered_map>

#include "scene/language.h"
#include "scene/name_key.h"
#include "scene/object_search.h"
#include "scene/search/body_name.h"
#include "utils/locale.h"
#include "utils/text.h"

namespace scene {
namespace {

// The object that the list calls "plnt 2" or "moon 301"; nothing for another.
std::optional<FoundObject> FindListedBody(const std::string& object, const SkyCatalogs& catalogs) {
  if (!object.starts_with("plnt ") && !object.starts_with("moon ")) return std::nullopt;
  int number = 0;
  std::from_chars(object.data() + 5, object.data() + object.size(), number);
  const int body = FindBody(catalogs.bodies, SSO_ID(GetFOURCC(object.substr(0, 4).c_str()), number));
  return body < 0 ? std::nullopt : std::optional(FoundObject{ObjectGroup::kBody, body});
}

template <class List, class Is>
std::optional<FoundObject> FindEntry(const List& list, ObjectGroup group, Is is) {
  const auto found = std::find_if(list.begin(), list.end(), is);
  if (found == list.end()) return std::nullopt;
  return FoundObject{group, static_cast<int>(found - list.begin())};
}

}  // namespace

std::string GetBodyName(const SSO_ID& id, const SkyCatalogs& catalogs) {
  const int body = FindBody(catalogs.bodies, id);
  return body < 0 ? "" : GetBodyLabel(catalogs.bodies[static_cast<std::size_t>(body)]);
}

void ObjectSearch::AddConstellations(const SkyCatalogs& catalogs) {
  for (int i = 0; i < static_cast<int>(catalogs.constellations.size()); ++i) {
    const auto& constellation = catalogs.constellations[static_cast<std::size_t>(i)];
    const FoundObject object = {ObjectGroup::kConstellation, i};
    for (const auto& name :
         {constellation.localName, constellation.name, constellation.abbreviation, constellation.englishName})
      Add(name, object);
    if (const std::string key = MakeNameKey(constellation.genitive); key != MakeNameKey(constellation.name))
      m_Listed.push_back({key, constellation.genitive, object});
  }
}

void ObjectSearch::AddAsterisms(const SkyCatalogs& catalogs) {
  const auto& asterisms = catalogs.asterisms.Get();
  for (int i = 0; i < static_cast<int>(asterisms.size()); ++i) {
    const auto& asterism = asterisms[static_cast<std::size_t>(i)];
    for (const auto& name : {asterism.shown, asterism.name}) Add(name, {ObjectGroup::kAsterism, i});
  }
}

// Each name goes to the object that has the other one already.
void ObjectSearch::AddListed(const SkyCatalogs& catalogs) {
  std::unordered_map<std::string, std::vector<const ListedName*>> byKey;
  for (const ListedName& entry : catalogs.names.Get()) {
    if (const auto body = FindListedBody(entry.object, catalogs)) {
      m_Listed.push_back({MakeNameKey(entry.name), entry.name, *body});
    } else if (entry.object.starts_with("cnst ") || entry.object.starts_with("astm ")) {
      AddListedFigure(catalogs, entry);
    } else {
      byKey[MakeNameKey(entry.object)].push_back(&entry);
    }
  }
  for (const Name& name : m_Names) {
    const auto listed = byKey.find(name.key);
    if (listed == byKey.end()) continue;
    for (const ListedName* entry : listed->second)
      m_Listed.push_back({MakeNameKey(entry->name), entry->name, name.object});
    byKey.erase(listed);
  }
  for (const auto& [key, entries] : byKey) AddListedTileStar(key, entries);
}

void ObjectSearch::AddListedFigure(const SkyCatalogs& catalogs, const ListedName& entry) {
  const std::string key = entry.object.substr(5);
  const auto object =
      entry.object[0] == 'c'
          ? FindEntry(catalogs.constellations, ObjectGroup::kConstellation,
                      [&key](const ConstellationName& known) { return known.abbreviation == key; })
          : FindEntry(catalogs.asterisms.Get(), ObjectGroup::kAsterism,
                      [&key](const Asterism& known) { return known.key == key; });
  if (object) m_Listed.push_back({MakeNameKey(entry.name), entry.name, *object});
}

// Stars that are in the tile catalogs have no names but these.
void ObjectSearch::AddListedTileStar(const std::string& key, const std::vector<const ListedName*>& entries) {
  int number = 0;
  if (!key.starts_with("hip")) return;
  std::from_chars(key.data() + 3, key.data() + key.size(), number);
  const FoundObject star = {ObjectGroup::kTileStar, kHipparcosNumbers + number};
  for (const std::string& language : {std::string(GetSystemLocale()), std::string(kDefaultLanguage)}) {
    for (const ListedName* entry : entries) {
      if (entry->language == language) Add(entry->name, star);
    }
  }
  for (const ListedName* entry : entries) m_Listed.push_back({MakeNameKey(entry->name), entry->name, star});
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
