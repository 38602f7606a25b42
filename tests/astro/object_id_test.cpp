// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/object_id.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>

#include "astro/astro.h"

namespace {

constexpr int kPlanet = 0x706C6E74;  // "plnt"
constexpr int kMoon = 0x6D6F6F6E;    // "moon"

}  // namespace

TEST(ObjectId, RecordHas96BytesInWrittenOrder) {
  EXPECT_EQ(sizeof(SSO_ID), 96u);
  EXPECT_EQ(offsetof(SSO_ID, kind), 0u);
  EXPECT_EQ(offsetof(SSO_ID, number), 4u);
  EXPECT_EQ(offsetof(SSO_ID, third), 8u);
  EXPECT_EQ(offsetof(SSO_ID, name), 12u);
  EXPECT_EQ(offsetof(SSO_ID, fourth), 92u);
}

TEST(ObjectId, NewIdentifierIsEmpty) {
  const SSO_ID id;
  EXPECT_TRUE(id.IsEmpty());
  EXPECT_EQ(id.kind, -1);
  EXPECT_EQ(id.number, -1);
  EXPECT_EQ(id.third, 0);
  EXPECT_EQ(id.fourth, 0);
  for (const char c : id.name) EXPECT_EQ(c, '\0');
}

TEST(ObjectId, OneMissingWordAloneIsNotEmpty) {
  EXPECT_FALSE(SSO_ID(kPlanet, -1).IsEmpty());
  EXPECT_FALSE(SSO_ID(-1, 3).IsEmpty());
  EXPECT_FALSE(SSO_ID(kPlanet, 3).IsEmpty());
}

TEST(ObjectId, EqualityLooksAtKindAndNumberOnly) {
  SSO_ID a(kPlanet, 3);
  SSO_ID b(kPlanet, 3);
  std::strcpy(b.name, "Earth");
  b.third = 7;
  b.fourth = 9;
  EXPECT_TRUE(a == b);
  EXPECT_FALSE(a < b);
  EXPECT_FALSE(b < a);
  EXPECT_FALSE(a == SSO_ID(kPlanet, 4));
  EXPECT_FALSE(a == SSO_ID(kMoon, 3));
}

TEST(ObjectId, OrderIsKindThenNumberBothSigned) {
  EXPECT_TRUE(SSO_ID(kMoon, 301) < SSO_ID(kPlanet, 3));
  EXPECT_FALSE(SSO_ID(kPlanet, 3) < SSO_ID(kMoon, 301));
  EXPECT_TRUE(SSO_ID(kPlanet, 3) < SSO_ID(kPlanet, 10));
  EXPECT_TRUE(SSO_ID(kPlanet, -1) < SSO_ID(kPlanet, 0));
  EXPECT_TRUE(SSO_ID() < SSO_ID(kMoon, -5));
  EXPECT_TRUE(SSO_ID(static_cast<int>(0x80000000u), 0) < SSO_ID(kMoon, 0));
}
