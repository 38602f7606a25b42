// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/reader/file_reader.h"

#include <algorithm>
#include <set>

#include "common_interfaces/settings_data.h"
#include "skydata/settings/reader/block_fields.h"
#include "skydata/settings/reader/block_scan.h"
#include "skydata/settings/reader/block_search.h"
#include "skydata/settings/reader/record_reader.h"
#include "skydata/settings/text/format.h"
#include "utils/bytes.h"

namespace skydata {
namespace {

constexpr std::string_view kTag = "SREV";
constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kMaxBlocks = 65535;

class FileReader {
 public:
  FileReader(std::string_view bytes, const FieldNames& names, RecordLayout undecided)
      : m_Bytes(bytes), m_Names(names), m_Undecided(undecided), m_Search(bytes) {}

  SettingsFile Read() {
    m_File.size = m_Bytes.size();
    if (m_Bytes.empty()) Note(FindingCode::kEmptyFile, 0, "the file is empty");
    ReadHeader();
    for (std::size_t place = m_First; place < m_Bytes.size();) place = ReadAt(place);
    if (m_File.blocks.empty() && m_File.damage.empty())
      Note(FindingCode::kNoBlock, m_Bytes.size(), "the file holds no block");
    return std::move(m_File);
  }

 private:
  void Note(FindingCode code, std::size_t offset, std::string text) {
    m_File.damage.push_back({code, offset, std::move(text)});
  }

  void ReadHeader() {
    m_File.hasHeader = m_Bytes.starts_with(kTag);
    if (!m_File.hasHeader) return;
    m_First = std::min(kHeaderSize, m_Bytes.size());
    if (m_First < kHeaderSize) {
      Note(FindingCode::kHeaderCut, kTag.size(), "the file ends inside the version");
    } else {
      m_File.version = LoadLE32(m_Bytes.data() + kTag.size());
    }
  }

  // Takes what stands there and returns where the next block may begin.
  std::size_t ReadAt(std::size_t place) {
    if (m_File.blocks.size() >= kMaxBlocks || !m_Search.HasSteps()) return PassOver(place, m_Bytes.size());
    BlockScan scan = ScanBlock(m_Bytes, place);
    m_Search.Spend(scan.passed);
    if (!scan.isFramed) scan.block.end = m_Search.FindNext(place + 1);
    return scan.isFramed || IsLikeBlock(scan) ? Keep(scan) : PassOver(place, scan.block.end);
  }

  bool IsLikeBlock(const BlockScan& scan) const {
    if (!scan.damage) return false;  // not even a key
    const FileBlock& block = scan.block;
    return block.offset == m_First || block.id == CommonInterfaces::SettingsData::kDefaultsTag ||
           IsPlainCode(block.owner) || m_Owners.count(block.owner) != 0;
  }

  std::size_t PassOver(std::size_t begin, std::size_t end) {
    Note(FindingCode::kStrayBytes, begin,
         CountOf(static_cast<long long>(end - begin), "byte") + " up to offset " + std::to_string(end) +
             " fit no block");
    return end;
  }

  // Fields that reach into the next block are none: a length before them is wrong.
  std::size_t Keep(BlockScan& scan) {
    FileBlock& block = scan.block;
    const auto reachesOut = [&block](const RawRecord& record) {
      return record.offset + kRecordLengthSize + record.bytes.size() > block.end;
    };
    while (!scan.records.empty() && reachesOut(scan.records.back())) scan.records.pop_back();
    AddFields(scan.records, m_Names, m_Undecided, block);
    block.isWhole = !scan.damage;
    if (scan.damage) m_File.damage.push_back(*scan.damage);
    m_Owners.insert(block.owner);
    m_File.blocks.push_back(std::move(block));
    return m_File.blocks.back().end;
  }

  const std::string_view m_Bytes;
  const FieldNames& m_Names;
  const RecordLayout m_Undecided;
  BlockSearch m_Search;
  SettingsFile m_File;
  std::size_t m_First = 0;      // where the first block begins
  std::set<unsigned> m_Owners;  // of the blocks so far
};

}  // namespace

SettingsFile ReadSettingsFile(std::string_view bytes, const FieldNames& names, RecordLayout undecided) {
  return FileReader(bytes, names, undecided).Read();
}

}  // namespace skydata
