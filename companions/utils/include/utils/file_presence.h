// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Whether a file is there, and making one where none is. Any thread.
#pragma once

#include "utils/api.h"

// What the system tells about a path.
enum class FilePresence {
  kAbsent,   // the system says that there is none
  kPresent,  // something is there, which may be unreadable
  kFolder,   // a folder is there
  kUnknown,  // the system does not tell: no rights, a bad disk, links in a circle
};

// What is behind the path (UTF-8), links followed. Whoever would make or replace a file takes kUnknown for
// "it may be there": the user's data must not go because the system could not be asked. Null and "" are
// absent.
UTILS_API FilePresence GetFilePresence(const char* path);

// Makes an empty file where there is none, in one step with the look whether one is there, so that the file
// of somebody else who was quicker stays. False when something is there, and when nothing can be made.
UTILS_API bool CreateEmptyFile(const char* path);
