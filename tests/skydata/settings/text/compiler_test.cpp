// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/compiler.h"

#include <gtest/gtest.h>

#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "skydata/settings/text/parser.h"
#include "support/debug_capture.h"
#include "tests/skydata/source_text.h"
#include "utils/text.h"

namespace skydata {
namespace {

using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;
using namespace std::string_literals;

constexpr unsigned kOwner = FourCC("FLTR");
constexpr unsigned kStar = FourCC("star");

class SettingsCompiler : public testing::Test {
 protected:
  std::string Compile(const std::string& text) {
    return CompileSettings(ParseSettings(m_Dir.Write("test.ini", text)), m_Dir.Path());
  }
  // The file of that name in the test's folder, compiled from the text.
  std::string Write(const std::string& text) { return m_Dir.Write("test.data", Compile(text)); }

  test_support::TempDir m_Dir;
};

// "SREV", version 1, key (FLTR, TLFD), one section with one field; see docs/formats/settings_text.md. The
// name id of "Draw" is 0x7184CD2D, computed by the rule apart from this code.
const std::string kWorkedExample =
    "SREV\x01\x00\x00\x00"
    "RTLF"
    "TLFD\x01\x00"
    "rats\xFF\xFF\xFF\xFF\x00\x00\x00\x00\x01"
    "\x01\x00\x00\x00"
    "\x15\x00\x00\x00rats\x2D\xCD\x84\x71\x01\x01\x00\x00\x00\x00\x00\x00\xFF\xFF\xFF\xFF\x01"s;

TEST_F(SettingsCompiler, WorkedExampleIsWorkedOutByHand) {
  EXPECT_EQ(Compile("header 1\n[block FLTR defaults]\n[section star]\nDraw = u8 1\n"), kWorkedExample);
}

// The example of docs/formats/correction_file.md. The name id of "VisMagnitude" is 0x6B36CC75, computed by
// the rule apart from this code; -2 and 23.4 are 0xC0000000 and 0x41BB3333 (IEEE 754).
TEST_F(SettingsCompiler, CorrectionFileIsWorkedOutByHand) {
  EXPECT_EQ(Compile("header none\n[block FLTR defaults]\n[section star]\nVisMagnitude = f32 -2, 23.4\n"),
            "RTLFTLFD\x01\x00rats\xFF\xFF\xFF\xFF\x00\x00\x00\x00\x01\x01\x00\x00\x00"
            "\x1C\x00\x00\x00rats\x75\xCC\x36\x6B\x06\x02\x00\x00\x00\x00\x00\x00\xFF\xFF\xFF\xFF"
            "\x00\x00\x00\xC0\x33\x33\xBB\x41"s);
}

TEST_F(SettingsCompiler, EveryByteOfAFieldRecordCanBeWritten) {
  const std::string bytes = Compile(
      "header 1\n[block FLTR defaults]\n[section star status=3 alias=gala]\n"
      "@89ABCDEF = u16 0x0201 | size=0x0605 condition=0x04030201 compare=7 query=0x0A090807 tail=0b0c\n");
  EXPECT_EQ(bytes.substr(18),
            "ratsalag\x00\x00\x00\x00\x03\x01\x00\x00\x00"
            "\x18\x00\x00\x00rats\xEF\xCD\xAB\x89\x03\x05\x06\x01\x02\x03\x04"
            "\x07\x07\x08\x09\x0A\x01\x02\x0B\x0C"s);
}

TEST_F(SettingsCompiler, HeaderNoneWritesTheBlocksAlone) {
  EXPECT_EQ(Compile("header none\n[block FLTR defaults]\n[section star]\nDraw = u8 1\n"),
            kWorkedExample.substr(8));
}

TEST_F(SettingsCompiler, SectionsOwnRunsOfFieldsAndAnEmptyOneOwnsNone) {
  const std::string bytes = Compile(
      "header 0\n[block FLTR 1]\n[section star]\nDraw = u8 1\nBand = u8 1\n[section gala]\n[section "
      "nebu]\nDraw = u8 1\n");
  EXPECT_EQ(bytes.substr(16, 2), "\x03\x00"s);
  EXPECT_EQ(bytes.substr(18, 13), "rats\xFF\xFF\xFF\xFF\x00\x00\x01\x00\x01"s);
  EXPECT_EQ(bytes.substr(31, 13), "alag\xFF\xFF\xFF\xFF\x02\x00\x01\x00\x01"s);
  EXPECT_EQ(bytes.substr(44, 13), "uben\xFF\xFF\xFF\xFF\x02\x00\x02\x00\x01"s);
  EXPECT_EQ(bytes.substr(57, 4), "\x03\x00\x00\x00"s);
}

TEST_F(SettingsCompiler, BlocksStandInTheOrderOfTheText) {
  const std::string bytes = Compile("header 1\n[block FLTR defaults]\n[block bytes:QXSC 2]\n");
  EXPECT_EQ(
      bytes,
      "SREV\x01\x00\x00\x00RTLFTLFD\x00\x00\x00\x00\x00\x00QXSC\x02\x00\x00\x00\x00\x00\x00\x00\x00\x00"s);
}

TEST_F(SettingsCompiler, TheContainerReadsBackWhatTheTextSays) {
  const std::string path = Write(
      "header 1\n[block FLTR defaults]\n[section star alias=uSTR status=0]\nDraw = u8 1\nBand = f64 1.5, -2 "
      "| compare=1\n"
      "[section gala]\nDraw = i32 -7\n");
  SettingsData settings(1, kOwner, path.c_str());
  ASSERT_TRUE(settings.Read(nullptr));
  ASSERT_EQ(settings.GetSectionCount(), 2);
  EXPECT_EQ(settings.GetSectionAt(0)->alias, static_cast<unsigned>(FourCC("uSTR")));
  EXPECT_EQ(settings.GetSectionAt(0)->status, 0);
  EXPECT_EQ(settings.GetSectionAt(1)->status, 1);
  settings.SetCurSection(kStar);
  double band[2] = {};
  ASSERT_TRUE(settings.GetField("Band", band));
  EXPECT_EQ(band[0], 1.5);
  EXPECT_EQ(band[1], -2.0);
  EXPECT_EQ(settings.GetFieldStatus(GetUniqueID("Band")), 1);
  settings.SetCurSection(FourCC("gala"));
  int draw = 0;
  ASSERT_TRUE(settings.GetField("Draw", &draw));
  EXPECT_EQ(draw, -7);
}

TEST_F(SettingsCompiler, WhatTheContainerWritesAgainIsTheSameBytes) {
  const std::string path = Write(
      "header 1\n[block FLTR defaults]\n[section star alias=uSTR status=9]\nDraw = u8 1\nBand = f32 "
      "0x7FC00001\n"
      "Grid = byte 1, 2, 3 | compare=2 query=gala\n[section gala]\n[section nebu status=0]\n@0 = type200 | "
      "size=4\n");
  SettingsData settings(SettingsData::kDefaultsTag, kOwner, path.c_str());
  ASSERT_TRUE(settings.Read(nullptr));
  ASSERT_TRUE(settings.Write(m_Dir.Path("again.data").c_str()));
  EXPECT_EQ(m_Dir.Read("again.data"), m_Dir.Read("test.data"));
}

TEST_F(SettingsCompiler, ABlockOfAnObjectIsFoundByItsKeyBesideTheDefaults) {
  const std::string path = Write(
      "header 1\n[template a]\n[section star]\nDraw = u8 1\n[block FLTR defaults : a]\n[block FLTR 4 : "
      "a]\n[section star]\n"
      "Draw = u8 9\n");
  SettingsData settings(4, kOwner, path.c_str());
  ASSERT_TRUE(settings.Read(path.c_str()));
  settings.SetCurSection(kStar);
  unsigned char draw = 0;
  ASSERT_TRUE(settings.GetField("Draw", &draw));
  EXPECT_EQ(draw, 9);
}

TEST_F(SettingsCompiler, AFieldThatTheContainerRefusesNamesItsLine) {
  const test_support::DebugCapture capture;
  // More bytes than a record may have, by the tail.
  std::string text = "header 1\n[block FLTR defaults]\n[section star]\nBand = u8 1 | tail=";
  const SettingsDocument good = ParseSettings(m_Dir.Write("test.ini", text + "00\n"));
  SettingsDocument bad = good;
  bad.blocks[0].sections[0].fields[0].values.resize(65536);
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { CompileSettings(bad, m_Dir.Path()); }),
            "test.ini:4: field Band cannot be created");
}

TEST_F(SettingsCompiler, TheScratchFileIsGoneAfterwards) {
  Compile("header 1\n[block FLTR defaults]\n");
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(m_Dir.Path()))
    files += entry.path() != m_Dir.Path("test.ini");
  EXPECT_EQ(files, 0);
}

}  // namespace
}  // namespace skydata
