// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
//
// Where the members of records lie that no static_assert can reach, because they are private or stand behind
// a pointer to a virtual table. The bytes of an object with known values are read at the offset itself.
//
// Offsets count in kWord, the bytes of a pointer: with 4 they are those that modules built apart rely on.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/object_outputs.h"
#include "common_interfaces/output_pool.h"
#include "common_interfaces/queries.h"
#include "common_interfaces/settings_data.h"
#include "common_interfaces/settings_field.h"
#include "common_interfaces/thread.h"
#include "utils/text.h"

namespace {

using namespace CommonInterfaces;

constexpr std::size_t kWord = sizeof(void*);

// The value of type T that lies `offset` bytes into the object.
template <class T>
T At(const void* object, std::size_t offset) {
  T value;
  std::memcpy(&value, static_cast<const unsigned char*>(object) + offset, sizeof value);
  return value;
}

// Zeroed memory with one record constructed in it.
template <class Record>
class Image {
 public:
  Image() : m_Record(std::construct_at(reinterpret_cast<Record*>(m_Bytes))) {}
  ~Image() { std::destroy_at(m_Record); }
  Image(const Image&) = delete;
  Image& operator=(const Image&) = delete;

  Record& Get() { return *m_Record; }
  template <class T>
  T Read(std::size_t offset) const {
    return At<T>(m_Bytes, offset);
  }

 private:
  alignas(Record) unsigned char m_Bytes[sizeof(Record)] = {};
  Record* m_Record;
};

void FillBase(BaseOutput& output) {
  output.m_Frame = 0x11223344;
  output.m_Place = {1.5f, -2.5f, 3.25f, 0.125f};
  output.m_OnScreen = 0xA1;
  output.m_LabelIndex = -77;
  output.m_Drawn = true;
}

template <class Record>
void ExpectFilledBase(const Image<Record>& image) {
  EXPECT_EQ(image.template Read<unsigned>(kWord), 0x11223344u);
  EXPECT_EQ(image.template Read<float>(kWord + 4), 1.5f);
  EXPECT_EQ(image.template Read<float>(kWord + 8), -2.5f);
  EXPECT_EQ(image.template Read<float>(kWord + 12), 3.25f);
  EXPECT_EQ(image.template Read<float>(kWord + 16), 0.125f);
  EXPECT_EQ(image.template Read<unsigned char>(kWord + 20), 0xA1);
  EXPECT_EQ(image.template Read<int>(kWord + 24), -77);
  EXPECT_EQ(image.template Read<unsigned char>(kWord + 28), 1);
}

TEST(RecordLayout, BaseOutput) {
  Image<BaseOutput> image;
  FillBase(image.Get());
  ExpectFilledBase(image);
}

TEST(RecordLayout, StarOutputPutsItsFlagsIntoTheTailOfTheBase) {
  Image<StarOutput> image;
  FillBase(image.Get());
  image.Get().m_AsDisc = 0xB2;
  image.Get().m_Highlighted = 0xC3;
  ExpectFilledBase(image);
  EXPECT_EQ(image.Read<unsigned char>(kWord + 29), 0xB2);
  EXPECT_EQ(image.Read<unsigned char>(kWord + 30), 0xC3);
}

TEST(RecordLayout, DeepskyOutput) {
  Image<DeepskyOutput> image;
  auto* picture = new DeepskyImageDrawData;  // deleted by the record
  Deepsky3DDrawData model;
  DeepskyOutput& deep = image.Get();
  FillBase(deep);
  deep.m_SymbolDrawn = true;
  deep.m_MajorSize = 17.5f;
  deep.m_MinorSize = 8.25f;
  deep.m_Color = 0x80FFEEDD;
  deep.m_ImageDrawn = true;
  deep.m_Texture = 0xCAFE0001;
  deep.m_ImageLetter = 'b';
  deep.m_ImageDrawData = picture;
  deep.m_ModelDrawData = &model;
  ExpectFilledBase(image);
  EXPECT_EQ(image.Read<unsigned char>(kWord + 29), 1);
  EXPECT_EQ(image.Read<float>(kWord + 32), 17.5f);
  EXPECT_EQ(image.Read<float>(kWord + 36), 8.25f);
  EXPECT_EQ(image.Read<unsigned>(kWord + 40), 0x80FFEEDDu);
  EXPECT_EQ(image.Read<unsigned char>(kWord + 44), 1);
  EXPECT_EQ(image.Read<unsigned>(kWord + 48), 0xCAFE0001u);
  EXPECT_EQ(image.Read<char>(kWord + 52), 'b');
  EXPECT_EQ(image.Read<void*>(kWord + 56), picture);
  EXPECT_EQ(image.Read<void*>(2 * kWord + 56), &model);
}

TEST(RecordLayout, OutputPoolHoldsTableSizeCountAndCurrentBlock) {
  OutputPool pool(100, 3);
  EXPECT_NE(At<void*>(&pool, 0), nullptr);
  EXPECT_EQ(At<unsigned>(&pool, kWord), 100u);
  EXPECT_EQ(At<unsigned>(&pool, kWord + 4), 3u);
  EXPECT_EQ(At<unsigned>(&pool, kWord + 8), 0u);
  ASSERT_NE(pool.getMem(90), nullptr);
  ASSERT_NE(pool.getMem(90), nullptr);
  EXPECT_EQ(At<unsigned>(&pool, kWord + 8), 1u);
}

TEST(RecordLayout, BlockDescriptorHoldsBaseNextFreeByteAndFreeCount) {
  constexpr std::size_t kDescriptor = kWord == 4 ? 12 : 24;
  OutputPool pool(100, 2);
  auto* memory = static_cast<unsigned char*>(pool.getMem(30));
  ASSERT_NE(memory, nullptr);
  const auto* first = At<const unsigned char*>(&pool, 0);
  EXPECT_EQ(At<unsigned char*>(first, 0), memory - 8);
  EXPECT_EQ(At<unsigned char*>(first, kWord), memory + 30);
  EXPECT_EQ(At<unsigned>(first, 2 * kWord), 100u - 8 - 30);
  const unsigned char* second = first + kDescriptor;
  EXPECT_EQ(At<std::uintptr_t>(second, 0), 0u);
  EXPECT_EQ(At<std::uintptr_t>(second, kWord), 0u);
  EXPECT_EQ(At<unsigned>(second, 2 * kWord), 0u);
  ASSERT_NE(pool.getMem(92), nullptr);
  EXPECT_NE(At<std::uintptr_t>(second, 0), 0u);
}

// The record of one int with the value 5, of name id 9 in section 7.
struct IntRecord {
  unsigned char bytes[24] = {7, 0, 0, 0, 9,    0,    0,    0,    4, 1, 0, 0,
                             0, 0, 0, 1, 0xFF, 0xFF, 0xFF, 0xFF, 5, 0, 0, 0};
  const FieldData* Get() const { return reinterpret_cast<const FieldData*>(bytes); }
};

TEST(RecordLayout, SettingFieldMembersStandInOrder) {
  const IntRecord record;
  SettingField field(nullptr, record.Get(), sizeof record.bytes);
  const auto* held = At<const unsigned char*>(&field, 0);
  ASSERT_NE(held, nullptr);
  EXPECT_EQ(std::memcmp(held, record.bytes, sizeof record.bytes), 0);
  EXPECT_EQ(At<int>(&field, kWord), 24);
  EXPECT_EQ(At<bool>(&field, kWord + 4), false);
  EXPECT_EQ(At<void*>(&field, kWord + 8), nullptr);
  EXPECT_EQ(At<int>(&field, 2 * kWord + 12), 0);

  const BaseQuery* query = field.CreateQuery(7, true);
  ASSERT_NE(query, nullptr);
  EXPECT_EQ(At<const void*>(&field, 2 * kWord + 16), query);

  field.SetCompareStatusAndStore(0xE4);
  EXPECT_EQ(At<bool>(&field, kWord + 4), true);
  EXPECT_EQ(At<unsigned char>(&field, 2 * kWord + 8), 1);
  EXPECT_EQ(At<int>(&field, 2 * kWord + 12), 2);

  const int value = 6;
  field.SetDataAndStore(&value);
  EXPECT_NE(At<void*>(&field, kWord + 8), nullptr);
  EXPECT_EQ(At<int>(&field, 2 * kWord + 12), 1);
  field.RestoreData();  // releases what was saved
  EXPECT_EQ(At<void*>(&field, kWord + 8), nullptr);
  EXPECT_EQ(At<int>(&field, 2 * kWord + 12), 0);
}

// The members of a container, as it must hold them.
struct SettingsDataMembers {
  void* virtualTable;
  unsigned owner, version;
  bool loadingDefaults;
  std::vector<SectionRecord> sections;
  int currentSection;
  std::map<unsigned, bool> sectionChanged;
  std::vector<SettingField*> fields;
  std::map<int, int> reserved;
  std::string fileName;
  unsigned id;
  SSO_ID aimObject;
  BaseQuery* aimQuery;
  std::vector<SettingField*> correctionFields;
  void* tables;  // the container's own
};
static_assert(sizeof(SettingsDataMembers) == sizeof(SettingsData));

template <class Member>
std::size_t OffsetOf(Member SettingsDataMembers::*member) {
  const SettingsDataMembers members{};
  return static_cast<std::size_t>(reinterpret_cast<const unsigned char*>(&(members.*member)) -
                                  reinterpret_cast<const unsigned char*>(&members));
}

TEST(RecordLayout, SettingsDataMembersStandInOrder) {
  SettingsData settings(0x1234, 0x5678, "");
  const IntRecord record;
  ASSERT_EQ(settings.CreateField(record.Get(), sizeof record.bytes, false), 0);
  settings.SetSectionStatus(7, 0xD5);
  settings.SetCurSection(7);
  settings.SetAimObject(SSO_ID(static_cast<int>(FourCC("plnt")), 4));

  EXPECT_EQ(OffsetOf(&SettingsDataMembers::owner), kWord);
  EXPECT_EQ(At<unsigned>(&settings, kWord), 0x5678u);
  EXPECT_EQ(At<unsigned>(&settings, kWord + 4), 0u);
  EXPECT_EQ(At<bool>(&settings, kWord + 8), false);
  const auto* sections = At<const unsigned char*>(&settings, OffsetOf(&SettingsDataMembers::sections));
  EXPECT_EQ(At<unsigned>(sections, 0), 7u);
  EXPECT_EQ(At<unsigned>(sections, 4), 0xFFFFFFFFu);
  EXPECT_EQ(At<unsigned char>(sections, 12), 0xD5);
  EXPECT_EQ(At<int>(&settings, OffsetOf(&SettingsDataMembers::currentSection)), 0);
  const auto* fields = At<const unsigned char*>(&settings, OffsetOf(&SettingsDataMembers::fields));
  EXPECT_EQ(At<void*>(fields, 0), settings.GetFieldAt(0));
  EXPECT_EQ(At<unsigned>(&settings, OffsetOf(&SettingsDataMembers::id)), 0x1234u);
  const std::size_t aim = OffsetOf(&SettingsDataMembers::aimObject);
  EXPECT_EQ(At<unsigned>(&settings, aim), FourCC("plnt"));
  EXPECT_EQ(At<int>(&settings, aim + 4), 4);
  EXPECT_EQ(At<void*>(&settings, OffsetOf(&SettingsDataMembers::aimQuery)), nullptr);
}

TEST(RecordLayout, QueryHoldsNameIdThenCondition) {
  const int value = 1;
  const TQuery<int> query(0x01020304, 0x4000, &value, 1);
  EXPECT_EQ(At<int>(&query, kWord), 0x01020304);
  EXPECT_EQ(At<unsigned>(&query, kWord + 4), 0x4000u);
  EXPECT_EQ(At<const int*>(&query, kWord + 8), query.m_Values.data());
}

TEST(RecordLayout, ThreadHoldsRunnableStartedFlagPriorityAndHandle) {
  struct Nothing : thread::Runnable {
    void run() override {}
  } runnable;
  thread::Thread worker(&runnable);
  EXPECT_EQ(At<void*>(&worker, kWord), &runnable);
  EXPECT_EQ(At<bool>(&worker, 2 * kWord), false);
  EXPECT_EQ(At<unsigned>(&worker, 2 * kWord + 4), 2u);
  EXPECT_NE(At<void*>(&worker, 2 * kWord + 8), nullptr);
  worker.start();
  EXPECT_EQ(At<bool>(&worker, 2 * kWord), true);
  worker.waitForEnd();
}

TEST(RecordLayout, SemaphoreAndEventHoldHandleThenName) {
  static const char kName[] = "common_interfaces layout test semaphore";
  const thread::Semaphore semaphore(1, kName);
  EXPECT_NE(At<void*>(&semaphore, kWord), nullptr);
  EXPECT_EQ(At<const char*>(&semaphore, 2 * kWord), kName);
  static const char kEventName[] = "common_interfaces layout test event";
  const thread::SyncEvent event(false, false, kEventName);
  EXPECT_NE(At<void*>(&event, kWord), nullptr);
  EXPECT_EQ(At<const char*>(&event, 2 * kWord), kEventName);
}

}  // namespace
