// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Filters the sky and objects of its own by settings, and keeps them: tutorial_settings DATA_ROOT WORK
#include <common_interfaces/common_interfaces.h>
#include <scene/scene.h>
#include <utils/utils.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>

namespace {

using CommonInterfaces::BaseQuery, CommonInterfaces::SettingsData;
using QueryList = CommonInterfaces::TBaseList<BaseQuery*>;

constexpr int kEyepieces = FourCC("eyep");  // a section of this program's own
constexpr char kFile[] = "my_settings.data";

// The eyepieces from 10 to 25 mm: one record, a header and two numbers behind it.
void AddEyepieceFilter(SettingsData& settings) {
  CommonInterfaces::FieldData header = {};
  header.section = kEyepieces;
  header.nameId = GetUniqueID("FocalLength");
  header.type = CommonInterfaces::kFieldFloat;
  header.size = 2;
  header.condition = scene::kRangeCondition;
  header.compareStatus = 1;  // takes part
  header.querySection = CommonInterfaces::kOwnQuerySection;
  const float range[] = {10.0f, 25.0f};
  unsigned char record[CommonInterfaces::kFieldHeaderSize + sizeof range];
  std::memcpy(record, &header, CommonInterfaces::kFieldHeaderSize);
  std::memcpy(record + CommonInterfaces::kFieldHeaderSize, range, sizeof range);
  settings.CreateField(reinterpret_cast<const CommonInterfaces::FieldData*>(record), sizeof record, true);
  settings.SetSectionStatus(kEyepieces, 1);
}

// What the library makes of the settings is a list of queries; what they mean to an eyepiece is this
// program's business.
bool PassesQueries(float focalLength, SettingsData& settings) {
  const std::unique_ptr<QueryList> queries(
      static_cast<QueryList*>(settings.CreateQueryList(kEyepieces, false)));
  if (!queries) return true;  // the section is off
  for (const BaseQuery* query : *queries) {
    if (query->m_NameId != GetUniqueID("FocalLength")) continue;
    const float least = *static_cast<const float*>(query->GetValue(0));
    const float most = *static_cast<const float*>(query->GetValue(1));
    if (focalLength < least || focalLength > most) return false;
  }
  return true;
}

void PrintEyepieces(SettingsData& settings) {
  std::printf("eyepieces:");
  for (const float focalLength : {5.0f, 12.0f, 18.0f, 32.0f}) {
    if (PassesQueries(focalLength, settings)) std::printf(" %.0f mm", static_cast<double>(focalLength));
  }
  std::printf("\n");
}

// The scene takes the sections that it knows by itself.
void PrintStars(const scene::SkyCatalogs& catalogs, SettingsData& settings) {
  CommonInterfaces::Camera camera(1);
  camera.CreateDefault();
  camera.ReadSelf("views:orion.data", 1);
  camera.SetWinRect({1600, 1000, 1600, 1000});
  const scene::ShownKinds shown = scene::ReadShownKinds(settings);
  scene::ObjectFilters filters;
  filters.Refresh(settings);
  const scene::SkyMarkers markers;
  scene::FrameMaker maker(camera, catalogs, shown, filters, markers);
  maker.Prepare();
  maker.Compute();
  std::printf("stars: %zu\n", maker.GetFrame().GetStars().size());
}

bool Run(const char* data, const char* work, std::string& error) {
  scene::SkyCatalogs catalogs;
  if (!scene::OpenDataRoot(data, work, "en", catalogs, error)) return false;

  SettingsData settings(1, FourCC("FLTR"), "filters.data");  // id 1, owner FLTR: the settings of the sky
  settings.Read(nullptr);                                    // the defaults
  PrintStars(catalogs, settings);
  if (!scene::ChangeSetting("star.VisMagnitude=-2,3:on", settings, error)) return false;
  PrintStars(catalogs, settings);
  AddEyepieceFilter(settings);
  const float most = 20.0f;
  settings.SetFieldElement(kEyepieces, GetUniqueID("FocalLength"), &most, 1);
  PrintEyepieces(settings);
  if (!settings.Save(kFile)) return false;  // whole or not at all, with a line that says why

  SettingsData restarted(1, FourCC("FLTR"), "filters.data");
  restarted.Read(nullptr);
  AddEyepieceFilter(restarted);  // a file gives values to fields that are there
  if (!restarted.Restore(kFile)) {
    error = std::string(kFile) + ": cannot be read";
    return false;
  }
  std::printf("after a restart\n");
  PrintStars(catalogs, restarted);
  PrintEyepieces(restarted);
  return true;
}

}  // namespace

int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) {
    std::fprintf(stderr, "usage: tutorial_settings DATA_ROOT WORK\n");
    return 2;
  }
  std::string error;
  if (Run(arguments[1], arguments[2], error)) return 0;
  std::fprintf(stderr, "tutorial_settings: %s\n", error.c_str());
  return 1;
}
