// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>

namespace skydata {

// The objects that the catalogs of a data root have. Files that name others point nowhere.
class ObjectIndex {
 public:
  void Add(int kind, int number);

  // A further number by which pictures name a deep-sky object: that of a general catalog.
  void AddDesignation(int number) { m_Designations.insert(number); }

  // Whether an object of a kind is missing: never for kinds of which there is no catalog here, and of users.
  // The top byte of the number of a deep-sky object, its sub-type, is left aside when it is 0 or that of all
  // galaxies' articles.
  bool IsMissing(int kind, int number) const;

  // The same for the number of a picture: the low 24 bits of a deep-sky object of whatever kind, or a
  // designation.
  bool IsPictureMissing(int number) const;

 private:
  bool HasLowNumber(int kind, int number) const;

  std::map<int, std::set<int>> m_Numbers, m_LowNumbers;
  std::set<int> m_Designations;
};

inline constexpr int kLowNumberBits = 0xFFFFFF;
// Articles of galaxies are filed under their low number and this.
inline constexpr int kGalaxyArticle = 0x3C000000;

bool IsDeepskyKind(int kind);

}  // namespace skydata
