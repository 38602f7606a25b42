// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "common_interfaces/object_lists.h"

#include <gtest/gtest.h>

#include <cstring>
#include <filesystem>

#include "catalogs/object_lists_fixture.h"
#include "support/debug_capture.h"
#include "support/temp_dir.h"
#include "utils/text.h"

namespace {

using namespace object_lists;

using Favourites = ObjectLists;
using Selection = ObjectLists;

TEST_F(Favourites, ALineIsNameKindAndNumber) {
  EXPECT_EQ(ReadFavourites("Gamma Cas\t1937006962\t12\n"), Lines{"Gamma Cas|1937006962|12|0|0"});
  roots.dir.Write(kFavourites, "Gamma Cas\t1937006962\t12\n");
  FavouriteObjectsFile favourites;
  favourites.Read();
  EXPECT_EQ(favourites.GetObjects()[0].kind, FourCC("star"));
}

TEST_F(Favourites, ALineWithTwoFieldsIsIgnored) {
  EXPECT_EQ(ReadFavourites("Gamma Cas\t1937006962\nx\t1\t2\n"), Lines{"x|1|2|0|0"});
}

TEST_F(Favourites, LinesWhoseNumbersDoNotParseAreSkippedSilently) {
  EXPECT_EQ(ReadFavourites("a\tstar\t1\nb\t1\tx\nc\t\t1\nd\t1\t\ne\t4294967296\t1\nf\t1\t2\n"),
            Lines{"f|1|2|0|0"});
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Favourites, TheConstructorMakesAnEmptyFileAndReadsNothing) {
  FavouriteObjectsFile favourites;
  EXPECT_TRUE(std::filesystem::exists(roots.dir.Path(kFavourites)));
  EXPECT_EQ(roots.dir.Read(kFavourites), "");
  EXPECT_EQ(favourites.GetSize(), 0);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Favourites, TheConstructorKeepsAFileThatIsThere) {
  roots.dir.Write(kFavourites, "a\t1\t2\n");
  FavouriteObjectsFile favourites;
  EXPECT_EQ(favourites.GetSize(), 0) << "only Read reads";
  EXPECT_EQ(roots.dir.Read(kFavourites), "a\t1\t2\n");
}

TEST_F(Favourites, AFileThatCannotBeMadeIsReported) {
  ZentharPath::SetRoots(roots.dir.Path("data").c_str(), roots.dir.Write("no-folder", "").c_str());
  FavouriteObjectsFile favourites;
  EXPECT_EQ(debug.lines,
            Lines{"FavouriteObjectsFile(): cannot open the file\n \"catalogs:favourites.txt\"\n"});
  favourites.AddObject(Object(1, 2));
  favourites.Read();
  favourites.Write();
  EXPECT_EQ(favourites.GetSize(), 1);
  EXPECT_EQ(debug.lines.size(), 1u);
}

TEST_F(Favourites, AFolderInPlaceOfTheFileIsReportedWithItsPath) {
  std::filesystem::create_directories(roots.dir.Path(kFavourites));
  FavouriteObjectsFile favourites;
  EXPECT_EQ(debug.lines, Lines{"FavouriteObjectsFile(): cannot open the file\n \"" + roots.dir.Path("work") +
                               "/catalogs/favourites.txt\"\n"});
}

TEST_F(Favourites, AddObjectTwiceReturnsTheSizeAndDoesNotAppend) {
  FavouriteObjectsFile favourites;
  EXPECT_EQ(favourites.AddObject(Object(1, 10, "first")), 1);
  EXPECT_EQ(favourites.AddObject(Object(1, 11)), 2);
  EXPECT_EQ(favourites.AddObject(Object(1, 10, "again")), 2);
  EXPECT_EQ(Texts(favourites.GetObjects()), (Lines{"first|1|10|0|0", "|1|11|0|0"}));
}

TEST_F(Favourites, AddObjectKeepsTheWholeIdentifier) {
  FavouriteObjectsFile favourites;
  SSO_ID object = Object(1, 10, "name");
  object.third = 3;
  object.fourth = 4;
  favourites.AddObject(object);
  EXPECT_EQ(Texts(favourites.GetObjects()), Lines{"name|1|10|3|4"});
}

TEST_F(Favourites, RemoveObjectReturnsTheSizeOrMinusOne) {
  FavouriteObjectsFile favourites;
  for (const int number : {1, 2, 3, 4}) favourites.AddObject(Object(7, number));
  EXPECT_EQ(favourites.RemoveObject(Object(7, 5)), -1);
  EXPECT_EQ(favourites.RemoveObject(Object(8, 2)), -1);
  EXPECT_EQ(favourites.RemoveObject(Object(7, 2, "any name")), 3);
  EXPECT_EQ(Texts(favourites.GetObjects()), (Lines{"|7|1|0|0", "|7|3|0|0", "|7|4|0|0"}));
  for (const int left : {2, 1, 0}) EXPECT_EQ(favourites.RemoveObject(favourites.GetObjects()[0]), left);
  EXPECT_EQ(favourites.RemoveObject(Object(7, 1)), -1);
}

TEST_F(Favourites, RemoveObjectTakesTheFirstOfEqualEntries) {
  roots.dir.Write(kFavourites, "first\t1\t2\nsecond\t1\t2\n");
  FavouriteObjectsFile favourites;
  favourites.Read();
  EXPECT_EQ(favourites.RemoveObject(Object(1, 2)), 1);
  EXPECT_EQ(Texts(favourites.GetObjects()), Lines{"second|1|2|0|0"});
}

TEST_F(Favourites, NamesDoNotTellEntriesApart) {
  FavouriteObjectsFile favourites;
  favourites.AddObject(Object(1, 2, "one name"));
  EXPECT_TRUE(favourites.ObjectIncluded(Object(1, 2, "another name")));
  EXPECT_FALSE(favourites.ObjectIncluded(Object(1, 3, "one name")));
  EXPECT_FALSE(favourites.ObjectIncluded(Object(2, 2, "one name")));
}

TEST_F(Favourites, TheReaderKeepsDuplicates) {
  EXPECT_EQ(ReadFavourites("a\t1\t2\nb\t1\t2\n"), (Lines{"a|1|2|0|0", "b|1|2|0|0"}));
}

TEST_F(Favourites, ReadAppendsToTheList) {
  roots.dir.Write(kFavourites, "a\t1\t2\n");
  FavouriteObjectsFile favourites;
  favourites.AddObject(Object(5, 6));
  favourites.Read();
  favourites.Read();
  EXPECT_EQ(Texts(favourites.GetObjects()), (Lines{"|5|6|0|0", "a|1|2|0|0", "a|1|2|0|0"}));
}

TEST_F(Favourites, OnlyWriteChangesTheFile) {
  roots.dir.Write(kFavourites, "a\t1\t2\n");
  FavouriteObjectsFile favourites;
  favourites.Read();
  favourites.AddObject(Object(1937006962, -3, "b"));
  EXPECT_EQ(roots.dir.Read(kFavourites), "a\t1\t2\n");
  favourites.Write();
  EXPECT_EQ(roots.dir.Read(kFavourites), "a\t1\t2\nb\t1937006962\t-3\n");
  favourites.RemoveObject(Object(1, 2));
  favourites.Write();
  EXPECT_EQ(roots.dir.Read(kFavourites), "b\t1937006962\t-3\n");
}

TEST_F(Favourites, WriteThatCannotOpenTheFileIsSilent) {
  FavouriteObjectsFile favourites;
  favourites.AddObject(Object(1, 2));
  std::filesystem::remove_all(roots.dir.Path("work/catalogs"));
  favourites.Write();
  EXPECT_FALSE(std::filesystem::exists(roots.dir.Path(kFavourites)));
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Favourites, AFileThatIsGoneIsAnEmptyList) {
  FavouriteObjectsFile favourites;
  std::filesystem::remove(roots.dir.Path(kFavourites));
  favourites.Read();
  EXPECT_EQ(favourites.GetSize(), 0);
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Favourites, MarkLineEndsAndEmptyLines) {
  EXPECT_EQ(ReadFavourites("\xEF\xBB\xBF"
                           "a\t1\t2\r\n\r\n\n\t\t\nb\t3\t4"),
            (Lines{"a|1|2|0|0", "b|3|4|0|0"}));
  EXPECT_EQ(ReadFavourites(""), Lines{});
}

TEST_F(Favourites, FieldsOfBlanksAndMoreFieldsThanNeeded) {
  EXPECT_EQ(ReadFavourites(" a b \t 1 \t 2 \tmore\t5\n"), Lines{" a b |1|2|0|0"});
  EXPECT_EQ(ReadFavourites("\t1\t2\n"), Lines{"|1|2|0|0"}) << "an empty name is a name";
  EXPECT_EQ(ReadFavourites("a 1 2\n"), Lines{}) << "blanks do not separate";
}

TEST_F(Favourites, NamesOfAnyBytes) {
  EXPECT_EQ(ReadFavourites("\xC3\x84 \xE4\xFF%s%n\t1\t2\n"), Lines{"\xC3\x84 \xE4\xFF%s%n|1|2|0|0"});
  FavouriteObjectsFile favourites;
  favourites.Read();
  favourites.Write();
  EXPECT_EQ(roots.dir.Read(kFavourites), "\xC3\x84 \xE4\xFF%s%n\t1\t2\n");
}

TEST_F(Favourites, LongNamesAreCutToTheIdentifier) {
  EXPECT_EQ(ReadFavourites(std::string(79, 'n') + "\t1\t2\n"), Lines{std::string(79, 'n') + "|1|2|0|0"});
  EXPECT_EQ(ReadFavourites(std::string(80, 'n') + "\t1\t2\n"), Lines{std::string(79, 'n') + "|1|2|0|0"});
}

TEST_F(Favourites, ALineCutBeforeItsNumbersIsSkipped) {
  EXPECT_EQ(ReadFavourites(std::string(300, 'n') + "\t1\t2\nb\t3\t4\n"), Lines{"b|3|4|0|0"});
}

TEST_F(Favourites, ALineCutInsideItsNumberKeepsTheDigitsThatFit) {
  // 250 + 1 + 1 + 1 bytes lead to the number; two of its three digits fit into 255.
  EXPECT_EQ(ReadFavourites(std::string(250, 'n') + "\t1\t234\n"), Lines{std::string(79, 'n') + "|1|23|0|0"});
}

TEST_F(Favourites, AZeroByteEndsItsLineOnly) {
  EXPECT_EQ(ReadFavourites(std::string("a\0\t1\t2\nb\t3\t4\n", 14)), Lines{"b|3|4|0|0"});
}

TEST_F(Favourites, TabsAndLineEndsInNamesAreWrittenAsBlanks) {
  FavouriteObjectsFile favourites;
  favourites.AddObject(Object(1, 2, "a\tb\nc\rd"));
  favourites.AddObject(Object(3, 4));
  favourites.Write();
  EXPECT_EQ(roots.dir.Read(kFavourites), "a b c d\t1\t2\n\t3\t4\n");
  EXPECT_STREQ(favourites.GetObjects()[0].name, "a\tb\nc\rd") << "in memory it stays as it is";
}

TEST_F(Favourites, ANameWithoutItsEndIsWrittenUpToTheField) {
  SSO_ID object(1, 2);
  std::memset(object.name, 'n', sizeof object.name);
  FavouriteObjectsFile favourites;
  favourites.AddObject(object);
  favourites.Write();
  EXPECT_EQ(roots.dir.Read(kFavourites), std::string(79, 'n') + "\t1\t2\n");
}

TEST_F(Selection, IsReadAtOnce) {
  EXPECT_EQ(ReadSelection("M 31\t1734437985\t31\nbad\nVega\t1937006962\t7001"),
            (Lines{"M 31|1734437985|31", "Vega|1937006962|7001"}));
}

TEST_F(Selection, NamesAreWhole) {
  EXPECT_EQ(ReadSelection(std::string(251, 'n') + "\t1\t2\n"), Lines{std::string(251, 'n') + "|1|2"});
}

TEST_F(Selection, AMissingFileIsAnEmptyListAndIsNotMade) {
  std::vector<ObjectDesc> out = {{"kept", 1, 2}};
  SelectedObjectsFile selection(kSelection);
  EXPECT_FALSE(selection.GetObjects(out));
  EXPECT_EQ(Texts(out), Lines{"kept|1|2"});
  EXPECT_FALSE(std::filesystem::exists(roots.dir.Path(kSelectionFile)));
  EXPECT_TRUE(debug.lines.empty());
}

TEST_F(Selection, GetObjectsReplacesWhatTheCallerHas) {
  roots.dir.Write(kSelectionFile, "a\t1\t2\n");
  std::vector<ObjectDesc> out = {{"x", 3, 4}, {"y", 5, 6}};
  EXPECT_TRUE(SelectedObjectsFile(kSelection).GetObjects(out));
  EXPECT_EQ(Texts(out), Lines{"a|1|2"});
}

TEST_F(Selection, SetObjectsReplacesTheListAndSaveTheFile) {
  roots.dir.Write(kSelectionFile, "a\t1\t2\n");
  SelectedObjectsFile selection(kSelection);
  EXPECT_TRUE(selection.SetObjects({{"b", 3, 4}, {"b", 3, 4}}));
  EXPECT_EQ(roots.dir.Read(kSelectionFile), "a\t1\t2\n");
  EXPECT_TRUE(selection.Save());
  EXPECT_EQ(roots.dir.Read(kSelectionFile), "b\t3\t4\nb\t3\t4\n");
  EXPECT_TRUE(selection.SetObjects({}));
  std::vector<ObjectDesc> out;
  EXPECT_FALSE(selection.GetObjects(out));
  EXPECT_TRUE(selection.Save());
  EXPECT_EQ(roots.dir.Read(kSelectionFile), "");
}

TEST_F(Selection, SaveMakesTheFile) {
  SelectedObjectsFile selection(kSelection);
  selection.SetObjects({{"b", 3, 4}});
  EXPECT_TRUE(selection.Save());
  EXPECT_EQ(roots.dir.Read(kSelectionFile), "b\t3\t4\n");
}

TEST_F(Selection, AnAbsolutePathStandsForItself) {
  const std::string path = roots.dir.Write("elsewhere.txt", "a\t1\t2\n");
  SelectedObjectsFile selection(path.c_str());
  selection.SetObjects({{"b", 3, 4}});
  EXPECT_TRUE(selection.Save());
  EXPECT_EQ(roots.dir.Read("elsewhere.txt"), "b\t3\t4\n");
}

TEST_F(Selection, SaveFailsWhereTheFileCannotBeOpened) {
  std::filesystem::create_directories(roots.dir.Path(kSelectionFile));
  SelectedObjectsFile selection(kSelection);
  selection.SetObjects({{"b", 3, 4}});
  EXPECT_FALSE(selection.Save());
  SelectedObjectsFile nowhere(nullptr);
  EXPECT_FALSE(nowhere.Save());
  EXPECT_TRUE(debug.lines.empty());
}

// "\t-1000000000\t1" takes 14 of the 255 characters.
TEST_F(Selection, ANameIsCutSoThatItsLineCanBeReadAgain) {
  SelectedObjectsFile selection(kSelection);
  selection.SetObjects({{std::string(300, 'n'), -1000000000, 1}, {"b", 3, 4}});
  EXPECT_TRUE(selection.Save());
  std::vector<ObjectDesc> out;
  EXPECT_TRUE(SelectedObjectsFile(kSelection).GetObjects(out));
  EXPECT_EQ(Texts(out), (Lines{std::string(241, 'n') + "|-1000000000|1", "b|3|4"}));
}

TEST_F(Selection, TabsLineEndsAndZeroBytesInNames) {
  SelectedObjectsFile selection(kSelection);
  selection.SetObjects({{"a\tb\nc\rd", 1, 2}, {std::string("e\0f", 3), 3, 4}});
  EXPECT_TRUE(selection.Save());
  EXPECT_EQ(roots.dir.Read(kSelectionFile), "a b c d\t1\t2\ne\t3\t4\n");
}

TEST_F(ObjectLists, EveryListSkipsLinesWhoseNumbersDoNotParse) {
  const std::string lines = "a\tx\t2\t3\nb\t1\tx\t3\nc\t1\t2\t3\n";
  EXPECT_EQ(ReadFavourites(lines), Lines{"c|1|2|0|0"});
  EXPECT_EQ(ReadSelection(lines), Lines{"c|1|2"});
  EXPECT_EQ(ReadChosen("d\t1\t2\tx\n" + lines), Lines{"c|1|2|0|3"});
}

}  // namespace
