// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/star_tile_runs.h"

#include <algorithm>
#include <cstring>

#include "utils/bytes.h"

namespace scene {
namespace {

constexpr std::size_t kStoredSize = 8 + StarTileRecord::kSize;

bool IsBelow(const StarTileRuns::Entry& a, const StarTileRuns::Entry& b) { return a.key < b.key; }

template <class Run>
bool IsLater(const Run& a, const Run& b) {
  return a.key > b.key;
}

}  // namespace

StarTileRuns::StarTileRuns(const std::string& target, std::size_t entriesInMemory)
    : m_Path(target + ".sort"), m_Most(entriesInMemory) {}

bool StarTileRuns::Add(const Entry& entry) {
  m_Entries.reserve(m_Most);  // pages that are never written to cost nothing, growing would copy
  if (m_Entries.size() == m_Most && !Spill()) return false;
  m_Entries.push_back(entry);
  return true;
}

bool StarTileRuns::Spill() {
  std::sort(m_Entries.begin(), m_Entries.end(), IsBelow);
  bool isWritten = m_Spill.IsOpen() || m_Spill.Open(m_Path.c_str());
  unsigned char stored[kStoredSize];
  for (const Entry& entry : m_Entries) {
    if (!isWritten) break;
    StoreLE64(stored, entry.key);
    std::memcpy(stored + 8, entry.record.data(), entry.record.size());
    isWritten = m_Spill.Write({reinterpret_cast<const char*>(stored), sizeof stored});
  }
  if (!isWritten) {
    m_Reason = m_Spill.GetReason();
    return false;
  }
  m_Spilt += m_Entries.size();
  m_RunEnds.push_back(m_Spilt);
  m_Entries.clear();
  return true;
}

bool StarTileRuns::Sort() {
  if (m_RunEnds.empty()) {
    std::sort(m_Entries.begin(), m_Entries.end(), IsBelow);
    return true;
  }
  if (!Spill()) return false;
  std::vector<Entry>().swap(m_Entries);
  if (!m_Spill.Flush() || !m_Spilled.Open(m_Spill.GetNewPath().c_str(), m_Reason)) {
    if (m_Reason.empty()) m_Reason = m_Spill.GetReason();
    return false;
  }
  const unsigned char* begin = m_Spilled.GetBytes();
  for (const std::uint64_t end : m_RunEnds) {
    const unsigned char* const runEnd = m_Spilled.GetBytes() + static_cast<std::size_t>(end * kStoredSize);
    if (begin != runEnd) m_Runs.push_back({LoadLE64(begin), begin, runEnd});
    begin = runEnd;
  }
  std::make_heap(m_Runs.begin(), m_Runs.end(), IsLater<Run>);
  return true;
}

bool StarTileRuns::Take(Entry& entry) {
  if (m_RunEnds.empty()) {
    if (m_Next == m_Entries.size()) return false;
    entry = m_Entries[m_Next++];
    return true;
  }
  if (m_Runs.empty()) return false;
  std::pop_heap(m_Runs.begin(), m_Runs.end(), IsLater<Run>);
  Run& run = m_Runs.back();
  entry.key = run.key;
  std::memcpy(entry.record.data(), run.next + 8, entry.record.size());
  run.next += kStoredSize;
  if (run.next == run.end) {
    m_Runs.pop_back();
  } else {
    run.key = LoadLE64(run.next);
    std::push_heap(m_Runs.begin(), m_Runs.end(), IsLater<Run>);
  }
  return true;
}

}  // namespace scene
