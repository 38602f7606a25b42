// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Files in one piece. What a path leads to need not be a file, and need not end: nothing is read beyond a
// bound that no file of this system comes near.
#pragma once

#include <istream>
#include <string>

#include "utils/api.h"

// The most bytes that are read of a file, in one piece or line by line: 256 MiB.
inline constexpr unsigned kMostFileBytes = 1u << 28;

// What is wrong with a file that has more: one line without a name and without an end.
inline constexpr char kTooManyBytes[] = "holds more than 256 MiB, the most that is read";

// Gives `content` all bytes of the file `path` (UTF-8); a pipe or a device is read to its end. False, with
// nothing in `content` and the reason as one line to stand behind the caller's own name for the file ("FILE:
// " + reason): "cannot be read" for what cannot be opened, a folder and a read error, else kTooManyBytes; a
// file that the system says is too long is not read at all. Lack of memory throws std::bad_alloc. Any thread.
UTILS_API bool ReadWholeFile(const char* path, std::string& content, std::string& reason);

// The same for what is left of a stream.
UTILS_API bool ReadWholeStream(std::istream& stream, std::string& content, std::string& reason);

// Whether `path` is a regular file of no more than these bytes, for readers that move about in it. False with
// the reason as above, or "is no regular file"; nothing is read.
UTILS_API bool IsBoundedFile(const char* path, std::string& reason);
