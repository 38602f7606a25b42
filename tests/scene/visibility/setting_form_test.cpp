// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/setting_form.h"

#include <gtest/gtest.h>

#include "scene/filter_fields.h"
#include "scene/visibility/favourites.h"
#include "support/temp_dir.h"

using namespace scene;

namespace {

class SettingFormTest : public testing::Test {
 protected:
  SettingForm Find(const char* section, const char* name) {
    for (int i = 0; i < settings.GetFieldCount(); ++i) {
      const auto& field = *settings.GetFieldAt(i);
      if (field.GetSection() == static_cast<unsigned>(GetFOURCC(section)) &&
          field.GetNameId() == GetUniqueID(name))
        return FindSettingForm(field);
    }
    ADD_FAILURE() << section << "." << name;
    return {SettingKind::kOther};
  }
  const test_support::TempRoots roots;
  CommonInterfaces::SettingsData settings{1, FourCC("FLTR"), "filters.data"};
};

}  // namespace

TEST_F(SettingFormTest, BytesAreSwitchesButWhereTheNameSaysMore) {
  host_test::AddBytes(settings, "star", "Draw", 0, {1});
  host_test::AddBytes(settings, "star", "CatalogType", 2, {1, 1, 1, 1});
  host_test::AddBytes(settings, "grid", "Poles", 0, {31});
  host_test::AddBytes(settings, "cnst", "EnglishName", 0, {2});
  EXPECT_EQ(Find("star", "Draw").kind, SettingKind::kSwitch);
  EXPECT_EQ(Find("star", "Draw").title, 900021u);
  EXPECT_EQ(Find("star", "CatalogType").kind, SettingKind::kSwitch);
  EXPECT_EQ(Find("star", "CatalogType").title, std::nullopt);
  EXPECT_EQ(Find("grid", "Poles").kind, SettingKind::kSum);
  EXPECT_STREQ(Find("grid", "Poles").choices, "1,2,4,8,16");
  EXPECT_EQ(Find("cnst", "EnglishName").kind, SettingKind::kChoice);
}

TEST_F(SettingFormTest, FiltersAreRangesAndLists) {
  host_test::AddRange(settings, "gala", "VisMagnitude", -2.0f, 12.0f);
  host_test::AddBytes(settings, "gala", "Type", CommonInterfaces::kLabelListCondition, {0, 62, 63});
  AddFavourite(settings, FourCC("star"), 7);
  EXPECT_EQ(Find("gala", "VisMagnitude").kind, SettingKind::kRange);
  EXPECT_EQ(Find("gala", "Type").kind, SettingKind::kOther);
  EXPECT_EQ(Find("star", "Favourite7").kind, SettingKind::kOther);
}
