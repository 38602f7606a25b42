// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_kinds.h"

#include <gtest/gtest.h>

#include "utils/text.h"

using namespace CommonInterfaces;

namespace {

TEST(ObjectKindsTest, FavouritesKindOfEveryKindThatHasOne) {
  EXPECT_EQ(GetFavoType(FourCC("astr")), FourCC("fAST"));
  EXPECT_EQ(GetFavoType(FourCC("comt")), FourCC("fCOM"));
  EXPECT_EQ(GetFavoType(FourCC("uSCO")), FourCC("fSCO"));
  EXPECT_EQ(GetFavoType(FourCC("scft")), FourCC("fSCO"));
}

TEST(ObjectKindsTest, EveryOtherKindHasNoFavouritesKind) {
  for (int kind : {FourCC("star"), FourCC("plnt"), FourCC("gala"), FourCC("fAST"), FourCC("uSTR"), 0, -1}) {
    EXPECT_EQ(GetFavoType(kind), -1) << kind;
  }
}

TEST(ObjectKindsTest, CatalogueKindOfEveryUserKind) {
  EXPECT_EQ(GetBaseTypeByUser(FourCC("uSTR")), FourCC("star"));
  EXPECT_EQ(GetBaseTypeByUser(FourCC("uSCO")), FourCC("scft"));
  EXPECT_EQ(GetBaseTypeByUser(FourCC("uNEB")), FourCC("nebu"));
  EXPECT_EQ(GetBaseTypeByUser(FourCC("uCLS")), FourCC("clst"));
  EXPECT_EQ(GetBaseTypeByUser(FourCC("uGAL")), FourCC("gala"));
}

TEST(ObjectKindsTest, EveryOtherKindIsItsOwnCatalogueKind) {
  for (int kind : {FourCC("star"), FourCC("plnt"), FourCC("uDSO"), FourCC("fAST"), 0, -1}) {
    EXPECT_EQ(GetBaseTypeByUser(kind), kind);
  }
}

}  // namespace
