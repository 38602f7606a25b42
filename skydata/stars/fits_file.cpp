// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/stars/fits_file.h"

#include <algorithm>

#include "skydata/files/source_error.h"
#include "utils/numbers.h"

namespace skydata {
namespace {

constexpr std::uint64_t kBlock = 2880, kCard = 80;       // bytes
constexpr std::uint64_t kMost = std::uint64_t{1} << 48;  // bytes of a file that there may be
constexpr int kMostAxes = 999;

std::string Trim(std::string_view text) {
  const auto first = text.find_first_not_of(' '), last = text.find_last_not_of(' ');
  return first == std::string_view::npos ? "" : std::string(text.substr(first, last - first + 1));
}

// The value of "KEY     = value / comment": a text without its quotes, the digits of a number.
std::string ReadValue(std::string_view card) {
  std::string_view value = card.substr(10);
  const auto quote = value.find('\'');
  if (quote != std::string_view::npos && Trim(value.substr(0, quote)).empty()) {
    value = value.substr(quote + 1);
    return Trim(value.substr(0, value.find('\'')));
  }
  return Trim(value.substr(0, value.find('/')));
}

// a * b, at most kMost.
std::uint64_t Multiply(std::uint64_t a, std::uint64_t b) { return b != 0 && a > kMost / b ? kMost : a * b; }

}  // namespace

FitsFile::FitsFile(const std::filesystem::path& path) : m_Path(path.string()) {
  std::string reason;
  if (!m_File.Open(m_Path.c_str(), reason)) Fail(reason);
  const auto* const begin = reinterpret_cast<const char*>(m_File.GetBytes());
  if (!IsFits({begin, std::min<std::size_t>(m_File.GetSize(), kCard)})) Fail("it is no FITS file");
  for (std::uint64_t at = 0; at < m_File.GetSize();) {
    const bool isFirst = at == 0;
    const Cards cards = ReadHeader(at);
    const std::uint64_t size = GetDataSize(cards);
    if (size > m_File.GetSize() - at) Fail("it ends in the middle of its data");
    FitsTable table;
    const auto name = cards.find("TTYPE1");
    if (name != cards.end()) table.column = name->second;
    table.rowSize = ReadInteger(cards, "NAXIS1", 0);
    table.rows = ReadInteger(cards, "NAXIS2", 0);
    table.bytes = m_File.GetBytes() + at;
    if (!isFirst && Multiply(table.rowSize, table.rows) <= size) m_Tables.push_back(table);
    if (isFirst) m_First = cards;
    at = std::min<std::uint64_t>(at + (size + kBlock - 1) / kBlock * kBlock, m_File.GetSize());
  }
}

// Leaves `at` at the data behind the header.
FitsFile::Cards FitsFile::ReadHeader(std::uint64_t& at) const {
  Cards cards;
  for (std::uint64_t card = at; card + kCard <= m_File.GetSize(); card += kCard) {
    const std::string_view text(reinterpret_cast<const char*>(m_File.GetBytes() + card), kCard);
    const std::string key = Trim(text.substr(0, 8));
    if (text.substr(8, 2) == "= ") cards.emplace(key, ReadValue(text));
    if (key != "END") continue;
    const std::uint64_t end = at + ((card + kCard - at) + kBlock - 1) / kBlock * kBlock;
    if (end > m_File.GetSize()) break;
    at = end;
    return cards;
  }
  Fail("it ends in the middle of a header");
}

std::uint64_t FitsFile::ReadInteger(const Cards& cards, const std::string& key, std::uint64_t missing) const {
  const auto card = cards.find(key);
  if (card == cards.end()) return missing;
  std::uint64_t value = 0;
  for (const char c : card->second) {
    if (c < '0' || c > '9') Fail("its header gives no size in " + key);
    value = std::min(Multiply(value, 10) + static_cast<std::uint64_t>(c - '0'), kMost);
  }
  return value;
}

std::uint64_t FitsFile::GetDataSize(const Cards& cards) const {
  const auto axes = ReadInteger(cards, "NAXIS", 0);
  if (axes > kMostAxes) Fail("its header gives no size in NAXIS");
  std::uint64_t size = axes == 0 ? 0 : 1;
  for (std::uint64_t axis = 1; axis <= axes; ++axis)
    size = Multiply(size, ReadInteger(cards, "NAXIS" + std::to_string(axis), 0));
  const auto bits = cards.find("BITPIX");
  std::string_view digits = bits == cards.end() ? std::string_view("8") : std::string_view(bits->second);
  int width = 0;
  if (!TakeNumber(digits, width, -64, 64) || width % 8 != 0) Fail("its header gives no size in BITPIX");
  size = std::min(size + ReadInteger(cards, "PCOUNT", 0), kMost);
  return Multiply(Multiply(size, ReadInteger(cards, "GCOUNT", 1)),
                  static_cast<std::uint64_t>(std::abs(width) / 8));
}

const FitsTable& FitsFile::Get(const std::string& column, std::uint64_t rowSize) const {
  const auto table = std::find_if(m_Tables.begin(), m_Tables.end(),
                                  [&](const FitsTable& other) { return other.column == column; });
  if (table == m_Tables.end()) Fail("it has no table " + column);
  if (table->rowSize != rowSize) {
    Fail("the rows of its table " + column + " have " + std::to_string(table->rowSize) + " bytes, wants " +
         std::to_string(rowSize));
  }
  return *table;
}

std::string FitsFile::GetText(const std::string& key) const {
  const auto card = m_First.find(key);
  return card == m_First.end() ? "" : card->second;
}

void FitsFile::Fail(const std::string& message) const { throw SourceError(m_Path, 0, message); }

}  // namespace skydata
