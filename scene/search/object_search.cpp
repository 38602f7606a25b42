// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/object_search.h"

#include <algorithm>
#include <utility>

#include "common_interfaces/planets_and_moons.h"
#include "common_interfaces/field_names.h"
#include "scene/name_key.h"
#include "utils/messages.h"
#include "utils/near_names.h"
#include "utils/text.h"

namespace scene {
namespace {

std::string Numbered(const char* catalog, const CatalogTable& table, int field) {
  const int number = static_cast<int>(FieldNumber(table, field, 0.0));
  return number > 0 ? catalog + std::to_string(number) : "";
}

}  // namespace

int GetKind(const FoundObject& object, const SkyCatalogs& catalogs) {
  if (object.group == ObjectGroup::kStar) return FourCC("star");
  if (object.group == ObjectGroup::kConstellation) return FourCC("cnst");
  if (object.group == ObjectGroup::kBody)
    return catalogs.bodies[static_cast<std::size_t>(object.index)].id.kind;
  return catalogs.deepsky[static_cast<std::size_t>(object.index)].kind;
}

int GetNumber(const FoundObject& object, const SkyCatalogs& catalogs) {
  const auto index = static_cast<std::size_t>(object.index);
  if (object.group == ObjectGroup::kStar) return catalogs.stars.GetNumber(object.index);
  if (object.group == ObjectGroup::kConstellation) return GetTraits(catalogs.constellations[index]).number;
  if (object.group == ObjectGroup::kBody) return catalogs.bodies[index].id.number;
  return catalogs.deepsky[index].number;
}

std::optional<FoundObject> FindObject(const ObjectRef& object, const SkyCatalogs& catalogs) {
  const std::pair<ObjectGroup, int> groups[] = {
      {ObjectGroup::kStar, catalogs.stars.GetCount()},
      {ObjectGroup::kDeepsky, static_cast<int>(catalogs.deepsky.size())},
      {ObjectGroup::kConstellation, static_cast<int>(catalogs.constellations.size())},
      {ObjectGroup::kBody, static_cast<int>(catalogs.bodies.size())}};
  for (const auto& [group, count] : groups) {
    for (int i = 0; i < count; ++i) {
      const FoundObject found = {group, i};
      if (GetKind(found, catalogs) != object.kind) continue;
      if (GetNumber(found, catalogs) == object.number) return found;
    }
  }
  return std::nullopt;
}

ObjectSearch::ObjectSearch(SkyCatalogs& catalogs) {
  AddStars(catalogs);
  AddDeepsky(catalogs);
  AddBodies(catalogs);
  for (int i = 0; i < static_cast<int>(catalogs.constellations.size()); ++i) {
    const auto& constellation = catalogs.constellations[i];
    for (const auto& name : {constellation.name, constellation.abbreviation, constellation.englishName}) {
      Add(name, {ObjectGroup::kConstellation, i});
    }
  }
}

void ObjectSearch::AddStars(SkyCatalogs& catalogs) {
  CatalogTable& table = catalogs.starTable;
  for (int i = 0; i < catalogs.stars.GetCount(); ++i) {
    table.Select(catalogs.stars.GetRecord(i));
    const FoundObject object = {ObjectGroup::kStar, i};
    for (const int field : {CommonInterfaces::FieldIds::ProperName, CommonInterfaces::FieldIds::Bayer, CommonInterfaces::FieldIds::Flamsteed})
      Add(FieldText(table, field), object);
    Add(Numbered("HR ", table, CommonInterfaces::FieldIds::Number), object);
    Add(Numbered("HIP ", table, CommonInterfaces::FieldIds::HipparcosID), object);
  }
}

void ObjectSearch::AddDeepsky(SkyCatalogs& catalogs) {
  CatalogTable& table = catalogs.deepskyTable;
  for (int i = 0; i < static_cast<int>(catalogs.deepsky.size()); ++i) {
    table.Select(catalogs.deepsky[i].record);
    const FoundObject object = {ObjectGroup::kDeepsky, i};
    Add(Numbered("M ", table, CommonInterfaces::FieldIds::MessierNumber), object);
    Add(FieldText(table, CommonInterfaces::FieldIds::NGC_ICnumber), object);
    Add(FieldText(table, CommonInterfaces::FieldIds::ProperName), object);
  }
}

// The list of planets and moons has English names; its moons other than ours have no place in the model.
void ObjectSearch::AddBodies(const SkyCatalogs& catalogs) {
  const CommonInterfaces::PlanetMoonDescription description;
  for (int i = 0; i < static_cast<int>(catalogs.bodies.size()); ++i) {
    const SkyBody& body = catalogs.bodies[i];
    for (const auto& name : body.names) Add(name, {ObjectGroup::kBody, i});
    if (body.hasElements) continue;
    Add(GetBodyLabel(body), {ObjectGroup::kBody, i});
    if (const char* name = description.GetObjectName(body.id)) Add(name, {ObjectGroup::kBody, i});
  }
}

// A name of the same key as one that the object has already says nothing new.
void ObjectSearch::Add(const std::string& written, const FoundObject& object) {
  const std::string key = MakeNameKey(written);
  for (auto name = m_Names.rbegin(); name != m_Names.rend() && name->object == object; ++name) {
    if (name->key == key) return;
  }
  if (!key.empty()) m_Names.push_back({key, written, object});
}

std::vector<FoundObject> ObjectSearch::FindKey(const std::string& key) const {
  std::vector<FoundObject> found;
  for (const auto& name : m_Names) {
    if (name.key == key) found.push_back(name.object);
  }
  return found;
}

std::vector<FoundObject> ObjectSearch::Find(const std::string& name) const {
  constexpr std::string_view kMessier = "messier";
  const std::string key = MakeNameKey(name);
  std::vector<FoundObject> found = FindKey(key);
  if (found.empty()) found = FindKey(MakeNameKey(ExpandGreekLetter(name)));
  if (found.empty() && key.starts_with(kMessier)) found = FindKey("m" + key.substr(kMessier.size()));
  return found;
}

std::optional<FoundObject> ObjectSearch::FindOne(const std::string& name, std::string& error) const {
  constexpr std::size_t kListed = 8;
  const std::vector<FoundObject> found = Find(name);
  if (found.size() == 1) return found.front();
  if (found.empty()) {
    const std::string near = JoinNames(FindNear(name));
    error = "'" + name + "': no such object" + (near.empty() ? "" : "; similar: " + near);
    return std::nullopt;
  }
  error = "'" + name + "': ambiguous, wants one of ";
  for (std::size_t i = 0; i < std::min(found.size(), kListed); ++i)
    error += (i == 0 ? "" : "; ") + GetTitle(found[i]);
  if (found.size() > kListed) error += "; and " + std::to_string(found.size() - kListed) + " more";
  return std::nullopt;
}

std::vector<std::string> ObjectSearch::FindNear(const std::string& name) const {
  std::vector<std::string> keys;
  for (const auto& entry : m_Names) keys.push_back(entry.key);
  std::vector<std::string> names;
  for (const auto& key : FindNearNames(MakeNameKey(name), keys)) {
    const auto entry =
        std::find_if(m_Names.begin(), m_Names.end(), [&key](const Name& n) { return n.key == key; });
    if (std::find(names.begin(), names.end(), entry->written) == names.end()) names.push_back(entry->written);
  }
  return names;
}

std::string ObjectSearch::GetName(const FoundObject& object) const {
  const auto name =
      std::find_if(m_Names.begin(), m_Names.end(), [&object](const Name& n) { return n.object == object; });
  return name == m_Names.end() ? "" : name->written;
}

std::string ObjectSearch::GetTitle(const FoundObject& object) const {
  std::string title, others;
  for (const auto& name : m_Names) {
    if (!(name.object == object)) continue;
    if (title.empty()) {
      title = name.written;
    } else {
      others += (others.empty() ? "" : ", ") + name.written;
    }
  }
  return others.empty() ? title : title + " (" + others + ")";
}

}  // namespace scene
