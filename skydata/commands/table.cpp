// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "skydata/commands/command.h"

namespace skydata {

const std::vector<Command>& GetCommands() {
  static const std::vector<Command> kSettings = {
      {"dump", "print a settings file as text", DeclareSettingsDump, {}},
      {"build", "make a settings file of a text", DeclareSettingsBuild, {}},
      {"check", "say what is wrong with settings files", DeclareSettingsCheck, {}},
      {"diff", "compare two settings files", DeclareSettingsDiff, {}},
      {"convert", "bring a file of an earlier version to the current layout", DeclareSettingsConvert, {}},
      {"explain", "say where the value of a field comes from", DeclareSettingsExplain, {}},
      {"set", "give one field of a settings file other values", DeclareSettingsSet, {}},
  };
  static const std::vector<Command> kStars = {
      {"import", "make a tile catalog of the stars of a file", DeclareStarsImport, {}},
  };
  static const std::vector<Command> kStrings = {
      {"check", "say what is wrong with string tables", DeclareStringsCheck, {}},
      {"show", "show every text as users see it, with sample values", DeclareStringsShow, {}},
      {"pseudo",
       "write a language that nobody speaks: it shows what is not translated or is cut",
       DeclareStringsPseudo,
       {}},
      {"list", "list the texts that the library uses", DeclareStringsList, {}},
  };
  static const std::vector<Command> kCommands = {
      {"build", "make the data root from the readable sources", DeclareBuild, {}},
      {"lint", "say what is wrong with the files of a data root", DeclareLint, {}},
      {"settings", "look into settings files", nullptr, kSettings},
      {"show", "print a data file, one line a record", DeclareShow, {}},
      {"stars", "take further stars into the data root", nullptr, kStars},
      {"strings", "check, show and disguise string tables", nullptr, kStrings},
  };
  return kCommands;
}

}  // namespace skydata
