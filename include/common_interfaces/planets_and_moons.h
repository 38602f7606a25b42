// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The planets and moons that the application knows by name. File format: docs/formats/planets_and_moons.md.
#pragma once

#include <map>
#include <memory>
#include <utility>

#include "astro/object_id.h"
#include "common_interfaces/api.h"

namespace CommonInterfaces {

// The list is loaded once, by the constructor, from "catalogs\\planets&moons\\planets&moons.txt". A moon's
// number is its planet's number * 100 + k, k = 1, 2, 3 ... One object runs one enumeration of planets and one
// of moons at a time. An object belongs to one thread.
class COMMON_INTERFACES_API PlanetMoonDescription {
 public:
  // A file that is missing or cannot be opened prints text 3007 with its path and leaves the description
  // empty. A bad line prints one line and is skipped, an empty line too:
  //   "Bad string (%s) in file %s\n"                  fewer than three fields
  //   "Bad object type in string (%s) in file %s\n"   the first field has not exactly four characters
  //   "Bad object Id in string (%s) in file %s\n"     a second field that is no number, or deliberately also
  //                                                   a fourth, the flag, that is none
  // Of two lines for one body the later one counts.
  PlanetMoonDescription();
  ~PlanetMoonDescription();
  PlanetMoonDescription(const PlanetMoonDescription&) = delete;
  PlanetMoonDescription& operator=(const PlanetMoonDescription&) = delete;

  // The body's name, whole; owned by the description and valid as long as it. For an unknown body null, and
  // one line "Name for object (%d, %d) not found\n".
  char* GetObjectName(const SSO_ID& id) const;

  // What the body moves around, from the numbers alone, whether or not the file names the two: for a moon n
  // the planet n / 100, for a planet the Sun (planet 10), for the Sun and all other kinds the empty
  // identifier. The name of the result is empty.
  SSO_ID GetParentObject(const SSO_ID& id) const;

  // The planets 1, 2, 3 ... The enumeration ends at the first missing number and stays ended: deliberately,
  // planets behind a gap are never reached. False leaves `out` as it was. The fourth field of a stored
  // identifier is the body's flag, 0 or 1.
  bool GetFirstPlanet(SSO_ID& out);
  bool GetNextPlanet(SSO_ID& out);

  // How many moons follow one another from planet * 100 + 1 on. Only the number of `planet` is looked at,
  // here and in the next two.
  int GetNumberOfMoons(SSO_ID planet) const;
  bool HasMoons(const SSO_ID& planet) const;

  // The moons of a planet, as GetFirstPlanet and GetNextPlanet.
  bool GetFirstMoon(SSO_ID& out, const SSO_ID& planet);
  bool GetNextMoon(SSO_ID& out);

 private:
  struct Body {
    SSO_ID id;
    std::unique_ptr<char[]> name;
  };
  struct Enumeration {
    int kind = -1;
    int number = -1;
    bool isRunning = false;
  };

  void Load();
  void LoadLine(const char* line, const char* path);
  const Body* Find(int kind, long long number) const;
  bool Start(Enumeration& enumeration, int kind, long long number, SSO_ID& out) const;
  bool Advance(Enumeration& enumeration, SSO_ID& out) const;

  std::map<std::pair<int, int>, Body> m_Bodies;  // by kind, then number
  Enumeration m_Planets, m_Moons;
};

}  // namespace CommonInterfaces
