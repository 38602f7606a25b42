// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/search/object_search.h"

#include <gtest/gtest.h>

#include "scene/catalogs/name_key.h"
#include "scene/frame_helpers.h"
#include "utils/messages.h"

using namespace scene;

TEST(NameKey, CaseBlanksPunctuationAndAccentsDoNotMatter) {
  EXPECT_EQ(MakeNameKey("NGC 224"), "ngc224");
  EXPECT_EQ(MakeNameKey("Boötes"), "bootes");
  EXPECT_EQ(MakeNameKey("Boo\xCC\x88tes"), "bootes") << "a combining diaeresis";
  EXPECT_EQ(MakeNameKey("Citalá"), "citala");
  EXPECT_EQ(MakeNameKey("Bird's  Head-3"), "birdshead3");
  EXPECT_EQ(MakeNameKey("Łódź Straße ŒŸ"), "lodzstrasseoey");
  EXPECT_EQ(MakeNameKey(""), "");
}

TEST(NameKey, GreekLettersAreWrittenOut) {
  EXPECT_EQ(MakeNameKey("α CMa"), "alphacma");
  EXPECT_EQ(MakeNameKey("Ω2 Aqr"), "omega2aqr");
  EXPECT_EQ(MakeNameKey("θ¹ Ori"), "theta1ori");
  EXPECT_EQ(MakeNameKey("σς"), "sigmasigma");
}

TEST(NameKey, CyrillicLettersBecomeSmall) {
  EXPECT_EQ(MakeNameKey("Большая Медведица"), "большаямедведица");
  EXPECT_EQ(MakeNameKey("Пёс"), "пес");
  EXPECT_EQ(MakeNameKey("ПЁС"), "пес");
  EXPECT_EQ(MakeNameKey("Яя"), "яя");
}
TEST(NameKey, OtherScriptsAndBrokenUtf8Stay) {
  EXPECT_EQ(MakeNameKey("오리온"), "오리온");
  EXPECT_EQ(MakeNameKey("a\xCE"), "a\xCE");
  EXPECT_EQ(MakeNameKey("\xFF\x80z"), "\xFF\x80z");
}

TEST(NameKey, ShortGreekLettersAreExpandedOnlyBeforeSomething) {
  EXPECT_EQ(ExpandGreekLetter("alp CMa"), "alpha CMa");
  EXPECT_EQ(ExpandGreekLetter("Eps1 Lyr"), "epsilon1 Lyr");
  EXPECT_EQ(ExpandGreekLetter("alp"), "alp");
  EXPECT_EQ(ExpandGreekLetter("alpha CMa"), "alpha CMa");
  EXPECT_EQ(ExpandGreekLetter("M 31"), "M 31");
}

TEST(NameList, IsSetApartByCommas) {
  EXPECT_EQ(JoinNames({"A", "B"}), "A, B");
  EXPECT_EQ(JoinNames({}), "");
}

class ObjectSearchTest : public testing::Test {
 protected:
  std::string TitleOf(const std::string& name) {
    std::string error;
    const auto found = search.FindOne(name, error);
    return found ? search.GetTitle(*found) : "? " + error;
  }
  host_test::FrameFixture f;
  ObjectSearch search{f.catalogs};
};

TEST_F(ObjectSearchTest, EveryNameOfAnObjectFindsIt) {
  for (const char* name :
       {"Betelgeuse", "betelgeuse", "α Ori", "alpha Ori", "ALP ORI", "HR 2061", "hr2061"}) {
    EXPECT_EQ(TitleOf(name), "Betelgeuse (α Ori, HR 2061)") << name;
  }
  for (const char* name : {"M31", "m 31", "Messier 31", "NGC 224", "ngc224", "andromeda galaxy"}) {
    EXPECT_EQ(TitleOf(name), "M 31 (NGC 224, Andromeda Galaxy)") << name;
  }
  for (const char* name : {"Orion", "ori", "HUNTER"}) EXPECT_EQ(TitleOf(name), "Orion (Ori, Hunter)") << name;
}

TEST_F(ObjectSearchTest, EveryEntryOfADeepskyObjectFindsIt) {
  f.sky.dir.Write("data/catalogs/ngc_ic.txt",
                  "Type:text\tNumber:i32\tRA:f64\tDec:f64\tMessierNumber:i32\tNGC_ICnumber:text\t"
                  "ProperName:text\tOtherNames:text\n"
                  "gala\t31\t1\t0\t31\tNGC 224\tAndromeda Galaxy\tUGC 454;PGC 2557\n"
                  "nebu\t3000033\t1\t0\t\tB 33\tHorsehead Nebula\n"
                  "clst\t3100014\t1\t0\t\tC 14\tDouble Cluster\tH & chi Persei\n"
                  "nebu\t2043400\t1\t0\t\tIC 434\t\tC 9;Sh 2-155;Cr 50;Mel 25\n"
                  "gala\t3400092\t1\t0\t\tHCG 92\tStephan's Quintet\n");
  std::string error;
  ASSERT_TRUE(LoadSkyCatalogs(f.catalogs, error)) << error;
  search = ObjectSearch(f.catalogs);
  EXPECT_EQ(TitleOf("PGC 2557"), "M 31 (NGC 224, Andromeda Galaxy, UGC 454, PGC 2557)");
  for (const char* name : {"B33", "b 33", "Barnard 33", "Horsehead", "horsehead nebula"})
    EXPECT_EQ(TitleOf(name), "B 33 (Horsehead Nebula)") << name;
  for (const char* name : {"C14", "Caldwell 14", "caldwell14", "Double Cluster", "h & chi Persei"})
    EXPECT_EQ(TitleOf(name), "C 14 (Double Cluster, H & chi Persei)") << name;
  for (const char* name : {"IC434", "ic 434", "C9", "Sharpless 155", "Sh2-155", "Collinder 50", "Melotte 25"})
    EXPECT_EQ(TitleOf(name), "IC 434 (C 9, Sh 2-155, Cr 50, Mel 25)") << name;
  for (const char* name : {"Hickson 92", "hcg92", "Stephan's Quintet"})
    EXPECT_EQ(TitleOf(name), "HCG 92 (Stephan's Quintet)") << name;
  EXPECT_EQ(TitleOf("Andromeda"), "M 31 (NGC 224, Andromeda Galaxy, UGC 454, PGC 2557)")
      << "the constellation of that name is not in these catalogs";
  EXPECT_EQ(TitleOf("Orion"), "Orion (Ori, Hunter)") << "what has the name goes before what begins with it";
}

TEST_F(ObjectSearchTest, UnknownNameNamesSimilarOnes) {
  EXPECT_EQ(TitleOf("Rigl"), "? 'Rigl': no such object; similar: Rigel");
  EXPECT_EQ(TitleOf("Xyzzy"), "? 'Xyzzy': no such object");
  EXPECT_EQ(TitleOf(""), "? '': no such object");
}

TEST_F(ObjectSearchTest, AmbiguousNameListsItsObjects) {
  f.sky.dir.Write(
      "data/catalogs/stars.txt",
      "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tBayer:text\n1948\t1.4\t0\t2\tζ Ori\n1949\t1.4\t0\t4\tζ "
      "Ori\n");
  SkyCatalogs catalogs;
  std::string error;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error));
  EXPECT_FALSE(ObjectSearch(catalogs).FindOne("zeta Ori", error));
  EXPECT_EQ(error, "'zeta Ori': ambiguous, wants one of ζ Ori (HR 1948); ζ Ori (HR 1949)");
}

TEST_F(ObjectSearchTest, KindAndNumberAreThoseOfTheCatalogs) {
  std::string error;
  const auto star = search.FindOne("Sirius", error), nebula = search.FindOne("M42", error);
  ASSERT_TRUE(star && nebula);
  EXPECT_EQ(GetKind(*star, f.catalogs), FourCC("star"));
  EXPECT_EQ(GetNumber(*star, f.catalogs), 2491);
  EXPECT_EQ(GetKind(*nebula, f.catalogs), FourCC("nebu"));
  EXPECT_EQ(GetNumber(*nebula, f.catalogs), 42);
}

TEST_F(ObjectSearchTest, PlutoIsOneObjectByBothNames) {
  const host_test::OrbitRow pluto = {134340,  "Pluto", 2454000.5, 39.445, 0.25025, 17.089,
                                     110.377, 112.597, 25.247,    -0.44,  0.15};
  f.sky.dir.Write("data/catalogs/asteroids.txt", host_test::OrbitTable(&pluto, 1, false));
  SkyCatalogs catalogs;
  std::string error;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  EXPECT_EQ(FindBody(catalogs.bodies, SSO_ID(FourCC("astr"), 134340)), -1) << "it would be drawn twice";
  const ObjectSearch both(catalogs);
  for (const char* name : {"Pluto", "134340 Pluto"}) {
    const auto found = both.FindOne(name, error);
    ASSERT_TRUE(found) << error;
    EXPECT_EQ(GetKind(*found, catalogs), FourCC("plnt")) << name;
    EXPECT_EQ(both.GetTitle(*found), "Pluto (134340 Pluto)");
  }
}

TEST_F(ObjectSearchTest, BayerLetterWithoutItsNumberIsAmbiguous) {
  f.sky.dir.Write(
      "data/catalogs/stars.txt",
      "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tBayer:text\n5459\t3.8\t-1\t0\t\u03B11 Cen\n"
      "5460\t3.8\t-1\t1\t\u03B12 Cen\n5267\t3.7\t-1\t0.6\t\u03B2 Cen\n5193\t3.6\t-0.7\t3\t\u03BC1 Cen\n");
  SkyCatalogs catalogs;
  std::string error;
  ASSERT_TRUE(LoadSkyCatalogs(catalogs, error)) << error;
  const ObjectSearch stars(catalogs);
  for (const char* name : {"alpha cen", "alp Cen", "\u03B1 Cen"}) {
    EXPECT_FALSE(stars.FindOne(name, error));
    EXPECT_EQ(error, std::string("'") + name +
                         "': ambiguous, wants one of \u03B11 Cen (HR 5459); \u03B12 Cen (HR 5460)");
  }
  EXPECT_TRUE(stars.FindOne("alpha1 Cen", error)) << error;
  EXPECT_TRUE(stars.FindOne("beta Cen", error)) << error;
  EXPECT_TRUE(stars.FindOne("mu Cen", error)) << "the only one that the catalog has";
}

TEST_F(ObjectSearchTest, MoonThatTheModelDoesNotPlaceIsToldFromWhatNobodyKnows) {
  EXPECT_EQ(TitleOf("Neith"), "? 'Neith': a moon of Venus; the model does not place it yet");
  EXPECT_EQ(TitleOf("neith"), "? 'neith': a moon of Venus; the model does not place it yet");
  EXPECT_EQ(TitleOf("Moon"), "Moon");
}

TEST(FindObject, EveryObjectOfTheCatalogsIsFoundByItsKindAndNumber) {
  host_test::FrameFixture f;
  const std::pair<ObjectGroup, int> groups[] = {
      {ObjectGroup::kStar, f.catalogs.stars.GetCount()},
      {ObjectGroup::kDeepsky, static_cast<int>(f.catalogs.deepsky.size())},
      {ObjectGroup::kConstellation, static_cast<int>(f.catalogs.constellations.size())},
      {ObjectGroup::kBody, static_cast<int>(f.catalogs.bodies.size())}};
  int count = 0;
  for (const auto& [group, size] : groups) {
    for (int i = 0; i < size; ++i, ++count) {
      const FoundObject object = {group, i};
      EXPECT_EQ(FindObject({GetKind(object, f.catalogs), GetNumber(object, f.catalogs)}, f.catalogs), object);
    }
  }
  EXPECT_GE(count, 25);  // ten stars, three deep-sky objects, Orion, and the bodies
}

TEST(FindObject, WhatTheCatalogsLackIsNothing) {
  host_test::FrameFixture f;
  EXPECT_FALSE(FindObject({FourCC("star"), 99999}, f.catalogs));
  EXPECT_FALSE(FindObject({FourCC("gala"), 2491}, f.catalogs));  // the number of a star
  EXPECT_FALSE(FindObject({}, f.catalogs));
}
