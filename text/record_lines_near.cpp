// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <optional>

#include "common_interfaces/record_lines.h"
#include "common_interfaces/string_table.h"
#include "text/bounded_copy.h"
#include "text/record_lines_inside.h"
#include "text/text_ids.h"
#include "utils/debug.h"

namespace CommonInterfaces::record_lines {

namespace {

// A missing text is reported by the string table, which has no empty ones to compare then.
void ReportUnequal(unsigned identifier, const char* characters, const char* replacements, std::size_t width) {
  if (!characters || !replacements) return;
  const std::size_t count = std::string_view(characters).size(),
                    length = std::string_view(replacements).size();
  if (length == count * width) return;
  PrintDebugString("Strings %d and %d do not match: %d characters, replacements of %d bytes in place of %d\n",
                   static_cast<int>(identifier), static_cast<int>(identifier) + 1, static_cast<int>(count),
                   static_cast<int>(length), static_cast<int>(count * width));
}

std::string_view OrEmpty(const char* text) { return text ? text : ""; }

// Process-wide, made by the first StringToNear and kept; for the thread that uses the string table.
std::optional<NearTable> s_NearTable;

const NearTable& GetNearTable() {
  if (!s_NearTable) {
    const QX4Strings load;
    const char* texts[4];
    for (unsigned i = 0; i < 4; ++i) texts[i] = QX4Strings::GetString(TextIds::kSingles + i, false);
    s_NearTable.emplace(texts[0], texts[1], texts[2], texts[3]);
  }
  return *s_NearTable;
}

}  // namespace

NearTable::NearTable(const char* single, const char* singleNear, const char* further,
                     const char* furtherNear) {
  if (OrEmpty(single).starts_with('-')) return;
  ReportUnequal(TextIds::kSingles, single, singleNear, 1);
  ReportUnequal(TextIds::kDoubles, further, furtherNear, 2);
  Add(OrEmpty(single), OrEmpty(singleNear), 1);
  Add(OrEmpty(further), OrEmpty(furtherNear), 2);
}

// The first place of a character counts, and the single replacements before the further ones.
void NearTable::Add(std::string_view characters, std::string_view replacements, unsigned width) {
  const std::size_t count = std::min(characters.size(), replacements.size() / width);
  for (std::size_t i = 0; i < count; ++i) {
    const auto byte = static_cast<unsigned char>(characters[i]);
    if (byte > 0x80 && m_Replacements[byte].empty()) {
      m_Replacements[byte] = replacements.substr(i * width, width);
    }
  }
}

std::string NearTable::Convert(std::string_view text) const {
  std::string converted;
  converted.reserve(text.size() * 2);
  for (char c : text) {
    const std::string& replacement = m_Replacements[static_cast<unsigned char>(c)];
    if (replacement.empty()) {
      converted += c;
    } else {
      converted += replacement;
    }
  }
  return converted;
}

void ForgetNearTableForTests() { s_NearTable.reset(); }

}  // namespace CommonInterfaces::record_lines

using namespace CommonInterfaces::record_lines;

void StringToNear(char* out, char const* in) {
  CommonInterfaces::CopyBounded(GetNearTable().Convert(in ? in : ""), out);
}

std::string StringToNear(std::string const& in) { return GetNearTable().Convert(in); }
