// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <fstream>
#include <map>
#include <vector>

#include "skydata/stars/star_input.h"

namespace skydata {

// The stars of a table of text, UTF-8, one a line: cells between tabs where the first line has one, else
// between commas, where a cell may stand in double quotes. That line names the columns, in any order and of
// either case; others are passed over:
//
//   RA, RA_deg                        degrees, J2000, needed
//   Dec, Dec_deg, DE_deg              degrees, needed
//   Magnitude, Mag, V_mag, Vmag       needed
//   B-V, B-V_mag                      colour index, magnitudes
//   pmRA, pmRAcosDec_mas_yr           milliarcseconds a year along the great circle
//   pmDec, pmDec_mas_yr               milliarcseconds a year
//   Epoch                             Julian year of the place, which is brought to 2000.0; else it is 2000.0
//   Number                            from 1 on, each once; else stars count from 1 on
//
// Cells that are not needed may be empty. Blank lines and lines that begin with '#' are passed over.
class StarTableInput : public StarInput {
 public:
  explicit StarTableInput(const std::filesystem::path& path);

  bool Take(scene::TileStar& star) override;
  void Rewind() override;
  double GetShare() const override;
  std::string GetOrigin() const override { return m_Origin; }

  enum Column { kRA, kDec, kMagnitude, kColour, kMotionEast, kMotionNorth, kEpoch, kNumber, kColumns };

 private:
  bool ReadLine();
  void SplitLine();
  void ReadHeader();
  bool HasCell(Column column) const;
  double GetNumber(Column column) const;
  double GetEpoch() const;
  int GetStarNumber();
  [[noreturn]] void Fail(const std::string& message) const;

  std::filesystem::path m_Path;
  std::ifstream m_File;
  std::uint64_t m_Size = 0, m_Taken = 0;  // bytes
  int m_Line = 0;
  std::string m_Text;
  std::vector<std::string> m_Cells;
  char m_Separator = '\t';
  std::array<int, kColumns> m_Columns;  // places in a line, -1: none
  int m_Stars = 0;
  // The numbers that were taken, a bit each, in pieces that come with the first number of theirs.
  std::map<int, std::vector<bool>> m_Numbers;
  std::string m_Origin;
};

}  // namespace skydata
