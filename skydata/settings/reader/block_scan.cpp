// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/reader/block_scan.h"

#include "skydata/settings/reader/block_layout.h"
#include "utils/bytes.h"

namespace skydata {
namespace {

class BlockScanner {
 public:
  BlockScanner(std::string_view bytes, std::size_t begin) : m_Bytes(bytes), m_At(begin) {
    m_Scan.block.offset = begin;
  }

  BlockScan Scan() {
    if (ReadKey() && ReadSections() && ReadFieldCount()) ReadRecords();
    return std::move(m_Scan);
  }

 private:
  std::size_t Rest() const { return m_Bytes.size() - m_At; }
  const char* Here(std::size_t offset = 0) const { return m_Bytes.data() + m_At + offset; }

  // False, for the step that is damaged.
  bool Damage(FindingCode code, const std::string& text) {
    if (!m_Scan.damage) m_Scan.damage = Finding{code, m_At, DescribeBlock(m_Scan.block) + ": " + text};
    return false;
  }

  bool ReadKey() {
    if (Rest() < kKeySize) return false;
    m_Scan.block.owner = LoadLE32(Here());
    m_Scan.block.id = LoadLE32(Here(4));
    m_At += kKeySize;
    return true;
  }

  bool ReadSections() {
    if (Rest() < kSectionCountSize)
      return Damage(FindingCode::kBlockCut, "the file ends before its sections");
    const int count = static_cast<short>(LoadLE16(Here()));
    const std::size_t room = (Rest() - kSectionCountSize) / kSectionSize;
    if (count < 0 || static_cast<std::size_t>(count) > room) {
      return Damage(FindingCode::kSectionCount, "a count of " + CountOf(count, "section") +
                                                    ", the file has room for " + std::to_string(room) +
                                                    "; a reader takes nothing of the block");
    }
    m_At += kSectionCountSize;
    for (int i = 0; i < count; ++i, m_At += kSectionSize) m_Scan.block.sections.push_back(ReadSection());
    return true;
  }

  FileSection ReadSection() const {
    FileSection section;
    section.offset = m_At;
    section.text.id = LoadLE32(Here());
    section.text.alias = LoadLE32(Here(4));
    section.first = LoadLE16(Here(8));
    section.last = LoadLE16(Here(10));
    section.text.status = static_cast<unsigned char>(*Here(12));
    return section;
  }

  bool ReadFieldCount() {
    if (Rest() < kFieldCountSize) return Damage(FindingCode::kBlockCut, "the file ends before its fields");
    m_Count = static_cast<int>(LoadLE32(Here()));
    if (m_Count < 0) {
      return Damage(FindingCode::kFieldCount,
                    "a count of " + CountOf(m_Count, "field") + "; a reader takes no field of the block");
    }
    m_At += kFieldCountSize;
    return true;
  }

  void ReadRecords() {
    while (m_Scan.passed < m_Count) {
      if (!PassRecord()) return;
      ++m_Scan.passed;
    }
    m_Scan.block.end = m_At;
    m_Scan.isFramed = true;
  }

  // A record that is too short is passed over with those behind it, since the end of the block is still
  // known. False where it is not.
  bool PassRecord() {
    if (Rest() < kRecordLengthSize) return LoseRecords(FindingCode::kFieldsMissing, "the file ends");
    const int length = static_cast<int>(LoadLE32(Here()));
    const std::string what = "a record of " + CountOf(length, "byte");
    if (length < 0 || length > CommonInterfaces::kMaxFieldRecordSize)
      return LoseRecords(FindingCode::kRecordLength, what);
    const auto size = static_cast<std::size_t>(length);
    const std::size_t rest = Rest() - kRecordLengthSize;
    if (size > rest)
      return LoseRecords(FindingCode::kRecordCut, what + ", of which the file holds " + std::to_string(rest));
    if (size < kMinRecordSize) LoseRecords(FindingCode::kRecordLength, what);
    if (!m_Scan.damage) m_Scan.records.push_back({m_At, m_Bytes.substr(m_At + kRecordLengthSize, size)});
    m_At += kRecordLengthSize + size;
    return true;
  }

  bool LoseRecords(FindingCode code, const std::string& what) {
    return Damage(code, what + "; a reader stops here and has " + std::to_string(m_Scan.passed) + " of " +
                            CountOf(m_Count, "field"));
  }

  const std::string_view m_Bytes;
  std::size_t m_At;
  int m_Count = 0;  // of fields
  BlockScan m_Scan;
};

}  // namespace

BlockScan ScanBlock(std::string_view bytes, std::size_t begin) { return BlockScanner(bytes, begin).Scan(); }

std::string CountOf(long long count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace skydata
