// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A session as one text: what a picture was drawn from (docs/formats/session.md).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scene/api.h"
#include "scene/frame/sky_markers.h"
#include "scene/session/chart_options.h"
#include "scene/session/image_group_names.h"
#include "scene/session/picture_size.h"

namespace scene {

// An object, as lists of favourites name it.
struct SessionFavourite {
  int kind = 0;  // four-character code
  int number = 0;
};

// Whether a line can name the kind: four characters without a blank or a control character among them.
SCENE_API bool IsNameableKind(int kind);

// A file of the data root, by its logical name, and the checksum of its bytes.
struct DataVersion {
  std::string name;
  unsigned long long checksum = 0;
};

// All that a session keeps.
struct SessionCapsule {
  std::string language;
  PictureSize size;
  std::string zone;                   // "": Universal Time
  std::string place;                  // name of the location, "": none
  std::vector<std::string> view;      // of the camera record, each KEY=VALUE[,VALUE...]
  std::vector<std::string> settings;  // what differs from the defaults, as skyview --set takes it
  std::vector<SessionFavourite> favourites;
  std::vector<SkyMark> markers;         // each with its identifier
  std::vector<SessionFavourite> marks;  // objects that the picture marks as favourites
  unsigned framesOf = 0;                // a combination of ImageGroup
  bool showers = false;
  bool plainSky = false;  // else day, twilight and moonlight
  std::string tle;        // file of two-line elements, "": none
  ChartOptions chart;
  std::string orbits;  // as skyview --orbits takes it, "": none
  std::vector<DataVersion> data;
};

// The text, ending in its own checksum. Numbers read back to the same bits, whatever the locale.
SCENE_API std::string FormatSession(const SessionCapsule& capsule);

// What is shown besides the catalogs: the lines of a session from frames-of to orbits, by their first word
// ("style", "bortle"). An option that may come several times has its values with blanks between them; "" is
// one that is not set. False for an unknown word: `value` is then as it was.
SCENE_API bool GetSessionOption(const SessionCapsule& capsule, std::string_view word, std::string& value);
// Sets it, in place of what it was; "" takes it back. `bortle` and `limit-magnitude` take each other back.
// False, with the capsule as it was, for an unknown word and a value that is none.
SCENE_API bool SetSessionOption(std::string_view word, std::string_view value, SessionCapsule& capsule);

// An option and the values that it takes, "screen|print|night|photo". Static texts.
struct SessionOption {
  const char* word;
  const char* values;
};
SCENE_API const std::vector<SessionOption>& GetSessionOptions();

// False for a text that is not wholly a session: `capsule` is then unchanged and `error` says what is wrong,
// without naming the file.
SCENE_API bool ParseSession(std::string_view text, SessionCapsule& capsule, std::string& error);

}  // namespace scene
