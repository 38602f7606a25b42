// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The C interface where memory runs out: each allocation of a call fails once. On Linux the operators new of
// the program are those of its shared libraries too.
#include <gtest/gtest.h>

#include <functional>

#include "scene/scene_almanac_c.h"
#include "scene/scene_objects_c.h"
#include "scene/scene_state_c.h"
#include "support/allocation_counter.h"

namespace {

class SceneCMemory : public testing::Test {
 protected:
  void SetUp() override {
    const SceneRoots roots = {sizeof roots, CI_DATA_ROOT, nullptr, nullptr};
    ASSERT_EQ(scene_open(&roots, &m_Sky), SCENE_OK);
    const SceneView view = {sizeof view, 800, 500, 52.5, 13.4, 2461056.375, 180.0, 35.0, 1.0};
    ASSERT_EQ(scene_set_view(m_Sky, &view), SCENE_OK);
    ASSERT_EQ(scene_find(m_Sky, "Sirius", &m_Sirius), SCENE_OK);
    ASSERT_EQ(scene_compute(m_Sky), SCENE_OK);
  }
  void TearDown() override { scene_close(m_Sky); }

  // Fails the first allocation of the call, then the second, and so on with growing strides, until one call
  // has all that it wants. Returns how many calls failed.
  int Starve(const std::function<int()>& call) {
    constexpr long long kMost = 2000000;
    int failed = 0;
    for (long long at = 0; at < kMost; at += 1 + at / 16) {
      host_test::FailAllocationAfter(at);
      const int status = call();
      const bool ranOut = host_test::HasAllocationFailed();
      host_test::FailAllocationAfter(-1);
      if (!ranOut) {
        EXPECT_EQ(status, SCENE_OK) << scene_error(m_Sky);
        return failed;
      }
      ++failed;
      EXPECT_TRUE(status == SCENE_NO_MEMORY || status == SCENE_OK) << at << ": " << status;
    }
    ADD_FAILURE() << "never satisfied";
    return failed;
  }

  SceneSky* m_Sky = nullptr;
  SceneObject m_Sirius = {0, 0};
  SceneArray m_List = {sizeof m_List, 0, 0, nullptr};
};

TEST_F(SceneCMemory, SuggestionsFailAsAValue) {
  EXPECT_GT(Starve([this] { return scene_suggest(m_Sky, "alp", 10, &m_List); }), 5);
  EXPECT_EQ(m_List.count, 10u);
}

TEST_F(SceneCMemory, FactsAndReasonsFailAsAValue) {
  EXPECT_GT(Starve([this] { return scene_get_facts(m_Sky, m_Sirius, &m_List); }), 5);
  EXPECT_GT(m_List.count, 8u);
  EXPECT_GT(Starve([this] { return scene_explain(m_Sky, m_Sirius, &m_List); }), 2);
}

TEST_F(SceneCMemory, EventsAndCitiesFailAsAValue) {
  EXPECT_GT(Starve([this] { return scene_find_events(m_Sky, 2461041.5, 2461045.5, "phases", &m_List); }), 2);
  EXPECT_EQ(m_List.count, 1u);
  EXPECT_GT(Starve([this] { return scene_find_cities(m_Sky, "ber", 10, &m_List); }), 5);
}

TEST_F(SceneCMemory, FavouritesAndSessionsFailAsAValue) {
  EXPECT_GT(Starve([this] { return scene_mark(m_Sky, m_Sirius, 1); }), 0);
  const auto save = [this] { return scene_format_session(m_Sky) ? SCENE_OK : SCENE_NO_MEMORY; };
  EXPECT_GT(Starve(save), 10);
  EXPECT_STREQ(scene_format_favourites(m_Sky), "Sirius\t1937006962\t2491\n");
}

TEST_F(SceneCMemory, FrameIsComputedAfterIt) {
  EXPECT_GT(Starve([this] { return scene_set_option(m_Sky, "eyepiece", "2"); }), 2);
  EXPECT_EQ(scene_compute(m_Sky), SCENE_OK);
}

}  // namespace
