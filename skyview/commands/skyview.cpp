// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skyview/commands/skyview.h"

#include "common_interfaces/camera.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/string_table.h"
#include "skyview/reports/body_report.h"
#include "skyview/commands/body_requests.h"
#include "scene/caption.h"
#include "skyview/session/diagnostics.h"
#include "skyview/session/favourite_list.h"
#include "scene/favourites.h"
#include "scene/frame_maker.h"
#include "skyview/session/homes.h"
#include "skyview/reports/host_texts.h"
#include "scene/language.h"
#include "scene/object_search.h"
#include "skyview/options/options.h"
#include "skyview/commands/picture_extras.h"
#include "paint/picture_file.h"
#include "skyview/reports/report.h"
#include "skyview/commands/sequence.h"
#include "skyview/session/session.h"
#include "skyview/options/settings_options.h"
#include "skyview/reports/shower_report.h"
#include "scene/sky_frame.h"
#include "scene/data_root.h"
#include "skyview/reports/status.h"
#include "skyview/session/view_state.h"
#include "skyview/reports/where.h"
#include "skyview/reports/explanation.h"
#include "utils/text.h"

namespace skyview {
namespace {

using CommonInterfaces::Camera;
using CommonInterfaces::QX4Strings;
using CommonInterfaces::SettingsData;

constexpr int kDone = 0, kBadData = 1, kBadOption = 2;
constexpr unsigned kOwner = 1;  // of the camera and of the settings

int Fail(const std::string& message, int code, std::ostream& errors) {
  errors << "skyview: " << message << "\n";
  return code;
}

bool SetUpRoots(const Options& options, const std::string& programFolder, std::string& data,
                std::string& error) {
  if (options.data) {
    data = *options.data;
  } else if (!scene::FindDataRoot(programFolder, data, error)) {
    return false;
  }
  return scene::SetSkyRoots(data, options.work.value_or(""), error);
}

// What the session keeps for its whole life.
struct Session {
  SettingsData settings{kOwner, FourCC("FLTR"), "filters.data"};
  Camera camera{kOwner};
  scene::SkyCatalogs catalogs;
  scene::ObjectFilters filters;
  scene::SkyMarkers markers;
  std::vector<SSO_ID> marks;  // objects that the picture marks
  std::vector<int> orbits;    // bodies whose orbits it shows
};

// The object that --why or --where asks about.
struct Question {
  scene::FoundObject object;
  std::string title;
};

int CodeOf(Failure failure) { return failure == Failure::kBadOption ? kBadOption : kBadData; }

// Restores what the session keeps of the settings; what the data of today cannot follow becomes a diagnostic line.
void TakeCapsule(const Options& options, SettingsData& settings, Diagnostics& diagnostics) {
  if (!options.capsule) return;
  std::vector<std::string> lines = FindChangedData(*options.capsule, options.language);
  RestoreSettings(*options.capsule, settings, lines);
  for (const auto& line : lines) diagnostics.lines.push_back(line + "\n");
}

// Defaults, own settings, the changes of this run.
ViewResult SetUpSettings(const Options& options, SettingsData& settings, Diagnostics& diagnostics) {
  ViewResult result = LoadSettings(options.settings, settings);
  if (result.failure == Failure::kNone) TakeCapsule(options, settings, diagnostics);
  for (const auto& change : options.set) {
    if (result.failure == Failure::kNone) result = ChangeSetting(change, settings);
  }
  return result;
}

// Finds the objects of --favourite, and of --why or --where.
bool FindFiltersAndQuestion(const Options& options, const scene::ObjectSearch& search, Session& session,
                            std::optional<Question>& question, std::string& error) {
  for (const auto& name : options.favourites) {
    const auto found = search.FindOne(name, error);
    if (!found) {
      error = "--favourite " + error;
      return false;
    }
    scene::AddFavourite(session.settings, scene::GetKind(*found, session.catalogs), scene::GetNumber(*found, session.catalogs));
  }
  const auto& asked = options.why ? options.why : options.where;
  if (!asked) return true;
  if (const auto found = search.FindOne(*asked, error)) {
    question = {*found, search.GetTitle(*found)};
    return true;
  }
  error = (options.why ? "--why " : "--where ") + error;
  return false;
}

// Loads the catalogs and finds the objects that the options name. The user's list is changed last, when nothing else is
// wrong with them.
bool FindNamedObjects(const Options& options, Session& session, std::optional<Question>& question,
                      std::string& error) {
  if (!scene::LoadSkyCatalogs(session.catalogs, error)) return false;
  if (!AddSatellites(options, session.camera, session.catalogs.bodies, error)) return false;
  std::optional<scene::ObjectSearch> search;
  const bool wantsOrbits = options.orbits && !options.orbits->names.empty();
  if (!options.favourites.empty() || options.why || options.where || wantsOrbits ||
      !options.favouriteActions.empty())
    search.emplace(session.catalogs);
  if (!FindOrbits(options, search ? &*search : nullptr, session.catalogs.bodies, session.orbits, error))
    return false;
  if (search && !FindFiltersAndQuestion(options, *search, session, question, error)) return false;
  return FindMarks(options, search ? &*search : nullptr, session.catalogs, session.marks, error);
}

bool KeepSettings(const Options& options, Session& session, std::string& error) {
  return !options.saveSettings || SaveSettings(session.settings, *options.saveSettings, error);
}

// Files that keep what the options say, once it could be drawn.
bool KeepView(const Options& options, Session& session, Diagnostics& diagnostics, std::string& error) {
  if (options.saveView && !SaveView(session.camera, *options.saveView, error)) return false;
  if (options.home == HomeAction::kStore && !StoreHome(session.camera, diagnostics, error)) return false;
  if (options.saveSession && !SaveSession(*options.saveSession, options, session.settings, session.markers,
                                          session.marks, session.camera, error)) {
    return false;
  }
  return KeepSettings(options, session, error);
}

bool WritePictures(const Options& options, const scene::SkyFrame& frame, std::string& error) {
  if (options.play) return true;
  for (const auto& name : options.out) {
    if (!paint::WritePicture(frame.GetDisplayList(), name, error)) return false;
  }
  return true;
}

// The frame as the options want it, ready to be computed for the first time.
bool SetUpFrame(const Options& options, Session& session, const std::vector<std::string>& status,
                scene::FrameMaker& maker, std::string& error) {
  scene::SkyFrame& frame = maker.GetFrame();
  if (!SetUpExtras(options, session.marks, frame, error)) return false;
  if (options.play) SetAnimationClock(0);
  ShowOrbits(options, session.orbits, frame);
  if (options.play) SetAnimationClock(1);
  frame.SetCaption(scene::MakeCaption(status, options.size.width, options.size.height));
  return true;
}

// What is said of the first frame: the answer to the question, else the report.
bool Describe(const Options& options, Session& session, const std::optional<Question>& question,
              const scene::ShownKinds& shown, const std::vector<std::string>& status, scene::FrameMaker& maker,
              std::string& text, std::string& error) {
  if (question && options.where) {
    if (DescribeWhere(question->object, question->title, session.catalogs, session.camera, text, error))
      return true;
    error = "--where " + error;
    return false;
  }
  if (question) {
    const scene::ShownView view = {maker.GetFrame(), session.camera,  maker.GetObserver(), shown,
                            session.filters,  session.settings};
    text = FormatExplanation(question->title, scene::Explain(question->object, view), view);
    return true;
  }
  text = MakeReport(session.camera, status, maker.GetFrame());
  if (options.showers) text += MakeShowerReport(session.camera, maker.GetObserver(), scene::LoadShowers());
  return true;
}

bool Draw(const Options& options, Session& session, const std::optional<Question>& question,
          Diagnostics& diagnostics, std::string& text, std::string& error) {
  const scene::ShownKinds shown = scene::ReadShownKinds(session.settings);
  session.filters.Refresh(session.settings);
  for (const auto& mark : options.markers) session.markers.Add(mark, session.camera);
  scene::FrameMaker maker(session.camera, session.catalogs, shown, session.filters, session.markers);
  maker.Prepare();
  const auto status = MakeStatus(session.camera, session.catalogs);
  if (!SetUpFrame(options, session, status, maker, error)) return false;
  maker.Compute();
  return WritePictures(options, maker.GetFrame(), error) && KeepView(options, session, diagnostics, error) &&
         Describe(options, session, question, shown, status, maker, text, error) &&
         (!options.play || DrawSequence(options, session.camera, maker, error));
}

// Settings and view, as the options say.
ViewResult SetUpSession(const Options& options, Session& session, Diagnostics& diagnostics) {
  ViewResult set = SetUpSettings(options, session.settings, diagnostics);
  if (set.failure != Failure::kNone) return set;
  session.camera.CreateDefault();
  session.camera.FillMagCorrectionsVector(&session.settings);
  return ApplyOptions(options, diagnostics, session.camera);
}

// What the options ask of a session that is set up: the text for the user, and the files they name.
bool Answer(const Options& options, Session& session, Diagnostics& diagnostics, std::string& text,
            std::string& error) {
  if (options.home == HomeAction::kShow) {
    text = FormatHomes(session.camera);
    return true;
  }
  if (options.lightCurve) return DrawLightCurve(options, session.camera, text, error);
  std::optional<Question> question;
  const bool wantsCatalogs =
      !options.listLimits || !options.favourites.empty() || !options.favouriteActions.empty();
  if (wantsCatalogs && !FindNamedObjects(options, session, question, error)) return false;
  if (WantsFavouritesShown(options.favouriteActions)) {
    text = FormatFavourites(ReadFavourites());
    return true;
  }
  if (options.listLimits) {
    text = MakeLimitsTable(session.camera);
    return KeepSettings(options, session, error);
  }
  return Draw(options, session, question, diagnostics, text, error);
}

int Show(const Options& options, Diagnostics& diagnostics, std::ostream& output, std::ostream& errors) {
  QX4Strings::SetProgrmaNameId(static_cast<int>(HostText::kProgramName));
  std::string text, error;
  if (options.body) {
    const auto description = DescribeBody(*options.body, diagnostics, error);
    if (!description) return Fail(error, kBadData, errors);
    text = *description;
  } else {
    Session session;
    const ViewResult view = SetUpSession(options, session, diagnostics);
    if (view.failure != Failure::kNone) return Fail(view.message, CodeOf(view.failure), errors);
    if (!Answer(options, session, diagnostics, text, error)) return Fail(error, kBadData, errors);
  }
  output << text;
  for (const auto& line : diagnostics.lines) errors << "skyview: " << scene::MessageToUtf8(line);
  return kDone;
}

}  // namespace

int Run(const std::vector<std::string>& arguments, const std::string& programFolder, std::ostream& output,
        std::ostream& errors) {
  ParseResult parsed = ParseOptions(arguments);
  if (parsed.outcome == ParseOutcome::kHelp) {
    output << parsed.message;
    return kDone;
  }
  if (parsed.outcome == ParseOutcome::kBad) return Fail(parsed.message, kBadOption, errors);
  Diagnostics diagnostics;
  std::string data, error;
  if (parsed.options.session && !LoadSession(parsed.options, error)) return Fail(error, kBadData, errors);
  if (!SetUpRoots(parsed.options, programFolder, data, error)) return Fail(error, kBadData, errors);
  const auto fetchNothing = [] {};  // nobody has taken a text yet
  if (!scene::SwitchLanguage(data, parsed.options.language, fetchNothing, error)) {
    return Fail("--language '" + parsed.options.language + "': " + error, kBadOption, errors);
  }
  return Show(parsed.options, diagnostics, output, errors);
}

}  // namespace skyview
