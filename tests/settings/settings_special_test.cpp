// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

constexpr int kPlanet = static_cast<int>(kPlnt), kSatellite = static_cast<int>(kMoon),
              kAsteroid = static_cast<int>(kAstr), kComet = static_cast<int>(kComt);

class SettingsSpecial : public SettingsTest {
 protected:
  SettingsData settings{kId, kOwner, "filters.data"};
};

TEST_F(SettingsSpecial, FavouritesAreKeysWithFlags) {
  Create(settings, Favo(kAstr, 1, {3, 0, 0, 0, 0}, 100));
  Create(settings, Favo(kAstr, 2, {0, 1, 0, 9, 0}, -5));
  Create(settings, Favo(kAstr, 3, {64, 1, 1, 1, 1}, 7));
  Create(settings, Favo(kAstr, 4, {0, 0, 0, 0, 0}, 100));   // the key is there already
  Create(settings, Favo(kAstr, 5, {1, 0, 0, 0, 0}, 8, 0));  // switched off
  Create(settings, Int(kAstr, 6, 9));                       // not a favourite
  settings.SetSectionStatus(kAstr, 1);
  std::map<int, unsigned char> favourites{{1, 1}};
  EXPECT_TRUE(settings.GetFavoInfo(&favourites, kAsteroid));
  EXPECT_EQ(favourites, (std::map<int, unsigned char>{{100, 3}, {-5, 4 + 16}, {7, 64 + 4 + 8 + 16 + 32}}));
}

TEST_F(SettingsSpecial, FavouriteShorterThanItsKeyIsSkipped) {
  RecordParts parts = ByteParts({1, 0, 0, 0, 0, 5, 0, 0});
  parts.section = kAstr;
  parts.type = 8;
  Create(settings, parts.Current());
  parts.nameId = 78;
  parts.size = 9;  // a size that lies
  Create(settings, parts.Current());
  settings.SetSectionStatus(kAstr, 1);
  std::map<int, unsigned char> favourites;
  EXPECT_TRUE(settings.GetFavoInfo(&favourites, kAsteroid));
  EXPECT_TRUE(favourites.empty());
}

TEST_F(SettingsSpecial, FavouritesOfASectionThatIsOffOrMissingAreNone) {
  Create(settings, Favo(kAstr, 1, {3, 0, 0, 0, 0}, 100));
  std::map<int, unsigned char> favourites{{1, 1}};
  EXPECT_FALSE(settings.GetFavoInfo(&favourites, kAsteroid));
  EXPECT_TRUE(favourites.empty());
  favourites[1] = 1;
  EXPECT_FALSE(settings.GetFavoInfo(&favourites, kComet));
  EXPECT_TRUE(favourites.empty());
}

TEST_F(SettingsSpecial, FavouritesAreFoundByAlias) {
  Create(settings, Favo(kAstr, 1, {3, 0, 0, 0, 0}, 100));
  settings.SetSectionStatus(kAstr, 1);
  settings.SetSectionAlias(kAstr, kComt);
  std::map<int, unsigned char> favourites;
  EXPECT_TRUE(settings.GetFavoInfo(&favourites, kComet));
  EXPECT_EQ(favourites.size(), 1u);
}

TEST_F(SettingsSpecial, ObjectNumbersComeSorted) {
  Create(settings, Ints(kMoon, 1, {kSatellite, 501}));
  Create(settings, Ints(kMoon, 2, {kSatellite, 301}));
  Create(settings, Ints(kMoon, 3, {kPlanet, 4}));
  Create(settings, Ints(kMoon, 4, {kSatellite, 401}, 0));  // switched off
  Create(settings, Ints(kMoon, 5, {kSatellite}));          // no number
  Create(settings, Favo(kMoon, 6, {0, 0, 0, 0, 0}, 7));
  settings.SetSectionStatus(kMoon, 1);
  std::vector<int> ids{99};
  EXPECT_TRUE(settings.GetObjectInfo(ids, kSatellite, -1));
  EXPECT_EQ(ids, (std::vector{301, 501}));
  EXPECT_TRUE(settings.GetObjectInfo(ids, kSatellite, kPlanet));
  EXPECT_EQ(ids, std::vector{4});
  settings.SetSectionStatus(kMoon, 0);
  EXPECT_FALSE(settings.GetObjectInfo(ids, kSatellite, -1));
  EXPECT_TRUE(ids.empty());
}

// By alias the key is the code that was asked for, not the id of the section.
TEST_F(SettingsSpecial, ObjectsOfAnAliasHaveTheAliasAsKind) {
  Create(settings, Ints(kMoon, 1, {kSatellite, 501}));
  Create(settings, Ints(kMoon, 2, {kComet, 7}));
  settings.SetSectionStatus(kMoon, 1);
  settings.SetSectionAlias(kMoon, kComt);
  std::vector<int> ids;
  EXPECT_TRUE(settings.GetObjectInfo(ids, kComet, -1));
  EXPECT_EQ(ids, std::vector{7});
}

TEST_F(SettingsSpecial, IntegrationPlanetIsTheFirstWithItsFlagSet) {
  Create(settings, Ints(kPlnt, 1, {kPlanet, 1, 0, 0, 0, 0, 0, 0, 0}));
  Create(settings, Ints(kPlnt, 2, {kPlanet, 2, 0, 0, 0, 0, 0, 0, 1}, 0));  // switched off
  Create(settings, Ints(kPlnt, 3, {kPlanet, 3, 0, 0, 0, 0, 0, 0, 1, 0}));  // ten elements
  Create(settings, Ints(kPlnt, 4, {kPlanet, 4, 0, 0, 0, 0, 0, 0, 256}));
  Create(settings, Ints(kPlnt, 5, {kPlanet, 5, 0, 0, 0, 0, 0, 0, 1}));
  SSO_ID planet(1, 1);
  EXPECT_FALSE(settings.GetIntegrPlnt(&planet));  // the section is off
  EXPECT_TRUE(planet.IsEmpty());
  settings.SetSectionStatus(kPlnt, 1);
  EXPECT_TRUE(settings.GetIntegrPlnt(&planet));
  EXPECT_EQ(planet, SSO_ID(kPlanet, 4));
}

TEST_F(SettingsSpecial, IntegrationPlanetOfNoneIsEmpty) {
  SSO_ID planet(1, 1);
  EXPECT_FALSE(settings.GetIntegrPlnt(&planet));
  EXPECT_TRUE(planet.IsEmpty());
  Create(settings, Ints(kPlnt, 1, {kPlanet, 1, 0, 0, 0, 0, 0, 0, 0}));
  settings.SetSectionStatus(kPlnt, 1);
  planet = SSO_ID(1, 1);
  EXPECT_FALSE(settings.GetIntegrPlnt(&planet));
  EXPECT_TRUE(planet.IsEmpty());
}

TEST_F(SettingsSpecial, IntegrationFlagsAreCleared) {
  Create(settings, Ints(kPlnt, 1, {1, 2, 3, 4, 5, 6, 7, 8, -1}, 0));
  Create(settings, Ints(kPlnt, 2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));  // ten elements
  Create(settings, Favo(kAstr, 3, {1, 2, 3, 4, 5}, 0x01020304));
  Create(settings, Ints(kAstr, 4, {1, 2, 3, 4, -1, 6, 7, 8, 9}));  // the whole element, not a byte of it
  Create(settings, Ints(kScft, 5, {1, 2, 3, 4, 5, 6, 7, 8, 9}));
  settings.ClearIntegrFlag();  // without "comt"
  EXPECT_EQ(RecordsOf(settings),
            (std::vector{
                Ints(kPlnt, 1, {1, 2, 3, 4, 5, 6, 7, 8, 0}, 0),
                Ints(kPlnt, 2, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}), Favo(kAstr, 3, {1, 2, 3, 4, 0}, 0x01020304),
                Ints(kAstr, 4, {1, 2, 3, 4, 0, 6, 7, 8, 9}), Ints(kScft, 5, {1, 2, 3, 4, 5, 6, 7, 8, 9})}));
}

TEST_F(SettingsSpecial, NewAimIsSwitchedOnInItsSection) {
  Create(settings, Ints(kPlnt, 1, {kPlanet, 3, 5, 0, 0, 0, 0, 0}, 0));
  Create(settings, Ints(kPlnt, 2, {kPlanet, 4, 5, 0, 0, 0, 0, 0}, 0));
  Create(settings, Ints(kPlnt, 3, {kPlanet, 3, 5, 0, 0, 0, 0}, 0));  // seven elements
  Create(settings, Ints(kPlnt, 4, {kPlanet, 3, 5, 0, 0, 0, 0, 0, 9}, 7));
  for (int i = 0; i < 4; ++i) SettingFieldTestAccess::ClearModified(*settings.GetFieldAt(i));
  SSO_ID earth(kPlanet, 3);
  earth.third = 12;
  settings.SetAimObject(earth);
  EXPECT_EQ(RecordsOf(settings), (std::vector{Ints(kPlnt, 1, {kPlanet, 3, 0, 0, 0, 0, 0, 0}, 1),
                                              Ints(kPlnt, 2, {kPlanet, 4, 5, 0, 0, 0, 0, 0}, 0),
                                              Ints(kPlnt, 3, {kPlanet, 3, 5, 0, 0, 0, 0}, 0),
                                              Ints(kPlnt, 4, {kPlanet, 3, 0, 0, 0, 0, 0, 0, 9}, 1)}));
  EXPECT_TRUE(SettingFieldTestAccess::IsModified(*settings.GetFieldAt(0)));
  EXPECT_FALSE(SettingFieldTestAccess::IsModified(*settings.GetFieldAt(1)));
  EXPECT_EQ(settings.GetAimObject(), earth);
  EXPECT_EQ(settings.GetAimObject().third, 12);
}

TEST_F(SettingsSpecial, SameAimAgainChangesNothing) {
  Create(settings, Ints(kMoon, 1, {kSatellite, 301, 5, 0, 0, 0, 0, 0}, 0));
  settings.SetAimObject(SSO_ID(kSatellite, 301));
  settings.SetFieldStatus(kMoon, 1, 0);
  SSO_ID same(kSatellite, 301);
  same.third = 3;
  settings.SetAimObject(same);
  EXPECT_EQ(settings.GetFieldAt(0)->GetCompareStatus(), 0);
  EXPECT_EQ(settings.GetAimObject().third, 0);
}

TEST_F(SettingsSpecial, AimOfAnotherKindIsNoAim) {
  settings.SetAimObject(SSO_ID(kSatellite, 301));
  settings.SetAimObject(SSO_ID(kComet, 3));
  EXPECT_TRUE(settings.GetAimObject().IsEmpty());
}

}  // namespace
}  // namespace test_support
