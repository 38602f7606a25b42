// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// The slots of virtual operations, as a module built apart calls them: entry k of the table that an object's
// first word points at. Every class is derived from, each operation notes its own name, and each entry is
// called through a plain function pointer.
//
// All compilers of the targets lay tables out by the Itanium C++ ABI, on Windows too: the entries stand in
// the order of declaration, and a virtual destructor has two, the plain one and the one that also frees the
// object. Each derived class declares one operation more, which takes the first entry behind those of its
// base: that tells how many there are.
#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "astro/solar_system.h"
#include "common_interfaces/camera.h"
#include "common_interfaces/item_engine.h"
#include "common_interfaces/object_outputs.h"
#include "common_interfaces/object_shadow_map.h"
#include "common_interfaces/output_pool.h"
#include "common_interfaces/queries.h"
#include "common_interfaces/record_source.h"
#include "common_interfaces/render_settings.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "common_interfaces/thread.h"

#if defined(_WIN32) && defined(__i386__)
// Member functions take the object in a register there. The compiler finds that odd on a plain pointer.
#pragma GCC diagnostic ignored "-Wattributes"
#define MEMBER_CALL __attribute__((thiscall))
#else
#define MEMBER_CALL
#endif

namespace {

using namespace CommonInterfaces;

std::vector<std::string> g_Notes;

void Note(const char* name) { g_Notes.emplace_back(name); }

// Calls entry `slot` of the object's table as a member function R(Args...).
template <class R, class... Args>
R Call(void* object, std::size_t slot, Args... args) {
  using Function = R(MEMBER_CALL*)(void*, Args...);
  void** table = *static_cast<void***>(object);
  return reinterpret_cast<Function>(table[slot])(object, args...);
}

// A derived class of a base whose only virtual operation of interest is its destructor, or of one whose other
// operations are noted by the class between.
template <class Base>
class Recorder : public Base {
 public:
  using Base::Base;
  ~Recorder() override { Note("destructor"); }
  virtual void Behind() { Note("behind"); }
};

// A Recorder that is destroyed by the calls of its test, not by leaving its scope.
template <class Record>
class Storage {
 public:
  template <class... Args>
  explicit Storage(Args... args) {
    g_Notes.clear();
    std::construct_at(Get(), args...);
  }
  Record* Get() { return reinterpret_cast<Record*>(m_Bytes); }

 private:
  alignas(Record) unsigned char m_Bytes[sizeof(Record)];
};

using Names = std::vector<std::string>;

// The destructor has the entries 0 and 1; 2 is the first one behind.
template <class Base, class... Args>
void ExpectOnlyADestructor(Args... args) {
  Storage<Recorder<Base>> storage(args...);
  Call<void>(storage.Get(), 2);
  Call<void>(storage.Get(), 0);
  EXPECT_EQ(g_Notes, (Names{"behind", "destructor"}));
}

TEST(SlotOrder, ClassesWithADestructorAlone) {
  ExpectOnlyADestructor<BaseOutput>();
  ExpectOnlyADestructor<StarOutput>();
  ExpectOnlyADestructor<DeepskyOutput>();
  ExpectOnlyADestructor<BaseList>();
  ExpectOnlyADestructor<ReferenceCounted>();
  ExpectOnlyADestructor<ObjectShadowMap>();
  ExpectOnlyADestructor<RenderSettings>();
  ExpectOnlyADestructor<Camera>(1u);
  ExpectOnlyADestructor<thread::Semaphore>(1ul);
  ExpectOnlyADestructor<thread::SyncEvent>();
  static_assert(!std::is_polymorphic_v<thread::CritSect>);
  static_assert(!std::is_polymorphic_v<OutputPool>);
  static_assert(!std::is_polymorphic_v<SettingField>);
}

TEST(SlotOrder, SecondEntryOfADestructorFreesTheObject) {
  g_Notes.clear();
  Call<void>(new Recorder<BaseList>, 1);  // a leak checker tells when it does not
  EXPECT_EQ(g_Notes, Names{"destructor"});
}

class QueryNotes : public BaseQuery {
 public:
  using BaseQuery::BaseQuery;
  const void* GetValue(unsigned) const override { return Note("GetValue"), nullptr; }
  bool Less(const BaseQuery&) const override { return Note("Less"), false; }
};

TEST(SlotOrder, BaseQuery) {
  Storage<Recorder<QueryNotes>> query(1, 2u);
  const BaseQuery* other = query.Get();
  Call<const void*, unsigned>(query.Get(), 2, 0);
  Call<bool, const BaseQuery*>(query.Get(), 3, other);
  Call<void>(query.Get(), 4);
  Call<void>(query.Get(), 0);
  EXPECT_EQ(g_Notes, (Names{"GetValue", "Less", "behind", "destructor"}));
}

class ItemNotes : public BaseItem {
 public:
  void SetUp(void*) override { Note("SetUp"); }
  void SetObject(void*) override { Note("SetObject"); }
  bool Init(void*) override { return Note("Init"), true; }
  void Release() override { Note("Release"); }
  BaseList* Run(BaseList*) override { return Note("Run"), nullptr; }
};

TEST(SlotOrder, BaseItem) {
  Storage<Recorder<ItemNotes>> item;
  for (std::size_t slot = 2; slot <= 3; ++slot) Call<void, void*>(item.Get(), slot, nullptr);
  Call<bool, void*>(item.Get(), 4, nullptr);
  Call<void>(item.Get(), 5);
  Call<void*, BaseList*>(item.Get(), 6, nullptr);
  Call<void>(item.Get(), 7);
  Call<void>(item.Get(), 0);
  EXPECT_EQ(g_Notes, (Names{"SetUp", "SetObject", "Init", "Release", "Run", "behind", "destructor"}));
}

class EngineNotes : public Engine {
 public:
  void Clear() override { Note("Clear"); }
  int Add(int, BaseItem*) override { return Note("Add"), 0; }
  int Remove(int) override { return Note("Remove"), 0; }
  ErrFlag SetUp(void*) override { return Note("SetUp"), kSuccess; }
  void SetObject(void*) override { Note("SetObject"); }
  bool Init(void*) override { return Note("Init"), true; }
  void Release() override { Note("Release"); }
  BaseList* Run(int, BaseList*) override { return Note("Run"), nullptr; }
};

TEST(SlotOrder, Engine) {
  Storage<Recorder<EngineNotes>> engine;
  Call<void>(engine.Get(), 2);
  Call<int, int, BaseItem*>(engine.Get(), 3, 0, nullptr);
  Call<int, int>(engine.Get(), 4, 0);
  Call<int, void*>(engine.Get(), 5, nullptr);
  Call<void, void*>(engine.Get(), 6, nullptr);
  Call<bool, void*>(engine.Get(), 7, nullptr);
  Call<void>(engine.Get(), 8);
  Call<void*, int, BaseList*>(engine.Get(), 9, 0, nullptr);
  Call<void>(engine.Get(), 10);
  Call<void>(engine.Get(), 0);
  EXPECT_EQ(g_Notes, (Names{"Clear", "Add", "Remove", "SetUp", "SetObject", "Init", "Release", "Run",
                            "behind", "destructor"}));
}

class RecordNotes : public BaseDB {
 public:
  const void* GetField(int) const override { return Note("GetField"), nullptr; }
  unsigned GetFieldType(int) const override { return Note("GetFieldType"), 0u; }
};

TEST(SlotOrder, BaseDB) {
  Storage<Recorder<RecordNotes>> record;
  Call<const void*, int>(record.Get(), 2, 1);
  Call<unsigned, int>(record.Get(), 3, 1);
  Call<void>(record.Get(), 4);
  Call<void>(record.Get(), 0);
  EXPECT_EQ(g_Notes, (Names{"GetField", "GetFieldType", "behind", "destructor"}));
}

class ModelNotes : public CQXSolSys {
 public:
  bool SetAimObject(const SSO_ID&, const void*) override { return Note("SetAimObject"), true; }
  bool SetLocateObject(const SSO_ID&, const void*) override { return Note("SetLocateObject"), true; }
  bool SetAdditionalObject(const SSO_ID&, const void*) override { return Note("SetAdditionalObject"), true; }
  bool InitIntegr(const SSO_ID&, const void*) override { return Note("InitIntegr"), true; }
  double GetGravity(const SSO_ID&) const override { return Note("GetGravity"), 0.0; }
};

TEST(SlotOrder, CQXSolSys) {
  Storage<Recorder<ModelNotes>> model;
  const SSO_ID object;
  for (std::size_t slot = 2; slot <= 5; ++slot) {
    Call<bool, const SSO_ID*, const void*>(model.Get(), slot, &object, nullptr);
  }
  Call<double, const SSO_ID*>(model.Get(), 6, &object);
  Call<void>(model.Get(), 7);
  Call<void>(model.Get(), 0);
  EXPECT_EQ(g_Notes, (Names{"SetAimObject", "SetLocateObject", "SetAdditionalObject", "InitIntegr",
                            "GetGravity", "behind", "destructor"}));
}

template <class Base>
class RunNotes : public Base {
 public:
  void run() override { Note("run"); }
};

template <class Base>
void ExpectDestructorThenRun() {
  Storage<Recorder<RunNotes<Base>>> storage;
  Call<void>(storage.Get(), 2);
  Call<void>(storage.Get(), 3);
  Call<void>(storage.Get(), 0);
  EXPECT_EQ(g_Notes, (Names{"run", "behind", "destructor"}));
}

TEST(SlotOrder, Runnable) { ExpectDestructorThenRun<thread::Runnable>(); }
TEST(SlotOrder, Thread) { ExpectDestructorThenRun<thread::Thread>(); }

using Text = const char*;
using Bytes = const void*;

class SettingsNotes : public SettingsData {
 public:
  using SettingsData::SettingsData;
  SettingField* GetAtField(const SSO_ID&, bool) override { return Note("GetAtField(object)"), nullptr; }
  SettingField* GetAtField(unsigned, int, bool) override { return Note("GetAtField(section)"), nullptr; }
  bool GetFavoInfo(std::map<int, unsigned char>*, int) override { return Note("GetFavoInfo"), false; }
  bool GetObjectInfo(std::vector<int>&, int, int) override { return Note("GetObjectInfo"), false; }
  bool GetIntegrPlnt(SSO_ID*) override { return Note("GetIntegrPlnt"), false; }
  void ClearIntegrFlag() override { Note("ClearIntegrFlag"); }
  bool GetField(int, void*) override { return Note("GetField(id)"), false; }
  bool GetField(Text, void*) override { return Note("GetField(name)"), false; }
  void SetField(int, Bytes) override { Note("SetField(id)"); }
  void SetField(Text, Bytes) override { Note("SetField(name)"); }
  void Reserve(int) override { Note("Reserve"); }
  int CreateField(const FieldData*, int, bool) override { return Note("CreateField"), 0; }
  bool DeleteField(Text, int) override { return Note("DeleteField"), false; }
  unsigned GetFieldType(int) override { return Note("GetFieldType"), 0u; }
  void SetFieldElement(unsigned, int, Bytes, int) override { Note("SetFieldElement(section)"); }
  void SetFieldElement(int, Bytes, int) override { Note("SetFieldElement(id)"); }
  bool GetFieldElement(int, void*, int) override { return Note("GetFieldElement"), false; }
  void SetSectionStatus(unsigned, unsigned char) override { Note("SetSectionStatus"); }
  unsigned char GetSectionStatus(unsigned, bool) override { return Note("GetSectionStatus"), '\0'; }
  void SetFieldStatus(unsigned, int, unsigned char) override { Note("SetFieldStatus(section)"); }
  void SetFieldStatus(int, unsigned char) override { Note("SetFieldStatus(id)"); }
  unsigned char GetFieldStatus(int) override { return Note("GetFieldStatus"), '\0'; }
  BaseList* CreateQueryList(int, bool) override { return Note("CreateQueryList"), nullptr; }
  void SetID(unsigned) override { Note("SetID"); }
  unsigned GetID() override { return Note("GetID"), 0u; }
  bool Read(Text) override { return Note("Read"), false; }
  bool Restore(Text) override { return Note("Restore"), false; }
  bool Write(Text) override { return Note("Write"), false; }
  bool Read2(void*) override { return Note("Read2"), false; }
  bool Write2(void*) override { return Note("Write2"), false; }
};

// Entries 0 to 15: the third operation, the destructor, takes the entries 2 and 3.
void CallFirstHalf(void* s) {
  const SSO_ID object;
  Call<void*, const SSO_ID*, bool>(s, 0, &object, false);
  Call<void*, unsigned, int, bool>(s, 1, 0, 0, false);
  Call<bool, void*, int>(s, 4, nullptr, 0);
  std::vector<int> ids;
  Call<bool, std::vector<int>*, int, int>(s, 5, &ids, 0, 0);
  Call<bool, SSO_ID*>(s, 6, nullptr);
  Call<void>(s, 7);
  Call<bool, int, void*>(s, 8, 0, nullptr);
  Call<bool, Text, void*>(s, 9, "", nullptr);
  Call<void, int, Bytes>(s, 10, 0, nullptr);
  Call<void, Text, Bytes>(s, 11, "", nullptr);
  Call<void, int>(s, 12, 0);
  Call<int, Bytes, int, bool>(s, 13, nullptr, 0, false);
  Call<bool, Text, int>(s, 14, "", 0);
  Call<unsigned, int>(s, 15, 0);
}

// Entries 16 to 31, and the first one behind the table's own.
void CallSecondHalf(void* s) {
  Call<void, unsigned, int, Bytes, int>(s, 16, 0, 0, nullptr, 0);
  Call<void, int, Bytes, int>(s, 17, 0, nullptr, 0);
  Call<bool, int, void*, int>(s, 18, 0, nullptr, 0);
  Call<void, unsigned, unsigned char>(s, 19, 0, 0);
  Call<unsigned char, unsigned, bool>(s, 20, 0, false);
  Call<void, unsigned, int, unsigned char>(s, 21, 0, 0, 0);
  Call<void, int, unsigned char>(s, 22, 0, 0);
  Call<unsigned char, int>(s, 23, 0);
  Call<void*, int, bool>(s, 24, 0, false);
  Call<void, unsigned>(s, 25, 0);
  Call<unsigned>(s, 26);
  for (std::size_t slot = 27; slot <= 29; ++slot) Call<bool, Text>(s, slot, "");
  for (std::size_t slot = 30; slot <= 31; ++slot) Call<bool, void*>(s, slot, nullptr);
  Call<void>(s, 32);
}

TEST(SlotOrder, SettingsData) {
  Storage<Recorder<SettingsNotes>> settings(1u, 2u, "");
  CallFirstHalf(settings.Get());
  EXPECT_EQ(g_Notes,
            (Names{"GetAtField(object)", "GetAtField(section)", "GetFavoInfo", "GetObjectInfo",
                   "GetIntegrPlnt", "ClearIntegrFlag", "GetField(id)", "GetField(name)", "SetField(id)",
                   "SetField(name)", "Reserve", "CreateField", "DeleteField", "GetFieldType"}));
  g_Notes.clear();
  CallSecondHalf(settings.Get());
  EXPECT_EQ(g_Notes, (Names{"SetFieldElement(section)", "SetFieldElement(id)", "GetFieldElement",
                            "SetSectionStatus", "GetSectionStatus", "SetFieldStatus(section)",
                            "SetFieldStatus(id)", "GetFieldStatus", "CreateQueryList", "SetID", "GetID",
                            "Read", "Restore", "Write", "Read2", "Write2", "behind"}));
  g_Notes.clear();
  Call<void>(settings.Get(), 2);
  Call<void>(new Recorder<SettingsNotes>(1u, 2u, ""), 3);
  EXPECT_EQ(g_Notes, (Names{"destructor", "destructor"}));
}

}  // namespace
