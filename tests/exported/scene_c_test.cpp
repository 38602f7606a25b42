// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The C interface as a program in C sees it (scene_c/).
#include <gtest/gtest.h>

#include <string>

#include "exported/scene_c/checks.h"
#include "scene/scene_c.h"
#include "support/camera_settings.h"
#include "support/temp_dir.h"
#include "utils/path.h"

namespace {

using Check = const char* (*)(const char* data, const char* file);

class SceneC : public testing::Test {
 protected:
  void SetUp() override {
    ZentharPath::SetRoots(nullptr, nullptr);  // as in a process that has just begun
    scene_set_log([](const char* text, void* lines) { *static_cast<std::string*>(lines) += text; }, &m_Lines);
  }
  void TearDown() override { scene_set_log(nullptr, nullptr); }

  void Run(Check check) {
    const char* const wrong = check(CI_DATA_ROOT, m_Folder.Path("kept.data").c_str());
    EXPECT_EQ(wrong, nullptr) << wrong << "\n" << m_Lines;
  }

  void WriteViewsFromElsewhere() {
    using namespace test_support;
    constexpr unsigned kTraveller = 1, kOnMars = 2;
    const auto write = [this](unsigned number, const RecordFields& fields) {
      AppendBlock(m_Folder.Path("kept.data"), kCAMR, number, kCameraSection, fields);
    };
    RecordFields traveller = CameraFields(), onMars = CameraFields();
    ReplaceField(traveller, Int8("m_ObsMovingType", 5));
    ReplaceField(onMars, Int32("m_ObsObjID", 4));
    ReplaceField(onMars, UInt8("m_BasePlane", 1));
    write(kTraveller, traveller);
    write(kOnMars, onMars);
  }

  test_support::TempDir m_Folder;
  std::string m_Lines;
};

TEST_F(SceneC, RefusesWhatIsNone) { Run(check_refusals); }
TEST_F(SceneC, KeepsTheLineOfARootThatCannotBeOpened) { Run(check_missing_root); }
TEST_F(SceneC, DrawsTextsLargerInAnEnlargedFrame) { Run(check_enlargement); }
TEST_F(SceneC, HandsOutTheArraysOfAFrame) { Run(check_frame); }
TEST_F(SceneC, SetsAViewWholeOrNotAtAll) { Run(check_view); }
TEST_F(SceneC, ReadsAndSavesViews) { Run(check_saved_view); }
TEST_F(SceneC, ChangesReadsAndSavesSettings) { Run(check_settings); }
TEST_F(SceneC, FindsPicksAndObservesObjects) { Run(check_objects); }
TEST_F(SceneC, ProjectsBothWays) { Run(check_projection); }
TEST_F(SceneC, ChangesTheLanguage) { Run(check_language); }
TEST_F(SceneC, SuggestsWhatBeginsSo) { Run(check_suggestions); }
TEST_F(SceneC, TellsWhatIsKnownOfAnObject) { Run(check_facts); }
TEST_F(SceneC, TellsWhyAnObjectIsDrawnOrNot) { Run(check_reasons); }
TEST_F(SceneC, TellsWhenAnObjectRisesAndSets) { Run(check_day); }
TEST_F(SceneC, TellsOfTheNight) { Run(check_night); }
TEST_F(SceneC, FindsEvents) { Run(check_events); }
TEST_F(SceneC, FindsCitiesAndTheirClocks) { Run(check_places); }
TEST_F(SceneC, HoldsADirectionUnderAPixel) { Run(check_turn); }
TEST_F(SceneC, TellsWhatLiesAtAPixel) { Run(check_spot); }
TEST_F(SceneC, TellsWhatTheFrameShows) { Run(check_frame_facts); }
TEST_F(SceneC, NamesTheMapOfAGlobe) { Run(check_map); }
TEST_F(SceneC, HandsOutTextsAndLanguages) { Run(check_texts); }
TEST_F(SceneC, SetsOptionsByName) { Run(check_options); }
TEST_F(SceneC, KeepsFavourites) { Run(check_favourites); }
TEST_F(SceneC, SavesAndReadsSessions) { Run(check_session); }
TEST_F(SceneC, RefusesEachArgumentThatIsWrong) { Run(check_arguments); }
TEST_F(SceneC, TakesNumbersUpToTheirBounds) { Run(check_ranges); }
TEST_F(SceneC, TellsATravellerWhatCanBeTold) {
  WriteViewsFromElsewhere();
  Run(check_traveller);
}
TEST_F(SceneC, ComesBackToTheEarthFromAnUnknownHorizon) {
  WriteViewsFromElsewhere();
  Run(check_unknown_horizon);
}
TEST_F(SceneC, KnowsCallersOfOtherVersionsByTheirSizes) { Run(check_sizes); }

}  // namespace
