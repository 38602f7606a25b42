// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string_view>

#include "scene/interface_c/sky.h"
#include "utils/debug.h"
#include "utils/numbers.h"
#include "utils/utf8.h"

namespace {

// The whole characters of the name that an identifier has room for, without what would tear its line.
void SetName(std::string_view name, SSO_ID& id) {
  const std::size_t length = FitUtf8(name, sizeof id.name - 1).copy(id.name, sizeof id.name - 1);
  id.name[length] = '\0';
}

std::string_view TakePiece(std::string_view& line) {
  const auto piece = line.substr(0, line.find('\t'));
  line.remove_prefix(std::min(piece.size() + 1, line.size()));
  return piece;
}

bool TakeWhole(std::string_view& line, int& value) {
  std::string_view piece = TakePiece(line);
  return TakeNumber(piece, value) && piece.empty();
}

// "Mars" TAB kind TAB number, as files of favourites have it.
std::optional<SSO_ID> ReadLine(std::string_view line) {
  SSO_ID id;
  const std::string_view name = TakePiece(line);
  if (!TakeWhole(line, id.kind) || !TakeWhole(line, id.number)) return std::nullopt;
  SetName(name, id);
  return id;
}

std::vector<SSO_ID> ReadList(std::string_view text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  std::vector<SSO_ID> list;
  if (text.starts_with(kByteOrderMark)) text.remove_prefix(kByteOrderMark.size());
  for (int number = 1; !text.empty(); ++number) {
    std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty()) continue;
    const auto id = ReadLine(line);
    if (!id) {
      PrintDebugString("favourites: line %d is none and left out\n", number);
    } else if (std::find(list.begin(), list.end(), *id) == list.end()) {
      list.push_back(*id);
    }
  }
  return list;
}

std::string GetName(const SSO_ID& id, SceneSky& sky) {
  const auto found = scene::FindObject({id.kind, id.number}, sky.catalogs);
  return found ? sky.GetSearch().GetName(*found) : std::string(id.name);
}

}  // namespace

int scene_mark(SceneSky* sky, SceneObject object, int32_t isMarked) {
  return scene::Call(sky, [&] {
    SSO_ID id(object.kind, object.number);
    const auto known = std::find(sky->marks.begin(), sky->marks.end(), id);
    if (isMarked == 0) {
      if (known != sky->marks.end()) sky->marks.erase(known);
    } else if (known == sky->marks.end()) {
      const auto found = scene::FindNamed(object, *sky);
      if (!found) return static_cast<int>(SCENE_NOT_FOUND);
      SetName(sky->GetSearch().GetName(*found), id);
      sky->marks.push_back(id);
    }
    sky->maker->GetFrame().SetFavourites(sky->marks);
    return static_cast<int>(SCENE_OK);
  });
}

int scene_get_favourites(SceneSky* sky, SceneArray* favourites) {
  return scene::Call(sky, [&] {
    if (!scene::IsKnown(favourites))
      return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the array is null or its size too small");
    scene::List<SceneFavourite> list;
    for (const SSO_ID& id : sky->marks)
      list.records.push_back({{id.kind, id.number}, list.Keep(GetName(id, *sky))});
    scene::Give(std::move(list), sky->favourites, favourites);
    return static_cast<int>(SCENE_OK);
  });
}

const char* scene_format_favourites(SceneSky* sky) {
  const int status = scene::Call(sky, [&] {
    std::string text;
    for (const SSO_ID& id : sky->marks)
      text += GetName(id, *sky) + "\t" + std::to_string(id.kind) + "\t" + std::to_string(id.number) + "\n";
    sky->favouriteText = std::move(text);
    return static_cast<int>(SCENE_OK);
  });
  return status == SCENE_OK ? sky->favouriteText.c_str() : nullptr;
}

int scene_read_favourites(SceneSky* sky, const char* text) {
  return scene::Call(sky, [&] {
    if (!text) return scene::Fail(*sky, SCENE_BAD_ARGUMENT, "the text is null");
    sky->marks = ReadList(text);
    sky->maker->GetFrame().SetFavourites(sky->marks);
    return static_cast<int>(SCENE_OK);
  });
}
