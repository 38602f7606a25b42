// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_shadow_map.h"

#include <cstring>
#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "utils/text.h"

using CommonInterfaces::ObjectShadowMap;
using CommonInterfaces::QX_ShadowParams;
using ShadowList = std::vector<QX_ShadowParams>;

namespace {

static_assert(std::has_virtual_destructor_v<ObjectShadowMap>);

const SSO_ID kMoon(FourCC("moon"), 301);
const SSO_ID kEarth(FourCC("plnt"), 3);

// A list made with `new`, as the map takes it over; its length tells it apart.
ShadowList* MakeList(unsigned length) { return new ShadowList(length); }

TEST(ObjectShadowMapTest, AnEmptyMapHasNoList) {
  ObjectShadowMap map;
  EXPECT_EQ(map.FindList(kMoon), nullptr);
  EXPECT_EQ(map.FindList(SSO_ID()), nullptr);
}

TEST(ObjectShadowMapTest, AListIsFoundUnderItsObjectOnly) {
  ObjectShadowMap map;
  ShadowList* moon = MakeList(1);
  ShadowList* earth = MakeList(2);
  map.AddList(kMoon, moon);
  map.AddList(kEarth, earth);
  EXPECT_EQ(map.FindList(kMoon), moon);
  EXPECT_EQ(map.FindList(kEarth), earth);
  EXPECT_EQ(map.FindList(SSO_ID(FourCC("moon"), 302)), nullptr);
  EXPECT_EQ(map.FindList(SSO_ID(FourCC("plnt"), 301)), nullptr);
}

TEST(ObjectShadowMapTest, OnlyKindAndNumberNameTheObject) {
  ObjectShadowMap map;
  ShadowList* list = MakeList(1);
  map.AddList(kMoon, list);
  SSO_ID named = kMoon;
  std::strcpy(named.name, "Moon");
  named.third = 5;
  named.fourth = 6;
  EXPECT_EQ(map.FindList(named), list);
}

TEST(ObjectShadowMapTest, ASecondListForAnObjectIsNotTakenOver) {
  const std::unique_ptr<ShadowList> second(MakeList(2));
  {
    ObjectShadowMap map;
    ShadowList* first = MakeList(1);
    map.AddList(kMoon, first);
    map.AddList(kMoon, second.get());
    EXPECT_EQ(map.FindList(kMoon), first);
    EXPECT_EQ(first->size(), 1u) << "not merged";
  }
  EXPECT_EQ(second->size(), 2u) << "still the caller's, after the map is gone";
}

TEST(ObjectShadowMapTest, ANullListTakesThePlace) {
  ObjectShadowMap map;
  map.AddList(kMoon, nullptr);
  const std::unique_ptr<ShadowList> late(MakeList(1));
  map.AddList(kMoon, late.get());
  EXPECT_EQ(map.FindList(kMoon), nullptr);
}

TEST(ObjectShadowMapTest, ClearAllEmptiesTheMapForTheNextFrame) {
  ObjectShadowMap map;
  map.AddList(kMoon, MakeList(1));
  map.AddList(kEarth, MakeList(1));
  map.ClearAll();
  EXPECT_EQ(map.FindList(kMoon), nullptr);
  EXPECT_EQ(map.FindList(kEarth), nullptr);
  ShadowList* next = MakeList(3);
  map.AddList(kMoon, next);
  EXPECT_EQ(map.FindList(kMoon), next);
}

}  // namespace
