// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include "skydata/stars/fits_file.h"
#include "skydata/stars/star_input.h"

namespace skydata {

// The stars of an index file for astrometric solving, a FITS file whose tables hold a tree of places:
//
//   kdtree_range_stars  7 doubles: the least coordinates, the largest, the scale of codes
//   kdtree_data_stars   a star: three 32-bit codes c of the coordinates least + c / scale of its direction
//   MAG_VT              a star: its magnitude in the band V_T of Tycho, a big-endian 32-bit float
//
// The tables are in the byte order of the machine that made the file, which its card ENDIAN names; it must be
// little-endian. Directions are of J2000. Numbers count the stars from 1 on. A star at right ascension and
// declination 0 has no place: nothing was known of it when the file was made.
class StarIndexInput : public StarInput {
 public:
  explicit StarIndexInput(const std::filesystem::path& path);

  bool Take(scene::TileStar& star) override;
  void Rewind() override { m_Next = m_Placeless = 0; }
  std::uint64_t GetPlaceless() const override { return m_Placeless; }
  double GetShare() const override;
  std::string GetOrigin() const override { return m_Origin; }

 private:
  void TakePlace(double place[3]);

  FitsFile m_File;
  const unsigned char *m_Places, *m_Magnitudes;
  std::uint64_t m_Count;
  double m_Least[3], m_Scale;
  std::uint64_t m_Next = 0, m_Placeless = 0;
  std::string m_Origin;
};

}  // namespace skydata
