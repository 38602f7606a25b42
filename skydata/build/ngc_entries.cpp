// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/build/ngc_entries.h"

#include "skydata/files/source_error.h"

namespace skydata {
namespace {

constexpr int kMaxMessier = 110;

const std::vector<std::string> kMessierColumns = {
    "Messier", "NGC_IC", "Name", "Type", "V_mag", "Largest_arcmin", "Smallest_arcmin", "RA_deg", "Dec_deg"};
const std::vector<std::string> kNgcColumns = {
    "Name",  "Type",   "RA_deg",  "Dec_deg", "Largest_arcmin", "Smallest_arcmin", "PosAngle_deg", "B_mag",
    "V_mag", "Hubble", "Messier", "SameAs",  "Constellation",  "CommonNames",     "OtherEntries"};

}  // namespace

std::vector<std::string> SplitNames(const std::string& cell) {
  std::vector<std::string> names;
  for (std::size_t begin = 0; begin < cell.size();) {
    const std::size_t end = std::min(cell.find(';', begin), cell.size());
    if (end > begin) names.push_back(cell.substr(begin, end - begin));
    begin = end + 1;
  }
  return names;
}

SourceTable ReadMessierTable(const std::filesystem::path& source) {
  return SourceTable(source / "deepsky" / "messier.tsv", kMessierColumns);
}

MessierObject ReadMessierObject(const SourceTable& table, int row) {
  const int messier = table.GetInteger(row, kMessier, 1, kMaxMessier);
  const DeepskyType* const type = FindMessierType(table.GetText(row, kType));
  if (!type) table.Fail(row, kType, "'" + table.GetText(row, kType) + "' is no known type");
  return {messier, type, MakeDeepskyNumber(type->subType, messier)};
}

NgcEntries::NgcEntries(const std::filesystem::path& source)
    : m_Table(source / "deepsky" / "openngc.tsv", kNgcColumns) {
  MessierList messier = ReadMessier(source);
  for (int row = 0; row < m_Table.GetRowCount(); ++row) {
    if (!m_Rows.emplace(m_Table.GetText(row, kNgcName), row).second)
      m_Table.Fail(row, kNgcName, m_Table.GetText(row, kNgcName) + " stands above already");
    m_Entries.push_back(MakeEntry(row, messier));
  }
  if (!messier.empty()) {
    throw SourceError((source / "deepsky" / "openngc.tsv").string(), 0,
                      "has no entry for Messier " + std::to_string(messier.begin()->first));
  }
  for (int row = 0; row < m_Table.GetRowCount(); ++row) {
    if (Get(row).fate == Fate::kDuplicate) AddDuplicate(row);
  }
}

NgcEntries::MessierList NgcEntries::ReadMessier(const std::filesystem::path& source) {
  const SourceTable table = ReadMessierTable(source);
  MessierList messier;
  for (int row = 0; row < table.GetRowCount(); ++row) {
    const MessierObject object = ReadMessierObject(table, row);
    messier.emplace(object.messier, object);
    m_MessierDesignations.emplace(table.GetText(row, kDesignation), object.messier);
    m_MessierNames.insert(table.GetText(row, kName));
  }
  return messier;
}

// What is found of Messier's list is taken off it.
NgcEntries::Entry NgcEntries::MakeEntry(int row, MessierList& messier) const {
  const std::string &name = m_Table.GetText(row, kNgcName), &type = m_Table.GetText(row, kNgcType);
  if (type == "Dup") return {Fate::kDuplicate, 0, nullptr, 0, {}};
  if (type == "NonEx") return {Fate::kNonExistent, 0, nullptr, 0, {}};
  const auto designated = m_MessierDesignations.find(name);
  const bool isMarked = !m_Table.GetText(row, kNgcMessier).empty();
  if (isMarked || designated != m_MessierDesignations.end()) {
    const int number = isMarked ? m_Table.GetInteger(row, kNgcMessier, 1, kMaxMessier) : designated->second;
    const auto found = messier.find(number);
    if (found == messier.end())
      m_Table.Fail(row, kNgcMessier, "no Messier " + std::to_string(number) + " is left");
    const MessierObject object = found->second;
    messier.erase(found);
    return {Fate::kMessier, number, object.type, object.number, {}};
  }
  const DeepskyType* const known = FindNgcType(type, m_Table.GetText(row, kNgcHubble));
  if (!known) m_Table.Fail(row, kNgcType, "'" + type + "' is no known type");
  const auto number = FindEntryNumber(name);
  if (!number) m_Table.Fail(row, kNgcName, "'" + name + "' is no entry of a known catalogue");
  return {Fate::kObject, 0, known, MakeDeepskyNumber(known->subType, *number), {}};
}

// Messier's objects are named by his list alone: M 102 is here another sight of M 101.
void NgcEntries::AddDuplicate(int row) {
  const std::string& name = m_Table.GetText(row, kNgcName);
  const int of = Find(name);
  if (of < 0) m_Table.Fail(row, kNgcSameAs, "'" + m_Table.GetText(row, kNgcSameAs) + "' names no object");
  if (!name.starts_with("M ")) m_Entries[static_cast<std::size_t>(of)].duplicates.push_back(name);
}

int NgcEntries::Find(const std::string& name) const {
  const auto found = m_Rows.find(name);
  if (found == m_Rows.end()) return -1;
  if (Get(found->second).type) return found->second;
  for (const std::string& other : SplitNames(m_Table.GetText(found->second, kNgcSameAs))) {
    const auto object = m_Rows.find(other);
    if (object != m_Rows.end() && Get(object->second).type) return object->second;
  }
  return -1;
}

}  // namespace skydata
