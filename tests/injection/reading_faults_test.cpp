// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// What cannot be read is told, and nothing is saved over it.
#include <algorithm>

#include "camera/home_fixture.h"
#include "common_interfaces/flight_objects.h"
#include "common_interfaces/object_articles.h"
#include "common_interfaces/object_lists.h"
#include "common_interfaces/string_table.h"
#include "injection/every_call.h"
#include "settings/settings_bytes.h"
#include "utils/file.h"
#include "utils/file_presence.h"

namespace test_support {
namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::ChoosingObjectsFile;
using CommonInterfaces::FavouriteObjectsFile;
using CommonInterfaces::QX4Strings;
using CommonInterfaces::SelectedObjectsFile;

constexpr int kGalaxyKind = FourCC("gala");

std::string Words(std::initializer_list<int> words) {
  std::string bytes;
  for (const int word : words) bytes += LittleEndian(static_cast<unsigned>(word), 4);
  return bytes;
}

class ReadingFaults : public testing::Test {
 protected:
  std::string Refusal(const std::string& path, const char* what) {
    return "File " + path + ": " + what + " not saved, because it could not be read whole\n";
  }

  TempRoots roots;
  DebugCapture debug;
};

// The reader takes 16384 bytes at a time; of the second piece the second half is lost.
TEST_F(ReadingFaults, ErrorEndsTheLinesAndJoinsNoneOfThem) {
  std::string text;
  for (int i = 0; i < 10000; ++i) text += std::to_string(100000 + i) + "\n";
  MTextFile file(false, '!', '}', 256);
  ASSERT_TRUE(file.Open(roots.dir.Write("f", text).c_str(), false));
  const FaultInjection fault(0, "fread");
  int lines = 0;
  char line[256];
  for (; file.Readln(line, sizeof line) > 0; ++lines) {
    ASSERT_EQ(line, std::to_string(100000 + lines));
    EXPECT_FALSE(file.HasReadFailed());
  }
  EXPECT_EQ(lines, (16384 + 8192) / 7);
  EXPECT_STREQ(line, "");
  EXPECT_TRUE(file.HasReadFailed());
  EXPECT_EQ(file.Readln(line, sizeof line), 0) << "for good";
  ASSERT_TRUE(file.Open(roots.dir.Path("f").c_str(), false));
  EXPECT_FALSE(file.HasReadFailed());
}

TEST_F(ReadingFaults, EndOfTheFileIsNoError) {
  MTextFile file(false, '!', '}', 256);
  ASSERT_TRUE(file.Open(roots.dir.Write("f", "a\nb").c_str(), false));
  char line[256];
  while (file.Readln(line, sizeof line) > 0) {
  }
  EXPECT_FALSE(file.HasReadFailed());
}

TEST_F(ReadingFaults, OfBytesAreTold) {
  MFile file;
  char bytes[8];
  for (const char* call : {"fread", "fstat"}) {
    ASSERT_TRUE(file.Open(roots.dir.Write("f", "12345678").c_str(), MFile::kRead));
    EXPECT_EQ(file.Read(bytes, 8), 8u);
    EXPECT_EQ(file.Read(bytes, 8), 0u);
    EXPECT_FALSE(file.HasReadFailed()) << "at the end";
    file.Seek(0, 0);
    const FaultInjection fault(0, call);
    EXPECT_FALSE(file.Search("9", 1));
    EXPECT_TRUE(file.HasReadFailed());
  }
}

// The first call asks for the work area's file, which must not be passed by.
TEST_F(ReadingFaults, FileThatCannotBeAskedForIsNotMissing) {
  const std::string mine = roots.dir.Write("work/a.txt", "");
  roots.dir.Write("data/a.txt", "");
  const FaultInjection fault(0, "stat");
  EXPECT_EQ(ZentharPath::GetPath("a.txt"), mine);
  const FaultInjection again(0, "stat");
  EXPECT_EQ(GetFilePresence(mine.c_str()), FilePresence::kUnknown);
  const FaultInjection third(0, "stat");
  EXPECT_EQ(ZentharPath::GetWorkPath("a.txt", true, false), mine);
}

TEST_F(ReadingFaults, HomesBeforeTheErrorAreThereAndAreNotSavedOverTheFile) {
  std::string homes;
  for (int i = 0; i < 1000; ++i) homes += "1\n0 2 0 0.15 0.87 1 2 1836019566 " + std::to_string(i) + "\n";
  const std::string readable = homes.substr(0, 16384 + 8192);
  const auto wanted = static_cast<std::size_t>(std::count(readable.begin(), readable.end(), '\n') / 2);
  const std::string path = roots.dir.Write("work/home_params.ini", homes);
  FaultInjection fault(1, "fread");
  Camera camera(1);
  fault.Stop();
  EXPECT_EQ(camera.GetHomes().size(), wanted);
  ASSERT_EQ(debug.lines.size(), 1u);
  EXPECT_NE(debug.lines[0].find("cannot be read"), std::string::npos);
  camera.SetObserver(kMarsId);
  camera.StoreParams(CommonInterfaces::kHomeLocation);
  debug.lines.clear();
  camera.SaveHomeParams();
  EXPECT_EQ(roots.dir.Read("work/home_params.ini"), homes);
  EXPECT_EQ(debug.lines, std::vector<std::string>{Refusal(path, "homes")});
  Camera copy(2);
  copy = camera;
  EXPECT_FALSE(copy.StoreHomeParams()) << "a copy knows it too";
  EXPECT_EQ(roots.dir.Read("work/home_params.ini"), homes);
}

// Of the file the second half is lost.
TEST_F(ReadingFaults, TextsBeforeTheErrorAreThereAndTheErrorIsTold) {
  std::string content;
  for (unsigned i = 1; i <= 1000; ++i) content += std::to_string(i) + "\ttexts\n";
  const std::size_t half = (content.size() + 1) / 2;
  const auto whole = static_cast<unsigned>(std::count(content.begin(), content.begin() + half, '\n'));
  ASSERT_EQ(content.substr(half - 2, 2), "\tt") << "the error comes within a text";
  roots.dir.Write("data/qxstrings.txt", content);
  QX4Strings::StartLocaleUpdate();
  FaultInjection fault(0, "fread");
  { QX4Strings strings; }
  fault.Stop();
  QX4Strings::FinishLocaleUpdate();
  EXPECT_EQ(debug.lines, std::vector<std::string>{"File qxstrings.txt cannot be read to its end\n"});
  EXPECT_STREQ(QX4Strings::GetString(1, false), "texts");
  EXPECT_STREQ(QX4Strings::GetString(whole, false), "texts");
  EXPECT_EQ(QX4Strings::GetString(whole + 1, true), nullptr);
}

TEST_F(ReadingFaults, HomesThatCannotBeOpenedAreNotReplaced) {
  const std::string path = roots.dir.Write("work/home_params.ini", "1\n0 2 0 0 0 1 2 1836019566 301\n");
  const std::string before = roots.dir.Read("work/home_params.ini");
  for (const char* call : {"fopen", "stat"}) {
    for (int i = 0; i < 8; ++i) {
      FaultInjection failing(i, call);
      Camera camera(1);
      failing.Stop();
      camera.SetObserver(kMarsId);
      camera.StoreParams(CommonInterfaces::kHomeLocation);
      if (camera.GetHomes().size() == 2) continue;  // another file's call
      debug.lines.clear();
      EXPECT_FALSE(camera.StoreHomeParams());
      EXPECT_EQ(debug.lines, std::vector<std::string>{Refusal(path, "homes")});
      EXPECT_EQ(roots.dir.Read("work/home_params.ini"), before);
    }
  }
}

TEST_F(ReadingFaults, ListsAreNotSavedOverWhatCouldNotBeRead) {
  const std::string text = "a\t1\t2\t3\nb\t4\t5\t6\n";
  const std::string path = roots.dir.Write("work/list.txt", text);
  for (const char* call : {"fopen", "fread"}) {
    debug.lines.clear();
    FaultInjection fault(0, call);
    SelectedObjectsFile selection("list.txt");
    fault.Stop();
    selection.SetObjects({{"c", 7, 8}});
    EXPECT_FALSE(selection.Save());
    FaultInjection again(0, call);
    ChoosingObjectsFile chosen("list.txt");
    again.Stop();
    chosen.SetObjects({SSO_ID(7, 8)});
    EXPECT_FALSE(chosen.Save());
    EXPECT_EQ(roots.dir.Read("work/list.txt"), text);
    EXPECT_EQ(debug.lines, std::vector<std::string>(2, Refusal(path, "list")));
  }
}

TEST_F(ReadingFaults, FavouritesAreNotSavedOverWhatCouldNotBeRead) {
  const std::string path = roots.dir.Write("work/catalogs/favourites.txt", "a\t1\t2\nb\t4\t5\n");
  FavouriteObjectsFile favourites;
  FaultInjection fault(0, "fread");
  favourites.Read();
  fault.Stop();
  favourites.AddObject({7, 8});
  favourites.Write();
  EXPECT_EQ(roots.dir.Read("work/catalogs/favourites.txt"), "a\t1\t2\nb\t4\t5\n");
  EXPECT_EQ(debug.lines, std::vector<std::string>{Refusal(path, "list")});
}

// The look whether there is a list fails, and so a new one would be made.
TEST_F(ReadingFaults, EmptyListNeverTakesThePlaceOfOne) {
  const std::string text = "a\t1\t2\t3\n";
  for (int i = 0; i < 10; ++i) {
    roots.dir.Write("work/catalogs/favourites.txt", text);
    roots.dir.Write("work/catalogs/observationobjects.txt", text);
    const FaultInjection fault(i, "stat");
    FavouriteObjectsFile favourites;
    ChoosingObjectsFile chosen;
    EXPECT_EQ(roots.dir.Read("work/catalogs/favourites.txt"), text);
    EXPECT_EQ(roots.dir.Read("work/catalogs/observationobjects.txt"), text);
  }
}

TEST_F(ReadingFaults, SettingsKeepTheOtherBlocksWhenTheFileCannotBeAskedFor) {
  const std::string other = Header(0) + Block(kOwner, 2, {Section(kStar, 0, 0)}, {Int(kStar, 1, 20)});
  roots.dir.Write("work/named.data", other);
  SettingsData settings(kId, kOwner, "filters.data");
  Create(settings, Int(kPlnt, 1, 10));
  int refused = 0;
  for (const char* call : {"stat", "fstat", "fread", "fopen"}) {
    for (int i = 0; i < 3; ++i) {
      FaultInjection fault(i, call);
      const bool saved = settings.Save("named.data");
      fault.Stop();
      EXPECT_EQ(roots.dir.Read("work/named.data").substr(0, other.size()), other) << call << i;
      if (saved) continue;
      EXPECT_EQ(roots.dir.Read("work/named.data"), other) << call << i;
      ++refused;
    }
    roots.dir.Write("work/named.data", other);
  }
  EXPECT_GE(refused, 4);
}

// What was found and then cannot be looked at more closely is there.
TEST_F(ReadingFaults, BlockThatIsFoundCountsWhereTheRestCannotBeRead) {
  roots.dir.Write("work/named.data",
                  Header(0) + Block(kOwner, kId, {}, {Int(kPlnt, 1, 24), Int(kPlnt, 2, 6)}));
  ASSERT_FALSE(SettingsData::HoldsBlock("named.data", 24, 24));
  const FaultInjection fault(1, "fopen");
  EXPECT_TRUE(SettingsData::HoldsBlock("named.data", 24, 24));
}

// Of the last number half is lost.
TEST_F(ReadingFaults, NumbersOfFlightsBeforeTheErrorAreThere) {
  const std::string table = Words({kGalaxyKind, 2, 5, 6});
  roots.dir.Write("data/media/find/object_distances_table.bin", table);
  const FaultInjection fault(3, "fread");
  CommonInterfaces::General3DFlightObjectsList list;
  EXPECT_TRUE(list.objectInList(kGalaxyKind, 5));
  EXPECT_FALSE(list.objectInList(kGalaxyKind, 6));
  EXPECT_EQ(fault.GetCall(), "fread");
}

TEST_F(ReadingFaults, ArticlesBeforeTheErrorAreThere) {
  roots.dir.Write("data/media/find/object_articles_table.bin", Words({1, 5, 100, 1, 6, 101}));
  const FaultInjection fault(1, "fread");
  const CommonInterfaces::ArticlesInformation articles;
  EXPECT_EQ(articles.GetArticleId(1, 5), 100);
  EXPECT_EQ(articles.GetArticleId(1, 6), -1);
  EXPECT_EQ(fault.GetCall(), "fread");
}

TEST_F(ReadingFaults, TextsOfAFileWithoutALengthAreNotFound) {
  roots.dir.Write("data/qxstrings.txt", "7\ttext\n");
  QX4Strings::StartLocaleUpdate();
  FaultInjection fault(1, "fstat");  // the first one is that of opening it
  { QX4Strings strings; }
  fault.Stop();
  EXPECT_EQ(fault.GetCall(), "fstat");
  QX4Strings::FinishLocaleUpdate();
  EXPECT_EQ(QX4Strings::GetString(7, true), nullptr);
  EXPECT_EQ(debug.lines, std::vector<std::string>{"File qxstrings.txt not found\n"});
}

// The half that was read ends within a line: the only one, or the second.
TEST_F(ReadingFaults, TextThatTheErrorCutsIsNone) {
  const std::string text(100, 'x');
  for (const bool isFirst : {true, false}) {
    roots.dir.Write("data/qxstrings.txt", (isFirst ? "" : "1\tone\n") + ("7\t" + text) + "\n");
    QX4Strings::StartLocaleUpdate();
    FaultInjection fault(0, "fread");
    { QX4Strings strings; }
    fault.Stop();
    QX4Strings::FinishLocaleUpdate();
    EXPECT_EQ(QX4Strings::GetString(7, true), nullptr);
    EXPECT_EQ(QX4Strings::GetString(1, true) == nullptr, isFirst);
  }
}

}  // namespace
}  // namespace test_support
