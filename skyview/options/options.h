// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "skyview/options/catalog_requests.h"
#include "scene/language.h"
#include "skyview/options/motion_values.h"
#include "skyview/options/option_values.h"
#include "skyview/options/orbit_request.h"
#include "skyview/session/session_file.h"

namespace skyview {

// What the command line asks for. An option that was not given stays empty: the restored view then decides.
struct Options {
  std::optional<std::string> data;  // folder of the data root
  std::optional<std::string> work;  // folder of the work area
  std::string language = scene::kDefaultLanguage;
  bool languageGiven = false;
  std::optional<ViewFile> view;
  std::optional<ViewFile> saveView;
  std::optional<WrittenTime> time;
  std::string timeText;  // --time as written, for messages
  std::optional<std::string> zone;
  std::optional<Place> place;
  std::optional<Look> look;
  std::optional<double> zoom;
  PictureSize size;
  bool sizeGiven = false;
  std::vector<std::string> out;                   // at most two
  std::optional<std::string> settings;            // file with own settings
  std::optional<std::string> saveSettings;        // file to keep them in
  std::vector<std::string> set;                   // changes of settings, in their order
  std::vector<std::string> favourites;            // names of objects that the filters let pass
  std::vector<FavouriteAction> favouriteActions;  // on the user's list, in their order
  unsigned framesOf = 0;                          // a combination of ImageGroup
  bool showers = false;
  std::optional<std::string> tle;  // file of two-line elements
  std::optional<OrbitRequest> orbits;
  std::optional<std::string> where;       // name of an object
  std::optional<std::string> lightCurve;  // of this variable star
  std::optional<std::string> body;        // name of a planet or moon
  std::optional<std::string> why;         // name of an object
  bool listLimits = false;
  std::optional<MovingType> movingType;
  std::optional<HomeAction> home;
  std::optional<PlayRequest> play;  // then the names in `out` are patterns
  std::optional<int> frames;        // with `play`
  std::optional<std::string> contactSheet;
  std::vector<scene::SkyMark> markers;
  std::optional<std::string> session;      // file to restore from
  std::optional<std::string> saveSession;  // file to keep it in
  std::optional<SessionCapsule> capsule;   // what `session` holds, once it was read
};

enum class ParseOutcome { kRun, kHelp, kBad };

struct ParseResult {
  ParseOutcome outcome = ParseOutcome::kBad;
  Options options;  // meaningful for kRun
  std::string
      message;  // kHelp: the help text; kBad: one line, without its end, that names the option and its form
};

// Reads the arguments, the program's name left aside.
ParseResult ParseOptions(const std::vector<std::string>& arguments);

}  // namespace skyview
