// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// How commands begin: the session that the options name, roots, language.
#pragma once

#include <optional>
#include <string>

#include "skyview/commands/command.h"
#include "skyview/session/city.h"
#include "skyview/session/session.h"
#include "skyview/session/view_state.h"

namespace skyview {

// Throw Stop with the line when something could not be done.
void Require(bool done, const std::string& error);  // kBadData
void Require(const ViewResult& result);

// The command line of a command that takes the roots alone. Throws Stop.
RootOptions ParseRoots(const Call& call);

// Points the logical paths at the roots and takes up the language. Returns the folder of the data root.
std::string EnterRoots(const RootOptions& root, const std::string& programFolder);

// The session of --session, nothing without.
std::optional<scene::SessionCapsule> ReadSession(const ViewOptions& view);

// A line for each data file that is another than when the session was saved.
void ReportChangedData(const scene::SessionCapsule& session, const std::string& language,
                       Diagnostics& diagnostics);

// Reads the session that the view asks for, takes from it what the command line does not say, and enters the
// roots. `groups`: the other groups that the command takes and a session has something to say of.
template <class... Groups>
std::optional<scene::SessionCapsule> Start(const Call& call, RootOptions& root, ViewOptions& view,
                                           Groups&... groups) {
  auto session = ReadSession(view);
  if (session) {
    TakeOver(*session, root);
    TakeOver(*session, view);
    (TakeOver(*session, groups), ...);
  }
  EnterRoots(root, call.programFolder);
  Require(TakeCity(view, call.diagnostics));
  if (session) ReportChangedData(*session, root.GetLanguage(), call.diagnostics);
  return session;
}

}  // namespace skyview
