// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The lists of objects that the user keeps: favourites, a selection, and the objects chosen for an
// observation. File formats: docs/formats/object_lists.md.
//
// What holds for all three. Two entries are the same object when kind and number are equal; names are not
// compared. A file is read line by line; a line that cannot be used is skipped without a message, and an
// entry that a file holds twice is read twice. A file is replaced whole or not at all: a failed write keeps
// the old one. A file that is there and cannot be read, or not to its end, gives the entries before the
// error; saving over it is then refused with one line that names it, as long as it is there. A name is
// written with a blank in place of every tab, line feed and carriage return in it, because these would tear
// its line apart, and cut where its line would be longer than the reader takes. The name of an SSO_ID holds
// 79 bytes; of a longer one in a file the first 79 are kept. When memory runs out an operation throws
// std::bad_alloc, and list and file are as they were. An object belongs to one thread; it owns its list.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "astro/object_id.h"
#include "common_interfaces/api.h"
#include "utils/incomplete_files.h"

namespace CommonInterfaces {

// The favourites, "catalogs:favourites.txt" in the work area. AddObject and RemoveObject change the list in
// memory only; Write and Save alone change the file.
class COMMON_INTERFACES_API FavouriteObjectsFile {
 public:
  // Makes an empty file when there is none, and never replaces one. When the file can neither be opened nor
  // made, prints "FavouriteObjectsFile(): cannot open the file\n \"%s\"\n" and keeps no path: Read and Write
  // then do nothing. The list starts empty in any case.
  FavouriteObjectsFile();

  // Appends the entries of the file to the list; what the list holds already stays, so a second Read doubles
  // it.
  void Read();

  // Replaces the file by the list. Nothing is reported when the file cannot be opened; when what was written
  // does not reach the disk, the old file stays and MTextFile prints its line.
  void Write();

  // The same, and tells: false when the list is not in the file, which is then as it was.
  bool Save();

  bool ObjectIncluded(const SSO_ID& object) const;

  // Appends a copy unless the list has the object already. The number of entries afterwards, either way.
  int AddObject(const SSO_ID& object);

  // Removes the first entry that is the object; the others keep their order. The number of entries
  // afterwards, -1 when there was none.
  int RemoveObject(const SSO_ID& object);

  int GetSize() const;
  const std::vector<SSO_ID>& GetObjects() const;  // valid until the next change

 private:
  std::unique_ptr<char[]> m_Path;  // null: no file
  std::vector<SSO_ID> m_Objects;
  IncompleteFiles m_Incomplete;
};

// An entry of a selection: the name may have any length in memory.
struct ObjectDesc {
  std::string name;
  int kind = -1;  // four-character code
  int number = -1;
};

// A selection, in a file whose path the caller names (a logical path of the work area, or an absolute one).
class COMMON_INTERFACES_API SelectedObjectsFile {
 public:
  // Reads the file if there is one. A missing file is an empty list, without a message; so is a null path.
  explicit SelectedObjectsFile(const char* path);

  // Replaces `out` by the list. False, with `out` as it was, for an empty list.
  bool GetObjects(std::vector<ObjectDesc>& out) const;

  // Replaces the list in memory. Always true.
  bool SetObjects(const std::vector<ObjectDesc>& in);

  // Replaces the file by the list. False when it cannot be opened or not be written: the old file stays.
  bool Save();

 private:
  std::string m_Path;
  std::vector<ObjectDesc> m_Objects;
  IncompleteFiles m_Incomplete;
};

// The objects chosen for an observation. Their file keeps the fourth field of the identifier too, as a number
// that is the astronomy library's business.
class COMMON_INTERFACES_API ChoosingObjectsFile {
 public:
  // As above; a file that is missing is made, empty.
  explicit ChoosingObjectsFile(const char* path = "catalogs:observationobjects.txt");

  bool GetObjects(std::vector<SSO_ID>& out) const;
  bool SetObjects(const std::vector<SSO_ID>& in);
  bool Save();

 private:
  std::string m_Path;
  std::vector<SSO_ID> m_Objects;
  IncompleteFiles m_Incomplete;
};

}  // namespace CommonInterfaces
