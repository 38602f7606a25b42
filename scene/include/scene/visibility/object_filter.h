// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The filters of the settings, matched against the objects of a frame.
//
// A field of a section takes part while its compare status is not 0; the settings container turns it into a
// query. An object is shown when it passes every query of its section. What a query asks, say its name and
// its condition:
//
//   condition 0       nothing: the field is a plain setting
//   1  range          two values, least and most, both included; an object of which the quantity is unknown
//                     fails
//   2  switches       value i is that of catalogue i, not 0: objects of that catalogue pass. Of several
//                     catalogues that list an object one is enough
//   3  undefined      one value: whether objects of which the quantity is unknown pass (1; they then pass the
//                     other queries about it as well) or fail (0)
//   0x4000 label list the one value chosen by element 0: the object's class or sub-type must be it
//   256 identifiers   the numbers of the favourites: the object must be one of them
//
//   name                condition   quantity
//   VisMagnitude        1           magnitude
//   ColorIndexBV        1           colour index of a star
//   LargestDimension    1           size of a deep-sky object, radians
//   CatalogType         2           StarCatalogBit of a star, DeepskyCatalogBit of a deep-sky object
//   SpectrType          0x4000      spectral class of a star, codes of GetSpectrType
//   SpectrTypeUndef     3           the same
//   LuminosityUndef     3           luminosity class of a star, FindLuminosityClass
//   Type                0x4000      sub-type of a deep-sky object
//
// A query that fits none of these (an unknown name or condition, too few values, a value that is not a
// number) is not applied; one diagnostic line names its field.
#pragma once

#include <string>
#include <vector>

#include "common_interfaces/queries.h"
#include "common_interfaces/settings_data.h"
#include "scene/api.h"
#include "scene/catalogs/object_traits.h"

namespace scene {

// Condition codes that frames give a meaning to, besides those of the library. Settings files keep them:
// frozen.
enum FilterCondition : unsigned {
  kNoCondition = 0,
  kRangeCondition = 1,
  kSwitchesCondition = 2,
  kUndefinedCondition = 3
};

// What a rule compares.
enum class Quantity : unsigned char { kMagnitude, kColour, kSize, kCatalogs, kClass, kNumber, kLuminosity };

// One query, ready to be matched.
struct SCENE_API FilterRule {
  int nameId;
  unsigned condition;  // FilterCondition, or one of the library's
  Quantity quantity;
  float least, most;           // of a range; magnitudes as codes
  unsigned wanted;             // bits of the switches that are on, or the class
  bool unknownPasses = false;  // an object of which the quantity is unknown

  bool Passes(const ObjectTraits& traits) const;
};

// The filters of one section.
class SCENE_API ObjectFilter {
 public:
  // Takes the queries of a list; the list and its queries are not needed afterwards. `section` is for
  // messages.
  void Compile(const CommonInterfaces::TBaseList<CommonInterfaces::BaseQuery*>& queries, int section);

  bool IsEmpty() const { return m_Rules.empty(); }
  // Allocates nothing; an empty filter lets everything pass.
  bool Passes(const ObjectTraits& traits) const;
  bool Passes(const FilterRule& rule, const ObjectTraits& traits) const;
  const std::vector<FilterRule>& GetRules() const { return m_Rules; }

 private:
  bool MakeRule(const CommonInterfaces::BaseQuery& query, FilterRule& rule);
  bool TakeNumbers(const CommonInterfaces::BaseQuery& query);
  void LetUnknownPass();

  std::vector<FilterRule> m_Rules;
  std::vector<int> m_Numbers;  // of the favourites, ascending
};

// The filters of all kinds of objects that a frame draws. One thread.
class SCENE_API ObjectFilters {
 public:
  ObjectFilters();

  // Compiles the sections that were changed since the last time, and only then allocates. A section that is
  // off makes no queries: its filter waits until it is on. The changed flags of the sections compiled are
  // cleared: one object of this class follows one container.
  void Refresh(CommonInterfaces::SettingsData& settings);

  // By four-character code: "star", "clst", "gala", "nebu", "dsnv", "cnst", "plnt", "moon", "astr", "comt",
  // "scft"; other kinds have an empty filter.
  const ObjectFilter& Get(int kind) const;

  static const ObjectFilters& None();  // lets everything pass

 private:
  struct Entry {
    int kind;
    ObjectFilter filter;
  };
  std::vector<Entry> m_Entries;
};

// "VisMagnitude", or "@" and the hexadecimal name id for a name that is not in the vocabulary.
SCENE_API std::string GetFieldTitle(int nameId);

// "star" of FourCC("star").
SCENE_API std::string GetCodeText(int code);

}  // namespace scene
