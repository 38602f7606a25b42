// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Every status text with string tables that were never meant well: nothing is written outside the buffers, no
// format reaches printf, every text stays terminated.
#include <functional>
#include <map>

#include "common_interfaces/text_formats.h"
#include "text/status_strings_fixture.h"
#include "utils/text.h"

namespace {

using namespace CommonInterfaces;
using namespace test_support;

const char* const kHostile[] = {
    "%n", "%s%s%s%s%s%s%s%s%s%s", "%999999d", "%", "%*d", "%.*f", "%1$n", "%lln", "%c%c%c"};

// A table in which each text of the library is one that fits its use.
std::map<unsigned, std::string> MakeFittingTable() {
  std::map<unsigned, std::string> table;
  int count = 0;
  const TextUse* uses = GetTextUses(&count);
  for (int i = 0; i < count; ++i) {
    for (unsigned id = uses[i].first; id <= std::min(uses[i].last, uses[i].first + 30); ++id) {
      std::string text = "t" + std::to_string(id);
      for (const char* type = uses[i].arguments; type && *type; ++type) text += std::string(" %") + *type;
      table[id] = text;
    }
  }
  return table;
}

bool IsOfStatusTexts(unsigned identifier) {
  for (const auto& [first, last] :
       {std::pair{965u, 968u}, std::pair{1125u, 1167u}, std::pair{5011u, 5014u}, std::pair{7200u, 7228u},
        std::pair{13063u, 13063u}, std::pair{14300u, 15400u}, std::pair{130631u, 130632u}}) {
    if (identifier >= first && identifier <= last) return true;
  }
  return false;
}

std::string Write(const std::map<unsigned, std::string>& table) {
  std::string file;
  for (const auto& [identifier, text] : table) file += std::to_string(identifier) + '\t' + text + '\n';
  return file;
}

class HostileStrings : public StatusTextTest {
 protected:
  // All texts of one state of the camera, through the buffers.
  std::vector<std::string> CollectTexts() {
    std::vector<std::string> texts;
    const auto collect = [&](const std::function<void(char*)>& write) {
      GuardedText buffer;
      write(buffer.Get());
      texts.push_back(buffer.Read());
    };
    for (const int kind : {0, 1, 2}) {
      camera.SetUniversalTime({2460375, 0.25, kind});
      collect([&](char* out) {
        GuardedText caption;
        GetTimeString(&camera, out, caption.Get());
        texts.push_back(caption.Read());
      });
      collect([&](char* out) {
        GuardedText caption;
        GetDateString(&camera, out, caption.Get());
        texts.push_back(caption.Read());
      });
    }
    collect([&](char* out) { GetLocationString(&camera, out); });
    collect([&](char* out) { GetPositionCoordString(&camera, out, 7208, 7209); });
    collect([&](char* out) { GetDistanceString(&camera, out); });
    for (const bool isLocked : {false, true}) {
      camera.SetDirectionLock(isLocked);
      collect([&](char* out) { GetCenterOnString(&camera, out); });
    }
    for (const int mode : {0, 1, 2}) {
      camera.SetAimingDispType(static_cast<unsigned char>(mode));
      collect([&](char* out) { GetDirectionString(&camera, out, 7216, 7217, 7218); });
    }
    collect([&](char* out) { GetRefPlane(&camera, out); });
    collect([&](char* out) { GetSlopeString(&camera, out); });
    collect([&](char* out) { GetZoomString(&camera, out); });
    collect([&](char* out) { GetFoV(&camera, out); });
    for (const int number : {1, 2, 5}) {
      const char* const word = GetNumberDays(number);
      texts.push_back(word ? word : "");
    }
    return texts;
  }

  void SetUpCamera(int movingType) {
    SetMovingType(movingType);
    camera.SetWinRect({1600, 900, 1600, 900});
    camera.SetLocationName("Rome");
    camera.SetBelowSurface(true);
    SSO_ID mars(FourCC("plnt"), 4);
    std::snprintf(mars.name, sizeof mars.name, "Mars");
    camera.SetCenterView(mars);
    DaylightSavingsData rule;
    rule.IsDST = true;
    rule.FirstDay = 2460000;
    rule.LastDay = 2461000;
    camera.SetDST(&rule);
  }
};

TEST_F(HostileStrings, TheFittingTableFits) {
  std::map<unsigned, std::string> table = MakeFittingTable();
  Load(Write(table));
  SetUpCamera(3);
  for (const std::string& text : CollectTexts()) {
    EXPECT_EQ(text.find('%'), std::string::npos) << text;
  }
  EXPECT_EQ(debug.lines, Lines{});
}

// The table of uses says what the functions really pass: one conversion more is a misfit.
TEST_F(HostileStrings, OneConversionMoreThanTheTableOfUsesAllowsIsRefused) {
  const std::map<unsigned, std::string> fitting = MakeFittingTable();
  for (const unsigned identifier :
       {7207u, 7208u, 7209u, 7211u, 7212u, 7214u, 7215u, 7216u, 7217u, 7218u, 7219u, 7220u, 7227u}) {
    std::map<unsigned, std::string> table = fitting;
    table[identifier] += " %d";
    Load(Write(table));
    SetUpCamera(identifier == 7208 || identifier == 7211 ? 0 : 3);
    debug.lines.clear();
    CollectTexts();
    ASSERT_EQ(debug.lines.size(), 1u) << identifier;
    EXPECT_EQ(
        debug.lines[0].rfind("String with ID = " + std::to_string(identifier) + " does not fit its use: ", 0),
        0u)
        << debug.lines[0];
  }
}

TEST_F(HostileStrings, EachTextAloneIsHostile) {
  const std::map<unsigned, std::string> fitting = MakeFittingTable();
  for (const auto& [identifier, good] : fitting) {
    if (!IsOfStatusTexts(identifier)) continue;
    for (const char* hostile : kHostile) {
      std::map<unsigned, std::string> table = fitting;
      table[identifier] = hostile;
      Load(Write(table));
      SetUpCamera(identifier == 7208 || identifier == 7211 ? 0 : 3);
      debug.lines.clear();
      CollectTexts();
      const TextUse* const use = FindTextUse(identifier);
      EXPECT_EQ(debug.lines.size(), use->arguments != nullptr ? 1u : 0u) << identifier << ' ' << hostile;
    }
  }
}

TEST_F(HostileStrings, EveryTextIsHostileInEveryMovingType) {
  for (const char* hostile : kHostile) {
    std::map<unsigned, std::string> table = MakeFittingTable();
    for (auto& [identifier, text] : table) text = hostile;
    for (int type = 0; type < 13; ++type) {
      Load(Write(table));
      SetUpCamera(type);
      CollectTexts();
      for (const std::string& line : debug.lines) EXPECT_EQ(line.find('\n'), line.size() - 1) << line;
    }
  }
}

TEST_F(HostileStrings, LongTextsAreCutAtTheEndOfTheBuffer) {
  std::map<unsigned, std::string> table = MakeFittingTable();
  for (auto& [identifier, text] : table) text = std::string(4000, 'x');
  Load(Write(table));
  SetUpCamera(3);
  const std::string cut(kStatusTextSize - 1, 'x');
  EXPECT_EQ(GetZoomString(&camera).size(), 4000u);
  GuardedText zoom, plane, caption, time;
  GetZoomString(&camera, zoom.Get());
  EXPECT_EQ(zoom.Read(), cut);
  EXPECT_TRUE(GetRefPlane(&camera, plane.Get()));
  EXPECT_EQ(plane.Read(), cut);
  camera.SetUniversalTime({2460375, 0.25, kLocalTime});
  GetTimeString(&camera, time.Get(), caption.Get());
  EXPECT_EQ(caption.Read(), cut);
  EXPECT_EQ(time.Read(), " 18:00 " + std::string(kStatusTextSize - 1 - 7, 'x'));
  for (int type = 0; type < 13; ++type) {
    SetUpCamera(type);
    for (const std::string& text : CollectTexts()) EXPECT_LE(text.size(), 4000u);
  }
}

TEST_F(HostileStrings, TheWidestConversionsAreCutAtTheEndOfTheBuffer) {
  Load("7219\t%999d\n7220\t%999.999f\n7227\t%-999s%999s\n");
  SetUpCamera(0);
  EXPECT_EQ(GetSlopeString(&camera).size(), 999u);
  EXPECT_EQ(GetFoV(&camera).size(), 1998u);
  for (const std::string& text : CollectTexts()) EXPECT_LT(text.size(), std::size_t{kStatusTextSize});
}

TEST_F(HostileStrings, EmptyTexts) {
  std::map<unsigned, std::string> table = MakeFittingTable();
  for (auto& [identifier, text] : table) text = " ";
  Load(Write(table));
  for (int type = 0; type < 13; ++type) {
    SetUpCamera(type);
    CollectTexts();
  }
  EXPECT_EQ(GetZoomString(&camera), "");
  GuardedText plane;
  EXPECT_TRUE(GetRefPlane(&camera, plane.Get()));
  EXPECT_EQ(plane.Read(), "");
  EXPECT_EQ(debug.lines, Lines{});
}

TEST_F(HostileStrings, NoTextAtAll) {
  Load("");
  for (int type = 0; type < 13; ++type) {
    SetUpCamera(type);
    CollectTexts();
  }
  EXPECT_EQ(GetZoomString(&camera) + GetFoV(&camera) + GetRefPlane(&camera), "");
  EXPECT_EQ(GetNumberDays(3), nullptr);
}

TEST_F(HostileStrings, NoTableAtAll) {
  LoadStrings(roots, "7220\t%f\n");
  std::remove(roots.dir.Path("data/qxstrings.txt").c_str());
  QX4Strings::StartLocaleUpdate();
  QX4Strings::FinishLocaleUpdate();
  SetUpCamera(3);
  for (const std::string& text : CollectTexts()) EXPECT_EQ(text.find('%'), std::string::npos);
  EXPECT_EQ(GetZoomString(&camera), "");
  EXPECT_EQ(debug.lines.back(), "String with ID = 7220 not found in file qxstrings.txt\n");
}

}  // namespace
