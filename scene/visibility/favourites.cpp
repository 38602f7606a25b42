// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/visibility/favourites.h"

#include <cstring>
#include <vector>

#include "common_interfaces/field_data.h"
#include "scene/visibility/kind_switches.h"
#include "utils/bytes.h"
#include "utils/file.h"
#include "utils/text.h"

namespace scene {
namespace {

using CommonInterfaces::FieldData;
using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

constexpr unsigned kFavouriteSize = 9;  // five flags and the number
constexpr int kNumberOffset = 5;

// Makes a field of that header and `values`, in a section that is on when it did not exist.
void CreateField(const FieldData& header, const std::vector<unsigned char>& values, SettingsData& settings) {
  const unsigned section = header.section;
  const bool existed = HasSection(settings, section);
  std::vector<unsigned char> record(CommonInterfaces::kFieldHeaderSize + values.size());
  std::memcpy(record.data(), &header, CommonInterfaces::kFieldHeaderSize);
  std::memcpy(record.data() + CommonInterfaces::kFieldHeaderSize, values.data(), values.size());
  settings.CreateField(reinterpret_cast<const FieldData*>(record.data()), static_cast<int>(record.size()),
                       true);
  if (!existed) settings.SetSectionStatus(section, 1);
  settings.SetSectionChanged(section, true);
}

bool HasField(unsigned section, int nameId, SettingsData& settings) {
  const unsigned before = settings.SetCurSection(section);
  const bool has = settings.GetCurSection() != 0 && settings.GetAtField(section, nameId, false);
  settings.SetCurSection(before);
  return has;
}

void Copy(const SettingField& field, SettingsData& settings) {
  FieldData header = {};
  header.section = field.GetSection();
  header.nameId = field.GetNameId();
  header.type = CommonInterfaces::kFieldBytes;
  header.size = static_cast<unsigned short>(field.GetSize());
  header.condition = field.GetCondition();
  header.compareStatus = field.GetCompareStatus();
  header.querySection = field.GetQuerySection();
  std::vector<unsigned char> values(field.GetSize());
  field.GetData(values.data());
  CreateField(header, values, settings);
}

// The position is then at the number of fields of the container's own block.
bool FindFields(MFile& file, const SettingsData& settings, unsigned id) {
  unsigned char key[8], count[2];
  StoreLE32(key, settings.GetOwner());
  StoreLE32(key + 4, id);
  if (!file.Search(key, sizeof key) || file.Read(count, sizeof count) != sizeof count) return false;
  const int sections = static_cast<short>(LoadLE16(count));
  return sections >= 0 && file.Seek(1, sections * static_cast<int>(sizeof(CommonInterfaces::SectionRecord)));
}

}  // namespace

void AddFavourite(SettingsData& settings, int kind, int number) {
  const auto section = static_cast<unsigned>(kind);
  const int nameId = GetUniqueID(("Favourite" + std::to_string(number)).c_str());
  if (HasField(section, nameId, settings)) {
    settings.SetFieldStatus(section, nameId, 1);
    return;
  }
  FieldData header = {};
  header.section = header.querySection = section;
  header.nameId = nameId;
  header.type = CommonInterfaces::kFieldBytes;
  header.size = kFavouriteSize;
  header.compareStatus = 1;
  std::vector<unsigned char> values(kFavouriteSize);
  StoreLE32(values.data() + kNumberOffset, static_cast<unsigned>(number));
  CreateField(header, values, settings);
}

std::optional<int> GetFavouriteNumber(const SettingField& field) {
  if (field.GetType() != CommonInterfaces::kFieldBytes || field.GetSize() < kFavouriteSize)
    return std::nullopt;
  std::vector<unsigned char> values(field.GetSize());
  field.GetData(values.data());
  return static_cast<int>(LoadLE32(values.data() + kNumberOffset));
}

int TakeFavourites(const std::string& path, SettingsData& settings) {
  MFile file;
  unsigned char count[4];
  if (!file.Open(path.c_str(), MFile::kRead) || !FindFields(file, settings, settings.GetID()) ||
      file.Read(count, sizeof count) != sizeof count) {
    return 0;
  }
  int taken = 0;
  for (int left = static_cast<int>(LoadLE32(count)); left > 0; --left) {
    const SettingField field(&file, nullptr, 0);
    if (!field.IsOk()) break;
    if (!GetFavouriteNumber(field)) continue;
    if (HasField(field.GetSection(), field.GetNameId(), settings)) continue;
    Copy(field, settings);
    ++taken;
  }
  return taken;
}

}  // namespace scene
