// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Every operation that saves a file of the user, loading included, with each of its calls to the system
// failing once.
#include "camera/home_fixture.h"
#include "common_interfaces/object_lists.h"
#include "injection/every_call.h"
#include "settings/settings_bytes.h"
#include "utils/file.h"
#include "utils/replace_file.h"

namespace test_support {
namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::ChoosingObjectsFile;
using CommonInterfaces::FavouriteObjectsFile;
using CommonInterfaces::ObjectDesc;
using CommonInterfaces::SelectedObjectsFile;

void NoPreparation(const TempRoots&) {}

auto File(const char* name, const std::string& content) {
  return [=](const TempRoots& roots) { roots.dir.Write(name, content); };
}

std::string List(const char* rest) {
  std::string text;
  for (int i = 0; i < 20; ++i) text += "name\t1\t" + std::to_string(i) + rest + "\n";
  return text;
}

TEST(SavingFaults, ReplaceFileContent) {
  FailEveryCall(File("work/f", "old"), [](const TempRoots& roots) {
    std::string reason;
    return ReplaceFileContent(roots.dir.Path("work/f").c_str(), std::string(50000, 'x'), reason);
  });
}

TEST(SavingFaults, ReplaceFileContentOfANewFile) {
  FailEveryCall(NoPreparation, [](const TempRoots& roots) {
    std::string reason;
    return ReplaceFileContent(roots.dir.Path("work/f").c_str(), "new", reason);
  });
}

TEST(SavingFaults, ReplaceFileContentThroughALink) {
  const auto prepare = [](const TempRoots& roots) {
    std::filesystem::create_symlink(roots.dir.Write("work/real", "old"), roots.dir.Path("work/link"));
  };
  FailEveryCall(prepare, [](const TempRoots& roots) {
    std::string reason;
    const bool saved = ReplaceFileContent(roots.dir.Path("work/link").c_str(), "new", reason);
    EXPECT_TRUE(std::filesystem::is_symlink(roots.dir.Path("work/link")));
    return saved;
  });
}

TEST(SavingFaults, TextFile) {
  FailEveryCall(File("work/f", "old"), [](const TempRoots& roots) {
    MTextFile file(false, '!', '}', 256);
    if (!file.Open(roots.dir.Path("work/f").c_str(), true)) return false;
    for (int i = 0; i < 3; ++i) file.Write("line %d\n", i);
    return file.Close();
  });
}

TEST(SavingFaults, Favourites) {
  FailEveryCall(File("work/catalogs/favourites.txt", List("")), [](const TempRoots&) {
    FavouriteObjectsFile list;
    list.Read();
    list.AddObject({2, 3});
    return list.Save();
  });
}

TEST(SavingFaults, FavouritesThatAreNew) {
  FailEveryCall(NoPreparation, [](const TempRoots&) {
    FavouriteObjectsFile list;
    list.AddObject({2, 3});
    return list.Save();
  });
}

TEST(SavingFaults, Selection) {
  FailEveryCall(File("work/catalogs/selection.txt", List("")), [](const TempRoots&) {
    SelectedObjectsFile list("catalogs:selection.txt");
    std::vector<ObjectDesc> objects;
    list.GetObjects(objects);
    objects.push_back({"Vega", 2, 3});
    list.SetObjects(objects);
    return list.Save();
  });
}

TEST(SavingFaults, ChosenObjects) {
  FailEveryCall(File("work/catalogs/observationobjects.txt", List("\t7")), [](const TempRoots&) {
    ChoosingObjectsFile list;
    std::vector<SSO_ID> objects;
    list.GetObjects(objects);
    objects.push_back({2, 3});
    list.SetObjects(objects);
    return list.Save();
  });
}

TEST(SavingFaults, Homes) {
  std::string homes;
  for (int i = 0; i < 20; ++i)
    homes += "1\n0 2 0 0.15 0.87 1 2 1836019566 " + std::to_string(i) + " 1\nHere\n";
  FailEveryCall(File("work/home_params.ini", homes), [](const TempRoots&) {
    Camera camera(1);
    camera.SetObserver(kMarsId);
    camera.StoreParams(CommonInterfaces::kHomeLocation);
    return camera.StoreHomeParams();
  });
}

// Two blocks in a file of the work area, the defaults of one in the data root.
void WriteSettings(const TempRoots& roots) {
  const std::vector<std::string> fields = {Int(kPlnt, 1, 10), Int(kPlnt, 2, 20)};
  roots.dir.Write("data/filters.data", Header(0) + Block(kOwner, kDefaults, {Section(kPlnt, 0, 1)}, fields));
  roots.dir.Write("work/named.data",
                  Header(0) + Block(kOwner, 2, {Section(kStar, 0, 0)}, {Int(kStar, 1, 20)}) +
                      Block(kOwner, kId, {Section(kPlnt, 0, 1)}, {Int(kPlnt, 1, 11), Int(kPlnt, 2, 21)}) +
                      Block(kOwner, 3, {}, {}));
}

TEST(SavingFaults, Settings) {
  FailEveryCall(WriteSettings, [](const TempRoots&) {
    SettingsData settings(kId, kOwner, "filters.data");
    settings.Read("named.data");
    settings.SetCurSection(kPlnt);
    const int value = 99;
    settings.SetField(1, &value);
    return settings.Save("named.data");
  });
}

TEST(SavingFaults, SettingsRestored) {
  FailEveryCall(WriteSettings, [](const TempRoots&) {
    SettingsData settings(kId, kOwner, "filters.data");
    Create(settings, Int(kPlnt, 1, 0));
    Create(settings, Int(kPlnt, 2, 0));
    settings.Restore("named.data");
    settings.SetCurSection(kPlnt);
    const int value = 99;
    settings.SetField(1, &value);
    return settings.Save("named.data");
  });
}

TEST(SavingFaults, SettingsOfTheDataRootThatBecomeTheUsers) {
  FailEveryCall(WriteSettings, [](const TempRoots&) {
    SettingsData settings(kId, kOwner, "filters.data");
    settings.Read(nullptr);
    return settings.Save("filters.data");
  });
}

void WriteView(const TempRoots& roots) {
  WriteCameraDefaults(roots);
  AppendBlock(roots.dir.Path("work/view.data"), kCAMR, 5, kCameraSection, CameraFields());
  AppendBlock(roots.dir.Path("work/view.data"), kCAMR, 7, kCameraSection, CameraFields());
  AppendBlock(roots.dir.Path("work/view.data"), kCAMR, 9, kCameraSection, CameraFields());
}

TEST(SavingFaults, WholeView) {
  FailEveryCall(WriteView, [](const TempRoots&) {
    Camera camera(1);
    camera.CreateDefault();
    camera.SetUniversalTime({2460000, 0.25, 1});
    return camera.SaveSelfAll("view.data", 7);
  });
}

TEST(SavingFaults, ShortView) {
  FailEveryCall(WriteView, [](const TempRoots&) {
    Camera camera(1);
    camera.CreateDefault();
    camera.SetUniversalTime({2460000, 0.25, 1});
    return camera.SaveSelf("view.data", 7);
  });
}

}  // namespace
}  // namespace test_support
