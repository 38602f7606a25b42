// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
// How labels are drawn: colour, style and what keeps them readable.
#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <vector>

#include "scene/display/labels.h"
#include "scene/display/palette.h"

using namespace scene;

namespace {

class LabelColours : public testing::Test {
 protected:
  LabelColours() {
    light.SetPlain();
    placer.Begin(400, 300);
  }
  // The records of one label over a sky of one colour.
  std::vector<TextRecord> Draw(LabelKind kind, double strength = 1.0, const Rgba& sky = {0, 0, 0, 255}) {
    placer.Begin(400, 300);
    placer.PlaceAt("name", {100.0, 80.0}, 12.0, kind);
    list.Begin(400, 300, 1.0);
    MeshRecord mesh = {};
    mesh.right = 400.0f;
    mesh.bottom = 300.0f;
    mesh.columns = mesh.rows = 2;
    for (int i = 0; i < 4; ++i) list.AddColour(sky);
    list.AddMesh(Layer::kBackground, mesh);
    placer.Draw(strength, SkyColours(list, light), list);
    return list.GetTexts();
  }
  Rgba ColourOf(LabelKind kind, double strength = 1.0, const Rgba& sky = {0, 0, 0, 255}) {
    return Draw(kind, strength, sky).back().colour;
  }

  SkyLight light;
  LabelPlacer placer;
  DisplayList list;
};

void ExpectSameHue(const Rgba& label, const Colour& lines) {
  const Rgba expected = ToRgba(lines);
  EXPECT_EQ(label.red, expected.red);
  EXPECT_EQ(label.green, expected.green);
  EXPECT_EQ(label.blue, expected.blue);
}

constexpr Rgba kDaySky = {140, 180, 235, 255};

}  // namespace

TEST_F(LabelColours, StandWhereTheyWerePlacedWithYDownwards) {
  const std::vector<TextRecord> texts = Draw(LabelKind::kStarName);
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0].x, 100.0f);
  EXPECT_EQ(texts[0].y, 220.0f);
  EXPECT_EQ(texts[0].size, 12.0f);
  EXPECT_EQ(std::string(&list.GetTextBytes()[static_cast<std::size_t>(texts[0].first)]), "name");
}

TEST_F(LabelColours, GridsAreLabelledInTheColourOfTheirLines) {
  const std::map<LabelKind, Colour> grids = {{LabelKind::kEquatorialGrid, palette::kEquatorialGrid},
                                             {LabelKind::kJ2000Grid, palette::kJ2000Grid},
                                             {LabelKind::kEclipticGrid, palette::kEclipticGrid},
                                             {LabelKind::kGalacticGrid, palette::kGalacticGrid},
                                             {LabelKind::kHorizontalGrid, palette::kHorizontalGrid}};
  for (const auto& [kind, lines] : grids) {
    const Rgba label = ColourOf(kind);
    ExpectSameHue(label, lines);
    EXPECT_EQ(label.alpha, 230) << "nine tenths, where the lines are faint";
  }
}

TEST_F(LabelColours, DeepskyNamesHaveTheColourOfTheirSymbol) {
  ExpectSameHue(ColourOf(LabelKind::kGalaxy), palette::kGalaxy);
  ExpectSameHue(ColourOf(LabelKind::kCluster), palette::kCluster);
  ExpectSameHue(ColourOf(LabelKind::kNebula), palette::kNebula);
  ExpectSameHue(ColourOf(LabelKind::kOtherDeepsky), palette::kOtherDeepsky);
}

TEST_F(LabelColours, MarksAndAsterismsHaveTheColourOfTheirLines) {
  ExpectSameHue(ColourOf(LabelKind::kAsterism), palette::kAsterism);
  ExpectSameHue(ColourOf(LabelKind::kMarker), palette::kMark);
  ExpectSameHue(ColourOf(LabelKind::kRadiant), palette::kRadiant);
  ExpectSameHue(ColourOf(LabelKind::kCompass), palette::kAccent);
  ExpectSameHue(ColourOf(LabelKind::kCompassBetween), palette::kAccent);
}

TEST_F(LabelColours, LesserNamesAreFainter) {
  EXPECT_LT(ColourOf(LabelKind::kStarLetter).alpha, ColourOf(LabelKind::kStarName).alpha);
  EXPECT_LT(ColourOf(LabelKind::kSmallBody).alpha, ColourOf(LabelKind::kPlanet).alpha);
  EXPECT_LT(ColourOf(LabelKind::kPassTime).alpha, ColourOf(LabelKind::kSatellite).alpha);
  EXPECT_LT(ColourOf(LabelKind::kCompassBetween).alpha, ColourOf(LabelKind::kCompass).alpha);
}

// Planets are warm, satellites are not, and neither looks like a star's name.
TEST_F(LabelColours, KindsAreToldApart) {
  const Rgba planet = ColourOf(LabelKind::kPlanet), satellite = ColourOf(LabelKind::kSatellite),
             star = ColourOf(LabelKind::kStarName), frame = ColourOf(LabelKind::kImageFrame),
             caption = ColourOf(LabelKind::kCaption);
  EXPECT_GT(planet.red, planet.blue + 50);
  EXPECT_GT(satellite.blue, satellite.red + 50);
  EXPECT_LT(std::abs(star.red - star.blue), 50);
  EXPECT_NE(frame, star);
  EXPECT_NE(caption, star);
}

TEST_F(LabelColours, NamesOfFiguresFadeWithTheirLines) {
  for (const LabelKind kind : {LabelKind::kConstellation, LabelKind::kAsterism}) {
    EXPECT_NEAR(ColourOf(kind, 0.5).alpha, 0.5 * ColourOf(kind).alpha, 1.0);
  }
  EXPECT_EQ(ColourOf(LabelKind::kStarName, 0.5), ColourOf(LabelKind::kStarName));
}

TEST_F(LabelColours, StyleFollowsTheKind) {
  const std::map<LabelKind, unsigned> styles = {{LabelKind::kConstellation, kItalicText},
                                                {LabelKind::kAsterism, kItalicText},
                                                {LabelKind::kStarLetter, kItalicText},
                                                {LabelKind::kCompass, kBoldText},
                                                {LabelKind::kCompassBetween, 0u},
                                                {LabelKind::kStarName, 0u},
                                                {LabelKind::kPlanet, 0u}};
  for (const auto& [kind, style] : styles)
    EXPECT_EQ(Draw(kind).back().style, style) << static_cast<int>(kind);
}

// Four dark copies around it, under the bright one.
TEST_F(LabelColours, NamesOnADiscHaveAShadow) {
  for (const LabelKind kind : {LabelKind::kCrater, LabelKind::kRegion}) {
    const std::vector<TextRecord> texts = Draw(kind);
    ASSERT_EQ(texts.size(), 5u);
    float x = 0.0f, y = 0.0f;
    for (int i = 0; i < 4; ++i) {
      const TextRecord& shadow = texts[static_cast<std::size_t>(i)];
      EXPECT_EQ(shadow.colour, (Rgba{0, 0, 0, 140}));
      EXPECT_NEAR(std::hypot(shadow.x - 100.0f, shadow.y - 220.0f), 0.8 * std::sqrt(2.0), 1e-3);
      x += shadow.x / 4.0f;
      y += shadow.y / 4.0f;
    }
    EXPECT_NEAR(x, 100.0f, 1e-3) << "evenly on all sides";
    EXPECT_NEAR(y, 220.0f, 1e-3);
    EXPECT_GT(texts[4].colour.red, 150);
  }
  EXPECT_EQ(Draw(LabelKind::kPlanet).size(), 1u);
}

// A name in the sky turns dark by day; one on the ground or on the caption's own ground stays.
TEST_F(LabelColours, NamesInABrightSkyAreDark) {
  const Rgba byDay = ColourOf(LabelKind::kPlanet, 1.0, kDaySky), byNight = ColourOf(LabelKind::kPlanet);
  EXPECT_LT(byDay.red, 120);
  EXPECT_GT(byNight.red, 240);
  for (const LabelKind kind : {LabelKind::kCompass, LabelKind::kCompassBetween, LabelKind::kCaption})
    EXPECT_EQ(ColourOf(kind, 1.0, kDaySky), ColourOf(kind)) << static_cast<int>(kind);
}

TEST_F(LabelColours, NamesInTwilightArePaler) {
  const Rgba dusk = ColourOf(LabelKind::kSatellite, 1.0, {60, 60, 80, 255}),
             night = ColourOf(LabelKind::kSatellite);
  EXPECT_GT(dusk.red, night.red);
  EXPECT_GE(dusk.blue, night.blue);
}

TEST_F(LabelColours, EmptyNamesLeaveNoRecord) {
  placer.Begin(400, 300);
  placer.PlaceAt("", {100.0, 80.0}, 12.0, LabelKind::kStarName);
  list.Begin(400, 300, 1.0);
  placer.Draw(1.0, SkyColours(list, light), list);
  EXPECT_TRUE(list.GetTexts().empty());
}
