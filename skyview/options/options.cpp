// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/options/options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstring>

#include "scene/light_curve.h"
#include "utils/messages.h"

namespace skyview {
namespace {

constexpr std::size_t kMaxPictures = 2;
constexpr std::size_t kMaxZoneName = 63;  // what a camera keeps

// An option as the command line names it, what its value looks like, and what it is for.
struct OptionText {
  const char* name;
  const char* form;
  const char* purpose;
};

constexpr OptionText kData = {"--data", "FOLDER", "data root (default: the one beside the program)"};
constexpr OptionText kWork = {"--work", "FOLDER",
                              "work area, whose files hide those of the data root (default: none)"};
constexpr OptionText kLanguage = {"--language", "LANG",
                                  "language of all texts, one of those below languages in the data root "
                                  "(default: en)"};
constexpr OptionText kView = {"--view", "FILE[:ID]", "restore the view with this number, 1 when left out"};
constexpr OptionText kTime = {"--time", "YYYY-MM-DD[THH:MM[:SS]][Z|+HH:MM]",
                              "moment, local in the zone unless Z or an offset stands behind it"};
constexpr OptionText kZone = {"--zone", "NAME", "time zone of the IANA database, for example Europe/Berlin"};
constexpr OptionText kPlace = {"--place", "LAT,LON",
                               "degrees, north and east positive, for example 52.52,13.405"};
constexpr OptionText kLook = {"--look", "AZ,ALT",
                              "degrees, azimuth 0 to 360 from north over east, altitude -90 to 90"};
constexpr OptionText kZoom = {"--zoom", "FACTOR",
                              "0.25 to 10000; 1 shows 37 degrees from the centre to a corner"};
constexpr OptionText kSize = {"--size", "WIDTHxHEIGHT", "pixels, each 64 to 16384 (default: 1600x1000)"};
constexpr OptionText kOut = {"--out", "FILE.svg|FILE.png", "picture to write; may be given twice"};
constexpr OptionText kSave = {"--save-view", "FILE[:ID]",
                              "write the view shown to this file, in place of the one there"};

constexpr OptionText kSettings = {"--settings", "FILE", "own settings kept in this file, over the defaults"};
constexpr OptionText kSet = {"--set", "SECTION.FIELD=VALUE",
                             "change a setting for this run, for example star.VisMagnitude=-2,3:on; may be "
                             "given again"};
constexpr OptionText kFavourite = {"--favourite", "NAME",
                                   "show only favourites of the kind of this object; may be given again"};
constexpr OptionText kFavourites = {
    "--favourites", "show|add=NAME|remove=NAME",
    "the list of favourites in the work area, whose objects the picture marks: "
    "print it and draw nothing, or change it; may be given again"};
constexpr OptionText kFramesOf = {"--frames-of", "constellations|deepsky|milkyway[,...]",
                                  "draw the outlines of these images of the sky; may be given again"};
constexpr OptionText kBody = {"--body", "NAME",
                              "print what is known of this planet or moon, and draw nothing"};
constexpr OptionText kSaveSettings = {"--save-settings", "FILE",
                                      "keep the settings of this run in this file, in place of those there"};
constexpr OptionText kWhy = {"--why", "NAME",
                             "say why this object is or is not drawn, for example M31 or \"alpha CMa\""};

constexpr OptionText kTle = {"--tle", "FILE", "draw the satellites of this file of two-line elements"};
constexpr OptionText kOrbits = {"--orbits", "planets|all|NAME[,NAME...]",
                                "draw the orbits of the planets, of all bodies, or of these"};
constexpr OptionText kWhere = {"--where", "NAME",
                               "say where this object is and when it rises and sets, for example Jupiter"};
constexpr OptionText kLightCurve = {"--light-curve", "ID|NAME",
                                    "draw the light curve of this variable star to --out in place of the "
                                    "sky: an identifier such as 0x48780B23, or "
                                    "a name such as Algol"};
constexpr OptionText kMovingTypeOption = {
    "--moving-type", "N[,keep]",
    "change to this way of moving, 0 to 11, before the other view options; keep: "
    "with zoom and place"};
constexpr OptionText kHome = {"--home", "show|store|go",
                              "list the homes, make the view the home of its observer, or go to the Earth's"};
constexpr OptionText kPlay = {
    "--play", "time=STEP|view=STEP[,view=STEP...]",
    "draw a sequence; STEP of time: 30s, 10m, 1h, 1d; of the view: degrees of azimuth, "
    "altitude, slope"};
constexpr OptionText kFrames = {"--frames", "N", "number of frames of the sequence, 1 to 10000"};
constexpr OptionText kContactSheet = {"--contact-sheet", "FILE.png",
                                      "all frames of the sequence in one picture"};
constexpr OptionText kMarker = {
    "--marker", "RA,DEC[,ID]",
    "mark this place of the sky, degrees J2000, or hours with h behind RA; may be given "
    "again"};
constexpr OptionText kSession = {"--session", "FILE", "restore the session that is kept in this file"};
constexpr OptionText kSaveSession = {"--save-session", "FILE",
                                     "keep all that the picture is drawn from in this small text file"};
constexpr OptionText kPatterns = {"--out", "NAME%03d.svg|NAME%03d.png",
                                  "with --play one number, %d or %01d to %09d, and no other %"};

// Stops the reading at the first value that is not of the accepted form.
struct BadOption {
  std::string message;
};

[[noreturn]] void ThrowBadValue(const OptionText& option, const std::string& value) {
  throw BadOption{std::string(option.name) + " '" + value + "': wants " + option.form + " (" +
                  option.purpose + ")"};
}

// The texts as they stand on the command line, before any is looked at.
struct Texts {
  std::string data, work, language, view, saveView, time, zone, place, look, zoom, size;
  std::string settings, saveSettings, why, body, tle, orbits, where, lightCurve;
  std::string movingType, home, play, frames, contactSheet, session, saveSession;
  std::vector<std::string> out, set, favourites, markers, favouriteActions, framesOf;
  bool showers = false;
};

void Declare(CLI::App& app, Texts& texts, bool& listLimits) {
  const auto add = [&app](const OptionText& option, auto& text) {
    return app.add_option(option.name, text, option.purpose)->type_name(option.form);
  };
  add(kData, texts.data);
  add(kWork, texts.work);
  add(kLanguage, texts.language);
  add(kView, texts.view);
  add(kTime, texts.time);
  add(kZone, texts.zone);
  add(kPlace, texts.place);
  add(kLook, texts.look);
  add(kZoom, texts.zoom);
  add(kSize, texts.size);
  add(kOut, texts.out)->expected(1)->take_all();
  add(kSave, texts.saveView);
  add(kSettings, texts.settings);
  add(kSet, texts.set)->expected(1)->take_all();
  add(kFavourite, texts.favourites)->expected(1)->take_all();
  add(kFavourites, texts.favouriteActions)->expected(1)->take_all();
  add(kFramesOf, texts.framesOf)->expected(1)->take_all();
  add(kBody, texts.body);
  add(kTle, texts.tle);
  add(kOrbits, texts.orbits);
  add(kWhere, texts.where);
  add(kLightCurve, texts.lightCurve);
  app.add_flag("--showers", texts.showers,
               "list the meteor showers active on the day of the view, and draw their radiants");
  add(kSaveSettings, texts.saveSettings);
  add(kWhy, texts.why);
  add(kMovingTypeOption, texts.movingType);
  add(kHome, texts.home);
  add(kPlay, texts.play);
  add(kFrames, texts.frames);
  add(kContactSheet, texts.contactSheet);
  add(kMarker, texts.markers)->expected(1)->take_all();
  add(kSession, texts.session);
  add(kSaveSession, texts.saveSession);
  app.add_flag("--list-limits", listLimits,
               "list the limiting magnitudes of each class by zoom, and draw nothing");
}

// Reads the value of an option that was given.
template <class T, class Parser>
void Take(const CLI::App& app, const OptionText& option, const std::string& text, std::optional<T>& value,
          Parser parse) {
  if (app.count(option.name) == 0) return;
  value = parse(text);
  if (!value) ThrowBadValue(option, text);
}

std::optional<std::string> ParseName(std::string_view text) {
  if (text.empty()) return std::nullopt;
  return std::string(text);
}

std::optional<std::string> ParseZone(std::string_view text) {
  if (text.empty() || text.size() > kMaxZoneName) return std::nullopt;
  return std::string(text);
}

void TakePictures(const std::vector<std::string>& names, Options& options) {
  for (const auto& name : names) {
    if (!IsPictureName(name)) ThrowBadValue(kOut, name);
    if (options.play && !FrameNames::Parse(name)) ThrowBadValue(kPatterns, name);
    if (std::find(options.out.begin(), options.out.end(), name) != options.out.end()) {
      throw BadOption{"--out '" + name + "': given twice; wants two different files"};
    }
    options.out.push_back(name);
  }
  if (names.size() > kMaxPictures) throw BadOption{"--out: given more than twice; wants at most two files"};
}

std::optional<std::string> ParseSheetName(std::string_view text) {
  if (!IsPictureName(text) || !text.ends_with(".png")) return std::nullopt;
  return std::string(text);
}

void TakeMarkers(const std::vector<std::string>& texts, Options& options) {
  for (const auto& text : texts) {
    const auto mark = ParseMark(text);
    if (!mark) ThrowBadValue(kMarker, text);
    options.markers.push_back(*mark);
  }
  if (options.markers.size() > static_cast<std::size_t>(kMaxMarks)) {
    throw BadOption{"--marker: given more than " + std::to_string(kMaxMarks) + " times"};
  }
}

void TakeMotion(const CLI::App& app, const Texts& texts, Options& options) {
  Take(app, kMovingTypeOption, texts.movingType, options.movingType, ParseMovingType);
  Take(app, kHome, texts.home, options.home, ParseHomeAction);
  Take(app, kPlay, texts.play, options.play, ParsePlay);
  Take(app, kFrames, texts.frames, options.frames, ParseFrameCount);
  Take(app, kContactSheet, texts.contactSheet, options.contactSheet, ParseSheetName);
  Take(app, kSession, texts.session, options.session, ParseName);
  Take(app, kSaveSession, texts.saveSession, options.saveSession, ParseName);
  TakeMarkers(texts.markers, options);
}

void TakeBodyRequests(const CLI::App& app, const Texts& texts, Options& options) {
  Take(app, kTle, texts.tle, options.tle, ParseName);
  Take(app, kOrbits, texts.orbits, options.orbits, ParseOrbits);
  Take(app, kWhere, texts.where, options.where, ParseName);
  if (app.count(kLightCurve.name) > 0 && !scene::FindVariableStar(texts.lightCurve)) {
    throw BadOption{std::string(kLightCurve.name) + " '" + texts.lightCurve + "': wants " + kLightCurve.form +
                    ", one of " + JoinNames(scene::ListVariableStars())};
  }
  Take(app, kLightCurve, texts.lightCurve, options.lightCurve, ParseName);
}

void TakeCatalogRequests(const CLI::App& app, const Texts& texts, Options& options) {
  for (const auto& text : texts.favouriteActions) {
    const auto action = ParseFavouriteAction(text);
    if (!action) ThrowBadValue(kFavourites, text);
    options.favouriteActions.push_back(*action);
  }
  for (const auto& text : texts.framesOf) {
    const auto groups = ParseImageGroups(text);
    if (!groups) ThrowBadValue(kFramesOf, text);
    options.framesOf |= *groups;
  }
  Take(app, kBody, texts.body, options.body, ParseName);
  options.showers = texts.showers;
}

// Options that make no sense with or without each other.
void CheckTogether(const Options& options) {
  if (options.play.has_value() != options.frames.has_value()) {
    throw BadOption{options.play ? "--play: wants --frames N beside it" : "--frames: wants --play beside it"};
  }
  if (options.contactSheet && !options.play) throw BadOption{"--contact-sheet: wants --play beside it"};
  if (options.play && options.out.empty() && !options.contactSheet) {
    throw BadOption{"--play: wants --out NAME%03d.png or --contact-sheet FILE.png beside it"};
  }
  if (options.play && options.listLimits) throw BadOption{"--play: draws, which --list-limits does not"};
  if (options.play && (options.body || WantsFavouritesShown(options.favouriteActions))) {
    throw BadOption{std::string("--play: draws, which ") + (options.body ? "--body" : "--favourites show") +
                    " does not"};
  }
  if (options.why && options.where)
    throw BadOption{"--where: prints in place of the report, and so does --why"};
  if (options.lightCurve && (options.out.empty() || options.play)) {
    throw BadOption{"--light-curve: wants --out FILE.svg or --out FILE.png beside it, and no --play"};
  }
  if (!options.favouriteActions.empty() && !options.work)
    throw BadOption{"--favourites: wants --work FOLDER, where the list is kept"};
  if (options.session && options.view) throw BadOption{"--session: holds a view, wants no --view beside it"};
  if (options.session && options.settings)
    throw BadOption{"--session: holds settings, wants no --settings beside it"};
  if (options.home == HomeAction::kStore && !options.work)
    throw BadOption{"--home store: wants --work FOLDER, where homes are kept"};
}

Options Read(const CLI::App& app, const Texts& texts) {
  Options options;
  std::optional<PictureSize> size;
  std::optional<std::string> language;
  Take(app, kData, texts.data, options.data, ParseName);
  Take(app, kWork, texts.work, options.work, ParseName);
  Take(app, kLanguage, texts.language, language, ParseName);
  Take(app, kView, texts.view, options.view, ParseViewFile);
  Take(app, kTime, texts.time, options.time, ParseTime);
  Take(app, kZone, texts.zone, options.zone, ParseZone);
  Take(app, kPlace, texts.place, options.place, ParsePlace);
  Take(app, kLook, texts.look, options.look, ParseLook);
  Take(app, kZoom, texts.zoom, options.zoom, ParseZoom);
  Take(app, kSize, texts.size, size, ParseSize);
  Take(app, kSave, texts.saveView, options.saveView, ParseViewFile);
  Take(app, kSettings, texts.settings, options.settings, ParseName);
  Take(app, kSaveSettings, texts.saveSettings, options.saveSettings, ParseName);
  Take(app, kWhy, texts.why, options.why, ParseName);
  options.set = texts.set;
  options.favourites = texts.favourites;
  if (size) options.size = *size;
  if (language) options.language = *language;
  options.sizeGiven = size.has_value();
  options.languageGiven = language.has_value();
  options.timeText = texts.time;
  TakeCatalogRequests(app, texts, options);
  TakeBodyRequests(app, texts, options);
  TakeMotion(app, texts, options);
  TakePictures(texts.out, options);
  return options;
}

// The parser's own complaints (an unknown option, a missing value, an option given twice) as one line.
std::string OneLine(const CLI::Error& error) {
  std::string line = error.what();
  std::replace(line.begin(), line.end(), '\n', ' ');
  return line + " (skyview --help lists the options and their forms)";
}

}  // namespace

ParseResult ParseOptions(const std::vector<std::string>& arguments) {
  ParseResult result;
  Texts texts;
  CLI::App app("Restores a saved view of the sky, says what it restored and draws it.", "skyview");
  app.allow_windows_style_options(false);  // a path may begin with a slash on every system
  bool listLimits = false;
  Declare(app, texts, listLimits);
  try {
    // The parser takes its arguments from the back.
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    result.options = Read(app, texts);
    result.options.listLimits = listLimits;
    CheckTogether(result.options);
    result.outcome = ParseOutcome::kRun;
  } catch (const CLI::CallForHelp&) {
    result.outcome = ParseOutcome::kHelp;
    result.message = app.help();
  } catch (const CLI::Error& error) {
    result.message = OneLine(error);
  } catch (const BadOption& bad) {
    result.message = bad.message;
  }
  return result;
}

}  // namespace skyview
