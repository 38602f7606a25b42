// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/shown_kinds.h"

#include <gtest/gtest.h>

#include "scene/visibility/kind_switches.h"

#include "support/camera_settings.h"
#include "support/debug_capture.h"
#include "utils/text.h"

using namespace scene;

class ShownKindsTest : public testing::Test {
 protected:
  void Add(const char* section, const char* name, int value) {
    const auto id = static_cast<unsigned>(GetFOURCC(section));
    test_support::AddField(settings, id, test_support::UInt8(name, value));
    settings.SetSectionStatus(id, 1);
  }

  test_support::DebugCapture diagnostics;
  test_support::TempRoots roots;
  CommonInterfaces::SettingsData settings{1, FourCC("FLTR"), "filters.data"};
};

TEST_F(ShownKindsTest, EmptySettingsShowEverythingUnderLatinNames) {
  const ShownKinds shown = ReadShownKinds(settings);
  for (const char* kind : {"star", "clst", "gala", "nebu", "dsnv"})
    EXPECT_TRUE(shown.IsShown(GetFOURCC(kind))) << kind;
  EXPECT_TRUE(shown.figures && shown.constellationNames && shown.milkyWay && shown.horizon && shown.compass);
  EXPECT_FALSE(shown.englishNames);
  EXPECT_TRUE(diagnostics.lines.empty());
}

TEST_F(ShownKindsTest, SwitchOfZeroHidesAndTheCurrentSectionStays) {
  Add("gala", "GalaxyDraw", 0);
  Add("clst", "ClusterDraw", 1);
  Add("grid", "Compass", 0);
  Add("cnst", "EnglishName", 1);
  settings.SetCurSection(FourCC("clst"));
  const ShownKinds shown = ReadShownKinds(settings);
  EXPECT_FALSE(shown.galaxies || shown.compass);
  EXPECT_TRUE(shown.clusters && shown.horizon && shown.englishNames);
  EXPECT_EQ(settings.GetCurSection(), static_cast<unsigned>(FourCC("clst")));
  EXPECT_TRUE(diagnostics.lines.empty());
}

TEST_F(ShownKindsTest, AirLiftsAndTakesLightEachByItsOwnBit) {
  EXPECT_TRUE(ReadShownKinds(settings).refraction && ReadShownKinds(settings).extinction);
  Add("grid", "SkyDirt", 2);
  const ShownKinds shown = ReadShownKinds(settings);
  EXPECT_FALSE(shown.refraction);
  EXPECT_TRUE(shown.extinction);
}

TEST_F(ShownKindsTest, PatternsAreASumAndNamesAChoice) {
  Add("cnst", "PatternsVisible", 2);
  Add("cnst", "EnglishName", 2);
  ShownKinds shown = ReadShownKinds(settings);
  EXPECT_FALSE(shown.figures);
  EXPECT_TRUE(shown.asterisms);
  EXPECT_EQ(shown.GetConstellationForm(), NameForm::kLatin);
  settings.SetSectionStatus(FourCC("cnst"), 0);
  shown = ReadShownKinds(settings);
  EXPECT_FALSE(shown.figures || shown.asterisms);
}

TEST_F(ShownKindsTest, SignsOfStarsAndGroupsOfAsteroidsFollowTheirFields) {
  ShownKinds shown = ReadShownKinds(settings);
  EXPECT_TRUE(shown.doubleSigns && shown.variableSigns && shown.planetSigns && shown.asteroidNames);
  EXPECT_FALSE(shown.asteroidBelt || shown.asteroidGroups);
  for (const char* name : {"ShowBinary", "ShowVariable", "ShowWithPlanets"}) Add("star", name, 0);
  Add("astr", "AsterLabels", 0);
  Add("astr", "ShowAsterBelt", 1);
  Add("astr", "AsterGroups", 1);
  shown = ReadShownKinds(settings);
  EXPECT_FALSE(shown.doubleSigns || shown.variableSigns || shown.planetSigns || shown.asteroidNames);
  EXPECT_TRUE(shown.asteroidBelt && shown.asteroidGroups);
}

TEST_F(ShownKindsTest, FeaturesDoNotStandForTheirBodies) {
  Add("moon", "MoonFeatures", 0);
  Add("plnt", "PlanetFeatures", 0);
  const ShownKinds shown = ReadShownKinds(settings);
  EXPECT_FALSE(shown.moonFeatures || shown.planetFeatures);
  EXPECT_TRUE(shown.moons && shown.planets);
  EXPECT_STREQ(ReadKindState(settings, FourCC("moon")).switchName, "Draw");
  EXPECT_STREQ(ReadKindState(settings, FourCC("plnt")).switchName, "Draw");
}

TEST_F(ShownKindsTest, LabelsFollowTheFieldsOfTheirSection) {
  Add("star", "CommonName", 0);
  Add("star", "LatAbbreviation", 1);
  Add("clst", "ClusterLabel", 0);
  Add("nebu", "NGC-IC", 1);
  const ShownKinds shown = ReadShownKinds(settings);
  EXPECT_FALSE(shown.GetLabels(FourCC("star")).commonName);
  EXPECT_TRUE(shown.GetLabels(FourCC("star")).abbreviation);
  EXPECT_FALSE(shown.GetLabels(FourCC("clst")).shown);
  EXPECT_TRUE(shown.GetLabels(FourCC("nebu")).ngcFirst);
  EXPECT_TRUE(shown.GetLabels(FourCC("gala")).shown);
}

TEST_F(ShownKindsTest, EveryKindHasLabelsOfItsOwn) {
  const ShownKinds shown;
  const std::pair<const char*, const LabelRules*> kinds[] = {
      {"star", &shown.starLabels},      {"clst", &shown.clusterLabels},      {"gala", &shown.galaxyLabels},
      {"nebu", &shown.nebulaLabels},    {"dsnv", &shown.otherDeepskyLabels}, {"plnt", &shown.planetLabels},
      {"moon", &shown.moonLabels},      {"astr", &shown.asteroidLabels},     {"comt", &shown.cometLabels},
      {"scft", &shown.spacecraftLabels}};
  for (const auto& [kind, labels] : kinds) EXPECT_EQ(&shown.GetLabels(GetFOURCC(kind)), labels) << kind;
}

TEST_F(ShownKindsTest, ReasonsAreGivenForWhatNoPictureFollowsOnly) {
  EXPECT_STREQ(FindUndrawnReason(FourCC("cnst"), GetUniqueID("ImagesVisible")),
               "images of constellations are not drawn");
  EXPECT_EQ(FindUndrawnReason(FourCC("star"), GetUniqueID("Draw")), nullptr);
  EXPECT_EQ(FindUndrawnReason(FourCC("star"), GetUniqueID("ImagesVisible")), nullptr);
}

TEST_F(ShownKindsTest, SectionThatIsOffHidesWhateverItsSwitchesSay) {
  Add("star", "Draw", 1);
  settings.SetSectionStatus(FourCC("star"), 0);
  EXPECT_FALSE(ReadShownKinds(settings).stars);
}

TEST_F(ShownKindsTest, SwitchOfAnotherTypeIsNotRead) {
  test_support::AddField(settings, FourCC("nebu"), test_support::Int32("CloudsDraw", 0));
  settings.SetSectionStatus(FourCC("nebu"), 1);
  EXPECT_TRUE(ReadShownKinds(settings).nebulae);
}

TEST_F(ShownKindsTest, KindsThatArePicturesOfNothingAreNotShown) {
  EXPECT_FALSE(ShownKinds().IsShown(FourCC("camr")));
  EXPECT_TRUE(ShownKinds().IsShown(FourCC("plnt")));
  EXPECT_FALSE(ShownKinds().IsShown(-1));
}
