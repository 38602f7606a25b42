// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// One settings field: a packed record (field_data.h) with change tracking, one level of undo, element access,
// reading and writing, and the query last made from it (queries.h).
#pragma once

#include <cstdint>

#include <new>

#include "astro/object_id.h"
#include "common_interfaces/api.h"
#include "common_interfaces/field_data.h"
#include "utils/text.h"

class MFile;

namespace CommonInterfaces {

class BaseQuery;
class FieldIndex;
struct FieldRecord;
struct SettingFieldTestAccess;

// The name id of a field: utils/text.h.
using ::GetUniqueID;

// A field is in one of three states: it holds a record (IsOk), it is empty (an empty copy, length 0), or its
// reading failed (length -1). A record that a field holds is 20 to 65555 bytes long, always.
//
// Where the header's `size` claims more values than the record holds, every operation works on the values
// that are there, and the header keeps its bytes. A type code that is none of FieldType prints string 0 of
// the string table; its values have no length.
//
// On a field without a record the getters answer 0, the setters return false and nothing else happens.
//
// When memory runs out an operation throws std::bad_alloc, and the field is as it was, but for Read: the
// record may still be there, and the file stands somewhere behind where it stood.
//
// A field belongs to one thread at a time. It owns its record and the query made by CreateQuery.
class COMMON_INTERFACES_API SettingField {
 public:
  // With `data`: a private copy of `size` bytes from there, which may stand at any address; `file` is not
  // used. A size below 20 or above 65555 is refused with one line and gives a failed field (a size of 0: an
  // empty one). Without: the record is read from `file` with Read; ask IsOk. Both null: a failed field.
  SettingField(MFile* file, const FieldData* data, unsigned size);

  // Copies the record and the modified flag. Nothing saved, no query.
  SettingField(const SettingField& other);

  // Deletes this field's query, then copies the record and the modified flag; the saved values and the store
  // state of this field stay. A source without a record makes this field empty, and the record that it held
  // before is deliberately not released. Deliberately returns a copy of the result by value, not a reference:
  // a chain of assignments and `(a = b).Set...` work on copies.
  SettingField operator=(const SettingField& other);

  // Releases the record and the query, deliberately not the values saved by SetDataAndStore.
  ~SettingField();

  // A field of a container and its record are one block of memory, of any length.
  static void operator delete(void* memory) { ::operator delete(memory); }

  bool IsOk() const { return m_RecordSize > 0; }

  int GetNameId() const { return m_pFieldData ? m_pFieldData->nameId : 0; }
  void SetNameId(int nameId);  // leaves the modified flag alone
  unsigned GetType() const { return m_pFieldData ? m_pFieldData->type : 0; }
  unsigned GetSize() const;  // number of elements, never more than the record holds
  unsigned GetSection() const { return m_pFieldData ? m_pFieldData->section : 0; }
  unsigned GetQuerySection() const { return m_pFieldData ? m_pFieldData->querySection : 0; }
  unsigned GetCondition() const { return m_pFieldData ? m_pFieldData->condition : 0; }
  unsigned char GetCompareStatus() const { return m_pFieldData ? m_pFieldData->compareStatus : 0; }

  // Process-wide: whether Read expects records in the old layout, with the name as text. Initially false.
  // Whoever sets it resets it; only the thread that reads settings may touch it.
  static void SetOldSettings(bool old) { m_sOldSettings = old; }
  static bool IsOldSettings() { return m_sOldSettings; }

  // Replaces the record by the next one of the file and deletes the query. False after a short read, a length
  // that is negative, above 65555, or too short for the header of its layout: the field then has failed (no
  // record, length -1). A length of 0 is no failure in the current layout; it gives an empty field. Prints
  // nothing. The file stands behind the bytes that were read, wherever that is.
  bool Read(MFile* file);

  // Writes length and record in the current layout, as the record lies in memory. False when not everything
  // could be written, and, with nothing written, for a failed field. An empty field writes a length of 0.
  bool Write(MFile* file) const;

  // Copies all values to `out`, which has room for them. Always true.
  bool GetData(void* out) const;

  // Replaces the values. Without `count`, from GetSize() values at `in`; true, and the modified flag is set,
  // if they differ from what was there. With a count the field is resized to that many elements and the rest
  // of the header stays; this form returns false and leaves the modified flag alone even when it changes
  // everything. A count below -1, one above 65535 and one that would make the record longer than 65555 bytes
  // are refused with one line: nothing changes. `in` may be null only where no byte is taken from it;
  // otherwise null changes nothing.
  bool SetData(const void* in, int count = -1);

  // SetData(in) that saves the values first, so that RestoreData can bring them back: one level of undo. A
  // second call prints one line, and what it saved replaces what the first one saved. Abandons a saved
  // compare status.
  bool SetDataAndStore(const void* in);

  // Brings back the saved values, with the number of elements there were then, even when the field was
  // resized in between; sets the modified flag if something differs. Does nothing when no values are saved.
  // When the field has no record any more, or elements of another type, the saved values are dropped with one
  // line.
  void RestoreData();

  // The same for the compare status.
  bool SetCompareStatus(unsigned char status);
  bool SetCompareStatusAndStore(unsigned char status);
  void RestoreCompareStatus();

  // One element, at `inIndex`. An index that is not below GetSize() prints one line and returns false; the
  // output stays as it was. SetElement returns true, and the modified flag is set, if the element differs.
  bool GetElement(void* outData, unsigned inIndex) const;
  bool SetElement(const void* inData, unsigned inIndex);

  // The query of this field for a request of `section`, or null when the field does not take part: it is
  // switched off (a label list takes part in an `all` request even then), belongs to another query section,
  // or has a type that makes no query. The field owns the query, keeps it, and returns the same object until
  // a value or the compare status changes. Deliberately, a kept query is returned whatever section is asked
  // for and whatever `all` was when it was made; only switched-off fields outside an `all` request answer
  // null (and keep it).
  BaseQuery* CreateQuery(unsigned section, bool all);

  // A new query over all values, which the caller owns, if the field describes the aim object: 32-bit signed
  // elements, at least 8 of them, compare status not 0, elements 0 and 1 equal to kind and number of `aim`.
  // Otherwise null. `section` is not used.
  BaseQuery* CreateAimQuery(unsigned section, const SSO_ID& aim);

 private:
  friend struct SettingFieldTestAccess;  // defined by tests only
  friend class FieldIndex;               // follows m_sNameChanges and m_sChanges
  friend class SettingsData;             // assigns without the copy that operator= returns
  friend class FieldArena;
  friend void ReleaseField(SettingField* field);
  friend SettingField* MakeFieldOfCopy(const FieldData* data, int size);

  // For a record that stands right beside the field, in the same block of memory.
  SettingField(FieldData* record, int recordSize, bool inArena)
      : m_pFieldData(record), m_RecordSize(recordSize), m_bRecordBeside(true), m_bInArena(inArena) {}
  unsigned char GetTypeSize() const;
  unsigned GetOffset(unsigned inIndex) const;
  // Reverses the byte order of section, condition, size and of every value, to bring a record from a machine
  // of the other byte order. Deliberately neither nameId nor querySection. Nothing calls it.
  void Swap();
  BaseQuery* CreateLabelQuery(const FieldData* data, bool all);
  bool CheckCreateQuery(unsigned section, bool all);
  unsigned GetDataSize() const;
  bool Resize(const void* in, int count);
  bool ReplaceBytes(unsigned char* target, const void* in, unsigned size);
  void ReplaceRecord(FieldData* record, int recordSize);
  bool ReadRecord(MFile* file);
  void NoteNameChange(int earlier);
  void Assign(const SettingField& other);
  // The same without memory, from a copy that has a record in a block of its own: it is empty then.
  void TakeRecord(SettingField& from);
  void DeleteQuery();

  static constexpr unsigned kNoOffset = 0xFFFFFFFF;
  static bool m_sOldSettings;
  // How often a field got another name id after it was made: containers find fields by name and cannot see
  // it.
  static unsigned m_sNameChanges;
  // How often the values of a field changed: containers keep copies of them.
  static std::uint64_t m_sChanges;

  FieldData* m_pFieldData = nullptr;  // owned; null when there is no record
  int m_RecordSize = -1;         // bytes of header and values; -1 after a failed read, 0 for an empty copy
  bool m_bModified = false;      // a value or the compare status changed since the query was made
  bool m_bRecordBeside = false;  // the record is part of the field's block (settings/field_record.h)
  bool m_bInArena = false;       // the block is part of a larger one (settings/field_arena.h)
  unsigned char* m_pSavedData = nullptr;  // owned: what SetDataAndStore saved (settings/field_undo.cpp)
  unsigned char m_SavedCompareStatus = 0;
  int m_StoreState = 0;           // 0 nothing saved, 1 values saved, 2 compare status saved
  BaseQuery* m_pQuery = nullptr;  // owned: the query last made by CreateQuery
};

static_assert(sizeof(void*) != 4 || sizeof(SettingField) == 28);

}  // namespace CommonInterfaces
