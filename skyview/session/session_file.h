// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// A session as one text: what a picture was drawn from (docs/formats/session.md).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "skyview/options/catalog_requests.h"
#include "skyview/options/chart_group.h"
#include "skyview/options/motion_values.h"
#include "skyview/options/option_values.h"

namespace skyview {

struct SessionFavourite {
  int kind = 0;  // four-character code
  int number = 0;
};

// Whether a line can name the kind: four characters without a blank or a control character among them.
bool IsNameableKind(int kind);

// A file of the data root, by its logical name, and the checksum of its bytes.
struct DataVersion {
  std::string name;
  unsigned long long checksum = 0;
};

struct SessionCapsule {
  std::string language;
  PictureSize size;
  std::string zone;                   // "": Universal Time
  std::string place;                  // name of the location, "": none
  std::vector<std::string> view;      // of the camera record, each KEY=VALUE[,VALUE...]
  std::vector<std::string> settings;  // what differs from the defaults, as --set takes it
  std::vector<SessionFavourite> favourites;
  std::vector<scene::SkyMark> markers;  // each with its identifier
  std::vector<SessionFavourite> marks;  // objects that the picture marks as favourites
  unsigned framesOf = 0;                // a combination of ImageGroup
  bool showers = false;
  bool plainSky = false;  // else day, twilight and moonlight
  std::string tle;        // file of two-line elements, "": none
  ChartOptions chart;
  std::string orbits;  // as --orbits takes it, "": none
  std::vector<DataVersion> data;
};

// The text, ending in its own checksum. Numbers read back to the same bits, whatever the locale.
std::string FormatSession(const SessionCapsule& capsule);

// False for a text that is not wholly a session: `capsule` is then unchanged and `error` says what is wrong,
// without naming the file.
bool ParseSession(std::string_view text, SessionCapsule& capsule, std::string& error);

}  // namespace skyview
