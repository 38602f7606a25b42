// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The string table, loaded by way of a change of language as a running program does it.
#include <cstdint>
#include <cstring>
#include <iterator>

#include "common_interfaces/object_kinds.h"
#include "common_interfaces/string_table.h"
#include "fuzz/scratch.h"
#include "utils/text.h"

using CommonInterfaces::QX4Strings;

namespace {

constexpr unsigned kIdentifiers[] = {0, 1, 12, 965, 7200, 7211, 20560, 40830, 0x7FFFFFFF, 0xFFFFFFFF};

// How much text the table hands out for the identifiers above.
std::size_t Length() {
  std::size_t length = 0;
  for (unsigned identifier : kIdentifiers) {
    if (const char* text = QX4Strings::GetString(identifier, false)) length += std::strlen(text);
  }
  if (const char* text = CommonInterfaces::GetObjectTypeName(FourCC("star"), 0)) length += std::strlen(text);
  return length;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Scratch::Get().Write("data/qxstrings.txt", data, size);
  QX4Strings::StartLocaleUpdate();
  const QX4Strings reload;
  const std::size_t after = Length();
  fuzz::Require(after <= size * std::size(kIdentifiers) + size, "texts are pieces of the file");
  QX4Strings::FinishLocaleUpdate();
  fuzz::Require(Length() == after, "the texts outlive the end of the change of language");
  // The same file again gives the same texts, and the old ones until then.
  QX4Strings::StartLocaleUpdate();
  fuzz::Require(Length() == after, "the old texts answer until the reload");
  const QX4Strings again;
  fuzz::Require(Length() == after, "a reload of one file gives the same texts");
  QX4Strings::FinishLocaleUpdate();
  return 0;
}
