// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Which objects can be flown to in three dimensions. File formats: docs/formats/flight_objects.md.
#pragma once

#include <memory>
#include <vector>

#include "common_interfaces/api.h"

namespace CommonInterfaces {

struct DistanceGroup;
struct FlightObjects;

// The slot order is part of the binary interface. Lists are loaded once, by their constructors; afterwards
// every thread may ask.
class COMMON_INTERFACES_API _3DFlightObjectsList {
 public:
  virtual ~_3DFlightObjectsList();
  virtual bool objectInList(int kind, int number) = 0;
};

// The objects whose distance is known.
class COMMON_INTERFACES_API General3DFlightObjectsList : public _3DFlightObjectsList {
 public:
  // "File with distance information (%s) not found\n", with `path` as given, when it cannot be resolved or
  // opened; the list is then empty. A table that ends early keeps what is there of its last group, whatever
  // the group's count says.
  explicit General3DFlightObjectsList(const char* path = "media:find:object_distances_table.bin");
  ~General3DFlightObjectsList() override;
  General3DFlightObjectsList(const General3DFlightObjectsList&) = delete;
  General3DFlightObjectsList& operator=(const General3DFlightObjectsList&) = delete;

  // Always true, even without a file, for "plnt", "moon", "astr", "comt" and "scft". Otherwise whether the
  // first group of that kind has the number; a second group of a kind is never looked at. One look-up in a
  // hash table. The numbers are never sorted: where the file has them out of order, those are found that
  // std::binary_search finds.
  bool objectInList(int kind, int number) override;

 private:
  void Load(const char* path);

  std::vector<DistanceGroup> m_Groups;
};

// The objects listed in "media:find:3d_flight_to_objects.txt".
class COMMON_INTERFACES_API Voyvane3DFlightObjectsList : public _3DFlightObjectsList {
 public:
  // "File with 3d flight information (%s) not found\n", with the logical path. Bad lines are skipped without
  // a message.
  Voyvane3DFlightObjectsList();
  ~Voyvane3DFlightObjectsList() override;
  Voyvane3DFlightObjectsList(const Voyvane3DFlightObjectsList&) = delete;
  Voyvane3DFlightObjectsList& operator=(const Voyvane3DFlightObjectsList&) = delete;

  // Always true for "star", even without a file. Otherwise one look-up in a hash table.
  bool objectInList(int kind, int number) override;

 private:
  std::unique_ptr<const FlightObjects> m_Objects;  // never null
};

}  // namespace CommonInterfaces
