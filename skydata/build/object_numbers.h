// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "skydata/build/source_table.h"

namespace skydata {

// The objects of the other sources, by what people call them in the columns Kind and Object of a table:
//
//   Kind  Object                                           number of the object
//   plnt, moon   number in bodies/planets_moons.tsv        the same
//   star         HR number in stars/stars.tsv              the same
//   astr, comt   number in orbits/asteroids.tsv, comets.tsv   the same
//   gala, nebu, clst, dsnv   number of Messier's list      that in deepsky.txt, sub-type in its top byte
//   cnst         abbreviation of the IAU                   its name id
class ObjectNumbers {
 public:
  // Reads the sources. Throws SourceError when one of them is wrong.
  explicit ObjectNumbers(const std::filesystem::path& source);

  struct Object {
    int kind = 0;  // four-character code
    int number = 0;
  };

  // The object that the cells name. Throws SourceError, naming line and column, when the other sources have
  // none.
  Object Resolve(const SourceTable& table, int row, int kindColumn, int objectColumn) const;

  bool Has(const std::string& kind, const std::string& object) const;

  // The HR numbers of the stars whose parallax is known and positive, ascending.
  const std::vector<int>& GetStarsWithParallax() const { return m_StarsWithParallax; }

 private:
  void AddBodies(const std::filesystem::path& source);
  void AddOrbits(const std::filesystem::path& source);
  void AddStars(const std::filesystem::path& source);
  void AddDeepsky(const std::filesystem::path& source);
  void AddConstellations(const std::filesystem::path& source);

  std::map<std::string, std::map<std::string, int>> m_Numbers;  // by kind, then object
  std::vector<int> m_StarsWithParallax;
};

}  // namespace skydata
