// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cmath>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "catalogs/deepsky_images_catalog.h"
#include "common_interfaces/sky_images.h"
#include "tests/support/debug_capture.h"
#include "tests/support/temp_dir.h"
#include "utils/text.h"

using CommonInterfaces::DSOImageDesc;
using CommonInterfaces::DSOImages;
using namespace test_support;

namespace {

TEST(DeepskyImages, LineIsReadFieldByField) {
  Catalog catalog("224 95.0 0h42m44.3s 41g16'9\" -35 2 0.5 3 0.0625 1.25\n");
  const DSOImageDesc& image = Only(catalog);
  EXPECT_EQ(image.number, 224u);
  EXPECT_NEAR(image.size, 0.02763437982, 2e-9);  // 95 arc minutes
  EXPECT_NEAR(image.reciprocalSize, 36.18680811, 4e-6);
  const double ra = 0.18648115837, dec = 0.72028283789;  // 10.684583 and 41.269167 degrees
  EXPECT_NEAR(image.direction[0], std::cos(dec) * std::cos(ra), 2e-11);
  EXPECT_NEAR(image.direction[1], std::cos(dec) * std::sin(ra), 2e-11);
  EXPECT_NEAR(image.direction[2], std::sin(dec), 2e-11);
  EXPECT_EQ(image.rotation, -35.0);
  EXPECT_EQ(image.flags, 2);
  EXPECT_EQ(image.aspectRatio, 0.5);
  EXPECT_EQ(image.layer, 3);
  EXPECT_EQ(image.blackPoint, 0.0625);
  EXPECT_EQ(image.brightness, 1.25);
}

TEST(DeepskyImages, TenthFieldIsOneWhenAbsent) {
  Catalog catalog("31 10 10.5 41.25 0 1 1 0 0.5\n");
  EXPECT_EQ(Only(catalog).brightness, 1.0);
  EXPECT_EQ(Only(catalog).blackPoint, 0.5);
}

TEST(DeepskyImages, WhatTheObjectAddsHasItsDefaults) {
  Catalog catalog("31 10 10.5 41.25 0 1 1 0 0\n");
  EXPECT_EQ(Only(catalog).magnitude, 9999.0f);
  EXPECT_EQ(Only(catalog).largestDimension, -1.0f);
  EXPECT_EQ(Only(catalog).smallestDimension, -1.0f);
  EXPECT_EQ(Only(catalog).positionAngle, 0xFFFF);
}

TEST(DeepskyImages, LetterGoesIntoBits28To30) {
  Catalog catalog("224B 10 0 0 0 0 1 0 0\n");
  EXPECT_EQ(Only(catalog).number, 0x200000E0u);
}

TEST(DeepskyImages, LettersRunFromAToG) {
  Catalog catalog("1A 1 0 0 0 0 1 0 0\n2G 1 0 0 0 0 1 0 0\n3H 1 0 0 0 0 1 0 0\n4a 1 0 0 0 0 1 0 0\n");
  EXPECT_EQ(catalog.Numbers(), (std::vector<unsigned>{0x10000001u, 0x70000002u, 3u, 4u}));
}

// 16777217 is 2^24 + 1.
TEST(DeepskyImages, NumberKeepsItsLow24Bits) {
  Catalog catalog("16777217C 1 0 0 0 0 1 0 0\n");
  EXPECT_EQ(Only(catalog).number, 0x30000001u);
}

TEST(DeepskyImages, LetterBehindABlankIsNoPartOfTheNumber) {
  Catalog catalog("224 B 10\n");
  EXPECT_EQ(Only(catalog).number, 224u);
}

// size 30', r = 0.75: d = 30' * sqrt(1 + 16/9) = 30' * 5/3 = 50'.
TEST(DeepskyImages, HalfDiagonalFollowsFromSizeAndAspectRatio) {
  Catalog catalog("1 30 0 0 0 0 0.75 0 0\n");
  const double d = 50.0 / 60.0 * 3.14159265358979323846 / 180.0;
  EXPECT_NEAR(Only(catalog).halfDiagonal, d, 1e-9);
  EXPECT_NEAR(Only(catalog).cosHalfDiagonal, std::cos(d), 1e-11);
}

TEST(DeepskyImages, ReciprocalOfNoSizeIsZero) {
  Catalog catalog("1 0 0 0 0 0 1 0 0\n");
  EXPECT_EQ(Only(catalog).size, 0.0f);
  EXPECT_EQ(Only(catalog).reciprocalSize, 0.0f);
}

TEST(DeepskyImages, LinesThatBeginWithAnExclamationMarkAreComments) {
  Catalog catalog("!1 1 0 0 0 0 1 0 0\n2 1 0 0 0 0 1 0 0\n! a word\n");
  EXPECT_EQ(catalog.Numbers(), (std::vector<unsigned>{2u}));
}

TEST(DeepskyImages, WalkGoesInTheOrderOfNumberThenLetter) {
  Catalog catalog("7 1\n5C 1\n5A 1\n5 1\n6G 1\n");
  EXPECT_EQ(catalog.Numbers(), (std::vector<unsigned>{5u, 0x10000005u, 0x30000005u, 0x70000006u, 7u}));
}

TEST(DeepskyImages, WalkThatHasEndedStaysEnded) {
  Catalog catalog("1 1\n");
  DSOImages& images = catalog.images();
  EXPECT_EQ(images.GetNext(), nullptr);  // not begun
  EXPECT_NE(images.GetFirst(), nullptr);
  EXPECT_EQ(images.GetNext(), nullptr);
  EXPECT_EQ(images.GetNext(), nullptr);
}

TEST(DeepskyImages, OfTwoLinesForOneObjectTheFirstIsKept) {
  Catalog catalog("1 10\n1 20\n");
  EXPECT_NEAR(Only(catalog).size, 0.00290888209, 1e-9);
}

TEST(DeepskyImages, FindIgnoresTheKind) {
  Catalog catalog("224 1\n");
  EXPECT_EQ(catalog.images().Find(kGalaxy, 224), catalog.images().Find(-1, 224));
  EXPECT_NE(catalog.images().Find(0, 224), nullptr);
  EXPECT_EQ(catalog.images().Find(kGalaxy, 225), nullptr);
  EXPECT_EQ(catalog.images().Find(kGalaxy, 223), nullptr);
}

TEST(DeepskyImages, FindLooksAtLow24BitsAndLetterOnly) {
  Catalog catalog("224B 1\n");
  const DSOImageDesc* const image = catalog.images().GetFirst();
  EXPECT_EQ(catalog.images().Find(kGalaxy, 0x2F0000E0), image);  // a sub-type below the letter's bits
  EXPECT_EQ(catalog.images().Find(kGalaxy, static_cast<int>(0xA00000E0u)), image);  // bit 31 is no letter
}

// The sub-types of the catalogs are 30 to 64: bits 28 to 30 of their top byte are 1 to 4.
TEST(DeepskyImages, NumberWhoseLetterHasNoPictureFindsTheLowestLetter) {
  Catalog catalog("224C 1\n224B 2\n31 1\n32 1\n32D 1\n");
  const auto find = [&catalog](unsigned number) {
    const DSOImageDesc* const image = catalog.images().Find(kGalaxy, static_cast<int>(number));
    return image ? image->number : 0u;
  };
  EXPECT_EQ(find(0x400000E0), 0x200000E0u);  // 224D: B is the lowest there is
  EXPECT_EQ(find(0x300000E0), 0x300000E0u);  // 224C is there itself
  EXPECT_EQ(find(62u << 24 | 31), 31u);
  EXPECT_EQ(find(62u << 24 | 32), 32u);  // no letter comes before all letters
  EXPECT_EQ(find(64u << 24 | 32),
            0x40000020u);  // where a picture has the sub-type's bits as its letter, that
  EXPECT_EQ(find(62u << 24 | 33), 0u);
}

TEST(DeepskyImages, NumberWithoutLetterFindsTheLowestLetter) {
  Catalog catalog("224C 1\n224B 2\n225 3\n");
  const DSOImageDesc* image = catalog.images().Find(kGalaxy, 224);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->number, 0x200000E0u);
}

TEST(DeepskyImages, NumberWithoutLetterPrefersThePictureWithoutOne) {
  Catalog catalog("224B 1\n224 1\n");
  ASSERT_NE(catalog.images().Find(kGalaxy, 224), nullptr);
  EXPECT_EQ(catalog.images().Find(kGalaxy, 224)->number, 224u);
}

TEST(DeepskyImages, AddDataSwapsItsFirstTwoArguments) {
  Catalog catalog("1 1\n2 2\n");
  const DSOImageDesc* const image = catalog.images().Find(kGalaxy, 2);
  catalog.images().AddData(0.5f, 8.25f, 0.25f, 90);
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->magnitude, 8.25f);
  EXPECT_EQ(image->largestDimension, 0.5f);
  EXPECT_EQ(image->smallestDimension, 0.25f);
  EXPECT_EQ(image->positionAngle, 90);
  EXPECT_EQ(catalog.images().Find(kGalaxy, 1)->magnitude, 9999.0f);
}

TEST(DeepskyImages, AddDataGoesToWhatTheWalkGaveLast) {
  Catalog catalog("1 1\n2 2\n");
  DSOImages& images = catalog.images();
  images.Find(kGalaxy, 2);
  const DSOImageDesc* const first = images.GetFirst();
  images.AddData(1.0f, 2.0f, 3.0f, 4);
  EXPECT_EQ(first->magnitude, 2.0f);
  const DSOImageDesc* const second = images.GetNext();
  images.AddData(5.0f, 6.0f, 7.0f, 8);
  EXPECT_EQ(first->magnitude, 2.0f);
  EXPECT_EQ(second->magnitude, 6.0f);
}

TEST(DeepskyImages, MissLeavesTheCurrentPicture) {
  Catalog catalog("1 1\n2 2\n");
  const DSOImageDesc* const image = catalog.images().Find(kGalaxy, 1);
  EXPECT_EQ(catalog.images().Find(kGalaxy, 3), nullptr);
  catalog.images().AddData(1.0f, 2.0f, 3.0f, 4);
  EXPECT_EQ(image->positionAngle, 4);
}

TEST(DeepskyImages, FindLeavesTheWalkWhereItWas) {
  Catalog catalog("1 1\n2 1\n3 1\n");
  catalog.images().GetFirst();
  catalog.images().Find(kGalaxy, 3);
  ASSERT_NE(catalog.images().GetNext(), nullptr);
  EXPECT_EQ(catalog.images().Find(kGalaxy, 2)->number, 2u);
}

TEST(DeepskyImages, AddDataWithoutACurrentPictureDoesNothing) {
  Catalog catalog("1 1\n");
  catalog.images().AddData(1.0f, 2.0f, 3.0f, 4);
  EXPECT_EQ(Only(catalog).positionAngle, 0xFFFF);
}

TEST(DeepskyImages, FlagTwoMakesAPictureIndependent) {
  Catalog catalog("1 1 0 0 0 2\n2 1 0 0 0 1\n3 1 0 0 0 3\n4 1 0 0 0 0\n");
  catalog.images();
  ASSERT_EQ(DSOImages::s_IndependentImages.size(), 2u);
  EXPECT_EQ(DSOImages::s_IndependentImages[0].number, 1u);
  EXPECT_EQ(DSOImages::s_IndependentImages[1].number, 3u);
}

TEST(DeepskyImages, ReloadReadsTheFileAgain) {
  Catalog catalog("1 1 0 0 0 2\n");
  catalog.images().Find(kGalaxy, 1);
  catalog.roots.dir.Write(kFile, "5 1 0 0 0 2\n6 1\n");
  DSOImages::Reload();
  EXPECT_EQ(catalog.images().GetNext(), nullptr);
  catalog.images().AddData(1.0f, 2.0f, 3.0f, 4);  // nothing is current
  EXPECT_EQ(catalog.Numbers(), (std::vector<unsigned>{5u, 6u}));
  EXPECT_EQ(catalog.images().Find(kGalaxy, 5)->positionAngle, 0xFFFF);
  ASSERT_EQ(DSOImages::s_IndependentImages.size(), 1u);
  EXPECT_EQ(DSOImages::s_IndependentImages[0].number, 5u);
}

TEST(DeepskyImages, InstancesShareTheCatalogUntilTheLastGoes) {
  Catalog catalog("1 1 0 0 0 2\n");
  auto second = std::make_unique<DSOImages>(catalog.images());
  const DSOImageDesc* const image = catalog.images().Find(kGalaxy, 1);
  EXPECT_EQ(second->Find(kGalaxy, 1), image);
  { const DSOImages third; }
  EXPECT_EQ(second->Find(kGalaxy, 1), image);
}

TEST(DeepskyImages, LastInstanceEmptiesTheIndependentPictures) {
  TempRoots roots;
  roots.dir.Write(kFile, "1 1 0 0 0 2\n");
  {
    const DSOImages images;
    EXPECT_EQ(DSOImages::s_IndependentImages.size(), 1u);
  }
  EXPECT_TRUE(DSOImages::s_IndependentImages.empty());
}

TEST(DeepskyImages, IndependentPicturesAreReleasedByTheLastInstanceAlone) {
  TempRoots roots;
  roots.dir.Write(kFile, "1 1 0 0 0 2\n");
  auto first = std::make_unique<DSOImages>();
  auto second = std::make_unique<DSOImages>();
  first.reset();
  EXPECT_EQ(DSOImages::s_IndependentImages.size(), 1u);
  second.reset();
  EXPECT_TRUE(DSOImages::s_IndependentImages.empty());
  EXPECT_EQ(DSOImages::s_IndependentImages.capacity(), 0u);
}

// A plus is passed over in front of a number, and a point begins one too.
TEST(DeepskyImages, PlusStandsInFrontOfANumberOnly) {
  {
    Catalog catalog("31 10 10.5 41.25 +2 1 1 0 0 +.25\n");
    EXPECT_EQ(Only(catalog).rotation, 2.0);
    EXPECT_EQ(Only(catalog).brightness, 0.25);
  }
  Catalog catalog("31 10 10.5 41.25 2 1 1 0 0 +x\n");
  EXPECT_EQ(Only(catalog).brightness, 1.0);
}

// Each of the degrees is finite, their sum is not.
TEST(DeepskyImages, AngleBeyondAllNumbersIsNone) {
  Catalog catalog("31 10 1e308g1e308g 0 -35 1 1 0 0\n");
  EXPECT_EQ(Only(catalog).direction[0], 1.0) << "as with a right ascension of 0";
  EXPECT_EQ(Only(catalog).rotation, -35.0) << "the fields behind it stay in their columns";
}

}  // namespace
