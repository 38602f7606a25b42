// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/words/event_kinds.h"

#include <gtest/gtest.h>

using namespace scene;
using astro::EventKind;

TEST(EventKinds, EachHasANameOfItsOwnThatFindsIt) {
  astro::EventKinds seen;
  for (int kind = 0; kind < astro::kEventKinds; ++kind) {
    const auto found = FindKinds(GetKindName(static_cast<EventKind>(kind)));
    EXPECT_EQ(found.count(), 1u) << GetKindName(static_cast<EventKind>(kind));
    EXPECT_TRUE(found.test(static_cast<std::size_t>(kind)));
    seen |= found;
  }
  EXPECT_TRUE(seen.all());
}

TEST(EventKinds, GroupsHoldTheirKindsAndRareOnesAreNotOfEveryDay) {
  EXPECT_EQ(FindKinds("phases").count(), 4u);
  EXPECT_EQ(FindKinds("eclipses").count(), 3u);
  EXPECT_TRUE(FindKinds("nonsense").none());
  EXPECT_TRUE((GetRareKinds() & FindKinds("risings")).none());
  EXPECT_TRUE((GetRareKinds() & FindKinds("satellites")).none());
  EXPECT_EQ(GetRareKinds() & FindKinds("seasons"), FindKinds("seasons"));
  EXPECT_STREQ(GetKindGroup(EventKind::kFullMoon), "phases");
  EXPECT_EQ(ListKinds("seasons").size(), 4u);
  EXPECT_TRUE(IsDailyGroup("twilights") && !IsDailyGroup("phases"));
}
