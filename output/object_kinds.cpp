// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_kinds.h"

#include "utils/text.h"

namespace CommonInterfaces {

int GetFavoType(int kind) {
  switch (kind) {
    case FourCC("astr"):
      return FourCC("fAST");
    case FourCC("comt"):
      return FourCC("fCOM");
    case FourCC("uSCO"):
    case FourCC("scft"):
      return FourCC("fSCO");
    default:
      return -1;
  }
}

int GetBaseTypeByUser(int kind) {
  switch (kind) {
    case FourCC("uSTR"):
      return FourCC("star");
    case FourCC("uSCO"):
      return FourCC("scft");
    case FourCC("uNEB"):
      return FourCC("nebu");
    case FourCC("uCLS"):
      return FourCC("clst");
    case FourCC("uGAL"):
      return FourCC("gala");
    default:
      return kind;
  }
}

}  // namespace CommonInterfaces
