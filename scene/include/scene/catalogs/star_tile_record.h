// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

#include "scene/api.h"
#include "scene/view/directions.h"
#include "utils/bytes.h"

namespace scene {

// The numbers of stars, in one range for all catalogs: those of the bright stars are their HR numbers, 1 to
// 9110. A star of the Hipparcos catalogue that is none of them has its HIP number above the first of these,
// a star of an imported catalog its number there above the second.
inline constexpr int kHipparcosNumbers = 1000000;
inline constexpr int kImportedNumbers = 100000000;

// The HIP number of a star that is numbered by it, else 0.
constexpr int GetHipparcosNumber(int star) {
  return star > kHipparcosNumbers && star < kImportedNumbers ? star - kHipparcosNumbers : 0;
}

// A star of a tile catalog: a view of its bytes in the file (docs/formats/star_tiles.md), which must be there
// for as long as it is used.
class SCENE_API StarTileRecord {
 public:
  static constexpr std::size_t kSize = 20;      // bytes
  static constexpr int kUnknown = -32768;       // colour and motion
  static constexpr double kMotionUnit = 0.5;    // milliarcseconds a year
  static constexpr double kTurnUnits = 0x1p32;  // a turn in the units of a position: 0.3 mas

  explicit StarTileRecord(const unsigned char* bytes) : m_Bytes(bytes) {}

  // On J2000 axes, of the epoch J2000.0. Good to 0.2 mas.
  Direction GetDirection() const;

  // The change of the direction per Julian year, radians; zero when unknown.
  Direction GetMotion() const;
  bool HasMotion() const { return GetInt16(12) != kUnknown && GetInt16(14) != kUnknown; }

  int GetMillimagnitudes() const { return GetInt16(8); }
  float GetMagnitude() const { return static_cast<float>(GetMillimagnitudes() / 1000.0); }
  // Magnitude code, (magnitude + 2) * 10.
  float GetCode() const { return static_cast<float>((GetMillimagnitudes() + 2000) / 100.0); }
  // Colour index B-V, magnitudes; not a number when unknown.
  float GetColour() const {
    const int colour = GetInt16(10);
    return colour == kUnknown ? std::numeric_limits<float>::quiet_NaN() : static_cast<float>(colour / 1000.0);
  }
  int GetNumber() const { return static_cast<int>(LoadLE32(m_Bytes + 16)); }

  // As they are stored: fractions of a turn in units of 2^-32 turn, motions in kMotionUnit to the east (cos
  // Dec included) and to the north.
  std::uint32_t GetRAUnits() const { return LoadLE32(m_Bytes); }
  std::int32_t GetDecUnits() const { return static_cast<std::int32_t>(LoadLE32(m_Bytes + 4)); }
  int GetMotionEast() const { return GetInt16(12); }
  int GetMotionNorth() const { return GetInt16(14); }

  const unsigned char* GetBytes() const { return m_Bytes; }

 private:
  int GetInt16(int offset) const { return static_cast<std::int16_t>(LoadLE16(m_Bytes + offset)); }

  const unsigned char* m_Bytes;
};

// The stars of one cell of one band, brightest first. A view, as above.
class StarTileRecords {
 public:
  StarTileRecords() = default;
  StarTileRecords(const unsigned char* bytes, std::uint32_t count) : m_Bytes(bytes), m_Count(count) {}

  std::uint32_t GetCount() const { return m_Count; }
  const unsigned char* GetBytes() const { return m_Bytes; }
  StarTileRecord operator[](std::uint32_t star) const {
    return StarTileRecord(m_Bytes + star * StarTileRecord::kSize);
  }

 private:
  const unsigned char* m_Bytes = nullptr;
  std::uint32_t m_Count = 0;
};

}  // namespace scene
