// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/file_reader.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <set>

#include "common_interfaces/settings_data.h"
#include "skydata/settings/format.h"
#include "skydata/settings/record_reader.h"
#include "utils/bytes.h"

namespace skydata {
namespace {

using CommonInterfaces::kMaxFieldRecordSize;
using CommonInterfaces::SettingsData;

constexpr std::string_view kTag = "SREV";
constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kKeySize = 8;
constexpr std::size_t kSectionsOffset = kKeySize + 2;  // of the section records in a block
constexpr std::size_t kSectionSize = sizeof(CommonInterfaces::SectionRecord);
constexpr std::size_t kMinFieldSize = kRecordLengthSize + CommonInterfaces::kFieldHeaderSize;
constexpr std::size_t kMaxBlocks = 65535;
// How many places and records the search for whole blocks may look at: a multiple of the file's size, so that no file
// keeps the reader busy for long.
constexpr long long kSearchSteps = 65536, kSearchStepsPerByte = 16;

struct RawRecord {
  std::size_t offset;  // of its length
  std::string_view bytes;
};

std::string Plural(long long count, const char* what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

class FileReader {
 public:
  FileReader(std::string_view bytes, const FieldNames& names, RecordLayout undecided)
      : m_Bytes(bytes), m_Names(names), m_Undecided(undecided) {}

  SettingsFile Read() {
    m_File.size = m_Bytes.size();
    m_Steps = kSearchSteps + kSearchStepsPerByte * static_cast<long long>(m_Bytes.size());
    if (m_Bytes.empty()) Note(FindingCode::kEmptyFile, 0, "the file is empty");
    ReadHeader();
    for (std::size_t place = m_First; place < m_Bytes.size();) place = ReadAt(place);
    if (m_File.blocks.empty() && m_File.damage.empty())
      Note(FindingCode::kNoBlock, m_Bytes.size(), "the file holds no block");
    return std::move(m_File);
  }

 private:
  // What ReadBlock learns beside the block itself.
  struct BlockScan {
    std::vector<RawRecord> records;
    std::optional<Finding> damage;
    bool isFramed = false;  // the end of the block is known
  };

  std::size_t RestAt(std::size_t place) const { return m_Bytes.size() - place; }
  const char* At(std::size_t place) const { return m_Bytes.data() + place; }

  void Note(FindingCode code, std::size_t offset, std::string text) {
    m_File.damage.push_back({code, offset, std::move(text)});
  }

  void ReadHeader() {
    m_File.hasHeader = m_Bytes.substr(0, kTag.size()) == kTag;
    if (!m_File.hasHeader) return;
    m_First = std::min(kHeaderSize, m_Bytes.size());
    if (m_First < kHeaderSize) {
      Note(FindingCode::kHeaderCut, kTag.size(), "the file ends inside the version");
    } else {
      m_File.version = LoadLE32(At(kTag.size()));
    }
  }

  // Takes what stands there and returns where the next block may begin.
  std::size_t ReadAt(std::size_t place) {
    FileBlock block;
    BlockScan scan;
    const bool goesOn = m_File.blocks.size() < kMaxBlocks && m_Steps > 0;
    if (goesOn) ReadBlock(place, block, scan);
    const std::size_t next = scan.isFramed ? block.end : goesOn ? FindNextBlock(place + 1) : m_Bytes.size();
    if (scan.isFramed || LooksLikeBlock(block, scan)) {
      block.end = next;
      Keep(std::move(block), scan);
    } else {
      Note(FindingCode::kStrayBytes, place,
           Plural(static_cast<long long>(next - place), "byte") + " up to offset " + std::to_string(next) +
               " fit no block");
    }
    return next;
  }

  static void Damage(BlockScan& scan, FindingCode code, std::size_t offset, std::string text) {
    if (!scan.damage) scan.damage = Finding{code, offset, std::move(text)};
  }

  void ReadBlock(std::size_t begin, FileBlock& block, BlockScan& scan) {
    block.offset = begin;
    if (RestAt(begin) < kKeySize) return;
    block.owner = LoadLE32(At(begin));
    block.id = LoadLE32(At(begin + 4));
    const std::string name = DescribeBlock(block);
    std::size_t at = begin + kSectionsOffset;
    if (RestAt(begin) < kSectionsOffset)
      return Damage(scan, FindingCode::kBlockCut, begin + kKeySize,
                    name + ": the file ends before its sections");
    const int sections = static_cast<short>(LoadLE16(At(begin + kKeySize)));
    const std::size_t room = RestAt(at) / kSectionSize;
    if (sections < 0 || static_cast<std::size_t>(sections) > room) {
      return Damage(scan, FindingCode::kSectionCount, begin + kKeySize,
                    name + ": a count of " + Plural(sections, "section") + ", the file has room for " +
                        std::to_string(room) + "; a reader takes nothing of the block");
    }
    for (int i = 0; i < sections; ++i, at += kSectionSize) block.sections.push_back(ReadSection(at));
    if (RestAt(at) < sizeof(int))
      return Damage(scan, FindingCode::kBlockCut, at, name + ": the file ends before its fields");
    const int fields = static_cast<int>(LoadLE32(At(at)));
    if (fields < 0) {
      return Damage(
          scan, FindingCode::kFieldCount, at,
          name + ": a count of " + Plural(fields, "field") + "; a reader takes no field of the block");
    }
    ScanRecords(at + sizeof(int), fields, name, block, scan);
  }

  FileSection ReadSection(std::size_t at) const {
    FileSection section;
    section.offset = at;
    section.text.id = LoadLE32(At(at));
    section.text.alias = LoadLE32(At(at + 4));
    section.first = LoadLE16(At(at + 8));
    section.last = LoadLE16(At(at + 10));
    section.text.status = static_cast<unsigned char>(m_Bytes[at + 12]);
    return section;
  }

  // A record that is too short is passed over with those behind it, since the end of the block is still known.
  void ScanRecords(std::size_t at, int count, const std::string& name, FileBlock& block, BlockScan& scan) {
    const auto lose = [&](FindingCode code, int index, const std::string& what) {
      Damage(scan, code, at,
             name + ": " + what + "; a reader stops here and has " + std::to_string(index) + " of " +
                 Plural(count, "field"));
    };
    for (int i = 0; i < count; ++i, --m_Steps) {
      if (RestAt(at) < kRecordLengthSize) return lose(FindingCode::kFieldsMissing, i, "the file ends");
      const int length = static_cast<int>(LoadLE32(At(at)));
      const std::string what = "a record of " + Plural(length, "byte");
      if (length < 0 || length > kMaxFieldRecordSize) return lose(FindingCode::kRecordLength, i, what);
      const auto size = static_cast<std::size_t>(length);
      if (size > RestAt(at + kRecordLengthSize)) {
        return lose(FindingCode::kRecordCut, i,
                    what + ", of which the file holds " + std::to_string(RestAt(at + kRecordLengthSize)));
      }
      if (size < GetRecordHeaderSize(RecordLayout::kCurrent)) lose(FindingCode::kRecordLength, i, what);
      if (!scan.damage) scan.records.push_back({at, m_Bytes.substr(at + kRecordLengthSize, size)});
      at += kRecordLengthSize + size;
    }
    block.end = at;
    scan.isFramed = true;
  }

  bool LooksLikeBlock(const FileBlock& block, const BlockScan& scan) const {
    if (!scan.damage) return false;  // not even a key
    return block.offset == m_First || block.id == SettingsData::kDefaultsTag || IsPlainCode(block.owner) ||
           m_Owners.count(block.owner) != 0;
  }

  // Fields that reach into the next block are none: a length before them is wrong.
  void Keep(FileBlock block, const BlockScan& scan) {
    std::vector<RawRecord> records = scan.records;
    while (!records.empty() &&
           records.back().offset + kRecordLengthSize + records.back().bytes.size() > block.end)
      records.pop_back();
    ChooseLayout(block, records);
    for (const RawRecord& record : records) {
      FileField field;
      field.offset = record.offset;
      field.size = static_cast<int>(record.bytes.size());
      field.text = DecodeRecord(record.bytes, block.layout, m_Names, field.section);
      block.fields.push_back(std::move(field));
    }
    block.isWhole = !scan.damage;
    AssignRuns(block);
    if (scan.damage) m_File.damage.push_back(*scan.damage);
    m_Owners.insert(block.owner);
    m_File.blocks.push_back(std::move(block));
  }

  void ChooseLayout(FileBlock& block, const std::vector<RawRecord>& records) const {
    const auto all = [&](auto test) { return std::all_of(records.begin(), records.end(), test); };
    const auto fits = [&](RecordLayout layout) {
      return all([&](const RawRecord& record) { return FitsLayout(record.bytes, layout); });
    };
    if (fits(RecordLayout::kCurrent)) return;
    block.isLayoutCertain = fits(RecordLayout::kOld);
    const bool canBeOld = all([](const RawRecord& record) {
      return record.bytes.size() >= GetRecordHeaderSize(RecordLayout::kOld);
    });
    if (block.isLayoutCertain || (m_Undecided == RecordLayout::kOld && canBeOld))
      block.layout = RecordLayout::kOld;
  }

  // Each field to the first section whose run holds it; every field is looked at once, however the runs overlap.
  static void AssignRuns(FileBlock& block) {
    const int count = static_cast<int>(block.fields.size());
    std::vector<int> next(block.fields.size() + 1);  // the next field without a section, itself included
    std::iota(next.begin(), next.end(), 0);
    const auto free = [&next](int i) {
      while (next[static_cast<std::size_t>(i)] != i)
        i = next[static_cast<std::size_t>(i)] =
            next[static_cast<std::size_t>(next[static_cast<std::size_t>(i)])];
      return i;
    };
    for (std::size_t s = 0; s < block.sections.size(); ++s) {
      FileSection& section = block.sections[s];
      section.begin = std::min(section.first, count);
      section.end = std::max(section.begin, section.last == 0xFFFF ? 0 : std::min(section.last + 1, count));
      for (int i = free(section.begin); i < section.end; i = free(i)) {
        block.fields[static_cast<std::size_t>(i)].run = static_cast<int>(s);
        next[static_cast<std::size_t>(i)] = i + 1;
      }
    }
  }

  std::size_t FindNextBlock(std::size_t from) {
    for (std::size_t place = from; place < m_Bytes.size() && m_Steps > 0; ++place, --m_Steps) {
      if (StandsPlainBlock(place)) return place;
    }
    return m_Bytes.size();
  }

  // A whole block that cannot be anything else: with sections, and with fields that all belong to them.
  bool StandsPlainBlock(std::size_t begin) {
    if (RestAt(begin) < kSectionsOffset + kSectionSize + sizeof(int) + kMinFieldSize) return false;
    const int sections = static_cast<short>(LoadLE16(At(begin + kKeySize)));
    const std::size_t room = RestAt(begin) - kSectionsOffset - sizeof(int);
    if (sections <= 0 || static_cast<std::size_t>(sections) > room / kSectionSize) return false;
    const char* const table = At(begin + kSectionsOffset);
    std::size_t at = begin + kSectionsOffset + static_cast<std::size_t>(sections) * kSectionSize;
    const int fields = static_cast<int>(LoadLE32(At(at)));
    at += sizeof(int);
    if (fields <= 0 || static_cast<std::size_t>(fields) > RestAt(at) / kMinFieldSize) return false;
    for (int i = 0; i < fields; ++i) {
      if (RestAt(at) < kMinFieldSize) return false;
      const std::size_t size = LoadLE32(At(at));
      at += kRecordLengthSize;
      if (size < kMinFieldSize - kRecordLengthSize || size > kMaxFieldRecordSize || size > RestAt(at))
        return false;
      if (!NamesSection(table, sections, LoadLE32(At(at)))) return false;
      at += size;
    }
    return true;
  }

  bool NamesSection(const char* table, int count, unsigned section) {
    for (int i = 0; i < count && m_Steps > 0; ++i, --m_Steps) {
      if (LoadLE32(table + static_cast<std::size_t>(i) * kSectionSize) == section) return true;
    }
    return false;
  }

  const std::string_view m_Bytes;
  const FieldNames& m_Names;
  const RecordLayout m_Undecided;
  SettingsFile m_File;
  std::size_t m_First = 0;      // where the first block begins
  std::set<unsigned> m_Owners;  // of the blocks so far
  long long m_Steps = 0;        // that the search may still take
};

}  // namespace

SettingsFile ReadSettingsFile(std::string_view bytes, const FieldNames& names, RecordLayout undecided) {
  return FileReader(bytes, names, undecided).Read();
}

const FileField* FindField(const FileBlock& block, unsigned section, int nameId) {
  for (const FileSection& found : block.sections) {
    if (found.text.id != section) continue;
    for (int i = found.begin; i < found.end; ++i) {
      const FileField& field = block.fields[static_cast<std::size_t>(i)];
      if (field.text.nameId == nameId) return &field;
    }
    return nullptr;
  }
  return nullptr;
}

const FileField* FindOwnField(const FileBlock& block, unsigned section, int nameId) {
  const auto found = std::find_if(block.fields.begin(), block.fields.end(), [=](const FileField& field) {
    return field.section == section && field.text.nameId == nameId;
  });
  return found == block.fields.end() ? nullptr : &*found;
}

std::size_t GetElementCount(const FieldText& field) {
  return CommonInterfaces::FieldElementWidth(field.type) == 0 ? field.size : CountValues(field);
}

bool HasSameShape(const FieldText& own, const FieldText& usual) {
  return own.type == usual.type && GetElementCount(own) == GetElementCount(usual);
}

const FileBlock* FindBlock(const SettingsFile& file, unsigned owner, unsigned id) {
  const auto found = std::find_if(file.blocks.begin(), file.blocks.end(), [=](const FileBlock& block) {
    return block.owner == owner && block.id == id;
  });
  return found == file.blocks.end() ? nullptr : &*found;
}

std::string DescribeBlock(const FileBlock& block) {
  return "block " + FormatWord(block.owner) + " " + FormatWord(block.id);
}

}  // namespace skydata
