// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/setting_text.h"

#include <gtest/gtest.h>

#include "utils/text.h"

using namespace scene;

TEST(SettingTextTest, WholeSectionGoesOnOrOff) {
  for (const bool on : {true, false}) {
    const auto change = ParseSettingText(on ? "star:on" : "star:off");
    ASSERT_TRUE(change);
    EXPECT_EQ(change->section, "star");
    EXPECT_EQ(change->field, "");
    EXPECT_EQ(change->on, on);
    EXPECT_TRUE(change->values.empty());
  }
}

TEST(SettingTextTest, FieldHasItsValuesAndMayTakePartBesides) {
  const auto change = ParseSettingText("gala.VisMagnitude=-2.5,12deg:on");
  ASSERT_TRUE(change);
  EXPECT_EQ(change->section, "gala");
  EXPECT_EQ(change->field, "VisMagnitude");
  EXPECT_EQ(change->GetNameId(), GetUniqueID("VisMagnitude"));
  EXPECT_EQ(change->index, std::nullopt);
  EXPECT_EQ(change->values, (std::vector<std::string>{"-2.5", "12deg"}));
  EXPECT_EQ(change->on, true);
  EXPECT_EQ(ParseSettingText("gala.VisMagnitude=3")->on, std::nullopt);
}

TEST(SettingTextTest, IndexStandsInBracketsBehindTheName) {
  const auto change = ParseSettingText("star.CatalogType[12]=1");
  ASSERT_TRUE(change);
  EXPECT_EQ(change->field, "CatalogType");
  EXPECT_EQ(change->index, 12u);
  EXPECT_EQ(change->values, std::vector<std::string>{"1"});
}

TEST(SettingTextTest, NameMayBeItsHexadecimalNumber) {
  EXPECT_EQ(ParseSettingText("star.@1f=1")->GetNameId(), 0x1F);
  EXPECT_EQ(ParseSettingText("star.@1f[0]=1")->GetNameId(), 0x1F);
}

TEST(SettingTextTest, WhatIsNotOfTheFormIsNothing) {
  for (const char* text :
       {"", "star", ":on", "star=1", "star=1:on", ".Draw=1", "star.=1", "star.Draw",
        "star.Draw=", "star.Draw=1,", "star.Draw=,1", "star.[0]=1", "star.Draw[]=1", "star.Draw[x]=1",
        "star.Draw[-1]=1", "star.Draw[0=1", "star.Draw[0]", "star.Draw[0]:on", "star.Draw[0]x=1"})
    EXPECT_FALSE(ParseSettingText(text)) << text;
}
