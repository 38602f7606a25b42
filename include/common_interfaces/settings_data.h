// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The settings container: typed fields grouped in sections, kept as blocks of a settings file. The file is
// described in docs/formats/settings_file.md, a single field in settings_field.h.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "astro/object_id.h"
#include "common_interfaces/api.h"

class FileReplacement;
class MFile;

namespace CommonInterfaces {

class BaseList;
class BaseQuery;
class FieldIndex;
class SettingField;
struct FieldData;
struct FieldRun;

#pragma pack(push, 1)
// One section of a container, in memory as in the file. Stored numbers: frozen. The record is packed: copy a
// member before a reference is bound to it (a map's key, an argument by reference).
// `first` and `last` are unsigned 16-bit indices of fields, `last` inclusive; a `last` below `first`, and the
// value 0xFFFF (-1: the section at the start of the container has lost its last field), is an empty section.
struct SectionRecord {
  unsigned id;           // four-character code, for example FourCC("plnt")
  unsigned alias;        // a second id that finds the section, 0xFFFFFFFF: none
  unsigned short first;  // first field of the section
  unsigned short last;   // last field of the section
  unsigned char status;  // 0: the section is off
};
#pragma pack(pop)
static_assert(sizeof(SectionRecord) == 13 && offsetof(SectionRecord, alias) == 4);
static_assert(offsetof(SectionRecord, first) == 8 && offsetof(SectionRecord, last) == 10);
static_assert(offsetof(SectionRecord, status) == 12);

// A container of settings fields. It owns its fields, its aim query and its correction fields; pointers to
// fields that it hands out live until the field is deleted, Read is called, the container is assigned to or
// destroyed. Containers are used from one thread at a time, all of them together: they share the modify flag
// and the old-layout switch of SettingField. Not copy-constructible; assignable.
//
// Many lookups use the current section, and some change it: this is state, described with each operation.
// An operation on a field that the container does not have prints a line; what else it does is said below.
//
// When memory runs out an operation throws std::bad_alloc, and container, fields and files are as they were;
// Save returns false instead. What the caller gets from GetFavoInfo and GetObjectInfo may then be cut short.
//
// What it costs: a section is found by id or alias, and a field by name id in a section or anywhere, in the
// same time however many there are. GetField of a single number is quicker still as long as no field of any
// container changes: it keeps copies. The first such question after a Read or an assignment, or after a field
// that the caller holds got another name id, goes over all fields once. Adding a field takes a time in
// proportion to the sections behind its own, adding many and reading them grows with their number, and
// deleting one goes over the fields behind it. What looks at the values of a section (objects, favourites,
// queries, the aim) goes over its fields. Where the section records of a damaged file overlap, the answers
// are the same, found with a binary search, and adding a field goes over all fields.
//
// Saving without losing anything: Write appends a block and never removes one, of two blocks with one key the
// first is read, and whether the block was written is not told. So whoever saves for the user calls Save,
// which replaces the container's own block, keeps all others, and tells. A file that Write has made must not
// take the place of another one: on a full disk it is empty, and Write was true. Write makes a missing file
// in the work area, where it hides a file of the same name in the data root, defaults included; Save takes
// its blocks along.
class COMMON_INTERFACES_API SettingsData {
 public:
  // "No section", "no alias", "every section".
  static constexpr unsigned kNoSection = 0xFFFFFFFFu;
  // The id of a block of defaults: the file's bytes "TLFD".
  static constexpr unsigned kDefaultsTag = 0x44464C54u;
  // What 16-bit section indices can reach.
  static constexpr int kMaxFields = 65535;

  // An empty container for the block (owner, id); owner is the first key word in the file, id the second. The
  // arguments stand the other way round, id before owner; HoldsBlock has them in the order of the file. Both
  // are numbers, so no compiler tells them apart.
  // `fileName` is the logical name of the file that holds the defaults, for example "filters.data"; it is
  // resolved here, once: a file that does not exist yet is never found by Read(nullptr). Loads the correction
  // fields of (owner, "TLFD") from "FilterCorrection.data"; when that cannot be done there are none, no
  // message.
  SettingsData(unsigned id, unsigned owner, const char* fileName);
  SettingsData(const SettingsData&) = delete;

  // Deletes this container's fields and aim query and copies owner, id, file name, sections, current section
  // and deep copies of the fields. Version, changed flags, aim object and correction fields stay as they were
  // here.
  SettingsData& operator=(const SettingsData& other);

  // The virtual operations follow in the order of their slots, which is part of the binary interface.

  // The field of the object in the section of its kind ("plnt" or "moon", null for others) whose elements 0
  // and 1 are kind and number; of several the last. Without that section: null, no current section
  // afterwards, and with `verbose` the line "Current section in file filters.dat not define". The section
  // that was current before is current again; when there was none, the section of the object's kind stays
  // current.
  virtual SettingField* GetAtField(const SSO_ID& object, bool verbose);

  // The first field with that name id in `section`, which becomes the current section; null when it has none.
  // With kNoSection the current section is searched, then the whole container. Without a current section:
  // null and the line "Current section in file filters.dat not define", whatever `verbose` is. `verbose`
  // prints one line when the section lacks the field, even if the rest of the container has it.
  virtual SettingField* GetAtField(unsigned section, int nameId, bool verbose);

  // Deletes fields and aim query. The correction fields are deliberately not released.
  virtual ~SettingsData();

  // Favourites of a section that is on (found by id or alias), key to flags: byte 0, plus 4, 8, 16, 32 for
  // nonzero bytes 1 to 4. Of two entries with one key the first counts. False, and an empty map, without one.
  virtual bool GetFavoInfo(std::map<int, unsigned char>* favourites, int section);

  // The numbers of the objects listed in a section that is on (found by id or alias), ascending: element 1 of
  // every int field that takes part in filtering and whose element 0 is `type` (-1: `section`). False, and an
  // empty vector, without such a section.
  virtual bool GetObjectInfo(std::vector<int>& ids, int section, int type);

  // Kind and number of the planet whose integration flag is set; false, and (-1, -1), without one.
  virtual bool GetIntegrPlnt(SSO_ID* planet);

  // Clears the integration flag of every object of "astr", "comt" and "plnt".
  virtual void ClearIntegrFlag();

  // All values of the field, found by name id or by name with kNoSection. `outData` holds size x width bytes
  // of the field (settings_field.h). False for a missing field: `outData` stays as it was.
  virtual bool GetField(int nameId, void* outData);
  virtual bool GetField(const char* name, void* outData);

  // Replaces all values of the field, found as above. The class-wide modify flag becomes "a value differed",
  // so an equal value clears it; a difference marks the current section changed. A missing field: nothing.
  virtual void SetField(int nameId, const void* inData);
  virtual void SetField(const char* name, const void* inData);

  // Makes room for `count` more fields. A negative count does nothing; never more room than kMaxFields.
  virtual void Reserve(int count);

  // Adds a copy of the record (`size` bytes: 20 of header and the values) at the end of its section, which is
  // made when it does not exist, switched off. Returns the index of the new field. For a field that exists:
  // with `allowExisting` minus its index (0 for the field at index 0: callers take 0 as success), else -1 and
  // a line. -1 and a line, too, for a record shorter than 20 or longer than 65555 bytes and past kMaxFields.
  // The current section stays.
  virtual int CreateField(const FieldData* data, int size, bool allowExisting);

  // Deletes the field of that section; false when it does not exist. An emptied section stays.
  virtual bool DeleteField(const char* name, int section);

  // The element type code of the field, found as by GetField; 0xFFFFFFFF for a missing field.
  virtual unsigned GetFieldType(int nameId);

  // Replaces one element, of a field in `section` or of one found as by GetField; modify flag and changed
  // mark as for SetField, the mark on `section` where it is given. The current section stays. A bad index
  // prints a line and changes no value.
  virtual void SetFieldElement(unsigned section, int nameId, const void* inData, int index);
  virtual void SetFieldElement(int nameId, const void* inData, int index);

  // Copies one element of the field, found as by GetField. False for a missing field and, with a line, for a
  // bad index: `outData` then stays as it was.
  virtual bool GetFieldElement(int nameId, void* outData, int index);

  // Switches a section, found by its id only; the modify flag becomes "the status differed". A missing
  // section: nothing, the flag included.
  virtual void SetSectionStatus(unsigned section, unsigned char status);

  // The status of the section, 0 for a missing one. `withAlias` finds it by its alias too, and a section that
  // is off then still answers 1 while its id is the kind of the aim object.
  virtual unsigned char GetSectionStatus(unsigned section, bool withAlias);

  // Sets the compare status of one field; everything else as for SetFieldElement.
  virtual void SetFieldStatus(unsigned section, int nameId, unsigned char status);
  virtual void SetFieldStatus(int nameId, unsigned char status);

  // The compare status of the field, found as by GetField; 0 for a missing field.
  virtual unsigned char GetFieldStatus(int nameId);

  // The queries (queries.h) of a section, found by id or alias, in field order, the identifier query last.
  // `all` asks for label lists whole and even while they are switched off. Null for a missing section and for
  // one that is off, unless `section` is the kind of the aim object: then the list holds the aim query alone.
  // The caller owns the list (a TBaseList<BaseQuery*>) and, alone of its queries, the identifier query, which
  // the library never deletes. All others belong to the fields and the container: they are valid until the
  // fields change or go, the aim query until the next call.
  virtual BaseList* CreateQueryList(int section, bool all);

  virtual void SetID(unsigned id);
  virtual unsigned GetID();

  // Loads the defaults (owner, "TLFD") of the container's own file, always in the current layout, then the
  // block (owner, id) of `fileName`, or the block of defaults there when it has no such block, and merges:
  // - an own block gives its values to the default fields of the same section, name, type and element count,
  //   its section statuses to the default sections, and copies of the listed objects of "astr", "comt",
  //   "scft" and "moon"; without defaults nothing else of it stays;
  // - a block of defaults takes the place of the defaults loaded before.
  // With null only the container's own file is read, and defaults found there are enough.
  // SettingField::SetOldSettings(true) before the call reads a named file in the old layout. The section that
  // was current is current again if it still exists, else none is.
  // False for a missing or empty file, a missing block and a damaged one: reading stops at the damage, what
  // was read before stays, nothing is merged. All earlier fields are gone in every case. No message.
  virtual bool Read(const char* fileName);

  // Takes the section statuses and field values of the block (owner, id) of the file over into the sections
  // and fields that this container has; others are dropped. The section of the last field looked up is
  // current afterwards. False, with nothing changed, for a file that is missing, empty or of another version
  // than this container, and without that block; false at damage, what came before it is then taken over.
  virtual bool Restore(const char* fileName);

  // Appends the container's block to the file, which is made in the work area when it does not exist, and
  // writes the version (at least the workspace version) into the header. False when the file cannot be
  // opened; errors while writing are not reported. Every earlier block stays: see above.
  virtual bool Write(const char* fileName);

  virtual bool Read2(void* reserved);   // false
  virtual bool Write2(void* reserved);  // false

  // The current section: its id, 0 for none. SetCurSection returns the id that was current; a section that
  // does not exist leaves none current.
  unsigned GetCurSection() const;
  unsigned SetCurSection(unsigned section);

  // Flags by section id for whoever follows changes; an unknown id counts as changed. kNoSection sets every
  // flag that exists.
  void SetSectionChanged(unsigned section, bool changed);
  bool IsSectionChanged(unsigned section) const;

  // How many times the four bytes of `code` (little-endian) occur in the file, one after another; 0 for a
  // file that cannot be opened.
  unsigned GetNumberParts(const char* fileName, unsigned code) const;

  // Sets the aim object. Anything but a planet or moon means no aim; a new aim is switched on in the list of
  // its section: element 2 becomes 0 and the compare status 1.
  void SetAimObject(const SSO_ID& object);
  const SSO_ID& GetAimObject() const { return m_AimObject; }

  // Whether the last setter of any container changed something.
  static bool GetModifyFlag();
  static void SetModifyFlag(bool modified);

  // Whether a settings file has a block with exactly that key; the name is resolved as Read does. Owner
  // before id, as in the file, while the constructor takes id before owner: the block of SettingsData(1,
  // FLTR, ...) is HoldsBlock(..., FLTR, 1). Bytes inside of a block are no key, as they are for Read, unless
  // the file is damaged.
  static bool HoldsBlock(const char* fileName, unsigned owner, unsigned id);

  // Writes the block so that the file then holds it once: a new file is written beside the one of the work
  // area, with this block in the place of the old ones, and takes its place when it is on the disk. All other
  // blocks stay, those that another program saves meanwhile too, and bytes that are no block; of a file that
  // so far exists in the data root only, the content is taken along. Link, mode and, where the system allows
  // it, owner stay. False, with one line, when anything failed, for a write-protected file, and for a file
  // that the last Read, or a Restore since, did not read whole, because of an error or damage in it or in
  // the defaults: the file is then as it was. Nothing throws.
  bool Save(const char* fileName);

  // For tools and whoever walks a container. Null for an index out of range.
  unsigned GetOwner() const { return m_Owner; }
  unsigned GetVersion() const { return m_Version; }
  int GetFieldCount() const;
  SettingField* GetFieldAt(int index) const;
  int GetSectionCount() const { return static_cast<int>(m_Sections.size()); }
  const SectionRecord* GetSectionAt(int index) const;
  int GetCorrectionCount() const { return static_cast<int>(m_CorrectionFields.size()); }
  const SettingField* GetCorrectionAt(int index) const;

  // Gives the section, found by its id, a second id; kNoSection takes it away. False for a missing section.
  bool SetSectionAlias(unsigned section, unsigned alias);

 private:
  struct Tables;   // settings/settings_tables.h
  class SetAside;  // likewise

  std::vector<SettingField*>& Fields() const;
  const FieldIndex& Index() const;
  int FindSection(unsigned id, bool withAlias) const;
  FieldRun GetRunOf(int sectionIndex) const;
  SettingField* GetAtFieldSlowly(unsigned section, int nameId, bool verbose);
  bool GetFieldSlowly(int nameId, void* outData);
  SettingField* FindInSection(int sectionIndex, int nameId) const;
  SettingField* FindAnywhere(int nameId) const;
  int FindPlace(int sectionIndex, const SettingField* field) const;
  SettingField* FindKeepingCurrent(unsigned section, int nameId);
  int FindSectionThatIsOn(int section) const;
  void NoteChange(bool changed, unsigned section);

  int AppendSection(SettingField* field);
  int InsertIntoSection(int sectionIndex, SettingField* field);
  SettingField* FindNextOfName(int sectionIndex, int place) const;
  void ShiftSectionsAfter(int sectionIndex, int count);
  void DeleteFields();

  bool OpenForReading(const char* fileName, MFile& file) const;
  std::string GetPathOf(const char* fileName) const;
  void NoteIncomplete(const char* fileName) const;
  bool ReadFrom(const char* fileName);
  void ReadDefaults();
  bool FindOwnOrDefaultsBlock(MFile& file, bool& isDefaults) const;
  void ReplaceDefaults(int fieldCount, int sectionCount);
  void Merge(int fieldCount, int sectionCount);
  void TakeOwnValues(int fieldCount);
  int InsertCopies(unsigned code, const std::vector<const SettingField*>& sources, int fieldCount,
                   int inserted, int sectionCount);
  void KeepOnlyStatuses(int sectionCount);
  void AssignToCounterparts(const std::vector<SettingField*>& fields);
  void MarkAllSectionsChanged();
  void LoadCorrectionFields();

  void RaiseVersion();
  // Takes bytes and tells whether it could.
  using Sink = std::function<bool(const void* bytes, unsigned size)>;
  bool WriteHeader(const Sink& sink) const;
  std::vector<unsigned char> MakeBlockHead() const;
  bool WriteBlock(const Sink& sink, const std::vector<unsigned char>& head) const;
  bool HasReadWhole(const char* fileName) const;
  bool WriteReplacement(const char* fileName);
  bool TryReplacement(const char* fileName, FileReplacement& file);

  unsigned m_Owner;
  unsigned m_Version = 0;
  bool m_bLoadingDefaults = false;
  std::vector<SectionRecord> m_Sections;
  int m_CurSection = -1;
  std::map<unsigned, bool> m_SectionChanged;
  mutable std::vector<SettingField*> m_Fields;  // Fields() is what to ask: insertions may still wait
  std::map<int, int>
      m_Reserved;  // emptied with the fields and used for nothing else; it keeps the members' places
  std::string m_FileName;
  unsigned m_ID;
  SSO_ID m_AimObject;
  BaseQuery* m_pAimQuery = nullptr;
  std::vector<SettingField*> m_CorrectionFields;
  std::unique_ptr<Tables> m_Tables;

  static bool s_ModifyFlag;
  static unsigned s_WorkspaceVersion;  // taken by every constructor, the version that Write writes at least
};

}  // namespace CommonInterfaces
