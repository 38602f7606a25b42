// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Saves one thing through the library, or says what the library reads of it.
//
// usage: save_peer DATA_ROOT WORK_AREA OPERATION 1|2|read
//
// 1 and 2 are two contents, one after the other; both come to more than the C library writes at once. Exit
// status 1 when saving or reading failed. `list` as the only argument names the operations.
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

#include "common_interfaces/camera.h"
#include "common_interfaces/object_lists.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "scene/catalogs/star_tile_writer.h"
#include "scene/catalogs/star_tiles.h"
#include "utils/checksum.h"
#include "utils/file.h"
#include "utils/path.h"
#include "utils/replace_file.h"
#include "utils/text.h"
#include "utils/whole_file.h"

namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::SettingsData;

constexpr unsigned kOwner = 0x464C5452;
constexpr int kEntries = 6000;

std::string Work(const char* name) { return ZentharPath::GetWorkPath(name); }

// Long, and other than the other round's from its first byte to its last.
std::string LongText(int round) {
  std::string text;
  for (int i = 0; i < kEntries; ++i) text += std::to_string(round) + " line " + std::to_string(i) + "\n";
  return text;
}

bool PrintFile(const char* name) {
  std::string bytes, reason;
  if (!ReadWholeFile(Work(name).c_str(), bytes, reason)) return false;
  std::fwrite(bytes.data(), 1, bytes.size(), stdout);
  return true;
}

bool SaveFile(int round) {
  std::string reason;
  return ReplaceFileContent(Work("file.txt").c_str(), LongText(round), reason);
}
bool ReadFile() { return PrintFile("file.txt"); }

bool SaveThroughLink(int round) {
  std::error_code ignored;
  std::filesystem::create_symlink("real.txt", Work("link.txt"), ignored);
  std::string reason;
  return ReplaceFileContent(Work("link.txt").c_str(), LongText(round), reason);
}
bool ReadThroughLink() { return std::filesystem::is_symlink(Work("link.txt")) && PrintFile("real.txt"); }

bool SaveLines(int round) {
  MTextFile file(false, '!', '}', 256);
  if (!file.Open(Work("lines.txt").c_str(), true)) return false;
  for (int i = 0; i < kEntries; ++i) file.Write("%d\n", round * kEntries + i);
  return file.Close();
}
bool ReadLines() {
  MTextFile file(false, '!', '}', 256);
  if (!file.Open(Work("lines.txt").c_str(), false)) return false;
  for (int value = 0; file.Readln(value);) std::printf("%d\n", value);
  return !file.HasReadFailed();
}

void Print(const SSO_ID& object) {
  std::printf("%d %d %d %.80s\n", object.kind, object.number, object.fourth, object.name);
}

std::vector<SSO_ID> Objects(int round) {
  std::vector<SSO_ID> objects;
  for (int i = 0; i < kEntries; ++i) objects.push_back({FourCC("star"), round * kEntries + i});
  return objects;
}

bool SaveFavourites(int round) {
  CommonInterfaces::FavouriteObjectsFile list;
  list.Read();
  for (const SSO_ID& object : Objects(round)) list.AddObject(object);
  return list.Save();
}
bool ReadFavourites() {
  CommonInterfaces::FavouriteObjectsFile list;
  list.Read();
  for (const SSO_ID& object : list.GetObjects()) Print(object);
  return true;
}

bool SaveSelection(int round) {
  CommonInterfaces::SelectedObjectsFile list("catalogs:selection.txt");
  std::vector<CommonInterfaces::ObjectDesc> objects;
  for (const SSO_ID& object : Objects(round)) objects.push_back({"name", object.kind, object.number});
  return list.SetObjects(objects) && list.Save();
}
bool ReadSelection() {
  std::vector<CommonInterfaces::ObjectDesc> objects;
  const bool any = CommonInterfaces::SelectedObjectsFile("catalogs:selection.txt").GetObjects(objects);
  for (const auto& object : objects)
    std::printf("%s %d %d\n", object.name.c_str(), object.kind, object.number);
  return any;
}

bool SaveChosen(int round) {
  CommonInterfaces::ChoosingObjectsFile list;
  return list.SetObjects(Objects(round)) && list.Save();
}
bool ReadChosen() {
  std::vector<SSO_ID> objects;
  const bool any = CommonInterfaces::ChoosingObjectsFile().GetObjects(objects);
  for (const SSO_ID& object : objects) Print(object);
  return any;
}

bool SaveHomes(int round) {
  Camera camera(1);
  camera.CreateDefault();
  for (int body = 1; body < 400; ++body) {
    camera.SetObserver({FourCC("moon"), body});
    camera.SetLocation({0.0, body * 1e-3, round * 0.5, 0, 2});
    camera.StoreParams(CommonInterfaces::kHomeLocation);
  }
  return camera.StoreHomeParams();
}
bool ReadHomes() {
  const Camera camera(1);
  for (const auto& [observer, home] : camera.GetHomes()) {
    std::printf("%.6f %.6f ", home.location.lon, home.location.lat);
    Print(observer);
  }
  return !camera.GetHomes().empty();
}

void FillSettings(SettingsData& settings, int round) {
  for (int i = 0; i < kEntries; ++i) {
    unsigned char record[CommonInterfaces::kFieldHeaderSize + 4] = {};
    CommonInterfaces::FieldData head = {};
    head.section = static_cast<unsigned>(FourCC("star"));
    head.nameId = i;
    head.type = CommonInterfaces::kFieldInt32;
    head.size = 1;
    std::memcpy(record, &head, CommonInterfaces::kFieldHeaderSize);
    record[CommonInterfaces::kFieldHeaderSize] = static_cast<unsigned char>(round);
    settings.CreateField(reinterpret_cast<const CommonInterfaces::FieldData*>(record), sizeof record, false);
  }
}

void Print(const SettingsData& settings) {
  for (int i = 0; i < settings.GetFieldCount(); ++i) {
    int value = 0;
    settings.GetFieldAt(i)->GetElement(&value, 0);
    std::printf("%x %d %d\n", settings.GetFieldAt(i)->GetSection(), settings.GetFieldAt(i)->GetNameId(),
                value);
  }
}

// A block as its defaults would be, so that all of it is read.
bool SaveSettings(int round) {
  SettingsData other(7, kOwner, "none.data");
  FillSettings(other, 7);
  if (round == 1 && !other.Save("own.data")) return false;
  SettingsData settings(SettingsData::kDefaultsTag, kOwner, "none.data");
  FillSettings(settings, round);
  return settings.Save("own.data");
}
bool ReadSettings() {
  SettingsData settings(SettingsData::kDefaultsTag, kOwner, "none.data");
  const bool isRead = settings.Read("own.data") && SettingsData::HoldsBlock("own.data", kOwner, 7);
  Print(settings);
  return isRead;
}

bool AppendSettings(int round) {
  SettingsData settings(round == 1 ? SettingsData::kDefaultsTag : 7, kOwner, "none.data");
  FillSettings(settings, round);
  return settings.Write("appended.data");
}
// What was appended before is what must be there.
bool ReadAppended() {
  SettingsData settings(SettingsData::kDefaultsTag, kOwner, "none.data");
  const bool isRead = settings.Read("appended.data");
  Print(settings);
  return isRead;
}

bool SaveView(int round) {
  Camera camera(1);
  camera.CreateDefault();
  camera.SetUniversalTime({2460000 + round, 0.25, 1});
  return camera.SaveSelfAll("views.data", 5);
}
bool SaveShortView(int round) {
  Camera camera(1);
  camera.CreateDefault();
  camera.SetUniversalTime({2460000 + round, 0.25, 1});
  return camera.SaveSelf("views.data", 5);
}
bool ReadView() {
  Camera camera(1);
  camera.CreateDefault();
  if (!camera.ReadSelf("views.data", 5)) return false;
  CommonInterfaces::_Date time;
  camera.GetUniversalTime(time);
  std::printf("%d %.17g %.17g\n", time.day, time.fraction, camera.GetZoom());
  return true;
}

bool SaveTiles(int round) {
  scene::StarTileWriter writer(256);  // the rest goes to files beside the target
  if (!writer.Open(Work("stars.tiles").c_str(), "made up")) return false;
  for (int i = 0; i < kEntries; ++i) {
    const scene::TileStar star{i + 1, (i % 2000) * 3e-3, i * 2e-4, 8.0 + 0.1 * round};
    if (!writer.Add(star)) return false;
  }
  return writer.Commit();
}
bool ReadTiles() {
  std::string error;
  scene::StarTiles tiles;
  if (!tiles.Open(Work("stars.tiles").c_str(), error)) return false;
  std::printf("%llu\n", static_cast<unsigned long long>(tiles.GetCount()));
  return PrintFile("stars.tiles");
}

struct Operation {
  const char* name;
  bool (*save)(int round);
  bool (*read)();
};

constexpr Operation kOperations[] = {
    {"file", SaveFile, ReadFile},
    {"link", SaveThroughLink, ReadThroughLink},
    {"lines", SaveLines, ReadLines},
    {"favourites", SaveFavourites, ReadFavourites},
    {"selection", SaveSelection, ReadSelection},
    {"chosen", SaveChosen, ReadChosen},
    {"homes", SaveHomes, ReadHomes},
    {"settings", SaveSettings, ReadSettings},
    {"appended", AppendSettings, ReadAppended},
    {"view", SaveView, ReadView},
    {"short_view", SaveShortView, ReadView},
    {"tiles", SaveTiles, ReadTiles},
};

}  // namespace

int main(int count, char** arguments) {
  if (count == 2 && std::string(arguments[1]) == "list") {
    for (const Operation& operation : kOperations) std::printf("%s\n", operation.name);
    return 0;
  }
  if (count != 5) return 2;
  ZentharPath::SetRoots(arguments[1], arguments[2]);
  const std::string name = arguments[3], what = arguments[4];
  for (const Operation& operation : kOperations)
    if (name == operation.name)
      return (what == "read" ? operation.read() : operation.save(what == "1" ? 1 : 2)) ? 0 : 1;
  return 2;
}
