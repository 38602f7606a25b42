// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "skydata/build/catalog_files.h"
#include "tests/skydata/tiny_source.h"

namespace skydata {
namespace {

using namespace std::string_literals;

constexpr char kImages[] = "skyobjects/constellation_images.tsv";
constexpr char kImageColumns[] =
    "Identifier\tRA1_deg\tDec1_deg\tRA2_deg\tDec2_deg\tRA3_deg\tDec3_deg\tRA4_deg\tDec4_deg\n";

class ImageSource : public testing::Test {
 protected:
  std::string Make(const std::string& rows) {
    m_Source.Write(kImages, kImageColumns + rows);
    return m_Source.Make(MakeConstellationImages);
  }
  std::string Message(const std::string& rows) {
    return m_Source.Message(MakeConstellationImages, kImages, kImageColumns + rows);
  }
  skydata_test::TinySource m_Source;
};

TEST_F(ImageSource, TheBytesAreBigEndianHundredThousandthsOfADegree) {
  EXPECT_EQ(Make("Ori\t90.00015\t-10\t0\t0\t360\t90\t1.5\t-0.5\n"),
            "\0\1Ori \x00\x89\x54\x4F\xFF\xF0\xBD\xC0"
            "\0\0\0\0\0\0\0\0"
            "\x02\x25\x51\x00\x00\x89\x54\x40"
            "\x00\x02\x49\xF0\xFF\xFF\x3C\xB0"s);
}
TEST_F(ImageSource, ATableWithoutRowsIsACountOfZero) { EXPECT_EQ(Make(""), "\0\0"s); }
TEST_F(ImageSource, TheCountHasTwoBytes) {
  std::string rows;
  for (int i = 0; i < 300; ++i) rows += "I" + std::to_string(i) + "\t0\t0\t0\t0\t0\t0\t0\t0\n";
  m_Source.Write("skyobjects/milkyway_images.tsv", kImageColumns + rows);
  const std::string bytes = m_Source.Make(MakeMilkyWayImages);
  EXPECT_EQ(bytes.substr(0, 6), "\x01\x2CI0  "s);
  EXPECT_EQ(bytes.size(), 2u + 300u * 36u);
}
TEST_F(ImageSource, AnIdentifierHasOneToFourLettersOrDigits) {
  EXPECT_EQ(Message("\t0\t0\t0\t0\t0\t0\t0\t0\n"),
            "skyobjects/constellation_images.tsv:2: Identifier: wants one to four characters");
  EXPECT_EQ(Message("Orion\t0\t0\t0\t0\t0\t0\t0\t0\n"),
            "skyobjects/constellation_images.tsv:2: Identifier: wants one to four characters");
  EXPECT_EQ(
      Message("O i\t0\t0\t0\t0\t0\t0\t0\t0\n"),
      "skyobjects/constellation_images.tsv:2: Identifier: 'O i' has other characters than A-Z, a-z, 0-9");
}
TEST_F(ImageSource, AnIdentifierStandsOnce) {
  EXPECT_EQ(Message("Ori\t0\t0\t0\t0\t0\t0\t0\t0\nOri\t0\t0\t0\t0\t0\t0\t0\t0\n"),
            "skyobjects/constellation_images.tsv:3: Identifier: 'Ori' stands above already");
}
TEST_F(ImageSource, AnIdentifierIsThatOfAConstellation) {
  EXPECT_EQ(Message("Ori\t0\t0\t0\t0\t0\t0\t0\t0\nOrx\t0\t0\t0\t0\t0\t0\t0\t0\n"),
            "skyobjects/constellation_images.tsv:3: Identifier: no constellation 'Orx' is known");
}
TEST_F(ImageSource, CornersMustLieOnTheSky) {
  EXPECT_EQ(Message("Ori\t0\t0\t0\t0\t0\t0\t361\t0\n"),
            "skyobjects/constellation_images.tsv:2: RA4_deg: 361 is out of range");
  EXPECT_EQ(Message("Ori\t0\t0\t0\t-91\t0\t0\t0\t0\n"),
            "skyobjects/constellation_images.tsv:2: Dec2_deg: -91 is out of range");
  EXPECT_EQ(Message("Ori\t0\t0\t0\t0\t0\t0\t0\n"),
            "skyobjects/constellation_images.tsv:2: Dec4_deg: must not be empty");
}
TEST_F(ImageSource, PiecesOfTheMilkyWayHaveTheSameForm) {
  m_Source.Write("skyobjects/milkyway_images.tsv", kImageColumns + "MW01\t0\t0\t0\t0\t0\t0\t0\t1\n"s);
  EXPECT_EQ(m_Source.Make(MakeMilkyWayImages), "\0\1MW01"s + std::string(28, '\0') + "\x00\x01\x86\xA0"s);
}

constexpr char kPictures[] = "skyobjects/dso_images.tsv";
constexpr char kPictureColumns[] =
    "Messier\tLetter\tHalfWidth_arcmin\tRA_deg\tDec_deg\tRotation_"
    "deg\tFlags\tAspectRatio\tLayer\tBlackPoint\t"
    "Brightness\n";

class PictureSource : public testing::Test {
 protected:
  std::string Make(const std::string& rows) {
    m_Source.Write(kPictures, kPictureColumns + rows);
    return m_Source.Make(MakeDeepskyImages);
  }
  std::string Message(const std::string& rows) {
    return m_Source.Message(MakeDeepskyImages, kPictures, kPictureColumns + rows);
  }
  skydata_test::TinySource m_Source;
};

TEST_F(PictureSource, ALineHasTheTenFieldsAndTheLetterBehindTheNumber) {
  const std::string bytes =
      Make("31\t\t89.5\t10.68\t-41.27\t-35\t2\t2.55\t0\t0\t1\n31\tB\t1\t0\t0\t0\t0\t1\t3\t0.5\t2\n");
  EXPECT_EQ(bytes.substr(0, 2), "! ");
  EXPECT_EQ(bytes.substr(bytes.find("\n31")),
            "\n31 89.5 10.68 -41.27 -35 2 2.55 0 0 1\n31B 1 0 0 0 0 1 3 0.5 2\n");
}
TEST_F(PictureSource, ALetterIsAToG) {
  EXPECT_EQ(Message("31\tH\t1\t0\t0\t0\t0\t1\t0\t0\t1\n"),
            "skyobjects/dso_images.tsv:2: Letter: 'H' is no letter from A to G");
  EXPECT_EQ(Message("31\tAB\t1\t0\t0\t0\t0\t1\t0\t0\t1\n"),
            "skyobjects/dso_images.tsv:2: Letter: 'AB' is no letter from A to G");
}
TEST_F(PictureSource, ANumberWithItsLetterStandsOnce) {
  EXPECT_EQ(Message("31\tA\t1\t0\t0\t0\t0\t1\t0\t0\t1\n31\tA\t1\t0\t0\t0\t0\t1\t0\t0\t1\n"),
            "skyobjects/dso_images.tsv:3: Messier: 31A stands above already");
}
TEST_F(PictureSource, EveryFieldHasItsRange) {
  const char* const bad[][2] = {{"111\t\t1\t0\t0\t0\t0\t1\t0\t0\t1", "Messier: 111 is out of range"},
                                {"31\t\t0\t0\t0\t0\t0\t1\t0\t0\t1", "HalfWidth_arcmin: 0 is out of range"},
                                {"31\t\t1\t-1\t0\t0\t0\t1\t0\t0\t1", "RA_deg: -1 is out of range"},
                                {"31\t\t1\t0\t90.1\t0\t0\t1\t0\t0\t1", "Dec_deg: 90.1 is out of range"},
                                {"31\t\t1\t0\t0\tN\t0\t1\t0\t0\t1", "Rotation_deg: 'N' is no number"},
                                {"31\t\t1\t0\t0\t0\t4\t1\t0\t0\t1", "Flags: 4 is out of range"},
                                {"31\t\t1\t0\t0\t0\t1.5\t1\t0\t0\t1", "Flags: 1.5 is no whole number"},
                                {"31\t\t1\t0\t0\t0\t0\t0\t0\t0\t1", "AspectRatio: 0 is out of range"},
                                {"31\t\t1\t0\t0\t0\t0\t1\t-1\t0\t1", "Layer: -1 is out of range"},
                                {"31\t\t1\t0\t0\t0\t0\t1\t0\t1.1\t1", "BlackPoint: 1.1 is out of range"},
                                {"31\t\t1\t0\t0\t0\t0\t1\t0\t0", "Brightness: must not be empty"}};
  for (const auto& [row, message] : bad) {
    EXPECT_EQ(Message(row + "\n"s), "skyobjects/dso_images.tsv:2: "s + message);
  }
}

}  // namespace
}  // namespace skydata
