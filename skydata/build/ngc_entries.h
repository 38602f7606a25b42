// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "skydata/build/deepsky_types.h"
#include "skydata/build/source_table.h"

namespace skydata {

// The columns of deepsky/messier.tsv and deepsky/openngc.tsv, in their order.
enum MessierColumn { kMessier, kDesignation, kName, kType, kMagnitude, kLargest, kSmallest, kRA, kDec };
enum NgcColumn {
  kNgcName,
  kNgcType,
  kNgcRA,
  kNgcDec,
  kNgcLargest,
  kNgcSmallest,
  kNgcAngle,
  kNgcBlue,
  kNgcVisual,
  kNgcHubble,
  kNgcMessier,
  kNgcSameAs,
  kNgcConstellation,
  kNgcCommonNames,
  kNgcOtherEntries
};

SourceTable ReadMessierTable(const std::filesystem::path& source);

// An object of Messier's list as the data root knows it.
struct MessierObject {
  int messier;
  const DeepskyType* type;
  int number;
};
// Of a row. Throws SourceError for a type or a number that there is not.
MessierObject ReadMessierObject(const SourceTable& table, int row);

// The entries of deepsky/openngc.tsv, each with what becomes of it. An entry is an object of Messier's list
// when it says so, else when that list has its name as the designation.
class NgcEntries {
 public:
  enum class Fate { kObject, kMessier, kDuplicate, kNonExistent };

  struct Entry {
    Fate fate;
    int messier;                          // 0: none
    const DeepskyType* type;              // null of what is left out
    int number;                           // in lists of favourites
    std::vector<std::string> duplicates;  // other names of it: entries that proved to be the same object
  };

  // Throws SourceError when one of the two tables is wrong: an entry twice, a duplicate of nothing, an object
  // of Messier's list twice or none for one of them.
  explicit NgcEntries(const std::filesystem::path& source);

  const SourceTable& GetTable() const { return m_Table; }
  const Entry& Get(int row) const { return m_Entries[static_cast<std::size_t>(row)]; }
  // The row of the entry of that name, of a duplicate that of the object; -1 when there is none.
  int Find(const std::string& name) const;
  // The common names of the objects of Messier's list.
  const std::set<std::string>& GetMessierNames() const { return m_MessierNames; }

 private:
  using MessierList = std::map<int, MessierObject>;
  MessierList ReadMessier(const std::filesystem::path& source);
  Entry MakeEntry(int row, MessierList& messier) const;
  void AddDuplicate(int row);

  SourceTable m_Table;
  std::vector<Entry> m_Entries;
  std::map<std::string, int> m_Rows;  // by name
  std::map<std::string, int> m_MessierDesignations;
  std::set<std::string> m_MessierNames;
};

// The pieces of a cell between semicolons.
std::vector<std::string> SplitNames(const std::string& cell);

}  // namespace skydata
