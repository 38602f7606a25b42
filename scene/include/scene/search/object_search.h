// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scene/api.h"
#include "scene/catalogs/sky_catalogs.h"
#include "scene/display/display_list.h"

namespace scene {

// The catalogs in which an object is known by an index.
enum class ObjectGroup { kStar, kTileStar, kDeepsky, kConstellation, kBody, kAsterism, kFeature };

// An object of the catalogs by its index there; a star of a tile catalog by its number, a feature of a
// surface by the index that the gazetteers give it.
struct FoundObject {
  ObjectGroup group;
  int index;

  bool operator==(const FoundObject&) const = default;
};

// An object of which a name begins like what somebody is typing.
struct Suggestion {
  FoundObject object;
  std::string name;  // the one that begins so, UTF-8
};

// Kind and number of the object, as filters and favourites know it.
SCENE_API int GetKind(const FoundObject& object, const SkyCatalogs& catalogs);
SCENE_API int GetNumber(const FoundObject& object, const SkyCatalogs& catalogs);

// The object of that kind and number, as a display list names it (display_list.h); nothing when the catalogs
// have none. Looks at one object after the other: for a click, not for every record of a frame. Any thread.
SCENE_API std::optional<FoundObject> FindObject(const ObjectRef& object, const SkyCatalogs& catalogs);

// Finds objects by any of their names: proper names, "α CMa" or "alpha CMa" or "alp CMa", "9 CMa", "HR 2491",
// "HIP 32349", "M 31", "NGC 224", "Caldwell 20" or "C20", constellations in Latin and English; planets in the
// current language and as the list of bodies calls them, "Ceres" or "1 Ceres", "1P/Halley", "Halley" or "1P",
// satellites by name or catalogue number; stars of tile catalogs, which have no names, by "HIP 70890", and
// those that were imported by "Star 100000123". Pluto is one object, the planet, and "134340 Pluto" another
// name of it. A Bayer letter that several stars share by numbers stands for all of them: "alpha Cen" for α1
// and α2. Upper and lower case, accents, blanks and punctuation do not matter, and where nothing else has
// such a name "Galaxy", "Nebula" or "Cluster" at its end may be missing: "Sombrero". Planets and moons come
// before asteroids of the same name: "Europa" is the moon, "52 Europa" the asteroid.
//
// Besides the names that the tables have, those in all languages that the list of names has are found:
// "Beteigeuze", "North Star", "Großer Wagen" (name_list.h). Asterisms give way to other objects of their
// name. Only what nothing else is called is looked for on the surfaces of bodies (gazetteers.h): "Tycho", and
// where several bodies have such a feature the Moon's; "Copernicus (Mars)" says which.
class SCENE_API ObjectSearch {
 public:
  // Takes the names that lie ready with the catalogs, else reads them from their tables, whose current record
  // changes. The catalogs are kept by reference, for the stars of tile catalogs.
  explicit ObjectSearch(SkyCatalogs& catalogs);

  // Every object of that name: none, one, or several when the name is ambiguous.
  std::vector<FoundObject> Find(const std::string& name) const;
  // The one object of that name. Nothing when there is none or more than one: `error` is then one line that
  // names similar names, or the candidates, or says whose moon it is when the list of planets and moons knows
  // the name of a body that the model has no place for.
  std::optional<FoundObject> FindOne(const std::string& name, std::string& error) const;
  // Names like that one, for a name that nothing has.
  std::vector<std::string> FindNear(const std::string& name) const;
  // Objects of which a name begins with the text, each once, the best first and at most `most`: the names
  // that Find knows, by the same rules. What is called exactly so comes first, then what is seen best, by a
  // name sooner than by a number or a Greek letter. Features of surfaces come behind all others.
  // None for a text without letters and digits. Some milliseconds; the first call reads what Find puts off.
  std::vector<Suggestion> Suggest(const std::string& text, std::size_t most) const;
  // Its best known name, "Sirius".
  std::string GetName(const FoundObject& object) const;
  // All others, with commas between them: "α CMa, 9 CMa, HR 2491, HIP 32349". A feature has none.
  std::string GetOtherNames(const FoundObject& object) const;
  // "Sirius (α CMa, 9 CMa, HR 2491, HIP 32349)"
  std::string GetTitle(const FoundObject& object) const;

 private:
  struct Name {
    std::string key;
    std::string written;
    FoundObject object;
  };
  struct Candidate;
  // What the lists beside the catalogs call objects.
  struct ListedNames {
    std::vector<Name> shown;    // those of asterisms and of stars of tile catalogs, which titles tell
    std::vector<Name> further;  // which titles leave out
  };
  // A body that has a name and no place.
  struct UnplacedMoon {
    std::string key, parent;
  };
  static void AddBodies(const SkyCatalogs& catalogs, NameIndex& names);
  static void AddConstellations(const SkyCatalogs& catalogs, NameIndex& names);
  void AddUnplacedMoons(const SkyCatalogs& catalogs);
  const ListedNames& GetListed() const;
  ListedNames ReadListed() const;
  std::vector<FoundObject> FindKey(const std::string& key, bool unnumbered = false) const;
  std::vector<FoundObject> FindListed(const std::string& key) const;
  std::vector<FoundObject> FindFeatures(const std::string& key) const;
  void AppendFeatureKeys(std::vector<Name>& names) const;
  void AppendCandidates(const std::string& key, std::vector<Candidate>& candidates) const;
  double GetProminence(const FoundObject& object) const;
  const NameIndex* FindIndex(ObjectGroup group) const;
  std::vector<std::string> GetNames(const FoundObject& object) const;
  std::vector<FoundObject> WithoutNamesakes(std::vector<FoundObject> found) const;
  std::optional<FoundObject> FindTileStarNamed(const std::string& key) const;
  std::string DescribeMissing(const std::string& name) const;

  const SkyCatalogs* m_Catalogs;
  std::shared_ptr<const NameIndex> m_Names[3];  // of stars, of deep-sky objects, of all others
  // When they are first asked for.
  mutable std::optional<ListedNames> m_Listed;
  mutable std::optional<std::vector<Name>> m_Features;
  std::vector<UnplacedMoon> m_Moons;
  int m_KnownBodies = 0;  // the first so many of the list are planets and moons
};

}  // namespace scene
