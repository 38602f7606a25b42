// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Files as the application reads and writes them: MFile for bytes, MTextFile for lines.
#pragma once

#include <cstdio>
#include <memory>
#include <string>

#include "utils/api.h"
#include "utils/debug.h"

// std::fopen for a path in UTF-8, on every platform. Null when the file cannot be opened, for a null path and
// a null mode; the caller closes it. Any thread.
UTILS_API std::FILE* mm_fopen(const char* path, const char* mode);

// A binary file of at most 2 GiB - 1. Not copyable; closed by the destructor. An object belongs to one
// thread. Every operation on a file that is not open fails: false, 0 or -1.
class UTILS_API MFile {
 public:
  static constexpr int kRead = 34;   // the file must exist
  static constexpr int kWrite = 68;  // creates the file, and keeps what it holds; may read as well

  MFile();
  ~MFile();
  MFile(const MFile&) = delete;
  MFile& operator=(const MFile&) = delete;

  // Opens `path` (a resolved path, not a logical one) with the position at its start, in both modes: what is
  // written there goes over what the file holds, and Seek(2, 0) leads behind it. An open file is closed
  // first. False, without a message, for a missing file, a folder, a longer file, an unknown mode, null and
  // "".
  bool Open(const char* path, int mode);

  // False, with one line, when what was written did not all reach the file (a full disk). True when nothing
  // is open.
  bool Close();

  // Bytes read or written, fewer than `size` at the end of the file or on an error. Read leaves the rest of
  // `out` as it was. Write may hold bytes back until Close, and stops at the largest length a file may have.
  unsigned Read(void* out, unsigned size);
  unsigned Write(const void* in, unsigned size);

  // Whether anything was not read, or the length not told, because of an error since Open: what Read gave is
  // then not all that the file has, and what Search did not find may be there. False after a short read at
  // the end of the file.
  bool HasReadFailed() const { return m_ReadFailed; }

  // origin 0: from the start, 1: from the position, 2: from the end. False, with the position where it was,
  // for another origin and a place before the start or past the largest length. A place past the end is
  // allowed: Read gives nothing there, and Write fills the gap with zeros.
  bool Seek(int origin, int offset);
  int Tell() const;
  int GetLength() const;                   // what is written and not yet in the file counts
  static int GetLength(const char* path);  // 0 when the file cannot be opened

  // Looks for the bytes `key` from the position on and leaves the position right after the first match. When
  // there is none it returns false and the position stays where it was. The file is read in blocks of fixed
  // size, so its length costs no memory. An empty key is found at once.
  bool Search(const void* key, unsigned keySize);

 private:
  enum class Operation { kNone, kRead, kWrite };

  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  bool Prepare(Operation next);

  std::unique_ptr<std::FILE, Closer> m_File;
  std::string m_Path;
  int m_Position = 0;    // where the next operation works
  bool m_Moved = false;  // the stream must be moved there first
  // The stream's last one: after kWrite it may hold bytes back.
  Operation m_Operation = Operation::kNone;
  // Asking for the length writes out what is held back, and may fail itself.
  mutable bool m_WriteFailed = false;
  mutable bool m_ReadFailed = false;
};

// A text file, read line by line or written whole.
//
// Reading: a line ends with LF, CR LF or the end of the file; a UTF-8 byte-order mark at the start of the
// file is skipped. A line longer than lineSize - 1 characters is cut there, and its rest is dropped. Bytes
// are copied as they are, zero bytes included (a C string then ends early, the next line is not touched).
// With `comments` set, a line whose first character is the comment character is skipped and a line that
// begins with the end character ends the reading for good; without it neither character means anything. A
// file that goes on beyond kMostFileBytes (utils/whole_file.h), as a device may, ends there with a read error
// and one line that names it.
//
// Writing: the text is the new content of a FileReplacement (utils/replace_file.h), which Close commits. A
// write that failed, or an object destroyed without Close, leaves the old file as it was and prints one line
// that names the target.
//
// Not copyable. An object belongs to one thread.
class UTILS_API MTextFile {
 public:
  MTextFile(bool comments, char comment, char end, unsigned lineSize);
  ~MTextFile();
  MTextFile(const MTextFile&) = delete;
  MTextFile& operator=(const MTextFile&) = delete;

  // False when the file cannot be opened; no message. What is open already is closed first, as by Close.
  bool Open(const char* path, bool write);

  // Copies the next line without its end into `buffer`, zero-terminated, at most size - 1 and lineSize - 1
  // characters. Returns how many bytes the line took in the file, its end included (so a blank line counts),
  // and 0 when there is no further line: `buffer` is then "". A read error ends the reading for good, and the
  // line that it fell into is none.
  int Readln(char* buffer, unsigned size);

  // Whether reading ended with an error, and not at the end of the file. Stays so until the next Open.
  bool HasReadFailed() const;

  // Reads the next line as one decimal integer, blanks before it and any text behind it allowed. False at the
  // end of the file, for a line that does not begin with a number and for a number that no int holds: `value`
  // then stays as it was.
  bool Readln(int& value);

  // Writes a formatted text of any length; the caller supplies the line ends, which are kept as given. False
  // when writing failed or the file is not open for writing.
  bool Write(const char* format, ...) UTILS_PRINTF_FORMAT(2, 3);

  // Ends reading, or puts the written file in place of the target. False, with one line, when any write
  // failed: the target then still holds what it held before Open. True when nothing is open.
  bool Close();

 private:
  struct State;
  std::unique_ptr<State> m_State;
};
