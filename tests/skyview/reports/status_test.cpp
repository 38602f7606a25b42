// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The state of one view in the three shipped languages, worked out by hand: 52.5 degrees north, 13.4 east, on
// 15 January 2026 at 21:00 Universal Time, looking due south at 30 degrees of altitude.
#include "skyview/reports/status.h"

#include <gtest/gtest.h>

#include "skyview/small_sky.h"

#include <algorithm>

#include "scene/catalogs/language.h"
#include "scene/frame_helpers.h"
#include "utils/locale.h"

using host_test::FrameFixture;
using Texts = std::vector<std::string>;

namespace {

class Status : public testing::Test {
 protected:
  Status() {
    f.camera.SetTimeZoneName("Europe/Berlin", true);
    f.camera.UpdateLocUTCDeltaFromTimeZone();
    // 5h 35m 36s and -1 degree; the camera's owner computes it, the status shows it.
    f.camera.SetRA_Dec2K(83.9 * scene::kRadiansPerDegree, -1.0 * scene::kRadiansPerDegree);
  }
  ~Status() override { Use("en"); }

  void Use(const char* language) {
    std::string error;
    EXPECT_TRUE(scene::SwitchLanguage(
        f.sky.dir.Path("data"), language, [] {}, error))
        << error;
  }
  Texts Make() const { return skyview::MakeStatus(f.camera, f.catalogs); }
  bool Says(const std::string& text) const {
    const Texts texts = Make();
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  }

  FrameFixture f;
};

}  // namespace

TEST_F(Status, InEnglish) {
  EXPECT_EQ(
      Make(),
      (Texts{"Place: On the surface of the Earth", "Coordinates: 13°24'00.00\" E, 52°30'00.00\" N",
             "Height: 0 m", "Local time: 22:00, 15/01/2026 AD (Europe/Berlin, UT+01:00)",
             "Universal Time: 21:00, 15/01/2026 AD", "Date: 15 January 2026",
             "Direction: azimuth 180°00'00.00\", altitude 30°00'00.00\" (S)",
             "Refraction: raises the centre by 0.03°", "Centre (J2000): RA 5h35m36.00s, Dec -1°00'00.00\"",
             "Reference plane:\u00A0horizon", "Slope: 0°", "Zoom: 1.00", "Field of view: 63° x 40°"}));
  EXPECT_EQ(f.diagnostics.lines, Texts());
}

TEST_F(Status, InGerman) {
  Use("de");
  EXPECT_EQ(Make(),
            (Texts{"Ort: Auf der Oberfläche – Erde", "Koordinaten: 13°24'00.00\" O, 52°30'00.00\" N",
                   "Höhe: 0 m", "Ortszeit: 22:00, 15/01/2026 n. Chr. (Europe/Berlin, UT+01:00)",
                   "Weltzeit: 21:00, 15/01/2026 n. Chr.", "Datum: 15. Januar 2026",
                   "Blickrichtung: Azimut 180°00'00.00\", Höhe 30°00'00.00\" (S)",
                   "Refraktion: hebt die Bildmitte um 0.03°",
                   "Bildmitte (J2000): RA 5h35m36.00s, Dekl. -1°00'00.00\"", "Bezugsebene:\u00A0Horizont",
                   "Neigung: 0°", "Zoom: 1.00", "Gesichtsfeld: 63° x 40°"}));
  EXPECT_EQ(f.diagnostics.lines, Texts());
}

TEST_F(Status, InRussian) {
  Use("ru");
  EXPECT_EQ(Make(), (Texts{"Место: На поверхности — Земля", "Координаты: 13°24'00.00\" В, 52°30'00.00\" С",
                           "Высота: 0 м", "Местное время: 22:00, 15/01/2026 н. э. (Europe/Berlin, UT+01:00)",
                           "Всемирное время: 21:00, 15/01/2026 н. э.", "Дата: 15 января 2026",
                           "Направление взгляда: азимут 180°00'00.00\", высота 30°00'00.00\" (Ю)",
                           "Рефракция: поднимает центр вида на 0.03°",
                           "Центр (J2000): прямое восхождение 5ч35м36.00с, склонение -1°00'00.00\"",
                           "Основная плоскость:\u00A0горизонт", "Наклон: 0°", "Увеличение: 1.00",
                           "Поле зрения: 63° на 40°"}));
  EXPECT_EQ(f.diagnostics.lines, Texts());
}

TEST_F(Status, AzimuthCountsFromNorthOverEast) {
  f.SetLook(90.0, 10.5);
  EXPECT_TRUE(Says("Direction: azimuth 90°00'00.00\", altitude 10°30'00.00\" (E)"));
  f.SetLook(359.9, -45.0);
  EXPECT_TRUE(Says("Direction: azimuth 359°54'00.00\", altitude -45°00'00.00\" (N)"));
  f.SetLook(225.0, 0.0);
  EXPECT_TRUE(Says("Direction: azimuth 225°00'00.00\", altitude 0°00'00.00\" (SW)"));
}

TEST_F(Status, DateIsTheLocalOne) {
  f.SetTime(2026, 1, 15, 23, 30);
  EXPECT_TRUE(Says("Local time: 00:30, 16/01/2026 AD (Europe/Berlin, UT+01:00)"));
  EXPECT_TRUE(Says("Universal Time: 23:30, 15/01/2026 AD"));
  EXPECT_TRUE(Says("Date: 16 January 2026"));
}

TEST_F(Status, WithoutAZoneThereIsNoLocalTime) {
  f.camera.SetTimeZoneName("", true);
  f.camera.UpdateLocUTCDeltaFromTimeZone();
  const Texts texts = Make();
  ASSERT_GT(texts.size(), 4u);
  EXPECT_EQ(texts[3], "Universal Time: 21:00, 15/01/2026 AD");
  EXPECT_EQ(texts[4], "Date: 15 January 2026");
}

// At the horizon the air lifts by 0.55 degrees; below -1.4 degrees nothing is said of it.
TEST_F(Status, RefractionIsLeftOutDeepBelowTheHorizon) {
  f.SetLook(180.0, 0.0);
  EXPECT_TRUE(Says("Refraction: raises the centre by 0.57°"));
  f.SetLook(180.0, -10.0);
  EXPECT_EQ(Make().size(), 12u);
}

TEST_F(Status, PlaceWithANameSaysTheName) {
  f.camera.SetLocationName("Berlin");
  EXPECT_TRUE(Says("Place: Berlin"));
  f.camera.SetLocationName("Köln");
  EXPECT_TRUE(Says("Place: Köln"));
  Use("ru");
  f.camera.SetLocationName("Пулково");
  EXPECT_TRUE(Says("Место: Пулково"));
}

TEST_F(Status, CentredObjectHasItsNameInTheLanguage) {
  Use("ru");
  f.camera.SetCenterView(SSO_ID(FourCC("moon"), 301));
  EXPECT_TRUE(Says("В центре: Луна"));
  f.camera.SetCenterView(SSO_ID(FourCC("plnt"), 5));
  EXPECT_TRUE(Says("В центре: Юпитер"));
  f.camera.SetDirectionLock(true);
  f.camera.SetCenterView(SSO_ID(FourCC("plnt"), 10));
  EXPECT_TRUE(Says("Слежение: Солнце"));
}

TEST_F(Status, CentredObjectOfTheCatalogsHasItsLabel) {
  f.camera.SetCenterView(SSO_ID(FourCC("star"), 2491));
  EXPECT_TRUE(Says("Centred on: Sirius"));
  f.camera.SetCenterView(SSO_ID(FourCC("gala"), 31));
  EXPECT_TRUE(Says("Centred on: M31"));
}

TEST_F(Status, CentredStarWithoutAProperNameHasItsNumber) {
  f.sky.dir.Write("data/catalogs/stars.txt",
                  "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\tBayer:text\n"
                  "617\t1.0\t0.1\t2.0\t\tα Ari\n");
  std::string error;
  ASSERT_TRUE(scene::LoadSkyCatalogs(f.catalogs, error)) << error;
  f.camera.SetCenterView(SSO_ID(FourCC("star"), 617));
  EXPECT_TRUE(Says("Centred on: HR 617"));
}

TEST_F(Status, CentredObjectThatNobodyKnowsIsLeftOut) {
  const std::size_t before = Make().size();
  for (const SSO_ID& unknown : {SSO_ID(FourCC("star"), 1), SSO_ID(FourCC("plnt"), 0),
                                SSO_ID(FourCC("plnt"), 11), SSO_ID(FourCC("moon"), 401)}) {
    f.camera.SetCenterView(unknown);
    EXPECT_EQ(Make().size(), before) << unknown.number;
  }
}

TEST_F(Status, TheCameraIsNotChanged) {
  const SphViewCoor before = f.camera.GetViewAngles();
  Make();
  EXPECT_EQ(f.camera.GetViewAngles().lon, before.lon);
  EXPECT_EQ(f.camera.GetViewAngles().lat, before.lat);
  EXPECT_EQ(f.camera.GetLocationName(), "");
  CommonInterfaces::_Date time;
  f.camera.GetUniversalTime(time);
  EXPECT_EQ(time.day, 2461056);
  EXPECT_DOUBLE_EQ(time.fraction, 0.375);
}

TEST(StatusYears, TimesBeforeTheFirstYearCountAsTheDateDoes) {
  host_test::SmallSky sky;
  for (const auto& [time, line] :
       {std::pair("-0500-03-01T12:00Z", "Universal Time: 12:00, -0500-03-01\n"),
        std::pair("0000-03-01T12:00Z", "Universal Time: 12:00, 0000-03-01\n"),
        std::pair("0001-03-01T12:00Z", "Universal Time: 12:00, 01/03/0001 AD\n")}) {
    ASSERT_EQ(sky.Run({"--place", "52.5,13.4", "--time", time}), 0) << sky.errors.str();
    EXPECT_TRUE(sky.Printed(line)) << sky.output.str();
  }
}
