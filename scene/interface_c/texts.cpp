// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/catalogs/texts.h"
#include "common_interfaces/string_table.h"
#include "scene/catalogs/language.h"
#include "scene/interface_c/sky.h"

namespace {

// What people call their own language; the string tables do not say it.
const char* GetOwnName(const std::string& code) {
  constexpr struct {
    std::string_view code;
    const char* name;
  } kNames[] = {{"de", "Deutsch"},  {"en", "English"}, {"es", "Español"}, {"fr", "Français"},
                {"it", "Italiano"}, {"pl", "Polski"},  {"ru", "Русский"}, {"uk", "Українська"}};
  for (const auto& entry : kNames) {
    if (entry.code == code) return entry.name;
  }
  return nullptr;
}

}  // namespace

const char* scene_get_text(SceneSky* sky, int32_t number) {
  const char* text = nullptr;
  scene::Call(sky, [&] {
    auto found = sky->texts.find(number);
    if (found == sky->texts.end()) {
      using CommonInterfaces::QX4Strings;
      const char* const kept = QX4Strings::GetString(static_cast<unsigned>(number), true);
      found = sky->texts.emplace(number, kept ? scene::ToUtf8(kept) : "").first;
    }
    text = found->second.c_str();
    return static_cast<int>(SCENE_OK);
  });
  return text;
}

int scene_get_languages(SceneSky* sky, SceneArray* languages) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(languages))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the array is null or its size too small");
    scene::List<SceneLanguage> list;
    for (const std::string& code : scene::ListLanguages(sky->data)) {
      const char* const name = GetOwnName(code);
      list.records.push_back({list.Keep(code), list.Keep(name ? name : code)});
    }
    scene::Give(std::move(list), sky->languages, languages);
    return static_cast<int>(SCENE_OK);
  });
}

const char* scene_get_language(SceneSky* sky) { return sky && sky->isOpen ? sky->language.c_str() : nullptr; }
