// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The settings container while memory runs out.
#include <memory>

#include "common_interfaces/queries.h"
#include "memory/every_allocation.h"
#include "memory/settings_state.h"
#include "support/temp_dir.h"

namespace test_support {
namespace {

using namespace memory_tests;

// Defaults with two sections, a file with an own block that has favourites, and corrections.
class SettingsMemory : public testing::Test {
 protected:
  void SetUp() override {
    const std::string defaults =
        Header(3) +
        Block(kOwner, kDefaults, {Section(kPlnt, 0, 2), Section(kAstr, 3, 4), Section(kMoon, 5, 5, 0, kStar)},
              {Int(kPlnt, 1, 10), Int(kPlnt, 2, 20), Ints(kPlnt, 3, {int(kPlnt), 5, 1, 0, 0, 0, 0, 0, 1}),
               Favo(kAstr, 4, {1, 0, 1, 0, 0}, 433, 1, kAstr), Int(kAstr, 5, 50), Int(kMoon, 6, 60)});
    m_Roots.dir.Write("data/filters.data", defaults);
    m_Roots.dir.Write("work/named.data", OwnBlock());
  }

  static std::string OwnBlock() {
    return Header(0) + Block(kOwner, 7, {Section(kStar, 0, 0)}, {Int(kStar, 1, 20)}) +
           Block(kOwner, kId, {Section(kPlnt, 0, 1), Section(kAstr, 2, 3)},
                 {Int(kPlnt, 1, 11), Int(kPlnt, 2, 21), Favo(kAstr, 40, {1, 1, 0, 0, 0}, 4, 1, kAstr),
                  Favo(kAstr, 41, {0, 1, 0, 0, 0}, 7, 1, kAstr)}) +
           Block(kOwner, 8, {}, {});
  }

  static std::unique_ptr<SettingsData> Make() {
    return std::make_unique<SettingsData>(kId, kOwner, "filters.data");
  }
  static std::unique_ptr<SettingsData> MakeJustRead() {
    auto settings = Make();
    EXPECT_TRUE(settings->Read(nullptr));
    return settings;
  }
  static std::unique_ptr<SettingsData> MakeRead() {
    auto settings = MakeJustRead();
    settings->SetCurSection(kPlnt);
    return settings;
  }
  // One that has no index yet and holds fields that were added one by one.
  static std::unique_ptr<SettingsData> MakeFilled() {
    auto settings = Make();
    for (int i = 0; i < 40; ++i) Create(*settings, Int(i % 2 ? kPlnt : kStar, i, i));
    return settings;
  }
  template <class Prepare, class Call>
  static void FailEach(Prepare prepare, Call call, Leaves leaves = Leaves::kAsItWas) {
    FailEveryAllocation(
        prepare, call, [](SettingsData& settings) { return StateOf(settings); }, leaves);
  }

  TempRoots m_Roots;
};

TEST_F(SettingsMemory, IsMade) {
  struct Place {
    std::unique_ptr<SettingsData> settings;
  };
  FailEveryAllocation([] { return std::make_unique<Place>(); }, [](Place& place) { place.settings = Make(); },
                      [](Place& place) { return place.settings ? StateOf(*place.settings) : std::string(); });
}

TEST_F(SettingsMemory, DefaultsAreRead) {
  FailEach(Make, [](SettingsData& settings) { settings.Read(nullptr); });
}

TEST_F(SettingsMemory, DefaultsAreReadAgain) {
  const auto prepare = [] {
    auto settings = MakeRead();
    settings->SetFieldElement(kPlnt, 1, "abcd", 0);
    settings->DeleteField("b", kStar);
    return settings;
  };
  FailEach(prepare, [](SettingsData& settings) { settings.Read(nullptr); });
}

TEST_F(SettingsMemory, OwnBlockIsMerged) {
  FailEach(MakeRead, [](SettingsData& settings) { settings.Read("named.data"); });
}

TEST_F(SettingsMemory, DamagedFileIsRead) {
  m_Roots.dir.Write("work/named.data", OwnBlock().substr(0, 200));
  FailEach(MakeRead, [](SettingsData& settings) { settings.Read("named.data"); });
}

TEST_F(SettingsMemory, BlockIsRestored) {
  FailEach(MakeRead, [](SettingsData& settings) { settings.Restore("named.data"); });
}

TEST_F(SettingsMemory, FieldOfANewSectionIsCreated) {
  FailEach(MakeRead, [](SettingsData& settings) { Create(settings, Int(kScft, 9, 9)); });
}

TEST_F(SettingsMemory, FieldOfASectionIsCreated) {
  FailEach(MakeRead, [](SettingsData& settings) { Create(settings, Int(kPlnt, 9, 9)); });
}

// So many that those that wait are put in their places.
TEST_F(SettingsMemory, ManyFieldsAreCreated) {
  const auto create = [](SettingsData& settings) {
    for (int i = 100; i < 500; ++i)
      if (settings.GetFieldCount() < i - 94) Create(settings, Int(kPlnt, i, i));
  };
  FailEach(MakeRead, create, Leaves::kValid);
}

TEST_F(SettingsMemory, FieldIsDeleted) {
  const auto name = "abcd";
  const auto prepare = [name] {
    auto settings = MakeRead();
    Create(*settings, Int(kPlnt, ::GetUniqueID(name), 9));
    return settings;
  };
  FailEach(prepare, [name](SettingsData& settings) { settings.DeleteField(name, kPlnt); });
}

TEST_F(SettingsMemory, FieldIsSet) {
  const auto set = [](SettingsData& settings) {
    const int value = 77;
    settings.SetFieldElement(kPlnt, 1, &value, 0);
  };
  FailEach(MakeFilled, set);
}

TEST_F(SettingsMemory, FieldsAreFound) {
  const auto find = [](SettingsData& settings) {
    int value = 0;
    settings.SetCurSection(kPlnt);
    EXPECT_TRUE(settings.GetField(1, &value));
    EXPECT_TRUE(settings.GetField(2, &value));  // of the other section
  };
  FailEach(MakeFilled, find, Leaves::kValid);
}

TEST_F(SettingsMemory, FieldsOfOverlappingSectionsAreFound) {
  m_Roots.dir.Write("data/filters.data",
                    Header(3) + Block(kOwner, kDefaults, {Section(kPlnt, 0, 2), Section(kStar, 1, 2)},
                                      {Int(kPlnt, 1, 10), Int(kPlnt, 2, 20), Int(kStar, 3, 30)}));
  FailEach(
      MakeRead, [](SettingsData& settings) { settings.GetAtField(kPlnt, 1, false); }, Leaves::kNothing);
}

TEST_F(SettingsMemory, SectionIsMarked) {
  FailEach(MakeFilled, [](SettingsData& settings) { settings.SetSectionChanged(kPlnt, false); });
}

TEST_F(SettingsMemory, ContainerIsAssigned) {
  const auto prepare = [] {
    auto settings = MakeRead();
    settings->GetAtField(kPlnt, 1, false);
    return settings;
  };
  const std::unique_ptr<SettingsData> other = MakeFilled();
  FailEach(prepare, [&](SettingsData& settings) { settings = *other; });
}

TEST_F(SettingsMemory, AimIsSet) {
  const auto aim = [](SettingsData& settings) { settings.SetAimObject({int(kPlnt), 5}); };
  FailEach(MakeJustRead, aim);
}

TEST_F(SettingsMemory, QueriesAreMade) {
  const auto query = [](SettingsData& settings) {
    settings.SetAimObject({int(kPlnt), 5});
    for (const unsigned section : {kPlnt, kAstr}) {
      using List = CommonInterfaces::TBaseList<CommonInterfaces::BaseQuery*>;
      const std::unique_ptr<CommonInterfaces::BaseList> list(settings.CreateQueryList(int(section), true));
      auto* const queries = static_cast<List*>(list.get());
      ASSERT_FALSE(queries->empty());
      if (CommonInterfaces::IsIdentifierQuery(*queries->back())) delete queries->back();
    }
  };
  FailEach(MakeRead, query, Leaves::kValid);
}

TEST_F(SettingsMemory, FavouritesAndObjectsAreListed) {
  const auto list = [](SettingsData& settings) {
    std::map<int, unsigned char> favourites;
    std::vector<int> objects;
    EXPECT_TRUE(settings.GetFavoInfo(&favourites, int(kAstr)));
    EXPECT_TRUE(settings.GetObjectInfo(objects, int(kPlnt), -1));
    EXPECT_EQ(favourites.size() + objects.size(), 2u);
  };
  FailEach(MakeJustRead, list, Leaves::kNothing);
}

TEST_F(SettingsMemory, SectionIsGivenAnAlias) {
  FailEach(MakeJustRead, [](SettingsData& settings) { settings.SetSectionAlias(kPlnt, kScft); });
}

// The file belongs to what is to be as it was.
template <class Prepare, class Call>
void FailEachThatWrites(const TempRoots& roots, Prepare prepare, Call call) {
  const std::string earlier = roots.dir.Read("work/named.data");
  const auto prepareFile = [&] {
    roots.dir.Write("work/named.data", earlier);
    std::filesystem::remove(roots.dir.Path("work/filters.data"));
    return prepare();
  };
  FailEveryAllocation(prepareFile, call, [&](SettingsData& settings) {
    return roots.dir.Read("work/named.data") + roots.dir.Read("work/filters.data") + StateOf(settings);
  });
}

TEST_F(SettingsMemory, ContainerIsSaved) {
  const auto prepare = [] {
    auto settings = MakeRead();
    EXPECT_TRUE(settings->Read("named.data"));
    return settings;
  };
  FailEachThatWrites(m_Roots, prepare, [](SettingsData& settings) { settings.Save("named.data"); });
}

TEST_F(SettingsMemory, ContainerIsSavedOverTheDefaults) {
  FailEachThatWrites(m_Roots, MakeRead, [](SettingsData& settings) { settings.Save("filters.data"); });
}

TEST_F(SettingsMemory, BlockIsAppended) {
  FailEachThatWrites(m_Roots, MakeRead, [](SettingsData& settings) { settings.Write("named.data"); });
}

TEST_F(SettingsMemory, BlockOfANewFileIsAppended) {
  FailEachThatWrites(m_Roots, MakeFilled, [](SettingsData& settings) { settings.Write("filters.data"); });
}

TEST_F(SettingsMemory, FilesAreAskedForBlocks) {
  FailEach(
      MakeRead,
      [](SettingsData& settings) {
        EXPECT_TRUE(SettingsData::HoldsBlock("named.data", kOwner, kId));
        EXPECT_EQ(settings.GetNumberParts("named.data", kOwner), 3u);
      },
      Leaves::kNothing);
}

// All fields have been looked through before, so that each new one is noted where it was done.
TEST_F(SettingsMemory, ManyFieldsAreCreatedAfterALookAtAllOfThem) {
  const auto prepare = [] {
    auto settings = MakeRead();
    int value = 0;
    EXPECT_TRUE(settings->GetField(6, &value)) << "in a section that is not current";
    return settings;
  };
  const auto create = [](SettingsData& settings) {
    for (int i = 100; i < 120; ++i) {
      Create(settings, Int(kPlnt, i, i), true);
    }
    int value = 0;
    for (int i = 100; i < 120; ++i) EXPECT_TRUE(settings.GetField(i, &value) && value == i);
  };
  FailEach(prepare, create, Leaves::kValid);
}

}  // namespace
}  // namespace test_support
