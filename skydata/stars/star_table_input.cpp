// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/star_table_input.h"

#include <algorithm>
#include <cmath>

#include "astro/constants.h"
#include "scene/catalogs/star_tile_record.h"
#include "skydata/files/source_error.h"
#include "skydata/files/text_lines.h"
#include "skydata/stars/motion.h"
#include "utils/numbers.h"

namespace skydata {
namespace {

struct ColumnName {
  const char* name;  // in small letters
  StarTableInput::Column column;
};
constexpr ColumnName kNames[] = {{"ra", StarTableInput::kRA},
                                 {"ra_deg", StarTableInput::kRA},
                                 {"dec", StarTableInput::kDec},
                                 {"dec_deg", StarTableInput::kDec},
                                 {"de_deg", StarTableInput::kDec},
                                 {"magnitude", StarTableInput::kMagnitude},
                                 {"mag", StarTableInput::kMagnitude},
                                 {"v_mag", StarTableInput::kMagnitude},
                                 {"vmag", StarTableInput::kMagnitude},
                                 {"b-v", StarTableInput::kColour},
                                 {"b-v_mag", StarTableInput::kColour},
                                 {"pmra", StarTableInput::kMotionEast},
                                 {"pmracosdec_mas_yr", StarTableInput::kMotionEast},
                                 {"pmdec", StarTableInput::kMotionNorth},
                                 {"pmdec_mas_yr", StarTableInput::kMotionNorth},
                                 {"epoch", StarTableInput::kEpoch},
                                 {"number", StarTableInput::kNumber}};
constexpr const char* kTitles[] = {"RA", "Dec", "Magnitude", "B-V", "pmRA", "pmDec", "Epoch", "Number"};

constexpr std::size_t kMostLine = 65536;
constexpr int kMostNumber = 0x7FFFFFFF - scene::kImportedNumbers;
constexpr int kNumbersPerPiece = 1 << 16;

std::string ToSmall(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

std::string Trim(const std::string& text) {
  const auto first = text.find_first_not_of(' '), last = text.find_last_not_of(' ');
  return first == std::string::npos ? "" : text.substr(first, last - first + 1);
}

// Brings the place from its epoch to 2000.0, along the straight line of its motion.
void MoveToEpoch2000(scene::TileStar& star, double epoch) {
  if (std::isnan(star.motionEast)) return;
  const double years = 2000.0 - epoch;
  const scene::Direction from = scene::MakeDirection(star.ra, star.dec);
  const scene::Direction motion = MakeMotion(star.ra, star.dec, star.motionEast, star.motionNorth);
  double place[3];
  for (int i = 0; i < 3; ++i) place[i] = from.v[i] + years * motion.v[i];
  star.ra = std::atan2(place[1], place[0]);
  star.dec = std::atan2(place[2], std::hypot(place[0], place[1]));
}

}  // namespace

StarTableInput::StarTableInput(const std::filesystem::path& path) : m_Path(path) {
  std::error_code error;
  m_Size = std::filesystem::file_size(path, error);
  m_Origin = path.filename().string();
  Rewind();
}

void StarTableInput::Rewind() {
  m_File = std::ifstream(m_Path, std::ios::binary);
  if (!m_File) throw SourceError(m_Path.string(), 0, "cannot be opened");
  m_Taken = 0;
  m_Line = m_Stars = 0;
  m_Numbers.clear();
  ReadHeader();
}

// The next line that says something.
bool StarTableInput::ReadLine() {
  std::array<char, kMostLine + 2> line;  // a zero stands behind the longest
  while (m_File.getline(line.data(), line.size()) || m_File.gcount() > 0) {
    ++m_Line;
    if (m_File.fail()) Fail("the line is longer than 65536 bytes");
    const auto taken = static_cast<std::size_t>(m_File.gcount());
    m_Text.assign(line.data(), m_File.eof() ? taken : taken - 1);
    m_Taken += taken;
    if (m_Line == 1 && HasByteOrderMark(m_Text)) m_Text.erase(0, sizeof kUtf8Mark - 1);
    if (!m_Text.empty() && m_Text.back() == '\r') m_Text.pop_back();
    if (!IsBlankText(m_Text) && m_Text[0] != '#') return true;
  }
  if (m_File.bad()) throw SourceError(m_Path.string(), 0, "cannot be read");
  return false;
}

void StarTableInput::SplitLine() {
  m_Cells.assign(1, "");
  bool isQuoted = false;
  for (std::size_t at = 0; at < m_Text.size(); ++at) {
    const char c = m_Text[at];
    if (c == '"' && m_Separator == ',') {
      const bool isTwice = isQuoted && at + 1 < m_Text.size() && m_Text[at + 1] == '"';
      if (isTwice) m_Cells.back() += m_Text[++at];
      isQuoted = isTwice || !isQuoted;
    } else if (c == m_Separator && !isQuoted) {
      m_Cells.emplace_back();
    } else {
      m_Cells.back() += c;
    }
  }
  if (isQuoted) Fail("a double quote is not closed");
  for (std::string& cell : m_Cells) cell = Trim(cell);
}

void StarTableInput::ReadHeader() {
  m_Columns.fill(-1);
  if (!ReadLine()) throw SourceError(m_Path.string(), 0, "it has no line with the names of columns");
  m_Separator = m_Text.find('\t') != std::string::npos ? '\t' : ',';
  SplitLine();
  for (std::size_t i = 0; i < m_Cells.size(); ++i) {
    for (const ColumnName& known : kNames) {
      if (ToSmall(m_Cells[i]) != known.name) continue;
      if (m_Columns[known.column] >= 0) Fail(std::string("two columns are ") + kTitles[known.column]);
      m_Columns[known.column] = static_cast<int>(i);
    }
  }
  for (const Column needed : {kRA, kDec, kMagnitude}) {
    if (m_Columns[needed] < 0) Fail(std::string("it has no column ") + kTitles[needed]);
  }
}

bool StarTableInput::HasCell(Column column) const {
  const auto at = static_cast<std::size_t>(m_Columns[column]);
  return m_Columns[column] >= 0 && at < m_Cells.size() && !m_Cells[at].empty();
}

double StarTableInput::GetNumber(Column column) const {
  if (!HasCell(column)) Fail(std::string(kTitles[column]) + " is missing");
  const std::string& cell = m_Cells[static_cast<std::size_t>(m_Columns[column])];
  std::string_view text = cell;
  double value = 0.0;
  if (!TakeNumber(text, value) || !text.empty())
    Fail(std::string(kTitles[column]) + ": '" + cell + "' is no number");
  return value;
}

int StarTableInput::GetStarNumber() {
  if (m_Columns[kNumber] < 0) {
    if (m_Stars == kMostNumber) Fail("there are more stars than numbers");
    return ++m_Stars;
  }
  const double value = GetNumber(kNumber);
  if (value != std::floor(value) || value < 1.0 || value > kMostNumber)
    Fail("Number is no whole number from 1 to " + std::to_string(kMostNumber));
  const int number = static_cast<int>(value);
  std::vector<bool>& taken = m_Numbers[number / kNumbersPerPiece];
  if (taken.empty()) taken.resize(kNumbersPerPiece);
  const auto at = static_cast<std::size_t>(number % kNumbersPerPiece);
  if (taken[at]) Fail("Number: " + std::to_string(number) + " stands above already");
  taken[at] = true;
  return number;
}

double StarTableInput::GetEpoch() const {
  constexpr double kFirst = 1800.0, kLast = 2200.0;
  const double epoch = GetNumber(kEpoch);
  if (!(epoch >= kFirst && epoch <= kLast)) Fail("Epoch is no year from 1800 to 2200");
  return epoch;
}

bool StarTableInput::Take(scene::TileStar& star) {
  if (!ReadLine()) return false;
  SplitLine();
  star = {};
  star.number = scene::kImportedNumbers + GetStarNumber();
  star.ra = GetNumber(kRA) * astro::kRadiansPerDegree;
  star.dec = GetNumber(kDec) * astro::kRadiansPerDegree;
  star.magnitude = GetNumber(kMagnitude);
  if (HasCell(kColour)) star.colour = GetNumber(kColour);
  if (HasCell(kMotionEast) != HasCell(kMotionNorth)) Fail("it has only one of pmRA and pmDec");
  if (HasCell(kMotionEast)) {
    star.motionEast = GetNumber(kMotionEast);
    star.motionNorth = GetNumber(kMotionNorth);
  }
  if (const char* fault = scene::StarTileWriter::FindFault(star)) Fail(fault);
  if (HasCell(kEpoch)) MoveToEpoch2000(star, GetEpoch());
  return true;
}

double StarTableInput::GetShare() const {
  return m_Size == 0 ? 1.0 : static_cast<double>(m_Taken) / static_cast<double>(m_Size);
}

void StarTableInput::Fail(const std::string& message) const {
  throw SourceError(m_Path.string(), m_Line, message);
}

}  // namespace skydata
