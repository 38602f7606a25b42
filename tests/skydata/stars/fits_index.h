// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "utils/bytes.h"

namespace skydata_test {

// A FITS file of stars in the layout of index files, written card by card.
class FitsIndex {
 public:
  struct Star {
    double ra, dec;  // degrees
    float magnitude;
  };

  explicit FitsIndex(const std::vector<Star>& stars) : m_Stars(stars) {}

  std::string endian = "'04:03:02:01'";
  double scale = 2147483647.5;
  int magnitudesMore = 0;  // than places

  std::string Make() const {
    std::string file = Header({"SIMPLE  =                    T", "BITPIX  =                    8",
                               "NAXIS   =                    0", "EXTEND  =                    T",
                               "ENDIAN  = " + endian + " / the order of bytes"});
    file += Table("kdtree_header_stars", 0, 0, "");
    file += Table("kdtree_range_stars", 8, 7, Range());
    std::string places, magnitudes;
    for (const Star& star : m_Stars) AddStar(star, places, magnitudes);
    file += Table("kdtree_data_stars", 12, m_Stars.size(), places);
    for (int i = 0; i < magnitudesMore; ++i) magnitudes += std::string(4, '\0');
    return file + Table("MAG_VT", 4, m_Stars.size() + static_cast<std::size_t>(magnitudesMore), magnitudes);
  }

  static std::string Header(const std::vector<std::string>& cards) {
    std::string header;
    for (const std::string& card : cards) header += card + std::string(80 - card.size(), ' ');
    header += "END";
    return header + std::string((2880 - header.size() % 2880) % 2880, ' ');
  }

  static std::string Table(const std::string& column, std::size_t rowSize, std::size_t rows,
                           const std::string& data) {
    return Header({"XTENSION= 'BINTABLE'           / a table", "BITPIX  =                    8",
                   "NAXIS   =                    2", "NAXIS1  = " + std::to_string(rowSize),
                   "NAXIS2  = " + std::to_string(rows) + " / rows", "PCOUNT  =                    0",
                   "GCOUNT  =                    1", "TFIELDS =                    1",
                   "TTYPE1  = '" + column + "'"}) +
           data + std::string((2880 - data.size() % 2880) % 2880, '\0');
  }

 private:
  static void Append(std::string& to, std::uint64_t value, int bytes, bool isBig) {
    for (int i = 0; i < bytes; ++i) to += static_cast<char>(value >> 8 * (isBig ? bytes - 1 - i : i) & 0xFFu);
  }
  std::string Range() const {
    std::string range;
    for (const double value : {-1.0, -1.0, -1.0, 1.0, 1.0, 1.0, scale})
      Append(range, std::bit_cast<std::uint64_t>(value), 8, false);
    return range;
  }
  void AddStar(const Star& star, std::string& places, std::string& magnitudes) const {
    constexpr double kDegree = 3.14159265358979323846 / 180.0;
    const double ra = star.ra * kDegree, dec = star.dec * kDegree;
    for (const double x : {std::cos(dec) * std::cos(ra), std::cos(dec) * std::sin(ra), std::sin(dec)})
      Append(places, static_cast<std::uint64_t>((x + 1.0) * scale), 4, false);
    Append(magnitudes, std::bit_cast<std::uint32_t>(star.magnitude), 4, true);
  }

  std::vector<Star> m_Stars;
};

}  // namespace skydata_test
