// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/text/parser.h"

#include <gtest/gtest.h>

#include "common_interfaces/field_data.h"
#include "tests/skydata/source_text.h"
#include "utils/text.h"

namespace skydata {
namespace {

class SettingsText : public testing::Test {
 protected:
  SettingsDocument Parse(const std::string& text) { return ParseSettings(m_Dir.Write("test.ini", text)); }
  // The message about a text that begins with these two lines, so that the text's own lines count from 3 on.
  std::string Message(const std::string& text) {
    return skydata_test::MessageOf(m_Dir, [&] { Parse("header 1\n[block FLTR defaults]\n" + text); });
  }
  std::string WholeMessage(const std::string& text) {
    return skydata_test::MessageOf(m_Dir, [&] { Parse(text); });
  }

  test_support::TempDir m_Dir;
};

TEST_F(SettingsText, BlocksSectionsAndFieldsKeepTheirOrder) {
  const auto document = Parse(
      "# a comment\n\nheader 7\n[block FLTR defaults]\n[section star status=2 alias=uSTR]\nDraw = u8 1  # "
      "on\n"
      "MagnitudeOn = i16 -3, 4\n[section gala]\n[block CAMR 5]\n");
  EXPECT_TRUE(document.hasHeader);
  EXPECT_EQ(document.version, 7u);
  ASSERT_EQ(document.blocks.size(), 2u);
  EXPECT_EQ(document.blocks[0].owner, static_cast<unsigned>(FourCC("FLTR")));
  EXPECT_EQ(document.blocks[0].id, 0x44464C54u);
  EXPECT_EQ(document.blocks[1].id, 5u);
  ASSERT_EQ(document.blocks[0].sections.size(), 2u);
  const SectionText& star = document.blocks[0].sections[0];
  EXPECT_EQ(star.id, static_cast<unsigned>(FourCC("star")));
  EXPECT_EQ(star.alias, static_cast<unsigned>(FourCC("uSTR")));
  EXPECT_EQ(star.status, 2);
  ASSERT_EQ(star.fields.size(), 2u);
  EXPECT_EQ(star.fields[0].nameId, 0x7184CD2D);  // the hash of "Draw", computed apart
  EXPECT_EQ(star.fields[1].size, 2);
  EXPECT_EQ(star.fields[1].values, std::string("\xFD\xFF\x04\x00", 4));
}

TEST_F(SettingsText, ASectionIsOnAndHasNoAliasUnlessItsHeadingSaysSo) {
  const auto section = Parse("header 1\n[block FLTR defaults]\n[section star]\n").blocks[0].sections[0];
  EXPECT_EQ(section.status, 1);
  EXPECT_EQ(section.alias, 0xFFFFFFFFu);
}

TEST_F(SettingsText, AttributesFillTheRestOfTheRecord) {
  const auto field = Parse(
                         "header 1\n[block FLTR defaults]\n[section star]\n"
                         "Band = u8 0, 1 | compare=1 condition=0x4000 query=gala size=9 tail=0aff\n")
                         .blocks[0]
                         .sections[0]
                         .fields[0];
  EXPECT_EQ(field.compareStatus, 1);
  EXPECT_EQ(field.condition, 0x4000u);
  EXPECT_EQ(field.querySection, static_cast<unsigned>(FourCC("gala")));
  EXPECT_EQ(field.size, 9);
  EXPECT_EQ(field.values, std::string("\x00\x01\x0A\xFF", 4));
}

TEST_F(SettingsText, WithoutAttributesAFieldIsQueriedUnderItsOwnSection) {
  const auto field =
      Parse("header 1\n[block FLTR defaults]\n[section star]\nDraw = u8 1\n").blocks[0].sections[0].fields[0];
  EXPECT_EQ(field.compareStatus, 0);
  EXPECT_EQ(field.condition, 0u);
  EXPECT_EQ(field.querySection, CommonInterfaces::kOwnQuerySection);
}

TEST_F(SettingsText, AnAtSignWritesTheNameIdItself) {
  const auto fields = Parse("header 1\n[block FLTR defaults]\n[section star]\n@0 = u8 1\n@ffffFFFE = u8 1\n")
                          .blocks[0]
                          .sections[0]
                          .fields;
  EXPECT_EQ(fields[0].nameId, 0);
  EXPECT_EQ(fields[1].nameId, -2);
}

TEST_F(SettingsText, AFieldMayHaveNoValues) {
  const auto fields =
      Parse("header 1\n[block FLTR defaults]\n[section star]\nDraw = u8\nBand = type77 | size=3\n")
          .blocks[0]
          .sections[0]
          .fields;
  EXPECT_EQ(fields[0].size, 0);
  EXPECT_TRUE(fields[0].values.empty());
  EXPECT_EQ(fields[1].type, 77);
  EXPECT_EQ(fields[1].size, 3);
}

TEST_F(SettingsText, ABlockBeginsWithItsTemplateAndChangesIt) {
  const auto document = Parse(
      "header 1\n[template base]\n[section star]\nDraw = u8 1\nBand = u8 2\n"
      "[block FLTR defaults : base]\n[section star status=0]\nDraw = u8 5\nGrid = u8 6\n[section gala]\nDraw "
      "= u8 7\n"
      "[block FLTR 1 : base]\n");
  const BlockText& changed = document.blocks[0];
  ASSERT_EQ(changed.sections.size(), 2u);
  EXPECT_EQ(changed.sections[0].status, 0);
  ASSERT_EQ(changed.sections[0].fields.size(), 3u);
  EXPECT_EQ(changed.sections[0].fields[0].name, "Draw");
  EXPECT_EQ(changed.sections[0].fields[0].values, "\x05");
  EXPECT_EQ(changed.sections[0].fields[2].name, "Grid");
  const BlockText& same = document.blocks[1];
  ASSERT_EQ(same.sections.size(), 1u);
  EXPECT_EQ(same.sections[0].status, 1);
  EXPECT_EQ(same.sections[0].fields[0].values, "\x01");
}

TEST_F(SettingsText, ATemplateMayBeginWithAnother) {
  const auto document = Parse(
      "header 1\n[template a]\n[section star]\nDraw = u8 1\n[template b : a]\n[section star]\nDraw = u8 2\n"
      "[block FLTR 1 : b]\n[block FLTR 2 : a]\n");
  EXPECT_EQ(document.blocks[0].sections[0].fields[0].values, "\x02");
  EXPECT_EQ(document.blocks[1].sections[0].fields[0].values, "\x01");
}

TEST_F(SettingsText, AnIncludedFileIsFoundBesideTheOneThatNamesIt) {
  m_Dir.Write("parts/a.inc", "include b.inc\n");
  m_Dir.Write("parts/b.inc", "[template base]\n[section star]\nDraw = u8 1\n");
  EXPECT_EQ(Parse("header 1\ninclude parts/a.inc\n[block FLTR 1 : base]\n").blocks[0].sections.size(), 1u);
}

TEST_F(SettingsText, WhatStandsTwiceIsMarkedAgain) {
  const auto document = Parse(
      "header 1\n[block FLTR 1]\n[section star]\nDraw = u8 1\nBand = u8 2\nDraw = u8 3 | again\n[block FLTR "
      "1 again]\n");
  ASSERT_EQ(document.blocks.size(), 2u);
  EXPECT_EQ(document.blocks[1].owner, document.blocks[0].owner);
  const auto& fields = document.blocks[0].sections[0].fields;
  ASSERT_EQ(fields.size(), 3u);
  EXPECT_EQ(fields[2].nameId, fields[0].nameId);
  EXPECT_EQ(fields[2].values, "\x03");
  EXPECT_TRUE(fields[2].isAgain);
}

TEST_F(SettingsText, AgainWithoutAFirstIsAMistake) {
  EXPECT_EQ(Message("[section star]\nDraw = u8 1 | again"),
            "test.ini:4: field Draw: 'again' without a field of this name above");
  EXPECT_EQ(Message("[block FLTR 9 again]"), "test.ini:3: 'again' without a block with this key above");
}

TEST_F(SettingsText, HeaderNoneLeavesTagAndVersionOut) {
  EXPECT_FALSE(Parse("header none\n[block FLTR defaults]\n").hasHeader);
}

TEST_F(SettingsText, ByteOrderMarkAndCarriageReturnsAreUnderstood) {
  EXPECT_EQ(Parse("\xEF\xBB\xBFheader 3\r\n[block FLTR defaults]\r\n").version, 3u);
}

TEST_F(SettingsText, EveryHeadingMistakeNamesItsLine) {
  EXPECT_EQ(Message("[section star"), "test.ini:3: a heading ends in ']'");
  EXPECT_EQ(Message("[]"), "test.ini:3: an empty heading");
  EXPECT_EQ(Message("[sektion star]"), "test.ini:3: 'sektion' is no heading");
  EXPECT_EQ(Message("[section]"), "test.ini:3: wants '[section ID]'");
  EXPECT_EQ(Message("[section stars]"), "test.ini:3: 'stars' is no word");
  EXPECT_EQ(Message("[section star on]"), "test.ini:3: 'on' is no attribute of a section");
  EXPECT_EQ(Message("[section star status=256]"), "test.ini:3: 'status=256' is no attribute of a section");
  EXPECT_EQ(Message("[section star]\n[section star]"), "test.ini:4: a second section 'star'");
  EXPECT_EQ(Message("[block FLTR]"), "test.ini:3: wants '[block OWNER ID]'");
  EXPECT_EQ(Message("[block FLTR abc]"), "test.ini:3: 'abc' is no word");
  EXPECT_EQ(Message("[block FL defaults]"), "test.ini:3: 'FL' is no word");
  EXPECT_EQ(Message("[block FLTR defaults]"), "test.ini:3: a second block with this key");
  EXPECT_EQ(Message("[block FLTR 1 base]"), "test.ini:3: wants 'block' and its names, then ': template'");
  EXPECT_EQ(Message("[block FLTR 1 : base]"), "test.ini:3: there is no template 'base' above");
  EXPECT_EQ(Message("[template]"), "test.ini:3: wants '[template NAME]'");
  EXPECT_EQ(Message("[template a]\n[template a]"), "test.ini:4: a second template 'a'");
  EXPECT_EQ(WholeMessage("header 1\n[section star]"),
            "test.ini:2: a section stands in a block or a template");
}

TEST_F(SettingsText, EveryFieldMistakeNamesItsLineAndField) {
  const std::string star = "[section star]\n";
  EXPECT_EQ(Message("Draw = u8 1"), "test.ini:3: field Draw stands in no section");
  EXPECT_EQ(Message(star + "= u8 1"), "test.ini:4: the field has no name; the empty name is written @0");
  EXPECT_EQ(Message(star + "@xyz = u8 1"), "test.ini:4: field @xyz: '@' wants the name id in hexadecimal");
  EXPECT_EQ(Message(star + "Draw = int 1"), "test.ini:4: field Draw: 'int' is no element type");
  EXPECT_EQ(Message(star + "Draw = u8 256"), "test.ini:4: field Draw: '256' is no value of its type");
  EXPECT_EQ(Message(star + "Draw = u8 1,"), "test.ini:4: field Draw: '' is no value of its type");
  EXPECT_EQ(Message(star + "Draw = type9 1"),
            "test.ini:4: field Draw: an unknown element type has no values");
  EXPECT_EQ(Message(star + "Draw = u8 1 | compare"),
            "test.ini:4: field Draw: 'compare' is no attribute of a field");
  EXPECT_EQ(Message(star + "Draw = u8 1 | tail=0"),
            "test.ini:4: field Draw: 'tail=0' is no attribute of a field");
  EXPECT_EQ(Message(star + "Draw = u8 1\nDraw = u8 1"),
            "test.ini:5: field Draw stands in this section already");
}

TEST_F(SettingsText, AFieldLongerThanAFileCanHoldIsRefused) {
  std::string field = "[section star]\nBand = f64 0";
  for (int i = 1; i < 8192; ++i) field += ",0";  // 65536 bytes, one more than there may be
  EXPECT_EQ(Message(field), "test.ini:4: field Band: has more than 65535 bytes of values");
}

TEST_F(SettingsText, MoreValuesThanARecordCanCountAreRefused) {
  std::string field = "[section star]\nBand = u8 0";
  for (int i = 1; i < 65536; ++i) field += ",0";
  EXPECT_EQ(Message(field), "test.ini:4: field Band: has more than 65535 values");
}

TEST_F(SettingsText, OtherLinesAndHeadersAreRefused) {
  EXPECT_EQ(Message("Draw"), "test.ini:3: 'Draw' is no heading, no field, no 'header' and no 'include'");
  EXPECT_EQ(Message("include"),
            "test.ini:3: 'include' is no heading, no field, no 'header' and no 'include'");
  EXPECT_EQ(Message("header 2"), "test.ini:3: a second 'header' line");
  EXPECT_EQ(WholeMessage("header x"), "test.ini:1: 'header' wants the version of the file, or 'none'");
  EXPECT_EQ(WholeMessage("[block FLTR 1]"), "test.ini: has no 'header' line");
  EXPECT_EQ(WholeMessage("header 1"), "test.ini: has no block");
}

TEST_F(SettingsText, AMistakeInAnIncludedFileNamesThatFile) {
  m_Dir.Write("part.inc", "[template a]\n\nDraw = u8 1\n");
  EXPECT_EQ(WholeMessage("include part.inc\n"), "part.inc:3: field Draw stands in no section");
}

TEST_F(SettingsText, AMissingIncludedFileNamesTheLineThatWantsIt) {
  EXPECT_EQ(WholeMessage("\ninclude part.inc\n"), "test.ini:2: 'part.inc' cannot be included: no such file");
}

TEST_F(SettingsText, AFileThatIncludesItselfIsRefused) {
  EXPECT_EQ(WholeMessage("include test.ini\n"), "test.ini:1: files are included more than 8 deep");
}

TEST_F(SettingsText, AnIncludeEndsTheSectionAboveIt) {
  m_Dir.Write("part.inc", "[template a]\n");
  EXPECT_EQ(Message("[section star]\ninclude part.inc\nDraw = u8 1"),
            "test.ini:5: field Draw stands in no section");
}

TEST_F(SettingsText, AMissingFileIsNamed) {
  EXPECT_EQ(skydata_test::MessageOf(m_Dir, [&] { ParseSettings(m_Dir.Path("none.ini")); }),
            "none.ini: cannot be opened");
}

}  // namespace
}  // namespace skydata
