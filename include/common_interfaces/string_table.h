// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The localized string table: every text that the library shows comes from the file "qxstrings.txt", by
// identifier. File format: docs/formats/strings.md.
#pragma once

#include "common_interfaces/api.h"

namespace CommonInterfaces {

template <class Value>
class FlatTable;
struct StringTableTestAccess;

// The table is process-wide and loaded once, by the first construction of a QX4Strings; every user constructs
// one (a throw-away local) before it calls GetString:
//
//   QX4Strings strings;
//   const char* text = QX4Strings::GetString(FourCC("star"), false);   // null: the table has no such text
//
// Change of language: StartLocaleUpdate; make the path resolver find the new file; construct a QX4Strings
// (reloads); fetch all texts anew; FinishLocaleUpdate. In between, texts fetched before stay readable.
//
// Loading, StartLocaleUpdate, FinishLocaleUpdate and Done run on one thread while no other thread reads the
// table; GetString and GetProgramName on a loaded table may run on several threads at once.
class COMMON_INTERFACES_API QX4Strings {
 public:
  // Loads the table unless it is loaded. Every failure leaves a valid table, possibly an empty one:
  //   "File qxstrings.txt not found\n"                  no such file: the table is empty and counts as not
  //                                                     loaded, so that the next construction tries again
  //   "File qxstrings.txt cannot be read to its end\n"  the texts up to there are kept
  //   "File qxstrings.txt changed while it was read\n"  so are those up to the length that it had first
  //   "Duplicated string, ID = %d\n"                    the same text twice: kept
  //   "Strings conflict, ID = %d\nOld: %s\nNew: %s\n"   two texts: the later one is kept
  // Without memory for it std::bad_alloc is thrown, and the table is as it was: the next construction tries
  // again.
  QX4Strings();

  // The text, as the file's bytes with the escapes resolved, or null; unless `quiet`, an unknown identifier
  // then prints "String with ID = %d not found in file qxstrings.txt\n" (before the first load nothing is
  // printed). The table owns the text; it stays readable until FinishLocaleUpdate after the next change of
  // language, or Done.
  static char* GetString(unsigned int identifier, bool quiet);

  // The text of the program's name; null and a line as GetString. Its identifier is -1 until SetProgrmaNameId
  // is called.
  static char const* GetProgramName();

  // The identifier of the program's name. The misspelt name is deliberate: callers are compiled against it.
  static void SetProgrmaNameId(int id);

  // Begins a change of language: the table counts as not loaded, and GetString goes on answering with the old
  // texts until the next construction. The texts of an earlier change that was not finished are freed first;
  // if the table was not reloaded since, that leaves it empty.
  static void StartLocaleUpdate();

  // Frees the texts from before the change of language. If the table was not reloaded since StartLocaleUpdate
  // it is empty afterwards, until the next construction. Harmless when there is nothing to free.
  static void FinishLocaleUpdate();

  // Frees everything at the end of the process. Deliberately final: a later construction loads nothing, and
  // GetString answers null without a message.
  static void Done();

 private:
  friend struct StringTableTestAccess;  // defined by tests only

  static bool Load();

  static FlatTable<char*>* s_Strings;  // made by the first load
  static char* s_Pool;                 // all texts of the current load; null: not loaded
  static char* s_PreviousPool;         // those of the load before, during a change of language
  static int s_ProgramNameId;
  static bool s_Done;
};

}  // namespace CommonInterfaces
