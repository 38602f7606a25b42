// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/own_settings.h"

#include <gtest/gtest.h>

#include "common_interfaces/settings_field.h"
#include "scene/filter_fields.h"
#include "scene/visibility/favourites.h"
#include "skyview/session/diagnostics.h"
#include "skyview/small_sky.h"

using namespace scene;
using namespace skyview;
using CommonInterfaces::SettingsData;

namespace {

constexpr unsigned kStar = FourCC("star");

bool Contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace

// Defaults with filters that are switched off.
class OwnSettingsTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_EQ(Load(std::nullopt).failure, Failure::kNone); }

  ViewResult Load(const std::optional<std::string>& file) { return LoadSettings(file, settings); }
  ViewResult Set(const std::string& text) { return ChangeSetting(text, settings); }
  template <class T>
  T Get(const char* name, int index, unsigned section = kStar) {
    T value{};
    settings.SetCurSection(section);
    settings.GetFieldElement(GetUniqueID(name), &value, index);
    return value;
  }
  int Status(const char* name) {
    settings.SetCurSection(kStar);
    return settings.GetFieldStatus(GetUniqueID(name));
  }

  test_support::TempDir dir;
  Diagnostics diagnostics;

 private:
  // The container resolves the name of its file when it is made.
  std::string WriteDefaults() {
    const std::string path = dir.Path("filters.data");
    SettingsData defaults(SettingsData::kDefaultsTag, FourCC("FLTR"), path.c_str());
    host_test::AddBytes(defaults, "star", "Draw", 0, {1});
    host_test::AddRange(defaults, "star", "VisMagnitude", -2.0f, 6.0f);
    host_test::AddBytes(defaults, "star", "SpectrType", 0x4000, {0, 0, 1, 2});
    host_test::AddFilter<short>(defaults, "star", "StarZoomDependLabel", CommonInterfaces::kFieldInt16, 0,
                                {-15});
    host_test::AddFilter<double>(defaults, "gala", "LargestDimension", CommonInterfaces::kFieldDouble, 1,
                                 {0.0, 1.0});
    for (const char* name : {"Draw", "VisMagnitude", "SpectrType", "StarZoomDependLabel"}) {
      defaults.SetFieldStatus(kStar, GetUniqueID(name), 0);
    }
    defaults.Write(path.c_str());
    return path;
  }

 protected:
  SettingsData settings{1, FourCC("FLTR"), WriteDefaults().c_str()};
};

TEST_F(OwnSettingsTest, ValuesAreTakenAsTheFieldKeepsThem) {
  EXPECT_EQ(Set("star.VisMagnitude=-1.5,3").failure, Failure::kNone);
  EXPECT_EQ(Get<float>("VisMagnitude", 0), -1.5f);
  EXPECT_EQ(Get<float>("VisMagnitude", 1), 3.0f);
  EXPECT_EQ(Set("star.StarZoomDependLabel=-40").failure, Failure::kNone);
  EXPECT_EQ(Get<short>("StarZoomDependLabel", 0), -40);
  EXPECT_TRUE(diagnostics.lines.empty());
}

TEST_F(OwnSettingsTest, DegreesBecomeRadians) {
  EXPECT_EQ(Set("gala.LargestDimension=0.5deg,180deg").failure, Failure::kNone);
  EXPECT_NEAR(Get<double>("LargestDimension", 0, FourCC("gala")), 0.00872664625997, 1e-13);
  EXPECT_NEAR(Get<double>("LargestDimension", 1, FourCC("gala")), 3.14159265358979, 1e-13);
}

TEST_F(OwnSettingsTest, OneElementOfAListIsChanged) {
  EXPECT_EQ(Set("star.SpectrType[0]=2:on").failure, Failure::kNone);
  EXPECT_EQ(Get<unsigned char>("SpectrType", 0), 2);
  EXPECT_EQ(Get<unsigned char>("SpectrType", 3), 2);
  EXPECT_EQ(Status("SpectrType"), 1);
}

TEST_F(OwnSettingsTest, FilterAndSectionAreSwitched) {
  EXPECT_EQ(Set("star.VisMagnitude:on").failure, Failure::kNone);
  EXPECT_EQ(Status("VisMagnitude"), 1);
  EXPECT_EQ(Set("star.VisMagnitude:off").failure, Failure::kNone);
  EXPECT_EQ(Status("VisMagnitude"), 0);
  EXPECT_EQ(Set("star:off").failure, Failure::kNone);
  EXPECT_EQ(settings.GetSectionStatus(kStar, false), 0);
  EXPECT_EQ(Set("star:on").failure, Failure::kNone);
  EXPECT_EQ(settings.GetSectionStatus(kStar, false), 1);
}

TEST_F(OwnSettingsTest, ChangeMarksTheSectionForWhoeverFollowsIt) {
  settings.SetSectionChanged(kStar, false);
  Set("star.VisMagnitude=0,1");
  EXPECT_TRUE(settings.IsSectionChanged(kStar));
}

TEST_F(OwnSettingsTest, EachBadChangeIsABadOptionThatNamesTextAndForm) {
  const struct {
    const char *text, *names;
  } cases[] = {{"stra.Draw=1", "star"},
               {"nosuchsection:on", "one of star, gala"},
               {"star.Drew=1", "Draw"},
               {"star.VisMag=1,2", "VisMagnitude"},
               {"star.VisMagnitude=1", "2 values"},
               {"star.VisMagnitude=1,2,3", "2 values"},
               {"star.VisMagnitude=1,bright", "'bright'"},
               {"star.VisMagnitude=1,1e39", "'1e39'"},
               {"star.VisMagnitude=1,nan", "'nan'"},
               {"star.Draw=256", "from 0 to 255"},
               {"star.Draw=-1", "from 0 to 255"},
               {"star.Draw=1.5", "whole number"},
               {"star.StarZoomDependLabel=32768", "from -32768 to 32767"},
               {"star.Draw:on", "no filter"},
               {"star.SpectrType[4]=1", "4 values"},
               {"star.SpectrType[x]=1", "SECTION.FIELD"},
               {"star.SpectrType[0]:on", "SECTION.FIELD"},
               {"star", "SECTION:on|off"},
               {"star=1", "SECTION.FIELD"},
               {"star.Draw", "SECTION.FIELD"},
               {"star.Draw=", "SECTION.FIELD"},
               {"star.Draw=1,", "SECTION.FIELD"},
               {".Draw=1", "SECTION.FIELD"},
               {"star.=1", "SECTION.FIELD"},
               {"", "SECTION.FIELD"}};
  for (const auto& c : cases) {
    const ViewResult result = Set(c.text);
    EXPECT_EQ(result.failure, Failure::kBadOption) << c.text;
    EXPECT_TRUE(Contains(result.message, std::string("--set '") + c.text + "'")) << result.message;
    EXPECT_TRUE(Contains(result.message, c.names)) << result.message;
    EXPECT_FALSE(Contains(result.message, "\n"));
  }
  EXPECT_EQ(Get<float>("VisMagnitude", 0), -2.0f) << "nothing was changed";
  EXPECT_TRUE(diagnostics.lines.empty());
}

TEST_F(OwnSettingsTest, FieldWithoutAKnownNameIsNamedByItsId) {
  host_test::AddBytes(settings, "star", "nobody knows it", 0, {3});
  char text[40];
  std::snprintf(text, sizeof text, "star.@%08X=9", static_cast<unsigned>(GetUniqueID("nobody knows it")));
  EXPECT_EQ(Set(text).failure, Failure::kNone);
  EXPECT_EQ(Get<unsigned char>("nobody knows it", 0), 9);
}

TEST_F(OwnSettingsTest, SavedSettingsComeBack) {
  const std::string file = dir.Path("my.data");
  std::string error;
  Set("star.VisMagnitude=0,2.5:on");
  Set("gala:off");
  ASSERT_TRUE(SaveSettings(settings, file, error)) << error;
  ASSERT_EQ(Load(std::nullopt).failure, Failure::kNone);
  EXPECT_EQ(Get<float>("VisMagnitude", 1), 6.0f);
  ASSERT_EQ(Load(file).failure, Failure::kNone);
  EXPECT_EQ(Get<float>("VisMagnitude", 1), 2.5f);
  EXPECT_EQ(Status("VisMagnitude"), 1);
  EXPECT_EQ(settings.GetSectionStatus(FourCC("gala"), false), 0);
}

TEST_F(OwnSettingsTest, SavingAgainReplacesTheBlockAndKeepsTheOthers) {
  const std::string file = dir.Path("my.data");
  std::string error;
  SettingsData other(5, FourCC("OTHR"), file.c_str());
  host_test::AddBytes(other, "star", "Draw", 0, {7});
  other.Write(file.c_str());
  ASSERT_TRUE(SaveSettings(settings, file, error)) << error;
  const std::size_t size = dir.Read("my.data").size();
  Set("star.VisMagnitude=0,1");
  ASSERT_TRUE(SaveSettings(settings, file, error)) << error;
  EXPECT_EQ(dir.Read("my.data").size(), size);
  EXPECT_TRUE(SettingsData::HoldsBlock(file.c_str(), FourCC("OTHR"), 5));
  ASSERT_EQ(Load(file).failure, Failure::kNone);
  EXPECT_EQ(Get<float>("VisMagnitude", 1), 1.0f);
}

TEST_F(OwnSettingsTest, FavouritesAreKeptWhateverTheirNumber) {
  const std::string file = dir.Path("my.data");
  std::string error;
  for (int number = 1; number <= 300; ++number) AddFavourite(settings, FourCC("star"), number);
  ASSERT_TRUE(SaveSettings(settings, file, error)) << error;
  for (int round = 0; round < 2; ++round) {
    ASSERT_EQ(Load(file).failure, Failure::kNone);
    std::map<int, unsigned char> favourites;
    ASSERT_TRUE(settings.GetFavoInfo(&favourites, FourCC("star")));
    EXPECT_EQ(favourites.size(), 300u);
    ASSERT_TRUE(SaveSettings(settings, file, error)) << error;
  }
}

TEST_F(OwnSettingsTest, FavouritesOfAFileCutAnywhereAreTakenAsFarAsTheyGo) {
  const std::string file = dir.Path("my.data");
  std::string error;
  for (int number = 1; number <= 3; ++number) AddFavourite(settings, FourCC("star"), number);
  ASSERT_TRUE(SaveSettings(settings, file, error)) << error;
  const std::string whole = dir.Read("my.data");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::string cut = dir.Write("cut.data", whole.substr(0, size));
    ASSERT_EQ(Load(std::nullopt).failure, Failure::kNone);
    EXPECT_LE(TakeFavourites(cut, settings), 3);
  }
  ASSERT_EQ(Load(std::nullopt).failure, Failure::kNone);
  EXPECT_EQ(TakeFavourites(file, settings), 3);
}

TEST_F(OwnSettingsTest, FileThatIsMissingDamagedOrHoldsNoSettingsIsBadData) {
  EXPECT_EQ(Load(dir.Path("absent.data")).failure, Failure::kBadData);
  const std::string file = dir.Path("my.data");
  std::string error;
  ASSERT_TRUE(SaveSettings(settings, file, error));
  const std::string whole = dir.Read("my.data");
  dir.Write("my.data", whole.substr(0, whole.size() - 3));
  EXPECT_TRUE(Contains(Load(file).message, "damaged"));
  dir.Write("my.data", "SREV");
  EXPECT_TRUE(Contains(Load(file).message, "holds no settings"));
}

TEST_F(OwnSettingsTest, FileThatCannotBeWrittenIsNamed) {
  std::string error;
  EXPECT_FALSE(SaveSettings(settings, dir.Path("filters.data/my.data"), error));
  EXPECT_TRUE(Contains(error, "my.data")) << error;
}

class SettingsOfAProgramRun : public testing::Test {
 protected:
  int CountStars(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), {"why", "Rigel", "--place", "52.52,13.405", "--time",
                                         "2026-01-15T21:00Z", "--look", "180,30"});
    EXPECT_EQ(sky.Run(arguments), 0) << sky.errors.str();
    return sky.Printed(": drawn") ? 1 : 0;
  }
  host_test::SmallSky sky;
};

TEST_F(SettingsOfAProgramRun, ChangedSettingChangesThePicture) {
  EXPECT_EQ(CountStars({}), 1);
  EXPECT_EQ(CountStars({"--set", "star.Draw=0"}), 0);
  EXPECT_EQ(CountStars({"--set", "star:off"}), 0);
  EXPECT_EQ(CountStars({"--set", "star.Draw=0", "--set", "star.Draw=1"}), 1) << "the last one counts";
}

TEST_F(SettingsOfAProgramRun, FavouritesOfAnEarlierRunFilterThePicture) {
  const std::string file = sky.dir.Path("my.data");
  EXPECT_EQ(CountStars({"--favourite", "Sirius", "--save-settings", file}), 0);
  EXPECT_TRUE(sky.Printed("only the favourites")) << sky.output.str();
  EXPECT_EQ(CountStars({"--settings", file}), 0);
  EXPECT_EQ(CountStars({"--settings", file, "--favourite", "Rigel"}), 1);
  EXPECT_EQ(CountStars({"--settings", file, "--set", "star.Favourite2491:off"}), 1);
}

TEST_F(SettingsOfAProgramRun, UnknownFavouriteIsExitOneAndBadSettingExitTwo) {
  EXPECT_EQ(sky.Run({"--favourite", "Nibiru"}), 1);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "--favourite 'Nibiru'")) << sky.errors.str();
  EXPECT_EQ(sky.Run({"--set", "star.Drew=1"}), 2);
  EXPECT_TRUE(Contains(sky.GetErrorLine(), "wants for example Draw")) << sky.errors.str();
  EXPECT_EQ(sky.Run({"--settings", "absent.data"}), 1);
}
