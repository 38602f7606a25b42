// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/settings/explain.h"

#include <gtest/gtest.h>

#include <sstream>

#include "common_interfaces/settings_data.h"
#include "skydata/settings/reader/file_reader.h"
#include "tests/skydata/settings/bytes.h"
#include "tests/skydata/source_text.h"
#include "utils/text.h"

namespace skydata {
namespace {

using namespace skydata_test;

constexpr unsigned kStar = FourCC("star");
constexpr unsigned kFilters = FourCC("FLTR");

struct Explanation {
  bool isFound;
  std::string output, errors;
};

Explanation Explain(const std::string& bytes, ExplainRequest request, const std::string* defaults = nullptr) {
  const FieldNames names;
  request.fileName = "own.data";
  request.defaultsName = defaults ? "filters.data" : "own.data";
  if (request.section == 0) request.section = kStar;
  std::ostringstream output, errors;
  const SettingsFile file = ReadSettingsFile(bytes, names);
  const SettingsFile usual = defaults ? ReadSettingsFile(*defaults, names) : file;
  const bool isFound = ExplainField(request, file, usual, names, output, errors);
  return {isFound, output.str(), errors.str()};
}

ExplainRequest Draw() {
  ExplainRequest request;
  request.field = "Draw";
  return request;
}

std::string Own(int type, unsigned size, const std::string& values, int status = 1) {
  return Block(kKeyOne, {Section(kStarBytes, 0, 0, status)}, {Record(kStarBytes, kDraw, type, size, values)});
}

// What the library makes of the file for container (FLTR, 1): the first byte of the field.
int ReadByLibrary(const std::string& bytes) {
  const test_support::TempDir dir;
  const std::string path = dir.Write("own.data", bytes);
  CommonInterfaces::SettingsData settings(1, kFilters, path.c_str());
  EXPECT_TRUE(settings.Read(path.c_str()));
  settings.SetCurSection(kStar);
  unsigned char value[2] = {};
  EXPECT_TRUE(settings.GetField("Draw", value));
  return value[0];
}

TEST(SettingsExplain, AnOwnValueCountsOverTheDefault) {
  const std::string bytes = kHeader1 + SmallBlock() + Own(1, 1, "\x07", 0);
  EXPECT_EQ(
      Explain(bytes, Draw()).output,
      "star.Draw\n"
      "default:  u8 1\n          from block FLTR defaults at offset 8 of own.data, record at offset 35\n"
      "own:      u8 7\n          from block FLTR 1 at offset 60 of own.data, record at offset 87\n"
      "value:    the own one: it has the type and number of elements of the default\n"
      "section:  status 0 (off) from the own block; the default is 1\n");
  EXPECT_EQ(ReadByLibrary(bytes), 7);
}

TEST(SettingsExplain, AnOwnValueOfAnotherTypeOrCountIsIgnoredAndSaysSo) {
  for (const std::string& own : {Own(0, 1, "\x07"), Own(1, 2, "\x07\x07")}) {
    const std::string bytes = kHeader1 + SmallBlock() + own;
    EXPECT_NE(Explain(bytes, Draw())
                  .output.find("value:    the default: the own value has another type or number of elements "
                               "and is ignored\n"),
              std::string::npos);
    EXPECT_EQ(ReadByLibrary(bytes), 1);
  }
}

TEST(SettingsExplain, WithoutAnOwnBlockTheDefaultCounts) {
  EXPECT_EQ(
      Explain(kHeader1 + SmallBlock(), Draw()).output,
      "star.Draw\n"
      "default:  u8 1\n          from block FLTR defaults at offset 8 of own.data, record at offset 35\n"
      "value:    the default\nsection:  status 1 from the defaults\n");
}

TEST(SettingsExplain, TheDefaultsMayStandInAnotherFile) {
  const std::string defaults = kHeader1 + SmallBlock();
  const std::string text = Explain(kHeader1 + Own(1, 1, "\x07"), Draw(), &defaults).output;
  EXPECT_NE(text.find("default:  u8 1\n          from block FLTR defaults at offset 8 of filters.data"),
            std::string::npos);
  EXPECT_NE(text.find("own:      u8 7\n          from block FLTR 1 at offset 8 of own.data"),
            std::string::npos);
}

TEST(SettingsExplain, WithoutDefaultsNothingOfAnOwnBlockStays) {
  const std::string text = Explain(kHeader1 + Own(1, 1, "\x07"), Draw()).output;
  EXPECT_NE(text.find("default:  none: own.data has no block FLTR defaults\n"), std::string::npos) << text;
  EXPECT_NE(text.find("value:    none: without defaults a reader keeps no field of an own block\n"),
            std::string::npos);
}

TEST(SettingsExplain, AFieldThatTheDefaultsLackIsDropped) {
  ExplainRequest request;
  request.field = "@0";
  const std::string own = Block(kKeyOne, {Section(kStarBytes, 0, 0)}, {Record(kStarBytes, 0, 1, 1, "\x07")});
  const std::string text = Explain(kHeader1 + SmallBlock() + own, request).output;
  EXPECT_NE(text.find("value:    none: a reader drops a field that is not among the defaults\n"),
            std::string::npos)
      << text;
}

TEST(SettingsExplain, WhatIsNeverReadIsNoted) {
  const std::string text =
      Explain(kHeader1 + SmallBlock() + Own(1, 1, "\x07") + Own(1, 1, "\x08"), Draw()).output;
  EXPECT_NE(text.find("own:      u8 7\n"), std::string::npos);
  EXPECT_NE(text.find("note:     block FLTR 1 at offset 112 is never read: the first with this key counts\n"),
            std::string::npos)
      << text;
}

TEST(SettingsExplain, OneOfSeveralContainersIsChosenByItsKey) {
  const std::string other = SmallBlock("RTLF" + Le32(2));
  const std::string bytes = kHeader1 + SmallBlock() + Own(1, 1, "\x07") + other;
  const Explanation unsure = Explain(bytes, Draw());
  EXPECT_FALSE(unsure.isFound);
  EXPECT_EQ(unsure.errors,
            "own.data: several containers have it; choose with --block FLTR,1 --block FLTR,2\n");
  ExplainRequest request = Draw();
  request.key = {kFilters, 1};
  EXPECT_NE(Explain(bytes, request).output.find("own:      u8 7\n"), std::string::npos);
}

TEST(SettingsExplain, AnUnknownFieldNamesThoseNearToIt) {
  ExplainRequest request;
  request.field = "Drew";
  const Explanation explanation = Explain(kHeader1 + SmallBlock(), request);
  EXPECT_FALSE(explanation.isFound);
  EXPECT_EQ(explanation.errors, "own.data: has no field star.Drew; did you mean Draw\n");
}

TEST(SettingsExplain, AnUnknownSectionNamesThoseThatThereAre) {
  ExplainRequest request = Draw();
  request.section = FourCC("gala");
  EXPECT_EQ(Explain(kHeader1 + SmallBlock(), request).errors,
            "own.data: has no field gala.Draw; its sections are star\n");
}

}  // namespace
}  // namespace skydata
