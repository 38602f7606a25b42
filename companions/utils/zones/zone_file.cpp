// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "companions/utils/zones/zone_file.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "utils/bytes.h"

namespace utils_internal {
namespace {

constexpr std::size_t kHeaderSize = 44;
constexpr std::size_t kTypeSize = 6;
// A reader may rely on offsets in this range (RFC 8536, section 3.2).
constexpr int kLowestOffset = -25 * 3600 + 1;
constexpr int kHighestOffset = 26 * 3600 - 1;

struct Header {
  unsigned char version;
  std::uint32_t utFlags, standardFlags, leapSeconds, changes, types, nameBytes;

  // Length of the data block whose times have `timeSize` bytes. The counts are 32-bit, so that this cannot
  // overflow; whether the file has as much is the caller's question.
  std::uint64_t GetBlockSize(std::uint64_t timeSize) const {
    return changes * timeSize + changes + types * std::uint64_t{kTypeSize} + nameBytes +
           leapSeconds * (timeSize + 4) + standardFlags + utFlags;
  }
};

class ZoneReader {
 public:
  ZoneReader(const unsigned char* data, std::size_t size) : m_At(data), m_Left(size) {}

  const char* GetProblem() const { return m_Problem; }

  bool Read(Zone& zone) {
    Header header;
    if (!ReadHeader(header)) return false;
    if (header.version == 0) return ReadBlock(header, 4, zone);
    // The first block serves programs that know no other version.
    const std::uint64_t firstBlock = header.GetBlockSize(4);
    if (firstBlock > m_Left) return Fail("first data block incomplete");
    Skip(static_cast<std::size_t>(firstBlock));
    if (!ReadHeader(header)) return false;
    if (header.version == 0) return Fail("second header of version 1");
    return ReadBlock(header, 8, zone) && ReadFooter(zone);
  }

 private:
  bool Fail(const char* problem) {
    m_Problem = problem;
    return false;
  }

  void Skip(std::size_t count) {
    m_At += count;
    m_Left -= count;
  }

  bool ReadHeader(Header& header) {
    if (m_Left < kHeaderSize) return Fail("header incomplete");
    if (std::memcmp(m_At, "TZif", 4) != 0) return Fail("not a zone file");
    header.version = m_At[4];
    if (header.version != 0 && header.version < '2') return Fail("unknown version");
    header.utFlags = LoadBE32(m_At + 20);
    header.standardFlags = LoadBE32(m_At + 24);
    header.leapSeconds = LoadBE32(m_At + 28);
    header.changes = LoadBE32(m_At + 32);
    header.types = LoadBE32(m_At + 36);
    header.nameBytes = LoadBE32(m_At + 40);
    Skip(kHeaderSize);
    return true;
  }

  static long long LoadTime(const unsigned char* from, std::size_t timeSize) {
    return timeSize == 8 ? static_cast<long long>(LoadBE64(from))
                         : static_cast<long long>(static_cast<std::int32_t>(LoadBE32(from)));
  }

  bool ReadBlock(const Header& header, std::size_t timeSize, Zone& zone) {
    const std::uint64_t blockSize = header.GetBlockSize(timeSize);
    if (blockSize > m_Left) return Fail("data block incomplete");
    if (header.types == 0 || header.nameBytes == 0) return Fail("no time types");
    if ((header.utFlags != 0 && header.utFlags != header.types) ||
        (header.standardFlags != 0 && header.standardFlags != header.types)) {
      return Fail("indicator counts do not fit");
    }
    const unsigned char* times = m_At;
    const unsigned char* indices = times + header.changes * timeSize;
    const unsigned char* types = indices + header.changes;
    const unsigned char* leaps = types + header.types * kTypeSize + header.nameBytes;

    std::vector<int> typeOffsets;
    if (!ReadTypes(header, types, typeOffsets)) return false;
    zone.firstOffset = typeOffsets[0];
    for (std::uint32_t i = 0; i < header.changes; ++i) {
      const long long time = LoadTime(times + i * timeSize, timeSize);
      if (i > 0 && time <= LoadTime(times + (i - 1) * timeSize, timeSize))
        return Fail("changes out of order");
      if (indices[i] >= header.types) return Fail("change to a missing time type");
      zone.changes.push_back(time);
      zone.offsets.push_back(typeOffsets[indices[i]]);
    }
    if (!RemoveLeapSeconds(header, leaps, timeSize, zone)) return false;
    Skip(static_cast<std::size_t>(blockSize));
    return true;
  }

  bool ReadTypes(const Header& header, const unsigned char* types, std::vector<int>& offsets) {
    for (std::uint32_t i = 0; i < header.types; ++i) {
      const unsigned char* type = types + i * kTypeSize;
      const auto offset = static_cast<std::int32_t>(LoadBE32(type));
      if (offset < kLowestOffset || offset > kHighestOffset) return Fail("offset out of range");
      if (type[4] > 1 || type[5] >= header.nameBytes) return Fail("bad time type");
      offsets.push_back(offset);
    }
    return true;
  }

  // Files made for clocks that count leap seconds have them in the times of the changes.
  bool RemoveLeapSeconds(const Header& header, const unsigned char* leaps, std::size_t timeSize, Zone& zone) {
    const std::size_t recordSize = timeSize + 4;
    long long correction = 0;
    std::size_t change = 0;
    for (std::uint32_t i = 0; i < header.leapSeconds; ++i) {
      const unsigned char* leap = leaps + i * recordSize;
      const long long time = LoadTime(leap, timeSize);
      if (i > 0 && time <= LoadTime(leap - recordSize, timeSize)) return Fail("leap seconds out of order");
      for (; change < zone.changes.size() && zone.changes[change] < time; ++change) {
        SubtractCorrection(zone.changes[change], correction);
      }
      const long long next = static_cast<std::int32_t>(LoadBE32(leap + timeSize));
      // One second at a time, so that the changes stay in order; the last record may only say how long the
      // table holds.
      if (i > 0 && (next > correction + 1 || next < correction - 1)) return Fail("leap seconds do not fit");
      correction = next;
    }
    for (; change < zone.changes.size(); ++change) SubtractCorrection(zone.changes[change], correction);
    return true;
  }

  // A change at the very edge of the range of times ("since ever") stays far away.
  static void SubtractCorrection(long long& time, long long correction) {
    constexpr long long kFar = 1LL << 62;
    time = std::clamp(time, -kFar, kFar) - correction;
  }

  // "\n" rule "\n". Nothing that follows is part of the format.
  bool ReadFooter(Zone& zone) {
    const std::string_view rest(reinterpret_cast<const char*>(m_At), m_Left);
    if (rest.empty() || rest[0] != '\n') return Fail("no rule line");
    const std::size_t end = rest.find('\n', 1);
    if (end == std::string_view::npos) return Fail("rule line incomplete");
    const std::string_view text = rest.substr(1, end - 1);
    if (text.empty()) return true;
    zone.rule = ZoneRule::Parse(text);
    return zone.rule ? true : Fail("rule line not understood");
  }

  const unsigned char* m_At;
  std::size_t m_Left;
  const char* m_Problem = "";
};

}  // namespace

int Zone::GetOffset(long long time) const {
  const auto next = std::upper_bound(changes.begin(), changes.end(), time);
  if (next == changes.end() && rule) return rule->GetOffset(time);
  if (next == changes.begin()) return firstOffset;
  return offsets[static_cast<std::size_t>(next - changes.begin()) - 1];
}

std::optional<Zone> ParseZoneFile(const std::vector<unsigned char>& bytes, std::string& problem) {
  ZoneReader reader(bytes.data(), bytes.size());
  Zone zone;
  if (reader.Read(zone)) return zone;
  problem = reader.GetProblem();
  return std::nullopt;
}

}  // namespace utils_internal
