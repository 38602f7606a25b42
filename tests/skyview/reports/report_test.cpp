// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/report.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "scene/catalogs/language.h"
#include "scene/frame_helpers.h"

using host_test::FrameFixture;

namespace {

// At zoom 1 with corrections of zero: draw 6 + 3.5 - 2, full and label 6 - 2 for stars.
class Report : public testing::Test {
 protected:
  Report() { f.Compute(); }
  ~Report() override { Use("en"); }

  void Use(const char* language) {
    std::string error;
    EXPECT_TRUE(scene::SwitchLanguage(
        f.sky.dir.Path("data"), language, [] {}, error))
        << error;
  }
  bool Says(const std::string& line) const {
    const std::string report = "\n" + skyview::MakeReport(f.camera, {"status"}, f.frame);
    return report.find("\n" + line + "\n") != std::string::npos;
  }
  bool Lists(const std::string& lines) {
    return ("\n" + skyview::MakeLimitsTable(f.camera)).find("\n" + lines + "\n") != std::string::npos;
  }

  FrameFixture f;
};

}  // namespace

TEST_F(Report, BeginsWithTheStatusAndEndsEachLine) {
  const std::string report = skyview::MakeReport(f.camera, {"one", "two"}, f.frame);
  EXPECT_EQ(report.rfind("one\ntwo\nMagnitude limits, stars: ", 0), 0u) << report;
  EXPECT_EQ(report.back(), '\n');
  // Two of the status, ten classes, three numbers.
  EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), 15);
}

TEST_F(Report, InEnglish) {
  EXPECT_TRUE(Says("Magnitude limits, stars: drawn to 7.5, at full brightness to 4.0, labelled to 4.0"));
  EXPECT_TRUE(Says("Deep-sky objects drawn: 1"));
  EXPECT_TRUE(Lists("Zoom 10\n  stars: drawn to 11.5, at full brightness to 8.0, labelled to 8.0"));
}

TEST_F(Report, InGerman) {
  Use("de");
  EXPECT_TRUE(
      Says("Grenzgrößen, Sterne: gezeichnet bis 7.5, in voller Helligkeit bis 4.0, beschriftet bis 4.0"));
  EXPECT_TRUE(Says("Gezeichnete Deep-Sky-Objekte: 1"));
  EXPECT_TRUE(
      Lists("Zoom 10\n  Sterne: gezeichnet bis 11.5, in voller Helligkeit bis 8.0, beschriftet bis 8.0"));
}

TEST_F(Report, InRussian) {
  Use("ru");
  EXPECT_TRUE(Says(
      "Предельные звёздные величины, звёзды: видны до 7.5, в полную яркость до 4.0, с подписями до 4.0"));
  EXPECT_TRUE(Says("Показано объектов глубокого космоса: 1"));
  EXPECT_TRUE(Lists("Увеличение 10\n  звёзды: видны до 11.5, в полную яркость до 8.0, с подписями до 8.0"));
}

TEST_F(Report, ListOfLimitsPutsTheZoomBack) {
  f.camera.SetZoom(2.5);
  EXPECT_TRUE(skyview::MakeLimitsTable(f.camera).rfind("Zoom of the view, 2.5\n", 0) == 0);
  EXPECT_EQ(f.camera.GetZoom(), 2.5);
}
