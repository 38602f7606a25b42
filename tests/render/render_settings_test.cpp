// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/render_settings.h"

#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "render/animation_clock.h"
#include "utils/text.h"

using CommonInterfaces::FadingValue;
using CommonInterfaces::OrbitFade;
using CommonInterfaces::RenderSettings;
using test_support::AnimationClock;

namespace {

static_assert(std::has_virtual_destructor_v<RenderSettings>);
static_assert(std::is_copy_constructible_v<RenderSettings> && std::is_copy_assignable_v<RenderSettings>);

const SSO_ID kComet(FourCC("comt"), 1);

// Everything there is, on.
RenderSettings MakeFull() {
  RenderSettings settings;
  settings.SetAsterFavo(4, 1);
  settings.SetCometFavo(1, 2);
  settings.SetSCFavo(25544, 3);
  settings.InsertSCelem(20580, 4);
  settings.SetIncludedPlanets({3, 4, 10});
  settings.SetIncludedMoons({301});
  settings.enableConstellationsIn3DFlight(true);
  settings.getForcedConstellationList() = {1, 0, 1};
  settings.SetOrbit(kComet, OrbitFade{0.0, 0.0, 1.0f, 1.0f});
  for (auto layer : {&RenderSettings::m_ConstellationLines, &RenderSettings::m_ConstellationNames,
                     &RenderSettings::m_ConstellationBounds, &RenderSettings::m_ConstellationImages,
                     &RenderSettings::m_Grid, &RenderSettings::m_MilkyWay, &RenderSettings::m_Atmosphere}) {
    settings.*layer = FadingValue<float>{0.0, 10.0, 0.0f, 1.0f};
  }
  settings.m_Exposure = FadingValue<double>{0.0, 10.0, 0.0, 5.0};
  settings.m_StarScale = 2.0f;
  settings.m_BodyScale = 3.0f;
  settings.m_LabelOffset = 4.0f;
  settings.m_bOrbitMarks = settings.m_bShadows = settings.m_bComaAndTail = settings.m_bFavoritesOnly = true;
  settings.m_LabelsDrawn = 5;
  settings.m_OrbitsDrawn = 6;
  return settings;
}

void ExpectFullContainers(RenderSettings& settings) {
  EXPECT_EQ(settings.GetAsterFavo(4), 1);
  EXPECT_EQ(settings.GetCometFavo(1), 2);
  EXPECT_EQ(settings.GetSCFavo(25544), 3);
  EXPECT_EQ(settings.GetSC(20580), 4);
  EXPECT_EQ(settings.GetIncludedPlanets(), (std::vector<int>{3, 4, 10}));
  EXPECT_EQ(settings.GetIncludedMoons(), std::vector<int>{301});
  EXPECT_EQ(settings.getForcedConstellationList(), (std::vector<char>{1, 0, 1}));
  EXPECT_EQ(settings.GetOrbits().size(), 1u);
}

TEST(RenderSettingsTest, ANewOneHasNothingOn) {
  RenderSettings settings;
  EXPECT_FALSE(settings.IsPlanetInclude(3));
  EXPECT_FALSE(settings.IsMooonInclude(301));
  EXPECT_FALSE(settings.areConstellationsIn3DFlight());
  EXPECT_FALSE(settings.m_bOrbitMarks || settings.m_bShadows || settings.m_bComaAndTail ||
               settings.m_bFavoritesOnly);
  EXPECT_EQ(settings.m_LabelsDrawn, 0);
  EXPECT_EQ(settings.m_OrbitsDrawn, 0);
  EXPECT_TRUE(settings.getForcedConstellationList().empty());
  EXPECT_TRUE(settings.GetOrbits().empty());
  EXPECT_EQ(settings.m_StarScale, 1.0f);
  EXPECT_EQ(settings.m_BodyScale, 1.0f);
  EXPECT_EQ(settings.m_Exposure.m_EndValue, 0.0);
}

TEST(RenderSettingsTest, AnObjectWithoutAMarkHas128) {
  const RenderSettings settings = MakeFull();
  EXPECT_EQ(settings.GetAsterFavo(5), 128);
  EXPECT_EQ(settings.GetAsterFavo(-4), 128);
  EXPECT_EQ(settings.GetCometFavo(4), 128);
  EXPECT_EQ(settings.GetSCFavo(20580), 128);
  EXPECT_EQ(settings.GetSC(25544), 128);
}

TEST(RenderSettingsTest, MarksOfTheThreeKindsAreApart) {
  RenderSettings settings;
  settings.SetAsterFavo(7, 10);
  settings.SetCometFavo(7, 20);
  settings.SetSCFavo(7, 30);
  settings.InsertSCelem(7, 40);
  EXPECT_EQ(settings.GetAsterFavo(7), 10);
  EXPECT_EQ(settings.GetCometFavo(7), 20);
  EXPECT_EQ(settings.GetSCFavo(7), 30);
  EXPECT_EQ(settings.GetSC(7), 40);
  settings.ClearFavo();
  EXPECT_EQ(settings.GetAsterFavo(7), 128);
  EXPECT_EQ(settings.GetCometFavo(7), 128);
  EXPECT_EQ(settings.GetSCFavo(7), 128);
  EXPECT_EQ(settings.GetSC(7), 40);
}

TEST(RenderSettingsTest, SettingAMarkAgainReplacesIt) {
  RenderSettings settings;
  settings.SetAsterFavo(7, 10);
  settings.SetAsterFavo(7, 11);
  EXPECT_EQ(settings.GetAsterFavo(7), 11);
}

TEST(RenderSettingsTest, InsertSCelemKeepsAnEarlierEntry) {
  RenderSettings settings;
  settings.InsertSCelem(5, 1);
  settings.InsertSCelem(5, 2);
  EXPECT_EQ(settings.GetSC(5), 1);
}

TEST(RenderSettingsTest, ClearSCEmptiesTheSpacecraftMapAlone) {
  RenderSettings settings = MakeFull();
  settings.ClearSC();
  EXPECT_EQ(settings.GetSC(20580), 128);
  EXPECT_EQ(settings.GetSCFavo(25544), 3);
  settings.InsertSCelem(20580, 9);
  EXPECT_EQ(settings.GetSC(20580), 9);
}

TEST(RenderSettingsTest, PlanetsAndMoonsAreFoundInTheirOwnList) {
  const RenderSettings settings = MakeFull();
  for (const int planet : {3, 4, 10}) EXPECT_TRUE(settings.IsPlanetInclude(planet));
  EXPECT_FALSE(settings.IsPlanetInclude(301));
  EXPECT_FALSE(settings.IsPlanetInclude(5));
  EXPECT_TRUE(settings.IsMooonInclude(301));
  EXPECT_FALSE(settings.IsMooonInclude(3));
}

TEST(RenderSettingsTest, TheForcedListIsTheCallersToChange) {
  RenderSettings settings;
  settings.getForcedConstellationList().push_back(1);
  EXPECT_EQ(settings.getForcedConstellationList(), std::vector<char>{1});
}

TEST(RenderSettingsTest, ConstellationsIn3DFlightGoOnAndOff) {
  RenderSettings settings;
  settings.enableConstellationsIn3DFlight(true);
  EXPECT_TRUE(settings.areConstellationsIn3DFlight());
  settings.enableConstellationsIn3DFlight(false);
  EXPECT_FALSE(settings.areConstellationsIn3DFlight());
}

TEST(RenderSettingsTest, CreateDefaultClearsFlagsAndCountersAndSetsTheScales) {
  RenderSettings settings = MakeFull();
  settings.CreateDefault();
  EXPECT_FALSE(settings.areConstellationsIn3DFlight());
  EXPECT_FALSE(settings.m_bOrbitMarks);
  EXPECT_FALSE(settings.m_bShadows);
  EXPECT_FALSE(settings.m_bComaAndTail);
  EXPECT_FALSE(settings.m_bFavoritesOnly);
  EXPECT_EQ(settings.m_LabelsDrawn, 0);
  EXPECT_EQ(settings.m_OrbitsDrawn, 0);
  EXPECT_EQ(settings.m_StarScale, 1.0f);
  EXPECT_EQ(settings.m_BodyScale, 1.0f);
  EXPECT_EQ(settings.m_LabelOffset, 0.0f);
}

TEST(RenderSettingsTest, CreateDefaultLeavesTheContainersAsTheyAre) {
  RenderSettings settings = MakeFull();
  settings.CreateDefault();
  ExpectFullContainers(settings);
}

TEST(RenderSettingsTest, CreateDefaultFadesTheFirstLayerOverHalfASecondFromWhereItStands) {
  AnimationClock clock(4.0);
  RenderSettings settings = MakeFull();
  settings.CreateDefault();
  const FadingValue<float>& lines = settings.m_ConstellationLines;
  EXPECT_EQ(lines.m_StartTime, 4.0);
  EXPECT_EQ(lines.m_EndTime, 4.5);
  EXPECT_FLOAT_EQ(lines.m_StartValue, 0.4f);
  EXPECT_EQ(lines.m_EndValue, 0.0f);
  EXPECT_FLOAT_EQ(lines.GetCurrent(4.25), 0.2f);
  EXPECT_EQ(lines.GetCurrent(4.5), 0.0f);
}

TEST(RenderSettingsTest, CreateDefaultSwitchesTheOtherLayersOffAtOnceFromWhereTheyStand) {
  AnimationClock clock(4.0);
  RenderSettings settings = MakeFull();
  settings.CreateDefault();
  for (const FadingValue<float>* layer :
       {&settings.m_ConstellationNames, &settings.m_ConstellationBounds, &settings.m_ConstellationImages,
        &settings.m_Grid, &settings.m_MilkyWay, &settings.m_Atmosphere}) {
    EXPECT_EQ(layer->m_StartTime, 4.0);
    EXPECT_EQ(layer->m_EndTime, 4.0);
    EXPECT_FLOAT_EQ(layer->m_StartValue, 0.4f);
    EXPECT_EQ(layer->m_EndValue, 0.0f);
    EXPECT_EQ(layer->GetCurrent(4.0), 0.0f);
  }
  EXPECT_EQ(settings.m_Exposure.m_StartTime, 4.0);
  EXPECT_EQ(settings.m_Exposure.m_EndTime, 4.0);
  EXPECT_DOUBLE_EQ(settings.m_Exposure.m_StartValue, 2.0);
  EXPECT_EQ(settings.m_Exposure.m_EndValue, 0.0);
}

TEST(RenderSettingsTest, CreateDefaultLeavesALayerThatIsFadingOutAlone) {
  AnimationClock clock(4.0);
  RenderSettings settings;
  settings.m_ConstellationLines = FadingValue<float>{3.0, 8.0, 1.0f, 0.0f};
  settings.m_Grid = FadingValue<float>{3.0, 8.0, 1.0f, 0.0f};
  settings.CreateDefault();
  EXPECT_EQ(settings.m_ConstellationLines.m_EndTime, 8.0);
  EXPECT_FLOAT_EQ(settings.m_Grid.GetCurrent(4.0), 0.8f);
}

TEST(RenderSettingsTest, CreateDefaultAlsoFadesALayerWithANegativeEnd) {
  AnimationClock clock(1.0);
  RenderSettings settings;
  settings.m_Exposure = FadingValue<double>{0.0, 0.0, 0.0, -1.5};
  settings.CreateDefault();
  EXPECT_EQ(settings.m_Exposure.m_StartValue, -1.5);
  EXPECT_EQ(settings.m_Exposure.m_EndValue, 0.0);
}

TEST(RenderSettingsTest, ReadingAndWritingDeliberatelyDoNothing) {
  RenderSettings settings = MakeFull();
  settings.ReadSelf(nullptr);
  settings.WriteSelf(nullptr);
  ExpectFullContainers(settings);
  EXPECT_EQ(settings.m_StarScale, 2.0f);
  EXPECT_EQ(settings.m_LabelsDrawn, 5);
}

TEST(RenderSettingsTest, ACopyHasEveryOptionAndContainersOfItsOwn) {
  auto original = std::make_unique<RenderSettings>(MakeFull());
  RenderSettings copy(*original);
  original->ClearFavo();
  original->ClearSC();
  original->SetIncludedPlanets({});
  original->SetIncludedMoons({});
  original->getForcedConstellationList().clear();
  original->clearNPMOrbits(true);
  original->CreateDefault();
  original.reset();
  ExpectFullContainers(copy);
  EXPECT_TRUE(copy.areConstellationsIn3DFlight());
  EXPECT_TRUE(copy.m_bOrbitMarks && copy.m_bShadows && copy.m_bComaAndTail && copy.m_bFavoritesOnly);
  EXPECT_EQ(copy.m_StarScale, 2.0f);
  EXPECT_EQ(copy.m_BodyScale, 3.0f);
  EXPECT_EQ(copy.m_LabelOffset, 4.0f);
  EXPECT_EQ(copy.m_LabelsDrawn, 5);
  EXPECT_EQ(copy.m_OrbitsDrawn, 6);
  EXPECT_EQ(copy.m_Exposure.m_EndValue, 5.0);
  EXPECT_EQ(copy.m_Atmosphere.m_EndTime, 10.0);
}

TEST(RenderSettingsTest, AssignmentReplacesEverythingAndLeavesTheSourceAlone) {
  RenderSettings source = MakeFull();
  RenderSettings target;
  target.SetAsterFavo(99, 1);
  target.InsertSCelem(99, 1);
  target.SetOrbit(SSO_ID(FourCC("astr"), 99), OrbitFade{});
  target = source;
  ExpectFullContainers(target);
  EXPECT_EQ(target.GetAsterFavo(99), 128);
  EXPECT_EQ(target.GetSC(99), 128);
  target.ClearFavo();
  target.clearNPMOrbits(true);
  ExpectFullContainers(source);
}

TEST(RenderSettingsTest, AssignmentToItselfChangesNothing) {
  RenderSettings settings = MakeFull();
  RenderSettings& same = settings;
  settings = same;
  ExpectFullContainers(settings);
}

}  // namespace
