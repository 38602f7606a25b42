// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/reader/block_search.h"

#include "skydata/settings/reader/block_layout.h"
#include "utils/bytes.h"

namespace skydata {
namespace {

constexpr long long kSteps = 65536, kStepsPerByte = 16;

}  // namespace

BlockSearch::BlockSearch(std::string_view bytes)
    : m_Bytes(bytes), m_Steps(kSteps + kStepsPerByte * static_cast<long long>(bytes.size())) {}

std::size_t BlockSearch::FindNext(std::size_t from) {
  for (std::size_t place = from; place < m_Bytes.size() && m_Steps > 0; ++place, --m_Steps) {
    if (IsPlainBlock(m_Bytes.substr(place))) return place;
  }
  return m_Bytes.size();
}

bool BlockSearch::IsPlainBlock(std::string_view rest) {
  constexpr std::size_t kFrame = kKeySize + kSectionCountSize + kFieldCountSize;
  if (rest.size() < kFrame + kSectionSize + kRecordLengthSize + kMinRecordSize) return false;
  const int count = static_cast<short>(LoadLE16(rest.data() + kKeySize));
  if (count <= 0 || static_cast<std::size_t>(count) > (rest.size() - kFrame) / kSectionSize) return false;
  rest.remove_prefix(kKeySize + kSectionCountSize);
  const std::string_view sections = rest.substr(0, static_cast<std::size_t>(count) * kSectionSize);
  return HoldsFieldsOf(sections, rest.substr(sections.size()));
}

bool BlockSearch::HoldsFieldsOf(std::string_view sections, std::string_view rest) {
  constexpr std::size_t kLeast = kRecordLengthSize + kMinRecordSize;
  const int count = static_cast<int>(LoadLE32(rest.data()));
  rest.remove_prefix(kFieldCountSize);
  if (count <= 0 || static_cast<std::size_t>(count) > rest.size() / kLeast) return false;
  for (int i = 0; i < count; ++i) {
    if (rest.size() < kLeast) return false;
    const std::size_t size = LoadLE32(rest.data());
    rest.remove_prefix(kRecordLengthSize);
    if (size < kMinRecordSize || size > CommonInterfaces::kMaxFieldRecordSize || size > rest.size())
      return false;
    if (!NamesSection(sections, LoadLE32(rest.data()))) return false;
    rest.remove_prefix(size);
  }
  return true;
}

bool BlockSearch::NamesSection(std::string_view sections, unsigned id) {
  for (; !sections.empty() && m_Steps > 0; sections.remove_prefix(kSectionSize), --m_Steps) {
    if (LoadLE32(sections.data()) == id) return true;
  }
  return false;
}

}  // namespace skydata
