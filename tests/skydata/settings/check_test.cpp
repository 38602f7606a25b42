// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/check.h"

#include <gtest/gtest.h>

#include "skydata/settings/reader/file_reader.h"
#include "tests/skydata/settings/bytes.h"
#include "utils/text.h"

namespace skydata {
namespace {

using namespace std::string_literals;
using namespace skydata_test;

std::string Summary(const std::string& bytes, FileKind kind = FileKind::kSettings) {
  const FieldNames names;
  std::string text;
  for (const Finding& finding : CheckSettings(bytes, ReadSettingsFile(bytes, names), names, kind))
    text += (text.empty() ? "" : " ") + std::string(KindOf(finding.code).code) + "@" +
            std::to_string(finding.offset);
  return text;
}

// One block with these sections and records at offset 8; the first section record stands at 18.
std::string SummaryOf(const std::vector<std::string>& sections, const std::vector<std::string>& records) {
  return Summary(kHeader1 + Block(kKeyOfDefaults, sections, records));
}

std::string Draw(const std::string& section = kStarBytes, unsigned nameId = kDraw) {
  return Record(section, nameId, 1, 1, "\x01");
}

TEST(SettingsCheck, ASoundFileHasNoFinding) {
  EXPECT_EQ(Summary(kHeader1 + SmallBlock()), "");
  EXPECT_EQ(Summary(kHeader1 + SmallBlock() + SmallBlock(kKeyOne)), "");
  EXPECT_EQ(Summary(kHeader1 + Block(kKeyOne, {}, {})), "");
}

TEST(SettingsCheck, AnEmptyFileIsOne) { EXPECT_EQ(Summary(""), "empty-file@0"); }

TEST(SettingsCheck, AFileCutInsideTheVersion) { EXPECT_EQ(Summary("SREV\x01\x00"s), "header-cut@4"); }

TEST(SettingsCheck, AHeaderWithoutABlock) { EXPECT_EQ(Summary(kHeader1), "no-block@8"); }

TEST(SettingsCheck, AMissingHeaderLosesTheFirstBlockUnlessItIsACorrectionFile) {
  EXPECT_EQ(Summary(SmallBlock()), "no-header@0");
  EXPECT_EQ(Summary(SmallBlock(), FileKind::kCorrection), "");
}

TEST(SettingsCheck, CorrectionFilesAreKnownByTheirName) {
  EXPECT_EQ(KindOfFile("data/FilterCorrection.data"), FileKind::kCorrection);
  EXPECT_EQ(KindOfFile("data\\FilterCorrection.data"), FileKind::kCorrection);
  EXPECT_EQ(KindOfFile("FilterCorrection.data"), FileKind::kCorrection);
  EXPECT_EQ(KindOfFile("filters.data"), FileKind::kSettings);
}

TEST(SettingsCheck, BytesBehindTheLastBlockFitNone) {
  EXPECT_EQ(Summary(kHeader1 + SmallBlock() + "xyz"), "stray-bytes@60");
}

TEST(SettingsCheck, BytesBetweenBlocksFitNone) {
  EXPECT_EQ(Summary(kHeader1 + SmallBlock() + "\x01\x02\x03\x04\x05"s + SmallBlock(kKeyOne)),
            "stray-bytes@60");
}

TEST(SettingsCheck, AFileCutBeforeTheNumberOfSections) {
  EXPECT_EQ(Summary(kHeader1 + kKeyOfDefaults + "\x01"), "block-cut@16");
}

TEST(SettingsCheck, AFileCutBeforeTheNumberOfFields) {
  EXPECT_EQ(Summary(kHeader1 + SmallBlock().substr(0, 25)), "block-cut@31");
}

TEST(SettingsCheck, ANegativeNumberOfSections) {
  EXPECT_EQ(Summary(kHeader1 + kKeyOfDefaults + Le16(0xFFFF) + std::string(20, '\0')), "section-count@16");
}

TEST(SettingsCheck, MoreSectionsThanTheRestOfTheFileHolds) {
  std::string bytes = kHeader1 + SmallBlock();
  bytes[16] = 4;  // 52 bytes of sections; 42 are left
  EXPECT_EQ(Summary(bytes), "section-count@16");
}

TEST(SettingsCheck, ANegativeNumberOfFields) {
  std::string bytes = kHeader1 + SmallBlock();
  bytes[34] = '\xFF';
  EXPECT_EQ(Summary(bytes), "field-count@31");
}

TEST(SettingsCheck, MoreFieldsThanThereAre) {
  std::string bytes = kHeader1 + SmallBlock();
  bytes[31] = 3;
  EXPECT_EQ(Summary(bytes), "fields-missing@60");
}

TEST(SettingsCheck, ARecordTooShortForItsHeader) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {Draw(), Le32(0)}), "record-length@60");
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {Draw(), Le32(19) + std::string(19, 'x')}),
            "record-length@60");
}

TEST(SettingsCheck, ARecordLongerThanMayBe) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {Draw(), Le32(65556) + std::string(65556, '\0')}),
            "record-length@60");
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {Draw(), Le32(0xFFFFFFFF)}), "record-length@60");
}

TEST(SettingsCheck, ARecordOfTheLongestLengthIsSound) {
  EXPECT_EQ(
      SummaryOf({Section(kStarBytes, 0, 0)}, {Record(kStarBytes, kDraw, 1, 65535, std::string(65535, 'x'))}),
      "");
}

TEST(SettingsCheck, ARecordCutOff) {
  EXPECT_EQ(Summary((kHeader1 + SmallBlock()).substr(0, 59)), "record-cut@35");
}

TEST(SettingsCheck, TheBlockBehindADamagedOneIsFound) {
  std::string damaged = SmallBlock();
  damaged[29] = '\x7F';  // a length of 8 million bytes
  const std::string bytes = kHeader1 + damaged + SmallBlock(kKeyOne);
  EXPECT_EQ(Summary(bytes), "record-length@35");
  const SettingsFile file = ReadSettingsFile(bytes, FieldNames());
  ASSERT_EQ(file.blocks.size(), 2u);
  EXPECT_EQ(file.blocks[1].offset, 60u);
  EXPECT_EQ(file.blocks[1].fields.size(), 1u);
}

TEST(SettingsCheck, ABlockInTheOldLayout) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {OldRecord(kStarBytes, "Draw", 1, 1, "\x01")}),
            "old-layout@8");
}

TEST(SettingsCheck, TheSecondBlockOfAKeyIsNeverRead) {
  EXPECT_EQ(Summary(kHeader1 + SmallBlock() + SmallBlock()), "duplicate-block@60");
}

TEST(SettingsCheck, AKeyInsideAnotherBlockHidesTheBlock) {
  // The key ("FLTR", 1) as the values of a field of the defaults.
  const std::string defaults =
      Block(kKeyOfDefaults, {Section(kStarBytes, 0, 0)}, {Record(kStarBytes, kDraw, 8, 8, kKeyOne)});
  const auto own = std::to_string(8 + defaults.size());
  EXPECT_EQ(Summary(kHeader1 + defaults + Block(kKeyOne, {}, {})), "hidden-block@" + own);
}

TEST(SettingsCheck, TwoSectionsOfOneId) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0), Section(kStarBytes, 1, 0)}, {Draw()}),
            "duplicate-section@31");
}

TEST(SettingsCheck, ARunPastTheFields) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 7)}, {Draw()}), "section-run@18");
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0), Section("alag", 4, 6)}, {Draw()}), "section-run@31");
}

TEST(SettingsCheck, RunsThatOverlap) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 1), Section("alag", 1, 2)},
                      {Draw(), Draw(kStarBytes, 0), Draw("alag")}),
            "run-overlap@31");
}

TEST(SettingsCheck, RunsInAnotherOrderThanTheSections) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 1, 1), Section("alag", 0, 0)}, {Draw("alag"), Draw()}),
            "run-order@31");
}

TEST(SettingsCheck, AnEmptyRunWrittenInAnotherWay) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0), Section("alag", 1, 0)}, {Draw()}), "");
  EXPECT_EQ(SummaryOf({Section("alag", 0, 0xFFFF), Section(kStarBytes, 0, 0)}, {Draw()}), "");
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0), Section("alag", 5, 2)}, {Draw()}), "empty-run@31");
}

TEST(SettingsCheck, FieldsInTheRunOfNoSection) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {Draw(), Draw(kStarBytes, 0), Draw("alag")}),
            "field-outside@60");
}

TEST(SettingsCheck, AFieldThatNamesAnotherSection) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 1)}, {Draw(), Draw("alag", 0)}), "field-section@60");
}

TEST(SettingsCheck, AFieldThatStandsTwice) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 1)}, {Draw(), Draw()}), "duplicate-field@60");
}

TEST(SettingsCheck, AListedObjectMayStandTwice) {
  const std::string favourite = Record("tmoc", 0, 8, 9, std::string(9, '\x01'));
  EXPECT_EQ(SummaryOf({Section("tmoc", 0, 1)}, {favourite, favourite}), "repeated-object@68");
  const std::string moon = Record("noom", 0, 4, 2, "noom" + Le32(301));
  EXPECT_EQ(SummaryOf({Section("noom", 0, 1)}, {moon, moon}), "repeated-object@67");
}

TEST(SettingsCheck, ATypeThatIsNone) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {Record(kStarBytes, kDraw, 9, 1, "\x01")}),
            "unknown-type@35");
}

TEST(SettingsCheck, ARecordThatClaimsMoreValuesThanItHolds) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {Record(kStarBytes, kDraw, 4, 2, Le32(1) + "abc")}),
            "values-missing@35");
}

TEST(SettingsCheck, ARecordThatHoldsMoreBytesThanItClaims) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {Record(kStarBytes, kDraw, 4, 1, Le32(1) + "a")}),
            "values-extra@35");
}

TEST(SettingsCheck, ANameIdThatNoNameHas) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 0)}, {Draw(kStarBytes, 0x80000000)}),
            "bad-name-id@35 unknown-name@35");
}

TEST(SettingsCheck, UnknownNamesAreCountedOnceABlock) {
  EXPECT_EQ(SummaryOf({Section(kStarBytes, 0, 2)}, {Draw(), Draw(kStarBytes, 3), Draw(kStarBytes, 4)}),
            "unknown-name@60");
}

TEST(SettingsCheck, AnOwnFieldOfAnotherShapeThanTheDefaultIsIgnored) {
  const auto own = [](const std::string& record) {
    return Block(kKeyOne, {Section(kStarBytes, 0, 0)}, {record});
  };
  const std::string defaults = kHeader1 + SmallBlock();
  EXPECT_EQ(Summary(defaults + own(Record(kStarBytes, kDraw, 0, 1, "\x01"))), "own-mismatch@87");
  EXPECT_EQ(Summary(defaults + own(Record(kStarBytes, kDraw, 1, 2, "\x01\x02"))), "own-mismatch@87");
  EXPECT_EQ(Summary(defaults + own(Record(kStarBytes, kDraw, 1, 1, "\x07"))), "");
}

TEST(SettingsCheck, OwnFieldsWithoutADefaultAreDropped) {
  EXPECT_EQ(Summary(kHeader1 + SmallBlock() +
                    Block(kKeyOne, {Section(kStarBytes, 0, 1)}, {Draw(), Draw(kStarBytes, 0)})),
            "no-default@112");
}

TEST(SettingsCheck, FindingsNameFileOffsetSeverityAndCode) {
  const Finding finding{FindingCode::kStrayBytes, 60, "say \"what\""};
  EXPECT_EQ(FormatFinding("a.data", finding), "a.data:60: warning: say \"what\" [stray-bytes]");
  EXPECT_EQ(FormatFindingAsJson("a.data", finding),
            R"({"file": "a.data", "offset": 60, "code": "stray-bytes", "severity": "warning", )"
            R"("text": "say \"what\""})");
}

// Bodies are listed by a whole number that repeats their section, the others by their bytes.
TEST(IsListedObject, MoonNamesItsSection) {
  FileField field;
  field.section = static_cast<unsigned>(FourCC("moon"));
  const auto isListed = [&field](unsigned char type, const std::string& values) {
    field.text.type = type;
    field.text.size = static_cast<unsigned short>(values.size() / 4);
    field.text.values = values;
    return IsListedObject(field);
  };
  const std::string own = "noom", other = "raht";  // the lowest byte first
  for (const unsigned char type : {CommonInterfaces::kFieldInt32, CommonInterfaces::kFieldUInt32}) {
    EXPECT_TRUE(isListed(type, own));
    EXPECT_TRUE(isListed(type, own + other));
    EXPECT_FALSE(isListed(type, other + own));
    EXPECT_FALSE(isListed(type, ""));
  }
  EXPECT_FALSE(isListed(CommonInterfaces::kFieldBytes, own));
  field.section = static_cast<unsigned>(FourCC("comt"));
  EXPECT_TRUE(isListed(CommonInterfaces::kFieldBytes, other));
  EXPECT_FALSE(isListed(CommonInterfaces::kFieldInt32, other));
}

}  // namespace
}  // namespace skydata
