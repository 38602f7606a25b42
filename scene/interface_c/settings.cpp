// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <cstddef>
#include <limits>

#include "common_interfaces/settings_field.h"
#include "common_interfaces/text_formats.h"
#include "scene/catalogs/texts.h"
#include "scene/interface_c/sky.h"
#include "scene/visibility/favourites.h"
#include "scene/visibility/setting_change.h"
#include "scene/visibility/setting_form.h"
#include "scene/visibility/setting_values.h"
#include "utils/utf8.h"

namespace {

using CommonInterfaces::SettingField;
using CommonInterfaces::SettingsData;

// As much of the text as there is room for, with a zero behind it.
template <std::size_t N>
void Copy(const std::string& text, char (&place)[N]) {
  place[text.copy(place, N - 1)] = '\0';
}

// As much of a text of UTF-8 as there is room for, without half a character at its end.
template <std::size_t N>
void CopyText(const std::string& text, char (&place)[N]) {
  Copy(std::string(FitUtf8(text, N - 1)), place);
}

SceneField Describe(const SettingField& field) {
  SceneField described = {};
  Copy(scene::GetCodeText(static_cast<int>(field.GetSection())), described.section);
  Copy(scene::GetFieldTitle(field.GetNameId()), described.name);
  const std::string values = scene::FormatValues(field);
  if (values.size() < sizeof described.values) Copy(values, described.values);
  described.is_on = field.GetCompareStatus() != 0;
  described.acts = !scene::FindUndrawnReason(field.GetSection(), field.GetNameId());
  const scene::SettingForm form = scene::FindSettingForm(field);
  const bool isSwitch = form.kind == scene::SettingKind::kSwitch;
  described.type = static_cast<int32_t>(form.kind);
  described.count = static_cast<int32_t>(field.GetSize());
  described.least = isSwitch ? 0.0 : std::numeric_limits<double>::quiet_NaN();
  described.most = isSwitch ? 1.0 : described.least;
  Copy(form.choices, described.choices);
  if (form.title)
    CopyText(scene::ToUtf8(CommonInterfaces::FormatLocalizedText(*form.title, {})), described.title);
  return described;
}

}  // namespace

int scene_change_setting(SceneSky* sky, const char* change) {
  return scene::Call(sky, [&] {
    if (!change) return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the change is null");
    std::string error;
    if (!scene::ChangeSetting(change, sky->settings, error))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, std::string(change) + ": " + error);
    sky->ReadSettings();
    return static_cast<int>(SCENE_OK);
  });
}

int scene_read_settings(SceneSky* sky, const char* file) {
  return scene::Call(sky, [&] {
    if (!file) return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the file is null");
    SettingsData& settings = sky->settings;
    if (!SettingsData::HoldsBlock(file, settings.GetOwner(), settings.GetID()))
      return scene::Fail(*sky, SCENE_BAD_DATA, std::string(file) + ": holds no settings");
    SettingsData read(settings.GetID(), settings.GetOwner(), "filters.data");
    if (!read.Read(nullptr) || !read.Read(file))
      return scene::Fail(*sky, SCENE_BAD_DATA, std::string(file) + ": the settings are damaged");
    scene::TakeFavourites(file, read);
    settings = read;
    sky->ReadSettings();
    return static_cast<int>(SCENE_OK);
  });
}

int scene_save_settings(SceneSky* sky, const char* file) {
  return scene::Call(sky, [&] {
    if (!file) return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the file is null");
    if (sky->settings.Save(file)) return static_cast<int>(SCENE_OK);
    return scene::Fail(*sky, SCENE_BAD_DATA, std::string(file) + ": the settings cannot be saved there");
  });
}

int32_t scene_get_field_count(const SceneSky* sky) {
  return sky && sky->isOpen ? static_cast<int32_t>(sky->settings.GetFieldCount()) : 0;
}

int scene_get_field(SceneSky* sky, int32_t index, SceneField* field) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(field, offsetof(SceneField, acts) + sizeof field->acts))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the field is null or its size too small");
    if (index < 0 || index >= sky->settings.GetFieldCount())
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "there is no field of that number");
    scene::Give(Describe(*sky->settings.GetFieldAt(index)), field);
    return static_cast<int>(SCENE_OK);
  });
}
