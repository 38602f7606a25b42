// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Logical file names. "media:find:table.bin" names the file media/find/table.bin below a root; ':', '\' and
// '/' all separate. There are up to three roots: the work area, which the user's own files live in, the
// folder of the user's language, and the data root, which ships with the application. A file of an earlier
// root hides the file of the same name in a later one.
#pragma once

#include <string>

#include "utils/api.h"

// All operations are static; the roots are process-wide state, set at start-up before other threads run, the
// one of the language again with the language, while no other thread asks for paths. An absolute path
// (leading '/' or '\', or a drive letter with ':' and one of these) stands for itself. Any other name stays
// below its root: one with a piece ".." names nothing. Names and results are UTF-8; the pieces behind a root
// are joined with '/', which every system takes.
class UTILS_API ZentharPath {
 public:
  // Both roots are copied; a null or empty root is no root: nothing is found below it. The root of the
  // language goes, since it belongs to the roots before.
  static void SetRoots(const char* dataRoot, const char* workRoot);

  // The folder that holds the files of the user's language, for example DATA/languages/de; copied. Null or
  // empty: none. Only GetPath looks there.
  static void SetLanguageRoot(const char* folder);

  // The file or folder of that name for reading: work area first, then the language's root, then data root.
  // "" when none has it, when the name is null or empty, and for an absolute path where nothing is. Here and
  // below a file is missing only where the system says so (GetFilePresence, utils/file_presence.h): where it
  // cannot tell, the name is returned and opening it fails.
  static std::string GetPath(const char* logicalPath);

  // The name of that file in the work area, for reading and writing. With `mustExist` "" when it is not
  // there; with `create` the folders that lead to it are made ("" when that fails). "" when there is no work
  // area, and for a name that makes a path of more than 4095 bytes.
  static std::string GetWorkPath(const char* logicalPath, bool mustExist = false, bool create = true);
};
