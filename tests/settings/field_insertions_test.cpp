// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/field_insertions.h"

#include <random>

#include <gtest/gtest.h>

namespace CommonInterfaces {
namespace {

// Fields that are told apart by their address alone.
class Marks {
 public:
  SettingField* Next() { return reinterpret_cast<SettingField*>(++m_Last); }

 private:
  char* m_Last = reinterpret_cast<char*>(0x1000);
};

using Fields = std::vector<SettingField*>;

TEST(FieldInsertions, AppendIsMadeAtOnce) {
  Marks marks;
  Fields fields;
  FieldInsertions insertions;
  insertions.Add(fields, 0, marks.Next());
  insertions.Add(fields, 1, marks.Next());
  EXPECT_TRUE(insertions.IsEmpty());
  EXPECT_EQ(fields.size(), 2u);
}

TEST(FieldInsertions, InsertionsWaitAndCountAndKeepTheOrderTheyWereGiven) {
  Marks marks;
  Fields fields{marks.Next(), marks.Next()}, expected = fields;
  FieldInsertions insertions;
  for (const int place : {0, 1, 1, 5, 6, 0}) {  // two of them at the end as it then is
    SettingField* const field = marks.Next();
    insertions.Add(fields, place, field);
    expected.insert(expected.begin() + place, field);
  }
  EXPECT_EQ(insertions.GetCount(), 6);
  insertions.MakeIn(fields);
  EXPECT_TRUE(insertions.IsEmpty());
  EXPECT_EQ(fields, expected);
}

TEST(FieldInsertions, NothingWaitingChangesNothing) {
  Marks marks;
  Fields fields{marks.Next()};
  const Fields expected = fields;
  FieldInsertions().MakeIn(fields);
  EXPECT_EQ(fields, expected);
}

TEST(FieldInsertions, ManyAtRandomPlacesAreThoseOfAVector) {
  std::mt19937 random(11);
  Marks marks;
  Fields fields, expected;
  FieldInsertions insertions;
  for (std::size_t i = 0; i < 3000; ++i) {
    SettingField* const field = marks.Next();
    const int place = static_cast<int>(random() % (i + 1));
    insertions.Add(fields, place, field);
    expected.insert(expected.begin() + place, field);
    ASSERT_EQ(fields.size() + static_cast<std::size_t>(insertions.GetCount()), expected.size());
    if (random() % 500 == 0) insertions.MakeIn(fields);
  }
  insertions.MakeIn(fields);
  EXPECT_EQ(fields, expected);
}

}  // namespace
}  // namespace CommonInterfaces
