// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The C interface as a program in C sees it (scene_c_checks.c).
#include <gtest/gtest.h>

#include <string>

#include "exported/scene_c_checks.h"
#include "scene/scene_c.h"
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
TEST_F(SceneC, KnowsCallersOfOtherVersionsByTheirSizes) { Run(check_sizes); }

}  // namespace
