// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Whether a file is there, what a folder holds, and making a file where none is. Paths and names are UTF-8.
// Any thread.
#pragma once

#include <string>
#include <vector>

#include "utils/api.h"

// What the system tells about a path.
enum class FilePresence {
  kAbsent,   // the system says that there is none
  kPresent,  // something is there, which may be unreadable
  kFolder,   // a folder is there
  kUnknown,  // the system does not tell: no rights, a bad disk, links in a circle
};

// What is behind the path, links followed. Whoever would make or replace a file takes kUnknown for
// "it may be there": the user's data must not go because the system could not be asked. Null and "" are
// absent.
UTILS_API FilePresence GetFilePresence(const char* path);

// Whether the path names a regular file, links followed; false where the system does not tell.
UTILS_API bool IsRegularFile(const char* path);

// The names of what lies in the folder, in no order, without "." and ".."; none for what cannot be read.
UTILS_API std::vector<std::string> ListFolder(const char* path);

// The path from the root of the system: one that is not is taken as below the current folder. Asks for
// nothing on the disk. Null and "" are the current folder.
UTILS_API std::string GetAbsolutePath(const char* path);

// The folder for files of a moment, as the user's environment names it; "" where there is none.
UTILS_API std::string GetTemporaryFolder();

// Makes an empty file where there is none, in one step with the look whether one is there, so that the file
// of somebody else who was quicker stays. False when something is there, and when nothing can be made.
UTILS_API bool CreateEmptyFile(const char* path);
