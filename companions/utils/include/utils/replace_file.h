// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Giving a file a new content, whole or not at all: whatever fails, and whenever the program is stopped, the
// file holds either all of the old content or all of the new one.
#pragma once

#include <cstdio>
#include <string>
#include <string_view>

#include "utils/api.h"

// A new content for one file, written piece by piece. It goes to a file beside the target, of a name that no
// other writer has ("name.<process>-<count>.tmp"), which Commit puts in the target's place. Of several
// writers of one target the last to commit has its content there, whole.
//
// The new file takes the target's permissions and, where the system allows it, its owner. When the path is a
// symbolic link, what it leads to is replaced or made, and the link stays. A path that names anything but a
// regular file is refused, and so is a write-protected target: one that its owner may not write, whoever
// asks, or this process may not.
//
// Nothing throws and nothing prints: each operation that fails returns false, and GetReason says why. Not
// copyable. An object belongs to one thread; different objects, of the same target too, may be used by
// different threads.
class UTILS_API FileReplacement {
 public:
  FileReplacement() noexcept;
  ~FileReplacement();  // as Discard
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  // Begins a new content for the file `path` (UTF-8), whose folder must exist; an earlier one that is not
  // committed is discarded. False for what is refused and when nothing can be made beside the target.
  bool Open(const char* path) noexcept;
  bool IsOpen() const noexcept { return m_File != nullptr; }

  // False when not all of it could be written, or nothing is open. What failed once spoils the content for
  // good: Commit will fail.
  bool Write(std::string_view bytes) noexcept;

  // Spoils the content for a reason of the caller's. Always false.
  bool Fail(const char* reason) noexcept;

  // Hands everything written so far to the system, so that others who open GetNewPath() find it there.
  bool Flush() noexcept;

  // The file that is being written, while open; "" otherwise. Somebody else may read it, or open and write
  // it, before Commit: for a check of the finished content, or for whoever writes through a file of his own.
  const std::string& GetNewPath() const noexcept { return m_NewPath; }

  // Writes everything through to the disk and puts the new content in place. False when that or any write
  // before it failed: the target is as it was. Nothing is open any more and nothing is left beside the
  // target, either way.
  bool Commit() noexcept;

  // The same for a content that was made from the old one: only if the target still holds exactly `expected`
  // (null: there is still no file). False, with IsOvertaken true, when it does not, because somebody else has
  // replaced it meanwhile: the caller reads it again and makes his content anew. Of several writers that all
  // use CommitOver none replaces what another one has just put there.
  bool CommitOver(const std::string_view* expected) noexcept;
  bool IsOvertaken() const noexcept { return m_Overtaken; }

  // Gives the new content up and leaves the target as it was.
  void Discard() noexcept;

  // Why the last operation failed, or the first one that spoiled the content: one line without a name and
  // without an end, to stand behind the caller's own name for the file ("FILE: cannot be written: " +
  // reason). "" after Open succeeded, until something fails.
  const std::string& GetReason() const noexcept { return m_Reason; }

 private:
  bool FailByErrno() noexcept;
  void OpenNewFile(const char* path);
  bool FinishNewFile() noexcept;
  bool MoveIntoPlace() noexcept;

  std::string m_Target;   // what is replaced: behind all links
  std::string m_NewPath;  // "" when nothing is open
  std::string m_Reason;
  std::FILE* m_File = nullptr;
  bool m_Spoiled = false;
  bool m_Overtaken = false;
};

// The same for a content that is at hand. False, with the reason as above, when the file could not be
// replaced: it is as it was. Nothing throws. Any thread.
UTILS_API bool ReplaceFileContent(const char* path, std::string_view content, std::string& reason) noexcept;
