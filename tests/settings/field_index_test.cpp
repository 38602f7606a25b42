// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "settings/field_index.h"

#include <memory>

#include "settings/settings_bytes.h"

namespace test_support {
namespace {

using CommonInterfaces::FieldIndex;
using CommonInterfaces::FieldRun;
using CommonInterfaces::RunOf;

class FieldIndexTest : public testing::Test {
 protected:
  SettingField* Add(int nameId) {
    m_Owned.push_back(std::make_unique<SettingField>(FieldOf(Int(kPlnt, nameId, 0))));
    fields.push_back(m_Owned.back().get());
    return fields.back();
  }
  void Gather() {
    index.GatherSections(sections);
    index.GatherFields(sections, fields);
    index.GatherAllFields(fields);
  }
  std::vector<SectionRecord> sections;
  std::vector<SettingField*> fields;
  FieldIndex index;

 private:
  std::vector<std::unique_ptr<SettingField>> m_Owned;
};

TEST(FieldRunTest, IsCutToTheFieldsThatExist) {
  const auto run = [](int first, int last, int count) {
    const FieldRun found =
        RunOf({1, kNone, static_cast<unsigned short>(first), static_cast<unsigned short>(last), 0}, count);
    return std::pair(found.begin, found.end);
  };
  EXPECT_EQ(run(2, 4, 10), std::pair(2, 5));
  EXPECT_EQ(run(2, 40, 10), std::pair(2, 10));
  EXPECT_EQ(run(20, 40, 10), std::pair(10, 10));
  EXPECT_EQ(run(4, 2, 10), std::pair(4, 4));
  EXPECT_EQ(run(0, 0xFFFF, 10), std::pair(0, 0));
  EXPECT_EQ(run(0xFFFF, 0xFFFE, 65535), std::pair(65535, 65535));
}

TEST_F(FieldIndexTest, FirstSectionWithThatIdOrAliasIsFound) {
  sections = {
      {10, 30, 0, 0, 0}, {20, 10, 0, 0, 0}, {30, kNone, 0, 0, 0}, {10, 50, 0, 0, 0}, {kNone, 60, 0, 0, 0}};
  index.GatherSections(sections);
  EXPECT_EQ(index.FindSection(10, false), 0);
  EXPECT_EQ(index.FindSection(30, false), 2);
  EXPECT_EQ(index.FindSection(30, true), 0);  // by its alias, before the one with that id
  EXPECT_EQ(index.FindSection(20, true), 1);
  EXPECT_EQ(index.FindSection(50, true), 3);
  EXPECT_EQ(index.FindSection(50, false), -1);
  EXPECT_EQ(index.FindSection(kNone, true), 4);  // no alias is no alias, but an id
  EXPECT_EQ(index.FindSection(0, true), -1);
}

TEST_F(FieldIndexTest, NothingGatheredFindsNothing) {
  Gather();
  EXPECT_EQ(index.FindSection(0, true), -1);
  EXPECT_EQ(index.FindAnywhere(0), nullptr);
}

TEST_F(FieldIndexTest, FirstFieldOfTheNameInTheRunAndOfAll) {
  SettingField* const a = Add(1);
  Add(1);
  SettingField* const b = Add(2);
  SettingField* const c = Add(1);
  sections = {{10, kNone, 0, 1, 0}, {20, kNone, 2, 3, 0}};
  Gather();
  EXPECT_EQ(index.FindInSection(0, 1), a);
  EXPECT_EQ(index.FindInSection(1, 1), c);
  EXPECT_EQ(index.FindInSection(0, 2), nullptr);
  EXPECT_EQ(index.FindAnywhere(1), a);
  EXPECT_EQ(index.FindAnywhere(2), b);
  EXPECT_EQ(index.FindAnywhere(3), nullptr);
}

TEST_F(FieldIndexTest, FieldsOfNoRunAreFoundAmongAllOnly) {
  Add(1);
  SettingField* const orphan = Add(2);
  sections = {{10, kNone, 0, 0, 0}};
  Gather();
  EXPECT_EQ(index.FindInSection(0, 2), nullptr);
  EXPECT_EQ(index.FindAnywhere(2), orphan);
}

TEST_F(FieldIndexTest, OverlappingRunsShareFields) {
  Add(1);
  SettingField* const second = Add(1);
  SettingField* const third = Add(2);
  sections = {{10, kNone, 0, 2, 0}, {20, kNone, 1, 2, 0}, {30, kNone, 0, 0, 0}};
  Gather();
  EXPECT_EQ(index.FindInSection(0, 1), fields[0]);
  EXPECT_EQ(index.FindInSection(1, 1), second);
  EXPECT_EQ(index.FindInSection(1, 2), third);
  EXPECT_EQ(index.FindInSection(2, 2), nullptr);
}

TEST_F(FieldIndexTest, RunsInAnyOrderAreSearchedEachFromItsStart) {
  SettingField* const a = Add(1);
  SettingField* const b = Add(1);
  sections = {{10, kNone, 1, 1, 0}, {20, kNone, 0, 0, 0}};
  Gather();
  EXPECT_EQ(index.FindInSection(0, 1), b);
  EXPECT_EQ(index.FindInSection(1, 1), a);
  EXPECT_EQ(index.FindAnywhere(1), a);
}

TEST_F(FieldIndexTest, NewNameMakesItForgetTheFields) {
  SettingField* const field = Add(1);
  sections = {{10, kNone, 0, 0, 0}};
  Gather();
  EXPECT_TRUE(index.KnowsFields());
  field->SetNameId(1);
  EXPECT_TRUE(index.KnowsFields());
  field->SetNameId(2);
  EXPECT_FALSE(index.KnowsFields());
  EXPECT_FALSE(index.KnowsAllFields());
  EXPECT_TRUE(index.KnowsSections());
}

TEST_F(FieldIndexTest, AssignedFieldWithAnotherNameMakesItForgetTheFields) {
  SettingField* const field = Add(1);
  Gather();
  *field = FieldOf(Int(kStar, 1, 9));
  EXPECT_TRUE(index.KnowsFields());
  *field = FieldOf(Int(kStar, 3, 9));
  EXPECT_FALSE(index.KnowsFields());
}

TEST_F(FieldIndexTest, NewFieldIsFollowed) {
  Add(1);
  sections = {{10, kNone, 0, 0, 0}};
  Gather();
  SettingField* const added = Add(2);
  index.NoteNewField(0, added);
  EXPECT_TRUE(index.KnowsFields());
  EXPECT_EQ(index.FindInSection(0, 2), added);
  EXPECT_TRUE(index.KnowsAllFields());
  EXPECT_EQ(index.FindAnywhere(2), added);
}

TEST_F(FieldIndexTest, NewFieldWithANameOfAnotherSectionLeavesTheFirstOfAllOpen) {
  Add(1);
  sections = {{10, kNone, 0, 0, 0}, {20, kNone, 1, 0, 0}};
  Gather();
  index.NoteNewField(1, Add(1));
  EXPECT_TRUE(index.KnowsFields());
  EXPECT_FALSE(index.KnowsAllFields());
}

TEST_F(FieldIndexTest, DeletedFieldIsFollowedByTheNextOfItsName) {
  Add(1);
  SettingField* const next = Add(1);
  sections = {{10, kNone, 0, 1, 0}};
  Gather();
  index.NoteDeletedField(0, 1, next);
  EXPECT_EQ(index.FindInSection(0, 1), next);
  index.NoteDeletedField(0, 1, nullptr);
  EXPECT_EQ(index.FindInSection(0, 1), nullptr);
  EXPECT_FALSE(index.KnowsAllFields());
}

TEST_F(FieldIndexTest, ChangesOfOverlappingRunsAreForgotten) {
  Add(1);
  sections = {{10, kNone, 0, 0, 0}, {20, kNone, 0, 0, 0}};
  Gather();
  index.NoteNewField(1, Add(2));
  EXPECT_FALSE(index.KnowsFields());
  Gather();
  index.NoteDeletedField(1, 2, nullptr);
  EXPECT_FALSE(index.KnowsFields());
}

TEST_F(FieldIndexTest, NewSectionIsFollowedAndHiddenByAnEarlierAlias) {
  sections = {{10, 30, 0, 0, 0}};
  index.GatherSections(sections);
  index.NoteNewSection(20, 1);
  index.NoteNewSection(30, 2);
  EXPECT_EQ(index.FindSection(20, true), 1);
  EXPECT_EQ(index.FindSection(30, false), 2);
  EXPECT_EQ(index.FindSection(30, true), 0);
}

}  // namespace
}  // namespace test_support
