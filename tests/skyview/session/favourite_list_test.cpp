// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/session/favourite_list.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "skyview/small_sky.h"

using host_test::SmallSky;

namespace {

using Arguments = std::vector<std::string>;

constexpr const char* kFile = "work/catalogs/favourites.txt";

// The program with a work area.
class FavouriteList : public testing::Test {
 protected:
  int Run(Arguments arguments) {
    arguments.insert(arguments.end(), {"--work", sky.dir.Path("work")});
    return sky.Run(arguments);
  }
  std::string GetFile() const { return sky.dir.Read(kFile); }
  // The only star of the catalog.
  void WriteStar(const std::string& name) {
    sky.dir.Write(
        "data/catalogs/stars.txt",
        "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\n7\t1.5\t0.1\t1.0\t" + name + "\n");
  }
  bool HasFile() const { return std::filesystem::exists(sky.dir.Path(kFile)); }

  SmallSky sky;
};

}  // namespace

TEST_F(FavouriteList, NameThatIsUnknownMakesNoEmptyList) {
  EXPECT_NE(Run({"favourites", "add", "Nobody"}), 0);
  EXPECT_FALSE(HasFile());
}

TEST_F(FavouriteList, EmptyListThatIsThereStays) {
  sky.dir.Write(kFile, "");
  EXPECT_NE(Run({"favourites", "add", "Nobody"}), 0);
  EXPECT_TRUE(HasFile());
}

// 1937006962 is "star", 1852138101 "nebu", 0x6E656275.
TEST_F(FavouriteList, ObjectsAreWrittenAtOnceWithKindAndNumber) {
  ASSERT_EQ(Run({"favourites", "add", "Sirius", "M 42"}), 0) << sky.errors.str();
  EXPECT_EQ(GetFile(), "Sirius\t1937006962\t2491\nM 42\t1852138101\t42\n");
  EXPECT_EQ(sky.output.str(), "Favourites: 2\n  Sirius (star 2491)\n  M 42 (nebu 42)\n");
}

TEST_F(FavouriteList, EveryNameOfWhyIsUnderstood) {
  ASSERT_EQ(Run({"favourites", "add", "alp ori", "HR 1713", "hunter"}), 0) << sky.errors.str();
  ASSERT_EQ(Run({"favourites", "show"}), 0);
  EXPECT_TRUE(sky.Printed("Favourites: 3\n  Betelgeuse (star 2061)\n  Rigel (star 1713)\n  Orion (cnst "))
      << sky.output.str();
  EXPECT_FALSE(sky.Printed("Stars drawn"));
}

TEST_F(FavouriteList, AddingTwiceKeepsOne) {
  ASSERT_EQ(Run({"favourites", "add", "Sirius"}), 0);
  ASSERT_EQ(Run({"favourites", "add", "α CMa"}), 0);
  EXPECT_EQ(GetFile(), "Sirius\t1937006962\t2491\n");
}

TEST_F(FavouriteList, RemovedObjectIsGoneAndTheOthersKeepTheirOrder) {
  ASSERT_EQ(Run({"favourites", "add", "Sirius", "M31", "Vega"}), 0);
  ASSERT_EQ(Run({"favourites", "remove", "M 31"}), 0) << sky.errors.str();
  EXPECT_EQ(sky.output.str(), "Favourites: 2\n  Sirius (star 2491)\n  Vega (star 7001)\n");
}

TEST_F(FavouriteList, NamesThatAreNoAsciiSurvive) {
  sky.dir.Write("data/catalogs/stars.txt",
                "Number:i32\tRA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\n7\t1.5\t0.1\t1.0\tЗвезда Ω\n"
                "8\t1.6\t0.1\t1.0\tVega\n");
  ASSERT_EQ(Run({"favourites", "add", "Звезда Ω"}), 0) << sky.errors.str();
  EXPECT_EQ(GetFile(), "Звезда Ω\t1937006962\t7\n");
  ASSERT_EQ(Run({"favourites", "add", "Vega"}), 0);
  EXPECT_TRUE(sky.Printed("  Звезда Ω (star 7)\n")) << sky.output.str();
}

// An identifier has room for 79 bytes.
TEST_F(FavouriteList, NameThatFillsItsRoomIsKeptAndALongerOneIsCut) {
  for (const std::size_t size : {78, 79, 80, 200}) {
    const std::string name(size, 'n');
    WriteStar(name);
    std::filesystem::remove(sky.dir.Path(kFile));
    ASSERT_EQ(Run({"favourites", "add", name}), 0) << sky.errors.str();
    EXPECT_EQ(GetFile(), name.substr(0, 79) + "\t1937006962\t7\n") << size;
  }
}

TEST_F(FavouriteList, LongNameIsCutBetweenCharacters) {
  std::string name;
  for (int i = 0; i < 60; ++i) name += "Ж";
  for (const auto& [before, kept] : {std::pair("", 78), std::pair("n", 79)}) {
    WriteStar(before + name);
    std::filesystem::remove(sky.dir.Path(kFile));
    ASSERT_EQ(Run({"favourites", "add", before + name}), 0) << sky.errors.str();
    EXPECT_EQ(GetFile(), (before + name).substr(0, kept) + "\t1937006962\t7\n");
  }
}

TEST_F(FavouriteList, EntryThatTheCatalogsLackIsShownAndRemovedByItsName) {
  sky.dir.Write(kFile, "Lost Comet\t1668246900\t77\nSirius\t1937006962\t2491\n");
  ASSERT_EQ(Run({"favourites", "show"}), 0) << sky.errors.str();
  EXPECT_TRUE(sky.Printed("  Lost Comet (comt 77)\n")) << sky.output.str();
  ASSERT_EQ(Run({"favourites", "remove", "lost comet"}), 0) << sky.errors.str();
  EXPECT_EQ(GetFile(), "Sirius\t1937006962\t2491\n");
}

TEST_F(FavouriteList, UnknownNameChangesNothingAndNamesSimilarOnes) {
  ASSERT_EQ(Run({"favourites", "add", "Vega"}), 0);
  EXPECT_EQ(Run({"favourites", "add", "Rigel", "Siriuss"}), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: favourites add: 'Siriuss': no such object; similar: Sirius");
  EXPECT_EQ(GetFile(), "Vega\t1937006962\t7001\n");
}

TEST_F(FavouriteList, RemovingWhatIsNotThereIsAnError) {
  ASSERT_EQ(Run({"favourites", "add", "Vega"}), 0);
  EXPECT_EQ(Run({"favourites", "remove", "Rigel"}), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: favourites remove: 'Rigel': not in the list");
  EXPECT_EQ(GetFile(), "Vega\t1937006962\t7001\n");
}

TEST_F(FavouriteList, RemovingFromWhatCannotBeReadNamesTheFile) {
  std::filesystem::create_directories(sky.dir.Path(kFile));  // a folder in its place
  EXPECT_EQ(Run({"favourites", "remove", "Vega"}), 1);
  EXPECT_EQ(sky.GetErrorLine(), "skyview: " + sky.dir.Path(kFile) + ": cannot be read");
}

TEST_F(FavouriteList, StarWithoutANumberIsRefused) {
  sky.dir.Write("data/catalogs/stars.txt",
                "RA:f64\tDec:f64\tVisMagnitude:f32\tProperName:text\n1.5\t0.1\t1.0\tNova\n");
  EXPECT_EQ(Run({"favourites", "add", "Nova"}), 1);
  EXPECT_NE(sky.GetErrorLine().find("has no number"), std::string::npos) << sky.errors.str();
}

TEST_F(FavouriteList, FileThatCannotBeWrittenIsNamed) {
  std::filesystem::create_directories(sky.dir.Path(kFile));  // a folder in its place
  EXPECT_EQ(Run({"favourites", "add", "Vega"}), 1);
  EXPECT_NE(sky.GetErrorLine().find("favourites.txt: the list of favourites cannot be written there"),
            std::string::npos)
      << sky.errors.str();
}

TEST_F(FavouriteList, DrawingAloneMakesNoFile) {
  ASSERT_EQ(Run({}), 0) << sky.errors.str();
  EXPECT_FALSE(HasFile());
  ASSERT_EQ(Run({"favourites", "show"}), 0);
  EXPECT_EQ(sky.output.str(), "Favourites: 0\n");
  EXPECT_FALSE(HasFile());
}

TEST_F(FavouriteList, HeadingIsInTheLanguage) {
  ASSERT_EQ(Run({"favourites", "--language", "ru"}), 0);
  EXPECT_EQ(sky.output.str(), "Избранное: 0\n");
}
