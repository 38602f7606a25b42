// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/field_arena.h"

#include <cstdint>
#include <cstring>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common_interfaces/field_data.h"
#include "common_interfaces/settings_field.h"
#include "settings/field_record.h"

namespace CommonInterfaces {
namespace {

// A field of that many bytes, all of them `mark`.
SettingField* MakeBytes(FieldArena& arena, int count, unsigned char mark) {
  const int size = kFieldHeaderSize + count;
  FieldData* const record = arena.Allocate(size);
  std::memset(static_cast<void*>(record), 0, kFieldHeaderSize);
  record->nameId = count;
  record->type = kFieldBytes;
  record->size = static_cast<unsigned short>(count);
  std::memset(record->data, mark, static_cast<std::size_t>(count));
  return arena.MakeField(record, size);
}

TEST(FieldArena, FieldsOfAnyLengthStandApart) {
  FieldArena arena;
  std::mt19937 random(1);
  std::vector<SettingField*> fields;
  std::vector<std::string> values;
  for (int i = 0; i < 3000; ++i) {
    const int count = i % 500 == 0 ? 65535 : static_cast<int>(random() % 40);
    const auto mark = static_cast<unsigned char>(random());
    fields.push_back(MakeBytes(arena, count, mark));
    values.emplace_back(static_cast<std::size_t>(count), static_cast<char>(mark));
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(fields.back()) % alignof(SettingField), 0U);
  }
  for (std::size_t i = 0; i < fields.size(); ++i) {
    std::string value(values[i].size(), '#');
    fields[i]->GetData(value.data());
    ASSERT_EQ(value, values[i]) << i;
    ReleaseField(fields[i]);
  }
}

TEST(FieldArena, RoomOfARecordThatWasNotReadIsLeftAlone) {
  FieldArena arena;
  SettingField* const first = MakeBytes(arena, 4, 1);
  arena.Free(arena.Allocate(100));
  SettingField* const second = MakeBytes(arena, 4, 2);
  unsigned value = 0;
  first->GetData(&value);
  EXPECT_EQ(value, 0x01010101U);
  second->GetData(&value);
  EXPECT_EQ(value, 0x02020202U);
  ReleaseField(first);
  ReleaseField(second);
}

// The record in the arena is left, the new one is the field's own.
TEST(FieldArena, FieldMayBeResizedAndAssignedTo) {
  FieldArena arena;
  SettingField* const first = MakeBytes(arena, 2, 1);
  SettingField* const second = MakeBytes(arena, 3, 2);
  first->SetData("abcdefgh", 8);
  *second = *first;
  char value[9] = {};
  second->GetData(value);
  EXPECT_STREQ(value, "abcdefgh");
  ReleaseField(first);
  ReleaseField(second);
}

TEST(FieldArena, FieldsStayWhereTheyAreWhenTheArenaMoves) {
  std::vector<FieldArena> arenas(1);
  SettingField* const field = MakeBytes(arenas.back(), 4, 7);
  for (int i = 0; i < 20; ++i) arenas.emplace_back();
  unsigned value = 0;
  field->GetData(&value);
  EXPECT_EQ(value, 0x07070707U);
  ReleaseField(field);
}

TEST(FieldArena, FieldOutsideReleasesItsOwnBlock) {
  const unsigned char record[kFieldHeaderSize + 1] = {};
  ReleaseField(MakeFieldOfCopy(reinterpret_cast<const FieldData*>(record), sizeof record));
  const SettingField source(nullptr, reinterpret_cast<const FieldData*>(record), sizeof record);
  ReleaseField(std::make_unique<SettingField>(source).release());
}

}  // namespace
}  // namespace CommonInterfaces
