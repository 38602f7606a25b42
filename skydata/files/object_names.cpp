// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/files/object_names.h"

#include <algorithm>
#include <iterator>

#include "utils/text.h"

namespace skydata {

std::string NameIdentifier(unsigned identifier) {
  std::string code;
  for (int shift = 24; shift >= 0; shift -= 8) code += static_cast<char>(identifier >> shift & 0xFF);
  const bool isCode = std::all_of(code.begin(), code.end(), [](char c) { return c > ' ' && c <= '~'; });
  return isCode ? code : std::to_string(identifier);
}

std::string NameKind(int kind) { return NameIdentifier(static_cast<unsigned>(kind)); }

std::string NameObject(int kind, int number) { return NameKind(kind) + " " + std::to_string(number); }

bool IsKnownKind(int kind) {
  static constexpr int kKinds[] = {
      FourCC("plnt"), FourCC("moon"), FourCC("pldw"), FourCC("star"), FourCC("gala"), FourCC("clst"),
      FourCC("nebu"), FourCC("dsnv"), FourCC("astr"), FourCC("comt"), FourCC("scft"), FourCC("cnst"),
      FourCC("mesh"), FourCC("uSTR"), FourCC("uDSO"), FourCC("uNEB"), FourCC("uCLS"), FourCC("uGAL"),
      FourCC("fAST"), FourCC("fCOM"), FourCC("fSCO"), FourCC("uSCO")};
  return std::find(std::begin(kKinds), std::end(kKinds), kind) != std::end(kKinds);
}

}  // namespace skydata
