// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/star_index_input.h"

#include <bit>
#include <cmath>

#include "astro/vectors.h"
#include "scene/catalogs/star_tile_record.h"
#include "utils/bytes.h"

namespace skydata {
namespace {

constexpr char kLittleEndian[] = "04:03:02:01";
constexpr double kRounding = 1e-8;  // of coordinates: 2 mas
constexpr std::uint64_t kRangeRows = 7, kRangeSize = 8, kPlaceSize = 12, kMagnitudeSize = 4;

double LoadDouble(const unsigned char* from) { return std::bit_cast<double>(LoadLE64(from)); }

}  // namespace

StarIndexInput::StarIndexInput(const std::filesystem::path& path) : m_File(path) {
  if (m_File.GetText("ENDIAN") != kLittleEndian) m_File.Fail("its numbers are not little-endian");
  const FitsTable& range = m_File.Get("kdtree_range_stars", kRangeSize);
  const FitsTable& places = m_File.Get("kdtree_data_stars", kPlaceSize);
  const FitsTable& magnitudes = m_File.Get("MAG_VT", kMagnitudeSize);
  if (range.rows != kRangeRows) m_File.Fail("its table kdtree_range_stars has not 7 numbers");
  if (places.rows != magnitudes.rows) {
    m_File.Fail("it has " + std::to_string(places.rows) + " places and " + std::to_string(magnitudes.rows) +
                " magnitudes");
  }
  constexpr std::uint64_t kMost = 0x7FFFFFFF - scene::kImportedNumbers;
  if (places.rows > kMost) m_File.Fail("it has more stars than there are numbers");
  for (int axis = 0; axis < 3; ++axis) m_Least[axis] = LoadDouble(range.bytes + 8 * axis);
  m_Scale = LoadDouble(range.bytes + 8 * (kRangeRows - 1));
  if (!(m_Scale > 0.0) || !std::isfinite(m_Scale)) m_File.Fail("its scale of places is not above 0");
  m_Places = places.bytes;
  m_Magnitudes = magnitudes.bytes;
  m_Count = places.rows;
  m_Origin = path.filename().string() +
             ": places and V_T magnitudes of Tycho-2 (Hog et al. 2000, A&A 355, L27), index files of "
             "Astrometry.net";
}

void StarIndexInput::TakePlace(double place[3]) {
  const unsigned char* const codes = m_Places + m_Next * kPlaceSize;
  for (int axis = 0; axis < 3; ++axis) place[axis] = m_Least[axis] + LoadLE32(codes + 4 * axis) / m_Scale;
  ++m_Next;
}

bool StarIndexInput::Take(scene::TileStar& star) {
  double place[3] = {1.0, 0.0, 0.0};
  const auto hasPlace = [&place] { return std::hypot(place[1], place[2]) > kRounding || place[0] < 0.0; };
  for (; !hasPlace(); m_Placeless += !hasPlace()) {
    if (m_Next == m_Count) return false;
    TakePlace(place);
  }
  const std::uint32_t magnitude = LoadBE32(m_Magnitudes + (m_Next - 1) * kMagnitudeSize);
  constexpr double kMostOff = 1e-6;  // of the length 1, for three rounded coordinates
  star = {};
  star.number = scene::kImportedNumbers + static_cast<int>(m_Next);
  star.ra = std::atan2(place[1], place[0]);
  star.dec = std::atan2(place[2], std::hypot(place[0], place[1]));
  star.magnitude = static_cast<double>(std::bit_cast<float>(magnitude));
  const char* fault = std::fabs(Vmod(place, 3) - 1.0) <= kMostOff ? scene::StarTileWriter::FindFault(star)
                                                                  : "its place is not on the sphere";
  if (fault) m_File.Fail("star " + std::to_string(m_Next) + ": " + fault);
  return true;
}

double StarIndexInput::GetShare() const {
  return m_Count == 0 ? 1.0 : static_cast<double>(m_Next) / static_cast<double>(m_Count);
}

}  // namespace skydata
