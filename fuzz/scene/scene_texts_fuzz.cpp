// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Texts that the C interface takes, over a small sky. The first byte of the input chooses the function, the
// rest is its text. Afterwards the sky is what it was before.
#include <cstring>
#include <string>

#include "fuzz/input.h"
#include "fuzz/small_sky.h"
#include "scene/scene_almanac_c.h"
#include "scene/scene_c.h"
#include "scene/scene_objects_c.h"
#include "scene/scene_state_c.h"

namespace {

using fuzz::Require;

SceneSky* Open() {
  const fuzz::SmallSky& small = fuzz::SmallSky::Get();
  const std::string data = small.Path("data"), work = small.Path("work");
  const SceneRoots roots = {sizeof roots, data.c_str(), work.c_str(), "en"};
  SceneSky* sky = nullptr;
  Require(scene_open(&roots, &sky) == SCENE_OK, "the small sky can be opened");
  return sky;
}

// The sky, and its session as it was opened; closed at the end of the process.
struct Sky {
  SceneSky* sky = Open();
  std::string session = scene_format_session(sky);
  ~Sky() { scene_close(sky); }
};

Sky& TheSky() {
  static Sky sky;
  return sky;
}

bool IsList(const SceneArray& array, std::uint32_t least) {
  return array.count == 0 || (array.records != nullptr && array.record_size >= least);
}

int TakeOption(SceneSky* sky, const std::string& text) {
  const auto end = std::min(text.find('='), text.size());
  const std::string name = text.substr(0, end), value = end < text.size() ? text.substr(end + 1) : "";
  const int status = scene_set_option(sky, name.c_str(), value.c_str());
  if (status != SCENE_OK) return status;
  const char* const kept = scene_get_option(sky, name.c_str());
  Require(kept != nullptr, "an option that can be set can be asked for");
  const std::string copy = kept;
  Require(scene_set_option(sky, name.c_str(), copy.c_str()) == SCENE_OK, "and set to what it is");
  Require(copy == scene_get_option(sky, name.c_str()), "and is the same then");
  return status;
}

int Suggest(SceneSky* sky, const std::string& text) {
  SceneArray found = {sizeof found, 0, 0, nullptr};
  const int status = scene_suggest(sky, text.c_str(), 10, &found);
  if (status != SCENE_OK) return status;
  Require(found.count <= 10 && IsList(found, sizeof(SceneSuggestion)), "as many as were wanted");
  for (std::uint32_t i = 0; i < found.count; ++i) {
    const auto* const record = static_cast<const char*>(found.records) + i * found.record_size;
    SceneSuggestion suggestion;
    std::memcpy(&suggestion, record, sizeof suggestion);
    Require(suggestion.name && suggestion.title && suggestion.kind, "a suggestion has texts");
  }
  return status;
}

int ReadSession(SceneSky* sky, const std::string& text) {
  const int status = scene_read_session(sky, text.c_str());
  if (status != SCENE_OK) return status;
  const char* const written = scene_format_session(sky);
  Require(written != nullptr, "a session that was read can be written");
  const std::string copy = written;
  Require(scene_read_session(sky, copy.c_str()) == SCENE_OK, "and read again");
  Require(copy == scene_format_session(sky), "and is the same");
  return status;
}

int ReadFavourites(SceneSky* sky, const std::string& text) {
  const int status = scene_read_favourites(sky, text.c_str());
  const std::string written = scene_format_favourites(sky);
  Require(scene_read_favourites(sky, written.c_str()) == SCENE_OK, "a list that was written can be read");
  Require(written == scene_format_favourites(sky), "and is the same");
  scene_read_favourites(sky, "");
  return status;
}

int Call(SceneSky* sky, int function, const std::string& text) {
  SceneObject object = {0, 0};
  SceneArray list = {sizeof list, 0, 0, nullptr};
  double hours = 0.0;
  switch (function) {
    case 0:
      return scene_change_setting(sky, text.c_str());
    case 1:
      return scene_find(sky, text.c_str(), &object);
    case 2:
      return Suggest(sky, text);
    case 3:
      return TakeOption(sky, text);
    case 4:
      return ReadSession(sky, text);
    case 5:
      return ReadFavourites(sky, text);
    case 6:
      return scene_find_events(sky, 2461056.5, 2461056.6, text.c_str(), &list);
    case 7:
      return scene_find_cities(sky, text.c_str(), 10, &list);
    case 8:
      return scene_set_language(sky, text.c_str());
    default:
      return scene_get_zone_offset(sky, text.c_str(), 2461056.5, &hours);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Sky& sky = TheSky();
  fuzz::Input input(data, size);
  const int function = input.TakeBelow(10);
  const std::string text = input.TakeRest();
  const int status = Call(sky.sky, function, text.substr(0, text.find('\0')));
  const std::string error = scene_error(sky.sky);
  if (function < 2 || function > 5)
    Require(status == SCENE_OK ? error.empty() : fuzz::IsOneLine(error), "one line tells why not");
  if (function == 8) Require(scene_set_language(sky.sky, "en") == SCENE_OK, "there are English texts");
  if (function == 0 || function == 3 || function == 4)
    Require(scene_read_session(sky.sky, sky.session.c_str()) == SCENE_OK, "the first session can be read");
  return 0;
}
