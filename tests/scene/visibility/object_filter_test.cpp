// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/object_filter.h"

#include <gtest/gtest.h>

#include <limits>

#include "scene/filter_fields.h"
#include "scene/frame_helpers.h"
#include "scene/visibility/favourites.h"
#include "support/allocation_counter.h"

using namespace scene;
using host_test::AddBytes;
using host_test::AddFilter;
using host_test::AddRange;

namespace {

constexpr unsigned kStar = FourCC("star"), kGala = FourCC("gala");

float Code(double magnitude) { return static_cast<float>((magnitude + 2.0) * 10.0); }

}  // namespace

class ObjectFilterTest : public testing::Test {
 protected:
  bool Passes(const char* section, const ObjectTraits& traits) {
    filters.Refresh(settings);
    return filters.Get(GetFOURCC(section)).Passes(traits);
  }
  static ObjectTraits Magnitude(double magnitude) {
    ObjectTraits traits;
    traits.code = Code(magnitude);
    return traits;
  }

  test_support::DebugCapture diagnostics;
  test_support::TempRoots roots;
  CommonInterfaces::SettingsData settings{1, FourCC("FLTR"), "filters.data"};
  ObjectFilters filters;
};

TEST_F(ObjectFilterTest, WithoutFiltersEverythingPasses) {
  EXPECT_TRUE(Passes("star", Magnitude(30.0)));
  EXPECT_TRUE(filters.Get(FourCC("star")).IsEmpty());
  EXPECT_TRUE(ObjectFilters::None().Get(FourCC("gala")).Passes(Magnitude(5.0)));
  EXPECT_TRUE(filters.Get(FourCC("plnt")).IsEmpty());
}

TEST_F(ObjectFilterTest, RangeIncludesBothEnds) {
  AddRange(settings, "star", "VisMagnitude", 1.7f, 6.7f);
  const auto exact = [](float magnitude) { return Magnitude(static_cast<double>(magnitude)); };
  EXPECT_TRUE(Passes("star", exact(1.7f)));
  EXPECT_TRUE(Passes("star", exact(6.7f)));
  EXPECT_FALSE(Passes("star", exact(1.69f)));
  EXPECT_FALSE(Passes("star", exact(6.71f)));
  EXPECT_TRUE(Passes("gala", exact(9.0f))) << "the filters of one section say nothing about another";
}

TEST_F(ObjectFilterTest, RangeOfAnyNumericTypeIsUnderstood) {
  AddFilter<short>(settings, "star", "VisMagnitude", CommonInterfaces::kFieldInt16, 1, {-1, 3});
  EXPECT_TRUE(Passes("star", Magnitude(3.0)));
  EXPECT_FALSE(Passes("star", Magnitude(3.1)));
  EXPECT_FALSE(Passes("star", Magnitude(-1.4)));
}

TEST_F(ObjectFilterTest, UnknownQuantityFailsARange) {
  AddRange(settings, "star", "ColorIndexBV", -1.0f, 3.0f);
  ObjectTraits traits;
  traits.colour = 0.5f;
  EXPECT_TRUE(Passes("star", traits));
  traits.colour = std::numeric_limits<float>::quiet_NaN();
  EXPECT_FALSE(Passes("star", traits));
}

TEST_F(ObjectFilterTest, CatalogueSwitchesLetPassWhatOneOfThemLists) {
  AddBytes(settings, "gala", "CatalogType", 2, {0, 0, 1, 1});
  ObjectTraits traits;
  traits.catalogs = kInMessier | kInNgc;
  EXPECT_FALSE(Passes("gala", traits));
  traits.catalogs = kInMessier | kInIc;
  EXPECT_TRUE(Passes("gala", traits));
  traits.catalogs = kInNoCatalog;
  EXPECT_TRUE(Passes("gala", traits));
}

TEST_F(ObjectFilterTest, LabelListComparesTheValuePickedByElement0) {
  // Element 0 is 2, so the class is element 3: G, code 4.
  AddBytes(settings, "star", "SpectrType", 0x4000, {2, 0, 2, 4, 6});
  ObjectTraits traits;
  traits.cls = 4;
  EXPECT_TRUE(Passes("star", traits));
  traits.cls = 2;
  EXPECT_FALSE(Passes("star", traits));
  traits.cls = ObjectTraits::kNoClass;
  EXPECT_FALSE(Passes("star", traits));
}

TEST_F(ObjectFilterTest, SelectorPastTheEndOfALabelListFiltersNothing) {
  AddBytes(settings, "star", "SpectrType", 0x4000, {4, 0, 2, 4, 6});
  ObjectTraits traits;
  traits.cls = 1;
  EXPECT_TRUE(Passes("star", traits));
}

TEST_F(ObjectFilterTest, UndefinedOnLetsUnknownClassesPassTheOtherFilter) {
  AddBytes(settings, "star", "SpectrType", 0x4000, {0, 1});
  AddBytes(settings, "star", "SpectrTypeUndef", 3, {1});
  ObjectTraits traits;
  EXPECT_TRUE(Passes("star", traits));
  traits.cls = 2;
  EXPECT_FALSE(Passes("star", traits));
  traits.cls = 1;
  EXPECT_TRUE(Passes("star", traits));
}

TEST_F(ObjectFilterTest, UndefinedOffRejectsUnknownClassesAlone) {
  AddBytes(settings, "star", "SpectrTypeUndef", 3, {0});
  ObjectTraits traits;
  EXPECT_FALSE(Passes("star", traits));
  traits.cls = 2;
  EXPECT_TRUE(Passes("star", traits));
}

TEST_F(ObjectFilterTest, UnknownLuminosityIsRejectedOnlyWhereTheFieldSaysSo) {
  AddBytes(settings, "star", "LuminosityUndef", 3, {0});
  ObjectTraits traits;
  traits.cls = 2;
  EXPECT_FALSE(Passes("star", traits));
  traits.luminosity = 5;
  EXPECT_TRUE(Passes("star", traits));
}

TEST_F(ObjectFilterTest, ObjectMustPassEveryFilterOfItsSection) {
  AddRange(settings, "star", "VisMagnitude", 0.0f, 3.0f);
  AddBytes(settings, "star", "SpectrType", 0x4000, {0, 1});
  ObjectTraits traits = Magnitude(2.0);
  traits.cls = 1;
  EXPECT_TRUE(Passes("star", traits));
  traits.cls = 2;
  EXPECT_FALSE(Passes("star", traits));
  traits = Magnitude(4.0);
  traits.cls = 1;
  EXPECT_FALSE(Passes("star", traits));
}

TEST_F(ObjectFilterTest, FavouritesAreTheOnlyOnesShown) {
  for (const int number : {2491, 7, 1713}) AddFavourite(settings, FourCC("star"), number);
  ObjectTraits traits;
  for (const int number : {2491, 7, 1713}) {
    traits.number = number;
    EXPECT_TRUE(Passes("star", traits)) << number;
  }
  traits.number = 8;
  EXPECT_FALSE(Passes("star", traits));
}

TEST_F(ObjectFilterTest, FavouriteSwitchedOffIsNone) {
  AddFavourite(settings, FourCC("star"), 7);
  AddFavourite(settings, FourCC("star"), 8);
  settings.SetFieldStatus(kStar, GetUniqueID("Favourite7"), 0);
  ObjectTraits traits;
  traits.number = 7;
  EXPECT_FALSE(Passes("star", traits));
  AddFavourite(settings, FourCC("star"), 7);
  EXPECT_TRUE(Passes("star", traits)) << "added again it is switched on again";
}

TEST_F(ObjectFilterTest, FavouriteIsAFieldThatTheContainerKnows) {
  AddFavourite(settings, FourCC("gala"), -5);
  std::map<int, unsigned char> favourites;
  ASSERT_TRUE(settings.GetFavoInfo(&favourites, FourCC("gala")));
  EXPECT_EQ(favourites, (std::map<int, unsigned char>{{-5, 0}}));
}

TEST_F(ObjectFilterTest, FieldThatIsSwitchedOffDoesNotFilter) {
  AddRange(settings, "gala", "VisMagnitude", 0.0f, 1.0f);
  settings.SetFieldStatus(kGala, GetUniqueID("VisMagnitude"), 0);
  EXPECT_TRUE(Passes("gala", Magnitude(9.0)));
}

TEST_F(ObjectFilterTest, PlainSettingOfCondition0IsNoFilterAndNoComplaint) {
  AddBytes(settings, "star", "Draw", 0, {1});
  EXPECT_TRUE(Passes("star", Magnitude(9.0)));
  EXPECT_TRUE(diagnostics.lines.empty());
}

TEST_F(ObjectFilterTest, FilterThatCannotBeAppliedIsNamedOnceAndLetsPass) {
  const auto complaint = [this](const char* name) {
    EXPECT_TRUE(Passes("star", Magnitude(9.0))) << name;
    EXPECT_EQ(diagnostics.lines.size(), 1u) << name;
    EXPECT_NE(diagnostics.lines.back().find(name), std::string::npos) << diagnostics.lines.back();
    settings.DeleteField(name, FourCC("star"));
    settings.SetSectionChanged(kStar, true);
    diagnostics.lines.clear();
  };
  AddFilter<float>(settings, "star", "VisMagnitude", CommonInterfaces::kFieldFloat, 1, {1.0f});
  complaint("VisMagnitude");
  AddRange(settings, "star", "VisMagnitude", std::numeric_limits<float>::quiet_NaN(), 1.0f);
  complaint("VisMagnitude");
  AddFilter<double>(settings, "star", "SpectrType", CommonInterfaces::kFieldDouble, 0x4000, {1e300, 1.0});
  complaint("SpectrType");
  AddRange(settings, "star", "Brightness", 0.0f, 1.0f);
  complaint("Brightness");
  AddBytes(settings, "star", "CatalogType", 77, {0});
  complaint("CatalogType");
}

TEST_F(ObjectFilterTest, BoundsBeyondAFloatBoundNothing) {
  AddFilter<double>(settings, "star", "VisMagnitude", CommonInterfaces::kFieldDouble, 1, {-1e300, 1e300});
  EXPECT_TRUE(Passes("star", Magnitude(23.0)));
}

TEST_F(ObjectFilterTest, OnlyAChangedSectionIsCompiledAgain) {
  AddRange(settings, "star", "VisMagnitude", 0.0f, 3.0f);
  filters.Refresh(settings);
  EXPECT_FALSE(settings.IsSectionChanged(kStar));
  const unsigned long long before = host_test::GetAllocationCount();
  filters.Refresh(settings);
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  const float most = 5.0f;
  settings.SetFieldElement(kStar, GetUniqueID("VisMagnitude"), &most, 1);
  EXPECT_TRUE(Passes("star", Magnitude(4.0)));
}

TEST_F(ObjectFilterTest, SectionThatIsOffIsCompiledOnceItIsOn) {
  AddRange(settings, "star", "VisMagnitude", 0.0f, 3.0f);
  settings.SetSectionStatus(kStar, 0);
  EXPECT_TRUE(Passes("star", Magnitude(4.0)));
  settings.SetSectionStatus(kStar, 1);
  EXPECT_FALSE(Passes("star", Magnitude(4.0)));
}

TEST_F(ObjectFilterTest, RulesThatAnObjectFailsAreTold) {
  AddRange(settings, "star", "VisMagnitude", 0.0f, 3.0f);
  AddBytes(settings, "star", "SpectrType", 0x4000, {0, 1});
  filters.Refresh(settings);
  ObjectTraits traits = Magnitude(3.5);
  traits.cls = 1;
  const ObjectFilter& filter = filters.Get(FourCC("star"));
  ASSERT_EQ(filter.GetRules().size(), 2u);
  for (const auto& rule : filter.GetRules()) {
    EXPECT_EQ(filter.Passes(rule, traits), rule.quantity == Quantity::kClass);
  }
}

TEST(ObjectFilterFrame, FrameDrawsOnlyWhatPassesAndAllocatesNothingForIt) {
  host_test::FrameFixture f;
  CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), "filters.data");
  AddRange(settings, "star", "VisMagnitude", -2.0f, 0.3f);
  ObjectFilters filters;
  filters.Refresh(settings);
  f.Compute();
  const std::size_t all = f.frame.GetStars().size();
  const unsigned long long before = host_test::GetAllocationCount();
  filters.Refresh(settings);
  f.frame.Compute(f.camera, f.observer, f.shown, filters);
  EXPECT_EQ(host_test::GetAllocationCount(), before);
  EXPECT_LT(f.frame.GetStars().size(), all);
  ASSERT_FALSE(f.frame.GetStars().empty());
  for (const auto& drawn : f.frame.GetStars())
    EXPECT_LE(f.catalogs.stars.GetCode(drawn.star), Code(0.3) + 1e-4f);
  // Betelgeuse has 0.50, Rigel 0.12 (Bright Star Catalogue).
  EXPECT_EQ(f.Find(2061), nullptr);
  EXPECT_NE(f.Find(1713), nullptr);
}

TEST(ObjectFilterFrame, ConstellationThatIsNoFavouriteLosesNameAndFigure) {
  host_test::FrameFixture f;
  CommonInterfaces::SettingsData settings(1, FourCC("FLTR"), "filters.data");
  f.Compute();
  ASSERT_FALSE(f.frame.GetParts().figures.GetLines().empty());
  ObjectFilters filters;
  AddFavourite(settings, FourCC("cnst"), GetUniqueID("Ori"));
  filters.Refresh(settings);
  f.frame.Compute(f.camera, f.observer, f.shown, filters);
  EXPECT_FALSE(f.frame.GetParts().figures.GetLines().empty());
  settings.SetFieldStatus(FourCC("cnst"),
                          GetUniqueID(("Favourite" + std::to_string(GetUniqueID("Ori"))).c_str()), 0);
  AddFavourite(settings, FourCC("cnst"), GetUniqueID("Lyr"));
  filters.Refresh(settings);
  f.frame.Compute(f.camera, f.observer, f.shown, filters);
  EXPECT_TRUE(f.frame.GetParts().figures.GetLines().empty());
  EXPECT_FALSE(f.HasLabel("Orion"));
}
