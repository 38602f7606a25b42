// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Expectations are worked out by hand; the numbers of the fields are their name ids.
#include "settings/settings_bytes.h"

namespace test_support {
namespace {

constexpr int kSatellite = static_cast<int>(kMoon);

class SettingsMerge : public SettingsTest {
 protected:
  // Reads an own block over defaults, both given by their sections and records.
  void Merge(const std::vector<std::string>& defaultSections, const std::vector<std::string>& defaults,
             const std::vector<std::string>& ownSections, const std::vector<std::string>& own) {
    WriteDefaults(Header(5) + Block(kOwner, kDefaults, defaultSections, defaults));
    settings = std::make_unique<SettingsData>(kId, kOwner, "filters.data");
    EXPECT_TRUE(settings->Read(WriteFile(Header(5) + Block(kOwner, kId, ownSections, own)).c_str()));
  }
  std::unique_ptr<SettingsData> settings;
};

TEST_F(SettingsMerge, DefaultsTakeOwnValuesOfTheSameSectionNameTypeAndCount) {
  Merge({Section(kPlnt, 0, 2), Section(kStar, 3, 3)},
        {Int(kPlnt, 1, 10), Int(kPlnt, 2, 20), Int(kPlnt, 3, 30), Int(kStar, 1, 40)}, {Section(kPlnt, 0, 1)},
        {Int(kPlnt, 3, 33, 0), Int(kPlnt, 1, 11), Int(kMoon, 2, 99), Int(kPlnt, 9, 99)});
  // The whole record is taken, compare status included; what the defaults do not know is dropped.
  EXPECT_EQ(RecordsOf(*settings),
            (std::vector{Int(kPlnt, 1, 11), Int(kPlnt, 2, 20), Int(kPlnt, 3, 33, 0), Int(kStar, 1, 40)}));
  EXPECT_EQ(SectionsOf(*settings), (std::vector{Section(kPlnt, 0, 2), Section(kStar, 3, 3)}));
}

TEST_F(SettingsMerge, OwnFieldOfAnotherTypeOrCountIsIgnored) {
  RecordParts floats = IntParts({99});
  floats.section = kPlnt;
  floats.nameId = 2;
  floats.type = 6;
  Merge({Section(kPlnt, 0, 1)}, {Int(kPlnt, 1, 10), Int(kPlnt, 2, 20)}, {},
        {Ints(kPlnt, 1, {98, 99}), floats.Current()});
  EXPECT_EQ(RecordsOf(*settings), (std::vector{Int(kPlnt, 1, 10), Int(kPlnt, 2, 20)}));
}

TEST_F(SettingsMerge, FirstOwnFieldOfANameCounts) {
  Merge({Section(kPlnt, 0, 1)}, {Int(kPlnt, 1, 10), Int(kPlnt, 2, 20)}, {},
        {Int(kPlnt, 1, 11), Int(kPlnt, 1, 12), Ints(kPlnt, 2, {21, 21}), Int(kPlnt, 2, 22)});
  EXPECT_EQ(RecordsOf(*settings), (std::vector{Int(kPlnt, 1, 11), Int(kPlnt, 2, 20)}));
}

TEST_F(SettingsMerge, SectionStatusesAreTakenByIdAndTheLastCounts) {
  Merge({Section(kPlnt, 0, 0, 1, kStar), Section(kMoon, 1, 1, 2), Section(kPlnt, 1, 1, 3)},
        {Int(kPlnt, 1, 10), Int(kMoon, 1, 10)},
        {Section(kPlnt, 0, 0, 7, kComt), Section(kStar, 0, 0, 8), Section(kPlnt, 5, 9, 6)}, {});
  EXPECT_EQ(SectionsOf(*settings),
            (std::vector{Section(kPlnt, 0, 0, 6, kStar), Section(kMoon, 1, 1, 2), Section(kPlnt, 1, 1, 6)}));
}

TEST_F(SettingsMerge, FavouritesAreInsertedAtTheStartOfTheirSectionAndMoveLaterOnes) {
  Merge({Section(kPlnt, 0, 0), Section(kAstr, 1, 1), Section(kComt, 2, 2), Section(kScft, 3, 3),
         Section(kStar, 4, 4)},
        {Int(kPlnt, 1, 0), Int(kAstr, 2, 0), Int(kComt, 3, 0), Int(kScft, 4, 0), Int(kStar, 5, 0)},
        {Section(kAstr, 0, 1, 9)},
        {Favo(kScft, 41, {1, 0, 0, 0, 0}, 1), Favo(kAstr, 21, {1, 0, 0, 0, 0}, 2),
         Favo(kAstr, 22, {1, 0, 0, 0, 0}, 3), Favo(kComt, 31, {1, 0, 0, 0, 0}, 4),
         Favo(kStar, 51, {1, 0, 0, 0, 0}, 5)});
  EXPECT_EQ(NamesOf(*settings), (std::vector{1, 21, 22, 2, 31, 3, 41, 4, 5}));
  EXPECT_EQ(SectionsOf(*settings),
            (std::vector{Section(kPlnt, 0, 0), Section(kAstr, 1, 3, 9), Section(kComt, 4, 5),
                         Section(kScft, 6, 7), Section(kStar, 8, 8)}));
  EXPECT_EQ(RecordsOf(*settings)[2], Favo(kAstr, 22, {1, 0, 0, 0, 0}, 3));
}

// Defaults and own fields alike are copied, the defaults first and with the own values that they have taken.
TEST_F(SettingsMerge, DefaultFavouritesAreCopiedTooDeliberately) {
  Merge({Section(kAstr, 0, 1)}, {Int(kAstr, 1, 0), Favo(kAstr, 2, {0, 0, 0, 0, 0}, 7)}, {},
        {Favo(kAstr, 3, {0, 0, 0, 0, 0}, 8), Favo(kAstr, 2, {1, 1, 0, 0, 0}, 7)});
  EXPECT_EQ(RecordsOf(*settings),
            (std::vector{Favo(kAstr, 2, {1, 1, 0, 0, 0}, 7), Favo(kAstr, 3, {0, 0, 0, 0, 0}, 8),
                         Favo(kAstr, 2, {1, 1, 0, 0, 0}, 7), Int(kAstr, 1, 0),
                         Favo(kAstr, 2, {1, 1, 0, 0, 0}, 7)}));
  EXPECT_EQ(SectionsOf(*settings), std::vector{Section(kAstr, 0, 4)});
}

// One default favourite: three of it after the first merge of a block that has it, two more after each save.
TEST_F(SettingsMerge, DefaultFavouriteGrowsByTwoWithEachSaveDeliberately) {
  const std::string favourite = Favo(kAstr, 2, {0, 0, 0, 0, 0}, 7);
  Merge({Section(kAstr, 0, 0)}, {favourite}, {}, {favourite});
  EXPECT_EQ(settings->GetFieldCount(), 3);
  const std::string saved = roots.dir.Path("saved.data");
  for (int count : {5, 7}) {
    ASSERT_TRUE(settings->Save(saved.c_str()));
    ASSERT_TRUE(settings->Read(saved.c_str()));
    EXPECT_EQ(RecordsOf(*settings), std::vector(static_cast<std::size_t>(count), favourite));
    EXPECT_EQ(SectionsOf(*settings), std::vector{Section(kAstr, 0, count - 1)});
  }
}

// For moons the kind in element 0 decides, and a favourite of that section is not copied.
TEST_F(SettingsMerge, MoonsAreFieldsWhoseFirstElementIsTheCode) {
  Merge({Section(kMoon, 0, 0), Section(kStar, 1, 1)}, {Int(kMoon, 1, 5), Int(kStar, 2, 0)}, {},
        {Ints(kMoon, 11, {kSatellite, 301}), Favo(kMoon, 12, {1, 0, 0, 0, 0}, 2),
         Ints(kMoon, 13, {static_cast<int>(kPlnt), 3}), Int(kMoon, 14, kSatellite)});
  EXPECT_EQ(NamesOf(*settings), (std::vector{11, 14, 1, 2}));
  EXPECT_EQ(SectionsOf(*settings), (std::vector{Section(kMoon, 0, 2), Section(kStar, 3, 3)}));
}

TEST_F(SettingsMerge, CodeWithoutASectionInsertsNothing) {
  Merge({Section(kPlnt, 0, 0)}, {Int(kPlnt, 1, 0)}, {}, {Favo(kAstr, 21, {1, 0, 0, 0, 0}, 2)});
  EXPECT_EQ(NamesOf(*settings), std::vector{1});
}

TEST_F(SettingsMerge, EmptyDefaultSectionTakesTheCopies) {
  Merge({Section(kAstr, 0, 0xFFFF), Section(kPlnt, 0, 0)}, {Int(kPlnt, 1, 0)}, {},
        {Favo(kAstr, 21, {1, 0, 0, 0, 0}, 2), Favo(kAstr, 22, {1, 0, 0, 0, 0}, 3)});
  EXPECT_EQ(NamesOf(*settings), (std::vector{21, 22, 1}));
  EXPECT_EQ(SectionsOf(*settings), (std::vector{Section(kAstr, 0, 1), Section(kPlnt, 2, 2)}));
}

// The copies stay behind the defaults, in the order of the block's sections; their section records go with
// it.
TEST_F(SettingsMerge, SectionThatOnlyTheOwnBlockHasLeavesItsCopiesBehindTheDefaults) {
  Merge({Section(kPlnt, 0, 0), Section(kScft, 1, 1)}, {Int(kPlnt, 1, 0), Int(kScft, 4, 0)},
        {Section(kAstr, 0, 0), Section(kComt, 1, 2)},
        {Favo(kAstr, 21, {1, 0, 0, 0, 0}, 1), Int(kComt, 32, 0), Favo(kComt, 31, {1, 0, 0, 0, 0}, 2),
         Favo(kScft, 41, {1, 0, 0, 0, 0}, 3)});
  EXPECT_EQ(NamesOf(*settings), (std::vector{1, 41, 4, 21, 31}));
  EXPECT_EQ(SectionsOf(*settings), (std::vector{Section(kPlnt, 0, 0), Section(kScft, 1, 2)}));
}

TEST_F(SettingsMerge, CopiesOfSectionsThatOnlyTheOwnBlockHasKeepItsOrder) {
  Merge({Section(kPlnt, 0, 0)}, {Int(kPlnt, 1, 0)},
        {Section(kAstr, 0, 0), Section(kComt, 1, 1), Section(kMoon, 2, 2), Section(kScft, 3, 4)},
        {Favo(kAstr, 21, {1, 0, 0, 0, 0}, 1), Favo(kComt, 31, {1, 0, 0, 0, 0}, 1),
         Ints(kMoon, 51, {kSatellite, 301}), Favo(kScft, 41, {1, 0, 0, 0, 0}, 1),
         Favo(kScft, 42, {1, 0, 0, 0, 0}, 2)});
  EXPECT_EQ(NamesOf(*settings), (std::vector{1, 21, 31, 51, 41, 42}));
  EXPECT_EQ(SectionsOf(*settings), std::vector{Section(kPlnt, 0, 0)});
}

// What is inserted into a section of the defaults moves the block as a whole, once.
TEST_F(SettingsMerge, CopiesIntoDefaultsDoNotMixThoseOfTheOwnBlocksSections) {
  Merge({Section(kAstr, 0, 0)}, {Int(kAstr, 2, 0)}, {Section(kScft, 0, 0), Section(kComt, 1, 2)},
        {Favo(kScft, 41, {1, 0, 0, 0, 0}, 1), Favo(kComt, 31, {1, 0, 0, 0, 0}, 1),
         Favo(kComt, 32, {1, 0, 0, 0, 0}, 2), Favo(kAstr, 21, {1, 0, 0, 0, 0}, 1),
         Favo(kAstr, 22, {1, 0, 0, 0, 0}, 2), Favo(kAstr, 23, {1, 0, 0, 0, 0}, 3)});
  EXPECT_EQ(NamesOf(*settings), (std::vector{21, 22, 23, 2, 41, 31, 32}));
  EXPECT_EQ(SectionsOf(*settings), std::vector{Section(kAstr, 0, 3)});
}

TEST_F(SettingsMerge, WithoutDefaultsOnlyTheCopiesStay) {
  SettingsData bare(kId, kOwner, "filters.data");
  EXPECT_TRUE(bare.Read(
      WriteFile(Header(5) + Block(kOwner, kId, {Section(kPlnt, 0, 0), Section(kAstr, 1, 2)},
                                  {Int(kPlnt, 1, 0), Int(kAstr, 2, 0), Favo(kAstr, 21, {1, 0, 0, 0, 0}, 1)}))
          .c_str()));
  EXPECT_EQ(RecordsOf(bare), std::vector{Favo(kAstr, 21, {1, 0, 0, 0, 0}, 1)});
  EXPECT_EQ(bare.GetSectionCount(), 0);
}

TEST_F(SettingsMerge, MergedContainerIsWrittenAndReadAgain) {
  Merge({Section(kPlnt, 0, 0), Section(kAstr, 1, 1)}, {Int(kPlnt, 1, 0), Int(kAstr, 2, 0)},
        {Section(kAstr, 0, 0, 3)}, {Int(kPlnt, 1, 7), Favo(kAstr, 21, {1, 0, 0, 0, 0}, 2)});
  const std::string saved = roots.dir.Path("saved.data");
  ASSERT_TRUE(settings->Write(saved.c_str()));
  SettingsData again(kId, kOwner, "filters.data");
  ASSERT_TRUE(again.Read(saved.c_str()));
  EXPECT_EQ(RecordsOf(again), RecordsOf(*settings));
  EXPECT_EQ(SectionsOf(again), SectionsOf(*settings));
}

// A sort or an index, not a search for every field: this takes milliseconds, and a square of it many seconds.
TEST_F(SettingsMerge, TwentyThousandFieldsAreMerged) {
  std::vector<std::string> defaults, own;
  for (int i = 0; i < 20000; ++i) {
    defaults.push_back(Int(kPlnt, i, i));
    own.push_back(Int(kPlnt, 19999 - i, -i));
  }
  Merge({Section(kPlnt, 0, 19999)}, defaults, {Section(kPlnt, 0, 19999, 4)}, own);
  ASSERT_EQ(settings->GetFieldCount(), 20000);
  for (int i = 0; i < 20000; ++i) ASSERT_EQ(FirstInt(*settings->GetFieldAt(i)), i - 19999);
  EXPECT_EQ(SectionsOf(*settings), std::vector{Section(kPlnt, 0, 19999, 4)});
}

TEST_F(SettingsMerge, CopiesPast65535FieldsAreNotInsertedAndSaidSo) {
  std::vector<std::string> defaults, own;
  for (int i = 0; i < 65534; ++i) defaults.push_back(Int(kAstr, i, i));
  own = {Favo(kAstr, 70001, {1, 0, 0, 0, 0}, 2), Favo(kAstr, 70002, {1, 0, 0, 0, 0}, 3)};
  Merge({Section(kAstr, 0, 65533)}, defaults, {}, own);
  EXPECT_EQ(settings->GetFieldCount(), 65534);
  EXPECT_EQ(SectionsOf(*settings), std::vector{Section(kAstr, 0, 65533)});
  EXPECT_EQ(debug.lines, std::vector<std::string>{"No room for 2 fields in section 61737472\n"});
}

}  // namespace
}  // namespace test_support
