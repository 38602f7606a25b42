// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

namespace skydata {

// Looks for whole blocks in a damaged settings file. Each place and record that is looked at is a step; there
// are as many as a multiple of the file's size, so that no file keeps the reader busy for long.
class BlockSearch {
 public:
  explicit BlockSearch(std::string_view bytes);

  // The next place from there on where a block stands that cannot be anything else: with sections, and with
  // fields that all belong to them. The end of the file when there is none, or no step left.
  std::size_t FindNext(std::size_t from);

  void Spend(int steps) { m_Steps -= steps; }
  bool HasSteps() const { return m_Steps > 0; }

 private:
  bool IsPlainBlock(std::string_view rest);
  bool HoldsFieldsOf(std::string_view sections, std::string_view rest);
  bool NamesSection(std::string_view sections, unsigned id);

  const std::string_view m_Bytes;
  long long m_Steps;
};

}  // namespace skydata
