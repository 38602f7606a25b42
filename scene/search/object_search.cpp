// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/object_search.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>
#include <system_error>
#include <utility>

#include "common_interfaces/field_names.h"
#include "common_interfaces/planets_and_moons.h"
#include "scene/name_key.h"
#include "scene/object_names.h"
#include "scene/search/body_name.h"
#include "utils/messages.h"
#include "utils/near_names.h"
#include "utils/text.h"

namespace scene {
namespace {

const SSO_ID kPluto(FourCC("plnt"), astro::kPlutoNumber);
constexpr const char* kPlutoAsAsteroid = "134340 Pluto";

const int kOtherNames = GetUniqueID("OtherNames");  // a column of the NGC alone

// Catalogues by what people call them, and how their entries begin in the tables.
struct CatalogueName {
  std::string_view name;
  std::string entry;
};
const CatalogueName kCatalogues[] = {{"messier", "m"},    {"barnard", "b"},   {"caldwell", "c"},
                                     {"collinder", "cr"}, {"melotte", "mel"}, {"hickson", "hcg"},
                                     {"sharpless", "sh2"}};

// What a name may leave out at its end, in this order.
constexpr std::string_view kClassWords[] = {"galaxy", "nebula", "cluster", "galaxies"};

// "alpha1cen" is "alphacen".
std::string WithoutDigits(std::string key) {
  std::erase_if(key, [](char c) { return c >= '0' && c <= '9'; });
  return key;
}

std::string Numbered(const char* catalog, const CatalogTable& table, int field) {
  const int number = static_cast<int>(FieldNumber(table, field, 0.0));
  return number > 0 ? catalog + std::to_string(number) : "";
}

}  // namespace

int GetKind(const FoundObject& object, const SkyCatalogs& catalogs) {
  if (object.group == ObjectGroup::kStar || object.group == ObjectGroup::kTileStar) return FourCC("star");
  if (object.group == ObjectGroup::kConstellation) return FourCC("cnst");
  if (object.group == ObjectGroup::kAsterism) return FourCC("astm");
  if (object.group == ObjectGroup::kFeature) return FourCC("feat");
  if (object.group == ObjectGroup::kBody)
    return catalogs.bodies[static_cast<std::size_t>(object.index)].id.kind;
  return catalogs.deepsky[static_cast<std::size_t>(object.index)].kind;
}

int GetNumber(const FoundObject& object, const SkyCatalogs& catalogs) {
  const auto index = static_cast<std::size_t>(object.index);
  if (object.group == ObjectGroup::kStar) return catalogs.stars.GetNumber(object.index);
  if (object.group == ObjectGroup::kTileStar) return object.index;
  if (object.group == ObjectGroup::kConstellation) return GetTraits(catalogs.constellations[index]).number;
  if (object.group == ObjectGroup::kBody) return catalogs.bodies[index].id.number;
  if (object.group == ObjectGroup::kAsterism) return catalogs.asterisms.Get()[index].GetNumber();
  if (object.group == ObjectGroup::kFeature) return catalogs.gazetteers.GetFeature(object.index).number;
  return catalogs.deepsky[index].number;
}

namespace {

std::optional<FoundObject> FindFeature(int number, const Gazetteers& gazetteers) {
  for (const SSO_ID& body : Gazetteers::GetBodies()) {
    const int count = static_cast<int>(gazetteers.Get(body).size());
    for (int i = 0; i < count; ++i) {
      const int index = Gazetteers::MakeIndex(body, i);
      if (gazetteers.GetFeature(index).number == number) return FoundObject{ObjectGroup::kFeature, index};
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<FoundObject> FindObject(const ObjectRef& object, const SkyCatalogs& catalogs) {
  if (object.kind == FourCC("feat")) return FindFeature(object.number, catalogs.gazetteers);
  const bool asterism = object.kind == FourCC("astm");
  const std::pair<ObjectGroup, int> groups[] = {
      {ObjectGroup::kAsterism, asterism ? static_cast<int>(catalogs.asterisms.Get().size()) : 0},
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
  if (object.kind != FourCC("star") || !FindTileStar(catalogs, object.number)) return std::nullopt;
  return FoundObject{ObjectGroup::kTileStar, object.number};
}

ObjectSearch::ObjectSearch(SkyCatalogs& catalogs) : m_Catalogs(&catalogs) {
  m_KnownBodies = static_cast<int>(std::count_if(catalogs.bodies.begin(), catalogs.bodies.end(),
                                                 [](const SkyBody& body) { return !body.hasElements; }));
  AddStars(catalogs);
  AddDeepsky(catalogs);
  AddBodies(catalogs);
  AddUnplacedMoons(catalogs);
  AddConstellations(catalogs);
  AddAsterisms(catalogs);
  AddListed(catalogs);
}

void ObjectSearch::AddStars(SkyCatalogs& catalogs) {
  CatalogTable& table = catalogs.starTable;
  for (int i = 0; i < catalogs.stars.GetCount(); ++i) {
    table.Select(catalogs.stars.GetRecord(i));
    const FoundObject object = {ObjectGroup::kStar, i};
    if (catalogs.stars.HasProperName(i)) Add(catalogs.stars.GetLabel(i), object);
    Add(FieldText(table, CommonInterfaces::FieldIds::ProperName), object);
    AddBayer(FieldText(table, CommonInterfaces::FieldIds::Bayer), object);
    Add(FieldText(table, CommonInterfaces::FieldIds::Flamsteed), object);
    Add(Numbered("HR ", table, CommonInterfaces::FieldIds::Number), object);
    Add(Numbered("HIP ", table, CommonInterfaces::FieldIds::HipparcosID), object);
  }
}

void ObjectSearch::AddDeepsky(SkyCatalogs& catalogs) {
  for (int i = 0; i < static_cast<int>(catalogs.deepsky.size()); ++i) {
    const DeepskyObject& entry = catalogs.deepsky[static_cast<std::size_t>(i)];
    const CatalogTable& table = catalogs.deepsky.SelectRecord(entry);
    const FoundObject object = {ObjectGroup::kDeepsky, i};
    Add(Numbered("M ", table, CommonInterfaces::FieldIds::MessierNumber), object);
    Add(FieldText(table, CommonInterfaces::FieldIds::NGC_ICnumber), object);
    Add(entry.properName, object);
    Add(FieldText(table, CommonInterfaces::FieldIds::ProperName), object);
    AddOthers(table, object);
    if (const CatalogTable* further = catalogs.deepsky.SelectFurther(entry)) AddOthers(*further, object);
  }
}

// What a record of the NGC has besides: its own name and what stands between semicolons.
void ObjectSearch::AddOthers(const CatalogTable& table, const FoundObject& object) {
  Add(FieldText(table, CommonInterfaces::FieldIds::NGC_ICnumber), object);
  Add(FieldText(table, CommonInterfaces::FieldIds::ProperName), object);
  std::string_view others = FieldText(table, kOtherNames);
  while (!others.empty()) {
    const auto end = std::min(others.find(';'), others.size());
    Add(std::string(others.substr(0, end)), object);
    others.remove_prefix(std::min(end + 1, others.size()));
  }
}

// The list of planets and moons has English names.
void ObjectSearch::AddBodies(const SkyCatalogs& catalogs) {
  const CommonInterfaces::PlanetMoonDescription description;
  for (int i = 0; i < static_cast<int>(catalogs.bodies.size()); ++i) {
    const SkyBody& body = catalogs.bodies[i];
    for (const auto& name : body.names) Add(name, {ObjectGroup::kBody, i});
    if (body.hasElements) continue;
    Add(GetBodyLabel(body), {ObjectGroup::kBody, i});
    if (const char* name = description.GetObjectName(body.id)) Add(name, {ObjectGroup::kBody, i});
    if (body.id == kPluto) Add(kPlutoAsAsteroid, {ObjectGroup::kBody, i});
  }
}

// Every moon of the list that is no body of the catalogs.
void ObjectSearch::AddUnplacedMoons(const SkyCatalogs& catalogs) {
  CommonInterfaces::PlanetMoonDescription description;
  for (int number = 1; number <= astro::kPlutoNumber; ++number) {
    const SSO_ID planet(FourCC("plnt"), number);
    SSO_ID moon;
    for (bool more = description.GetFirstMoon(moon, planet); more; more = description.GetNextMoon(moon)) {
      if (FindBody(catalogs.bodies, moon) >= 0) continue;
      const char* const parent = description.GetObjectName(planet);
      m_Moons.push_back({MakeNameKey(description.GetObjectName(moon)), parent ? parent : "a planet"});
    }
  }
}

void ObjectSearch::AddBayer(const std::string& written, const FoundObject& object) {
  Add(written, object);
  const std::string key = MakeNameKey(written);
  const std::string unnumbered = WithoutDigits(key);
  if (unnumbered != key) m_Unnumbered.push_back({unnumbered, written, object});
}

// A name of the same key as one that the object has already says nothing new.
void ObjectSearch::Add(const std::string& written, const FoundObject& object) {
  const std::string key = MakeNameKey(written);
  for (auto name = m_Names.rbegin(); name != m_Names.rend() && name->object == object; ++name) {
    if (name->key == key) return;
  }
  if (!key.empty()) m_Names.push_back({key, written, object});
}

std::vector<FoundObject> ObjectSearch::FindIn(const std::vector<Name>& names, const std::string& key) {
  std::vector<FoundObject> found;
  for (const auto& name : names) {
    if (name.key == key) found.push_back(name.object);
  }
  return found;
}

// Asterisms give way to everything else of their names, and planets and moons are meant before the asteroids
// of their names, which their numbers tell: "52 Europa".
std::vector<FoundObject> ObjectSearch::WithoutNamesakes(std::vector<FoundObject> found) const {
  const auto isAsterism = [](const FoundObject& object) { return object.group == ObjectGroup::kAsterism; };
  if (!std::all_of(found.begin(), found.end(), isAsterism)) std::erase_if(found, isAsterism);
  const auto isBody = [](const FoundObject& object) { return object.group == ObjectGroup::kBody; };
  const bool known = std::any_of(found.begin(), found.end(), [&](const auto& object) {
    return isBody(object) && object.index < m_KnownBodies;
  });
  if (known)
    std::erase_if(found, [&](const auto& object) { return isBody(object) && object.index >= m_KnownBodies; });
  return found;
}

std::vector<FoundObject> ObjectSearch::Find(const std::string& name) const {
  const std::string key = MakeNameKey(name), expanded = MakeNameKey(ExpandGreekLetter(name));
  const auto isLost = [this](const FoundObject& object) {  // listed, and in no catalog
    return object.group == ObjectGroup::kTileStar && !FindTileStar(*m_Catalogs, object.index);
  };
  std::vector<FoundObject> found = FindIn(m_Names, key);
  if (found.empty()) found = FindIn(m_Names, expanded);
  std::erase_if(found, isLost);
  if (found.empty() || (found.size() == 1 && found[0].group == ObjectGroup::kAsterism)) {
    for (const FoundObject& listed : FindIn(m_Listed, key)) {
      if (isLost(listed)) continue;
      if (std::find(found.begin(), found.end(), listed) == found.end()) found.push_back(listed);
    }
  }
  for (const auto& [called, entry] : kCatalogues) {
    if (found.empty() && key.starts_with(called)) found = FindIn(m_Names, entry + key.substr(called.size()));
  }
  if (found.empty()) found = FindIn(m_Unnumbered, expanded);
  for (const auto word : kClassWords) {
    if (found.empty()) found = FindIn(m_Names, key + std::string(word));
  }
  if (!found.empty()) return WithoutNamesakes(std::move(found));
  if (const auto star = FindTileStarNamed(key)) found.push_back(*star);
  if (found.empty()) found = FindFeatures(key);
  return found;
}

// What GetTileStarName writes.
std::optional<FoundObject> ObjectSearch::FindTileStarNamed(const std::string& key) const {
  constexpr struct {
    std::string_view prefix;
    int first;
  } kNames[] = {{"hip", kHipparcosNumbers}, {"star", 0}};
  for (const auto& [prefix, first] : kNames) {
    if (!key.starts_with(prefix)) continue;
    int number = 0;
    const char* const end = key.data() + key.size();
    const auto [rest, fault] = std::from_chars(key.data() + prefix.size(), end, number);
    if (fault != std::errc() || rest != end || number > std::numeric_limits<int>::max() - first) continue;
    if (FindTileStar(*m_Catalogs, first + number)) return FoundObject{ObjectGroup::kTileStar, first + number};
  }
  return std::nullopt;
}

std::string ObjectSearch::DescribeMissing(const std::string& name) const {
  const std::string key = MakeNameKey(name);
  for (const auto& moon : m_Moons) {
    if (moon.key == key) return "a moon of " + moon.parent + "; the model does not place it yet";
  }
  const std::string near = JoinNames(FindNear(name));
  return "no such object" + (near.empty() ? "" : "; similar: " + near);
}

std::optional<FoundObject> ObjectSearch::FindOne(const std::string& name, std::string& error) const {
  constexpr std::size_t kListed = 8;
  const std::vector<FoundObject> found = Find(name);
  if (found.size() == 1) return found.front();
  if (found.empty()) {
    error = "'" + name + "': " + DescribeMissing(name);
    return std::nullopt;
  }
  error = "'" + name + "': ambiguous, wants one of ";
  for (std::size_t i = 0; i < std::min(found.size(), kListed); ++i)
    error += (i == 0 ? "" : "; ") + GetTitle(found[i]);
  if (found.size() > kListed) error += "; and " + std::to_string(found.size() - kListed) + " more";
  return std::nullopt;
}

std::vector<std::string> ObjectSearch::FindNear(const std::string& name) const {
  std::vector<Name> all = m_Names;
  all.insert(all.end(), m_Listed.begin(), m_Listed.end());
  AppendFeatureKeys(all);
  std::vector<std::string> keys;
  for (const auto& entry : all) keys.push_back(entry.key);
  std::vector<std::string> names;
  for (const auto& key : FindNearNames(MakeNameKey(name), keys)) {
    const auto entry = std::find_if(all.begin(), all.end(), [&key](const Name& n) { return n.key == key; });
    if (std::find(names.begin(), names.end(), entry->written) == names.end()) names.push_back(entry->written);
  }
  return names;
}

std::string ObjectSearch::GetName(const FoundObject& object) const {
  if (object.group == ObjectGroup::kFeature) return m_Catalogs->gazetteers.GetFeature(object.index).name;
  const auto is = [&object](const Name& name) { return name.object == object; };
  const auto name = std::find_if(m_Names.begin(), m_Names.end(), is);
  if (name != m_Names.end()) return name->written;
  return object.group == ObjectGroup::kTileStar ? GetTileStarName(object.index) : "";
}

std::string ObjectSearch::GetTitle(const FoundObject& object) const {
  if (object.group == ObjectGroup::kFeature)
    return GetName(object) + " (" + GetBodyName(Gazetteers::GetBody(object.index), *m_Catalogs) + ")";
  std::string title, others;
  for (const auto& name : m_Names) {
    if (!(name.object == object)) continue;
    if (title.empty()) {
      title = name.written;
    } else {
      others += (others.empty() ? "" : ", ") + name.written;
    }
  }
  if (object.group == ObjectGroup::kTileStar) {
    const std::string number = GetTileStarName(object.index);
    if (title.empty()) return number;
    others += (others.empty() ? "" : ", ") + number;
  }
  return others.empty() ? title : title + " (" + others + ")";
}

}  // namespace scene
