// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/reports/filter_text.h"

#include <gtest/gtest.h>

#include "scene/filter_fields.h"
#include "scene/visibility/favourites.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"

using namespace scene;

TEST(FilterText, RulesSayWhatTheyLetPassAndWhatTheObjectHas) {
  const test_support::TempRoots roots;
  CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), "filters.data");
  host_test::AddRange(settings, "star", "VisMagnitude", 0.0f, 3.0f);
  host_test::AddBytes(settings, "star", "SpectrType", 0x4000, {0, 1});
  AddFavourite(settings, FourCC("star"), 7);
  ObjectFilters filters;
  filters.Refresh(settings);
  ObjectTraits traits;
  traits.code = 55.0f;  // (3.5 + 2) * 10
  traits.cls = 6;
  const ObjectFilter& filter = filters.Get(FourCC("star"));
  for (const auto& rule : filter.GetRules()) ASSERT_FALSE(filter.Passes(rule, traits));
  const auto& rules = filter.GetRules();
  ASSERT_EQ(rules.size(), 3u);
  EXPECT_EQ(skyview::DescribeRule(rules[0], FourCC("star"), traits),
            ": it lets magnitudes 0.00 to 3.00 pass, it has 3.50");
  EXPECT_EQ(skyview::DescribeRule(rules[1], FourCC("star"), traits),
            ": it lets the class B pass, its own is M");
  EXPECT_EQ(skyview::DescribeRule(rules[2], FourCC("star"), traits), "");
}
