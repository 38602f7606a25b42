// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "scene/interface_c/sky.h"
#include "scene/words/besides.h"

int scene_suggest(SceneSky* sky, const char* text, int32_t most, SceneArray* suggestions) {
  return scene::Call(sky, [&] {
    if (!text || most < 1 || most > 100 || !scene::IsKnown(suggestions))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "wants a text, room for 1 to 100 objects and an array");
    const scene::ObjectSearch& search = sky->GetSearch();
    scene::List<SceneSuggestion> list;
    for (const auto& [object, name] : search.Suggest(text, static_cast<std::size_t>(most))) {
      list.records.push_back({scene::NameObject(object, *sky), list.Keep(name),
                              list.Keep(search.GetName(object)),
                              list.Keep(scene::DescribeType(object, sky->catalogs))});
    }
    scene::Give(std::move(list), sky->suggestions, suggestions);
    return static_cast<int>(SCENE_OK);
  });
}
