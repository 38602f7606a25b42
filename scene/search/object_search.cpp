// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/object_search.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

#include "common_interfaces/planets_and_moons.h"
#include "scene/catalogs/name_index.h"
#include "scene/catalogs/name_key.h"
#include "scene/catalogs/object_names.h"
#include "scene/search/body_name.h"
#include "scene/search/named_objects.h"
#include "utils/messages.h"
#include "utils/near_names.h"
#include "utils/numbers.h"
#include "utils/text.h"

namespace scene {
namespace {

const SSO_ID kPluto(FourCC("plnt"), astro::kPlutoNumber);
constexpr const char* kPlutoAsAsteroid = "134340 Pluto";

// What a name may leave out at its end, in this order.
constexpr std::string_view kClassWords[] = {"galaxy", "nebula", "cluster", "galaxies"};

// The names that lie ready, else those of the tables.
std::shared_ptr<const NameIndex> TakeOrMake(const std::shared_ptr<const NameIndex>& ready,
                                            void (*add)(SkyCatalogs&, NameIndex&), SkyCatalogs& catalogs) {
  if (ready) return ready;
  const auto made = std::make_shared<NameIndex>();
  add(catalogs, *made);
  return made;
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
  m_Names[0] = TakeOrMake(catalogs.starNames, AddStarNames, catalogs);
  m_Names[1] = TakeOrMake(catalogs.deepskyNames, AddDeepskyNames, catalogs);
  const auto others = std::make_shared<NameIndex>();
  AddBodies(catalogs, *others);
  AddConstellations(catalogs, *others);
  m_Names[2] = others;
  AddUnplacedMoons(catalogs);
}

void ObjectSearch::AddConstellations(const SkyCatalogs& catalogs, NameIndex& names) {
  for (int i = 0; i < static_cast<int>(catalogs.constellations.size()); ++i) {
    const auto& constellation = catalogs.constellations[i];
    for (const auto& name :
         {constellation.localName, constellation.name, constellation.abbreviation, constellation.englishName})
      names.Add(name, ToNamed({ObjectGroup::kConstellation, i}));
  }
}

// The list of planets and moons has English names.
void ObjectSearch::AddBodies(const SkyCatalogs& catalogs, NameIndex& names) {
  const CommonInterfaces::PlanetMoonDescription description;
  for (int i = 0; i < static_cast<int>(catalogs.bodies.size()); ++i) {
    const SkyBody& body = catalogs.bodies[i];
    const std::uint32_t object = ToNamed({ObjectGroup::kBody, i});
    for (const auto& name : body.names) names.Add(name, object);
    if (body.hasElements) continue;
    names.Add(GetBodyLabel(body), object);
    if (const char* name = description.GetObjectName(body.id)) names.Add(name, object);
    if (body.id == kPluto) names.Add(kPlutoAsAsteroid, object);
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

std::vector<FoundObject> ObjectSearch::FindKey(const std::string& key, bool unnumbered) const {
  std::vector<FoundObject> found;
  for (const auto& names : m_Names)
    names->ForKey(key, unnumbered ? NameIndex::kUnnumbered : NameIndex::kPlain,
                  [&found](const NameIndex::Name& name) { found.push_back(FromNamed(name.object)); });
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
  std::vector<FoundObject> found = FindKey(key);
  if (found.empty()) found = FindKey(expanded);
  if (found.empty()) found = FindListed(key);
  if (found.empty()) {
    if (const auto entry = FindCatalogueKey(key)) found = FindKey(*entry);
  }
  if (found.empty()) found = FindKey(expanded, true);
  for (const auto word : kClassWords) {
    if (found.empty()) found = FindKey(key + std::string(word));
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
    const auto number = ParseNumber<int>(std::string_view(key).substr(prefix.size()), 1,
                                         std::numeric_limits<int>::max() - first);
    if (number && FindTileStar(*m_Catalogs, first + *number))
      return FoundObject{ObjectGroup::kTileStar, first + *number};
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
  std::vector<Name> others = GetListed().shown;
  others.insert(others.end(), GetListed().further.begin(), GetListed().further.end());
  AppendFeatureKeys(others);
  std::vector<std::string> keys, written;  // one beside the other
  for (const auto& names : m_Names) {
    for (std::size_t i = 0; i < names->GetCount(); ++i) {
      const NameIndex::Name known = (*names)[i];
      if (known.form != NameIndex::kPlain) continue;
      keys.emplace_back(known.key);
      written.emplace_back(known.written);
    }
  }
  for (const Name& known : others) {
    keys.push_back(known.key);
    written.push_back(known.written);
  }
  std::vector<std::string> near;
  for (const auto& key : FindNearNames(MakeNameKey(name), keys)) {
    const auto place = std::find(keys.begin(), keys.end(), key) - keys.begin();
    const std::string& known = written[static_cast<std::size_t>(place)];
    if (std::find(near.begin(), near.end(), known) == near.end()) near.push_back(known);
  }
  return near;
}

// The index that has the names of objects of the group; null where the lists beside the catalogs have them.
const NameIndex* ObjectSearch::FindIndex(ObjectGroup group) const {
  switch (group) {
    case ObjectGroup::kStar:
      return m_Names[0].get();
    case ObjectGroup::kDeepsky:
      return m_Names[1].get();
    case ObjectGroup::kConstellation:
    case ObjectGroup::kBody:
      return m_Names[2].get();
    default:
      return nullptr;
  }
}

// The name in the language of the texts comes first, or behind the number of a deep-sky object.
std::vector<std::string> ObjectSearch::GetNames(const FoundObject& object) const {
  std::vector<std::string> written;
  if (const NameIndex* const names = FindIndex(object.group))
    names->ForObject(ToNamed(object),
                     [&written](const NameIndex::Name& name) { written.emplace_back(name.written); });
  if (object.group == ObjectGroup::kAsterism || object.group == ObjectGroup::kTileStar) {
    for (const Name& name : GetListed().shown)
      if (name.object == object) written.push_back(name.written);
  }
  std::string local;
  if (object.group == ObjectGroup::kStar && m_Catalogs->stars.HasProperName(object.index))
    local = m_Catalogs->stars.GetLabel(object.index);
  if (object.group == ObjectGroup::kDeepsky)
    local = m_Catalogs->deepsky[static_cast<std::size_t>(object.index)].properName;
  const auto has = [key = MakeNameKey(local)](const std::string& name) { return MakeNameKey(name) == key; };
  if (!local.empty() && std::none_of(written.begin(), written.end(), has))
    written.insert(written.begin() + (object.group == ObjectGroup::kDeepsky && !written.empty() ? 1 : 0),
                   local);
  return written;
}

std::string ObjectSearch::GetName(const FoundObject& object) const {
  if (object.group == ObjectGroup::kFeature) return m_Catalogs->gazetteers.GetFeature(object.index).name;
  const auto names = GetNames(object);
  if (!names.empty()) return names.front();
  return object.group == ObjectGroup::kTileStar ? GetTileStarName(object.index) : "";
}

std::string ObjectSearch::GetOtherNames(const FoundObject& object) const {
  if (object.group == ObjectGroup::kFeature) return "";
  std::vector<std::string> names = GetNames(object);
  if (object.group == ObjectGroup::kTileStar) names.push_back(GetTileStarName(object.index));
  if (!names.empty()) names.erase(names.begin());
  return JoinNames(names);
}

std::string ObjectSearch::GetTitle(const FoundObject& object) const {
  const std::string name = GetName(object);
  if (object.group == ObjectGroup::kFeature)
    return name + " (" + GetBodyName(Gazetteers::GetBody(object.index), *m_Catalogs) + ")";
  const std::string others = GetOtherNames(object);
  return others.empty() ? name : name + " (" + others + ")";
}

}  // namespace scene
